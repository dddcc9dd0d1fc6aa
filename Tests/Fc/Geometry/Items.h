#pragma once

#include <memory>
#include <vector>

#include "Fc/FcParams.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcDirection.h"
#include "Fc/Resource/Geometry/FcPolyline.h"
#include "Fc/Resource/Geometry/FcTrimmingSelect.h"

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

inline std::shared_ptr<FcPolyline> polyline(const Points2d& points, bool close = false) {
  auto result = std::make_shared<FcPolyline>();
  result->setPoints(points, close);
  return result;
}
inline std::shared_ptr<FcPolyline> polyline(const Points3d& points, bool close = false) {
  auto result = std::make_shared<FcPolyline>();
  result->setPoints(points, close);
  return result;
}

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
