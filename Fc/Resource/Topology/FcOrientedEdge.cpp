#include "Fc/Resource/Topology/FcOrientedEdge.h"

#include <algorithm>

namespace qor::fc::resource::topology {

namespace {

/// An element that is oriented itself contradicts the schema and could lead round in a circle.
const FcEdge* plainEdge(const std::shared_ptr<FcEdge>& element) {
  return fcCast<FcOrientedEdge>(element.get()) ? nullptr : element.get();
}

}  // namespace

bool FcOrientedEdge::getPoints2d(std::vector<math::Point2d>& points, const FcParams& params) const {
  const FcEdge* edge = plainEdge(m_EdgeElement);
  if (!edge || !edge->getPoints2d(points, params)) return false;
  if (!m_Orientation) std::reverse(points.begin(), points.end());
  return true;
}

std::vector<math::Point3d> FcOrientedEdge::getPoints3d(const FcParams& params) const {
  const FcEdge* edge = plainEdge(m_EdgeElement);
  if (!edge) return {};
  std::vector<math::Point3d> points = edge->getPoints3d(params);
  if (!m_Orientation) std::reverse(points.begin(), points.end());
  return points;
}

}  // namespace qor::fc::resource::topology
