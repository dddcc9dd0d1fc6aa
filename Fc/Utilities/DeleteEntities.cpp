#include "Fc/Utilities/DeleteEntities.h"

#include <algorithm>
#include <memory>
#include <unordered_set>
#include <vector>

#include "Fc/Core/Kernel/FcProject.h"
#include "Fc/Data.h"
#include "Fc/Model/Report.h"

namespace qor::fc::utilities {

namespace {

using Deleted = std::set<FcBase*>;

// A reference to a deleted entity that an attribute of an entity that stays still holds.
struct Holding {
  FcBase* holder;
  object::PropertyId attribute;
};

struct Traversal {
  std::vector<std::shared_ptr<FcBase>> reached;
  std::vector<Holding> holdings;
};

// Takes the deleted entities out of a list, at any depth.
void removeDeleted(LocalValue::List& list, const Deleted& deleted) {
  std::erase_if(list, [&deleted](const LocalValue& element) {
    const auto* entity = std::get_if<std::shared_ptr<FcBase>>(&element.value);
    return entity && deleted.contains(entity->get());
  });
  for (LocalValue& element : list)
    if (auto* inner = std::get_if<LocalValue::List>(&element.value)) removeDeleted(*inner, deleted);
}

void clearReferencesOnEntity(FcBase& entity) {
  std::vector<object::PropertyId> attributes;
  entity.forEachEntity(
      [&attributes](const std::shared_ptr<FcBase>&, const object::PropertyId& attribute) {
        if (attributes.empty() || !(attributes.back() == attribute))
          attributes.push_back(attribute);
      },
      false);
  for (const object::PropertyId& attribute : attributes) {
    LocalValue value = entity.getLocalValue(attribute);
    if (auto* list = std::get_if<LocalValue::List>(&value.value))
      list->clear();
    else
      value = LocalValue(details::EmptyValue());
    entity.setLocalValue(std::move(value), attribute);
  }
}

// Everything that the project reaches by forward and inverse attributes without passing a deleted
// entity, the project first.
Traversal traversePointersInData(const std::shared_ptr<FcBase>& project, const Deleted& deleted) {
  Traversal result;
  std::unordered_set<FcBase*> seen{project.get()};
  if (!deleted.contains(project.get())) result.reached.push_back(project);
  std::vector<FcBase*> work{project.get()};
  FcBase* holder = nullptr;
  const FcBase::EntityCallback visit = [&](const std::shared_ptr<FcBase>& entity,
                                           const object::PropertyId& attribute) {
    if (deleted.contains(entity.get())) {
      auto& holdings = result.holdings;
      if (holdings.empty() || holdings.back().holder != holder ||
          !(holdings.back().attribute == attribute))
        holdings.push_back({holder, attribute});
    } else if (seen.insert(entity.get()).second) {
      result.reached.push_back(entity);
      work.push_back(entity.get());
    }
  };
  while (!work.empty()) {
    holder = work.back();
    work.pop_back();
    holder->forEachEntity(visit, true);
  }
  return result;
}

// Inverse attributes are held too: reflection doesn't write them, and the rebuild empties them.
void removeHolding(const Holding& holding, const Deleted& deleted) {
  LocalValue value = holding.holder->getLocalValue(holding.attribute);
  if (auto* list = std::get_if<LocalValue::List>(&value.value))
    removeDeleted(*list, deleted);
  else
    value = LocalValue(details::EmptyValue());
  holding.holder->setLocalValue(std::move(value), holding.attribute);
}

}  // namespace

void deleteEntities(Data& data, const std::set<FcBase*>& entities) {
  const std::shared_ptr<FcBase> project = data.project();
  if (!project) {
    report("deleteEntities can only be used if data contains a project");
    return;
  }
  // One deleted entity may hold the last reference to another.
  std::vector<std::shared_ptr<FcBase>> alive;
  for (FcBase* entity : entities)
    if (entity) alive.push_back(entity->shared_from_this());
  for (const auto& entity : alive) clearReferencesOnEntity(*entity);

  const Traversal traversal = traversePointersInData(project, entities);
  for (const Holding& holding : traversal.holdings) removeHolding(holding, entities);

  Data::Entities kept = data.inListedOrder(traversal.reached);
  // The project goes in last: among several the last one counts.
  std::stable_partition(kept.begin(), kept.end(),
                        [&project](const auto& entity) { return entity != project; });
  data.clear();
  data.reserve(kept.size());
  for (const auto& entity : kept) {
    data.entityAdd(entity, false);
    entity->clearInverseAttributes();
  }
  for (const auto& entity : kept) entity->updateInverseAttributes();
}

}  // namespace qor::fc::utilities
