#pragma once

#include <type_traits>
#include <utility>

#include "Fc/FcBase.h"
#include "Fc/Reflection/AttributeInfo.h"
#include "Qor/Platform/Export.h"

namespace qor::fc {

// How forward attributes keep the inverse attributes of their targets in step. All operations take
// the holder of the forward attribute; to link means to write it into the target's inverse, where
// the schema has one for the target's class. They throw `std::bad_weak_ptr` when no
// `std::shared_ptr` holds the holder.

/// True when an inverse set of the target, which didn't have the holder, has it now: the attribute
/// can't have named the target before.
QOR_API bool linkTarget(FcBase& holder, const AttributeInfo& attribute, FcBase& target);
/// Takes the holder out of an inverse set. An inverse with one entry is emptied, whoever the entry
/// was.
QOR_API void unlinkTarget(FcBase& holder, const AttributeInfo& attribute, FcBase& target);
/// For all that the attribute names at present.
QOR_API void linkTargets(FcBase& holder, const AttributeInfo& attribute);
QOR_API void unlinkTargets(FcBase& holder, const AttributeInfo& attribute);

/// Gives the attribute the value, which is left with the former one.
template <class Member, class Value>
void setLinked(FcBase& holder, const AttributeInfo& attribute, Member& member, Value& value) {
  unlinkTargets(holder, attribute);
  if constexpr (std::is_same_v<Member, Value>) {
    using std::swap;
    swap(member, value);
  } else {
    if (!member) member.emplace();
    member->swap(value);
  }
  linkTargets(holder, attribute);
}
template <class Member>
void clearLinked(FcBase& holder, const AttributeInfo& attribute, Member& member) {
  unlinkTargets(holder, attribute);
  member = Member();
  linkTargets(holder, attribute);
}

// Of attributes that are lists of references or of selects. `value` is the address of an element's
// value, which is the same as an element when both name one entity or hold equal values.

/// Links the value and moves it to the end of the list unless that has it already. A target that
/// the list doesn't have is known by its inverse attribute, without a search through the list.
QOR_API void insertLinked(FcBase& holder, const AttributeInfo& attribute, void* value);
/// Links the value and moves it to the end of the list.
QOR_API void pushBackLinked(FcBase& holder, const AttributeInfo& attribute, void* value);
/// Unlinks the value, an element or not, and removes every element that is the same.
QOR_API void eraseLinked(FcBase& holder, const AttributeInfo& attribute, const void* value);

}  // namespace qor::fc
