#pragma once

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "Fc/FcBase.h"
#include "Fc/Reflection/AttributeInfo.h"
#include "Qor/Platform/Export.h"

namespace qor::fc {

// How forward attributes keep the inverse attributes of their targets in step. All operations take
// the holder of the forward attribute; to link means to write it into the target's inverse, where
// the schema has one for the target's class. They throw `std::bad_weak_ptr` when no
// `std::shared_ptr` holds the holder.

QOR_API void linkTarget(FcBase& holder, const AttributeInfo& attribute, FcBase& target);
/// Takes the holder out of an inverse set. An inverse with one entry is emptied, whoever the entry
/// was.
QOR_API void unlinkTarget(FcBase& holder, const AttributeInfo& attribute, FcBase& target);
/// For all that the attribute names at present.
QOR_API void linkTargets(FcBase& holder, const AttributeInfo& attribute);
QOR_API void unlinkTargets(FcBase& holder, const AttributeInfo& attribute);

/// What an element of a forward attribute refers to: the reference itself, or the entity behind a
/// select.
template <class T>
FcBase* targetOf(const std::shared_ptr<T>& reference) {
  return reference.get();
}
template <class S>
requires requires(const S& s) { s.getEntity(); }
FcBase* targetOf(const S& select) { return select.getEntity(); }

/// Whether two elements of a list are the same: they name one entity, or hold equal values.
template <class T>
bool isSameElement(const T& a, const T& b) {
  const FcBase* target = targetOf(a);
  if (target || targetOf(b)) return target == targetOf(b);
  if constexpr (requires { a.getLocalValue(); }) return a.getLocalValue() == b.getLocalValue();
  return true;
}

template <class Member, class Value>
void setLinked(FcBase& holder, const AttributeInfo& attribute, Member& member, Value&& value) {
  unlinkTargets(holder, attribute);
  member = std::forward<Value>(value);
  linkTargets(holder, attribute);
}

template <class T>
std::vector<T>& engaged(std::vector<T>& list) {
  return list;
}
template <class T>
std::vector<T>& engaged(std::optional<std::vector<T>>& list) {
  return list ? *list : list.emplace();
}

/// Links the value and appends it unless the list has it already.
template <class List, class T>
void insertLinked(FcBase& holder, const AttributeInfo& attribute, List& list, T&& value) {
  if (FcBase* target = targetOf(value)) linkTarget(holder, attribute, *target);
  auto& elements = engaged(list);
  const bool present = std::any_of(elements.begin(), elements.end(), [&value](const auto& element) {
    return isSameElement(element, value);
  });
  if (!present) elements.push_back(std::forward<T>(value));
}

/// Links the value and appends it.
template <class List, class T>
void pushBackLinked(FcBase& holder, const AttributeInfo& attribute, List& list, T&& value) {
  if (FcBase* target = targetOf(value)) linkTarget(holder, attribute, *target);
  engaged(list).push_back(std::forward<T>(value));
}

/// Unlinks the value, an element or not, and removes every element that is the same.
template <class T>
void eraseLinked(FcBase& holder, const AttributeInfo& attribute, std::vector<T>& list,
                 const T& value) {
  const T sought = value;  // The caller may have given an element of the list itself.
  if (FcBase* target = targetOf(sought)) unlinkTarget(holder, attribute, *target);
  std::erase_if(list, [&sought](const T& element) { return isSameElement(element, sought); });
}
template <class T>
void eraseLinked(FcBase& holder, const AttributeInfo& attribute,
                 std::optional<std::vector<T>>& list, const T& value) {
  std::vector<T> none;
  eraseLinked(holder, attribute, list ? *list : none, value);
}

}  // namespace qor::fc
