#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "Fc/FcParams.h"
#include "Fc/Resource/GeometricModel/FcCartesianPointList3D.h"
#include "Fc/Resource/GeometricModel/FcIndexedPolygonalFaceWithVoids.h"
#include "Fc/Resource/GeometricModel/FcPolygonalFaceSet.h"
#include "Fc/Resource/GeometricModel/FcTriangulatedIrregularNetwork.h"
#include "Fc/Resource/PresentationAppearance/FcColourRgbList.h"
#include "Fc/Resource/PresentationAppearance/FcIndexedColourMap.h"
#include "Fc/Resource/PresentationAppearance/FcIndexedPolygonalTextureMap.h"
#include "Fc/Resource/PresentationAppearance/FcIndexedTriangleTextureMap.h"
#include "Fc/Resource/PresentationAppearance/FcTextureCoordinateIndices.h"
#include "Fc/Resource/PresentationAppearance/FcTextureVertexList.h"
#include "Tests/Fc/Geometry/DrawRecorder.h"
#include "Tests/Support/ExpectAsserts.h"
#include "Tests/Support/Make.h"

namespace qor::fc::resource::geometricmodel {
namespace {

using generate::draw::Color;
using generate::draw::PolygonalFaceSetOpenGL;
using generate::draw::TextureCoordinate;
using generate::draw::TriangulatedFaceSetOpenGL;
using math::Matrix;
using math::Point3d;
using namespace presentationappearance;
using test::DrawRecorder;
using test::ExpectAsserts;
using test::make;
using testing::ElementsAre;
using testing::SizeIs;

using Positions = std::vector<measure::FcPositiveInteger>;
using Indices = std::vector<std::uint32_t>;
using Face = PolygonalFaceSetOpenGL::Face;

Positions positions(std::initializer_list<int> list) {
  Positions result;
  for (const int position : list) result.emplace_back(position);
  return result;
}

std::shared_ptr<FcCartesianPointList3D> points(std::vector<Point3d> coordinates) {
  auto result = make<FcCartesianPointList3D>();
  result->setPoints(std::move(coordinates));
  return result;
}

using Ring = std::vector<int>;

std::shared_ptr<FcIndexedPolygonalFace> face(const Ring& ring) {
  return make<FcIndexedPolygonalFace>({{"CoordIndex", ring}});
}

std::shared_ptr<FcIndexedPolygonalFace> faceWithVoids(const Ring& ring,
                                                      const std::vector<Ring>& voids) {
  return make<FcIndexedPolygonalFaceWithVoids>(
      {{"CoordIndex", ring}, {"InnerCoordIndices", voids}});
}

/// Six points: the corners of a square from (0, 0) to (1, 1), and two more above it.
std::shared_ptr<FcCartesianPointList3D> sixPoints() {
  return points({{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}, {0, 0, 1}, {1, 0, 1}});
}

using Faces = std::vector<std::shared_ptr<FcIndexedPolygonalFace>>;
std::shared_ptr<FcPolygonalFaceSet> polygonal(const Faces& faces) {
  return make<FcPolygonalFaceSet>({{"Coordinates", sixPoints()}, {"Faces", faces}});
}

std::shared_ptr<FcTriangulatedFaceSet> triangulated(
    std::initializer_list<std::array<int, 3>> triangles) {
  std::vector<std::array<measure::FcPositiveInteger, 3>> list;
  for (const auto& t : triangles) list.push_back({t[0], t[1], t[2]});
  auto set = make<FcTriangulatedIrregularNetwork>({{"Coordinates", sixPoints()}});
  set->setCoordIndex(std::move(list));
  return set;
}

/// Red, green and blue, and for each face which of them it has, from 1.
std::shared_ptr<FcIndexedColourMap> colour(const std::shared_ptr<FcTessellatedFaceSet>& set,
                                           const std::vector<int>& colourOfFace) {
  const auto list = make<FcColourRgbList>();
  list->setColourList({{1., 0., 0.}, {0., 1., 0.}, {0., 0., 1.}});
  return make<FcIndexedColourMap>(
      {{"Colours", list}, {"MappedTo", set}, {"ColourIndex", colourOfFace}});
}

std::vector<Indices> outerRings(const PolygonalFaceSetOpenGL& set) {
  std::vector<Indices> rings;
  for (const Face& face : set.faces) rings.push_back(face.outer);
  return rings;
}

TEST(PolygonalFaceSet, LeavesOutTheSmallestPieceThatHoldsAFault) {
  const struct {
    std::shared_ptr<FcIndexedPolygonalFace> broken;
    const char* message;
  } cases[] = {
      {nullptr, "There is a Face which is not set."},
      {face({}), "There is a Face which is set but contains no points."},
      {face({1, 2, 7}), "Illegal index in face"},
      {face({0, 1, 2}), "Illegal index in face"},
      {face({-1, 1, 2}), "Illegal index in face"},
      {faceWithVoids({1, 2, 3}, {{4, 5, 99}}), "Illegal index in face"},
  };
  for (const auto& c : cases) {
    const ExpectAsserts expected({c.message});
    const auto drawn = polygonal({c.broken, face({1, 2, 3})})->createQorPolygonalFaceSet();
    ASSERT_TRUE(drawn) << c.message;
    EXPECT_THAT(outerRings(*drawn), ElementsAre(Indices{0, 1, 2})) << c.message;
  }
}

TEST(PolygonalFaceSet, GoesThroughPnIndex) {
  const auto set = polygonal({face({1, 2, 3}), face({1, 2, 3, 4})});
  set->setPnIndex(positions({6, 5, 4}));
  const ExpectAsserts expected({"Index pn index mismatch"});
  EXPECT_THAT(outerRings(*set->createQorPolygonalFaceSet()),
              ElementsAre(Indices{5, 4, 3}, Indices{5, 4, 3}));
}

TEST(PolygonalFaceSet, WithoutPointsGivesNothing) {
  const ExpectAsserts expected(
      {"Expect Coordinates() to be set.", "Expect Coordinates() to be set.",
       "Assertion failed in FcTessellatedFaceSet::boundingBox: expect to have Coordinates()",
       "in FcTessellatedFaceSet::boundingBox: could not create valid extent from *Coordinates()"});
  const FcParams params(math::CurveDiscretization(1e-3, 12, 24));
  const auto set = polygonal({face({1, 2, 3})});
  set->setCoordinates(nullptr);
  EXPECT_FALSE(set->createQorPolygonalFaceSet());
  EXPECT_FALSE(set->boundingBox(params));
  set->setCoordinates(points({}));
  EXPECT_FALSE(set->createQorPolygonalFaceSet());
  EXPECT_FALSE(set->boundingBox(params));
}

/// Knows no materials.
class PlainTarget : public FcDrawInterface {
 public:
  int sets = 0;
  void polygonalFaceSet(PolygonalFaceSetOpenGL&&) override { ++sets; }
  void vTransformationSet(const Matrix&) override {}
  Matrix transformationGet() const override { return {}; }
  void vTransformationMultiply(const Matrix&, math::MatrixMultiplyOrder) override {}
  void vPolyline(const std::vector<Point3d>&) override {}
  using DrawInterfaceBase::vPolygon;
  void vPolygon(const std::vector<Loop3d>&,
                std::optional<generate::draw::SurfaceDrawType>) override {}
  void vTextLiteral(const char*, std::size_t) override {}
  void drawConstRepresentationItem(std::shared_ptr<const geometry::FcRepresentationItem>,
                                   const FcDrawParams&, generate::draw::SurfaceDrawType) override {}
  void drawRepresentationItem(std::shared_ptr<geometry::FcRepresentationItem>, const FcDrawParams&,
                              generate::draw::SurfaceDrawType) override {}
};

TEST(PolygonalFaceSet, ComesInOneSetForEachColourThatIsUsed) {
  const auto set =
      polygonal({face({4, 3, 2, 1}), faceWithVoids({1, 2, 6, 5}, {{5, 4, 3}}), face({5, 6, 3})});
  const auto map = colour(set, {3, 1, 3});
  DrawRecorder target;
  target.draw(*set);
  ASSERT_THAT(target.polygonalSets, SizeIs(2));
  EXPECT_EQ(target.polygonalSets[0].colour, Color(1, 0, 0));
  EXPECT_EQ(target.polygonalSets[1].colour, Color(0, 0, 1));
  const PolygonalFaceSetOpenGL& red = target.polygonalSets[0].what;
  EXPECT_THAT(red.faces, ElementsAre(Face{{0, 1, 2, 3}, {{3, 4, 5}}}));
  EXPECT_THAT(red.coordinates, ElementsAre(Point3d(0, 0, 0), Point3d(1, 0, 0), Point3d(1, 0, 1),
                                           Point3d(0, 0, 1), Point3d(0, 1, 0), Point3d(1, 1, 0)));
  const PolygonalFaceSetOpenGL& blue = target.polygonalSets[1].what;
  EXPECT_THAT(outerRings(blue), ElementsAre(Indices{0, 1, 2, 3}, Indices{4, 5, 1}));
  EXPECT_EQ(blue.coordinates.front(), Point3d(0, 1, 0)) << "numbered in the order of first use";

  PlainTarget plain;
  set->draw(FcDrawParams(plain));
  EXPECT_EQ(plain.sets, 1);
}

/// With colours that don't fit, it comes in one part without a colour.
template <class Set, class Drawn>
void expectDrawnPlain(const Set& set, const Drawn& whole, const std::vector<int>& colours,
                      const std::string& message) {
  const auto map = colour(set, colours);
  const ExpectAsserts expected({message});
  const auto parts = set->createFaceSetsWithMaterials();
  ASSERT_THAT(parts, SizeIs(1)) << message;
  EXPECT_FALSE(parts[0].material);
  EXPECT_EQ(parts[0].faceSet, *whole);
}

TEST(FaceSets, WhoseColoursDontFitAreDrawnPlain) {
  const std::string fewer = "Mismatch between number of faces in ",
                    more = "FaceSetOpenGL and IndexedColourMap",
                    invalid = "Invalid colour index in FcIndexedColourMap.";
  const auto faces = polygonal({face({1, 2, 3}), face({3, 4, 5})});
  const auto triangles = triangulated({{1, 2, 3}});
  const auto drawnFaces = faces->createQorPolygonalFaceSet();
  const auto drawnTriangles = triangles->createQorTriangulatedFaceSet();
  expectDrawnPlain(faces, drawnFaces, {1}, fewer + "Polygonal" + more);
  expectDrawnPlain(faces, drawnFaces, {1, 4}, invalid);
  expectDrawnPlain(faces, drawnFaces, {0, 1}, invalid);
  expectDrawnPlain(triangles, drawnTriangles, {1, 1}, fewer + "Triangulated" + more);
  expectDrawnPlain(triangles, drawnTriangles, {4}, invalid);
}

TEST(PolygonalFaceSet, LeavesOutBrokenFacesOfAColour) {
  const struct {
    std::shared_ptr<FcIndexedPolygonalFace> broken;
    const char* message;
  } cases[] = {
      {nullptr, "Face was nullptr"},
      {face({1, 2}), "Face with less than three points"},
      {face({1, 2, 4}), "Index PnIndex mismatch"},
      {face({1, 2, 3}), "Invalid coordinate index"},
  };
  for (const auto& c : cases) {
    const auto set = polygonal({c.broken, face({1, 2, 2})});
    set->setPnIndex(positions({1, 2, 77}));
    const auto map = colour(set, {1, 2});
    const ExpectAsserts expected({c.message});
    const auto parts = set->createFaceSetsWithMaterials();
    ASSERT_THAT(parts, SizeIs(1)) << c.message;
    EXPECT_EQ(parts[0].material->getSurfaceColor(), Color(0, 1, 0));
    EXPECT_THAT(parts[0].faceSet.coordinates, SizeIs(2)) << "none of the broken face";
  }
}

TEST(PolygonalFaceSet, LeavesOutBrokenHolesOfAColour) {
  const auto set = polygonal({faceWithVoids({1, 2, 3}, {{4, 5}, {4, 5, 9}, {4, 5, 6}})});
  const auto map = colour(set, {1});
  const ExpectAsserts expected(
      {"There is an Void in a FaceWithVoids which contains less than three points.",
       "Invalid coordinate index"});
  const auto parts = set->createFaceSetsWithMaterials();
  ASSERT_THAT(parts, SizeIs(1));
  EXPECT_THAT(parts[0].faceSet.faces, ElementsAre(Face{{0, 1, 2}, {{3, 4, 5}}}));
}

TEST(PolygonalFaceSet, GivesEachPolygonWithItsHoles) {
  const auto set = polygonal(
      {face({1, 2, 99}), face({1, 2, 3}), faceWithVoids({1, 2, 3, 4}, {{}, {5, 6, 1}}), nullptr});
  const ExpectAsserts expected({"There is a Void in a Face With Voids which contains no points."});
  std::vector<std::vector<std::size_t>> ringSizes;
  set->forEachPolygon([&](const FcPolygonalFaceSet::Polygon& polygon) {
    auto& sizes = ringSizes.emplace_back();
    for (const auto& ring : polygon) sizes.push_back(ring.size());
    EXPECT_EQ(polygon[0][1], Point3d(1, 0, 0));
  });
  EXPECT_THAT(ringSizes, ElementsAre(ElementsAre(3u), ElementsAre(4u, 3u)));
}

PolygonalFaceSetOpenGL texturedSet() {
  PolygonalFaceSetOpenGL set;
  set.coordinates = {{0, 0, 0}, {4, 0, 0}, {4, 4, 0}, {1, 1, 0}, {2, 1, 0}, {2, 2, 0}};
  set.faces = {{{0, 1, 2}, {{5, 4, 3}}}, {{3, 4, 5}}};
  set.textureCoordinates = {{0, 0}, {1, 0}, {1, 1}, {.25f, .25f}, {.5f, .25f}, {.5f, .5f}};
  return set;
}

TEST(PolygonalFaceSet, ComesBackFromTheModelAsItWasDrawn) {
  const ExpectAsserts noAsserts;
  const PolygonalFaceSetOpenGL drawn = texturedSet();
  const auto [set, map] = FcPolygonalFaceSet::fromQorPolygonalFaceSet(drawn);
  ASSERT_TRUE(map);
  EXPECT_EQ(map->MappedTo(), set);
  EXPECT_EQ(set->createQorPolygonalFaceSet(), drawn);

  PolygonalFaceSetOpenGL plain = texturedSet();
  plain.textureCoordinates.reset();
  const auto [plainSet, noMap] = FcPolygonalFaceSet::fromQorPolygonalFaceSet(plain);
  EXPECT_FALSE(noMap);
  EXPECT_EQ(plainSet->createQorPolygonalFaceSet(), plain);
}

TEST(PolygonalFaceSet, TellsOnceOfTextureCornersWithoutAPlace) {
  const auto [set, map] = FcPolygonalFaceSet::fromQorPolygonalFaceSet(texturedSet());
  map->TexCoordIndices()[1]->setTexCoordIndex(positions({4, 99, 0}));
  const ExpectAsserts expected(
      {"A corner of a texture map has no place in its list or no point in its face set"});
  EXPECT_THAT(*set->getTextureCoordinates(), SizeIs(6));
}

TEST(PolygonalFaceSet, FindsPointsThatItHasAndAppendsOthers) {
  auto set = make<FcPolygonalFaceSet>();
  EXPECT_EQ(set->addPoint({1, 2, 3}).value(), 1);
  EXPECT_EQ(set->addPoint({1, 2, 3 + 1e-15}).value(), 2) << "no tolerance";
  EXPECT_EQ(set->addPoint({0, 0, 0}).value(), 3);
  EXPECT_EQ(set->addPoint({-0.0, 0, -0.0}).value(), 3);
  EXPECT_EQ(set->addPoint({1, 2, 3}).value(), 1);
  const double none = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(set->addPoint({none, 0, 0}).value(), 4);
  EXPECT_EQ(set->addPoint({none, 0, 0}).value(), 5) << "equals nothing, not even itself";

  // Whichever way the list changes meanwhile, the look-up follows.
  set->Coordinates()->transform(Matrix::createTranslation({10, 0, 0}));
  EXPECT_EQ(set->addPoint({11, 2, 3}).value(), 1);
  EXPECT_EQ(set->addPoint({1, 2, 3}).value(), 6);
  set->Coordinates()->setPoints({{7, 7, 7}, {8, 8, 8}, {7, 7, 7}});
  EXPECT_EQ(set->addPoint({7, 7, 7}).value(), 1) << "the first of two equal ones";
  set->Coordinates()->pushBackPoint({9, 9, 9});
  EXPECT_EQ(set->addPoint({9, 9, 9}).value(), 4);
  for (int round = 0; round < 2; ++round)
    for (int i = 0; i < 5000; ++i)
      ASSERT_EQ(set->addPoint({i * 0.1, double(i % 3), -1 - i * 1e-3}).value(), i + 5);
}

const Matrix mirrorX({-1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {10, 0, 0});

TEST(TriangulatedFaceSet, DrawsItsTrianglesWithNormals) {
  const auto set = triangulated({{1, 2, 3}, {1, 2, 7}, {1, 3, 4}});
  set->setNormals(std::vector<std::array<measure::FcParameterValue, 3>>(6, {0., 0., 1.}));
  const ExpectAsserts expected({"Illegal index in face"});
  DrawRecorder target;
  target.draw(*set);
  ASSERT_THAT(target.triangulatedSets, SizeIs(1));
  const TriangulatedFaceSetOpenGL& drawn = target.triangulatedSets[0].what;
  EXPECT_THAT(drawn.triangles, ElementsAre(ElementsAre(0u, 1u, 2u), ElementsAre(0u, 2u, 3u)));
  EXPECT_THAT(drawn.coordinates(), SizeIs(6));
  ASSERT_TRUE(drawn.normals());
  EXPECT_THAT(*drawn.normals(), SizeIs(6));
  EXPECT_EQ(set->numberOfFaces(), 3u);
}

TEST(TriangulatedFaceSet, SplitsByColourWithNormals) {
  const auto set = triangulated({{1, 2, 3}, {4, 5, 6}, {9, 1, 1}, {3, 4, 1}});
  std::vector<std::array<measure::FcParameterValue, 3>> normals;
  for (int i = 0; i < 6; ++i) normals.push_back({double(i), 0., 0.});
  set->setNormals(normals);
  const auto map = colour(set, {2, 1, 1, 2});
  const ExpectAsserts expected({"Invalid index in FcTriangulatedFaceSet"});
  const auto parts = set->createFaceSetsWithMaterials();
  ASSERT_THAT(parts, SizeIs(2));
  EXPECT_EQ(parts[0].material->getSurfaceColor(), Color(1, 0, 0));
  EXPECT_THAT(parts[0].faceSet.triangles, ElementsAre(ElementsAre(0u, 1u, 2u)));
  EXPECT_EQ(parts[0].faceSet.normals()->at(0).x, 3) << "that of the fourth point";
  EXPECT_THAT(parts[1].faceSet.triangles,
              ElementsAre(ElementsAre(0u, 1u, 2u), ElementsAre(2u, 3u, 0u)));
  EXPECT_THAT(parts[1].faceSet.coordinates(), SizeIs(4));
}

TEST(TriangulatedFaceSet, ComesBackFromTheModelAsItWasDrawn) {
  const ExpectAsserts noAsserts;
  TriangulatedFaceSetOpenGL drawn;
  drawn.setVertexData({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}}, {{{0, 0, 1}, {0, 0, 1}, {0, 0, 1}}},
                      {{{0, 0}, {1, 0}, {0, 1}}});
  drawn.triangles = {{0, 1, 2}};
  const auto [set, map] = FcTriangulatedFaceSet::fromQorPolygonalFaceSet(drawn);
  ASSERT_TRUE(map);
  EXPECT_EQ(set->createQorTriangulatedFaceSet(), drawn);
  EXPECT_TRUE(FcTriangulatedFaceSet::containsTriangularFace(texturedSet()));
}

TEST(FaceSetTransform, KeepsFacesLookingOutwardUnderAMirror) {
  const auto [set, map] = FcPolygonalFaceSet::fromQorPolygonalFaceSet(texturedSet());
  const auto before = *set->createQorPolygonalFaceSet();
  set->transform(mirrorX);
  const auto after = *set->createQorPolygonalFaceSet();
  EXPECT_EQ(after.coordinates[1], Point3d(6, 0, 0));
  EXPECT_THAT(after.faces, ElementsAre(Face{{2, 1, 0}, {{3, 4, 5}}}, Face{{5, 4, 3}}));
  EXPECT_EQ(after.textureCoordinates, before.textureCoordinates) << "each point keeps its place";
  const ExpectAsserts expected({"Expect Coordinates() to be set."});
  make<FcPolygonalFaceSet>()->transform(mirrorX);
}

TEST(FaceSetTransform, MovesNormalsAsNormals) {
  const auto set = triangulated({{1, 2, 3}});
  set->setNormals(std::vector<std::array<measure::FcParameterValue, 3>>{{1., 1., 0.}});
  set->transform(Matrix({-1, 0, 0}, {0, 0.5, 0}, {0, 0, 1}, {}));
  EXPECT_THAT(set->CoordIndex(), ElementsAre(std::array<measure::FcPositiveInteger, 3>{3, 2, 1}));
  const math::Vector3d normal = set->getNormals()->at(0);
  EXPECT_TRUE(normal.isNear(math::Vector3d(-1, 2, 0) * (1 / std::sqrt(5.))));
}

}  // namespace
}  // namespace qor::fc::resource::geometricmodel
