#include "Fc/ComplexGeometry/FcExplicitGeometryTask.h"

#include <utility>

#include "Fc/ComplexGeometry/CopyOfItem.h"
#include "Fc/ComplexGeometry/FaceSetsFromShapes.h"
#include "Fc/ComplexGeometry/FcPolygonalFaceSetResult.h"
#include "Fc/ComplexGeometry/ShapesOfItem.h"

namespace qor::fc {

FcExplicitGeometryTask::FcExplicitGeometryTask(FcParams params,
                                               const resource::geometry::FcRepresentationItem& item)
    : FcComplexGeometryTask(std::move(params)), m_item(copyOfItem(item)) {}

FcExplicitGeometryTask::~FcExplicitGeometryTask() = default;

std::unique_ptr<FcComplexGeometryTaskResult> FcExplicitGeometryTask::process() const {
  return std::make_unique<FcPolygonalFaceSetResult>(
      faceSetsFromShapes(shapesOfItem(*m_item, params()), params().curveDiscretization()));
}

}  // namespace qor::fc
