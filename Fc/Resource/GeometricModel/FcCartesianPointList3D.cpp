#include "Fc/Resource/GeometricModel/FcCartesianPointList3D.h"

#include <utility>

namespace qor::fc::resource::geometricmodel {

using math::Point3d;

std::vector<Point3d> FcCartesianPointList3D::points() const {
  std::vector<Point3d> result(size());
  for (std::size_t i = 0; i < size(); ++i) result[i] = FcCartesianPointList3D::point(i);
  return result;
}

void FcCartesianPointList3D::setPoints(const std::vector<Point3d>& points) {
  m_lookup.reset();
  m_CoordList.resize(points.size());
  for (std::size_t i = 0; i < points.size(); ++i)
    m_CoordList[i] = {points[i].x, points[i].y, points[i].z};
}

void FcCartesianPointList3D::pushBackPoint(const Point3d& point) {
  m_CoordList.push_back({point.x, point.y, point.z});
}

measure::FcPositiveInteger FcCartesianPointList3D::addPoint(const Point3d& point) {
  if (!m_lookup) m_lookup = std::make_unique<CoordinateLookup>();
  return static_cast<std::int64_t>(m_lookup->findOrAppend(m_CoordList, point));
}

void FcCartesianPointList3D::setCoordList(CoordinateLookup::Coordinates value) {
  m_lookup.reset();
  FcCartesianPointList3DAttributes::setCoordList(std::move(value));
}

bool FcCartesianPointList3D::setLocalValue(LocalValue value, const object::PropertyId& id) {
  m_lookup.reset();
  return FcCartesianPointList3DAttributes::setLocalValue(std::move(value), id);
}

void FcCartesianPointList3D::transform(const math::Matrix& matrix) {
  m_lookup.reset();
  for (std::size_t i = 0; i < size(); ++i) {
    const Point3d moved = FcCartesianPointList3D::point(i) * matrix;
    m_CoordList[i] = {moved.x, moved.y, moved.z};
  }
}

}  // namespace qor::fc::resource::geometricmodel
