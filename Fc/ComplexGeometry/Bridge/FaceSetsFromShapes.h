#pragma once

#include <TopoDS_Shape.hxx>
#include <vector>

#include "Qor/Draw/PolygonalFaceSetOpenGL.h"
#include "Qor/Math/CurveDiscretization.h"
#include "Qor/Platform/Export.h"

namespace qor::fc {

/// The faces of each shape as a set that a target draws: a planar face as one polygon with holes,
/// any other as triangles, which leave it by no more than the chord value of the discretization.
/// All look outward. Points within the length tolerance of each other are one.
///
/// Null and empty shapes, and those without faces, give no set. A face, or a whole shape, that
/// can't be meshed is reported and left out. Without a positive chord value the angle between
/// neighbouring triangles alone, half a radian, decides.
QOR_API std::vector<generate::draw::PolygonalFaceSetOpenGL> faceSetsFromShapes(
    const std::vector<TopoDS_Shape>& shapes, const math::CurveDiscretization& discretization);

}  // namespace qor::fc
