#include "Examples/ShapeBuilder.h"

#include <utility>

#include "Fc/Resource/GeometricModel/FcBooleanClippingResult.h"
#include "Fc/Resource/GeometricModel/FcCartesianPointList2D.h"
#include "Fc/Resource/GeometricModel/FcExtrudedAreaSolid.h"
#include "Fc/Resource/GeometricModel/FcHalfSpaceSolid.h"
#include "Fc/Resource/GeometricModel/FcSphere.h"
#include "Fc/Resource/GeometricModel/FcSweptDiskSolid.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcCartesianTransformationOperator3D.h"
#include "Fc/Resource/Geometry/FcDirection.h"
#include "Fc/Resource/Geometry/FcIndexedPolyCurve.h"
#include "Fc/Resource/Geometry/FcMappedItem.h"
#include "Fc/Resource/Geometry/FcPlane.h"
#include "Fc/Resource/Geometry/FcPolyline.h"
#include "Fc/Resource/PresentationAppearance/FcColourRgb.h"
#include "Fc/Resource/PresentationAppearance/FcStyledItem.h"
#include "Fc/Resource/PresentationAppearance/FcSurfaceStyleRendering.h"
#include "Fc/Resource/Profile/FcArbitraryProfileDefWithVoids.h"
#include "Fc/Resource/Profile/FcCircleHollowProfileDef.h"
#include "Fc/Resource/Profile/FcIShapeProfileDef.h"
#include "Fc/Resource/Profile/FcRectangleHollowProfileDef.h"
#include "Fc/Resource/Representation/FcProductDefinitionShape.h"
#include "Fc/Resource/Representation/FcShapeRepresentation.h"

