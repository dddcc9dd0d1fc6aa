#include "Fc/Resource/ExternalReference/FcClassificationReference.h"

#include <unordered_set>

#include "Fc/Data.h"
#include "Fc/Resource/ExternalReference/FcClassification.h"

namespace qor::fc::resource::externalreference {

std::shared_ptr<FcClassification> FcClassificationReference::createClassification(
    Data& data, const std::string& name) {
  auto classification = data.create<FcClassification>();
  setReferencedSource(classification);
  classification->setName(name);
  return classification;
}

std::shared_ptr<FcClassification> FcClassificationReference::getClassification() const {
  using Types = FcClassificationReferenceSelect::Types;
  std::unordered_set<const FcClassificationReference*> seen;
  const FcClassificationReference* at = this;
  while (at && seen.insert(at).second) {
    const FcClassificationReferenceSelect& source = at->ReferencedSource();
    if (source.type() == Types::Classification) return source.Classification();
    if (source.type() == Types::NotSet) return nullptr;
    at = source.ClassificationReference().get();
  }
  return nullptr;
}

std::string FcClassificationReference::getClassificationName() const {
  const auto classification = getClassification();
  return classification ? classification->Name() : std::string();
}

}  // namespace qor::fc::resource::externalreference
