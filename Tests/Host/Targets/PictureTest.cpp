#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "Host/Targets/ScenePicture.h"
#include "Qor/Image/Png.h"

namespace qor::host::targets {
namespace {

using image::Image;
using image::Pixel;
using math::Matrix;
using math::Point3d;

constexpr Pixel white{255, 255, 255, 255};
constexpr SceneMaterial redMaterial{1, 0, 0, 1}, greenMaterial{0, 1, 0, 1},
    glassMaterial{0, 0, 1, 0.5f};

/// A scene of rectangles that lie flat, each an object.
struct Rectangles {
  Rectangles& add(double x, double y, double z, double width, double depth,
                  const SceneMaterial& material) {
    SceneObject& object = scene.objects.emplace_back();
    object.frame = Matrix::createTranslation({x, y, z});
    object.content.mesh = {{{0, 0, 0}, {width, 0, 0}, {width, depth, 0}, {0, depth, 0}},
                           {0, 1, 2, 0, 2, 3},
                           {{static_cast<MaterialIndex>(scene.materials.size()), 0, 2}}};
    scene.materials.push_back(material);
    return *this;
  }
  Scene scene{};
};

bool isMostly(const Pixel& pixel, std::size_t channel) {
  for (std::size_t i = 0; i < 3; ++i)
    if (i != channel && pixel[i] > pixel[channel] / 2) return false;
  return pixel[channel] > 100;
}

TEST(Picture, ShowsTheNearerInFrontInAnyOrder) {
  for (const bool redFirst : {true, false}) {
    Rectangles model;
    if (redFirst) model.add(0, 0, 0, 10, 10, redMaterial).add(0, 0, 1, 5, 10, greenMaterial);
    if (!redFirst) model.add(0, 0, 1, 5, 10, greenMaterial).add(0, 0, 0, 10, 10, redMaterial);
    const Image picture = pictureOf(model.scene, View::plan, 200, 200);
    EXPECT_TRUE(isMostly(picture.at(50, 100), 1)) << "the higher one on the left";
    EXPECT_TRUE(isMostly(picture.at(150, 100), 0));
    EXPECT_EQ(picture.at(2, 2), white);
    EXPECT_LT(picture.at(100, 100)[0] + picture.at(100, 100)[1], 160) << "an edge between them";
  }
}

TEST(Picture, ShowsWhatIsBehindGlass) {
  Rectangles model;
  model.add(0, 0, 1, 5, 10, glassMaterial).add(0, 0, 0, 10, 10, redMaterial);
  const Image picture = pictureOf(model.scene, View::plan, 200, 200);
  const Pixel behind = picture.at(50, 100), bare = picture.at(150, 100);
  EXPECT_NEAR(behind[0], bare[0] / 2, 4);
  EXPECT_NEAR(behind[2], bare[0] / 2, 4);
}

TEST(Picture, LooksFromTheSideThatTheViewNames) {
  // A plate along X and Y that reaches up at its far right corner.
  Scene scene;
  scene.materials = {redMaterial};
  scene.objects.resize(1);
  scene.objects[0].content.mesh = {
      {{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {10, 10, 10}}, {0, 1, 2, 1, 2, 3, 0, 2, 3}, {{0, 0, 3}}};
  struct Case {
    View view;
    std::size_t filledX, filledY, emptyX, emptyY;
  };
  const Case cases[] = {{View::plan, 80, 70, 20, 30},
                        {View::front, 80, 70, 20, 30},
                        {View::side, 80, 70, 20, 30},
                        {View::iso, 60, 56, 30, 20}};
  for (const Case& expected : cases) {
    const Image picture = pictureOf(scene, expected.view, 100, 100);
    EXPECT_NE(picture.at(expected.filledX, expected.filledY), white);
    EXPECT_EQ(picture.at(expected.emptyX, expected.emptyY), white);
  }
}

TEST(Picture, DrawsBlocksWithTheMaterialOfTheirUse) {
  Scene scene;
  scene.materials = {redMaterial, greenMaterial};
  scene.blocks.resize(1);
  scene.blocks[0].mesh = {{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}},
                          {0, 1, 2, 0, 2, 3},
                          {{inheritedMaterial, 0, 2}}};
  scene.objects.resize(1);
  scene.objects[0].content.instances = {{0, {}, 0}, {0, Matrix::createTranslation({9, 0, 0}), 1}};
  const Image picture = pictureOf(scene, View::plan, 200, 40);
  EXPECT_TRUE(isMostly(picture.at(17, 20), 0));
  EXPECT_TRUE(isMostly(picture.at(183, 20), 1));
  EXPECT_EQ(picture.at(100, 20), white);
}

TEST(Picture, LeavesNoGapBetweenTrianglesOfASurface) {
  // A fan of thin triangles around a point that lies on no sample.
  Scene scene;
  scene.materials = {redMaterial};
  scene.objects.resize(1);
  Mesh& mesh = scene.objects[0].content.mesh;
  mesh.points.push_back({0.0123, 0.0456, 0});
  constexpr std::uint32_t count = 360;
  for (std::uint32_t i = 0; i < count; ++i) {
    const double angle = i * 2 * std::numbers::pi / count;
    mesh.points.push_back({std::cos(angle), std::sin(angle), 0});
    mesh.triangles.insert(mesh.triangles.end(), {0, i + 1, (i + 1) % count + 1});
  }
  mesh.ranges = {{0, 0, count}};
  const Image picture = pictureOf(scene, View::plan, 301, 301);
  const Pixel inside = picture.at(150, 150);
  for (std::size_t y = 60; y < 240; ++y)
    for (std::size_t x = 60; x < 240; ++x) ASSERT_EQ(picture.at(x, y), inside) << x << ' ' << y;
}

TEST(Picture, DrawsLinesOnSurfacesInFrontOfThem) {
  Rectangles model;
  model.add(0, 0, 0, 10, 10, redMaterial);
  model.scene.objects[0].content.lines = {{1, {{0, 5, 0}, {10, 5, 0}}}};
  model.scene.materials.push_back(greenMaterial);
  for (const View view : {View::plan, View::iso})
    EXPECT_TRUE(isMostly(pictureOf(model.scene, view, 200, 200).at(100, 100), 1));
}

TEST(Picture, IsWhiteWithoutAModel) {
  const Image picture = pictureOf({}, View::iso, 20, 10);
  EXPECT_EQ(picture.pixels(), std::vector<Pixel>(200, white));
}

TEST(Png, ComesBackAsItWas) {
  for (const std::uint8_t opacity : {255, 128}) {
    Image image(7, 3, {1, 2, 3, opacity});
    image.at(6, 2) = {200, 100, 50, 255};
    const auto read = image::fromPng(toPng(image));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->width(), 7u);
    EXPECT_EQ(read->pixels(), image.pixels());
  }
  EXPECT_EQ(toPng(Image()), "");
  EXPECT_FALSE(image::fromPng("no picture"));
  const std::string bytes = toPng(Image(7, 3));
  EXPECT_FALSE(image::fromPng(std::string_view(bytes).substr(0, bytes.size() / 2)));
}

}  // namespace
}  // namespace qor::host::targets
