#include "Fc/ComplexGeometry/Bridge/BooleanOperations.h"

#include <BOPAlgo_BOP.hxx>
#include <BRepAlgoAPI_Common.hxx>
#include <BRepAlgoAPI_Fuse.hxx>
#include <BRep_Tool.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <functional>
#include <string>

#include "Fc/HelperFunctionsOC.h"

namespace qor::fc {
namespace {

/// Throws `Standard_OutOfRange` for a shape with a vertex that is no place in a model: an operation
/// on it would go on for ever.
void expectVerticesWithinReach(const TopoDS_Shape& shape) {
  if (shape.IsNull()) return;
  for (TopExp_Explorer vertices(shape, TopAbs_VERTEX); vertices.More(); vertices.Next()) {
    const gp_Pnt at = BRep_Tool::Pnt(TopoDS::Vertex(vertices.Current()));
    expectWithinReach(math::Point3d(at.X(), at.Y(), at.Z()));
  }
}

TopoDS_Shape guardedBoolean(const std::string& name, const std::function<TopoDS_Shape()>& make) {
  return tryOpenCascadeConstruction<TopoDS_Shape>(
      make, "OpenCascade boolean '" + name + "' operation failed.",
      "OpenCascade boolean '" + name +
          "' operation did not fail, but the resulting shape is Null.");
}

}  // namespace

TopoDS_Shape cutShapes(const std::vector<TopoDS_Shape>& arguments,
                       const std::vector<TopoDS_Shape>& tools, double fuzzyValue) {
  return guardedBoolean("cut", [&]() -> TopoDS_Shape {
    BOPAlgo_BOP operation;
    operation.SetOperation(BOPAlgo_CUT);
    operation.SetFuzzyValue(fuzzyValue);
    for (const TopoDS_Shape& argument : arguments) {
      expectVerticesWithinReach(argument);
      if (!argument.IsNull()) operation.AddArgument(argument);
    }
    for (const TopoDS_Shape& tool : tools) {
      expectVerticesWithinReach(tool);
      if (!tool.IsNull()) operation.AddTool(tool);
    }
    operation.Perform();
    return operation.HasErrors() ? TopoDS_Shape() : operation.Shape();
  });
}

TopoDS_Shape commonOfShapes(const TopoDS_Shape& a, const TopoDS_Shape& b) {
  return guardedBoolean("common", [&]() -> TopoDS_Shape {
    expectVerticesWithinReach(a);
    expectVerticesWithinReach(b);
    return BRepAlgoAPI_Common(a, b).Shape();
  });
}

TopoDS_Shape fuseShapes(const TopoDS_Shape& a, const TopoDS_Shape& b) {
  return guardedBoolean("fuse", [&]() -> TopoDS_Shape {
    expectVerticesWithinReach(a);
    expectVerticesWithinReach(b);
    return BRepAlgoAPI_Fuse(a, b).Shape();
  });
}

}  // namespace qor::fc
