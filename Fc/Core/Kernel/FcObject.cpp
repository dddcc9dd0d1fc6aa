#include "Fc/Core/Kernel/FcObject.h"

#include "Fc/Core/Kernel/FcRelDefinesByProperties.h"
#include "Fc/Core/Kernel/FcRelDefinesByType.h"
#include "Fc/Core/Kernel/FcTypeObject.h"
#include "Fc/Core/Kernel/PropertySetAttachment.h"
#include "Fc/Core/ProductExtension/FcElementQuantity.h"
#include "Fc/Data.h"
#include "Fc/Factory.h"
#include "Fc/Model/Report.h"

namespace qor::fc::core::kernel {

std::shared_ptr<FcTypeObject> FcObject::typeSet(
    Data& data, const Guid& typeGuid,
    const std::function<std::shared_ptr<FcTypeObject>()>& makeType) {
  auto type = fcCast<FcTypeObject>(data.entityByGuid(typeGuid));
  if (!type) {
    type = makeType();
    if (!type || type->GlobalId() != typeGuid) {
      report(*this, "Type not created correctly");
      return nullptr;
    }
    data.entityAdd(type, true);
  }
  type->IsTypedByConnect(data, *this);
  return type;
}

std::shared_ptr<FcTypeObject> FcObject::typeSet(
    Data& data, const StringHash& ifcName, const Guid& typeGuid,
    const std::function<void(FcTypeObject&)>& initialise) {
  return typeSet(data, typeGuid, [&]() -> std::shared_ptr<FcTypeObject> {
    auto type = fcCast<FcTypeObject>(Factory::objectFromIfcName(ifcName));
    if (!type) return nullptr;
    type->setGlobalId(typeGuid);
    data.entityAdd(type, false);
    if (initialise) initialise(*type);
    return type;
  });
}

std::shared_ptr<const FcTypeObject> FcObject::getTypeObject() const {
  const auto relation = IsTypedBy().lock();
  return relation ? relation->RelatingType() : nullptr;
}

std::shared_ptr<FcTypeObject> FcObject::typeBaseGet() {
  return std::const_pointer_cast<FcTypeObject>(getTypeObject());
}

std::shared_ptr<FcBase> FcObject::getSharedPtrFromTypeObject(FcTypeObject& type) {
  return type.shared_from_this();
}

void FcObject::setPredefinedTypeFromString(const std::string& text) {
  if (!storePredefinedType(text)) setObjectType(text);
}

template <class T>
std::shared_ptr<T> FcObject::getOrCreatePropertySetDefinition(
    Data& data, const std::string& name, const std::function<void(T&)>& initialiseSet,
    const std::function<void(FcRelDefinesByProperties&)>& initialiseRelation) {
  return getOrAttachPropertySet<T>(*this, data, name, initialiseSet, initialiseRelation);
}

void FcObject::propertySetAdd(
    Data& data, std::shared_ptr<FcPropertySetDefinition> set,
    const std::function<void(FcRelDefinesByProperties&)>& initialiseRelation) {
  const auto entries = set->DefinesOccurrence().lockAll();
  auto relation = entries.empty() ? nullptr : entries.front();
  if (!relation) {
    relation = createDefinesByProperties(data);
    relation->setRelatingPropertyDefinition(std::move(set));
    if (initialiseRelation) initialiseRelation(*relation);
  }
  relation->insertRelatedObjects(self());
}

template QOR_API std::shared_ptr<FcPropertySet> FcObject::getOrCreatePropertySetDefinition(
    Data&, const std::string&, const std::function<void(FcPropertySet&)>&,
    const std::function<void(FcRelDefinesByProperties&)>&);
template QOR_API std::shared_ptr<productextension::FcElementQuantity>
FcObject::getOrCreatePropertySetDefinition(
    Data&, const std::string&, const std::function<void(productextension::FcElementQuantity&)>&,
    const std::function<void(FcRelDefinesByProperties&)>&);

}  // namespace qor::fc::core::kernel
