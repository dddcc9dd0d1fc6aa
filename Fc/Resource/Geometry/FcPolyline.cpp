#include "Fc/Resource/Geometry/FcPolyline.h"

#include <algorithm>

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/FcParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Reflection/MakeEntity.h"
#include "Fc/Resource/GeometricModel/FcCartesianPointList2D.h"
#include "Fc/Resource/GeometricModel/FcCartesianPointList3D.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcIndexedPolyCurve.h"
#include "Fc/Shapes/PolylineTrim.h"
#include "Qor/Math/PointFactory.h"

namespace qor::fc::resource::geometry {

using geometricmodel::FcCartesianPointList2D;
using geometricmodel::FcCartesianPointList3D;
using math::Extent;
using math::Extent2d;
using math::Matrix;
using math::Point2d;
using math::Point3d;

namespace {

template <typename Point>
std::vector<std::shared_ptr<FcCartesianPoint>> entitiesOf(const std::vector<Point>& points,
                                                          bool close) {
  std::vector<std::shared_ptr<FcCartesianPoint>> result;
  result.reserve(points.size() + 1);
  for (const Point& point : points) result.push_back(makePoint(point));
  if (close) result.push_back(result.front());
  return result;
}

/// Whether the trims are none or two points; asserts for the other cases.
bool canTrim(const FcCurve::Trim& trim1, const FcCurve::Trim& trim2) {
  if (!trim1 && !trim2) return true;
  if (!requireThat(trim1 && trim2,
                   "FcPolyline::curveGet trimming on only one of the ends is not implemented"))
    return false;
  const auto isParameter = [](const FcTrimmingSelect& trim) {
    return trim.type() == FcTrimmingSelect::Types::ParameterValue;
  };
  return requireThat(!isParameter(*trim1) && !isParameter(*trim2),
                     "FcPolyline::curveGet trimming by parameter is not implemented") &&
         requireThat(trim1->CartesianPoint() && trim2->CartesianPoint(),
                     "FcTrimmingSelect::CartesianPoint is required");
}

}  // namespace

void FcPolyline::setPoints(const std::vector<Point2d>& points, bool close) {
  if (requireThat(*this, points.size() >= 2, "Assertion failed: need at least 2 points."))
    setPoints(entitiesOf(points, close));
}

void FcPolyline::setPoints(const std::vector<Point3d>& points, bool close) {
  if (requireThat(*this, points.size() >= 2, "Assertion failed: need at least 2 points."))
    setPoints(entitiesOf(points, close));
}

bool FcPolyline::hasAllPoints() const {
  return requireThat(*this, std::find(Points().begin(), Points().end(), nullptr) == Points().end(),
                     "There is a non-existent point in this Polyline");
}

/// Empty when one is missing, with an assert.
std::vector<Point3d> FcPolyline::allPoints() const {
  std::vector<Point3d> result;
  if (!hasAllPoints()) return result;
  result.reserve(Points().size());
  for (const auto& point : Points()) result.push_back(point->point());
  return result;
}

bool FcPolyline::isClosed() const {
  return Points().size() >= 3 && Points().front() == Points().back();
}

bool FcPolyline::isClosed(const FcParams& /*params*/) const { return isClosed(); }

bool FcPolyline::is2d() const {
  return !Points().empty() && Points()[0] && Points()[0]->dimension() == 2;
}

std::shared_ptr<FcIndexedPolyCurve> FcPolyline::getAsIndexedPolyCurve(
    const FcParams& /*params*/) const {
  const auto points = allPoints();
  if (points.empty()) return nullptr;
  auto curve = makeEntity<FcIndexedPolyCurve>();
  if (is2d()) {
    auto list = makeEntity<FcCartesianPointList2D>();
    list->setPoints(math::_2d::PointFactory::fromPoints(points));
    curve->setPoints(std::move(list));
  } else {
    auto list = makeEntity<FcCartesianPointList3D>();
    list->setPoints(points);
    curve->setPoints(std::move(list));
  }
  return curve;
}

std::optional<std::vector<Point2d>> FcPolyline::closedCurve2dGet(const FcParams& params) const {
  auto points = curve2d(params, {}, {}, false);
  if (points && isClosed()) points->pop_back();
  return points;
}

std::optional<std::vector<Point2d>> FcPolyline::curve2d(const FcParams& params, const Trim& trim1,
                                                        const Trim& trim2, bool reverse) const {
  if (!is2d()) return {};
  const auto points = curveGet(params, trim1, trim2, reverse);
  if (points.empty()) return {};
  return math::_2d::PointFactory::fromPoints(points);
}

std::vector<Point3d> FcPolyline::curveGet(const FcParams& /*params*/, const Trim& trim1,
                                          const Trim& trim2, bool reverse) const {
  if (!canTrim(trim1, trim2)) return {};
  auto points = allPoints();
  if (reverse) std::reverse(points.begin(), points.end());
  if (!trim1) return points;
  return trimPolyline(points, trim1->CartesianPoint()->point(), trim2->CartesianPoint()->point());
}

std::vector<std::pair<double, FcCurve::ParameterType>> FcPolyline::parametricSegments() const {
  const auto points = allPoints();
  double length = 0;
  for (std::size_t i = 1; i < points.size(); ++i) length += points[i].distance(points[i - 1]);
  return {{length, ParameterType::length}};
}

void FcPolyline::draw(const FcDrawParams& params) const {
  if (!requireThat(*this, !Points().empty(), "There are no points.")) return;
  auto points = allPoints();
  if (points.empty()) return;
  if (isClosed()) {
    points.pop_back();
    params->vPolygon({std::move(points)});
  } else {
    params->vPolyline(points);
  }
}

void FcPolyline::transform(const Matrix& matrix) {
  if (!hasAllPoints()) return;
  std::vector<FcCartesianPoint*> points;
  points.reserve(Points().size());
  for (const auto& point : Points()) points.push_back(point.get());
  const bool planar = is2d() && matrix.isOnly2dTransformation();
  std::sort(points.begin(), points.end());
  points.erase(std::unique(points.begin(), points.end()), points.end());
  for (FcCartesianPoint* point : points) {
    const Point3d moved = point->point() * matrix;
    if (planar)
      point->setPoint(Point2d(moved.x, moved.y));
    else
      point->setPoint(moved);
  }
}

std::optional<Extent> FcPolyline::boundingBox(const FcParams& /*params*/) const {
  if (!hasAllPoints()) return {};
  Extent box;
  for (const auto& point : Points()) box.include(point->point());
  return box.isValid() ? std::optional(box) : std::nullopt;
}

std::optional<Extent2d> FcPolyline::planarBox(const FcParams& /*params*/) const {
  if (!hasAllPoints()) return {};
  Extent2d box;
  for (const auto& point : Points()) box.include(point->point2d());
  return box.isValid() ? std::optional(box) : std::nullopt;
}

}  // namespace qor::fc::resource::geometry
