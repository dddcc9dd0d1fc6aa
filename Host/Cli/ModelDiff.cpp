#include "Host/Cli/ModelDiff.h"

#include <fmt/format.h>

#include <algorithm>
#include <deque>
#include <optional>
#include <unordered_map>
#include <unordered_set>

#include "Fc/Reflection/TypeOperations.h"

namespace qor::host::cli {

using fc::core::kernel::FcRoot;

namespace {

/// So many steps of a path are followed: beyond, the place is told as that of the last step.
constexpr int maxSteps = 30;

std::vector<const fc::FcBase*> targetsOf(const fc::FcBase& entity,
                                         const fc::AttributeInfo& attribute) {
  std::vector<const fc::FcBase*> targets;
  attribute.type->forEachEntity(attribute.of(entity),
                                [&](fc::FcBase& target) { targets.push_back(&target); });
  return targets;
}

/// The position of the first of `targets` whose content none of `others` has.
std::optional<std::size_t> firstOwn(const std::vector<const fc::FcBase*>& targets,
                                    const std::vector<const fc::FcBase*>& others,
                                    ContentHash& hash) {
  std::vector<ContentHash::Bits> known;
  for (const fc::FcBase* other : others) known.push_back(hash.of(*other));
  std::sort(known.begin(), known.end());
  for (std::size_t i = 0; i < targets.size(); ++i)
    if (!std::binary_search(known.begin(), known.end(), hash.of(*targets[i]))) return i;
  return std::nullopt;
}

}  // namespace

ModelDiff::ModelDiff(std::span<const step::NumberedEntity> before,
                     std::span<const step::NumberedEntity> after) {
  std::unordered_map<Guid, std::deque<Root>> known;
  for (const step::NumberedEntity& instance : before)
    if (auto root = fc::fcCast<FcRoot>(instance.entity)) known[root->GlobalId()].push_back(root);
  std::unordered_set<const fc::FcBase*> matched;
  for (const step::NumberedEntity& instance : after) {
    const auto root = fc::fcCast<FcRoot>(instance.entity);
    if (!root) continue;
    const auto found = known.find(root->GlobalId());
    if (found == known.end() || found->second.empty()) {
      m_added.push_back(root);
      continue;
    }
    matched.insert(found->second.front().get());
    compare(found->second.front(), root);
    found->second.pop_front();
  }
  for (const step::NumberedEntity& instance : before)
    if (auto root = fc::fcCast<FcRoot>(instance.entity); root && !matched.contains(root.get()))
      m_removed.push_back(root);
}

void ModelDiff::compare(const Root& before, const Root& after) {
  Changed changed{before, after, {}};
  if (before->classId() != after->classId()) {
    m_changed.push_back(std::move(changed));
    return;
  }
  before->classInfo().forEachAttribute([&](const fc::AttributeInfo& attribute) {
    if (differs(*before, *after, attribute))
      changed.attributes.push_back(follow(*before, *after, attribute));
  });
  if (!changed.attributes.empty()) m_changed.push_back(std::move(changed));
}

bool ModelDiff::differs(const fc::FcBase& before, const fc::FcBase& after,
                        const fc::AttributeInfo& attribute) {
  return attribute.typeName != "IfcOwnerHistory" &&
         m_hash.of(before, attribute) != m_hash.of(after, attribute);
}

const fc::AttributeInfo* ModelDiff::firstDifference(const fc::FcBase& before,
                                                    const fc::FcBase& after) {
  const fc::AttributeInfo* found = nullptr;
  before.classInfo().forEachAttribute([&](const fc::AttributeInfo& attribute) {
    if (!found && differs(before, after, attribute)) found = &attribute;
  });
  return found;
}

AttributeDiff ModelDiff::follow(const fc::FcBase& before, const fc::FcBase& after,
                                const fc::AttributeInfo& attribute) {
  AttributeDiff diff{&attribute, std::string(attribute.name), &attribute, &before, &after};
  for (int step = 0; step < maxSteps; ++step) {
    const auto targets = targetsOf(*diff.before, *diff.place);
    const auto others = targetsOf(*diff.after, *diff.place);
    if (targets.size() != others.size()) break;
    const auto mine = firstOwn(targets, others, m_hash);
    const auto theirs = firstOwn(others, targets, m_hash);
    if (!mine || !theirs) break;
    const fc::FcBase* target = targets[*mine];
    const fc::FcBase* other = others[*theirs];
    if (target->classId() != other->classId() || fc::fcCast<FcRoot>(target)) break;
    const fc::AttributeInfo* next = firstDifference(*target, *other);
    if (!next) break;
    if (!diff.place->aggregates.empty()) diff.path += fmt::format("[{}]", *mine + 1);
    diff.path += fmt::format(".{}", next->name);
    diff.place = next;
    diff.before = target;
    diff.after = other;
  }
  return diff;
}

}  // namespace qor::host::cli
