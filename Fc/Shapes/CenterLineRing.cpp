#include "Fc/Shapes/CenterLineRing.h"

#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::profile {

using math::Point2d;
using math::Vector2d;

namespace {

/// From a corner of the line to that of the band's left side.
Vector2d mitreOffset(const Vector2d& in, const Vector2d& out, double offset) {
  const Vector2d along = (in + out).normalized();
  const double slant = along.dot(in);
  if (slant <= math::Epsilon::current().general) return in.perpendicular() * offset;
  return along.perpendicular() * (offset / slant);
}

}  // namespace

std::vector<Point2d> centerLineRing(const std::vector<Point2d>& line, double offset) {
  std::vector<Point2d> points;
  points.reserve(line.size());
  for (const Point2d& point : line)
    if (points.empty() || !point.isNear(points.back())) points.push_back(point);
  const std::size_t n = points.size();
  if (n < 2) return {};

  std::vector<Point2d> ring(2 * n);
  for (std::size_t i = 0; i < n; ++i) {
    const Vector2d in = (points[i] - points[i == 0 ? 0 : i - 1]).normalized();
    const Vector2d out = (points[i + 1 == n ? i : i + 1] - points[i]).normalized();
    const Vector2d toLeft = i == 0       ? out.perpendicular() * offset
                            : i + 1 == n ? in.perpendicular() * offset
                                         : mitreOffset(in, out, offset);
    ring[i] = points[i] - toLeft;
    ring[2 * n - 1 - i] = points[i] + toLeft;
  }
  return ring;
}

}  // namespace qor::fc::resource::profile
