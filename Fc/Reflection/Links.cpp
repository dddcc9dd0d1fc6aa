#include "Fc/Reflection/Links.h"

#include <vector>

#include "Fc/Reflection/InverseEntries.h"
#include "Fc/Reflection/Traits/ListTraits.h"
#include "Fc/Reflection/Traits/OptionalTraits.h"

namespace qor::fc {

namespace {

// The inverse attributes of `target` that mirror `attribute`.
template <class Action>
void forEachInverse(const AttributeInfo& attribute, FcBase& target, Action&& action) {
  const std::uint32_t id = target.classId();
  for (const InverseLink& link : attribute.links)
    if (id >= link.first && id <= link.last)
      action(*static_cast<InverseEntries*>(link.inverse->of(target)), link.single);
}

std::weak_ptr<FcBase> ownedHolder(FcBase& holder) {
  std::weak_ptr<FcBase> owned = holder.weak_from_this();
  if (owned.expired()) throw std::bad_weak_ptr();
  return owned;
}

const ListOperations& listOf(const AttributeInfo& attribute) {
  const TypeOperations* type = attribute.type;
  if (type->functions == &optionalFunctions)
    type = static_cast<const OptionalOperations*>(type)->element;
  return static_cast<const ListOperations&>(*type);
}

// The list that the attribute holds, an absent one as `access` says.
void* listIn(FcBase& holder, const AttributeInfo& attribute, OptionalOperations::Access access) {
  void* member = attribute.of(holder);
  if (attribute.type->functions != &optionalFunctions) return member;
  const auto& optional = static_cast<const OptionalOperations&>(*attribute.type);
  void* list = optional.value(member, OptionalOperations::Access::look);
  return list ? list : optional.value(member, access);
}

FcBase* targetOf(const TypeOperations& element, const void* value) {
  FcBase* target = nullptr;
  element.forEachTarget(value, [&target](FcBase& entity) { target = &entity; });
  return target;
}

bool isSame(const TypeOperations& element, const void* a, const void* b) {
  const FcBase* target = targetOf(element, a);
  if (target || targetOf(element, b)) return target == targetOf(element, b);
  return element.getLocalValue(a) == element.getLocalValue(b);
}

void append(const ListOperations& list, void* member, void* value) {
  list.exchange(list.append(member), value);
}

}  // namespace

bool linkTarget(FcBase& holder, const AttributeInfo& attribute, FcBase& target) {
  bool isNew = false;
  forEachInverse(attribute, target, [&](InverseEntries& entries, bool single) {
    if (single)
      entries.replace(ownedHolder(holder));
    else if (entries.insert(ownedHolder(holder)))
      isNew = true;
  });
  return isNew;
}

void unlinkTarget(FcBase& holder, const AttributeInfo& attribute, FcBase& target) {
  forEachInverse(attribute, target, [&holder](InverseEntries& entries, bool single) {
    if (single)
      entries.clear();
    else
      entries.erase(ownedHolder(holder));
  });
}

void linkTargets(FcBase& holder, const AttributeInfo& attribute) {
  if (attribute.links.empty()) return;
  attribute.type->forEachTarget(attribute.of(std::as_const(holder)),
                                [&](FcBase& target) { linkTarget(holder, attribute, target); });
}

void unlinkTargets(FcBase& holder, const AttributeInfo& attribute) {
  if (attribute.links.empty()) return;
  attribute.type->forEachTarget(attribute.of(std::as_const(holder)),
                                [&](FcBase& target) { unlinkTarget(holder, attribute, target); });
}

void insertLinked(FcBase& holder, const AttributeInfo& attribute, void* value) {
  const ListOperations& list = listOf(attribute);
  FcBase* const target = targetOf(*list.element, value);
  const bool isNew = target && linkTarget(holder, attribute, *target);
  void* member = listIn(holder, attribute, OptionalOperations::Access::engage);
  if (isNew) return append(list, member, value);
  const auto [first, count] = list.elements(member);
  for (std::size_t i = 0; i < count; ++i)
    if (isSame(*list.element, first + i * list.elementSize, value)) return;
  append(list, member, value);
}

void pushBackLinked(FcBase& holder, const AttributeInfo& attribute, void* value) {
  const ListOperations& list = listOf(attribute);
  if (FcBase* target = targetOf(*list.element, value)) linkTarget(holder, attribute, *target);
  append(list, listIn(holder, attribute, OptionalOperations::Access::engage), value);
}

void eraseLinked(FcBase& holder, const AttributeInfo& attribute, const void* value) {
  const ListOperations& list = listOf(attribute);
  if (FcBase* target = targetOf(*list.element, value)) unlinkTarget(holder, attribute, *target);
  void* member = listIn(holder, attribute, OptionalOperations::Access::look);
  if (!member) return;
  const auto [first, count] = list.elements(member);
  std::vector<bool> removed(count);  // first of all, since the value may be an element itself
  for (std::size_t i = 0; i < count; ++i)
    removed[i] = isSame(*list.element, first + i * list.elementSize, value);
  std::size_t kept = 0;
  for (std::size_t i = 0; i < count; ++i) {
    if (removed[i]) continue;
    if (kept != i) list.exchange(first + kept * list.elementSize, first + i * list.elementSize);
    ++kept;
  }
  if (kept < count) list.keep(member, 0, kept);
}

}  // namespace qor::fc
