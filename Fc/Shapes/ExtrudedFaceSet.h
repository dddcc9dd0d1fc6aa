#pragma once

#include <vector>

#include "Qor/Draw/PolygonalFaceSetOpenGL.h"
#include "Qor/Draw/Profile2D.h"
#include "Qor/Math/Vector.h"
#include "Qor/Platform/Export.h"

namespace qor::fc::resource::geometricmodel {

/// The body between a profile in the XY plane and the same profile moved by `extrusion`: bottom,
/// sides, top. The profile has a counter-clockwise outer ring, clockwise holes and a point at
/// least. When the extrusion goes down, its contours and flags are turned round in place, so that
/// the body faces outward all the same.
QOR_API generate::draw::PolygonalFaceSetOpenGL extrudedFaceSet(generate::draw::Profile2D& profile,
                                                               const math::Vector3d& extrusion);

/// The body between a profile in the XY plane and another one moved by `extrusion`, whose contours
/// and points pair one to one. Sides follow the contours of `end` and its edges. One set with sharp
/// edges, or, when there are soft faces, these as a set of their own and behind it the sharp ones,
/// both over the points of the whole body. Profiles are turned round as above.
QOR_API std::vector<generate::draw::PolygonalFaceSetOpenGL> taperedExtrudedFaceSets(
    generate::draw::Profile2D& start, generate::draw::Profile2D& end,
    const math::Vector3d& extrusion);

/// Contours and points of both pair one to one; an assert, under the name of `operation`, where
/// they don't.
QOR_API bool profilesPair(const generate::draw::Profile2D& start,
                          const generate::draw::Profile2D& end);

}  // namespace qor::fc::resource::geometricmodel
