#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "Fc/ComplexGeometry/FcComplexGeometryTask.h"
#include "Qor/Math/Matrix.h"

namespace qor::fc {

namespace resource::geometry {
class FcRepresentationItem;
}

/// What is left of an item when others, the bodies of its element's openings, are cut out of it.
///
/// Holds copies of all of them, made on the caller's thread, so that it may be queued. Tools whose
/// cut is expensive (tessellated ones and boundary representations) are left out where `params`
/// says so, and where their box can't touch the item's.
class QOR_API FcImplicitClippingTask : public FcComplexGeometryTask {
 public:
  using Item = std::shared_ptr<const resource::geometry::FcRepresentationItem>;
  /// An item, and the frame that it stands in.
  using ClipItem = std::pair<Item, math::Matrix>;

  /// No item is null. The frames of all stand in one surrounding frame.
  FcImplicitClippingTask(FcParams params, const Item& item, const math::Matrix& itemMatrix,
                         const std::vector<ClipItem>& clipItems);
  ~FcImplicitClippingTask() override;

  /// An `FcPolygonalFaceSetResult` in the frame of the item; null where the item has no shape.
  std::unique_ptr<FcComplexGeometryTaskResult> process() const override;

  /// Those that are cut out.
  const std::vector<ClipItem>& clipItems() const { return m_clipItems; }
  /// Adds a tool as it is, without a copy: until the task is done it must not change.
  void addClipItem(ClipItem clipItem) { m_clipItems.push_back(std::move(clipItem)); }

 private:
  Item m_item;
  math::Matrix m_itemMatrix;
  std::vector<ClipItem> m_clipItems;
};

}  // namespace qor::fc
