#include "Fc/HelperFunctionsOC.h"

#include <BRepBuilderAPI_GTransform.hxx>
#include <BRepBuilderAPI_MakePolygon.hxx>
#include <BRepBuilderAPI_Transform.hxx>
#include <Precision.hxx>
#include <Standard_ConstructionError.hxx>
#include <Standard_Failure.hxx>
#include <TopLoc_Location.hxx>
#include <cfenv>
#include <cmath>
#include <cstddef>
#include <gp_GTrsf.hxx>
#include <gp_Mat.hxx>
#include <gp_Trsf.hxx>

#include "Fc/Model/Report.h"

namespace qor::fc {
namespace {

/// While it lives, a division by zero gives infinity, whatever the host has enabled.
class QuietFloatingPoint {
 public:
  QuietFloatingPoint() { std::feholdexcept(&m_saved); }
  QuietFloatingPoint(const QuietFloatingPoint&) = delete;
  QuietFloatingPoint& operator=(const QuietFloatingPoint&) = delete;
  ~QuietFloatingPoint() { std::fesetenv(&m_saved); }

 private:
  std::fenv_t m_saved;
};

bool nearlyEqual(double a, double b) { return std::abs(a - b) <= math::Epsilon::current().general; }

bool isUniform(const math::Matrix& matrix) {
  const double length = matrix.x().length();
  return matrix.isOrthogonal() && nearlyEqual(matrix.y().length(), length) &&
         nearlyEqual(matrix.z().length(), length);
}

bool isRigid(const math::Matrix& matrix) {
  return isUniform(matrix) && nearlyEqual(matrix.x().length(), 1) && !matrix.isMirror();
}

gp_Trsf moveInto(const math::Matrix& frame) {
  gp_Trsf move;
  move.SetTransformation(toOpenCascadeFrame(frame));
  move.Invert();
  return move;
}

// Without the points at the end that repeat the first one: a ring closes by an edge to its first
// vertex, and there is none between vertices at one place.
std::size_t ringSize(const std::vector<math::Point3d>& points) {
  std::size_t count = points.size();
  while (count > 1 && toOpenCascade(points[count - 1])
                          .IsEqual(toOpenCascade(points.front()), Precision::Confusion()))
    --count;
  return count;
}

bool isFlat(const math::Matrix& matrix) {
  return !(std::abs(matrix.x().cross(matrix.y()).dot(matrix.z())) > 0);
}

TopoDS_Shape copied(const TopoDS_Shape& shape, const math::Matrix& m) {
  const math::Vector3d x = m.x(), y = m.y(), z = m.z();
  const math::Point3d o = m.origin();
  if (isUniform(m)) {
    gp_Trsf similarity;
    similarity.SetValues(x.x, y.x, z.x, o.x, x.y, y.y, z.y, o.y, x.z, y.z, z.z, o.z);
    return BRepBuilderAPI_Transform(shape, similarity).Shape();
  }
  gp_GTrsf affine;
  affine.SetVectorialPart(gp_Mat(x.x, y.x, z.x, x.y, y.y, z.y, x.z, y.z, z.z));
  affine.SetTranslationPart(gp_XYZ(o.x, o.y, o.z));
  return BRepBuilderAPI_GTransform(shape, affine).Shape();
}

}  // namespace

template <class Shape>
Shape tryOpenCascadeConstruction(const std::function<Shape()>& construct,
                                 const std::string& failureMessage,
                                 const std::string& nullMessage) {
  const QuietFloatingPoint quiet;
  Shape shape;
  try {
    shape = construct();
  } catch (const Standard_Failure&) {
    report(failureMessage);
    return Shape();
  }
  if (shape.IsNull()) report(nullMessage);
  return shape;
}

template TopoDS_Shape tryOpenCascadeConstruction(const std::function<TopoDS_Shape()>&,
                                                 const std::string&, const std::string&);
template TopoDS_Solid tryOpenCascadeConstruction(const std::function<TopoDS_Solid()>&,
                                                 const std::string&, const std::string&);

bool guardOpenCascade(const std::function<void()>& work, const std::string& failureMessage) {
  const QuietFloatingPoint quiet;
  try {
    work();
    return true;
  } catch (const Standard_Failure&) {
    report(failureMessage);
    return false;
  }
}

void transformOpenCascadeShape(TopoDS_Shape& shape, const math::Matrix& matrix) {
  if (shape.IsNull() || matrix.isIdentity()) return;
  guardOpenCascade(
      [&] {
        if (isFlat(matrix)) throw Standard_ConstructionError();
        shape = isRigid(matrix) ? shape.Moved(TopLoc_Location(moveInto(matrix)))
                                : copied(shape, matrix);
      },
      "Could not perform OpenCascade Move operation");
}

TopoDS_Wire getClosedWireFromPoints(const std::vector<math::Point3d>& points) {
  TopoDS_Wire wire;
  guardOpenCascade(
      [&] {
        BRepBuilderAPI_MakePolygon polygon;
        for (std::size_t i = 0, count = ringSize(points); i < count; ++i)
          polygon.Add(toOpenCascade(points[i]));
        if (!polygon.IsDone()) {
          report("BRepBuilderAPI_MakePolygon was not successful.");
          return;
        }
        polygon.Close();
        wire = polygon.Wire();
      },
      "BRepBuilderAPI_MakePolygon was not successful.");
  return wire;
}

gp_Ax3 toOpenCascadeFrame(const math::Matrix& matrix) {
  gp_Ax3 frame(toOpenCascade(matrix.origin()), toOpenCascadeDirection(matrix.z()),
               toOpenCascadeDirection(matrix.x()));
  if (matrix.isMirror()) frame.YReverse();
  return frame;
}

}  // namespace qor::fc
