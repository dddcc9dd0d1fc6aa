#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "Fc/Drawing/FcDrawInterface.h"
#include "Fc/Drawing/FcDrawParams.h"
#include "Qor/Draw/DrawInterface.h"

namespace qor::fc::resource::presentationappearance {
class FcSurfaceStyleShading;
class FcSurfaceStyleWithTextures;
}  // namespace qor::fc::resource::presentationappearance

namespace qor::fc {

class FcBase;

/// Lets any target of a host be drawn into by a walk: gives each item its look, cuts it, and hands
/// on. Nothing that passes is copied.
///
/// May be used for many walks; what a style or a colour looks like is made once. Objects and
/// materials reach a target that is a `DrawInterface`, blocks one that is a `BlockInterface`. It
/// keeps the styles alive that it has met.
class QOR_API FcDrawInterfaceWrapper : public FcDrawInterface,
                                       public generate::draw::DrawInterface {
 public:
  /// `target` isn't owned.
  explicit FcDrawInterfaceWrapper(generate::draw::DrawInterfaceBase& target);
  /// Closes what is still open.
  ~FcDrawInterfaceWrapper() override;

  void vTransformationSet(const math::Matrix& matrix) override;
  math::Matrix transformationGet() const override;
  void vTransformationMultiply(const math::Matrix& matrix,
                               math::MatrixMultiplyOrder order) override;
  void vTransformationTranslate(const math::Vector3d& by, math::MatrixMultiplyOrder order) override;
  void vTransformationTranslate(const math::Point3d& to, math::MatrixMultiplyOrder order) override;
  void vPolyline(const std::vector<math::Point3d>& points) override;
  void vPoints(const std::vector<math::Point3d>& points) override;
  void vPolygon(const std::vector<Loop3d>& loops,
                std::optional<generate::draw::SurfaceDrawType> type = {}) override;
  void vPolygon(const std::vector<Loop2d>& loops,
                std::optional<generate::draw::SurfaceDrawType> type = {}) override;
  void triangulatedFaceSet(generate::draw::TriangulatedFaceSet&& faceSet) override;
  void triangulatedFaceSet(generate::draw::TriangulatedFaceSetOpenGL&& faceSet) override;
  void polygonalFaceSet(generate::draw::PolygonalFaceSetOpenGL&& faceSet) override;
  void vTextLiteral(const char* text, std::size_t length) override;
  generate::draw::TextBoxMeasure textLiteralMeasure(const char* text,
                                                    std::size_t length) const override;

  /// `type` has no effect.
  void drawConstRepresentationItem(
      std::shared_ptr<const resource::geometry::FcRepresentationItem> item,
      const FcDrawParams& params, generate::draw::SurfaceDrawType type) override;
  void drawRepresentationItem(std::shared_ptr<resource::geometry::FcRepresentationItem> item,
                              const FcDrawParams& params,
                              generate::draw::SurfaceDrawType type) override;
  std::optional<std::uint64_t> shownCount() const override { return m_shownCount; }
  generate::draw::BlockInterface* blockInterface() override;

  void startObject(const generate::ObjectInterface* object) override;
  void stopObject() override;
  bool boAttribute(const generate::AttributeInterface& attribute) override;
  void setMaterial(std::shared_ptr<const generate::draw::Material> material) override;
  std::shared_ptr<const generate::draw::Material> getMaterial() const override;
  void setColor(const generate::draw::Color& color) override;
  generate::draw::Color getColor() const override;

 protected:
  /// Gives the target the look of the item. An item without a style keeps the look of the one
  /// before it, the first of all is grey. Items that are drawn whole pass through here; what is
  /// left of one that is cut keeps the look in force, unless a subclass calls this before.
  void checkStyles(const resource::geometry::FcRepresentationItem& item);

 private:
  using Material = std::shared_ptr<const generate::draw::Material>;
  using Shading = resource::presentationappearance::FcSurfaceStyleShading;
  using Textures = resource::presentationappearance::FcSurfaceStyleWithTextures;

  /// What a style looks like, and the style itself, so that its address stays its own.
  struct StyleMaterial {
    Material material;
    std::shared_ptr<const FcBase> shading;
    std::shared_ptr<const FcBase> textures;
  };

  class CountedBlocks;

  void countShown(bool isSomething) { m_shownCount += isSomething ? 1 : 0; }
  const Material& materialOf(const Shading& shading, const Textures* textures);
  const Material& materialOf(const generate::draw::Color& color);

  generate::draw::DrawInterfaceBase& m_target;
  generate::draw::DrawInterface* m_objects;
  std::unique_ptr<CountedBlocks> m_blocks;  ///< null when the target keeps none
  std::uint64_t m_shownCount = 0;           ///< calls with something in them
  std::size_t m_openObjects = 0;
  std::map<std::pair<const Shading*, const Textures*>, StyleMaterial> m_materialByStyle;
  std::map<generate::draw::Color, Material, generate::draw::ColorLess> m_materialByColor;
};

}  // namespace qor::fc
