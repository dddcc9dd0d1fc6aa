#pragma once

#include <memory>

#include "Fc/ComplexGeometry/FcComplexGeometryTask.h"
#include "Qor/Math/Matrix.h"

namespace qor::fc {

namespace resource::geometry {
class FcRepresentationItem;
}

/// The least distance between two items. Holds the items themselves and not copies: it must run at
/// once, by `process`.
class QOR_API FcCalculateDistanceTask : public FcComplexGeometryTask {
 public:
  using Item = std::shared_ptr<const resource::geometry::FcRepresentationItem>;

  /// No item is null. The frames of both stand in one surrounding frame.
  FcCalculateDistanceTask(FcParams params, Item firstItem, Item secondItem,
                          const math::Matrix& firstMatrix, const math::Matrix& secondMatrix);
  ~FcCalculateDistanceTask() override;

  /// An `FcDoubleResult` in metres, 0 for items that touch or overlap; null when one has no shape
  /// or no distance can be calculated.
  std::unique_ptr<FcComplexGeometryTaskResult> process() const override;

 private:
  Item m_firstItem;
  Item m_secondItem;
  math::Matrix m_firstMatrix;
  math::Matrix m_secondMatrix;
};

}  // namespace qor::fc
