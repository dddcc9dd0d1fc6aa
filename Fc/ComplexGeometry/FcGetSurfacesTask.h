#pragma once

#include <memory>

#include "Fc/ComplexGeometry/FcComplexGeometryTask.h"
#include "Qor/Math/Matrix.h"

namespace qor::fc {

namespace resource::geometry {
class FcRepresentationItem;
}

/// The outlines of the faces of an item's shells. Holds the item itself and not a copy: it must run
/// at once, by `process`.
class QOR_API FcGetSurfacesTask : public FcComplexGeometryTask {
 public:
  /// `item` isn't null. The outlines come out times `matrix`.
  FcGetSurfacesTask(FcParams params,
                    std::shared_ptr<const resource::geometry::FcRepresentationItem> item,
                    const math::Matrix& matrix);
  ~FcGetSurfacesTask() override;

  /// An `FcSurfacesResult`, which may be empty. Holes are left out, and so are faces that belong to
  /// no shell.
  std::unique_ptr<FcComplexGeometryTaskResult> process() const override;

 private:
  std::shared_ptr<const resource::geometry::FcRepresentationItem> m_item;
  math::Matrix m_matrix;
};

}  // namespace qor::fc
