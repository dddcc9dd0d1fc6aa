#include "Fc/Reflection/Traits/ReferenceTraits.h"

#include <optional>
#include <string>
#include <variant>

#include "Fc/FcBase.h"
#include "Fc/HelperFunctions.h"

namespace qor::fc {

namespace {

const ReferenceOperations& recordOf(const TypeOperations& type) {
  return static_cast<const ReferenceOperations&>(type);
}

// Null for an entity of a class that the reference doesn't take.
std::shared_ptr<FcBase> fitting(const ReferenceOperations& type, std::shared_ptr<FcBase> entity) {
  if (!entity) return nullptr;
  const std::uint32_t id = entity->classId();
  if (id < type.firstClassId || id > type.lastClassId) return nullptr;
  return entity;
}

void store(const ReferenceOperations& type, void* m, std::shared_ptr<FcBase> entity) {
  type.exchange(m, entity);
}

std::optional<std::string> getAsString(const TypeOperations&, const void*) {
  return getMemberAsStringObject();
}

bool setFromString(const TypeOperations&, void*, const std::string&) {
  return setMemberFromStringObject();
}

LocalValue getLocalValue(const TypeOperations& type, const void* m) {
  FcBase* entity = recordOf(type).entity(m);
  return entity ? LocalValue(entity->shared_from_this()) : LocalValue(details::EmptyValue());
}

bool setLocalValue(const TypeOperations& type, void* m, const LocalValue& v) {
  if (v.isEmpty()) {
    store(recordOf(type), m, nullptr);
    return true;
  }
  const auto* entity = std::get_if<std::shared_ptr<FcBase>>(&v.value);
  if (!entity) return false;
  store(recordOf(type), m, fitting(recordOf(type), *entity));
  return true;
}

void forEachEntity(const TypeOperations& type, const void* m, EntityCallback callback) {
  if (FcBase* entity = recordOf(type).entity(m)) callback(*entity);
}

bool read(const TypeOperations& type, void* m, ValueSource& source) {
  store(recordOf(type), m, nullptr);
  if (source.next() != ValueSource::Kind::entity) {
    if (skipNull(source)) return true;
    return rejectNext(source, Rejection::wrongKind, type);
  }
  const std::shared_ptr<FcBase>* entity = source.takeEntity();
  if (!entity) return false;
  std::shared_ptr<FcBase> value = fitting(recordOf(type), *entity);
  if (!value) {
    source.rejected(Rejection::wrongClass, (*entity)->ifcNameUpper(), type);
    return false;
  }
  recordOf(type).exchange(m, value);
  return true;
}

void write(const TypeOperations& type, const void* m, ValueSink& sink) {
  if (const FcBase* entity = recordOf(type).entity(m))
    sink.entity(*entity);
  else
    sink.null();
}

void assign(const TypeOperations& type, void* m, const void* source, FcCopySettings& settings) {
  const FcBase* entity = recordOf(type).entity(source);
  store(recordOf(type), m,
        entity ? fitting(recordOf(type), entity->allocateAndQueueCopy(settings)) : nullptr);
}

std::weak_ordering compare(const TypeOperations& type, const void* a, const void* b,
                           PairCallback defer) {
  const FcBase* entityA = recordOf(type).entity(a);
  const FcBase* entityB = recordOf(type).entity(b);
  if (entityA && entityB) defer(*entityA, *entityB);
  return (entityA != nullptr) <=> (entityB != nullptr);
}

}  // namespace

constinit const TypeFunctions referenceFunctions = {
    getAsString,   setFromString, getLocalValue, setLocalValue, forEachEntity,
    forEachEntity, read,          write,         assign,        compare};

}  // namespace qor::fc
