#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <nlohmann/json.hpp>
#include <sstream>

#include "Host/Targets/FeatureEdges.h"
#include "Host/Targets/GltfWriter.h"
#include "Host/Targets/ObjWriter.h"
#include "Host/Targets/SvgWriter.h"

namespace qor::host::targets {
namespace {

using math::Matrix;
using math::Point3d;
using nlohmann::json;
using testing::HasSubstr;

Mesh rectangle(double x, double y, MaterialIndex material) {
  return {{{0, 0, 0}, {x, 0, 0}, {x, y, 0}, {0, y, 0}}, {0, 1, 2, 0, 2, 3}, {{material, 0, 2}}};
}

/// A storey with a slab far from the origin, and two windows of one block on it.
Scene sample() {
  Scene scene;
  scene.materials = {{0.6f, 0.6f, 0.6f, 1}, {1, 0, 0, 1}, {0, 0, 1, 0.5f}};
  scene.blocks.resize(1);
  scene.blocks[0].mesh = rectangle(1, 2, inheritedMaterial);
  scene.objects.resize(5);
  scene.objects[0] = {.className = "IFCBUILDINGSTOREY", .guid = "S", .name = "Ground floor"};
  scene.objects[0].frame = Matrix::createTranslation({450000, 5400000, 100});
  scene.objects[1] = {.className = "IFCSLAB", .guid = "A", .name = "Sl\u00E4b", .parent = 0};
  scene.objects[1].frame = Matrix::createTranslation({450000.25, 5400000.5, 100});
  scene.objects[1].content.mesh = rectangle(10, 5, 1);
  for (std::size_t i = 2; i < 4; ++i) {
    scene.objects[i] = {.className = "IFCWINDOW", .guid = "W", .name = "Window", .parent = 0};
    scene.objects[i].frame = scene.objects[1].frame;
    const Matrix frame =
        i == 2 ? Matrix::createTranslation({2, 0, 0}) : Matrix::createScale(-1, 1, 1);
    scene.objects[i].content.instances = {{0, frame, 2}};
  }
  scene.objects[4] = {.className = "IFCOPENINGELEMENT", .guid = "O", .name = "Nothing"};
  return scene;
}

/// The two chunks of a binary glTF.
struct Glb {
  explicit Glb(const Scene& scene) {
    std::ostringstream out;
    EXPECT_TRUE(writeGlb(scene, out));
    const std::string bytes = out.str();
    const auto word = [&](std::size_t at) {
      std::uint32_t value = 0;
      std::memcpy(&value, bytes.data() + at, 4);
      return value;
    };
    EXPECT_EQ(bytes.substr(0, 4), "glTF");
    EXPECT_EQ(word(4), 2u);
    EXPECT_EQ(word(8), bytes.size());
    EXPECT_EQ(word(12) % 4, 0u);
    content = json::parse(bytes.substr(20, word(12)));
    if (20 + word(12) < bytes.size()) numbers = bytes.substr(20 + word(12) + 8);
  }

