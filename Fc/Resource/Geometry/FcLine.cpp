#include "Fc/Resource/Geometry/FcLine.h"

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/FcParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcDirection.h"
#include "Fc/Resource/Geometry/FcVector.h"
#include "Qor/Math/PointFactory.h"

namespace qor::fc::resource::geometry {

using math::Point2d;
using math::Point3d;
using math::Vector3d;

namespace {

bool isComplete(const FcLine& line) {
  return requireThat(line.Pnt() != nullptr, "FcLine::Pnt is required") &&
         requireThat(line.Dir() != nullptr, "FcLine::Dir is required") &&
         requireThat(line.Dir()->Orientation() != nullptr, "FcVector::Orientation is required");
}

/// Where a trim cuts the line; empty for a trim by a point that is missing.
std::optional<Point3d> trimPoint(const FcLine& line, const FcTrimmingSelect& trim) {
  if (trim.type() == FcTrimmingSelect::Types::ParameterValue)
    return line.Pnt()->point() + line.Dir()->vector() * trim.ParameterValue();
  const auto& point = trim.CartesianPoint();
  if (!requireThat(point != nullptr, "FcTrimmingSelect::CartesianPoint is required")) return {};
  return point->point();
}

bool vanishes(double value) { return std::abs(value) <= math::Epsilon::current().length; }

}  // namespace

bool FcLine::isClosed(const FcParams& /*params*/) const { return false; }

bool FcLine::is2d() const {
  return Pnt() && Dir() && vanishes(Pnt()->point().z) && vanishes(Dir()->vector().z);
}

std::vector<Point3d> FcLine::curveGet(const FcParams& /*params*/, const Trim& trim1,
                                      const Trim& trim2, bool reverse) const {
  if (!isComplete(*this)) return {};
  const auto start = trim1 ? trimPoint(*this, *trim1) : Pnt()->point();
  const auto end = trim2 ? trimPoint(*this, *trim2) : Pnt()->point() + Dir()->vector();
  if (!start || !end) return {};
  return reverse ? std::vector{*end, *start} : std::vector{*start, *end};
}

std::optional<std::vector<Point2d>> FcLine::curve2d(const FcParams& params, const Trim& trim1,
                                                    const Trim& trim2, bool reverse) const {
  const auto points = curveGet(params, trim1, trim2, reverse);
  if (points.empty()) return {};
  return math::_2d::PointFactory::fromPoints(points);
}

std::vector<std::pair<double, FcCurve::ParameterType>> FcLine::parametricSegments() const {
  return {{1.0, ParameterType::length}};
}

void FcLine::draw(const FcDrawParams& params) const {
  const auto points = curveGet(FcParams(params), {}, {}, false);
  if (points.empty()) return;
  expectThat(*this, Pnt()->dimension() == Dir()->Orientation()->dimension(),
             "Dimension of point and vector must be equal.");
  params->vPolyline(points);
}

void FcLine::transform(const math::Matrix& matrix) {
  if (!isComplete(*this)) return;
  const Point3d point = Pnt()->point() * matrix;
  const Vector3d vector = Dir()->vector() * matrix;
  const bool planar = vanishes(point.z) && vanishes(vector.z);
  if (planar)
    Pnt()->setPoint(Point2d(point.x, point.y));
  else
    Pnt()->setPoint(point);
  Dir()->setVector(vector, planar ? 2 : 3);
}

}  // namespace qor::fc::resource::geometry
