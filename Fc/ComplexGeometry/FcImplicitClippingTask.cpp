#include "Fc/ComplexGeometry/FcImplicitClippingTask.h"

#include <optional>

#include "Fc/ComplexGeometry/BooleanOperations.h"
#include "Fc/ComplexGeometry/CopyOfItem.h"
#include "Fc/ComplexGeometry/FaceSetsFromShapes.h"
#include "Fc/ComplexGeometry/FcPolygonalFaceSetResult.h"
#include "Fc/ComplexGeometry/ShapesOfItem.h"
#include "Qor/Math/Bounding.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc {
namespace {

using resource::geometry::FcRepresentationItem;

/// Whether a tool's box lies outside that of the item, which is asked for when the first one is.
class Reach {
 public:
  Reach(const FcRepresentationItem& item, const math::Matrix& itemMatrix, const FcParams& params)
      : m_item(item), m_itemMatrix(itemMatrix), m_params(params) {}

  bool isOutside(const FcRepresentationItem& tool, const math::Matrix& toolMatrix) {
    if (!m_isKnown) {
      m_isKnown = true;
      m_box = m_item.boundingBox(m_params);
      m_inverse = m_itemMatrix.inverse();
    }
    if (!m_box) return false;
    const auto box = tool.boundingBox(m_params);
    return box &&
           math::_3d::Bounding(*m_box).isOutside(box->transformExtent(toolMatrix * m_inverse));
  }

 private:
  const FcRepresentationItem& m_item;
  const math::Matrix& m_itemMatrix;
  const FcParams& m_params;
  bool m_isKnown = false;
  std::optional<math::Extent> m_box;
  math::Matrix m_inverse;
};

}  // namespace

FcImplicitClippingTask::FcImplicitClippingTask(FcParams params, const Item& item,
                                               const math::Matrix& itemMatrix,
                                               const std::vector<ClipItem>& clipItems)
    : FcComplexGeometryTask(std::move(params)),
      m_item(copyOfItem(*item)),
      m_itemMatrix(itemMatrix) {
  m_clipItems.reserve(clipItems.size());
  Reach reach(*item, itemMatrix, this->params());
  for (const auto& [clipItem, clipMatrix] : clipItems) {
    if (isExpensiveTool(*clipItem) &&
        (this->params().skipExpensiveClipping || reach.isOutside(*clipItem, clipMatrix)))
      continue;
    m_clipItems.emplace_back(copyOfItem(*clipItem), clipMatrix);
  }
}

FcImplicitClippingTask::~FcImplicitClippingTask() = default;

std::unique_ptr<FcComplexGeometryTaskResult> FcImplicitClippingTask::process() const {
  std::vector<TopoDS_Shape> shapes = shapesOfItem(*m_item, params());
  if (shapes.empty()) return nullptr;
  const math::Matrix inverse = m_itemMatrix.inverse();
  std::vector<TopoDS_Shape> tools;
  for (const auto& [clipItem, clipMatrix] : m_clipItems) {
    if (params().skipExpensiveClipping && isExpensiveTool(*clipItem)) continue;
    for (TopoDS_Shape& tool : shapesOfItem(*clipItem, params())) {
      transformOpenCascadeShape(tool, clipMatrix * inverse);
      if (!tool.IsNull()) tools.push_back(std::move(tool));
    }
  }
  if (!tools.empty()) {
    const double fuzzyValue = math::Epsilon::current().length;
    for (TopoDS_Shape& shape : shapes) shape = cutShapes({shape}, tools, fuzzyValue);
  }
  return std::make_unique<FcPolygonalFaceSetResult>(
      faceSetsFromShapes(shapes, params().curveDiscretization()));
}

}  // namespace qor::fc
