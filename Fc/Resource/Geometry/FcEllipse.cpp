#include "Fc/Resource/Geometry/FcEllipse.h"

#include "Fc/FcParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/ConicArc.h"
#include "Qor/Math/Ellipse.h"

namespace qor::fc::resource::geometry {

using math::Extent2d;
using math::Matrix;
using math::Point2d;
using math::Point3d;
using math::_2d::Ellipse;

bool FcEllipse::is2d() const { return Position().transformationGet().isOnly2dTransformation(); }

/// The points in the frame of `Position`.
std::vector<Point2d> FcEllipse::localPoints(const FcParams& params, const Trim& trim1,
                                            const Trim& trim2, bool reverse) const {
  const double tolerance = math::Epsilon::current().length;
  if (!requireThat(*this, SemiAxis1() > tolerance, "Ellipse should have positive SemiAxis1") ||
      !requireThat(*this, SemiAxis2() > tolerance, "Ellipse should have positive SemiAxis2"))
    return {};
  const Ellipse ellipse(SemiAxis1(), SemiAxis2());
  const Matrix toLocal = Position().transformationGet().inverse();
  const auto angleOfPoint = [&](const Point3d& point) {
    const Point3d local = point * toLocal;
    return ellipse.angleFromPoint({local.x, local.y});
  };
  const auto from = trimAngle(trim1, angleOfPoint), to = trimAngle(trim2, angleOfPoint);
  if (!from || !to) return {};
  if (!requireThat(*this, !trim1 || !(std::abs(*from - *to) <= math::Epsilon::current().angle),
                   "By formal proposition on IfcTrimmedCurve, trimming points/parameters for a "
                   "FcCircle should not be equal."))
    return {};
  const ConicArc arc = ConicArc::between(*from, *to, reverse);
  return ellipse.pointsGet(params.curveDiscretization(), arc.start, arc.sweep);
}

std::optional<std::vector<Point2d>> FcEllipse::curve2d(const FcParams& params, const Trim& trim1,
                                                       const Trim& trim2, bool reverse) const {
  if (!requireThat(*this, is2d(), "Curve has 3d points")) return {};
  auto points = localPoints(params, trim1, trim2, reverse);
  if (points.empty()) return {};
  const math::Matrix2d position = Position().transformationGet().toMatrix2d();
  for (Point2d& point : points) point = point * position;
  return points;
}

std::vector<Point3d> FcEllipse::curveGet(const FcParams& params, const Trim& trim1,
                                         const Trim& trim2, bool reverse) const {
  return Position().transformationGet().transform(localPoints(params, trim1, trim2, reverse));
}

void FcEllipse::transform(const Matrix& matrix) {
  if (!requireThat(*this, !matrix.isMirror(),
                   "Must fixed implementation if mirror should be allowed"))
    return;
  const Matrix moved = Position().transformationGet() * matrix;
  m_Position.setTransformation(moved);
  if (moved.isIdentity()) return;
  setSemiAxis1(SemiAxis1() * moved.x().length());
  setSemiAxis2(SemiAxis2() * moved.y().length());
}

std::optional<Extent2d> FcEllipse::planarBox(const FcParams& /*params*/) const {
  const math::Matrix2d position = Position().transformationGet().toMatrix2d();
  return Ellipse(position, SemiAxis1(), SemiAxis2()).extent();
}

}  // namespace qor::fc::resource::geometry
