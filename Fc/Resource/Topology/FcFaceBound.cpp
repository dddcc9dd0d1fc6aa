#include "Fc/Resource/Topology/FcFaceBound.h"

#include <algorithm>

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/FcParams.h"
#include "Fc/Resource/Topology/FcLoop.h"
#include "Fc/Resource/Topology/MovedPoints.h"

namespace qor::fc::resource::topology {

void FcFaceBound::draw(const FcDrawParams& params) const {
  const FcParams evaluation(params);
  std::vector<std::vector<math::Point2d>> flat(1);
  if (getPoints2d(flat[0], evaluation)) {
    params->vPolygon(flat);
    return;
  }
  const std::vector<std::vector<math::Point3d>> loops{getPoints3d(evaluation)};
  if (!loops[0].empty()) params->vPolygon(loops);
}

void FcFaceBound::transform(const math::Matrix& matrix) {
  const MovedPoints moved;
  if (m_Bound) m_Bound->transform(matrix);
}

std::optional<math::Extent> FcFaceBound::boundingBox(const FcParams& params) const {
  return m_Bound ? m_Bound->boundingBox(params) : std::nullopt;
}

bool FcFaceBound::getPoints2d(std::vector<math::Point2d>& points,
                              const FcParams& /*params*/) const {
  if (!m_Bound || !m_Bound->boPoints2dGet(points)) return false;
  if (!m_Orientation) std::reverse(points.begin(), points.end());
  return true;
}

std::vector<math::Point3d> FcFaceBound::getPoints3d(const FcParams& params) const {
  if (!m_Bound) return {};
  std::vector<math::Point3d> points = m_Bound->points3dGet(params);
  if (!m_Orientation) std::reverse(points.begin(), points.end());
  return points;
}

}  // namespace qor::fc::resource::topology
