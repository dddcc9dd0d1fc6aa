#include "Fc/Resource/GeometricModel/FcShellBasedSurfaceModel.h"

#include <utility>

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/Resource/BoxUnion.h"
#include "Fc/Resource/Topology/FcConnectedFaceSet.h"
#include "Fc/Resource/Topology/MovedPoints.h"

namespace qor::fc::resource::geometricmodel {

using generate::draw::PolygonalFaceSetOpenGL;

void FcShellBasedSurfaceModel::draw(const FcDrawParams& params) const {
  if (auto faceSet = generatePolygonalFaceSet()) {
    params->polygonalFaceSet(std::move(*faceSet));
    return;
  }
  for (const topology::FcShell& shell : m_SbsmBoundary) shell.draw(params);
}

void FcShellBasedSurfaceModel::transform(const math::Matrix& matrix) {
  const topology::MovedPoints moved;
  for (const topology::FcShell& shell : m_SbsmBoundary) shell.transform(matrix);
}

std::optional<math::Extent> FcShellBasedSurfaceModel::boundingBox(const FcParams& params) const {
  std::vector<std::shared_ptr<topology::FcConnectedFaceSet>> shells;
  shells.reserve(m_SbsmBoundary.size());
  for (const topology::FcShell& shell : m_SbsmBoundary) shells.push_back(shell.connectedFaceSet());
  return unitedBox(shells, params);
}

std::optional<PolygonalFaceSetOpenGL> FcShellBasedSurfaceModel::generatePolygonalFaceSet() const {
  PolygonalFaceSetOpenGL result;
  topology::PointIndices indices;
  for (const topology::FcShell& shell : m_SbsmBoundary) {
    const auto faces = shell.connectedFaceSet();
    if (!faces || !faces->appendTo(result, indices)) return std::nullopt;
  }
  return result;
}

}  // namespace qor::fc::resource::geometricmodel
