#pragma once

#include <optional>
#include <vector>

#include "Qor/Draw/PolygonalFaceSetOpenGL.h"
#include "Qor/Draw/Profile2D.h"
#include "Qor/Math/Matrix.h"
#include "Qor/Math/Plane.h"
#include "Qor/Platform/Export.h"

namespace qor::fc::resource::geometricmodel {

/// The plane that halves the corner a-b-c of a path: a swept section is cut there so that two legs
/// meet without a gap. It goes through b. Empty when the legs are parallel within the length
/// tolerance of their unit vectors: nothing to cut, or the path folds back on itself.
QOR_API std::optional<math::_3d::Plane> mitrePlane(const math::Point3d& a, const math::Point3d& b,
                                                   const math::Point3d& c);

/// The frame of a section on the leg from `p` to `q`: origin at `p`, Z along the leg, X the part of
/// `reference` that is perpendicular to it. A reference along the leg gives way to the X axis, and
/// that to the Y axis.
QOR_API math::Matrix sectionFrame(const math::Point3d& p, const math::Point3d& q,
                                  const math::Vector3d& reference);

/// The body that a profile sweeps along a path of straight legs, with a counter-clockwise outer
/// ring and clockwise holes; its section at the start is placed by `sectionFrame` and carried along
/// the legs from one mitre plane to the next. Where the path runs straight on there is no ring. An
/// open path has a bottom and a top. A closed one, whose last point repeats its first, has neither;
/// its last ring lies where its first one does. `frame` is applied to all points at the end.
///
/// Points that repeat the one before them (length tolerance) are passed over. Nothing, with an
/// assert, for a path of fewer than two points, fewer than two different ones, or a closed one of
/// fewer than three; nothing for a path with a coordinate that isn't finite. Linear in the number
/// of path points times profile points.
QOR_API std::optional<generate::draw::PolygonalFaceSetOpenGL> sweptAlongPath(
    const generate::draw::Profile2D& profile, const std::vector<math::Point3d>& path,
    const math::Vector3d& reference, const std::optional<math::Matrix>& frame, bool closed);

}  // namespace qor::fc::resource::geometricmodel
