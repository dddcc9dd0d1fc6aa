#pragma once

#include <memory>
#include <vector>

#include "Fc/FcParams.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcCircle.h"
#include "Fc/Resource/Geometry/FcDirection.h"
#include "Fc/Resource/Geometry/FcLine.h"
#include "Fc/Resource/Geometry/FcPolyline.h"
#include "Fc/Resource/Geometry/FcTrimmingSelect.h"
#include "Fc/Resource/Geometry/FcVector.h"
#include "Tests/Fc/Geometry/DrawRecorder.h"
#include "Tests/Support/Make.h"

// What tests of geometry say often.
namespace qor::fc::resource::geometry {

/// 72 segments on every circle.
inline const FcParams params{math::CurveDiscretization(0, 72, 72)};

using Points2d = std::vector<math::Point2d>;
using Points3d = std::vector<math::Point3d>;

inline FcTrimmingSelect at(double parameter) {
  return FcTrimmingSelect(measure::FcParameterValue(parameter));
}
inline FcTrimmingSelect at(const math::Point3d& point) {
  return FcTrimmingSelect(makePoint(point));
}

/// Closed by one entity at both ends, when it shall be.
template <class Point>
std::shared_ptr<FcPolyline> polyline(const std::vector<Point>& points, bool close = false) {
  auto result = std::make_shared<FcPolyline>();
  result->setPoints(points, close);
  return result;
}

inline std::shared_ptr<FcCircle> circle(double radius, const math::Matrix& position = {}) {
  return test::make<FcCircle>({{"Radius", radius}, {"Position", makePlacement(position)}});
}

/// The vector in metres, one for each unit of the parameter.
inline std::shared_ptr<FcLine> line(const math::Point3d& point, const math::Vector3d& vector) {
  auto direction = std::make_shared<FcVector>();
  direction->setVector(vector, 3);
  return test::make<FcLine>({{"Pnt", makePoint(point)}, {"Dir", direction}});
}

inline Points3d pointsOf(const FcCurve& curve) { return curve.curveGet(params, {}, {}, false); }

inline double lengthOf(const Points3d& points) {
  double length = 0;
  for (std::size_t i = 1; i < points.size(); ++i) length += points[i].distance(points[i - 1]);
  return length;
}

/// The polylines and polygons that an item draws.
struct RecordedLines {
  explicit RecordedLines(const FcRepresentationItem& item) {
    test::DrawRecorder target(params.curveDiscretization());
    target.draw(item);
    for (const auto& drawn : target.polylines) polylines.push_back(drawn.what);
    for (const auto& drawn : target.polygons) polygons.push_back(drawn.what);
  }

  std::vector<Points3d> polylines;
  std::vector<std::vector<Points3d>> polygons;
};

/// The greatest distance between two points at the same place in the lists; infinite for lists of
/// different lengths.
template <typename Point>
double deviation(const std::vector<Point>& a, const std::vector<Point>& b) {
  if (a.size() != b.size()) return INFINITY;
  double result = 0;
  for (std::size_t i = 0; i < a.size(); ++i) result = std::max(result, a[i].distance(b[i]));
  return result;
}

/// The greatest difference between any two numbers of the matrices.
inline double deviation(const math::Matrix& a, const math::Matrix& b) {
  return std::max({(a.x() - b.x()).length(), (a.y() - b.y()).length(), (a.z() - b.z()).length(),
                   (a.origin() - b.origin()).length()});
}

}  // namespace qor::fc::resource::geometry
