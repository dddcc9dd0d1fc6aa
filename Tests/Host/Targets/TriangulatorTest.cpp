#include "Host/Targets/Triangulator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>
#include <numeric>
#include <random>
#include <tuple>

#include "Qor/Math/Matrix.h"

namespace qor::host::targets {
namespace {

using math::Matrix;
using math::Point3d;
using math::Vector3d;
using Indices = Triangulator::Indices;
using Ring = std::vector<Point3d>;

/// A polygon with holes, and what its triangles say of it.
struct Cut {
  explicit Cut(const std::vector<Ring>& rings) {
    std::vector<Indices> contours;
    for (const Ring& ring : rings) {
      Indices& contour = contours.emplace_back(ring.size());
      std::iota(contour.begin(), contour.end(), static_cast<std::uint32_t>(points.size()));
      points.insert(points.end(), ring.begin(), ring.end());
    }
    given = points.size();
    const Indices outer = contours.front();
    contours.erase(contours.begin());
    Triangulator().triangulate(points, outer, contours, triangles);
  }

  Vector3d area() const {
    Vector3d sum;
    for (std::size_t i = 0; i + 2 < triangles.size(); i += 3) sum += normal(i) * 0.5;
    return sum;
  }
  Vector3d normal(std::size_t i) const {
    const Point3d& a = points[triangles[i]];
    return (points[triangles[i + 1]] - a).cross(points[triangles[i + 2]] - a);
  }
  bool allTurnTheWayOf(const Vector3d& direction) const {
    for (std::size_t i = 0; i < triangles.size(); i += 3)
      if (normal(i).dot(direction) < -1e-12) return false;
    return true;
  }
  /// Places of edges that triangles use more often in one direction than back.
  std::size_t countOpenEdges() const {
    using Place = std::tuple<double, double, double>;
    const auto place = [&](std::uint32_t i) {
      return Place(points[i].x, points[i].y, points[i].z);
    };
    std::map<std::pair<Place, Place>, int> edges;
    for (std::size_t i = 0; i < triangles.size(); ++i) {
      const Place a = place(triangles[i]), b = place(triangles[i % 3 == 2 ? i - 2 : i + 1]);
      if (a < b) ++edges[{a, b}];
      if (b < a) --edges[{b, a}];
    }
    return static_cast<std::size_t>(
        std::count_if(edges.begin(), edges.end(), [](const auto& e) { return e.second != 0; }));
  }

