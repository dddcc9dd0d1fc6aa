#pragma once

#include <functional>
#include <memory>
#include <string>

#include "Fc/Core/Kernel/FcPropertySet.h"
#include "Fc/Data.h"
#include "Fc/Reflection/FunctionRef.h"
#include "Qor/Id/Guid.h"

namespace qor::fc::core::kernel {

class FcObjectDefinition;
class FcRelDefinesByProperties;

/// A property set as one object has it.
struct PropertySetAttachment {
  std::shared_ptr<FcPropertySetDefinition> set;
  /// Null on a type, which holds its sets itself.
  std::shared_ptr<FcRelDefinesByProperties> relation;
};

/// Calls back with each set of an occurrence, a type or a context until the callback answers true.
/// None for any other object. Null sets are passed over.
QOR_API void forEachPropertySet(const FcObjectDefinition& object,
                                FunctionRef<bool(const PropertySetAttachment&)> callback);

/// Takes one set away from one object that has it.
QOR_API void detachPropertySet(const std::shared_ptr<FcObjectDefinition>& object,
                               const PropertySetAttachment& attachment);

/// A new relationship of the model, with a guid.
QOR_API std::shared_ptr<FcRelDefinesByProperties> createDefinesByProperties(Data& data);

/// A new set with a guid and that name, in no model yet.
template <class T>
std::shared_ptr<T> makePropertySet(const std::string& name) {
  auto set = makeEntity<T>();
  set->setGlobalId(Guid::generate());
  set->setName(name);
  return set;
}

/// What occurrences and contexts share: the set of that name, or a new one that is listed,
/// initialised and then attached by `propertySetAdd`.
template <class T, class Owner>
std::shared_ptr<T> getOrAttachPropertySet(
    Owner& owner, Data& data, const std::string& name, const std::function<void(T&)>& initialiseSet,
    const std::function<void(FcRelDefinesByProperties&)>& initialiseRelation) {
  if (auto found = owner.template getPropertySetDefinitionNonConst<T>(name)) return found;
  auto set = makePropertySet<T>(name);
  data.entityAdd(set, false);
  if (initialiseSet) initialiseSet(*set);
  owner.propertySetAdd(data, set, initialiseRelation);
  return set;
}

}  // namespace qor::fc::core::kernel
