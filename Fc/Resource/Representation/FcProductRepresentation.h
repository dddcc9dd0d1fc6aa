#pragma once

#include <functional>
#include <memory>

#include "Fc/Resource/Representation/FcProductRepresentationAttributes.h"
#include "Qor/Math/Matrix.h"

namespace qor::fc {
class FcGenerateParams;
}

namespace qor::fc::resource::representation {

/// IfcProductRepresentation, Resource.Representation: all representations of one product.
class QOR_API FcProductRepresentation : public FcProductRepresentationAttributes {
 public:
  /// Each that the draw status has on, in order.
  virtual void generate(FcGenerateParams& params) const;
  /// Moves each item of each representation that the filter takes, as the item's own `transform`
  /// does. Items that several representations share are moved by each. An empty filter throws
  /// `std::bad_function_call`.
  void transform(const math::Matrix& matrix,
                 const std::function<bool(std::shared_ptr<FcRepresentation>)>& filter);

 protected:
  FcProductRepresentation() = default;
};

}  // namespace qor::fc::resource::representation
