#pragma once

#include <optional>
#include <vector>

#include "Fc/Core/Kernel/FcProductAttributes.h"
#include "Qor/Math/Matrix.h"
#include "Qor/Math/Polygon.h"

namespace qor::fc {
class FcParams;
}
namespace qor::fc::resource::geometry {
class FcRepresentationItem;
}

namespace qor::fc::core::kernel {

/// IfcProduct, Core.Kernel: what has a place and a shape.
class QOR_API FcProduct : public FcProductAttributes {
 public:
  /// The frame that it stands in, in the project: the identity without a placement. Empty, with an
  /// assert that names the product, where the kind of placement can't be computed.
  std::optional<math::Matrix> absolutePlacement() const;

  /// The items of the representations in the body sub-context of the project of its model, in
  /// order, null ones left out. Empty without one of these. They live as long as the model holds
  /// them.
  std::vector<const resource::geometry::FcRepresentationItem*> getBodyRepresentationItems() const;
  /// The outlines of the planar faces of its body, without holes, in project coordinates; by the
  /// current processor of complex geometry, without which an assert comes and nothing else.
  std::vector<math::Polygon3d> getBodySurfaces(const FcParams& params) const;
  /// The least distance between the two bodies in metres: 0 where they touch or overlap, empty when
  /// one has no shape. Each pair of items is a run of the solid modeller.
  std::optional<double> getDistanceToOtherProduct(const FcParams& params,
                                                  const FcProduct& other) const;

 protected:
  FcProduct() = default;
  /// Opens an object, draws the product's representations in the frame of its placement, closes the
  /// object; then the parts, each in its own absolute frame.
  void doGenerate(FcGenerateParams& params) const override;

 private:
  void drawAsObject(FcGenerateParams& params) const;
};

}  // namespace qor::fc::core::kernel
