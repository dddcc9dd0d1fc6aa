#pragma once

#include <optional>
#include <vector>

#include "Fc/FcDrawInterface.h"
#include "Fc/FcDrawParams.h"
#include "Fc/Resource/Geometry/FcRepresentationItem.h"

namespace qor::fc {

/// A draw target that keeps the polylines and polygons that it is given.
class RecordedLines : public FcDrawInterface {
 public:
  /// What the item draws.
  explicit RecordedLines(const resource::geometry::FcRepresentationItem& item)
      : DrawInterfaceBase(math::CurveDiscretization(0, 72, 72)) {
    item.draw(FcDrawParams(*this));
  }

  using DrawInterfaceBase::vPolygon;
  void vTransformationSet(const math::Matrix& matrix) override { m_frame = matrix; }
  math::Matrix transformationGet() const override { return m_frame; }
  void vTransformationMultiply(const math::Matrix& matrix,
                               math::MatrixMultiplyOrder order) override {
    m_frame = order == math::MatrixMultiplyOrder::left ? matrix * m_frame : m_frame * matrix;
  }
  void vPolyline(const std::vector<math::Point3d>& points) override { polylines.push_back(points); }
  void vPolygon(const std::vector<Loop3d>& loops,
                std::optional<generate::draw::SurfaceDrawType>) override {
    polygons.push_back(loops);
  }
  void vTextLiteral(const char*, std::size_t) override {}
  void drawConstRepresentationItem(
      std::shared_ptr<const resource::geometry::FcRepresentationItem> item,
      const FcDrawParams& params, generate::draw::SurfaceDrawType) override {
    item->draw(params);
  }
  void drawRepresentationItem(std::shared_ptr<resource::geometry::FcRepresentationItem> item,
                              const FcDrawParams& params,
                              generate::draw::SurfaceDrawType) override {
    item->draw(params);
  }

  std::vector<Loop3d> polylines;
  std::vector<std::vector<Loop3d>> polygons;

 private:
  math::Matrix m_frame;
};

}  // namespace qor::fc
