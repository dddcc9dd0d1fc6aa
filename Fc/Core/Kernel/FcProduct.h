#pragma once

#include <optional>

#include "Fc/Core/Kernel/FcProductAttributes.h"
#include "Qor/Math/Matrix.h"

namespace qor::fc::core::kernel {

/// IfcProduct, Core.Kernel: what has a place and a shape.
class QOR_API FcProduct : public FcProductAttributes {
 public:
  /// The frame that it stands in, in the project: the identity without a placement. Empty, with an
  /// assert that names the product, where the kind of placement can't be computed.
  std::optional<math::Matrix> absolutePlacement() const;

 protected:
  FcProduct() = default;
  /// Opens an object, draws the product's representations in the frame of its placement, closes the
  /// object; then the parts, each in its own absolute frame.
  void doGenerate(FcGenerateParams& params) const override;

 private:
  void drawAsObject(FcGenerateParams& params) const;
};

}  // namespace qor::fc::core::kernel
