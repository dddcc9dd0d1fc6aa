// Items that stand for others, for the solid modeller.

#include <TopoDS_Shape.hxx>
#include <vector>

#include "Fc/ComplexGeometry/Bridge/ConversionGuard.h"
#include "Fc/FcParams.h"
#include "Fc/HelperFunctionsOC.h"
#include "Fc/Resource/GeometricModel/FcCsgSolid.h"
#include "Fc/Resource/Geometry/FcCartesianTransformationOperator.h"
#include "Fc/Resource/Geometry/FcMappedItem.h"
#include "Fc/Resource/Geometry/FcRepresentationMap.h"
#include "Fc/Resource/Representation/FcRepresentation.h"

namespace qor::fc {
namespace {

using Shapes = std::vector<TopoDS_Shape>;

void move(Shapes& shapes, const math::Matrix& matrix) {
  for (TopoDS_Shape& shape : shapes) transformOpenCascadeShape(shape, matrix);
}

}  // namespace

namespace resource::geometry {

Shapes FcMappedItem::ocRepresentation(const FcParams& params) const {
  const ConversionGuard guard(this);
  if (!guard.mayEnter() || !MappingSource() || !MappingTarget()) return {};
  Shapes shapes = MappingSource()->ocRepresentation(params);
  move(shapes, MappingTarget()->getTransformation());
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

Shapes FcCsgSolid::ocRepresentation(const FcParams& params) const {
  const ConversionGuard guard(this);
  if (!guard.mayEnter()) return {};
  const auto root = rootItem();
  return root ? root->ocRepresentation(params) : Shapes{};
}

}  // namespace resource::geometricmodel

}  // namespace qor::fc
