#include <memory>
#include <utility>

#include "Fc/Core/Kernel/FcObjectDefinition.h"
#include "Fc/Core/Kernel/FcPropertyDefinition.h"
#include "Fc/Core/Kernel/FcRelAssociatesClassification.h"
#include "Fc/Core/Kernel/FcRelAssociatesDocument.h"
#include "Fc/Core/Kernel/FcRelAssociatesLibrary.h"
#include "Fc/Data.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/ExternalReference/FcClassification.h"
#include "Fc/Resource/ExternalReference/FcClassificationReference.h"
#include "Fc/Resource/ExternalReference/FcDocumentInformation.h"
#include "Fc/Resource/ExternalReference/FcDocumentReference.h"
#include "Fc/Resource/ExternalReference/FcLibraryInformation.h"
#include "Fc/Resource/ExternalReference/FcLibraryReference.h"
#include "Qor/Classification/ClassificationInterface.h"

// What associates an object definition with something outside the model.

namespace qor::fc::core::kernel {

using classification::ClassificationInterface;
using resource::externalreference::FcClassification;
using resource::externalreference::FcClassificationReference;
using resource::externalreference::FcClassificationSelect;
using resource::externalreference::FcDocumentReference;
using resource::externalreference::FcLibraryReference;

namespace {

constexpr const char* noModel = "Cannot set external reference without FcData";

std::optional<std::string> unlessEmpty(std::string text) {
  return text.empty() ? std::nullopt : std::optional(std::move(text));
}

std::shared_ptr<FcClassification> findOrCreate(Data& data, const ClassificationInterface& system) {
  const std::string name = system.getName();
  auto found = data.findFirst<FcClassification>(
      [&name](const FcClassification& listed) { return listed.Name() == name; });
  if (found) return found;
  auto added = data.create<FcClassification>();
  added->setName(name);
  added->setDescription(unlessEmpty(system.getDescription()));
  added->setEditionDate(unlessEmpty(system.getEditionDate()));
  return added;
}

std::shared_ptr<FcClassificationReference> findOrCreate(Data& data,
                                                        const ClassificationInterface& system,
                                                        const std::string& code) {
  auto found = data.findFirst<FcClassificationReference>(
      [&code](const FcClassificationReference& listed) { return listed.Identification() == code; });
  if (found) return found;
  auto added = data.create<FcClassificationReference>();
  added->setIdentification(code);
  added->setLocation(unlessEmpty(system.getReferenceLocation(code)));
  added->setName(unlessEmpty(system.getReferenceName(code)));
  added->setDescription(unlessEmpty(system.getReferenceDescription(code)));
  added->setSort(unlessEmpty(system.getReferenceSort(code)));
  return added;
}

template <class Relation>
std::shared_ptr<Relation> createRelation(Data& data) {
  auto relation = data.create<Relation>();
  relation->setGlobalId(Guid::generate());
  return relation;
}

std::shared_ptr<FcRelAssociates> createAssociation(
    Data& data, const std::shared_ptr<FcClassificationReference>& reference) {
  auto relation = createRelation<FcRelAssociatesClassification>(data);
  relation->setRelatingClassification(reference);
  return relation;
}

std::shared_ptr<FcRelAssociates> createAssociation(
    Data& data, const std::shared_ptr<FcDocumentReference>& reference) {
  auto relation = createRelation<FcRelAssociatesDocument>(data);
  relation->setRelatingDocument(reference);
  return relation;
}

std::shared_ptr<FcRelAssociates> createAssociation(
    Data& data, const std::shared_ptr<FcLibraryReference>& reference) {
  auto relation = createRelation<FcRelAssociatesLibrary>(data);
  relation->setRelatingLibrary(reference);
  return relation;
}

std::shared_ptr<FcClassificationReference> referenceOf(const FcRelAssociates& association) {
  const auto* relation = fcCast<FcRelAssociatesClassification>(&association);
  return relation && relation->RelatingClassification().type() ==
                         FcClassificationSelect::Types::ClassificationReference
             ? relation->RelatingClassification().ClassificationReference()
             : nullptr;
}

}  // namespace

std::shared_ptr<FcClassification> FcObjectDefinition::classify(
    std::shared_ptr<ClassificationInterface> system, const std::vector<std::string>& codes) {
  if (!system) {
    report(*this, "Need classification interface");
    return nullptr;
  }
  const std::shared_ptr<Data> model = data();
  if (!model) {
    report(*this, noModel);
    return nullptr;
  }
  auto result = findOrCreate(*model, *system);
  std::shared_ptr<FcClassificationReference> last;
  for (const std::string& code : codes) {
    auto reference = findOrCreate(*model, *system, code);
    if (!last)
      reference->setReferencedSource(result);
    else if (reference != last)
      reference->setReferencedSource(last);
    last = std::move(reference);
  }
  if (!last) return result;
  std::shared_ptr<FcRelAssociates> association = last->ClassificationRefForObjects().lockFirst();
  if (!association) association = createAssociation(*model, last);
  association->insertRelatedObjects(self());
  return result;
}

std::shared_ptr<const FcClassificationReference> FcObjectDefinition::getClassification(
    const ClassificationInterface& system) const {
  const std::string name = system.getName();
  for (const auto& association : HasAssociations().lock()) {
    auto reference = referenceOf(*association);
    const auto top = reference ? reference->getClassification() : nullptr;
    if (top && top->Name() == name) return reference;
  }
  return nullptr;
}

void FcObjectDefinition::removeClassification(const ClassificationInterface& system) {
  const auto reference = getClassification(system);
  if (!reference) return;
  for (const auto& association : reference->ClassificationRefForObjects().lock())
    association->eraseRelatedObjects(self());
}

template <class T>
std::shared_ptr<T> FcObjectDefinition::createExternalReference(
    std::optional<std::string> location, std::optional<std::string> identification,
    std::string name) {
  const std::shared_ptr<Data> model = data();
  if (!model) {
    report(*this, noModel);
    return nullptr;
  }
  auto reference = model->create<T>();
  reference->setLocation(std::move(location));
  reference->setIdentification(std::move(identification));
  reference->setName(std::move(name));
  createAssociation(*model, reference)->insertRelatedObjects(self());
  return reference;
}

template QOR_API std::shared_ptr<FcClassificationReference>
    FcObjectDefinition::createExternalReference(std::optional<std::string>,
                                                std::optional<std::string>, std::string);
template QOR_API std::shared_ptr<FcDocumentReference> FcObjectDefinition::createExternalReference(
    std::optional<std::string>, std::optional<std::string>, std::string);
template QOR_API std::shared_ptr<FcLibraryReference> FcObjectDefinition::createExternalReference(
    std::optional<std::string>, std::optional<std::string>, std::string);

}  // namespace qor::fc::core::kernel
