#include "Fc/Shapes/RevolvedFaceSet.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "Qor/Assert/Report.h"
#include "Fc/Shapes/SweepFaces.h"
#include "Fc/Shapes/SweptRings.h"
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

/// Adds a ring turned by this angle from the first; before that its point `i` is `place(i)`.
template <typename Place>
void addTurnedRing(SweptRings& body, const RevolutionAxis& axis, double angle, const Place& place) {
  const Matrix turn = turnAround(axis, angle);
  for (std::size_t i = 0; i < body.ringSize(); ++i) body.points().push_back(place(i) * turn);
  body.addSides();
}

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

  SweptRings body(profile, segments, liesRightOfAxis(axis, outer));
  const auto first = [&body](std::size_t i) { return body.points()[i]; };
  if (!fullTurn) body.addBottom();
  for (std::size_t i = 1; i < segments; ++i)
    addTurnedRing(body, axis, step * static_cast<double>(i), first);
  if (fullTurn) {
    body.joinLastRingToFirst();
  } else {
    addTurnedRing(body, axis, angle, first);
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
  SweptRings body(start, segments, reverse);
  body.addBottom();
  for (std::size_t i = 1; i <= segments; ++i) {
    const double fraction = static_cast<double>(i) / static_cast<double>(segments);
    addTurnedRing(body, axis, angle * fraction, [&](std::size_t point) {
      const Point3d& first = body.points()[point];
      return first + (last[point] - first) * fraction;
    });
  }
  body.addTop(end.contours().size() >= 2);
  return std::move(body).finish();
}

}  // namespace qor::fc::resource::geometricmodel
