#include "Fc/Document/FcDrawInterfaceWrapper.h"

#include <string>
#include <unordered_set>
#include <utility>

#include "Fc/Resource/Geometry/FcRepresentationItem.h"
#include "Fc/Resource/PresentationAppearance/FcSurfaceStyleShading.h"
#include "Fc/Resource/PresentationAppearance/FcSurfaceStyleWithTextures.h"
#include "Fc/Resource/PresentationAppearance/ItemAppearance.h"

namespace qor::fc {

using generate::draw::Color;
using resource::geometry::FcRepresentationItem;

namespace {

constexpr Color unstyled{0.6F, 0.6F, 0.6F};

template <class Loop>
bool hasPoints(const std::vector<Loop>& loops) {
  return !loops.empty() && !loops.front().empty();
}

}  // namespace

/// Hands blocks on to the target. A known one counts as something to see unless it was filled with
/// nothing.
class FcDrawInterfaceWrapper::CountedBlocks : public generate::draw::BlockInterface {
 public:
  CountedBlocks(BlockInterface& target, std::uint64_t& shownCount)
      : m_target(target), m_shownCount(shownCount) {}

  std::uint32_t startBlock(const std::string& name) override {
    const std::uint32_t answer = m_target.startBlock(name);
    if (answer != 0 && !m_empty.contains(name)) ++m_shownCount;
    m_open.push_back({answer == 0 ? name : std::string(), m_shownCount});
    return answer;
  }
  void stopBlock() override {
    if (!m_open.empty()) {
      Open& open = m_open.back();
      if (!open.newName.empty() && open.shownBefore == m_shownCount)
        m_empty.insert(std::move(open.newName));
      m_open.pop_back();
    }
    m_target.stopBlock();
  }

 private:
  struct Open {
    std::string newName;
    std::uint64_t shownBefore;
  };

