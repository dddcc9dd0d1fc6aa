#include "Fc/Core/Kernel/FcTypeObject.h"

#include "Fc/Core/Kernel/FcObject.h"
#include "Fc/Core/Kernel/FcRelDefinesByType.h"
#include "Fc/Core/Kernel/PropertySetAttachment.h"
#include "Fc/Core/ProductExtension/FcElementQuantity.h"
#include "Fc/Data.h"

namespace qor::fc::core::kernel {

std::shared_ptr<FcRelDefinesByType> FcTypeObject::IsTypedByConnect(
    Data& data, FcObject& object, const std::function<void(FcRelDefinesByType&)>& initialise) {
  auto relation = Types().lock();
  if (!relation) {
    relation = data.create<FcRelDefinesByType>();
    relation->setGlobalId(Guid::generate());
    relation->setRelatingType(std::static_pointer_cast<FcTypeObject>(shared_from_this()));
    if (initialise) initialise(*relation);
  }
  relation->insertRelatedObjects(std::static_pointer_cast<FcObject>(object.shared_from_this()));
  return relation;
}

template <class T>
std::shared_ptr<T> FcTypeObject::getOrCreatePropertySetDefinition(
    Data&, const std::string& name, const std::function<void(T&)>& initialiseSet) {
  if (auto found = getPropertySetDefinitionNonConst<T>(name)) return found;
  auto set = makePropertySet<T>(name);
  if (const std::shared_ptr<Data> own = data()) own->entityAdd(set, false);
  if (initialiseSet) initialiseSet(*set);
  insertHasPropertySets(set);
  return set;
}

template QOR_API std::shared_ptr<FcPropertySet> FcTypeObject::getOrCreatePropertySetDefinition(
    Data&, const std::string&, const std::function<void(FcPropertySet&)>&);
template QOR_API std::shared_ptr<productextension::FcElementQuantity>
FcTypeObject::getOrCreatePropertySetDefinition(
    Data&, const std::string&, const std::function<void(productextension::FcElementQuantity&)>&);

}  // namespace qor::fc::core::kernel
