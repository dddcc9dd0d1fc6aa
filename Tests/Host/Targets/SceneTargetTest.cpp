#include "Host/Targets/SceneTarget.h"

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

#include "Fc/Document/FcDrawInterfaceWrapper.h"
#include "Fc/Reflection/MakeEntity.h"
#include "Fc/Resource/GeometricModel/FcBlock.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcCartesianTransformationOperator3DnonUniform.h"
#include "Fc/Resource/Geometry/FcDirection.h"
#include "Fc/Resource/Geometry/FcMappedItem.h"
#include "Fc/Resource/Geometry/FcRepresentationMap.h"
#include "Fc/Resource/Representation/FcShapeRepresentation.h"
#include "Fc/Shared/BuildingElements/FcWall.h"
#include "Host/Targets/RecordingTarget.h"
#include "Host/Targets/SceneMeasure.h"
#include "Tests/Support/ExpectAsserts.h"
#include "Tests/Support/Make.h"
#include "Tests/Support/SolidMesh.h"

namespace qor::host::targets {
namespace {

using fc::resource::geometricmodel::FcBlock;
using namespace fc::resource::geometry;
using fc::resource::representation::FcShapeRepresentation;
using fc::shared::buildingelements::FcWall;
using generate::draw::Color;
using generate::draw::Material;
using generate::draw::PolygonalFaceSetOpenGL;
using generate::draw::TriangulatedFaceSetOpenGL;
using math::Matrix;
using math::Point3d;
using test::boxFaces;
using test::ExpectAsserts;
constexpr auto left = math::MatrixMultiplyOrder::left;

const math::CurveDiscretization discretization(0.002, 16, 72);

std::shared_ptr<const Material> material(const Color& colour, std::optional<float> opacity = {}) {
  auto result = std::make_shared<Material>();
  result->setSurfaceColor(colour);
  result->setOpacity(opacity);
  return result;
}

MeshMeasure measureOf(const Scene& scene) { return measureObject(scene, scene.objects.at(0)); }

TEST(SceneTarget, KeepsContentInTheFrameOfTheObject) {
  SceneTarget target(discretization);
  const auto wall = fc::makeEntity<FcWall>();
  wall->setAttributeFromString("GlobalId", "2O2Fr$t4X7Zf8NOew3FNr2");
  wall->setName("South\nwall");
  target.startObject(wall.get());
  target.vTransformationMultiply(Matrix::createTranslation({1e6, 2, 3}), left);
  target.vTransformationMultiply(Matrix::createTranslation({0.5, 0, 0}), left);
  target.polygonalFaceSet(boxFaces(1, 1, 1));
  target.vPolyline({{0, 0, 0}, {1, 0, 0}});
  target.vTextLiteral("text", 4);
  target.stopObject();
  const Scene scene = target.takeScene();
  ASSERT_EQ(scene.objects.size(), 1u);
  const SceneObject& object = scene.objects[0];
  EXPECT_EQ(object.entity, wall.get());
  EXPECT_EQ(object.className + object.guid + object.name,
            "IFCWALL2O2Fr$t4X7Zf8NOew3FNr2South wall");
  EXPECT_EQ(object.frame.origin(), Point3d(1e6, 2, 3));
  EXPECT_EQ(object.content.lines[0].points[1], Point3d(1.5, 0, 0));
  EXPECT_EQ(object.content.texts[0].frame.origin(), Point3d(0.5, 0, 0));
  EXPECT_EQ(measureOf(scene).box, math::Extent({1e6 + 0.5, 2, 3}, {1e6 + 1.5, 3, 4}));
}

TEST(SceneTarget, KeepsBodiesWholeAndOutwardUnderMirrorsAndUnevenScales) {
  const auto box = test::make<FcBlock>({{"XLength", 1}, {"YLength", 2}, {"ZLength", 3}});
  const auto shape = test::make<FcShapeRepresentation>({{"Items", std::vector{box}}});
  const auto map = test::make<FcRepresentationMap>({{"MappedRepresentation", shape}});
  SceneTarget target(discretization);
  fc::FcDrawInterfaceWrapper wrapper(target);
  // The second use of the map is that of a block.
  for (const double hand : {-1.0, 1.0, -1.0}) {
    const auto op = test::make<FcCartesianTransformationOperator3DnonUniform>(
        {{"Axis2", makeDirection(math::Vector3d(0, hand, 0))},
         {"LocalOrigin", makePoint(Point3d(10, 0, 0))},
         {"Scale", 2},
         {"Scale2", 0.5}});
    const auto item = test::make<FcMappedItem>({{"MappingSource", map}, {"MappingTarget", op}});
    target.startObject(nullptr);
    target.vTransformationMultiply({}, left);  // that of the object
    target.vTransformationMultiply(Matrix::createScale(1, hand, 3), left);
    box->draw(fc::FcDrawParams(wrapper));
    item->draw(fc::FcDrawParams(wrapper));
    target.vTransformationSet(Matrix::createTranslation({0, 50, 0}));
    item->draw(fc::FcDrawParams(wrapper));
    target.stopObject();
  }
  const Scene scene = target.takeScene();
  ASSERT_EQ(scene.objects.size(), 3u);
  for (const SceneObject& object : scene.objects) {
    const MeshMeasure measure = measureObject(scene, object);
    EXPECT_NEAR(measure.volume, 6 * 3 + 12 * 3 + 12, 1e-12);
    EXPECT_TRUE(measure.closed);
  }
}

TEST(SceneTarget, JoinsRangesOfOneLook) {
  SceneTarget target(discretization);
  target.polygonalFaceSet(boxFaces(1, 1, 1));
  target.setMaterial(material({1, 0, 0}));
  target.polygonalFaceSet(boxFaces(1, 1, 1));
  target.setMaterial(material({1, 0, 0}));
  target.polygonalFaceSet(boxFaces(1, 1, 1));
  target.setMaterial(material({1, 0, 0}, 0.25f));
  target.polygonalFaceSet(boxFaces(1, 1, 1));
  const Scene scene = target.takeScene();
  const Mesh& mesh = scene.objects.at(0).content.mesh;
  ASSERT_EQ(mesh.ranges.size(), 3u);
  EXPECT_EQ(mesh.ranges[1].count, 24u);
  EXPECT_EQ(scene.materials[mesh.ranges[0].material], SceneMaterial());
  EXPECT_EQ(scene.materials[mesh.ranges[2].material], (SceneMaterial{1, 0, 0, 0.25f}));
}

/// Draws what is in a block the first time; `inner` frames it.
template <class Draw>
void drawBlock(SceneTarget& target, const char* name, const Matrix& frame, Draw&& draw) {
  const generate::draw::TransformationGuard guard(target);
  target.vTransformationMultiply(frame, left);
  if (target.startBlock(name) == 0) draw();
  target.stopBlock();
}

TEST(SceneTarget, SharesBlocksWithTheLookOfEachUse) {
  SceneTarget target(discretization);
  target.startObject(nullptr);
  target.vTransformationMultiply(Matrix::createTranslation({0, 0, 5}), left);
  const auto red = material({1, 0, 0}), green = material({0, 1, 0}), blue = material({0, 0, 1});
  for (const auto& look : {red, green}) {
    target.setMaterial(look);
    const double x = look == red ? 0 : 10;
    drawBlock(target, "outer", Matrix::createTranslation({x, 0, 0}), [&] {
      target.polygonalFaceSet(boxFaces(1, 1, 1));
      drawBlock(target, "inner", Matrix::createTranslation({0, 2, 0}), [&] {
        target.polygonalFaceSet(boxFaces(1, 1, 1));
        target.setMaterial(blue);
        target.polygonalFaceSet(boxFaces(0.5, 0.5, 0.5));
      });
    });
    EXPECT_EQ(target.getMaterial(), look) << "a block leaves the look as it was";
  }
  target.stopObject();
  const Scene scene = target.takeScene();
  ASSERT_EQ(scene.blocks.size(), 2u);
  ASSERT_EQ(scene.objects[0].content.instances.size(), 2u);
  std::vector<std::pair<Point3d, std::vector<SceneMaterial>>> seen;
  scene.forEachContent(scene.objects[0], [&](const SceneContent& content, const Matrix& frame,
                                             MaterialIndex inherited) {
    if (content.mesh.triangles.empty()) return;
    auto& [origin, looks] = seen.emplace_back(frame.origin(), std::vector<SceneMaterial>());
    for (const MeshRange& range : content.mesh.ranges)
      looks.push_back(
          scene.materials[range.material == inheritedMaterial ? inherited : range.material]);
  });
  const SceneMaterial r{1, 0, 0, 1}, g{0, 1, 0, 1}, b{0, 0, 1, 1};
  const decltype(seen) expected{
      {{0, 0, 5}, {r}}, {{0, 2, 5}, {r, b}}, {{10, 0, 5}, {g}}, {{10, 2, 5}, {g, b}}};
  EXPECT_EQ(seen, expected);
}

TEST(SceneTarget, LeavesOutWhatIsNoPlaceInAModel) {
  const char* lost = "Coordinates that are no place in a model, left out";
  const ExpectAsserts asserts({lost, lost, lost, "Illegal index in face"});
  SceneTarget target(discretization);
  PolygonalFaceSetOpenGL set = boxFaces(1, 1, 1);
  set.coordinates[7].x = std::nan("");
  set.faces.push_back({{0, 1, 99}});
  target.polygonalFaceSet(std::move(set));
  TriangulatedFaceSetOpenGL triangles;
  triangles.setVertexData({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {1e300, 0, 0}});
  triangles.triangles = {{0, 1, 2}, {0, 1, 3}};
  target.triangulatedFaceSet(std::move(triangles));
  target.vPolyline({{0, 0, 0}, {INFINITY, 0, 0}, {2, 0, 0}});
  const Scene scene = target.takeScene();
  const MeshMeasure measure = measureOf(scene);
  EXPECT_EQ(measure.triangles, 7u);
  EXPECT_EQ(scene.objects[0].content.lines[0].points.size(), 2u);
  EXPECT_EQ(scene.box(), math::Extent({0, 0, 0}, {2, 1, 1}));
}

TEST(RecordingTarget, WritesEachCallAsALine) {
  std::ostringstream out;
  RecordingTarget target(discretization, out);
  const auto wall = fc::makeEntity<FcWall>();
  wall->setName("W\xC3\xA4nd");
  target.startObject(wall.get());
  target.vTransformationMultiply(Matrix::createTranslation({1, 2, 3}), left);
  target.setMaterial(material({0.5f, 0, 1}));
  EXPECT_EQ(target.startBlock("0x1234"), 0u);
  target.polygonalFaceSet(boxFaces(2, 2, 2));
  target.stopBlock();
  EXPECT_NE(target.startBlock("0x1234"), 0u);
  target.stopBlock();
  target.vPolyline({{0, 0, 0}, {0.1, -0.0, 1e-12}});
  target.stopObject();
  EXPECT_EQ(out.str(),
            "startObject IFCWALL 'W\xC3\xA4nd' 0000000000000000000000\n"
            "  vTransformationMultiply left x (1 0 0) y (0 1 0) z (0 0 1) origin (1 2 3)\n"
            "  setMaterial (0.5 0 1) opacity 1\n"
            "  startBlock 1\n"
            "    polygonalFaceSet 8 points, 6 faces, from (0 0 0) to (2 2 2)\n"
            "  stopBlock\n"
            "  startBlock 1 again\n"
            "  stopBlock\n"
            "  vPolyline 2 points (0 0 0) (0.1 0 1e-12)\n"
            "stopObject\n");
}

}  // namespace
}  // namespace qor::host::targets
