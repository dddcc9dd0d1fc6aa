#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "Fc/Resource/Measure/FcLengthMeasure.h"
#include "Qor/Math/Point.h"
#include "Qor/Platform/Export.h"

namespace qor::fc::resource::geometricmodel {

/// Finds points in a growing list of coordinates: the first that is equal in x, y and z, without a
/// tolerance; -0 equals 0, and what isn't a number equals nothing.
///
/// A hash table over the list's places, 4 to 16 bytes for each. It is made anew when the list was
/// replaced or has shrunk; a list whose coordinates were changed in place needs a new look-up.
class QOR_API CoordinateLookup {
 public:
  using Coordinates = std::vector<std::array<measure::FcLengthMeasure, 3>>;

  /// The 1-based position of the point; a point that isn't there is appended first. Constant time
  /// on average.
  std::size_t findOrAppend(Coordinates& coordinates, const math::Point3d& point);

 private:
  void follow(const Coordinates& coordinates);
  void insert(const Coordinates& coordinates, std::uint32_t place);
  void growTo(const Coordinates& coordinates, std::size_t slots);
  /// The slot that holds an equal point, or the empty one where it belongs.
  std::size_t slotOf(const Coordinates& coordinates, const math::Point3d& point) const;

  static constexpr std::uint32_t empty = 0xFFFFFFFF;
  std::vector<std::uint32_t> m_slots;
  const void* m_list = nullptr;
  std::size_t m_covered = 0;
};

}  // namespace qor::fc::resource::geometricmodel
