#pragma once

#include <utility>
#include <vector>

#include "Fc/ComplexGeometry/FcComplexGeometryTaskResult.h"
#include "Qor/Math/Polygon.h"

namespace qor::fc {

/// The outlines of planar faces, each in its own plane, in metres.
class QOR_API FcSurfacesResult : public FcComplexGeometryTaskResult {
 public:
  explicit FcSurfacesResult(std::vector<math::_3d::Polygon> polygons)
      : m_polygons(std::move(polygons)) {}
  ~FcSurfacesResult() override;

  /// A copy.
  std::vector<math::_3d::Polygon> polygons() const { return m_polygons; }

 private:
  std::vector<math::_3d::Polygon> m_polygons;
};

}  // namespace qor::fc
