#include "Fc/Resource/Geometry/FcCurveSegment.h"

#include <numbers>

#include "Fc/FcParams.h"
#include "Fc/Resource/Geometry/FcCircle.h"
#include "Fc/Resource/Geometry/FcClothoid.h"
#include "Fc/Resource/Geometry/FcLine.h"
#include "Fc/Resource/Geometry/FcPlacement.h"
#include "Fc/Resource/Geometry/FcVector.h"
#include "Fc/Shapes/TurningPath.h"

namespace qor::fc::resource::geometry {

using math::Point2d;
using math::Point3d;

namespace {

/// How a parent curve turns, and the length of a unit of its parameter.
struct Parent {
  TurningCurve curve;
  double unit = 1;
};

/// Empty for a parent without a length along it, or of another class.
std::optional<Parent> parentOf(const FcBase* curve) {
  if (const auto* line = fcCast<FcLine>(curve))
    return Parent{{}, line->Dir() ? double(line->Dir()->Magnitude()) : 1};
  if (const auto* circle = fcCast<FcCircle>(curve)) {
    if (!(circle->Radius() > math::Epsilon::current().length)) return {};
    return Parent{{1 / circle->Radius(), 0}, circle->Radius()};
  }
  if (const auto* clothoid = fcCast<FcClothoid>(curve)) {
    const double constant = clothoid->ClothoidConstant();
    if (!(std::abs(constant) > math::Epsilon::current().length)) return {};
    return Parent{{0, 0.5 / (constant * std::abs(constant))},
                  std::abs(constant) * std::sqrt(std::numbers::pi)};
  }
  return {};
}

/// A measure along a parent curve in metres; 0 for none.
double lengthOf(const FcCurveMeasureSelect& measure, const Parent& parent) {
  if (measure.type() == FcCurveMeasureSelect::Types::LengthMeasure) return measure.LengthMeasure();
  if (measure.type() == FcCurveMeasureSelect::Types::ParameterValue)
    return measure.ParameterValue() * parent.unit;
  return 0;
}

}  // namespace

std::optional<double> FcCurveSegment::length() const {
  const auto parent = parentOf(ParentCurve().get());
  if (!parent || !Placement()) return {};
  return std::abs(lengthOf(SegmentLength(), *parent));
}

/// In the frame of the placement.
std::optional<std::vector<Point2d>> FcCurveSegment::localPoints(const FcParams& params) const {
  const auto parent = parentOf(ParentCurve().get());
  if (!parent || !Placement()) return {};
  return turningPath(parent->curve, lengthOf(SegmentStart(), *parent),
                     lengthOf(SegmentLength(), *parent), params.curveDiscretization());
}

bool FcCurveSegment::is2d() const {
  return Placement() && Placement()->transformationGet().isOnly2dTransformation();
}

std::vector<Point3d> FcCurveSegment::curve(const FcParams& params) const {
  const auto points = localPoints(params);
  return points ? Placement()->transformationGet().transform(*points) : FcSegment::curve(params);
}

std::optional<std::vector<Point2d>> FcCurveSegment::curve2d(const FcParams& params) const {
  auto points = localPoints(params);
  if (!points) return FcSegment::curve2d(params);
  const math::Matrix2d placement = Placement()->transformationGet().toMatrix2d();
  for (Point2d& point : *points) point = point * placement;
  return points;
}

}  // namespace qor::fc::resource::geometry
