#include "Fc/Resource/GeometricModel/FcManifoldSolidBrep.h"

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Topology/FcClosedShell.h"
#include "Fc/Resource/Topology/MovedPoints.h"

namespace qor::fc::resource::geometricmodel {

void FcManifoldSolidBrep::draw(const FcDrawParams& params) const {
  if (m_Outer)
    params->drawConstRepresentationItem(m_Outer, params, generate::draw::SurfaceDrawType::Surface);
  else
    report(*this, "Outer should exist");
}

void FcManifoldSolidBrep::transform(const math::Matrix& matrix) {
  if (m_Outer)
    m_Outer->transform(matrix);
  else
    report(*this, "Outer should exist");
}

void FcManifoldSolidBrep::transformWithVoids(
    const std::vector<std::shared_ptr<topology::FcClosedShell>>& voids,
    const math::Matrix& matrix) {
  const topology::MovedPoints moved;
  FcManifoldSolidBrep::transform(matrix);
  for (const auto& shell : voids)
    if (shell) shell->transform(matrix);
}

std::optional<math::Extent> FcManifoldSolidBrep::boundingBox(const FcParams& params) const {
  return m_Outer ? m_Outer->boundingBox(params) : std::nullopt;
}

}  // namespace qor::fc::resource::geometricmodel
