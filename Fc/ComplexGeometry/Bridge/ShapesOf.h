#pragma once

#include <TopoDS_Shape.hxx>
#include <vector>

// The forms of the classes that have one, as shapes: what `ocRepresentation` of such an item gives.
namespace qor::fc {

class FcParams;

using Shapes = std::vector<TopoDS_Shape>;

namespace resource::geometry {
class FcMappedItem;

/// Those of the map in place; nothing unless there are both map and target.
Shapes shapesOf(const FcMappedItem& item, const FcParams& params);
}  // namespace resource::geometry

namespace resource::geometricmodel {
class FcBlock;
class FcBooleanResult;
class FcBoundingBox;
class FcCsgSolid;
class FcExtrudedAreaSolid;
class FcExtrudedAreaSolidTapered;
class FcFaceBasedSurfaceModel;
class FcHalfSpaceSolid;
class FcManifoldSolidBrep;
class FcPolygonalFaceSet;
class FcRectangularPyramid;
class FcRevolvedAreaSolid;
class FcRightCircularCone;
class FcRightCircularCylinder;
class FcShellBasedSurfaceModel;
class FcSphere;
class FcTriangulatedFaceSet;

/// Nothing, with an assert, for a length that isn't positive.
Shapes shapesOf(const FcBlock& item, const FcParams& params);
/// A chain of differences is evaluated as its innermost operand cut by all tools, the outermost
/// first. Operands that don't fit are reported, and give nothing. A step that fails is reported and
/// gives a null shape, which ends a chain. Throws `std::runtime_error` for an operator that is
/// none.
Shapes shapesOf(const FcBooleanResult& item, const FcParams& params);
/// The box as a block.
Shapes shapesOf(const FcBoundingBox& item, const FcParams& params);
/// Those of the root of the tree; nothing without one.
Shapes shapesOf(const FcCsgSolid& item, const FcParams& params);
/// A solid for each area of the profile; a null shape for one that fails, with an assert. Nothing,
/// with an assert, without a positive depth, a profile and a direction.
Shapes shapesOf(const FcExtrudedAreaSolid& item, const FcParams& params);
/// A solid for each pair of areas, with the flat sides that are drawn; one that doesn't close is
/// left out, with an assert. Otherwise as for an extrusion of one profile.
Shapes shapesOf(const FcExtrudedAreaSolidTapered& item, const FcParams& params);
/// Those of all sets, in order.
Shapes shapesOf(const FcFaceBasedSurfaceModel& item, const FcParams& params);
/// One solid without end; nothing, with an assert, when the base surface isn't a plane.
Shapes shapesOf(const FcHalfSpaceSolid& item, const FcParams& params);
/// That of the outer shell, without voids; nothing, with an assert, without one.
Shapes shapesOf(const FcManifoldSolidBrep& item, const FcParams& params);
/// One shape, null when it can't be made: a solid when the faces close, else a shell, or a compound
/// of such. A face off its plane by more than the length tolerance is reported and left out.
Shapes shapesOf(const FcPolygonalFaceSet& item, const FcParams& params);
/// Nothing, with an assert, for a length that isn't positive.
Shapes shapesOf(const FcRectangularPyramid& item, const FcParams& params);
/// A solid for each area of the profile; a null shape for one that fails, with an assert. Nothing,
/// with an assert, without a profile and an axis in its plane.
Shapes shapesOf(const FcRevolvedAreaSolid& item, const FcParams& params);
/// Exact; a null shape, with an assert, for sizes that make no cone.
Shapes shapesOf(const FcRightCircularCone& item, const FcParams& params);
/// Exact; a null shape, with an assert, for sizes that make no cylinder.
Shapes shapesOf(const FcRightCircularCylinder& item, const FcParams& params);
/// Those of all shells, in order.
Shapes shapesOf(const FcShellBasedSurfaceModel& item, const FcParams& params);
/// Exact; a null shape, with an assert, for a radius that isn't positive.
Shapes shapesOf(const FcSphere& item, const FcParams& params);
/// One shape, null when it can't be made: a solid when the faces close, else a shell, or a compound
/// of such. A triangle without area is reported and left out.
Shapes shapesOf(const FcTriangulatedFaceSet& item, const FcParams& params);
}  // namespace resource::geometricmodel

namespace resource::topology {
class FcConnectedFaceSet;

/// One shape of all faces: a solid when they close, else a shell, or a compound of such. A face
/// that can't be made is reported and left out.
Shapes shapesOf(const FcConnectedFaceSet& item, const FcParams& params);
}  // namespace resource::topology

}  // namespace qor::fc
