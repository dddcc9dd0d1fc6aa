#include "Fc/Resource/Geometry/FcIndexedPolyCurve.h"

#include <algorithm>

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/FcParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Reflection/MakeEntity.h"
#include "Fc/Resource/GeometricModel/FcCartesianPointList2D.h"
#include "Fc/Resource/GeometricModel/FcCartesianPointList3D.h"
#include "Fc/Resource/Geometry/CurveTrimming.h"
#include "Fc/Resource/Geometry/IndexedCurvePoints.h"
#include "Qor/Math/MatrixFactory.h"

namespace qor::fc::resource::geometry {

using generate::draw::Profile2D;
using geometricmodel::FcCartesianPointList;
using geometricmodel::FcCartesianPointList2D;
using geometricmodel::FcCartesianPointList3D;
using math::Matrix;
using math::Point2d;
using math::Point3d;
using SegmentTypes = FcSegmentIndexSelect::Types;

namespace {

bool hasList(const FcIndexedPolyCurve& curve) {
  return requireThat(curve.Points() != nullptr, "There is not point list defined.");
}

bool areEqualNeighbours(const std::vector<Point3d>& points) {
  return std::adjacent_find(points.begin(), points.end()) != points.end();
}

void drawPolylineOrPolygonFromPoints(std::vector<Point3d> points, const FcDrawParams& params) {
  if (!requireThat(
          points.size() >= 2,
          "There are less than two points: cannot draw a (closed or open) polygonal curve"))
    return;
  const bool closed = points.front() == points.back();
  if (!requireThat(!closed || points.size() >= 4,
                   "For a closed polygonal curve, there must at least be 3 points (excluding the "
                   "duplicated start/end point"))
    return;
  expectThat(!areEqualNeighbours(points),
             "By informal proposition of IfcIndexedPolyCurve, there must not be consecutive points "
             "which are equal");
  if (closed) {
    points.pop_back();
    params->vPolygon({std::move(points)});
  } else {
    params->vPolyline(points);
  }
}

/// The sweep of the arc through three points of the list; empty when they make none.
std::optional<double> sweepOfArc(const FcCartesianPointList& list, const FcArcIndex& indices) {
  std::vector<Point3d> points;
  for (const auto& index : indices.value()) {
    if (index.value() < 1 || static_cast<std::size_t>(index.value()) > list.size()) return {};
    points.push_back(list.point(static_cast<std::size_t>(index.value() - 1)));
  }
  const auto plane = math::_3d::MatrixFactory::fromPoints(points);
  if (!plane) return {};
  const auto flat = plane->inverse().convert(points);
  const auto arc = math::_2d::ArcFactory::fromThreePoints(flat[0], flat[1], flat[2]);
  if (!arc) return {};
  return std::abs(arc->sweepAngle());
}

/// How long the segment is in the parameter of its curve; empty for one that makes no sense.
std::optional<std::pair<double, FcCurve::ParameterType>> parametricSegment(
    const FcCartesianPointList& list, const FcSegmentIndexSelect& segment) {
  if (segment.type() == SegmentTypes::ArcIndex) {
    const auto sweep = sweepOfArc(list, segment.ArcIndex());
    if (!sweep) return {};
    return std::pair(*sweep, FcCurve::ParameterType::angle);
  }
  const auto& indices = segment.LineIndex().value();  // throws for what is neither
  for (const auto& index : indices)
    if (index.value() < 1 || static_cast<std::size_t>(index.value()) > list.size()) return {};
  if (indices.empty()) return {};
  return std::pair(static_cast<double>(indices.size() - 1), FcCurve::ParameterType::length);
}

}  // namespace

bool FcIndexedPolyCurve::is2d() const {
  return fcCast<FcCartesianPointList2D>(static_cast<const FcBase*>(Points().get())) != nullptr;
}

bool FcIndexedPolyCurve::isClosed() const {
  if (!hasList(*this)) return false;
  if (Segments()) {
    if (Segments()->empty()) return false;
    const auto first = IndexedCurvePoints<Point3d>::firstIndex(Segments()->front());
    const auto last = IndexedCurvePoints<Point3d>::lastIndex(Segments()->back());
    return first && last && *first == *last;
  }
  const std::size_t count = Points()->size();
  return count >= 3 && Points()->point(0) == Points()->point(count - 1);
}

bool FcIndexedPolyCurve::isClosed(const FcParams& /*params*/) const { return isClosed(); }

/// The list in the plane; empty for points in space of which one has a height.
std::optional<std::vector<Point2d>> FcIndexedPolyCurve::planarPoints() const {
  std::vector<Point2d> result;
  const double tolerance = math::Epsilon::current().length;
  for (const Point3d& point : Points()->points()) {
    if (!(std::abs(point.z) <= tolerance)) return {};
    result.emplace_back(point.x, point.y);
  }
  return result;
}

std::optional<Profile2D> FcIndexedPolyCurve::closed2dCurveWithEdgeInformation(
    const FcParams& params, const Trim& trim1, const Trim& trim2, bool reverse) const {
  if (!expectWhole(trim1, trim2, reverse, "FcIndexedPolyCurve::curve2d") || !hasList(*this))
    return {};
  auto points = planarPoints();
  if (!points || !requireThat(*this, !points->empty(), "There is not point list defined."))
    return {};
  if (!Segments()) return Profile2D({std::move(*points)});
  IndexedCurvePoints<Point2d> walk(*points, *Segments(), params.curveDiscretization());
  if (walk.points().empty()) return {};
  return Profile2D({std::move(walk.points())}, {std::move(walk.softFlags())});
}

std::optional<std::vector<Point2d>> FcIndexedPolyCurve::curve2d(const FcParams& params,
                                                                const Trim& trim1,
                                                                const Trim& trim2,
                                                                bool reverse) const {
  auto profile = closed2dCurveWithEdgeInformation(params, trim1, trim2, reverse);
  if (!profile) return {};
  return std::move(profile->contours().front());
}

std::optional<std::vector<Point2d>> FcIndexedPolyCurve::closedCurve2dGet(
    const FcParams& params) const {
  if (!isClosed()) return {};
  auto points = curve2d(params, {}, {}, false);
  if (points && points->size() > 1 && points->front().isNear(points->back())) points->pop_back();
  return points;
}

/// Without asking whether there is a list.
std::vector<Point3d> FcIndexedPolyCurve::computedPoints(const FcParams& params) const {
  auto points = Points()->points();
  if (!Segments()) return points;
  return std::move(
      IndexedCurvePoints<Point3d>(points, *Segments(), params.curveDiscretization()).points());
}

std::vector<Point3d> FcIndexedPolyCurve::curveGet(const FcParams& params, const Trim& trim1,
                                                  const Trim& trim2, bool reverse) const {
  if (!expectWhole(trim1, trim2, reverse, "FcIndexedPolyCurve::curveGet") || !hasList(*this))
    return {};
  return computedPoints(params);
}

std::vector<std::pair<double, FcCurve::ParameterType>> FcIndexedPolyCurve::parametricSegments()
    const {
  if (!hasList(*this)) return {};
  std::vector<std::pair<double, ParameterType>> result;
  if (!Segments()) {
    const auto count = static_cast<double>(Points()->size());
    return {{std::max(0.0, count - 1), ParameterType::length}};
  }
  for (const FcSegmentIndexSelect& segment : *Segments()) {
    const auto extent = parametricSegment(*Points(), segment);
    if (!requireThat(*this, extent.has_value(), "Invalid IfcIndexedPolyCurve")) return {};
    result.push_back(*extent);
  }
  return result;
}

void FcIndexedPolyCurve::draw(const FcDrawParams& params) const {
  if (hasList(*this)) drawPolylineOrPolygonFromPoints(computedPoints(FcParams(params)), params);
}

void FcIndexedPolyCurve::transform(const Matrix& matrix) {
  if (!Points()) return;
  if (!is2d() || matrix.isOnly2dTransformation()) {
    Points()->transform(matrix);
    return;
  }
  auto points = Points()->points();
  for (Point3d& point : points) point = point * matrix;
  auto list = makeEntity<FcCartesianPointList3D>();
  list->setPoints(points);
  setPoints(std::move(list));
}

}  // namespace qor::fc::resource::geometry
