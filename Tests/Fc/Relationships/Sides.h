#pragma once

#include <memory>
#include <string>
#include <vector>

#include "Fc/FcBase.h"

// The two sides of a relationship as tests look at them.
namespace qor::fc::test {

using Entities = std::vector<std::shared_ptr<FcBase>>;

/// The value of a single reference; the empty value for null.
inline LocalValue valueOf(const std::shared_ptr<FcBase>& entity) {
  return entity ? LocalValue(entity) : LocalValue(details::EmptyValue());
}

inline LocalValue listOf(const Entities& entities) {
  LocalValue::List list;
  for (const auto& entity : entities) list.push_back(valueOf(entity));
  return LocalValue(std::move(list));
}

/// Those that name `target` in the forward attribute of its inverse attribute.
inline Entities holdersOf(const FcBase& target, const std::string& inverse) {
  const LocalValue value = target.getLocalValue(object::PropertyId(inverse));
  Entities holders;
  if (const auto* entity = std::get_if<std::shared_ptr<FcBase>>(&value.value))
    holders.push_back(*entity);
  if (const auto* list = std::get_if<LocalValue::List>(&value.value))
    for (const LocalValue& element : *list)
      holders.push_back(std::get<std::shared_ptr<FcBase>>(element.value));
  return holders;
}

/// The names of the attributes by which a walk from the entity goes on.
inline std::vector<std::string> reached(FcBase& entity, bool followInverse) {
  std::vector<std::string> names;
  entity.forEachEntity(
      [&names](const std::shared_ptr<FcBase>&, const object::PropertyId& attribute) {
        names.push_back(attribute.name());
      },
      followInverse);
  return names;
}

}  // namespace qor::fc::test
