#include "Fc/Resource/GeometricModel/FcPolygonalBoundedHalfSpace.h"

#include <algorithm>
#include <cmath>

#include "Fc/FcParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Geometry/FcBoundedCurve.h"
#include "Fc/Resource/Geometry/FcSurface.h"
#include "Qor/Math/Epsilon.h"
#include "Qor/Math/Plane.h"

namespace qor::fc::resource::geometricmodel {
void FcPolygonalBoundedHalfSpace::transform(const math::Matrix& matrix) {
  if (!BaseSurface() || !PolygonalBoundary()) {
    report(*this,
           "Assertion failed in FcBoxedHalfSpace::transform: expect both, BaseSurface and "
           "PolygonalBoundary to be given");
    return;
  }
  BaseSurface()->transform(matrix);
  math::Matrix frame = validPosition() * matrix;
  if (matrix.isMirror()) {
    const math::Matrix mirror = math::Matrix::createScale(-1, 1, 1);
    frame = mirror * frame;
    PolygonalBoundary()->transform(mirror);
  }
  setPosition(geometry::makePlacement(frame));
}

math::Matrix FcPolygonalBoundedHalfSpace::validPosition() const {
  if (Position()) return Position()->placementGet();
  report(
      *this,
      "Position() of polygonal boundary is not set. Will assume standard coordinate system now.");
  return {};
}

std::optional<FcPolygonalBoundedHalfSpace::OcRepresentationData>
FcPolygonalBoundedHalfSpace::setupOcRepresentationData() const {
  const auto halfSpace = FcHalfSpaceSolid::setupOcRepresentationData();
  if (!halfSpace) return {};
  const math::Matrix boundary = validPosition();
  math::Vector3d extrusion = boundary.z();
  const double intoMaterial = extrusion.dot(halfSpace->vector);
  const double tolerance = math::Epsilon::current().general;
  if (std::abs(intoMaterial) <= tolerance) {
    report(*this, "Polygons extrusion direction can't be parallel to the half space surface.");
    return {};
  }
  if (intoMaterial < 0) extrusion = extrusion * -1;
  return OcRepresentationData{extrusion, boundary, halfSpace->point, halfSpace->vector};
}

double FcPolygonalBoundedHalfSpace::depthThrough(const math::Extent& box) const {
  const auto frame = materialFrame();
  if (!frame) return 0;
  const math::Vector3d along =
      Position() ? Position()->placementGet().z() : math::Vector3d(0, 0, 1);
  const double intoMaterial = std::abs(along.dot(frame->z()));
  if (intoMaterial <= math::Epsilon::current().general) return 0;
  return std::max(0.0, box.transformExtent(frame->inverse()).maximum().z) / intoMaterial;
}

// The polygon moved along the prism onto the plane. Empty, with an assert, without a polygon.
std::vector<math::Point3d> FcPolygonalBoundedHalfSpace::polygonOnPlane(
    const OcRepresentationData& data, const FcParams& params) const {
  if (!PolygonalBoundary()) {
    report(*this, "Expect PolygonalBoundary() to be set.");
    return {};
  }
  const auto polygon = PolygonalBoundary()->closedCurve2dGet(params);
  if (!polygon) return {};
  std::vector<math::Point3d> points = data.boundary.transform(*polygon);
  const math::_3d::Plane plane(data.point, data.vector);
  for (math::Point3d& point : points) {
    if (const auto projected = plane.projectAlongVectorEitherDirection(point, data.extrusion))
      point = *projected;
  }
  return points;
}

}  // namespace qor::fc::resource::geometricmodel
