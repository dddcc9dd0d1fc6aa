#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "Fc/Drawing/FcDrawInterface.h"
#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/Resource/Geometry/FcRepresentationItem.h"
#include "Qor/Draw/DrawInterface.h"

namespace qor::test {

/// A target without materials that keeps what items draw into it, each call with the frame of that
/// moment.
class DrawRecorder : public fc::FcDrawInterface {
 public:
  template <class T>
  struct Drawn {
    T what;
    math::Matrix frame;
  };
  using PolygonalSet = generate::draw::PolygonalFaceSetOpenGL;
  using TriangulatedSet = generate::draw::TriangulatedFaceSetOpenGL;

  DrawRecorder() : DrawRecorder(math::CurveDiscretization(1e-3, 24, 24)) {}
  explicit DrawRecorder(const math::CurveDiscretization& discretization)
      : DrawInterfaceBase(discretization) {}

  /// Draws one item as a walk would.
  void draw(const fc::resource::geometry::FcRepresentationItem& item) {
    item.draw(fc::FcDrawParams(*this));
  }

  std::vector<Drawn<PolygonalSet>> polygonalSets;
  std::vector<Drawn<TriangulatedSet>> triangulatedSets;
  std::vector<Drawn<std::vector<Loop3d>>> polygons;
  std::vector<Drawn<std::vector<Loop2d>>> flatPolygons;
  std::vector<Drawn<std::vector<math::Point3d>>> polylines;
  std::vector<Drawn<std::string>> texts;
  /// Of items that came whole.
  std::vector<const fc::FcBase*> items;

  bool empty() const {
    return polygonalSets.empty() && triangulatedSets.empty() && polygons.empty() &&
           flatPolygons.empty() && polylines.empty() && texts.empty();
  }

  void vTransformationSet(const math::Matrix& matrix) override { m_frame = matrix; }
  math::Matrix transformationGet() const override { return m_frame; }
  void vTransformationMultiply(const math::Matrix& matrix,
                               math::MatrixMultiplyOrder order) override {
    m_frame = order == math::MatrixMultiplyOrder::left ? matrix * m_frame : m_frame * matrix;
  }
  void vPolyline(const std::vector<math::Point3d>& points) override {
    polylines.push_back({points, m_frame});
  }
  void vPolygon(const std::vector<Loop3d>& loops,
                std::optional<generate::draw::SurfaceDrawType> /*type*/) override {
    polygons.push_back({loops, m_frame});
  }
  void vPolygon(const std::vector<Loop2d>& loops,
                std::optional<generate::draw::SurfaceDrawType> /*type*/) override {
    flatPolygons.push_back({loops, m_frame});
  }
  using DrawInterfaceBase::triangulatedFaceSet;
  void triangulatedFaceSet(TriangulatedSet&& faceSet) override {
    triangulatedSets.push_back({std::move(faceSet), m_frame});
  }
  void polygonalFaceSet(PolygonalSet&& faceSet) override {
    polygonalSets.push_back({std::move(faceSet), m_frame});
  }
  void vTextLiteral(const char* text, std::size_t length) override {
    texts.push_back({std::string(text, length), m_frame});
  }
  void drawConstRepresentationItem(
      std::shared_ptr<const fc::resource::geometry::FcRepresentationItem> item,
      const fc::FcDrawParams& params, generate::draw::SurfaceDrawType /*type*/) override {
    items.push_back(item.get());
    item->draw(params);
  }
  void drawRepresentationItem(std::shared_ptr<fc::resource::geometry::FcRepresentationItem> item,
                              const fc::FcDrawParams& params,
                              generate::draw::SurfaceDrawType type) override {
    drawConstRepresentationItem(std::move(item), params, type);
  }

 private:
  math::Matrix m_frame;
};

/// The same for a target that takes materials.
class MaterialRecorder : public DrawRecorder, public generate::draw::DrawInterface {
 public:
  MaterialRecorder() : DrawInterfaceBase(math::CurveDiscretization(1e-3, 24, 24)) {}

  /// For each set of faces the surface colour that it came in.
  std::vector<generate::draw::Color> colours;

  using DrawRecorder::triangulatedFaceSet;
  void triangulatedFaceSet(TriangulatedSet&& faceSet) override {
    noteColour();
    DrawRecorder::triangulatedFaceSet(std::move(faceSet));
  }
  void polygonalFaceSet(PolygonalSet&& faceSet) override {
    noteColour();
    DrawRecorder::polygonalFaceSet(std::move(faceSet));
  }
  void startObject(const generate::ObjectInterface* /*object*/) override {}
  void stopObject() override {}
  bool boAttribute(const generate::AttributeInterface& /*attribute*/) override { return false; }
  void setMaterial(std::shared_ptr<const generate::draw::Material> material) override {
    m_material = std::move(material);
  }
  std::shared_ptr<const generate::draw::Material> getMaterial() const override {
    return m_material;
  }
  void setColor(const generate::draw::Color& /*color*/) override {}
  generate::draw::Color getColor() const override { return {}; }

 private:
  void noteColour() {
    colours.push_back(m_material ? m_material->getSurfaceColor() : generate::draw::Color());
  }
  std::shared_ptr<const generate::draw::Material> m_material;
};

}  // namespace qor::test
