#include "Fc/ComplexGeometry/FcImplicitClippingTask.h"

#include <optional>

#include "Fc/ComplexGeometry/CopyOfItem.h"
#include "Fc/ComplexGeometry/ExpensiveTool.h"
#include "Fc/ComplexGeometry/FcPolygonalFaceSetResult.h"
#include "Fc/ComplexGeometry/SolidModeller.h"
#include "Qor/Math/Bounding.h"

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
  const auto* modeller = SolidModeller::get();
  if (!modeller) return nullptr;
  std::vector<ClipItem> tools;
  for (const ClipItem& clipItem : m_clipItems)
    if (!params().skipExpensiveClipping || !isExpensiveTool(*clipItem.first))
      tools.push_back(clipItem);
  auto faceSets = modeller->cut({m_item, m_itemMatrix}, tools, params());
  if (!faceSets) return nullptr;
  return std::make_unique<FcPolygonalFaceSetResult>(std::move(*faceSets));
}

}  // namespace qor::fc
