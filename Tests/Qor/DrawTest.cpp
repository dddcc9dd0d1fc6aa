#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <set>

#include "Qor/Draw/DrawInterfaceBase.h"
#include "Qor/Draw/Material.h"
#include "Qor/Draw/PolygonOrientation.h"
#include "Qor/Draw/Profile2D.h"
#include "Qor/Draw/Representation.h"
#include "Qor/Draw/TextureCoordsCalculateHelper.h"
#include "Tests/Support/ExpectAsserts.h"

namespace qor::generate::draw {
namespace {

using math::Matrix;
using math::MatrixMultiplyOrder;
using math::Point2d;
using math::Point3d;
using test::ExpectAsserts;
using testing::ElementsAre;
using testing::Pair;

/// Keeps polygons, and leaves all else to the base forms.
class PolygonTarget : public DrawInterfaceBase {
 public:
  std::vector<std::pair<std::vector<Loop3d>, std::optional<SurfaceDrawType>>> polygons;
  std::vector<std::size_t> polylines;
  Matrix frame;

  void vTransformationSet(const Matrix& matrix) override { frame = matrix; }
  Matrix transformationGet() const override { return frame; }
  void vTransformationMultiply(const Matrix& matrix, MatrixMultiplyOrder order) override {
    frame = order == MatrixMultiplyOrder::left ? matrix * frame : frame * matrix;
  }
  void vPolyline(const std::vector<Point3d>& points) override {
    polylines.push_back(points.size());
  }
  using DrawInterfaceBase::vPolygon;
  void vPolygon(const std::vector<Loop3d>& loops, std::optional<SurfaceDrawType> type) override {
    polygons.emplace_back(loops, type);
  }
  void vTextLiteral(const char*, std::size_t) override {}
};

PolygonalFaceSetOpenGL square(double z, bool texture) {
  PolygonalFaceSetOpenGL set;
  set.coordinates = {{0, 0, z}, {1, 0, z}, {1, 1, z}, {0, 1, z}};
  set.faces = {{{0, 1, 2, 3}}};
  if (texture) set.textureCoordinates = {{{0, 0}, {1, 0}, {1, 1}, {0, 1}}};
  return set;
}

TEST(DrawTargets, GetFaceSetsAsPolygons) {
  PolygonTarget target;
  auto set = square(0, false);
  set.faces = {{{0, 1, 2}, {{1, 2, 3}}}, {{0, 1, 4}}, {{0, 1, 2}, {{1, 2, 9}}}, {{3, 2, 1}}};
  const ExpectAsserts expected(
      {"Illegal index in face", "Illegal index in face", "Illegal index in face"});
  target.drawPolygonalFaceSetAsPolygons(set, SurfaceDrawType::Surface);
  const auto& c = set.coordinates;
  using Loops = std::vector<std::vector<Point3d>>;
  EXPECT_THAT(
      target.polygons,
      ElementsAre(Pair(Loops{{c[0], c[1], c[2]}, {c[1], c[2], c[3]}}, SurfaceDrawType::Surface),
                  Pair(Loops{{c[3], c[2], c[1]}}, SurfaceDrawType::Surface)));
  target.polygons.clear();
  TriangulatedFaceSetOpenGL triangles;
  triangles.setVertexData(c);
  triangles.triangles = {{0, 1, 7}, {0, 2, 3}};
  target.triangulatedFaceSet(std::move(triangles));
  target.triangulatedFaceSet(TriangulatedFaceSet{{{c[0], c[1], c[3]}}});
  EXPECT_THAT(target.polygons, ElementsAre(Pair(Loops{{c[0], c[2], c[3]}}, std::nullopt),
                                           Pair(Loops{{c[0], c[1], c[3]}}, std::nullopt)));
}

TEST(DrawTargets, AnswerWithTheirBaseForms) {
  PolygonTarget target;
  target.vPolygon(std::vector<std::vector<Point2d>>{{{1, 2}, {3, 4}, {5, 6}}});
  EXPECT_EQ(target.polygons.front().first.front().back(), Point3d(5, 6, 0));
  target.vPoints({{1, 1, 1}, {2, 2, 2}});
  EXPECT_THAT(target.polylines, ElementsAre(1, 1));
  {
    const TransformationGuard guard(target);
    target.vTransformationMultiply(Matrix::createScale(2, 2, 2), MatrixMultiplyOrder::left);
    target.vTransformationTranslate(math::Vector3d(1, 0, 0), MatrixMultiplyOrder::left);
    EXPECT_EQ(Point3d() * target.frame, Point3d(2, 0, 0));
    target.vTransformationTranslate(Point3d(1, 0, 0), MatrixMultiplyOrder::right);
    EXPECT_EQ(Point3d() * target.frame, Point3d(3, 0, 0));
  }
  EXPECT_EQ(target.frame, Matrix());
  EXPECT_EQ(target.textLiteralMeasure("x", 1), TextBoxMeasure());
}

TEST(FaceSets, MergeIntoOneThatKeepsBothShadings) {
  for (const bool sharpTexture : {false, true})
    for (const bool softTexture : {false, true}) {
      auto set = square(0, sharpTexture);
      mergeSharpAndSoftEdgeFaceSet(set, square(1, softTexture));
      mergeSharpAndSoftEdgeFaceSet(set, PolygonalFaceSetOpenGL());
      EXPECT_EQ(set.coordinates.size(), 8U);
      ASSERT_EQ(set.faces.size(), 2U);
      EXPECT_THAT(set.faces[1].outer, ElementsAre(4, 5, 6, 7));
      EXPECT_TRUE(set.isHard(0));
      EXPECT_FALSE(set.isHard(1));
      ASSERT_EQ(set.textureCoordinates.has_value(), sharpTexture || softTexture);
      if (!set.textureCoordinates) continue;
      EXPECT_EQ(set.textureCoordinates->size(), 8U);
      EXPECT_EQ((*set.textureCoordinates)[2][0], sharpTexture ? 1 : 0);
      EXPECT_EQ((*set.textureCoordinates)[6][0], softTexture ? 1 : 0);
    }
}

TEST(FaceSets, TakeVertexDataOnlyWhereThereIsOneForEachPoint) {
  std::vector<Point3d> points(3);
  const Point3d* const storage = points.data();
  TriangulatedFaceSetOpenGL set;
  const ExpectAsserts expected({"2 normals for 3 points, left out"});
  set.setVertexData(std::move(points), std::vector<math::Vector3d>(2),
                    std::vector<TextureCoordinate>(3));
  EXPECT_EQ(set.coordinates().data(), storage);
  EXPECT_FALSE(set.normals());
  EXPECT_TRUE(set.textureCoordinates());
}

TEST(Profiles, KnowTheirSoftEdges) {
  const Profile2D::Contour ring{{0, 0}, {1, 0}, {0, 1}};
  EXPECT_TRUE(Profile2D({ring}, true).isSoft(0, 2));
  const Profile2D flagged({ring, ring}, Profile2D::EdgeFlags{{false, true}});
  EXPECT_TRUE(flagged.isSoft(0, 1));
  EXPECT_FALSE(flagged.isSoft(0, 0) || flagged.isSoft(0, 2) || flagged.isSoft(1, 1));
}

TEST(Polygons, HaveAnOrientationWhereTheyHaveAnArea) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const std::vector<Point2d> ring{{1e6, 1e6}, {1e6 + 1e-3, 1e6}, {1e6, 1e6 + 1e-3}};
  EXPECT_TRUE(isCounterClockwisePolygon(ring));
  EXPECT_FALSE(isClockwisePolygon(ring));
  EXPECT_TRUE(isClockwisePolygon({ring.rbegin(), ring.rend()}));
  for (const std::vector<Point2d>& none : std::vector<std::vector<Point2d>>{
           {}, {{0, 0}}, {{0, 0}, {1, 1}}, {{0, 0}, {1, 1}, {2, 2}}, {{0, 0}, {1, 0}, {nan, 1}}})
    EXPECT_FALSE(isCounterClockwisePolygon(none) || isClockwisePolygon(none));
}

TEST(Textures, WrapAroundACylinder) {
  using textureCoordsCalculateHelper::generateCylindricalTextureCoordinate;
  std::vector<TextureCoordinate> found;
  for (const Point3d& point : {Point3d(2, 0, 0), Point3d(0, 2, 1), Point3d(-2, 0, 4),
                               Point3d(0, -2, 2), Point3d(2, -1e-300, 0)})
    found.push_back(generateCylindricalTextureCoordinate(point, 4));
  EXPECT_THAT(found, ElementsAre(ElementsAre(0, 0), ElementsAre(0.25F, 0.25F), ElementsAre(0.5F, 1),
                                 ElementsAre(0.75F, 0.5F), ElementsAre(0, 0)));
  transformCylindricalTextureCoordinates(found, math::Matrix2d::createScale(3, 1));
  EXPECT_EQ(found[1][0], 0.75F);
}

TEST(Colors, MayAllBeKeysOfAMap) {
  const float nan = std::numeric_limits<float>::quiet_NaN();
  const std::set<Color, ColorLess> colors{{1, 0, 0},       {0, 1, 0},   {0, nan, 0}, {0, nan, 0},
                                          {0, 1, 0, 0.5F}, {nan, 0, 0}, {0, 0, nan}};
  EXPECT_EQ(colors.size(), 5U);
}

TEST(RepresentationTexts, AreReadBackInWhateverCase) {
  for (int i = 0; i <= static_cast<int>(RepresentationIdentifier::Reference); ++i)
    for (int t = 1; t <= static_cast<int>(RepresentationType::MappedRepresentation); ++t) {
      const Representation expected{static_cast<RepresentationIdentifier>(i),
                                    static_cast<RepresentationType>(t)};
      std::string type = Representation::sType(*expected.type);
      for (char& letter : type) letter = static_cast<char>(std::toupper(letter));
      EXPECT_EQ(Representation::fromTexts(Representation::sIdentifier(*expected.identifier), type),
                expected);
    }
  EXPECT_TRUE(Representation::fromTexts("", "unheard of").empty());
}

}  // namespace
}  // namespace qor::generate::draw
