#include "Fc/Resource/Topology/MovedPoints.h"

#include <optional>
#include <unordered_set>

#include "Fc/Resource/Geometry/FcCartesianPoint.h"

namespace qor::fc::resource::topology {

namespace {

thread_local std::optional<std::unordered_set<const geometry::FcCartesianPoint*>> movedPoints;

}  // namespace

MovedPoints::MovedPoints() : m_outermost(!movedPoints) {
  if (m_outermost) movedPoints.emplace();
}

MovedPoints::~MovedPoints() {
  if (m_outermost) movedPoints.reset();
}

void MovedPoints::move(geometry::FcCartesianPoint& point, const math::Matrix& matrix) {
  if (movedPoints->insert(&point).second) point.transform(matrix);
}

}  // namespace qor::fc::resource::topology
