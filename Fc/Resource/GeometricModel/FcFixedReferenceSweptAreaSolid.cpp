#include "Fc/Resource/GeometricModel/FcFixedReferenceSweptAreaSolid.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/FcParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Geometry/FcCurve.h"
#include "Fc/Resource/Geometry/FcDirection.h"
#include "Fc/Resource/Profile/FcProfileDef.h"
#include "Fc/Shapes/DirectrixSweep.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::geometricmodel {

using generate::draw::PolygonalFaceSetOpenGL;
using generate::draw::Profile2D;
using math::Extent;
using math::Extent2d;
using math::Point3d;
using math::Vector3d;

namespace {

/// Around the ends of a leg, each moved by all four or eight offsets that the lists span.
void includeWithOffsets(Extent& box, const Point3d& p, const Point3d& q, const Vector3d& least,
                        const Vector3d& greatest) {
  for (const Point3d& point : {p, q}) {
    box.include(point + least);
    box.include(point + greatest);
  }
}

/// Around the body on one leg.
void includeLeg(Extent& box, const Point3d& p, const Point3d& q, const Extent2d& profile,
                bool referenceAlongX) {
  const double tolerance = math::Epsilon::current().length;
  const bool upright = std::abs(q.x - p.x) <= tolerance && std::abs(q.y - p.y) <= tolerance;
  if (upright && referenceAlongX) {
    includeWithOffsets(box, p, q, {profile.minimum().x, profile.minimum().y, 0},
                       {profile.maximum().x, profile.maximum().y, 0});
    return;
  }
  const double reach =
      std::hypot(std::max(std::abs(profile.minimum().x), std::abs(profile.maximum().x)),
                 std::max(std::abs(profile.minimum().y), std::abs(profile.maximum().y)));
  includeWithOffsets(box, p, q, {-reach, -reach, -reach}, {reach, reach, reach});
}

}  // namespace

bool FcFixedReferenceSweptAreaSolid::isReadyToDraw() const {
  return requireThat(*this, Directrix() != nullptr, "Directrix should exist") &&
         requireThat(*this, SweptArea() != nullptr, "Swept area should exist");
}

Vector3d FcFixedReferenceSweptAreaSolid::reference() const {
  return FixedReference() ? FixedReference()->vector().normalized() : Vector3d();
}

void FcFixedReferenceSweptAreaSolid::draw(const FcDrawParams& params) const {
  for (PolygonalFaceSetOpenGL& set : generateFaceSet(FcParams(params)))
    params->polygonalFaceSet(std::move(set));
}

std::vector<PolygonalFaceSetOpenGL> FcFixedReferenceSweptAreaSolid::generateFaceSet(
    const FcParams& params) const {
  std::vector<PolygonalFaceSetOpenGL> result;
  if (!isReadyToDraw()) return result;
  expectThat(*this, !EndParam().isSet(), "End param not implemented");
  expectThat(*this, !StartParam().isSet(), "Start param not implemented");
  const auto profiles = SweptArea()->closedProfileWithEnforcedOrientation(params, true);
  if (profiles.empty()) return result;
  const std::vector<Point3d> path = Directrix()->curveGet(params, {}, {}, false);
  if (path.empty()) return result;
  const bool closed = Directrix()->isClosed(params);
  const auto frame = Position() ? std::optional(Position()->placementGet()) : std::nullopt;
  for (const Profile2D& profile : profiles)
    if (auto set = generateFaceSet(profile, path, reference(), frame, closed))
      result.push_back(std::move(*set));
  return result;
}

std::optional<PolygonalFaceSetOpenGL> FcFixedReferenceSweptAreaSolid::generateFaceSet(
    const Profile2D& profile, const std::vector<Point3d>& path, const Vector3d& reference,
    const std::optional<math::Matrix>& frame, bool closed) {
  return sweptAlongPath(profile, path, reference, frame, closed);
}

std::optional<Extent> FcFixedReferenceSweptAreaSolid::boundingBox(const FcParams& params) const {
  if (!isReadyToDraw()) return std::nullopt;
  const auto planarBox = SweptArea()->planarBox(params);
  if (!planarBox) return std::nullopt;
  const std::vector<Point3d> path = Directrix()->curveGet(params, {}, {}, false);
  const bool referenceAlongX = reference().isParallel({1, 0, 0});
  Extent box;
  for (std::size_t i = 1; i < path.size(); ++i)
    includeLeg(box, path[i - 1], path[i], *planarBox, referenceAlongX);
  if (!box.isValid()) return std::nullopt;
  return Position() ? box.transformExtent(Position()->placementGet()) : box;
}

}  // namespace qor::fc::resource::geometricmodel