  BlockInterface& m_target;
  std::uint64_t& m_shownCount;
  std::vector<Open> m_open;
  std::unordered_set<std::string> m_empty;
};

FcDrawInterfaceWrapper::FcDrawInterfaceWrapper(generate::draw::DrawInterfaceBase& target)
    : m_target(target), m_objects(dynamic_cast<generate::draw::DrawInterface*>(&target)) {
  if (auto* const blocks = dynamic_cast<generate::draw::BlockInterface*>(&target))
    m_blocks = std::make_unique<CountedBlocks>(*blocks, m_shownCount);
  // A subclass makes the virtual base itself, and needn't know how.
  setCurveDiscretization(target.curveDiscretization());
}

FcDrawInterfaceWrapper::~FcDrawInterfaceWrapper() {
  try {
    while (m_openObjects > 0) stopObject();
  } catch (...) {  // NOLINT(bugprone-empty-catch): no way on from here
  }
}

void FcDrawInterfaceWrapper::vTransformationSet(const math::Matrix& matrix) {
  m_target.vTransformationSet(matrix);
}
math::Matrix FcDrawInterfaceWrapper::transformationGet() const {
  return m_target.transformationGet();
}
void FcDrawInterfaceWrapper::vTransformationMultiply(const math::Matrix& matrix,
                                                     math::MatrixMultiplyOrder order) {
  m_target.vTransformationMultiply(matrix, order);
}
void FcDrawInterfaceWrapper::vTransformationTranslate(const math::Vector3d& by,
                                                      math::MatrixMultiplyOrder order) {
  m_target.vTransformationTranslate(by, order);
}
void FcDrawInterfaceWrapper::vTransformationTranslate(const math::Point3d& to,
                                                      math::MatrixMultiplyOrder order) {
  m_target.vTransformationTranslate(to, order);
}
void FcDrawInterfaceWrapper::vPolyline(const std::vector<math::Point3d>& points) {
  countShown(!points.empty());
  m_target.vPolyline(points);
}
void FcDrawInterfaceWrapper::vPoints(const std::vector<math::Point3d>& points) {
  countShown(!points.empty());
  m_target.vPoints(points);
}
void FcDrawInterfaceWrapper::vPolygon(const std::vector<Loop3d>& loops,
                                      std::optional<generate::draw::SurfaceDrawType> type) {
  countShown(hasPoints(loops));
  m_target.vPolygon(loops, type);
}
void FcDrawInterfaceWrapper::vPolygon(const std::vector<Loop2d>& loops,
                                      std::optional<generate::draw::SurfaceDrawType> type) {
  countShown(hasPoints(loops));
  m_target.vPolygon(loops, type);
}
void FcDrawInterfaceWrapper::triangulatedFaceSet(generate::draw::TriangulatedFaceSet&& faceSet) {
  countShown(!faceSet.triangles.empty());
  m_target.triangulatedFaceSet(std::move(faceSet));
}
void FcDrawInterfaceWrapper::triangulatedFaceSet(
    generate::draw::TriangulatedFaceSetOpenGL&& faceSet) {
  countShown(!faceSet.triangles.empty());
  m_target.triangulatedFaceSet(std::move(faceSet));
}
void FcDrawInterfaceWrapper::polygonalFaceSet(generate::draw::PolygonalFaceSetOpenGL&& faceSet) {
  countShown(!faceSet.faces.empty());
  m_target.polygonalFaceSet(std::move(faceSet));
}
void FcDrawInterfaceWrapper::vTextLiteral(const char* text, std::size_t length) {
  countShown(length > 0);
  m_target.vTextLiteral(text, length);
}
generate::draw::TextBoxMeasure FcDrawInterfaceWrapper::textLiteralMeasure(
    const char* text, std::size_t length) const {
  return m_target.textLiteralMeasure(text, length);
}

generate::draw::BlockInterface* FcDrawInterfaceWrapper::blockInterface() { return m_blocks.get(); }

void FcDrawInterfaceWrapper::drawConstRepresentationItem(
    std::shared_ptr<const FcRepresentationItem> item, const FcDrawParams& params,
    generate::draw::SurfaceDrawType /*type*/) {
  if (isClipping()) return drawItemClipped(item, params);
  checkStyles(*item);
  item->draw(params);
}

void FcDrawInterfaceWrapper::drawRepresentationItem(std::shared_ptr<FcRepresentationItem> item,
                                                    const FcDrawParams& params,
                                                    generate::draw::SurfaceDrawType type) {
  drawConstRepresentationItem(std::move(item), params, type);
}

void FcDrawInterfaceWrapper::startObject(const generate::ObjectInterface* object) {
  if (!m_objects) return;
  m_objects->startObject(object);
  ++m_openObjects;
}
void FcDrawInterfaceWrapper::stopObject() {
  if (m_openObjects == 0) return;
  --m_openObjects;
  m_objects->stopObject();
}
bool FcDrawInterfaceWrapper::boAttribute(const generate::AttributeInterface& attribute) {
  return m_objects && m_objects->boAttribute(attribute);
}
void FcDrawInterfaceWrapper::setMaterial(Material material) {
  if (m_objects) m_objects->setMaterial(std::move(material));
}
FcDrawInterfaceWrapper::Material FcDrawInterfaceWrapper::getMaterial() const {
  return m_objects ? m_objects->getMaterial() : nullptr;
}
void FcDrawInterfaceWrapper::setColor(const Color& color) {
  if (m_objects) m_objects->setColor(color);
}
Color FcDrawInterfaceWrapper::getColor() const {
  return m_objects ? m_objects->getColor() : Color();
}

void FcDrawInterfaceWrapper::checkStyles(const FcRepresentationItem& item) {
  if (!m_objects) return;
  const ItemAppearance appearance = ItemAppearance::of(item);
  if (appearance.shading)
    m_objects->setMaterial(materialOf(*appearance.shading, appearance.textures));
  else if (appearance.color || !m_objects->getMaterial())
    m_objects->setMaterial(materialOf(appearance.color.value_or(unstyled)));
}

const FcDrawInterfaceWrapper::Material& FcDrawInterfaceWrapper::materialOf(
    const Shading& shading, const Textures* textures) {
  StyleMaterial& known = m_materialByStyle[{&shading, textures}];
  if (known.material) return known.material;
  const auto material = shading.getMaterial();
  if (textures)
    for (generate::draw::Texture& texture : textures->getTextures())
      material->addDiffuseTexture(std::move(texture));
  known = {material, shading.shared_from_this(), textures ? textures->shared_from_this() : nullptr};
  return known.material;
}

const FcDrawInterfaceWrapper::Material& FcDrawInterfaceWrapper::materialOf(const Color& color) {
  Material& known = m_materialByColor[color];
  if (!known) {
    const auto material = std::make_shared<generate::draw::Material>();
    material->setSurfaceColor(color);
    known = material;
  }
  return known;
}

}  // namespace qor::fc
