#include "Fc/Resource/GeometricModel/FcBooleanResult.h"

#include <TopoDS_Shape.hxx>
#include <algorithm>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>

#include "Fc/ComplexGeometry/BooleanOperations.h"
#include "Fc/ComplexGeometry/Bridge/ConversionGuard.h"
#include "Fc/ComplexGeometry/DifferenceTools.h"
#include "Fc/ComplexGeometry/DrawByProcessor.h"
#include "Fc/FcParams.h"
#include "Fc/Resource/Report.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::geometricmodel {
namespace {

using Shapes = std::vector<TopoDS_Shape>;
using Types = FcBooleanOperand::Types;
constexpr std::size_t kMinSegments = 6, kMaxSegments = 20;

FcParams booleanParams(const FcParams& params) {
  FcParams coarser = params;
  math::CurveDiscretization& circles = coarser.curveDiscretization();
  circles.setMinMaxSegmentsOfFullCircle(std::min(circles.minSegmentsOfFullCircle(), kMinSegments),
                                        std::min(circles.maxSegmentsOfFullCircle(), kMaxSegments));
  return coarser;
}

// Reports an operand that the operation can't work on. `which` is "First" or "Second".
bool isSupported(bool supported, const std::string& which, const std::string& operation) {
  if (!supported) {
    report(which + " operand of boolean " + operation +
               " operation has type which is not supported for " + operation + " operations",
           "qor::fc::resource::geometricmodel::FcBooleanResult::ocRepresentation", __LINE__);
  }
  return supported;
}

bool hasEnd(const FcBooleanOperand& operand) {
  return operand.isSet() && !operand.isHalfSpaceSolid();
}

bool operandsFit(const FcBooleanResult& result, const char* operation, bool mayCutWithHalfSpace) {
  return isSupported(hasEnd(result.FirstOperand()), "First", operation) &&
         isSupported(
             mayCutWithHalfSpace ? result.SecondOperand().isSet() : hasEnd(result.SecondOperand()),
             "Second", operation);
}

// The operation by its operator, with what each makes.
template <class Result, class Difference, class Intersection, class Union>
Result byOperator(const FcBooleanResult& result, const Difference& difference,
                  const Intersection& intersection, const Union& unite) {
  switch (result.Operator()) {
    case FcBooleanOperator::DIFFERENCE:
      return operandsFit(result, "difference", true) ? difference() : Result{};
    case FcBooleanOperator::INTERSECTION:
      return operandsFit(result, "intersection", false) ? intersection() : Result{};
    case FcBooleanOperator::UNION:
      return operandsFit(result, "union", false) ? unite() : Result{};
  }
  throw std::runtime_error(
      "Assertion failed in FcBooleanResult::ocRepresentation: unknown boolean operator");
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
  report("An item is part of itself",
         "qor::fc::resource::geometricmodel::FcBooleanResult::ocRepresentation", __LINE__);
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
      report("Skipping a ifc clipping operation because the second operand was invalid.",
             "qor::fc::resource::geometricmodel::FcBooleanResult::ocRepresentationOfDifference",
             __LINE__);
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

void FcBooleanResult::draw(const FcDrawParams& params) const {
  drawByProcessor(*this, params, "qor::fc::resource::geometricmodel::FcBooleanResult::draw");
}

void FcBooleanResult::transform(const math::Matrix& matrix) {
  for (FcBooleanOperand* operand : {&m_FirstOperand, &m_SecondOperand})
    if (const auto item = operand->asGeometricRepresentationItemNonConst()) item->transform(matrix);
}

std::optional<math::Extent> FcBooleanResult::boundingBox(const FcParams& params) const {
  using Box = std::optional<math::Extent>;
  const ConversionGuard guard(this);
  if (!guard.mayEnter()) return {};
  const auto first = [&] { return FirstOperand().boundingBox(params); };
  const auto both = [&](math::Extent (math::Extent::*combine)(const math::Extent&) const) -> Box {
    const Box a = first(), b = SecondOperand().boundingBox(params);
    if (!a || !b) return {};
    return ((*a).*combine)(*b);
  };
  return byOperator<Box>(
      *this, first, [&] { return both(&math::Extent::intersectWith); },
      [&] { return both(&math::Extent::uniteWith); });
}

Shapes FcBooleanResult::ocRepresentation(const FcParams& params) const {
  const ConversionGuard guard(this);
  if (!guard.mayEnter()) return {};
  return byOperator<Shapes>(
      *this, [&] { return difference(*this, params); },
      [&] { return pairwise(*this, params, commonOfShapes); },
      [&] { return pairwise(*this, params, fuseShapes); });
}

void FcBooleanResult::forEachPresentationStyle(
    const std::function<void(const presentationappearance::FcPresentationStyle&)>& callback) const {
  const ConversionGuard guard(this);
  if (!guard.mayEnter()) return;
  if (const auto* first = fcCast<geometry::FcRepresentationItem>(FirstOperand().getEntity()))
    first->forEachPresentationStyle(callback);
  FcGeometricRepresentationItem::forEachPresentationStyle(callback);
}

}  // namespace qor::fc::resource::geometricmodel
