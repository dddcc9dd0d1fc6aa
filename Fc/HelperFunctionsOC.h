#pragma once

#include <Standard_OutOfRange.hxx>
#include <TopoDS_Shape.hxx>
#include <TopoDS_Solid.hxx>
#include <TopoDS_Wire.hxx>
#include <cmath>
#include <functional>
#include <gp_Ax3.hxx>
#include <gp_Dir.hxx>
#include <gp_Pnt.hxx>
#include <gp_Vec.hxx>
#include <string>
#include <vector>

#include "Qor/Math/Matrix.h"
#include "Qor/Platform/Export.h"

namespace qor::fc {

// Open CASCADE tells of failures by exceptions of its own and divides by zero where the input is
// bad. What uses it goes through the functions here, so that neither leaves this library.

/// What `construct` makes, or a null shape: with an assert of `failureMessage` when Open CASCADE
/// throws, of `nullMessage` when it makes nothing. Exceptions of other kinds pass. A floating-point
/// signal that the host has enabled stays off meanwhile. For `TopoDS_Shape` and `TopoDS_Solid`.
template <class Shape>
QOR_API Shape tryOpenCascadeConstruction(const std::function<Shape()>& construct,
                                         const std::string& failureMessage,
                                         const std::string& nullMessage);
extern template TopoDS_Shape tryOpenCascadeConstruction(const std::function<TopoDS_Shape()>&,
                                                        const std::string&, const std::string&);
extern template TopoDS_Solid tryOpenCascadeConstruction(const std::function<TopoDS_Solid()>&,
                                                        const std::string&, const std::string&);

/// Runs `work` under the same guard: false, with an assert of `failureMessage`, when Open CASCADE
/// throws.
QOR_API bool guardOpenCascade(const std::function<void()>& work, const std::string& failureMessage);

/// Moves the shape into the frame. A frame of unit axes costs nothing, whatever the shape's size:
/// only its location changes. A mirror or a scaling makes a copy of the geometry that faces outward
/// as before. An assert and no change when the axes span no frame.
QOR_API void transformOpenCascadeShape(TopoDS_Shape& shape, const math::Matrix& matrix);

/// The closed ring of straight edges through the points, in metres; two neighbours at one place are
/// one vertex. An assert and a null wire when there is no edge.
QOR_API TopoDS_Wire getClosedWireFromPoints(const std::vector<math::Point3d>& points);

/// Metres. What lies farther out along an axis is no place in a model, and sends searches of Open
/// CASCADE on for ever.
constexpr double farthestCoordinate = 1e9;
/// Throws `Standard_OutOfRange` for a point beyond `farthestCoordinate` and for one of no numbers.
inline void expectWithinReach(const math::Point3d& point) {
  for (const double coordinate : {point.x, point.y, point.z})
    if (!(std::abs(coordinate) <= farthestCoordinate))
      throw Standard_OutOfRange("A coordinate is no place in a model");
}
/// As `expectWithinReach` for points that are no place.
inline gp_Pnt toOpenCascade(const math::Point3d& point) {
  expectWithinReach(point);
  return {point.x, point.y, point.z};
}
inline gp_Vec toOpenCascade(const math::Vector3d& vector) { return {vector.x, vector.y, vector.z}; }
/// Throws `Standard_Failure` for a vector without length.
inline gp_Dir toOpenCascadeDirection(const math::Vector3d& vector) {
  return {vector.x, vector.y, vector.z};
}
/// The frame of a matrix; a mirror turns its Y direction round. Throws `Standard_Failure` when the
/// X and Z axis span none.
QOR_API gp_Ax3 toOpenCascadeFrame(const math::Matrix& matrix);

}  // namespace qor::fc
