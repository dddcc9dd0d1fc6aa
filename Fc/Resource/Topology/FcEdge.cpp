#include "Fc/Resource/Topology/FcEdge.h"

#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Topology/FcVertexPoint.h"
#include "Qor/Assert/Exception.h"

namespace qor::fc::resource::topology {

using geometry::FcCartesianPoint;

bool FcEdge::getPoints2d(std::vector<math::Point2d>& points, const FcParams& /*params*/) const {
  const auto start = pointOf(m_EdgeStart);
  const auto end = pointOf(m_EdgeEnd);
  if (!start || !end) return false;
  if (start->Coordinates().size() != 2 || end->Coordinates().size() != 2) return false;
  points = {{start->Coordinates()[0], start->Coordinates()[1]},
            {end->Coordinates()[0], end->Coordinates()[1]}};
  return true;
}

std::vector<math::Point3d> FcEdge::getPoints3d(const FcParams& /*params*/) const {
  std::vector<math::Point3d> points;
  for (const auto& vertex : {m_EdgeStart, m_EdgeEnd}) {
    const auto point = pointOf(vertex);
    if (!point) return {};
    const auto& at = point->Coordinates();
    points.emplace_back(at[0], at[1], at[2]);
  }
  return points;
}

std::shared_ptr<FcCartesianPoint> FcEdge::pointOf(const std::shared_ptr<FcVertex>& vertex) {
  if (!vertex) return nullptr;
  const auto* vertexPoint = fcCast<FcVertexPoint>(vertex.get());
  if (!vertexPoint) throw qor::exception("Not of correct type");
  if (!vertexPoint->VertexGeometry()) return nullptr;
  auto point = fcCast<FcCartesianPoint>(vertexPoint->VertexGeometry());
  if (!point) throw qor::exception("Not of correct type");
  return point;
}

}  // namespace qor::fc::resource::topology
