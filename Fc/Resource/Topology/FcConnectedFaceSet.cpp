#include "Fc/Resource/Topology/FcConnectedFaceSet.h"

#include <utility>

#include "Fc/Drawing/DrawByProcessor.h"
#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/BoxUnion.h"
#include "Fc/Resource/Topology/FcFace.h"
#include "Fc/Resource/Topology/MovedPoints.h"

namespace qor::fc::resource::topology {

using generate::draw::PolygonalFaceSetOpenGL;
using generate::draw::SurfaceDrawType;

void FcConnectedFaceSet::draw(const FcDrawParams& params) const {
  if (m_CfsFaces.size() == 1 && m_CfsFaces[0] && m_CfsFaces[0]->classId() == FcFace::firstClassId) {
    params->drawConstRepresentationItem(m_CfsFaces[0], params, SurfaceDrawType::Surface);
    return;
  }
  if (auto faceSet = generatePolygonalFaceSet())
    params->polygonalFaceSet(std::move(*faceSet));
  else
    drawByProcessor(*this, params);
}

void FcConnectedFaceSet::transform(const math::Matrix& matrix) {
  const MovedPoints moved;
  for (const auto& face : m_CfsFaces) {
    if (face)
      face->transform(matrix);
    else
      report(*this, "Expect to have a valid face");
  }
}

std::optional<math::Extent> FcConnectedFaceSet::boundingBox(const FcParams& params) const {
  return unitedBox(m_CfsFaces, params);
}

std::optional<PolygonalFaceSetOpenGL> FcConnectedFaceSet::generatePolygonalFaceSet() const {
  PolygonalFaceSetOpenGL result;
  PointIndices indices(m_CfsFaces.size() * 2);
  if (!appendTo(result, indices)) return std::nullopt;
  return result;
}

bool FcConnectedFaceSet::appendTo(PolygonalFaceSetOpenGL& faceSet, PointIndices& indices) const {
  faceSet.faces.reserve(faceSet.faces.size() + m_CfsFaces.size());
  for (const auto& face : m_CfsFaces) {
    if (!face) {
      report(*this, "Expect to have a valid face");
      continue;
    }
    auto indexed = face->generateIndexedFace(faceSet.coordinates, indices);
    if (!indexed) return false;
    faceSet.faces.push_back(std::move(*indexed));
  }
  return true;
}

}  // namespace qor::fc::resource::topology
