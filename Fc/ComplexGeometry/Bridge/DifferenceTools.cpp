#include "Fc/ComplexGeometry/Bridge/DifferenceTools.h"

#include <algorithm>

#include "Fc/ComplexGeometry/Bridge/BodyMeasures.h"
#include "Fc/Resource/GeometricModel/FcPolygonalBoundedHalfSpace.h"
#include "Fc/Resource/Geometry/FcRepresentationItem.h"

namespace qor::fc {
namespace {

using resource::geometricmodel::FcBooleanOperand;
using resource::geometricmodel::FcPolygonalBoundedHalfSpace;

}  // namespace

DifferenceTools::DifferenceTools(const FcBooleanOperand& base,
                                 const std::vector<TopoDS_Shape>& shapes, const FcParams& params)
    : m_params(params), m_told(base.boundingBox(params)), m_reach(boxAround(shapes)) {
  if (m_told) m_reach = m_reach.uniteWith(*m_told);
}

DifferenceTools::Tool DifferenceTools::of(const FcBooleanOperand& operand) const {
  Tool tool;
  if (const auto* bounded = fcCast<FcPolygonalBoundedHalfSpace>(operand.getEntity())) {
    if (m_told && m_told->isValid()) {
      tool.isAway = bounded->isAwayFrom(m_reach);
      const double depth = std::max(m_reach.size().length(), bounded->depthThrough(m_reach));
      if (!tool.isAway) tool.shapes = bounded->ocPrismForClipping(depth, m_params);
    }
  } else if (operand.isHalfSpaceSolid()) {
    const auto halfSpace = operand.HalfSpaceSolidAssert();
    if (halfSpace) {
      tool.isAway = halfSpace->isAwayFrom(m_reach);
      if (!tool.isAway) tool.shapes = {halfSpace->prismOver(m_reach)};
    }
  } else {
    tool.shapes = operand.ocRepresentation(m_params);
  }
  std::erase_if(tool.shapes, [](const TopoDS_Shape& shape) { return shape.IsNull(); });
  return tool;
}

}  // namespace qor::fc
