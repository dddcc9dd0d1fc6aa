#include "Fc/Resource/GeometricModel/FcFaceBasedSurfaceModel.h"

#include "Fc/FcDrawParams.h"
#include "Fc/Resource/BoxUnion.h"
#include "Fc/Resource/Report.h"
#include "Fc/Resource/Topology/FcConnectedFaceSet.h"
#include "Fc/Resource/Topology/MovedPoints.h"

namespace qor::fc::resource::geometricmodel {

void FcFaceBasedSurfaceModel::draw(const FcDrawParams& params) const {
  for (const auto& faces : m_FbsmFaces) {
    if (faces)
      params->drawConstRepresentationItem(faces, params, generate::draw::SurfaceDrawType::Surface);
    else
      report("Expect to have a valid connected face set",
             "qor::fc::resource::geometricmodel::FcFaceBasedSurfaceModel::draw", __LINE__);
  }
}

void FcFaceBasedSurfaceModel::transform(const math::Matrix& matrix) {
  const topology::MovedPoints moved;
  for (const auto& faces : m_FbsmFaces) {
    if (faces)
      faces->transform(matrix);
    else
      report("Expect to have a valid connected face set",
             "qor::fc::resource::geometricmodel::FcFaceBasedSurfaceModel::transform", __LINE__);
  }
}

std::optional<math::Extent> FcFaceBasedSurfaceModel::boundingBox(const FcParams& params) const {
  return unitedBox(m_FbsmFaces, params);
}

}  // namespace qor::fc::resource::geometricmodel
