#include "Fc/Resource/Topology/FcEdgeCurve.h"

#include <utility>

#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcCurve.h"
#include "Fc/Resource/Geometry/FcTrimmingSelect.h"

namespace qor::fc::resource::topology {

using geometry::FcTrimmingSelect;

bool FcEdgeCurve::getPoints2d(std::vector<math::Point2d>& points, const FcParams& params) const {
  const auto start = pointOf(m_EdgeStart);
  const auto end = pointOf(m_EdgeEnd);
  if (!start || !end || !m_EdgeGeometry) return false;
  if (start->Coordinates().size() != 2 || end->Coordinates().size() != 2) return false;
  auto curve =
      m_EdgeGeometry->curve2d(params, FcTrimmingSelect(start), FcTrimmingSelect(end), !m_SameSense);
  if (!curve) return false;
  points = std::move(*curve);
  return true;
}

std::vector<math::Point3d> FcEdgeCurve::getPoints3d(const FcParams& params) const {
  const auto start = pointOf(m_EdgeStart);
  const auto end = pointOf(m_EdgeEnd);
  if (!start || !end || !m_EdgeGeometry) return {};
  return m_EdgeGeometry->curveGet(params, FcTrimmingSelect(start), FcTrimmingSelect(end),
                                  !m_SameSense);
}

}  // namespace qor::fc::resource::topology
