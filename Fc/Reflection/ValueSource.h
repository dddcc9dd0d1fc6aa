#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "Qor/Platform/Export.h"

namespace qor::fc {

class FcBase;
struct TypeOperations;

/// Why a value that stood in a source didn't reach the model.
enum class Rejection {
  wrongKind,          ///< a text where a number belongs, a list where a reference belongs …
  wrongClass,         ///< a reference to an entity of a class that the attribute doesn't take
  unknownEnumerator,  ///< a name that the enumeration doesn't have
  unknownType,        ///< a type name that the select doesn't have
  wrongCount,         ///< more or fewer numbers than a fixed tuple has
  outOfRange,         ///< a number that the member can't hold
};

/// Values in the order in which an attribute takes them: what a host implements over its own
/// tokens, so that neither a name look-up nor a tree of variants stands between a file and a
/// member.
///
/// The reading side asks `next()` what comes and calls the one function for it, or `skip()`. Every
/// value is consumed exactly once. A list is `openList()`, then elements while `more()` says yes; a
/// typed value (`IFCLABEL('x')`) is `openTyped()`, one value, `closeTyped()`. The functions that
/// take a value are called for its own kind only, with the one exception that `takeReal` also takes
/// an integer.
class QOR_API ValueSource {
 public:
  enum class Kind : std::uint8_t {
    null,     ///< no value
    derived,  ///< a value that the schema derives: nothing to store
    integer,
    real,
    text,
    enumerator,  ///< the name of an enumerator, or T, F, U
    binary,
    entity,
    list,
    typed,  ///< a type's name with a value
    bad,    ///< something that is no value; `skip()` gets past it
  };

  virtual ~ValueSource() = default;

  virtual Kind next() = 0;
  /// Passes over the next value, whatever it is, with all that is nested in it.
  virtual void skip() = 0;

  /// False when the number can't be held: the value is consumed and `out` stays.
  virtual bool takeReal(double& out) = 0;
  virtual bool takeInteger(std::int64_t& out) = 0;
  /// UTF-8.
  virtual void takeText(std::string& out) = 0;
  /// The name without its dots; valid until the next call.
  virtual std::string_view takeEnumerator() = 0;
  virtual void takeBinary(std::vector<std::uint8_t>& out) = 0;
  /// The entity that the reference names, owned by the source's own table; null when it names none
  /// (the source has reported that itself).
  virtual const std::shared_ptr<FcBase>* takeEntity() = 0;

  virtual void openList() = 0;
  /// True when a further element follows; false once at the end, which closes the list.
  virtual bool more() = 0;
  /// The type's name in upper case ("IFCLABEL"); valid until the next call.
  virtual std::string_view openTyped() = 0;
  virtual void closeTyped() = 0;

  /// Called for each value that was left out; `found` is what stood there as far as it is a name,
  /// `expected` the type of the place. The source knows which attribute is being read.
  virtual void rejected(Rejection reason, std::string_view found,
                        const TypeOperations& expected) = 0;
};

}  // namespace qor::fc
