#include "Fc/Core/Kernel/PropertySetAttachment.h"

#include <algorithm>

#include "Fc/Core/Kernel/FcContext.h"
#include "Fc/Core/Kernel/FcObject.h"
#include "Fc/Core/Kernel/FcRelDefinesByProperties.h"
#include "Fc/Core/Kernel/FcTypeObject.h"

namespace qor::fc::core::kernel {

namespace {

using Callback = FunctionRef<bool(const PropertySetAttachment&)>;
using Types = FcPropertySetDefinitionSelect::Types;

bool callBack(const Callback& callback, const std::shared_ptr<FcPropertySetDefinition>& set,
              const std::shared_ptr<FcRelDefinesByProperties>& relation) {
  return set && callback({set, relation});
}

bool forEachIn(const std::shared_ptr<FcRelDefinesByProperties>& relation,
               const Callback& callback) {
  const FcPropertySetDefinitionSelect& sets = relation->RelatingPropertyDefinition();
  switch (sets.type()) {
    case Types::PropertySetDefinition:
      return callBack(callback, sets.PropertySetDefinition(), relation);
    case Types::PropertySetDefinitionSet: {
      const auto& list = sets.PropertySetDefinitionSet().value();
      return std::any_of(list.begin(), list.end(),
                         [&](const auto& set) { return callBack(callback, set, relation); });
    }
    case Types::NotSet:
      break;
  }
  return false;
}

void forEachIn(const InverseSet<FcRelDefinesByProperties>& relations, const Callback& callback) {
  relations.forEachUntil([&](const std::shared_ptr<FcRelDefinesByProperties>& relation) {
    return forEachIn(relation, callback);
  });
}

// The object goes on having the other sets of a relationship that it leaves.
void keepOthers(const std::shared_ptr<FcObjectDefinition>& object,
                const PropertySetAttachment& attachment, Data& data) {
  FcPropertySetDefinitionSet others =
      attachment.relation->RelatingPropertyDefinition().PropertySetDefinitionSet();
  std::erase(others.valueNonConst(), attachment.set);
  attachment.relation->eraseRelatedObjects(object);
  const auto own = createDefinesByProperties(data);
  own->setRelatingPropertyDefinition(std::move(others));
  own->insertRelatedObjects(object);
}

}  // namespace

void forEachPropertySet(const FcObjectDefinition& object, Callback callback) {
  if (const auto* occurrence = fcCast<FcObject>(&object)) {
    forEachIn(occurrence->IsDefinedBy(), callback);
  } else if (const auto* type = fcCast<FcTypeObject>(&object)) {
    if (type->HasPropertySets())
      for (const auto& set : *type->HasPropertySets())
        if (callBack(callback, set, nullptr)) return;
  } else if (const auto* context = fcCast<FcContext>(&object)) {
    forEachIn(context->IsDefinedBy(), callback);
  }
}

void detachPropertySet(const std::shared_ptr<FcObjectDefinition>& object,
                       const PropertySetAttachment& attachment) {
  if (!attachment.relation) {
    fcCast<FcTypeObject>(object)->eraseHasPropertySets(attachment.set);
    return;
  }
  const FcPropertySetDefinitionSelect& sets = attachment.relation->RelatingPropertyDefinition();
  const bool isOnly = sets.type() == Types::PropertySetDefinition ||
                      sets.PropertySetDefinitionSet().value().size() == 1;
  if (isOnly)
    attachment.relation->eraseRelatedObjects(object);
  else if (const std::shared_ptr<Data> data = object->data())
    keepOthers(object, attachment, *data);
}

std::shared_ptr<FcRelDefinesByProperties> createDefinesByProperties(Data& data) {
  auto relation = data.create<FcRelDefinesByProperties>();
  relation->setGlobalId(Guid::generate());
  return relation;
}

}  // namespace qor::fc::core::kernel
