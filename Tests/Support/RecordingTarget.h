#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "Qor/Draw/BlockInterface.h"
#include "Qor/Draw/DrawInterface.h"

namespace qor::test {

/// A host's draw target that writes down what it is told, a line a call. Points are those of the
/// project: what arrives times the present frame, with numbers as "%g":
///
///     start IfcWall South
///     material 1 0 0
///     polyline (0 0 0) (1 0 0)
///     polygon (0 0 0) (1 0 0) (1 1 0) | (0.2 0.2 0) (0.4 0.2 0) (0.4 0.4 0)
///     polygons 8 points 6 faces
///     triangles 8 points 12 faces
///     text Room 12
///     stop
class RecordingTarget : public generate::draw::DrawInterface {
 public:
  RecordingTarget() = default;
  explicit RecordingTarget(const math::CurveDiscretization& discretization)
      : DrawInterfaceBase(discretization) {}

  std::vector<std::string> calls;
  /// What is thrown at the first call for a polyline, if anything.
  std::string problem;
  /// The address of the points of the last polyline, and how many materials were made.
  const math::Point3d* lastPoints = nullptr;
  std::map<const generate::draw::Material*, std::shared_ptr<const generate::draw::Material>>
      materials;

  /// The calls with that first word.
  std::vector<std::string> callsOf(const std::string& word) const;
  /// Objects that are open.
  int depth() const { return m_depth; }

  void vTransformationSet(const math::Matrix& matrix) override { m_frame = matrix; }
  math::Matrix transformationGet() const override { return m_frame; }
  void vTransformationMultiply(const math::Matrix& matrix,
                               math::MatrixMultiplyOrder order) override;
  void vPolyline(const std::vector<math::Point3d>& points) override;
  using DrawInterfaceBase::vPolygon;
  void vPolygon(const std::vector<Loop3d>& loops,
                std::optional<generate::draw::SurfaceDrawType> type) override;
  using DrawInterfaceBase::triangulatedFaceSet;
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
  void setColor(const generate::draw::Color& /*color*/) override {}
  generate::draw::Color getColor() const override { return {}; }

 protected:
  void record(std::string call) { calls.push_back(std::move(call)); }

 private:
  std::string text(const std::vector<math::Point3d>& points) const;

  math::Matrix m_frame;
  std::shared_ptr<const generate::draw::Material> m_material;
  int m_depth = 0;
};

/// One that keeps blocks: "block" for a new one, "block again" for one that it has, "end".
class RecordingBlockTarget : public RecordingTarget, public generate::draw::BlockInterface {
 public:
  std::uint32_t startBlock(const std::string& name) override;
  void stopBlock() override { record("end"); }

 private:
  std::map<std::string, int> m_blocks;
};

}  // namespace qor::test
