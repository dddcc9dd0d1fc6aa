#include "Fc/Shapes/RevolvedFaceSet.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "Qor/Assert/Report.h"
#include "Fc/Shapes/SweepFaces.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::geometricmodel {

using generate::draw::PolygonalFaceSetOpenGL;
using generate::draw::Profile2D;
using math::Epsilon;
using math::Matrix;
using math::Point2d;
using math::Point3d;
using math::Vector3d;
using Contour = Profile2D::Contour;

namespace {

/// Positive on the left of the axis.
double signedDistance(const RevolutionAxis& axis, const Point2d& point) {
  return axis.direction.cross(point - axis.location);
}

bool liesRightOfAxis(const RevolutionAxis& axis, const Contour& contour) {
  const double tolerance = Epsilon::current().length;
  for (const Point2d& point : contour)
    if (const double distance = signedDistance(axis, point); std::abs(distance) > tolerance)
      return distance < 0;
  return false;
}

bool axisCrossesAnEdge(const RevolutionAxis& axis, const Contour& contour) {
  for (std::size_t i = 0; i < contour.size(); ++i) {
    const Point2d& a = contour[i];
    const Point2d& b = contour[(i + 1) % contour.size()];
    const double fromA = signedDistance(axis, a);
    const double fromB = signedDistance(axis, b);
    if (fromA * fromB >= 0) continue;
    const Point2d crossing = a + (b - a) * (fromA / (fromA - fromB));
    if (!crossing.isNear(a) && !crossing.isNear(b)) return true;
  }
  return false;
}

/// Whether there is something to turn; tells what the model does wrong.
bool checkAgainstAxis(const RevolutionAxis& axis, const Contour& outer, double radius) {
  if (!std::isfinite(radius)) return false;
  if (radius <= Epsilon::current().length) {
    report("All points of the profile's outer contour seem to lie on the revolution axis");
    return false;
  }
  if (axisCrossesAnEdge(axis, outer))
    report(
        "By informal proposition, the AxisLine shall not intersect the interior of the SweptArea");
  return true;
}

/// Rings and faces of a body that turns, from the bottom up.
class Revolution {
 public:
  Revolution(const Profile2D& profile, const RevolutionAxis& axis, std::size_t segments,
             bool reverse)
      : m_profile(profile),
        m_axis(axis),
        m_points(getPointsInProfileForGeneratingFaceSet(profile, segments, reverse)),
        m_n(m_points.size()),
        m_counter(m_n - 1),
        m_isSoft(mayHaveSoftEdges(profile)) {
    (m_isSoft ? m_soft : m_hard).reserve(segments * m_n + 2);
  }

  void addBottom() { m_hard.push_back(generateBottomFace(m_profile)); }

  /// Point `i` of the ring before it is turned is `place(i)`.
  template <typename Place>
  void addRing(double angle, const Place& place) {
    const Matrix turn = turnAround(m_axis, angle);
    for (std::size_t i = 0; i < m_n; ++i) m_points.push_back(place(i) * turn);
    addIndexedFacesForSides(m_profile, m_n, m_counter, sides(), nullptr);
  }
  void addRing(double angle) {
    addRing(angle, [this](std::size_t i) { return m_points[i]; });
  }

  void joinLastRingToFirst() {
    const auto back = static_cast<std::uint32_t>(m_points.size() - m_n);
    std::uint32_t first = 0;
    for (const Contour& contour : m_profile.contours()) {
      const auto count = static_cast<std::uint32_t>(contour.size());
      for (std::uint32_t j = 0; count > 1 && j < count; ++j) {
        const std::uint32_t k = first + j;
        const std::uint32_t next = first + (j + 1) % count;
        sides().push_back({{back + k, back + next, next, k}, {}});
      }
      first += count;
    }
  }

  /// Over the last ring; the bottom is there already.
  void addTop(bool hasVoids) {
    const std::size_t offset = m_isSoft ? m_n : m_points.size() - m_n;
    m_hard.push_back(generateTopFace(m_hard.front(), static_cast<std::uint32_t>(offset), hasVoids));
  }

