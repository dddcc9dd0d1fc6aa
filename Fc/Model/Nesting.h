#pragma once

#include <cstdint>
#include <source_location>

#include "Qor/Platform/Export.h"

namespace qor::fc {

class FcBase;

/// Ends what would never end: stands in each operation of an entity that asks those that it is made
/// of. Files can hold entities that are part of themselves, or are nested deeper than the stack.
///
/// Knows, for each kind of work, the entities that are under way on this thread. One that comes a
/// second time, or too deep, is reported by an assert at the place of the caller. Linear in the
/// depth.
class QOR_API Nesting {
 public:
  enum class Kind : std::uint8_t {
    map,         ///< a representation map that is drawn or measured: 256 deep
    curve,       ///< a curve that is evaluated: 100 deep
    profile,     ///< a profile that is turned into contours: 500 deep
    conversion,  ///< an item that becomes a shape: 500 deep
  };

  Nesting(Kind kind, const FcBase& entity,
          const std::source_location& where = std::source_location::current());
  Nesting(const Nesting&) = delete;
  Nesting& operator=(const Nesting&) = delete;
  ~Nesting();

  /// False: the operation must give up.
  explicit operator bool() const { return m_mayEnter; }

 private:
  Kind m_kind;
  bool m_mayEnter;
};

}  // namespace qor::fc
