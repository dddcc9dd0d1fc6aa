#include "Host/Targets/MeshMeasure.h"

#include <gtest/gtest.h>

#include <cmath>

#include "Qor/Math/Matrix.h"
#include "Tests/Support/SolidMesh.h"

namespace qor::host::targets {
namespace {

using math::Matrix;
using math::Point3d;

/// A box whose faces have points of their own, which thus meet by their places alone.
struct BoxMesh {
  explicit BoxMesh(double x, double y, double z, const Matrix& frame = {}, double gap = 0) {
    const auto box = test::boxFaces(x, y, z);
    for (const auto& face : box.faces) {
      const auto first = static_cast<std::uint32_t>(points.size());
      for (const std::uint32_t corner : face.outer) {
        const Point3d& p = box.coordinates[corner];
        points.push_back(Point3d(p.x + gap * first, p.y, p.z) * frame);
      }
      for (const std::uint32_t i : {0u, 1u, 2u, 0u, 2u, 3u}) triangles.push_back(first + i);
    }
  }

  std::vector<Point3d> points;
  std::vector<std::uint32_t> triangles;
};

TEST(MeshMeasure, MeasuresABoxWhereverItStands) {
  const Matrix frames[] = {
      {},
      Matrix::createTranslation({4.5e6, -5.5e6, 300}),
      Matrix::createRotate({1, 2, 3}, 1.0) * Matrix::createTranslation({1e4, 0, -1e4})};
  for (const Matrix& frame : frames) {
    const BoxMesh box(2, 3, 4, frame);
    const MeshMeasure measure = measureMesh(box.points, box.triangles);
    EXPECT_NEAR(measure.volume, 24, 1e-6);
    EXPECT_NEAR(measure.area, 52, 1e-6);
    EXPECT_EQ(measure.triangles, 12u);
    EXPECT_TRUE(measure.closed);
  }
}

TEST(MeshMeasure, CountsPlacesWithinAMicrometreAsOne) {
  const BoxMesh near(2, 3, 4, {}, 3e-8), far(2, 3, 4, {}, 1e-6);
  EXPECT_TRUE(measureMesh(near.points, near.triangles).closed);
  EXPECT_FALSE(measureMesh(far.points, far.triangles).closed);
}

TEST(MeshMeasure, SeesGapsAndFacesThatAreTurned) {
  BoxMesh open(1, 1, 1), turned(1, 1, 1), insideOut(1, 1, 1);
  open.triangles.resize(33);
  std::swap(turned.triangles[0], turned.triangles[1]);
  for (std::size_t i = 0; i < 36; i += 3)
    std::swap(insideOut.triangles[i], insideOut.triangles[i + 1]);
  EXPECT_FALSE(measureMesh(open.points, open.triangles).closed);
  EXPECT_FALSE(measureMesh(turned.points, turned.triangles).closed);
  const MeshMeasure inward = measureMesh(insideOut.points, insideOut.triangles);
  EXPECT_TRUE(inward.closed);
  EXPECT_NEAR(inward.volume, -1, 1e-12);
}

TEST(MeshMeasure, LeavesOutWhatIsNoNumberAndWhatNoTriangleUses) {
  BoxMesh box(1, 1, 1);
  box.points.emplace_back(100, 100, 100);
  EXPECT_EQ(measureMesh(box.points, box.triangles).box, math::Extent({0, 0, 0}, {1, 1, 1}));
  for (const std::size_t corner : {0u, 1u, 2u, 3u}) {
    BoxMesh torn(1, 1, 1);
    torn.points[corner].x = INFINITY;
    const MeshMeasure measure = measureMesh(torn.points, torn.triangles);
    EXPECT_EQ(measure.triangles, corner % 2 == 0 ? 10u : 11u);
    EXPECT_TRUE(std::isfinite(measure.volume));
  }
  const MeshMeasure nothing = measureMesh({}, {});
  EXPECT_FALSE(nothing.closed);
  EXPECT_FALSE(nothing.box.isValid());
}

}  // namespace
}  // namespace qor::host::targets
