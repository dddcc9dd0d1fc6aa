#include "Fc/Resource/Topology/FcEdgeLoop.h"

#include "Fc/Resource/Topology/FcOrientedEdge.h"

namespace qor::fc::resource::topology {

std::vector<math::Point3d> FcEdgeLoop::points3dGet(const FcParams& params) const {
  std::vector<math::Point3d> points;
  for (const auto& edge : m_EdgeList) {
    if (!edge) continue;
    for (const math::Point3d& point : edge->getPoints3d(params))
      if (points.empty() || !points.back().isNear(point)) points.push_back(point);
  }
  if (points.size() > 1 && points.front().isNear(points.back())) points.pop_back();
  return points;
}

}  // namespace qor::fc::resource::topology
