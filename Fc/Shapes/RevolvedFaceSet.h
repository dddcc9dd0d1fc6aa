#pragma once

#include <optional>

#include "Qor/Draw/PolygonalFaceSetOpenGL.h"
#include "Qor/Draw/Profile2D.h"
#include "Qor/Math/CurveDiscretization.h"
#include "Qor/Math/Matrix.h"
#include "Qor/Platform/Export.h"

namespace qor::fc::resource::geometricmodel {

/// A line in the plane of a profile. The direction has length 1.
struct RevolutionAxis {
  math::Point2d location{};
  math::Vector2d direction{0, 1};
};

/// The body that a profile in the XY plane, with a counter-clockwise outer ring and clockwise
/// holes, sweeps when it turns right-handed around the axis by `angle`, 0 to 2π. As many rings as
/// an arc of the profile's greatest radius has segments. A full turn joins the last ring to the
/// first; anything less has a bottom and a top. Faces outward whichever side of the axis the
/// profile lies.
///
/// Nothing for an empty outer ring, for coordinates that aren't finite and, with an assert, for a
/// ring that lies on the axis. An assert for a profile that the axis cuts in two, which is swept
/// all the same.
QOR_API std::optional<generate::draw::PolygonalFaceSetOpenGL> revolvedFaceSet(
    const generate::draw::Profile2D& profile, const RevolutionAxis& axis, double angle,
    const math::CurveDiscretization& discretization);

/// The same from one profile to another, whose contours and points pair one to one: each point
/// moves straight to its partner as the turn goes on. Always has a bottom and a top. Nothing also
/// when the discretization gives no segments.
QOR_API std::optional<generate::draw::PolygonalFaceSetOpenGL> taperedRevolvedFaceSet(
    const generate::draw::Profile2D& start, const generate::draw::Profile2D& end,
    const RevolutionAxis& axis, double angle, const math::CurveDiscretization& discretization);

/// The matrix that turns points in space right-handed around the axis.
QOR_API math::Matrix turnAround(const RevolutionAxis& axis, double angle);

/// In metres, 0 for no points.
QOR_API double orthogonalDistanceToFurthestPointInPolygon(
    const RevolutionAxis& axis, const std::vector<math::Point2d>& polygon);

}  // namespace qor::fc::resource::geometricmodel
