// Items of any class, alone and in a representation, for the solid modeller.

#include <TopoDS_Shape.hxx>
#include <TopoDS_Wire.hxx>
#include <iterator>

#include "Fc/ComplexGeometry/Bridge/FormOfClass.h"
#include "Fc/ComplexGeometry/Bridge/OpenCascadeModeller.h"
#include "Fc/ComplexGeometry/Bridge/ShapesOf.h"
#include "Fc/Model/NotImplemented.h"
#include "Fc/Resource/GeometricModel/FcBlock.h"
#include "Fc/Resource/GeometricModel/FcBooleanOperand.h"
#include "Fc/Resource/GeometricModel/FcBooleanResult.h"
#include "Fc/Resource/GeometricModel/FcBoundingBox.h"
#include "Fc/Resource/GeometricModel/FcCsgSolid.h"
#include "Fc/Resource/GeometricModel/FcExtrudedAreaSolid.h"
#include "Fc/Resource/GeometricModel/FcExtrudedAreaSolidTapered.h"
#include "Fc/Resource/GeometricModel/FcFaceBasedSurfaceModel.h"
#include "Fc/Resource/GeometricModel/FcManifoldSolidBrep.h"
#include "Fc/Resource/GeometricModel/FcPolygonalBoundedHalfSpace.h"
#include "Fc/Resource/GeometricModel/FcPolygonalFaceSet.h"
#include "Fc/Resource/GeometricModel/FcRectangularPyramid.h"
#include "Fc/Resource/GeometricModel/FcRevolvedAreaSolid.h"
#include "Fc/Resource/GeometricModel/FcRightCircularCone.h"
#include "Fc/Resource/GeometricModel/FcRightCircularCylinder.h"
#include "Fc/Resource/GeometricModel/FcShellBasedSurfaceModel.h"
#include "Fc/Resource/GeometricModel/FcSphere.h"
#include "Fc/Resource/GeometricModel/FcTriangulatedFaceSet.h"
#include "Fc/Resource/Geometry/FcCurve.h"
#include "Fc/Resource/Geometry/FcMappedItem.h"
#include "Fc/Resource/Representation/FcRepresentation.h"
#include "Fc/Resource/Topology/FcConnectedFaceSet.h"
#include "Fc/Resource/Topology/FcShell.h"

namespace qor::fc {
namespace {

using namespace resource::geometricmodel;
using namespace resource::geometry;
using namespace resource::topology;

Shapes shapesOf(const FcCurve& curve, const FcParams& params) {
  const TopoDS_Wire wire = curve.ocDiscretizedCurve(params);
  return wire.IsNull() ? Shapes{} : Shapes{wire};
}

// It is a tool of differences alone.
Shapes shapesOf(const FcPolygonalBoundedHalfSpace& halfSpace, const FcParams& /*params*/) {
  assertNotImplemented("ocRepresentation(const qor::fc::FcParams&) not implemented for class: ",
                       halfSpace);
  return {};
}

class ItemForm : public FormOfClass<Shapes> {
 public:
  explicit ItemForm(const FcParams& params) : m_params(params) {}

  using FormOfClass::visit;
  bool visit(const FcBlock& item) override { return give(shapesOf(item, m_params)); }
  bool visit(const FcBooleanResult& item) override { return give(shapesOf(item, m_params)); }
  bool visit(const FcBoundingBox& item) override { return give(shapesOf(item, m_params)); }
  bool visit(const FcConnectedFaceSet& item) override { return give(shapesOf(item, m_params)); }
  bool visit(const FcCsgSolid& item) override { return give(shapesOf(item, m_params)); }
  bool visit(const FcCurve& item) override { return give(shapesOf(item, m_params)); }
  bool visit(const FcExtrudedAreaSolid& item) override { return give(shapesOf(item, m_params)); }
  bool visit(const FcExtrudedAreaSolidTapered& item) override {
    return give(shapesOf(item, m_params));
  }
  bool visit(const FcFaceBasedSurfaceModel& item) override {
    return give(shapesOf(item, m_params));
  }
  bool visit(const FcHalfSpaceSolid& item) override { return give(shapesOf(item, m_params)); }
  bool visit(const FcManifoldSolidBrep& item) override { return give(shapesOf(item, m_params)); }
  bool visit(const FcMappedItem& item) override { return give(shapesOf(item, m_params)); }
  bool visit(const FcPolygonalBoundedHalfSpace& item) override {
    return give(shapesOf(item, m_params));
  }
  bool visit(const FcPolygonalFaceSet& item) override { return give(shapesOf(item, m_params)); }
  bool visit(const FcRectangularPyramid& item) override { return give(shapesOf(item, m_params)); }
  bool visit(const FcRevolvedAreaSolid& item) override { return give(shapesOf(item, m_params)); }
  bool visit(const FcRightCircularCone& item) override { return give(shapesOf(item, m_params)); }
  bool visit(const FcRightCircularCylinder& item) override {
    return give(shapesOf(item, m_params));
  }
  bool visit(const FcShellBasedSurfaceModel& item) override {
    return give(shapesOf(item, m_params));
  }
  bool visit(const FcSphere& item) override { return give(shapesOf(item, m_params)); }
  bool visit(const FcTriangulatedFaceSet& item) override { return give(shapesOf(item, m_params)); }

 private:
  const FcParams& m_params;
};

}  // namespace

Shapes OpenCascadeModeller::shapes(const FcRepresentationItem& item, const FcParams& params) const {
  if (auto shapes = ItemForm(params).of(item)) return *std::move(shapes);
  assertNotImplemented("ocRepresentation(const qor::fc::FcParams&) not implemented for class: ",
                       item);
  return {};
}

Shapes OpenCascadeModeller::shapes(const resource::representation::FcRepresentation& representation,
                                   const FcParams& params) const {
  Shapes shapes;
  for (const auto& item : representation.Items()) {
    if (!item) continue;
    Shapes more = item->ocRepresentation(params);
    shapes.insert(shapes.end(), std::make_move_iterator(more.begin()),
                  std::make_move_iterator(more.end()));
  }
  return shapes;
}

Shapes FcBooleanOperand::ocRepresentation(const FcParams& params) const {
  const auto item = asGeometricRepresentationItemAssert();
  return item ? item->ocRepresentation(params) : Shapes();
}

Shapes FcShell::ocRepresentation(const FcParams& params) const {
  const auto* shell = fcCast<FcConnectedFaceSet>(getEntity());
  return shell ? shell->ocRepresentation(params) : Shapes();
}

}  // namespace qor::fc
