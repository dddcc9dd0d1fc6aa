#include "Fc/ComplexGeometry/Bridge/DifferenceTools.h"

#include <BRepBndLib.hxx>
#include <Bnd_Box.hxx>
#include <algorithm>

#include "Fc/HelperFunctionsOC.h"
#include "Fc/Resource/GeometricModel/FcPolygonalBoundedHalfSpace.h"
#include "Fc/Resource/Geometry/FcRepresentationItem.h"

namespace qor::fc {
namespace {

using resource::geometricmodel::FcBooleanOperand;
using resource::geometricmodel::FcPolygonalBoundedHalfSpace;

math::Extent boxAround(const std::vector<TopoDS_Shape>& shapes) {
  math::Extent extent;
  guardOpenCascade(
      [&] {
        Bnd_Box box;
        for (const TopoDS_Shape& shape : shapes)
          if (!shape.IsNull()) BRepBndLib::Add(shape, box, false);
        if (box.IsVoid()) return;
        const gp_Pnt low = box.CornerMin(), high = box.CornerMax();
        extent = {{low.X(), low.Y(), low.Z()}, {high.X(), high.Y(), high.Z()}};
      },
      "OpenCascade could not measure a shape.");
  return extent;
}

}  // namespace

DifferenceTools::DifferenceTools(const FcBooleanOperand& base,
                                 const std::vector<TopoDS_Shape>& shapes, const FcParams& params)
    : m_params(params), m_box(base.boundingBox(params)) {
  if (!m_box || !m_box->isValid()) m_shapeBox = boxAround(shapes);
}

math::Extent DifferenceTools::reach() const { return m_shapeBox ? *m_shapeBox : *m_box; }

DifferenceTools::Tool DifferenceTools::of(const FcBooleanOperand& operand) const {
  Tool tool;
  if (const auto* bounded = fcCast<FcPolygonalBoundedHalfSpace>(operand.getEntity())) {
    if (m_box && m_box->isValid()) {
      tool.isAway = bounded->isAwayFrom(*m_box);
      const double depth = m_box->size().length() + bounded->distanceTo(*m_box);
      if (!tool.isAway) tool.shapes = bounded->ocPrismForClipping(depth, m_params);
    }
  } else if (operand.isHalfSpaceSolid()) {
    const auto halfSpace = operand.HalfSpaceSolidAssert();
    if (halfSpace) {
      tool.isAway = halfSpace->isAwayFrom(reach());
      if (!tool.isAway) tool.shapes = {halfSpace->prismOver(reach())};
    }
  } else {
    tool.shapes = operand.ocRepresentation(m_params);
  }
  std::erase_if(tool.shapes, [](const TopoDS_Shape& shape) { return shape.IsNull(); });
  return tool;
}

}  // namespace qor::fc