  std::vector<Point3d> points;
  Indices triangles;
  std::size_t given = 0;
};

Ring square(double x, double y, double size) {
  return {{x, y, 0}, {x + size, y, 0}, {x + size, y + size, 0}, {x, y + size, 0}};
}
Ring reversed(const Ring& ring) { return {ring.rbegin(), ring.rend()}; }

/// Teeth between 1 and 2 above a straight edge, each 2 wide.
Ring saw(int teeth) {
  Ring ring{{0, 0, 0}, {2.0 * teeth, 0, 0}};
  for (int i = 2 * teeth; i >= 0; --i) ring.emplace_back(i, i % 2 == 0 ? 1 : 2, 0);
  return ring;
}

TEST(Triangulator, KeepsAreaDirectionAndEdges) {
  struct Case {
    const char* name;
    std::vector<Ring> rings;
    double area;
    std::size_t openEdges;
  };
  const std::vector<Case> cases{
      {"triangle", {{{0, 0, 0}, {1, 0, 0}, {0, 1, 0}}}, 0.5, 3},
      {"square", {square(0, 0, 1)}, 1, 4},
      {"clockwise square", {reversed(square(0, 0, 1))}, -1, 4},
      {"L", {{{0, 0, 0}, {2, 0, 0}, {2, 1, 0}, {1, 1, 0}, {1, 2, 0}, {0, 2, 0}}}, 3, 6},
      {"arrow from its notch", {{{1, 0, 0}, {0, 1, 0}, {3, 0, 0}, {0, -1, 0}}}, -2, 4},
      {"points on a line", {{{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 2, 0}}}, 4, 5},
      {"hole", {square(0, 0, 4), square(1, 1, 1)}, 15, 8},
      {"hole the other way", {square(0, 0, 4), reversed(square(1, 1, 1))}, 15, 8},
      {"a band whose hole begins elsewhere",
       {square(0, 0, 4), {{3, 3, 0}, {3, 1, 0}, {1, 1, 0}, {1, 3, 0}}},
       12,
       8},
      {"a hole in a far corner", {square(0, 0, 40), reversed(square(1, 1, 1))}, 1599, 8},
      {"a star with a square in it",
       {{{4, 0, 0}, {1, 1, 0}, {-4, 0, 0}, {1, -1, 0}}, square(0.9, -0.1, 0.2)},
       7.96,
       8},
      {"two holes", {square(0, 0, 4), square(1, 1, 1), square(2.5, 2.5, 1)}, 14, 12},
      {"hole that touches with a corner",
       {{{0, 0, 0}, {2, 0, 0}, {4, 0, 0}, {4, 4, 0}, {0, 4, 0}},
        {{2, 0, 0}, {3, 1, 0}, {2, 2, 0}, {1, 1, 0}}},
       14,
       9},
      {"the same point twice", {{{0, 0, 0}, {1, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}}}, 1, 4},
      {"many teeth", {saw(5000), square(5, 0.2, 0.6), square(98.75, 0.5, 0.5)}, 14999.39, 10011},
      {"slit to a hole",
       {{{0, 0, 0},
         {4, 0, 0},
         {4, 4, 0},
         {0, 4, 0},
         {0, 0, 0},
         {1, 1, 0},
         {1, 2, 0},
         {2, 2, 0},
         {2, 1, 0},
         {1, 1, 0}}},
       15,
       8},
      {"no area", {{{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {1, 0, 0}}}, 0, 0},
      {"two points", {{{0, 0, 0}, {1, 0, 0}}}, 0, 0},
      {"not a number", {{{0, 0, 0}, {1, 0, 0}, {0, std::nan(""), 0}}}, 0, 0},
  };
  for (const Case& expected : cases) {
    SCOPED_TRACE(expected.name);
    const Cut cut(expected.rings);
    EXPECT_NEAR(cut.area().z, expected.area, 1e-12 * std::max(1.0, std::abs(expected.area)));
    EXPECT_EQ(cut.countOpenEdges(), expected.openEdges);
    EXPECT_EQ(cut.points.size(), cut.given);
    EXPECT_TRUE(cut.allTurnTheWayOf({0, 0, expected.area < 0 ? -1.0 : 1.0}));
  }
}

TEST(Triangulator, AddsAPointWhereEdgesCross) {
  // Two squares that overlap by a quarter: inside is what is inside one of them alone.
  const Cut cut({square(0, 0, 2), square(1, 1, 2)});
  EXPECT_EQ(cut.points.size(), cut.given + 2);
  EXPECT_NEAR(cut.area().z, 6, 1e-12);
  EXPECT_TRUE(cut.allTurnTheWayOf({0, 0, 1}));
}

TEST(Triangulator, KeepsEdgesInAnyPlaneFarFromTheOrigin) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> unit(-1, 1);
  for (int round = 0; round < 300; ++round) {
    const Vector3d axis(unit(random), unit(random), unit(random));
    const Matrix frame = Matrix::createRotate(axis, unit(random) * 3) *
                         Matrix::createTranslation({unit(random) * 1e6, unit(random) * 1e6, 100});
    std::vector<Ring> rings(2);
    const int corners = 5 + round % 40;
    double expected = 0;
    for (std::size_t r = 0; r < 2; ++r) {
      Ring flat;
      for (int i = 0; i < corners; ++i) {
        const double angle = 2 * std::numbers::pi * i / corners;
        const double radius = (r == 0 ? 5 : 0.9) * (1.6 + unit(random));
        flat.emplace_back(radius * std::cos(angle), radius * std::sin(angle), 0);
      }
      for (std::size_t i = 0; i < flat.size(); ++i) {
        const Point3d &a = flat[i], &b = flat[(i + 1) % flat.size()];
        expected += (r == 0 ? 0.5 : -0.5) * (a.x * b.y - b.x * a.y);
        rings[r].push_back(a * frame);
      }
    }
    const Cut cut(rings);
    if (cut.points.size() > cut.given) continue;  // the hole happens to cross the outline
    EXPECT_NEAR(cut.area().length(), expected, 1e-6);
    EXPECT_EQ(cut.countOpenEdges(), static_cast<std::size_t>(2 * corners));
    EXPECT_TRUE(cut.allTurnTheWayOf(frame.z()));
  }
}

}  // namespace
}  // namespace qor::host::targets
