#pragma once

#include <array>
#include <cstdint>
#include <variant>
#include <vector>

#include "Qor/Math/Point.h"

namespace qor::fc::resource::geometry {

/// A path of straight legs whose inner corners are rounded: points, and the legs and arcs between
/// them, each beginning where the one before ended. Indices are 1-based.
struct RoundedPath {
  using Line = std::array<std::int64_t, 2>;
  using Arc = std::array<std::int64_t, 3>;  ///< start, a point half-way along, end

  std::vector<math::Point3d> points;
  std::vector<std::variant<Line, Arc>> pieces;

  /// Through the first and the last of `corners`, along the legs between them. An arc has the
  /// radius given, or what fits: at most half the length of the leg that leads to its corner, and
  /// such that it begins behind the arc before and ends by the middle of a leg that another corner
  /// follows. Legs in one direction, or back on themselves, keep their corner as a point.
  static RoundedPath through(const std::vector<math::Point3d>& corners, double radius);
};

}  // namespace qor::fc::resource::geometry
