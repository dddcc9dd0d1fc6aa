#include "Fc/Resource/PresentationDefinition/FcAnnotationFillArea.h"

#include <utility>

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/FcParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/FcCurve.h"

namespace qor::fc::resource::presentationdefinition {

using geometry::FcCurve;

namespace {

/// The points of a closed curve without a repeated end; fewer than three for one that encloses
/// nothing.
std::vector<math::Point3d> ringOf(const FcCurve& curve, const FcParams& params) {
  std::vector<math::Point3d> points = curve.curveGet(params, {}, {}, false);
  if (points.size() > 1 && points.front().isNear(points.back())) points.pop_back();
  return points;
}

}  // namespace

void FcAnnotationFillArea::draw(const FcDrawParams& params) const {
  if (!m_OuterBoundary) {
    report(*this, "Outer boundary not set");
    return;
  }
  const FcParams evaluation(params);
  std::vector<std::vector<math::Point3d>> rings{ringOf(*m_OuterBoundary, evaluation)};
  if (rings[0].size() < 3) return;
  if (m_InnerBoundaries) {
    for (const auto& boundary : *m_InnerBoundaries) {
      if (!boundary) continue;
      auto ring = ringOf(*boundary, evaluation);
      if (ring.size() >= 3) rings.push_back(std::move(ring));
    }
  }
  params->vPolygon(rings);
}

void FcAnnotationFillArea::transform(const math::Matrix& matrix) {
  if (m_OuterBoundary) m_OuterBoundary->transform(matrix);
  if (!m_InnerBoundaries) return;
  for (const auto& boundary : *m_InnerBoundaries)
    if (boundary) boundary->transform(matrix);
}

std::optional<math::Extent> FcAnnotationFillArea::boundingBox(const FcParams& params) const {
  return m_OuterBoundary ? m_OuterBoundary->boundingBox(params) : std::nullopt;
}

std::optional<math::Extent2d> FcAnnotationFillArea::planarBox(const FcParams& params) const {
  return m_OuterBoundary ? m_OuterBoundary->planarBox(params) : std::nullopt;
}

}  // namespace qor::fc::resource::presentationdefinition