namespace sample {

using namespace qor::fc::resource::geometricmodel;
using namespace qor::fc::resource::presentationappearance;
using namespace qor::fc::resource::profile;
using math::Point2d;
using math::Point3d;

ShapeBuilder::ShapeBuilder(ModelBuilder& model, FcProject& project)
    : m_model(model),
      m_body(project.representationContextGetOrAdd(model.data(), FcContext::ContextType::Model,
                                                   "Body", FcGeometricProjectionEnum::MODEL_VIEW)),
      m_axis(project.representationContextGetOrAdd(model.data(), FcContext::ContextType::Model,
                                                   "Axis", FcGeometricProjectionEnum::GRAPH_VIEW)) {
}

// Profiles

Profile ShapeBuilder::rectangle(double width, double depth) {
  auto profile = m_model.create<FcRectangleProfileDef>();
  profile->setXDim(width);
  profile->setYDim(depth);
  return profile;
}

Profile ShapeBuilder::hollowRectangle(double width, double depth, double thickness) {
  auto profile = m_model.create<FcRectangleHollowProfileDef>();
  profile->setXDim(width);
  profile->setYDim(depth);
  profile->setWallThickness(thickness);
  return profile;
}

Profile ShapeBuilder::circle(double radius) {
  auto profile = m_model.create<FcCircleProfileDef>();
  profile->setRadius(radius);
  return profile;
}

Profile ShapeBuilder::ring(double radius, double thickness) {
  auto profile = m_model.create<FcCircleHollowProfileDef>();
  profile->setRadius(radius);
  profile->setWallThickness(thickness);
  return profile;
}

Profile ShapeBuilder::iShape(double width, double depth, double web, double flange, double fillet) {
  auto profile = m_model.create<FcIShapeProfileDef>();
  profile->setOverallWidth(width);
  profile->setOverallDepth(depth);
  profile->setWebThickness(web);
  profile->setFlangeThickness(flange);
  profile->setFilletRadius(fillet);
  return profile;
}

Profile ShapeBuilder::polygon(const std::vector<Point2d>& corners) {
  auto profile = m_model.create<FcArbitraryClosedProfileDef>();
  profile->setOuterCurve(closedCurve(corners));
  return profile;
}

Profile ShapeBuilder::polygonWithHole(const std::vector<Point2d>& corners,
                                      const std::vector<Point2d>& hole) {
  auto profile = m_model.create<FcArbitraryProfileDefWithVoids>();
  profile->setOuterCurve(closedCurve(corners));
  profile->setInnerCurves({closedCurve(hole)});
  return profile;
}

std::shared_ptr<FcCurve> ShapeBuilder::closedCurve(std::vector<Point2d> corners) {
  corners.push_back(corners.front());  // a curve is closed when it ends where it began
  auto points = m_model.create<FcCartesianPointList2D>();
  points->setPoints(corners);
  auto curve = m_model.create<FcIndexedPolyCurve>();
  curve->setPoints(points);
  return curve;
}

// Solids

Item ShapeBuilder::extrude(const Profile& profile, double depth, const math::Matrix& frame) {
  auto solid = m_model.create<FcExtrudedAreaSolid>();
  solid->setSweptArea(profile);
  solid->setPosition(makePlacement(frame));
  solid->setExtrudedDirection(makeDirection(math::Vector3d(0, 0, 1)));
  solid->setDepth(depth);
  return solid;
}

Item ShapeBuilder::box(const Point3d& corner, double x, double y, double z) {
  return extrude(rectangle(x, y), z, at(corner.x + x / 2, corner.y + y / 2, corner.z));
}

Item ShapeBuilder::rod(const std::vector<Point3d>& path, double radius, double rounding) {
  auto curve = m_model.create<FcIndexedPolyCurve>();
  curve->setRounded(rounding, path);
  auto solid = m_model.create<FcSweptDiskSolid>();
  solid->setDirectrix(curve);
  solid->setRadius(radius);
  return solid;
}

Item ShapeBuilder::cutOffAbove(const Item& solid, const math::Matrix& plane) {
  auto surface = m_model.create<FcPlane>();
  surface->setPosition(makePlacement(plane));
  auto above = m_model.create<FcHalfSpaceSolid>();
  above->setBaseSurface(surface);
  above->setAgreementFlag(false);  // its material is on the side that the normal points to
  auto rest = m_model.create<FcBooleanClippingResult>();
  rest->setOperator(FcBooleanOperator::DIFFERENCE);
  rest->setFirstOperand(FcBooleanOperand::fromRepresentationItem(solid));
  rest->setSecondOperand(above);
  return rest;
}

Item ShapeBuilder::sphere(const Point3d& centre, double radius) {
  auto ball = m_model.create<FcSphere>();
  ball->setPosition(makePlacement(at(centre.x, centre.y, centre.z)));
  ball->setRadius(radius);
  return ball;
}

// Looks

Item ShapeBuilder::painted(const Substance& substance, Item item) {
  auto& style = m_styles[substance.name];
  if (!style) style = createStyle(substance);
  auto styled = m_model.create<FcStyledItem>();
  styled->setItem(item);
  styled->setStyles({style});
  return item;
}

std::shared_ptr<FcSurfaceStyle> ShapeBuilder::createStyle(const Substance& substance) {
  auto colour = m_model.create<FcColourRgb>();
  colour->setRed(substance.red);
  colour->setGreen(substance.green);
  colour->setBlue(substance.blue);
  auto rendering = m_model.create<FcSurfaceStyleRendering>();
  rendering->setSurfaceColour(colour);
  rendering->setTransparency(substance.transparency);
  rendering->setReflectanceMethod(FcReflectanceMethodEnum::NOTDEFINED);
  auto style = m_model.create<FcSurfaceStyle>();
  style->setName(substance.name);
  style->setSide(FcSurfaceSide::BOTH);
  style->insertStyles(rendering);
  return style;
}

// Representations

std::shared_ptr<FcRepresentation> ShapeBuilder::createRepresentation(
    const SubContext& context, RepresentationIdentifier identifier, RepresentationType type,
    Items items) {
  auto representation = m_model.create<FcShapeRepresentation>();
  representation->setContextOfItems(context);
  representation->setRepresentationIdentifier(
      generate::draw::Representation::sIdentifier(identifier));
  representation->setRepresentationType(generate::draw::Representation::sType(type));
  representation->setItems(std::move(items));
  return representation;
}

void ShapeBuilder::show(FcProduct& product,
                        const std::shared_ptr<FcRepresentation>& representation) {
  if (!product.Representation())
    product.setRepresentation(m_model.create<FcProductDefinitionShape>());
  product.Representation()->pushBackRepresentations(representation);
}

void ShapeBuilder::showBody(FcProduct& product, RepresentationType type, Items items) {
  show(product,
       createRepresentation(m_body, RepresentationIdentifier::Body, type, std::move(items)));
}

void ShapeBuilder::showAxis(FcProduct& product, const Point2d& from, const Point2d& to) {
  auto line = m_model.create<FcPolyline>();
  line->setPoints(std::vector<Point2d>{from, to}, false);
  show(product, createRepresentation(m_axis, RepresentationIdentifier::Axis,
                                     RepresentationType::Curve2D, {line}));
}

void ShapeBuilder::setBody(FcTypeProduct& type, RepresentationType kind, Items items) {
  auto map = m_model.create<FcRepresentationMap>();
  map->setMappingOrigin(makePlacement({}));
  map->setMappedRepresentation(
      createRepresentation(m_body, RepresentationIdentifier::Body, kind, std::move(items)));
  type.pushBackRepresentationMaps(map);
}

void ShapeBuilder::showBodyOfType(FcProduct& product, const FcTypeProduct& type) {
  auto place = m_model.create<FcCartesianTransformationOperator3D>();
  place->setLocalOrigin(makePoint(Point3d()));
  auto mapped = m_model.create<FcMappedItem>();
  mapped->setMappingSource(type.RepresentationMaps()->front());
  mapped->setMappingTarget(place);
  showBody(product, RepresentationType::MappedRepresentation, {mapped});
}

}  // namespace sample
