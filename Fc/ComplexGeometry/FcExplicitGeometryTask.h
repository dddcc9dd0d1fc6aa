#pragma once

#include <memory>
#include <utility>

#include "Fc/ComplexGeometry/FcComplexGeometryTask.h"

namespace qor::fc {

namespace resource::geometry {
class FcRepresentationItem;
}

/// An item as face sets, in its own frame. Holds a copy of the item, made on the caller's thread,
/// so that it may be queued.
class QOR_API FcExplicitGeometryTask : public FcComplexGeometryTask {
 public:
  FcExplicitGeometryTask(FcParams params, const resource::geometry::FcRepresentationItem& item);
  /// `item` isn't null.
  FcExplicitGeometryTask(
      FcParams params, const std::shared_ptr<const resource::geometry::FcRepresentationItem>& item)
      : FcExplicitGeometryTask(std::move(params), *item) {}
  ~FcExplicitGeometryTask() override;

  /// An `FcPolygonalFaceSetResult`, without face sets where the item has no shape.
  std::unique_ptr<FcComplexGeometryTaskResult> process() const override;

 private:
  std::shared_ptr<const resource::geometry::FcRepresentationItem> m_item;
};

}  // namespace qor::fc
