#include "Fc/Utilities/DrawVisitor.h"

#include <numbers>

#include "Fc/ComplexGeometry/FcComplexGeometryProcessorInterface.h"
#include "Fc/ComplexGeometry/FcExplicitGeometryTask.h"
#include "Fc/ComplexGeometry/FcPolygonalFaceSetResult.h"
#include "Fc/Drawing/MarkerCone.h"
#include "Fc/FcParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Reflection/MakeEntity.h"
#include "Fc/Resource/GeometricConstraint/FcLocalPlacement.h"
#include "Fc/Resource/GeometricModel/FcBooleanResult.h"
#include "Fc/Resource/GeometricModel/FcSphere.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcPlane.h"
#include "Fc/Resource/Representation/FcProductRepresentation.h"
#include "Fc/Resource/Representation/FcRepresentation.h"
#include "Fc/Utilities/DrawForDebug.h"

namespace qor::fc::utilities {

using generate::draw::Color;
using math::Matrix;

void drawForDebug(const FcDrawParams& params, const FcBase& entity, double pointRadius) {
  DrawVisitor visitor(params, pointRadius);
  entity.accept(visitor);
}

bool DrawVisitor::visit(const resource::representation::FcRepresentation& representation) {
  for (const auto& item : representation.Items())
    if (item) std::as_const(*item).accept(*this);
  return false;
}

bool DrawVisitor::visit(const resource::representation::FcProductRepresentation& representation) {
  for (const auto& shape : representation.Representations())
    if (shape) std::as_const(*shape).accept(*this);
  return false;
}

bool DrawVisitor::visit(const resource::geometry::FcRepresentationItem& item) {
  item.draw(m_params);
  return false;
}

// Without a processor it goes on as any other item.
bool DrawVisitor::visit(const resource::geometricmodel::FcBooleanResult& boolean) {
  const auto* const processor = getCurrentComplexGeometryProcessor();
  if (!processor) {
    report("No current complex geometry processor is set up.");
    return true;
  }
  const auto item = std::static_pointer_cast<const resource::geometry::FcRepresentationItem>(
      boolean.shared_from_this());
  const auto result = processor->processAndCast<FcPolygonalFaceSetResult>(
      FcExplicitGeometryTask(FcParams(m_params), item));
  if (result)
    for (auto& faceSet : result->takeFaceSets()) m_params->polygonalFaceSet(std::move(faceSet));
  return false;
}

bool DrawVisitor::visit(const resource::geometry::FcCartesianPoint& point) {
  auto placement = makeEntity<resource::geometry::FcAxis2Placement3D>();
  placement->setPlacement(Matrix::createTranslation(point.point() - math::Point3d()));
  auto sphere = makeEntity<resource::geometricmodel::FcSphere>();
  sphere->setPosition(std::move(placement));
  sphere->setRadius(m_pointRadius);
  m_params->drawRepresentationItem(std::move(sphere), m_params,
                                   generate::draw::SurfaceDrawType::Surface);
  return false;
}

bool DrawVisitor::visit(const resource::geometry::FcPlacement& placement) {
  drawArrows(placement.transformationGet());
  return false;
}

bool DrawVisitor::visit(const resource::geometricconstraint::FcLocalPlacement& placement) {
  drawArrows(placement.placementGet(false));
  return false;
}

bool DrawVisitor::visit(const resource::geometry::FcPlane& plane) {
  if (plane.Position()) std::as_const(*plane.Position()).accept(*this);
  return false;
}

// A cone stands along Z.
void DrawVisitor::drawArrows(const Matrix& frame) const {
  constexpr double quarter = std::numbers::pi / 2, height = 0.2, radius = 0.03;
  drawMarkerCone(m_params, Matrix::createYRotate(quarter) * frame, height, radius, Color(1, 0, 0));
  drawMarkerCone(m_params, Matrix::createXRotate(-quarter) * frame, height, radius, Color(0, 1, 0));
  drawMarkerCone(m_params, frame, height, radius, Color(0, 0, 1));
}

}  // namespace qor::fc::utilities
