#include "Fc/Resource/GeometricModel/FcExtrudedAreaSolidTapered.h"

#include <utility>

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/FcParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/GeometricModel/TaperedProfiles.h"
#include "Fc/Resource/Geometry/FcDirection.h"
#include "Fc/Resource/Profile/FcProfileDef.h"
#include "Fc/Shapes/ExtrudedFaceSet.h"

namespace qor::fc::resource::geometricmodel {

using generate::draw::PolygonalFaceSetOpenGL;
using generate::draw::Profile2D;
using math::Vector3d;

bool FcExtrudedAreaSolidTapered::isReadyToDraw() const {
  if (!hasDepth("Depth should be a positive distance") || !hasSweptArea()) return false;
  if (!EndSweptArea()) {
    report(*this, "End swept area should exist");
    return false;
  }
  return hasDirection();
}

std::vector<std::vector<PolygonalFaceSetOpenGL>> FcExtrudedAreaSolidTapered::faceSets(
    const FcParams& params) const {
  std::vector<std::vector<PolygonalFaceSetOpenGL>> bodies;
  if (!isReadyToDraw()) return bodies;
  auto profiles = taperedProfiles(*SweptArea(), *EndSweptArea(), params);
  if (!profiles) return bodies;
  const Vector3d extrusion = ExtrudedDirection()->vector().normalized() * Depth();
  for (std::size_t i = 0; i < profiles->start.size(); ++i) {
    Profile2D& start = profiles->start[i];
    Profile2D& end = profiles->end[i];
    if (!profilesPair(start, end) || start.empty() || start.contours().front().empty()) continue;
    bodies.push_back(faceSetFromExtrudedTapered(start, end, extrusion));
  }
  return bodies;
}

void FcExtrudedAreaSolidTapered::draw(const FcDrawParams& params) const {
  auto bodies = faceSets(FcParams(params));
  if (bodies.empty()) return;
  const generate::draw::TransformationGuard guard(params);
  applyPosition(params);
  for (auto& body : bodies)
    for (PolygonalFaceSetOpenGL& set : body) params->polygonalFaceSet(std::move(set));
}

std::vector<PolygonalFaceSetOpenGL> FcExtrudedAreaSolidTapered::faceSetFromExtrudedTapered(
    Profile2D& start, Profile2D& end, const Vector3d& extrusion) {
  return taperedExtrudedFaceSets(start, end, extrusion);
}

std::optional<math::Extent> FcExtrudedAreaSolidTapered::boundingBox(const FcParams& params) const {
  if (!isReadyToDraw()) return std::nullopt;
  const auto start = SweptArea()->planarBox(params);
  const auto end = EndSweptArea()->planarBox(params);
  if (!start || !end) return std::nullopt;
  return boxOfExtruded(start->uniteWith(*end));
}

void FcExtrudedAreaSolidTapered::transformProfiles(const math::Matrix2d& matrix) {
  if (EndSweptArea()) EndSweptArea()->transform2d(matrix);
  if (EndSweptArea() != SweptArea())
    FcExtrudedAreaSolidTaperedAttributes::transformProfiles(matrix);
}

}  // namespace qor::fc::resource::geometricmodel
