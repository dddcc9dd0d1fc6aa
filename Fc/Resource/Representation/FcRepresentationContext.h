#pragma once

#include "Fc/Resource/Representation/FcRepresentationContextAttributes.h"

namespace qor::fc {
class FcGenerateParams;
}

namespace qor::fc::resource::representation {

/// IfcRepresentationContext, Resource.Representation: what representations are made for.
class QOR_API FcRepresentationContext : public FcRepresentationContextAttributes {
 public:
  /// Whether representations of this context are drawn in a walk. The base form says yes, and
  /// reports that the class can't tell.
  virtual bool generate(FcGenerateParams& params) const;

 protected:
  FcRepresentationContext() = default;
};

}  // namespace qor::fc::resource::representation
