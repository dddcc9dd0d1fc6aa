#include "Fc/Resource/Geometry/FcCircle.h"

#include "Fc/FcParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/ConicArc.h"

namespace qor::fc::resource::geometry {

using math::Extent2d;
using math::Matrix;
using math::Point2d;
using math::Point3d;
using math::Vector2d;
using math::Vector3d;

namespace {

bool hasRadius(const FcCircle& circle) {
  return requireThat(circle.Radius() > math::Epsilon::current().length,
                     "Circle should have positive radius");
}

bool isFlat(const FcCircle& circle) { return requireThat(circle.is2d(), "Curve has 3d points"); }

Point2d centerOf(const Matrix& position) { return {position.origin().x, position.origin().y}; }

/// Which part of the circle the trims leave; empty when they leave none.
std::optional<ConicArc> arcBetween(const Matrix& position, const FcCurve::Trim& trim1,
                                   const FcCurve::Trim& trim2, bool reverse) {
  const auto angleOfPoint = [&](const Point3d& point) {
    const Vector3d toPoint = point - position.origin();
    const double angle = position.x().innerAngle(toPoint);
    return position.x().cross(toPoint).dot(position.z()) < 0 ? -angle : angle;
  };
  const auto from = trimAngle(trim1, angleOfPoint), to = trimAngle(trim2, angleOfPoint);
  if (!from || !to) return {};
  const bool apart = !trim1 || !(std::abs(*from - *to) <= math::Epsilon::current().angle);
  if (!requireThat(apart,
                   "By informal proposition on IfcTrimmedCurve, trimming points/parameters for a "
                   "FcCircle should not be equal.") &&
      !meansFullTurn(trim1, trim2))
    return {};
  return ConicArc::between(*from, *to, reverse);
}

}  // namespace

bool FcCircle::isClosed(const FcParams& /*params*/) const { return true; }

bool FcCircle::is2d() const {
  const Matrix position = Position().transformationGet();
  return std::abs(position.origin().z) <= math::Epsilon::current().general &&
         position.z().isParallel({0, 0, 1});
}

std::optional<std::vector<Point2d>> FcCircle::closedCurve2dGet(const FcParams& params) const {
  if (!hasRadius(*this) || !isFlat(*this)) return {};
  const Point2d center = centerOf(Position().transformationGet());
  return params.curveDiscretization().discretizeCircle(center, Radius());
}

std::optional<std::vector<Point2d>> FcCircle::curve2d(const FcParams& params, const Trim& trim1,
                                                      const Trim& trim2, bool reverse) const {
  if (!hasRadius(*this) || !isFlat(*this)) return {};
  const Matrix position = Position().transformationGet();
  const auto arc = arcBetween(position, trim1, trim2, reverse);
  if (!arc) return {};
  const double offset = Vector2d(1, 0).counterClockwiseAngle({position.x().x, position.x().y});
  const double sense = position.z().z < 0 ? -1 : 1;  // seen from above, it may run the other way
  auto points = params.curveDiscretization().discretizeCircularArc(
      centerOf(position), Radius(), offset + sense * arc->start, sense * arc->sweep);
  if (points.empty()) return {};
  return points;
}

std::vector<Point3d> FcCircle::curveGet(const FcParams& params, const Trim& trim1,
                                        const Trim& trim2, bool reverse) const {
  if (!hasRadius(*this)) return {};
  const Matrix position = Position().transformationGet();
  const auto arc = arcBetween(position, trim1, trim2, reverse);
  if (!arc) return {};
  return position.transform(params.curveDiscretization().discretizeCircularArc(
      Point2d(), Radius(), arc->start, arc->sweep));
}

void FcCircle::transform(const Matrix& matrix) {
  const double tolerance = math::Epsilon::current().general;
  const double x = matrix.x().length(), y = matrix.y().length(), z = matrix.z().length();
  const bool uniform =
      std::abs(x - y) <= tolerance && std::abs(x - z) <= tolerance && std::abs(y - z) <= tolerance;
  if (!requireThat(*this, uniform, "Non uniform scale")) return;
  const Matrix moved = Position().transformationGet() * matrix;
  m_Position.setTransformation(moved);
  if (!moved.isIdentity()) setRadius(Radius() * x);
}

std::optional<Extent2d> FcCircle::planarBox(const FcParams& /*params*/) const {
  const Point2d center = centerOf(Position().transformationGet());
  const Vector2d reach(Radius(), Radius());
  return Extent2d(center - reach, center + reach);
}

}  // namespace qor::fc::resource::geometry
