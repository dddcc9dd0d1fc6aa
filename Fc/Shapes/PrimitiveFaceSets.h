#pragma once

#include <cstddef>
#include <vector>

#include "Qor/Draw/PolygonalFaceSetOpenGL.h"
#include "Qor/Draw/TriangulatedFaceSetOpenGL.h"
#include "Qor/Math/Point.h"
#include "Qor/Platform/Export.h"

/// The closed bodies of the CSG primitives in their own frames, in metres, facing outward. Sizes
/// are positive.
namespace qor::fc::resource::geometricmodel {

/// From the origin to (x, y, z): 8 points, 6 faces.
QOR_API generate::draw::PolygonalFaceSetOpenGL blockFaceSet(double x, double y, double z);

/// A base from the origin to (x, y, 0) with the apex over its centre: 5 points, 5 faces.
QOR_API generate::draw::PolygonalFaceSetOpenGL pyramidFaceSet(double x, double y, double height);

/// The triangles from the edges of a ring to the apex, which comes behind the ring's points. They
/// face outward for a ring that runs clockwise seen from the apex; the ring itself then closes
/// them.
QOR_API generate::draw::TriangulatedFaceSetOpenGL coneMantle(std::vector<math::Point3d> ring,
                                                             const math::Point3d& apex);

/// From a counter-clockwise ring at height 0 upwards: bottom, top and a soft side, with the
/// coordinates of an image that is wrapped around it once.
QOR_API generate::draw::PolygonalFaceSetOpenGL cylinderFaceSet(std::vector<math::Point2d> ring,
                                                               double height);

/// `segments` bands of latitude with as many segments of longitude each, around the origin; normals
/// point away from it. A triangle for each segment at the poles, two elsewhere. Empty for no
/// segments.
QOR_API generate::draw::TriangulatedFaceSetOpenGL sphereFaceSet(double radius,
                                                                std::size_t segments);

}  // namespace qor::fc::resource::geometricmodel
