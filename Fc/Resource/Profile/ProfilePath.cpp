#include "Fc/Resource/Profile/ProfilePath.h"

#include "Fc/Reflection/MakeEntity.h"

namespace qor::fc::resource::profile {

ProfilePath::ProfilePath(double x, double y) : m_curve(makeEntity<geometry::FcIndexedPolyCurve>()) {
  m_curve->startAt({x, y});
}

ProfilePath& ProfilePath::line(double dx, double dy) {
  m_curve->lineTo({dx, dy});
  return *this;
}

ProfilePath& ProfilePath::closeWithLine() {
  m_curve->closeWithLine();
  return *this;
}

ProfilePath& ProfilePath::arc(double radius, double x, double y, bool counterClockwise) {
  if (radius > 0) m_curve->arcTo({x * radius, y * radius}, radius, counterClockwise);
  return *this;
}

std::shared_ptr<geometry::FcIndexedPolyCurve> ProfilePath::placedAt(
    const math::Matrix2d& position) const {
  if (!position.isIdentity()) m_curve->transform(position.toMatrix3d());
  return m_curve;
}

}  // namespace qor::fc::resource::profile
