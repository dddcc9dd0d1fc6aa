#include "Fc/ComplexGeometry/Bridge/BooleanOperations.h"

#include <BOPAlgo_BOP.hxx>
#include <BRepAlgoAPI_Common.hxx>
#include <BRepAlgoAPI_Fuse.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Compound.hxx>
#include <algorithm>
#include <functional>
#include <iterator>
#include <optional>
#include <string>

#include "Fc/ComplexGeometry/Bridge/BodyMeasures.h"
#include "Fc/HelperFunctionsOC.h"
#include "Fc/Model/Report.h"

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

using Shapes = std::vector<TopoDS_Shape>;

bool isWithinReach(const TopoDS_Shape& shape) {
  try {
    expectVerticesWithinReach(shape);
    return true;
  } catch (const Standard_Failure&) {
    return false;
  }
}

bool isEmpty(const TopoDS_Shape& shape) { return !TopExp_Explorer(shape, TopAbs_VERTEX).More(); }

// But for more than any fuzzy value moves a corner.
bool isWithin(const math::Extent& inner, const math::Extent& outer) {
  constexpr double margin = 1e-3;  // metres
  const math::Vector3d around(margin, margin, margin);
  const math::Point3d low = outer.minimum() - around, high = outer.maximum() + around;
  const math::Point3d a = inner.minimum(), b = inner.maximum();
  return a.x >= low.x && a.y >= low.y && a.z >= low.z && b.x <= high.x && b.y <= high.y &&
         b.z <= high.z;
}

/// Cuts one body, and takes nothing for what is left of it that can't be.
class CheckedCut {
 public:
  CheckedCut(const Shapes& arguments, double fuzzyValue)
      : m_arguments(arguments),
        m_fuzzyValue(fuzzyValue),
        m_body(measuresOf(arguments)),
        m_box(boxAround(arguments)) {}

  // Null when no fuzzy value gives a result that can be right.
  TopoDS_Shape by(const Shapes& tools) const {
    const auto toolMeasures = measuresOf(tools);
    const math::Extent toolBox = boxAround(tools);
    double previous = -1;
    for (const double atLeast : {0.0, 1e-5, 1e-4}) {
      const double fuzzyValue = std::max(m_fuzzyValue, atLeast);
      if (fuzzyValue == previous) continue;
      previous = fuzzyValue;
      TopoDS_Shape result = cut(tools, fuzzyValue);
      if (result.IsNull() || !isSound(result, toolMeasures)) continue;
      if (!isEmpty(result) || isWithin(m_box, toolBox)) return result;
    }
    return {};
  }

 private:
  TopoDS_Shape cut(const Shapes& tools, double fuzzyValue) const {
    try {
      BOPAlgo_BOP operation;
      operation.SetOperation(BOPAlgo_CUT);
      operation.SetFuzzyValue(fuzzyValue);
      for (const TopoDS_Shape& argument : m_arguments) operation.AddArgument(argument);
      for (const TopoDS_Shape& tool : tools) operation.AddTool(tool);
      operation.Perform();
      return operation.HasErrors() ? TopoDS_Shape() : operation.Shape();
    } catch (const Standard_Failure&) {
      return {};
    }
  }

  bool isSound(const TopoDS_Shape& result, const std::optional<BodyMeasures>& tools) const {
    const auto left = measuresOf({result});
    if (!left || !isWithinTheBody(result)) return false;
    if (!m_body) return true;
    constexpr double slack = 1e-4;
    if (tools && left->area > (m_body->area + tools->area) * (1 + slack)) return false;
    if (!m_body->isClosed || m_body->volume <= 0) return true;
    if (!left->isClosed) return false;
    const double tolerance = m_body->volume * slack;
    const bool atLeast = !tools || !tools->isClosed || tools->volume <= 0 ||
                         left->volume >= m_body->volume - tools->volume - tolerance;
    return atLeast && left->volume >= -tolerance && left->volume <= m_body->volume + tolerance;
  }

  bool isWithinTheBody(const TopoDS_Shape& result) const {
    math::Extent corners;
    for (TopExp_Explorer vertices(result, TopAbs_VERTEX); vertices.More(); vertices.Next()) {
      const gp_Pnt at = BRep_Tool::Pnt(TopoDS::Vertex(vertices.Current()));
      corners.include({at.X(), at.Y(), at.Z()});
    }
    return !m_box.isValid() || !corners.isValid() || isWithin(corners, m_box);
  }

  const Shapes& m_arguments;
  double m_fuzzyValue;
  std::optional<BodyMeasures> m_body;
  math::Extent m_box;
};

TopoDS_Shape asOne(const Shapes& shapes) {
  if (shapes.size() == 1) return shapes.front();
  TopoDS_Compound compound;
  const BRep_Builder builder;
  builder.MakeCompound(compound);
  for (const TopoDS_Shape& shape : shapes) builder.Add(compound, shape);
  return compound;
}

// A tool that no cut by itself takes is passed over, with an assert.
TopoDS_Shape cutOneByOne(const Shapes& arguments, const Shapes& tools, double fuzzyValue) {
  Shapes body = arguments;
  for (const TopoDS_Shape& tool : tools) {
    const TopoDS_Shape left =
        isWithinReach(tool) ? CheckedCut(body, fuzzyValue).by({tool}) : TopoDS_Shape();
    if (left.IsNull())
      report("OpenCascade boolean 'cut' operation failed. The body stays uncut by this tool.");
    else
      body = {left};
  }
  return asOne(body);
}

Shapes withoutNull(const Shapes& shapes) {
  Shapes result;
  std::copy_if(shapes.begin(), shapes.end(), std::back_inserter(result),
               [](const TopoDS_Shape& shape) { return !shape.IsNull(); });
  return result;
}

}  // namespace

TopoDS_Shape cutShapes(const Shapes& arguments, const Shapes& tools, double fuzzyValue) {
  return guardedBoolean("cut", [&]() -> TopoDS_Shape {
    const Shapes body = withoutNull(arguments), cutters = withoutNull(tools);
    for (const TopoDS_Shape& argument : body) expectVerticesWithinReach(argument);
    if (std::all_of(cutters.begin(), cutters.end(), isWithinReach)) {
      const TopoDS_Shape left = CheckedCut(body, fuzzyValue).by(cutters);
      if (!left.IsNull()) return left;
    }
    return cutOneByOne(body, cutters, fuzzyValue);
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
