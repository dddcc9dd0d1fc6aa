#pragma once

#include <memory>
#include <string>
#include <vector>

#include "Fc/FcBase.h"
#include "Tests/Support/Make.h"

// The two sides of a relationship as tests look at them.
namespace qor::test {

using Entities = std::vector<std::shared_ptr<fc::FcBase>>;

/// The value of a single reference; the empty value for null.
inline fc::LocalValue valueOf(const std::shared_ptr<fc::FcBase>& entity) {
  return entity ? fc::LocalValue(entity) : fc::LocalValue(fc::details::EmptyValue());
}

inline fc::LocalValue listOf(const Entities& entities) {
  fc::LocalValue::List list;
  for (const auto& entity : entities) list.push_back(valueOf(entity));
  return fc::LocalValue(std::move(list));
}

/// Those that name `target` in the forward attribute of its inverse attribute.
inline Entities holdersOf(const fc::FcBase& target, const std::string& inverse) {
  const fc::LocalValue value = target.getLocalValue(object::PropertyId(inverse));
  Entities holders;
  if (const auto* entity = std::get_if<std::shared_ptr<fc::FcBase>>(&value.value))
    holders.push_back(*entity);
  if (const auto* list = std::get_if<fc::LocalValue::List>(&value.value))
    for (const fc::LocalValue& element : *list)
      holders.push_back(std::get<std::shared_ptr<fc::FcBase>>(element.value));
  return holders;
}

/// The names of the attributes by which a walk from the entity goes on.
inline std::vector<std::string> reached(fc::FcBase& entity, bool followInverse) {
  std::vector<std::string> names;
  entity.forEachEntity(
      [&names](const std::shared_ptr<fc::FcBase>&, const object::PropertyId& attribute) {
        names.push_back(attribute.name());
      },
      followInverse);
  return names;
}

}  // namespace qor::test