  const Point3d& firstRing(std::size_t i) const { return m_points[i]; }
  std::size_t ringSize() const { return m_n; }

  PolygonalFaceSetOpenGL finish() && {
    return sweptFaceSet(std::move(m_points), m_n, std::move(m_hard), std::move(m_soft));
  }

 private:
  SweptFaces& sides() { return m_isSoft ? m_soft : m_hard; }

  const Profile2D& m_profile;
  const RevolutionAxis& m_axis;
  std::vector<Point3d> m_points;
  std::size_t m_n;
  std::size_t m_counter;
  bool m_isSoft;
  SweptFaces m_hard;
  SweptFaces m_soft;
};

}  // namespace

Matrix turnAround(const RevolutionAxis& axis, double angle) {
  const Vector3d toLocation{axis.location.x, axis.location.y, 0};
  return Matrix::createTranslation(-toLocation) *
         Matrix::createRotate({axis.direction.x, axis.direction.y, 0}, angle) *
         Matrix::createTranslation(toLocation);
}

double orthogonalDistanceToFurthestPointInPolygon(const RevolutionAxis& axis,
                                                  const std::vector<Point2d>& polygon) {
  double furthest = 0;
  for (const Point2d& point : polygon)
    furthest = std::max(furthest, std::abs(signedDistance(axis, point)));
  return furthest;
}

std::optional<PolygonalFaceSetOpenGL> revolvedFaceSet(
    const Profile2D& profile, const RevolutionAxis& axis, double angle,
    const math::CurveDiscretization& discretization) {
  if (profile.empty() || profile.contours().front().empty()) return std::nullopt;
  const Contour& outer = profile.contours().front();
  const double radius = orthogonalDistanceToFurthestPointInPolygon(axis, outer);
  if (!checkAgainstAxis(axis, outer, radius)) return std::nullopt;
  const std::size_t segments =
      std::max<std::size_t>(1, discretization.numberOfArcSegments(radius, angle));
  const bool fullTurn =
      std::abs(angle - 2 * std::numbers::pi) <= Epsilon::current().angle && segments > 1;
  const double step = angle / static_cast<double>(segments);

  Revolution body(profile, axis, segments, liesRightOfAxis(axis, outer));
  if (!fullTurn) body.addBottom();
  for (std::size_t i = 1; i < segments; ++i) body.addRing(step * static_cast<double>(i));
  if (fullTurn) {
    body.joinLastRingToFirst();
  } else {
    body.addRing(angle);
    body.addTop(profile.contours().size() >= 2);
  }
  return std::move(body).finish();
}

std::optional<PolygonalFaceSetOpenGL> taperedRevolvedFaceSet(
    const Profile2D& start, const Profile2D& end, const RevolutionAxis& axis, double angle,
    const math::CurveDiscretization& discretization) {
  if (start.empty() || end.empty()) return std::nullopt;
  const Contour& outer = end.contours().front();
  if (start.contours().front().empty() || outer.empty()) return std::nullopt;
  const double radius = orthogonalDistanceToFurthestPointInPolygon(axis, outer);
  if (!checkAgainstAxis(axis, outer, radius)) return std::nullopt;
  const std::size_t segments = discretization.numberOfArcSegments(radius, angle);
  if (segments == 0) return std::nullopt;

  // Each ring holds its points in the order of the first, or the quads would cross.
  const bool reverse = liesRightOfAxis(axis, outer);
  const std::vector<Point3d> last = getPointsInProfileForGeneratingFaceSet(end, 0, reverse);
  Revolution body(start, axis, segments, reverse);
  body.addBottom();
  for (std::size_t i = 1; i <= segments; ++i) {
    const double fraction = static_cast<double>(i) / static_cast<double>(segments);
    body.addRing(angle * fraction, [&](std::size_t point) {
      return body.firstRing(point) + (last[point] - body.firstRing(point)) * fraction;
    });
  }
  body.addTop(end.contours().size() >= 2);
  return std::move(body).finish();
}

}  // namespace qor::fc::resource::geometricmodel
