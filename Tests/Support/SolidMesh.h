#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "Qor/Draw/PolygonalFaceSetOpenGL.h"
#include "Qor/Math/Matrix.h"

namespace qor::test {

/// A box from the origin on, its faces looking outward; its corners in the order of x, then y, then
/// z.
generate::draw::PolygonalFaceSetOpenGL boxFaces(double x, double y, double z);

/// Faces that were drawn, with all points that agree within a distance welded to one, so that a
/// test can ask whether they are the skin of a solid. Faces without an area are left out.
class SolidMesh {
 public:
  /// Points within `weldDistance` metres are one.
  explicit SolidMesh(double weldDistance = 1e-7) : m_weldDistance(weldDistance) {}

  /// A planar face with its holes, or a quad that is bent a little. A face with an index beyond the
  /// points is told by `problem`.
  void add(const generate::draw::PolygonalFaceSetOpenGL& faceSet, const math::Matrix& frame = {});
  /// One loop or an outer loop and its holes.
  void addPolygon(const std::vector<std::vector<math::Point3d>>& loops);
  void addTriangle(const math::Point3d& a, const math::Point3d& b, const math::Point3d& c);

  /// In cubic metres, positive when the faces look outward; means nothing for an open mesh.
  double volume() const;
  /// In square metres.
  double area() const;
  /// Why this isn't the skin of a solid: an edge that isn't used once in each direction, a bad
  /// index, a coordinate that isn't finite, no faces. Empty when it is.
  std::string problem() const;

 private:
  struct Cell {
    std::int64_t x, y, z;
    friend auto operator<=>(const Cell&, const Cell&) = default;
  };
  using Loop = std::vector<std::uint32_t>;

  std::vector<std::uint32_t> weldedIndices() const;
  std::vector<std::vector<Loop>> weldedFaces() const;

  double m_weldDistance;
  std::string m_badInput;
  std::vector<math::Point3d> m_points;
  std::vector<std::vector<Loop>> m_faces;
};

/// The mesh is closed, looks outward, and its volume is `volume` within `relativeError`.
///
///     EXPECT_TRUE(isClosedSolidOfVolume(mesh, 2.5, 1e-9));
testing::AssertionResult isClosedSolidOfVolume(const SolidMesh& mesh, double volume,
                                               double relativeError);
testing::AssertionResult isClosedSolidOfVolume(
    const std::vector<generate::draw::PolygonalFaceSetOpenGL>& faceSets, double volume,
    double relativeError);

}  // namespace qor::test
