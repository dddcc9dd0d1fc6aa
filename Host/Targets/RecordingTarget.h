#pragma once

#include <cstddef>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "Qor/Draw/BlockInterface.h"
#include "Qor/Draw/DrawInterface.h"
#include "Qor/Math/CurveDiscretization.h"

namespace qor::host::targets {

/// A draw target that writes what it is told, one call a line, indented by open objects and blocks:
///
///     startObject IFCWALL 'South wall' 2O2Fr$t4X7Zf8NOew3FNr2
///       vTransformationMultiply left x (1 0 0) y (0 1 0) z (0 0 1) origin (4 0 0)
///       setMaterial (0.6 0.6 0.6) opacity 1
///       polygonalFaceSet 8 points, 6 faces, from (0 0 0) to (4 0.2 3)
///     stopObject
///
/// Numbers are in metres, in the frame that holds when they come, with nine digits. Of a polyline
/// all points are written. Blocks are numbered from 1. The same calls give the same text.
class RecordingTarget : public generate::draw::DrawInterface,
                        public generate::draw::BlockInterface {
 public:
  /// `out` must outlive this.
  RecordingTarget(const math::CurveDiscretization& discretization, std::ostream& out);

  void vTransformationSet(const math::Matrix& matrix) override;
  math::Matrix transformationGet() const override { return m_frame; }
  void vTransformationMultiply(const math::Matrix& matrix,
                               math::MatrixMultiplyOrder order) override;

  using DrawInterfaceBase::triangulatedFaceSet;
  using DrawInterfaceBase::vPolygon;
  void vPolyline(const std::vector<math::Point3d>& points) override;
  void vPoints(const std::vector<math::Point3d>& points) override;
  void vPolygon(const std::vector<Loop3d>& loops,
                std::optional<generate::draw::SurfaceDrawType> type) override;
  void triangulatedFaceSet(generate::draw::TriangulatedFaceSetOpenGL&& faceSet) override;
  void polygonalFaceSet(generate::draw::PolygonalFaceSetOpenGL&& faceSet) override;
  void vTextLiteral(const char* text, std::size_t length) override;

  void startObject(const generate::ObjectInterface* object) override;
  void stopObject() override;
  bool boAttribute(const generate::AttributeInterface& attribute) override;
  void setMaterial(std::shared_ptr<const generate::draw::Material> material) override;
  std::shared_ptr<const generate::draw::Material> getMaterial() const override {
    return m_material;
  }
  void setColor(const generate::draw::Color& color) override;
  generate::draw::Color getColor() const override { return m_color; }

  std::uint32_t startBlock(const std::string& name) override;
  void stopBlock() override;

 private:
  void line(std::string_view text);
  void open(std::string_view text);
  void close(std::string_view text);
  void faceSet(std::string_view call, const std::vector<math::Point3d>& points, std::size_t faces,
               std::string_view kind);

  std::ostream& m_out;
  std::size_t m_depth = 0;
  math::Matrix m_frame;
  std::shared_ptr<const generate::draw::Material> m_material;
  generate::draw::Color m_color;
  std::unordered_map<std::string, std::size_t> m_blocks;
};

}  // namespace qor::host::targets
