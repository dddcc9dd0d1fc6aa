#include "Fc/Resource/Geometry/RepresentationOfClass.h"

#include "Fc/Resource/GeometricModel/FcAdvancedBrep.h"
#include "Fc/Resource/GeometricModel/FcBlock.h"
#include "Fc/Resource/GeometricModel/FcBooleanResult.h"
#include "Fc/Resource/GeometricModel/FcCsgSolid.h"
#include "Fc/Resource/GeometricModel/FcExtrudedAreaSolid.h"
#include "Fc/Resource/GeometricModel/FcExtrudedAreaSolidTapered.h"
#include "Fc/Resource/GeometricModel/FcFaceBasedSurfaceModel.h"
#include "Fc/Resource/GeometricModel/FcFacetedBrep.h"
#include "Fc/Resource/GeometricModel/FcFixedReferenceSweptAreaSolid.h"
#include "Fc/Resource/GeometricModel/FcGeometricCurveSet.h"
#include "Fc/Resource/GeometricModel/FcGeometricSet.h"
#include "Fc/Resource/GeometricModel/FcRectangularPyramid.h"
#include "Fc/Resource/GeometricModel/FcRevolvedAreaSolid.h"
#include "Fc/Resource/GeometricModel/FcRevolvedAreaSolidTapered.h"
#include "Fc/Resource/GeometricModel/FcRightCircularCone.h"
#include "Fc/Resource/GeometricModel/FcRightCircularCylinder.h"
#include "Fc/Resource/GeometricModel/FcShellBasedSurfaceModel.h"
#include "Fc/Resource/GeometricModel/FcSphere.h"
#include "Fc/Resource/GeometricModel/FcSurfaceCurveSweptAreaSolid.h"
#include "Fc/Resource/GeometricModel/FcSweptDiskSolid.h"
#include "Fc/Resource/GeometricModel/FcTessellatedFaceSet.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcCurve.h"
#include "Fc/Resource/Geometry/FcMappedItem.h"
#include "Fc/Resource/PresentationDefinition/FcAnnotationFillArea.h"
#include "Fc/Resource/PresentationDefinition/FcTextLiteral.h"
#include "Fc/Resource/PresentationOrganization/FcLightSource.h"

namespace qor::fc::resource::geometry {

namespace {

using Identifier = generate::draw::RepresentationIdentifier;
using Type = generate::draw::RepresentationType;

struct Row {
  std::uint32_t first;
  std::uint32_t last;
  Identifier identifier;
  Type type;
};

template <class Class>
constexpr Row row(Identifier identifier, Type type) {
  return {Class::firstClassId, Class::lastClassId, identifier, type};
}

// A class with its subclasses; a subclass that differs stands before its parent.
constexpr Row rows[] = {
    row<FcCartesianPoint>(Identifier::Annotation, Type::Point),
    row<FcCurve>(Identifier::Annotation, Type::Curve),
    row<presentationdefinition::FcAnnotationFillArea>(Identifier::Annotation, Type::FillArea),
    row<presentationdefinition::FcTextLiteral>(Identifier::Annotation, Type::Text),
    row<geometricmodel::FcGeometricCurveSet>(Identifier::Annotation, Type::GeometricCurveSet),
    row<geometricmodel::FcGeometricSet>(Identifier::Annotation, Type::GeometricSet),
    row<geometricmodel::FcFaceBasedSurfaceModel>(Identifier::Body, Type::SurfaceModel),
    row<geometricmodel::FcShellBasedSurfaceModel>(Identifier::Body, Type::SurfaceModel),
    row<geometricmodel::FcTessellatedFaceSet>(Identifier::Body, Type::Tessellation),
    row<geometricmodel::FcExtrudedAreaSolidTapered>(Identifier::Body, Type::AdvancedSweptSolid),
    row<geometricmodel::FcRevolvedAreaSolidTapered>(Identifier::Body, Type::AdvancedSweptSolid),
    row<geometricmodel::FcExtrudedAreaSolid>(Identifier::Body, Type::SweptSolid),
    row<geometricmodel::FcRevolvedAreaSolid>(Identifier::Body, Type::SweptSolid),
    row<geometricmodel::FcFixedReferenceSweptAreaSolid>(Identifier::Body, Type::SweptSolid),
    row<geometricmodel::FcSurfaceCurveSweptAreaSolid>(Identifier::Body, Type::SweptSolid),
    row<geometricmodel::FcSweptDiskSolid>(Identifier::Body, Type::AdvancedSweptSolid),
    row<geometricmodel::FcFacetedBrep>(Identifier::Body, Type::Brep),
    row<geometricmodel::FcAdvancedBrep>(Identifier::Body, Type::AdvancedBrep),
    row<geometricmodel::FcBlock>(Identifier::Body, Type::Csg),
    row<geometricmodel::FcRectangularPyramid>(Identifier::Body, Type::Csg),
    row<geometricmodel::FcRightCircularCone>(Identifier::Body, Type::Csg),
    row<geometricmodel::FcRightCircularCylinder>(Identifier::Body, Type::Csg),
    row<geometricmodel::FcSphere>(Identifier::Body, Type::Csg),
    row<geometricmodel::FcCsgSolid>(Identifier::Body, Type::Csg),
    row<geometricmodel::FcBooleanResult>(Identifier::Body, Type::Csg),
    row<presentationorganization::FcLightSource>(Identifier::Lighting, Type::LightSource),
    row<FcMappedItem>(Identifier::Body, Type::MappedRepresentation),
};

}  // namespace

generate::draw::Representation representationOfClass(std::uint32_t classId) {
  for (const Row& row : rows)
    if (classId >= row.first && classId <= row.last) return {row.identifier, row.type};
  return {};
}

}  // namespace qor::fc::resource::geometry
