#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "Host/Targets/Scene.h"
#include "Host/Targets/Triangulator.h"
#include "Qor/Draw/BlockInterface.h"
#include "Qor/Draw/DrawInterface.h"
#include "Qor/Math/CurveDiscretization.h"

namespace qor::host::targets {

/// A draw target that keeps what it is told as a `Scene`.
///
/// Objects are kept flat, in the order in which they are opened, also those that draw nothing;
/// `SceneObject::parent` is left to the host. Surfaces become triangles, textures and normals are
/// left out. What comes while no object is open belongs to one without a name. Points beyond
/// `farthest` or not finite are left out with the faces and lines that use them, after an assert.
class SceneTarget : public generate::draw::DrawInterface, public generate::draw::BlockInterface {
 public:
  static constexpr double farthest = 1e9;  ///< metres along an axis

  explicit SceneTarget(const math::CurveDiscretization& discretization);

  /// All that was drawn so far; the target starts anew. No object may be open.
  Scene takeScene();

  void vTransformationSet(const math::Matrix& matrix) override;
  math::Matrix transformationGet() const override { return m_frame; }
  void vTransformationMultiply(const math::Matrix& matrix,
                               math::MatrixMultiplyOrder order) override;

  using DrawInterfaceBase::triangulatedFaceSet;
  using DrawInterfaceBase::vPolygon;
  void vPolyline(const std::vector<math::Point3d>& points) override;
  void vPolygon(const std::vector<Loop3d>& loops,
                std::optional<generate::draw::SurfaceDrawType> type) override;
  void triangulatedFaceSet(generate::draw::TriangulatedFaceSetOpenGL&& faceSet) override;
  void polygonalFaceSet(generate::draw::PolygonalFaceSetOpenGL&& faceSet) override;
  void vTextLiteral(const char* text, std::size_t length) override;

  void startObject(const generate::ObjectInterface* object) override;
  void stopObject() override;
  bool boAttribute(const generate::AttributeInterface&) override { return false; }
  void setMaterial(std::shared_ptr<const generate::draw::Material> material) override;
  std::shared_ptr<const generate::draw::Material> getMaterial() const override {
    return m_look.material;
  }
  void setColor(const generate::draw::Color& color) override;
  generate::draw::Color getColor() const override { return m_color; }

  std::uint32_t startBlock(const std::string& name) override;
  void stopBlock() override;

 private:
  /// The material in force, as it was given and as the scene has it.
  struct Look {
    std::shared_ptr<const generate::draw::Material> material{};
    MaterialIndex index = 0;
  };
  /// An object or a block that is being drawn.
  struct Open {
    bool hasBase = false;     ///< what is kept is in a frame of its own
    math::Matrix base{};      ///< that frame
    math::Matrix fromBase{};  ///< its inverse
    std::optional<std::size_t> object{};
    std::string block{};     ///< its name, where this isn't an object
    bool isKnown = false;    ///< the block was drawn before
    SceneContent content{};  ///< of a block
    Look look{};             ///< outside
  };

  Open& current();
  SceneContent& content();
  math::Matrix frameInContent();
  void setBase(Open& open);
  bool toContent(std::vector<math::Point3d>& points);
  MaterialIndex indexOf(const SceneMaterial& material);
  void addTriangles(std::vector<math::Point3d>&& points, std::vector<std::uint32_t>&& triangles);
  void addInstance(std::size_t block, const math::Matrix& frame);

  Scene m_scene;
  math::Matrix m_frame;
  Look m_look;
  generate::draw::Color m_color;
  std::vector<Open> m_open;
  std::unordered_map<std::string, std::optional<std::size_t>> m_blocks;
  std::map<std::array<float, 4>, MaterialIndex> m_materials;
  std::unordered_map<std::shared_ptr<const generate::draw::Material>, MaterialIndex> m_known;
  Triangulator m_triangulator;
};

}  // namespace qor::host::targets
