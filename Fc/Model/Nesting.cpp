#include "Fc/Model/Nesting.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "Fc/Model/NotImplemented.h"
#include "Fc/Model/Report.h"

namespace qor::fc {

namespace {

struct NestingLimit {
  std::size_t deepest;
  const char* circular;
  const char* tooDeep;
  bool namesClass;  ///< the texts end with the class of the entity
};

/// By the number of the kind.
constexpr std::array<NestingLimit, 4> nestingLimits{{
    {256, "Circular dependency in mapped item", "Circular dependency in mapped item", false},
    {100, "Circular dependency in ", "Too many curves within each other, at ", true},
    {500, "Circular dependency in profile", "Circular dependency in profile", false},
    {500, "An item is part of itself", "Items are nested too deep", false},
}};

std::vector<const FcBase*>& entitiesUnderWay(Nesting::Kind kind) {
  thread_local std::array<std::vector<const FcBase*>, nestingLimits.size()> entities;
  return entities[static_cast<std::size_t>(kind)];
}

}  // namespace

Nesting::Nesting(Kind kind, const FcBase& entity, const std::source_location& where)
    : m_kind(kind) {
  auto& entities = entitiesUnderWay(kind);
  const NestingLimit& limit = nestingLimits[static_cast<std::size_t>(kind)];
  const bool again = std::find(entities.begin(), entities.end(), &entity) != entities.end();
  m_mayEnter = !again && entities.size() < limit.deepest;
  if (m_mayEnter)
    entities.push_back(&entity);
  else
    report(entity,
           (again ? limit.circular : limit.tooDeep) +
               (limit.namesClass ? runTimeTypeName(entity) : std::string()),
           where);
}

Nesting::~Nesting() {
  if (m_mayEnter) entitiesUnderWay(m_kind).pop_back();
}

}  // namespace qor::fc
