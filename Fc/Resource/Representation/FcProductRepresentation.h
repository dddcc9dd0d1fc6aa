#pragma once

#include "Fc/Resource/Representation/FcProductRepresentationAttributes.h"

namespace qor::fc {
class FcGenerateParams;
}

namespace qor::fc::resource::representation {

/// IfcProductRepresentation, Resource.Representation: all representations of one product.
class QOR_API FcProductRepresentation : public FcProductRepresentationAttributes {
 public:
  /// Each that the draw status has on, in order.
  virtual void generate(FcGenerateParams& params) const;

 protected:
  FcProductRepresentation() = default;
};

}  // namespace qor::fc::resource::representation
