#include "Tests/Support/SolidMesh.h"

#include <gtest/gtest.h>

#include <cmath>

namespace qor::test {
namespace {

/// A unit cube of quads whose points aren't shared, the first `leftOut` of them left out.
SolidMesh cube(std::size_t leftOut = 0, bool insideOut = false) {
  auto one = boxFaces(1, 1, 1);
  SolidMesh mesh;
  const auto faces = one.faces;
  for (std::size_t i = leftOut; i < faces.size(); ++i) {
    one.faces = {faces[i]};
    if (insideOut) one.faces[0].outer = {faces[i].outer.rbegin(), faces[i].outer.rend()};
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
