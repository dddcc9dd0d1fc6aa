#include "Fc/Resource/GeometricModel/FcCartesianPointList2D.h"

#include "Fc/Model/Report.h"

namespace qor::fc::resource::geometricmodel {

using math::Point2d;
using math::Point3d;

std::vector<Point2d> FcCartesianPointList2D::points2d() const {
  std::vector<Point2d> result(size());
  for (std::size_t i = 0; i < size(); ++i) result[i] = point2d(i);
  return result;
}

std::vector<Point3d> FcCartesianPointList2D::points() const {
  std::vector<Point3d> result(size());
  for (std::size_t i = 0; i < size(); ++i) result[i] = FcCartesianPointList2D::point(i);
  return result;
}

void FcCartesianPointList2D::setPoints(const std::vector<Point2d>& points) {
  m_CoordList.resize(points.size());
  for (std::size_t i = 0; i < points.size(); ++i) m_CoordList[i] = {points[i].x, points[i].y};
}

void FcCartesianPointList2D::pushBackPoint(const Point2d& point) {
  m_CoordList.push_back({point.x, point.y});
}

void FcCartesianPointList2D::transform(const math::Matrix& matrix) {
  if (!matrix.isOnly2dTransformation())
    report(*this, "transformation is not purely 2d, may lose information when applying it");
  for (std::size_t i = 0; i < size(); ++i) {
    const Point3d moved = FcCartesianPointList2D::point(i) * matrix;
    m_CoordList[i] = {moved.x, moved.y};
  }
}

}  // namespace qor::fc::resource::geometricmodel
