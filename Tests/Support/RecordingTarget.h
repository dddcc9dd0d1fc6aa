#pragma once

#include <cstdint>
#include <limits>
#include <map>
#include <memory>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "Qor/Draw/BlockInterface.h"
#include "Qor/Draw/DrawInterface.h"

namespace qor::test {

/// A host's draw target that keeps what it is told, and writes it down, a line a call. Points in
/// lines are those of the project: what arrives times the present frame, with numbers as "%g":
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
  struct Failure : std::runtime_error {
    Failure() : std::runtime_error("the target is full") {}
  };

  RecordingTarget() = default;
  explicit RecordingTarget(const math::CurveDiscretization& discretization)
      : DrawInterfaceBase(discretization) {}

  /// What came, with the frame and the surface colour of that moment.
  template <class T>
  struct Drawn {
    T what;
    math::Matrix frame;
    std::optional<generate::draw::Color> colour;
  };
  std::vector<Drawn<generate::draw::PolygonalFaceSetOpenGL>> polygonalSets;
  std::vector<Drawn<generate::draw::TriangulatedFaceSetOpenGL>> triangulatedSets;
  std::vector<Drawn<std::vector<Loop3d>>> polygons;
  std::vector<Drawn<std::vector<Loop2d>>> flatPolygons;
  std::vector<Drawn<std::vector<math::Point3d>>> polylines;
  std::vector<Drawn<std::string>> texts;

  /// Each call as a line.
  std::vector<std::string> calls;
  /// That many calls return before one throws `Failure`. Those that close a scope never do, since
  /// they are made while it is left.
  std::size_t callsBeforeFailure = std::numeric_limits<std::size_t>::max();
  /// The address of the points of the last polyline, and how many materials were made.
  const math::Point3d* lastPoints = nullptr;
  std::map<const generate::draw::Material*, std::shared_ptr<const generate::draw::Material>>
      materials;

  /// The calls with that first word.
  std::vector<std::string> callsOf(const std::string& word) const;
  /// Objects and blocks that are open.
  int depth() const { return m_depth; }

  void vTransformationSet(const math::Matrix& matrix) override { m_frame = matrix; }
  math::Matrix transformationGet() const override;
  void vTransformationMultiply(const math::Matrix& matrix,
                               math::MatrixMultiplyOrder order) override;
  void vPolyline(const std::vector<math::Point3d>& points) override;
  void vPolygon(const std::vector<Loop3d>& loops,
                std::optional<generate::draw::SurfaceDrawType> type) override;
  void vPolygon(const std::vector<Loop2d>& loops,
                std::optional<generate::draw::SurfaceDrawType> type) override;
  using DrawInterfaceBase::triangulatedFaceSet;
  void triangulatedFaceSet(generate::draw::TriangulatedFaceSetOpenGL&& faceSet) override;
  void polygonalFaceSet(generate::draw::PolygonalFaceSetOpenGL&& faceSet) override;
  void vTextLiteral(const char* text, std::size_t length) override;
  void startObject(const generate::ObjectInterface* object) override;
  void stopObject() override;
  bool boAttribute(const generate::AttributeInterface& attribute) override;
  void setMaterial(std::shared_ptr<const generate::draw::Material> material) override;
  std::shared_ptr<const generate::draw::Material> getMaterial() const override;
  void setColor(const generate::draw::Color& /*color*/) override {}
  generate::draw::Color getColor() const override { return {}; }

 protected:
  void open(std::string call);
  void close(std::string call);

 private:
  void mayFail() const;
  void record(std::string call);
  template <class T>
  void keep(std::vector<Drawn<T>>& list, T what);
  std::string text(const std::vector<math::Point3d>& points) const;

  math::Matrix m_frame;
  std::shared_ptr<const generate::draw::Material> m_material;
  int m_depth = 0;
  mutable std::size_t m_callsThatMayFail = 0;
};

/// One that keeps blocks: "block" for a new one, "block again" for one that it has, "end".
class RecordingBlockTarget : public RecordingTarget, public generate::draw::BlockInterface {
 public:
  std::uint32_t startBlock(const std::string& name) override;
  void stopBlock() override { close("end"); }

 private:
  std::set<std::string> m_blocks;
};

}  // namespace qor::test
