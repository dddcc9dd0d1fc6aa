#include "Fc/Resource/GeometricModel/FcFaceBasedSurfaceModel.h"

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/BoxUnion.h"
#include "Fc/Resource/Topology/FcConnectedFaceSet.h"
#include "Fc/Resource/Topology/MovedPoints.h"

namespace qor::fc::resource::geometricmodel {

void FcFaceBasedSurfaceModel::draw(const FcDrawParams& params) const {
  for (const auto& faces : m_FbsmFaces) {
    if (faces)
      params->drawConstRepresentationItem(faces, params, generate::draw::SurfaceDrawType::Surface);
    else
      report(*this, "Expect to have a valid connected face set");
  }
}

void FcFaceBasedSurfaceModel::transform(const math::Matrix& matrix) {
  const topology::MovedPoints moved;
  for (const auto& faces : m_FbsmFaces) {
    if (faces)
      faces->transform(matrix);
    else
      report(*this, "Expect to have a valid connected face set");
  }
}

std::optional<math::Extent> FcFaceBasedSurfaceModel::boundingBox(const FcParams& params) const {
  return unitedBox(m_FbsmFaces, params);
}

}  // namespace qor::fc::resource::geometricmodel
