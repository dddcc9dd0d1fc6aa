#pragma once

#include <cstdint>
#include <vector>

#include "Qor/Math/Point.h"
#include "Qor/Platform/Export.h"

namespace qor::fc::resource::geometricmodel {

/// Lines and arcs over a list of points.
struct FilletedPath {
  struct Segment {
    enum class Kind : std::uint8_t { line, arc };
    Kind kind = Kind::line;
    /// 0-based; a line goes on to the next point, an arc by way of the next one to the one behind.
    std::size_t first = 0;

    friend bool operator==(const Segment&, const Segment&) = default;
  };

  std::vector<math::Point3d> points{};
  /// Each begins where the one before it ends.
  std::vector<Segment> segments{};
};

/// The path with each inner corner rounded to `radius`, in metres and positive. A corner without an
/// angle leaves no point, one that folds back on itself stays a corner. Points that repeat the one
/// before them (length tolerance) are passed over. Nobody asks whether the legs have room for the
/// radius.
QOR_API FilletedPath filletedPath(const std::vector<math::Point3d>& path, double radius);

}  // namespace qor::fc::resource::geometricmodel
