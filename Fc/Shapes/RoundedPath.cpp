#include "Fc/Shapes/RoundedPath.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace qor::fc::resource::geometry {

using math::Point3d;
using math::Vector3d;

namespace {

/// Where an arc that rounds a corner begins, its middle, and where it ends.
struct CornerArc {
  Point3d start;
  Point3d middle;
  Point3d end;
};

bool pointTheSameWay(const Vector3d& a, const Vector3d& b) {
  constexpr double tolerance = 0.0001;
  return std::abs(a.x - b.x) <= tolerance && std::abs(a.y - b.y) <= tolerance &&
         std::abs(a.z - b.z) <= tolerance;
}

/// `before` and `after` are how much of the two legs the arc may take, from the corner on.
std::optional<CornerArc> roundCorner(const Point3d& corner, const Vector3d& incoming,
                                     const Vector3d& outgoing, double radius, double before,
                                     double after) {
  if (pointTheSameWay(incoming, outgoing)) return {};
  const double half = (-incoming).innerAngle(outgoing) / 2;  // between the corner's legs
  const double reach = std::min({radius / std::tan(half), before, after});
  const double fitting = reach * std::tan(half);
  if (!(fitting > math::Epsilon::current().length) || !std::isfinite(fitting)) return {};
  const Vector3d bisector = (outgoing - incoming).normalized();
  const double toMiddle = fitting / std::sin(half) - fitting;
  return CornerArc{corner - incoming * reach, corner + bisector * toMiddle,
                   corner + outgoing * reach};
}

/// Builds the path piece by piece.
class Builder {
 public:
  explicit Builder(const Point3d& start) { m_path.points = {start}; }

  const Point3d& end() const { return m_path.points.back(); }
  void lineTo(const Point3d& point) {
    const std::int64_t from = lastIndex();
    m_path.points.push_back(point);
    m_path.pieces.emplace_back(RoundedPath::Line{from, lastIndex()});
  }
  void arc(const CornerArc& corner) {
    if (!end().isNear(corner.start)) lineTo(corner.start);
    const std::int64_t from = lastIndex();
    m_path.points.push_back(corner.middle);
    m_path.points.push_back(corner.end);
    m_path.pieces.emplace_back(RoundedPath::Arc{from, from + 1, from + 2});
  }
  RoundedPath take() { return std::move(m_path); }

 private:
  std::int64_t lastIndex() const { return static_cast<std::int64_t>(m_path.points.size()); }

  RoundedPath m_path;
};

}  // namespace

RoundedPath RoundedPath::through(const std::vector<Point3d>& corners, double radius) {
  if (corners.empty()) return {};
  Builder path(corners.front());
  for (std::size_t i = 1; i < corners.size(); ++i) {
    const Point3d& corner = corners[i];
    std::optional<CornerArc> arc;
    if (i + 1 < corners.size() && radius > 0) {
      const Vector3d in = corner - corners[i - 1], out = corners[i + 1] - corner;
      const double legAfter = i + 2 < corners.size() ? out.length() / 2 : out.length();
      arc = roundCorner(corner, in.normalized(), out.normalized(),
                        std::min(radius, in.length() / 2), path.end().distance(corner), legAfter);
    }
    if (arc)
      path.arc(*arc);
    else
      path.lineTo(corner);
  }
  return path.take();
}

}  // namespace qor::fc::resource::geometry