  json content;
  std::string numbers;
};

TEST(Glb, PlacesObjectsUnderTheirParents) {
  const Glb file(sample());
  const json& root = file.content["nodes"][file.content["scenes"][0]["nodes"][0].get<int>()];
  EXPECT_EQ(root["translation"], json({450005, 100, -5400003})) << "whole metres, Y up";
  ASSERT_EQ(root["children"].size(), 1u) << "what draws nothing is left out";
  const json& storey = file.content["nodes"][root["children"][0].get<int>()];
  EXPECT_EQ(storey["name"], "Ground floor");
  EXPECT_EQ(storey["translation"], json({-5, -3, 0}));
  EXPECT_EQ(storey["extras"], json({{"GlobalId", "S"}, {"class", "IFCBUILDINGSTOREY"}}));
  ASSERT_EQ(storey["children"].size(), 3u);
  const json& slab = file.content["nodes"][storey["children"][0].get<int>()];
  EXPECT_EQ(slab["name"], "Sl\u00E4b");
  EXPECT_EQ(slab["translation"], json({0.25, 0.5, 0}));
  EXPECT_TRUE(slab.contains("mesh"));
}

TEST(Glb, SharesTheMeshOfABlock) {
  const Glb file(sample());
  EXPECT_EQ(file.content["meshes"].size(), 2u);
  std::vector<int> used;
  for (const json& node : file.content["nodes"])
    if (node.contains("mesh") && !node.contains("name")) used.push_back(node["mesh"]);
  ASSERT_EQ(used.size(), 2u);
  EXPECT_EQ(used[0], used[1]);
  const json& mesh = file.content["meshes"][static_cast<std::size_t>(used[0])];
  const json& glass = file.content["materials"][mesh["primitives"][0]["material"].get<int>()];
  EXPECT_EQ(glass["alphaMode"], "BLEND");
  EXPECT_EQ(glass["pbrMetallicRoughness"]["baseColorFactor"], json({0.0, 0.0, 1.0, 0.5}));
}

TEST(Glb, TellsTheBoundsOfWhatItHolds) {
  Scene scene = sample();
  for (Point3d& point : scene.objects[1].content.mesh.points) point.x += 123456.1;
  const Glb file(scene);
  for (const json& accessor : file.content["accessors"]) {
    const json& view = file.content["bufferViews"][accessor["bufferView"].get<int>()];
    const std::size_t begin = view.value("byteOffset", 0u) + accessor.value("byteOffset", 0u);
    ASSERT_LE(begin + accessor["count"].get<std::size_t>() * 4, file.numbers.size());
    if (accessor["type"] != "VEC3") continue;
    for (std::size_t axis = 0; axis < 3; ++axis) {
      float low = INFINITY, high = -INFINITY;
      for (std::size_t i = 0; i < accessor["count"]; ++i) {
        float value = 0;
        std::memcpy(&value, file.numbers.data() + begin + i * 12 + axis * 4, 4);
        low = std::min(low, value);
        high = std::max(high, value);
      }
      EXPECT_EQ(accessor["min"][axis].get<float>(), low);
      EXPECT_EQ(accessor["max"][axis].get<float>(), high);
      EXPECT_LT(high, 1000) << "a mesh lies near its own origin";
    }
  }
}

TEST(Glb, BakesFramesThatANodeCannotHave) {
  Scene scene = sample();
  scene.objects[2].content.instances[0].frame =
      Matrix({1, 0, 0}, {0.5, 1, 0}, {0, 0, 1}, {0, 0, 0});
  const Glb file(scene);
  EXPECT_EQ(file.content["meshes"].size(), 3u);
  for (const json& node : file.content["nodes"])
    EXPECT_EQ(node.contains("matrix") ? node["matrix"][4].get<double>() : 0, 0);
}

TEST(Glb, IsAFileWithoutAModelToo) {
  const Glb file{Scene()};
  EXPECT_EQ(file.content["nodes"].size(), 1u);
  EXPECT_FALSE(file.content.contains("buffers"));
}

TEST(Obj, WritesEachUseOfABlockOutward) {
  std::ostringstream out, materials;
  writeObj(sample(), "model.mtl", out, materials);
  const std::string text = out.str();
  EXPECT_THAT(text, HasSubstr("mtllib model.mtl\no IFCSLAB_Sl\u00E4b_A\n"
                              "v 450000.250000 5400000.500000 100.000000\n"));
  EXPECT_THAT(text, HasSubstr("v 450002.250000 5400000.500000 100.000000\n"));
  EXPECT_THAT(text, HasSubstr("usemtl m2\nf 5 6 7\nf 5 7 8\n"));
  EXPECT_THAT(text, HasSubstr("usemtl m2\nf 9 11 10\nf 9 12 11\n")) << "mirrored";
  EXPECT_THAT(materials.str(), HasSubstr("newmtl m2\nKd 0 0 1\nd 0.5\n"));
}

TEST(Svg, DrawsLinesTextsAndAScaleBar) {
  Scene scene;
  scene.materials = {{1, 0, 0, 1}};
  scene.objects.resize(1);
  scene.objects[0].name = "A & B";
  scene.objects[0].content.lines = {{0, {{0, 0, 0}, {100, 0, 0}, {100, 50, 0}}}};
  scene.objects[0].content.texts = {
      {0, "<7>", Matrix({-1, 0, 0}, {0, -1, 0}, {0, 0, 1}, {50, 25, 0})},
      {0, "up", Matrix({0, -1, 0}, {1, 0, 0}, {0, 0, 1}, {50, 25, 0})}};
  std::ostringstream out;
  writeSvg(scene, View::plan, "Title > 1", out);
  const std::string svg = out.str();
  EXPECT_THAT(svg, HasSubstr("height=\"900\"")) << "half as high as wide, and the margins";
  EXPECT_THAT(svg, HasSubstr("<polyline stroke=\"#ff0000\" points=\"80.00,760.00 1520.00,760.00 "
                             "1520.00,40.00 \"/>"));
  EXPECT_THAT(svg, HasSubstr("rotate(0.0 800.00 400.00)\" fill=\"#ff0000\">&lt;7&gt;</text>"))
      << "not upside down";
  EXPECT_THAT(svg, HasSubstr("rotate(-90.0 800.00 400.00)\" fill=\"#ff0000\">up</text>"));
  EXPECT_THAT(svg, HasSubstr("h288.00v-8\"/>")) << "20 m of 14.4 pixels";
  EXPECT_THAT(svg, HasSubstr(">20 m</text>"));
  EXPECT_THAT(svg, HasSubstr("A &amp; B</title>"));
  EXPECT_THAT(svg, HasSubstr(">Title &gt; 1</text>"));
}

TEST(FeatureEdges, AreThoseThatBoundOrBreakASurface) {
  // Two squares that meet at 10, then at 60 degrees, with points of their own.
  for (const double angle : {10.0, 60.0}) {
    const double c = std::cos(angle * M_PI / 180), s = std::sin(angle * M_PI / 180);
    const std::vector<Point3d> points{{0, 0, 0}, {1, 0, 0},     {1, 1, 0},     {0, 1, 0},
                                      {1, 0, 0}, {1 + c, 0, s}, {1 + c, 1, s}, {1, 1, 0}};
    const auto edges = featureEdges(points, {0, 1, 2, 0, 2, 3, 4, 5, 6, 4, 6, 7});
    EXPECT_EQ(edges.size(), angle < 25 ? 6u : 7u);
  }
}

}  // namespace
}  // namespace qor::host::targets
