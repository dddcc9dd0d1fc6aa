#pragma once

#include "Fc/Resource/ExternalReference/FcClassificationReferenceAttributes.h"

namespace qor::fc {
class Data;
}

namespace qor::fc::resource::externalreference {

/// IfcClassificationReference, Resource.External Reference: a class of a classification, which may
/// stand below another class.
class QOR_API FcClassificationReference : public FcClassificationReferenceAttributes {
 public:
  /// A new classification of that name, listed, which the reference belongs to from now on.
  std::shared_ptr<FcClassification> createClassification(Data& data, const std::string& name);
  /// The classification at the top; null where the chain ends without one or runs in a circle.
  std::shared_ptr<FcClassification> getClassification() const;
  /// Its name; empty for none.
  std::string getClassificationName() const;
};

}  // namespace qor::fc::resource::externalreference
