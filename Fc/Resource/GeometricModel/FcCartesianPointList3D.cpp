#include "Fc/Resource/GeometricModel/FcCartesianPointList3D.h"

namespace qor::fc::resource::geometricmodel {

using math::Point3d;

std::vector<Point3d> FcCartesianPointList3D::points() const {
  std::vector<Point3d> result(size());
  for (std::size_t i = 0; i < size(); ++i) result[i] = FcCartesianPointList3D::point(i);
  return result;
}

void FcCartesianPointList3D::setPoints(const std::vector<Point3d>& points) {
  m_CoordList.resize(points.size());
  for (std::size_t i = 0; i < points.size(); ++i)
    m_CoordList[i] = {points[i].x, points[i].y, points[i].z};
}

void FcCartesianPointList3D::pushBackPoint(const Point3d& point) {
  m_CoordList.push_back({point.x, point.y, point.z});
}

void FcCartesianPointList3D::transform(const math::Matrix& matrix) {
  for (std::size_t i = 0; i < size(); ++i) {
    const Point3d moved = FcCartesianPointList3D::point(i) * matrix;
    m_CoordList[i] = {moved.x, moved.y, moved.z};
  }
}

}  // namespace qor::fc::resource::geometricmodel
