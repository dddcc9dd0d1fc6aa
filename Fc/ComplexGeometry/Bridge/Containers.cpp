// Items that stand for others, for the solid modeller.

#include <TopoDS_Shape.hxx>
#include <vector>

#include "Fc/ComplexGeometry/Bridge/ShapesOf.h"
#include "Fc/FcParams.h"
#include "Fc/HelperFunctionsOC.h"
#include "Fc/Model/Nesting.h"
#include "Fc/Resource/GeometricModel/FcCsgSolid.h"
#include "Fc/Resource/Geometry/FcCartesianTransformationOperator.h"
#include "Fc/Resource/Geometry/FcMappedItem.h"
#include "Fc/Resource/Geometry/FcRepresentationMap.h"
#include "Fc/Resource/Representation/FcRepresentation.h"

namespace qor::fc {
namespace {

void move(Shapes& shapes, const math::Matrix& matrix) {
  for (TopoDS_Shape& shape : shapes) transformOpenCascadeShape(shape, matrix);
}

}  // namespace

namespace resource::geometry {

Shapes shapesOf(const FcMappedItem& item, const FcParams& params) {
  const Nesting nesting(Nesting::Kind::conversion, item);
  if (!nesting || !item.MappingSource() || !item.MappingTarget()) return {};
  Shapes shapes = item.MappingSource()->ocRepresentation(params);
  move(shapes, item.MappingTarget()->getTransformation());
  return shapes;
}

Shapes FcRepresentationMap::ocRepresentation(const FcParams& params) const {
  if (!MappedRepresentation()) return {};
  Shapes shapes = MappedRepresentation()->ocRepresentation(params);
  move(shapes, MappingOrigin().transformationGet());
  return shapes;
}

}  // namespace resource::geometry

namespace resource::geometricmodel {

Shapes shapesOf(const FcCsgSolid& item, const FcParams& params) {
  const Nesting nesting(Nesting::Kind::conversion, item);
  if (!nesting) return {};
  const auto root = item.rootItem();
  return root ? root->ocRepresentation(params) : Shapes{};
}

}  // namespace resource::geometricmodel

}  // namespace qor::fc
