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

/// Whether a tool's box lies outside that of the item. What the item tells of its box is asked
/// first; only where a tool seems to lie outside of it, the shapes of the item are, which are
/// dearer: the told box may be too small, for a turned profile.
class Reach {
 public:
  Reach(const FcRepresentationItem& item, const math::Matrix& itemMatrix, const FcParams& params)
      : m_item(item), m_itemMatrix(itemMatrix), m_params(params) {}

  bool isOutside(const FcRepresentationItem& tool, const math::Matrix& toolMatrix) {
    if (!m_isKnown) {
      m_isKnown = true;
      m_told = m_item.boundingBox(m_params);
      m_inverse = m_itemMatrix.inverse();
    }
    if (!m_told) return false;
    const auto box = tool.boundingBox(m_params);
    if (!box) return false;
    const math::Extent placed = box->transformExtent(toolMatrix * m_inverse);
    return math::_3d::Bounding(*m_told).isOutside(placed) &&
           math::_3d::Bounding(whole()).isOutside(placed);
  }

 private:
  const math::Extent& whole() {
    if (!m_whole) {
      m_whole = m_told;
      if (const auto* modeller = SolidModeller::get())
        m_whole = m_told->uniteWith(modeller->boxOf(m_item, m_params));
    }
    return *m_whole;
  }

  const FcRepresentationItem& m_item;
  const math::Matrix& m_itemMatrix;
  const FcParams& m_params;
  bool m_isKnown = false;
  std::optional<math::Extent> m_told, m_whole;
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
