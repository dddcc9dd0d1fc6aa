// Boolean results for the solid modeller.

#include <TopoDS_Shape.hxx>
#include <algorithm>
#include <set>
#include <vector>

#include "Fc/ComplexGeometry/Bridge/BooleanOperations.h"
#include "Fc/ComplexGeometry/Bridge/DifferenceTools.h"
#include "Fc/ComplexGeometry/Bridge/ShapesOf.h"
#include "Fc/ComplexGeometry/ExpensiveTool.h"
#include "Fc/FcParams.h"
#include "Fc/Model/Nesting.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/GeometricModel/BooleanOperators.h"
#include "Fc/Resource/GeometricModel/FcBooleanResult.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::geometricmodel {
namespace {

constexpr std::size_t kMinSegments = 6, kMaxSegments = 20;

FcParams booleanParams(const FcParams& params) {
  FcParams coarser = params;
  math::CurveDiscretization& circles = coarser.curveDiscretization();
  circles.setMinMaxSegmentsOfFullCircle(std::min(circles.minSegmentsOfFullCircle(), kMinSegments),
                                        std::min(circles.maxSegmentsOfFullCircle(), kMaxSegments));
  return coarser;
}

/// A chain of differences, taken apart: ((A - B) - C) is A without C and B.
struct Chain {
  const FcBooleanOperand* base = nullptr;  // null when an operand in the chain isn't set
  std::vector<const FcBooleanOperand*> tools;
};

Chain chainOf(const FcBooleanResult& outermost) {
  Chain chain;
  std::set<const FcBooleanResult*> visited;
  const FcBooleanResult* result = &outermost;
  while (visited.insert(result).second) {
    const FcBooleanOperand& first = result->FirstOperand();
    if (!first.isSet()) return {};
    if (result->SecondOperand().isSet()) chain.tools.push_back(&result->SecondOperand());
    chain.base = &first;
    const auto* inner = fcCast<FcBooleanResult>(first.getEntity());
    if (!inner || inner->Operator() != FcBooleanOperator::DIFFERENCE) return chain;
    result = inner;
  }
  report("An item is part of itself");
  return {};
}

Shapes difference(const FcBooleanResult& result, const FcParams& params) {
  const Chain chain = chainOf(result);
  if (!chain.base) return {};
  const FcParams coarser = booleanParams(params);
  Shapes shapes = chain.base->ocRepresentation(coarser);
  if (shapes.empty()) return {};
  const DifferenceTools tools(*chain.base, shapes, coarser);
  const double fuzzyValue = std::min(0.001, math::Epsilon::current().length);
  const auto isNull = [](const TopoDS_Shape& shape) { return shape.IsNull(); };
  for (const FcBooleanOperand* operand : chain.tools) {
    if (params.skipExpensiveClipping && isExpensiveTool(*operand)) continue;
    if (std::all_of(shapes.begin(), shapes.end(), isNull)) return {};
    const DifferenceTools::Tool tool = tools.of(*operand);
    if (tool.isAway) continue;
    if (tool.shapes.empty()) {
      report("Skipping a ifc clipping operation because the second operand was invalid.");
      continue;
    }
    shapes = {cutShapes(shapes, tool.shapes, fuzzyValue)};
  }
  return shapes;
}

// The operation of the shapes of both operands, one by one.
Shapes pairwise(const FcBooleanResult& result, const FcParams& params,
                TopoDS_Shape (*operation)(const TopoDS_Shape&, const TopoDS_Shape&)) {
  const FcParams coarser = booleanParams(params);
  const Shapes first = result.FirstOperand().ocRepresentation(coarser);
  const Shapes second = result.SecondOperand().ocRepresentation(coarser);
  if (first.size() != second.size()) return {};
  Shapes shapes;
  for (std::size_t i = 0; i < first.size(); ++i)
    if (!first[i].IsNull() && !second[i].IsNull()) shapes.push_back(operation(first[i], second[i]));
  return shapes;
}

}  // namespace

Shapes shapesOf(const FcBooleanResult& item, const FcParams& params) {
  const Nesting nesting(Nesting::Kind::conversion, item);
  if (!nesting) return {};
  return byOperator<Shapes>(
      item, [&] { return difference(item, params); },
      [&] { return pairwise(item, params, commonOfShapes); },
      [&] { return pairwise(item, params, fuseShapes); });
}

}  // namespace qor::fc::resource::geometricmodel
