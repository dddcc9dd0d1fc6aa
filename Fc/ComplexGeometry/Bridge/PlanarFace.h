#pragma once

#include <TopoDS_Face.hxx>
#include <TopoDS_Wire.hxx>
#include <optional>
#include <vector>

#include "Qor/Math/Point.h"
#include "Qor/Math/Vector.h"
#include "Qor/Platform/Export.h"

namespace qor::fc {

/// The face within `outer` and outside each of `holes`, which may run either way round. Null when
/// no surface holds the outer wire, or none but a plane where `onlyPlane` asks for one.
///
/// Open CASCADE takes a hole that runs like the outer wire for more material; so each is turned the
/// other way first. Throws `Standard_Failure`.
TopoDS_Face faceWithin(const TopoDS_Wire& outer, const std::vector<TopoDS_Wire>& holes,
                       bool onlyPlane);

/// Twice the area that a wire goes round, as a vector on whose side it runs counter-clockwise. That
/// of the polygon through its vertices: without direction for a wire of fewer than three edges.
math::Vector3d areaVector(const TopoDS_Wire& wire);

/// Raises the tolerance of each edge, and of its vertices, to `tolerance` where it is lower.
void raiseTolerance(const TopoDS_Wire& wire, double tolerance);

}  // namespace qor::fc
