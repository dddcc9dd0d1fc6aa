#include "Tests/Support/SolidMesh.h"

#include <gtest/gtest.h>

#include <cmath>

namespace qor::test {
namespace {

/// A unit cube of quads whose points aren't shared, without the faces whose bit is set in
/// `missing`.
SolidMesh cube(unsigned missing = 0, bool insideOut = false) {
  generate::draw::PolygonalFaceSetOpenGL set;
  set.coordinates = {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0},
                     {0, 0, 1}, {1, 0, 1}, {1, 1, 1}, {0, 1, 1}};
  set.faces = {{{0, 3, 2, 1}, {}}, {{0, 1, 5, 4}, {}}, {{1, 2, 6, 5}, {}},
               {{2, 3, 7, 6}, {}}, {{3, 0, 4, 7}, {}}, {{4, 5, 6, 7}, {}}};
  SolidMesh mesh;
  for (std::size_t i = 0; i < set.faces.size(); ++i) {
    if (missing >> i & 1U) continue;
    auto one = set;
    one.faces = {set.faces[i]};
    if (insideOut) one.faces[0].outer = {set.faces[i].outer.rbegin(), set.faces[i].outer.rend()};
    mesh.add(one);
  }
  return mesh;
}

TEST(SolidMesh, WeldsFacesToASolid) {
  EXPECT_TRUE(isClosedSolidOfVolume(cube(), 1, 1e-12));
  EXPECT_NEAR(cube().area(), 6, 1e-12);
}

TEST(SolidMesh, TellsWhatIsNoSolid) {
  EXPECT_FALSE(isClosedSolidOfVolume(cube(), 1.1, 0.01));
  EXPECT_FALSE(isClosedSolidOfVolume(cube(1), 1, 1));
  EXPECT_FALSE(isClosedSolidOfVolume(cube(0, true), 1, 0.5));
  EXPECT_FALSE(isClosedSolidOfVolume(SolidMesh(), 0, 1));
  SolidMesh twice = cube();
  twice.addPolygon({{{0, 0, 1}, {1, 0, 1}, {1, 1, 1}, {0, 1, 1}}});
  EXPECT_FALSE(isClosedSolidOfVolume(twice, 1, 10));
  SolidMesh notFinite = cube();
  notFinite.addTriangle({0, 0, 0}, {1, NAN, 0}, {0, 1, 0});
  EXPECT_NE(notFinite.problem(), "");
}

}  // namespace
}  // namespace qor::test
