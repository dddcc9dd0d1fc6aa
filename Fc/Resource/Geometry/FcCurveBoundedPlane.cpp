#include "Fc/Resource/Geometry/FcCurveBoundedPlane.h"

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/FcParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Geometry/FcCurve.h"
#include "Fc/Resource/Geometry/FcPlane.h"

namespace qor::fc::resource::geometry {

void FcCurveBoundedPlane::draw(const FcDrawParams& params) const {
  const auto loops = rings(FcParams(params));
  if (!loops.empty()) params->vPolygon(loops);
}

std::optional<math::Extent> FcCurveBoundedPlane::boundingBox(const FcParams& params) const {
  const auto loops = rings(params);
  if (loops.empty()) return std::nullopt;
  const auto box = math::Extent::ofPoints(loops[0]);
  return box.isValid() ? std::optional(box) : std::nullopt;
}

std::vector<std::vector<math::Point3d>> FcCurveBoundedPlane::rings(const FcParams& params) const {
  const char* missing = !m_BasisSurface    ? "Basis surface not set"
                        : !m_OuterBoundary ? "Outer boundary not set"
                        : !m_BasisSurface->Position()
                            ? "Invalid FcCurveBoundedPlane. Missing surface position."
                            : nullptr;
  if (missing) {
    report(*this, missing);
    return {};
  }
  const math::Matrix frame = m_BasisSurface->Position()->placementGet();
  const auto outer = m_OuterBoundary->closedCurve2dGet(params);
  if (!outer || outer->empty()) return {};
  std::vector<std::vector<math::Point3d>> result{frame.transform(*outer)};
  for (const auto& boundary : m_InnerBoundaries) {
    if (!boundary) continue;
    const auto hole = boundary->closedCurve2dGet(params);
    if (hole && !hole->empty()) result.push_back(frame.transform(*hole));
  }
  return result;
}

}  // namespace qor::fc::resource::geometry
