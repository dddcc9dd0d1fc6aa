#include "Fc/Shapes/PrimitiveFaceSets.h"

#include <cmath>
#include <cstdint>
#include <numbers>
#include <utility>

#include "Fc/Shapes/ExtrudedFaceSet.h"
#include "Qor/Draw/Profile2D.h"
#include "Qor/Draw/TextureCoordsCalculateHelper.h"

namespace qor::fc::resource::geometricmodel {

using generate::draw::PolygonalFaceSetOpenGL;
using generate::draw::Profile2D;
using generate::draw::TriangulatedFaceSetOpenGL;
using math::Point3d;
using math::Vector3d;

namespace {

/// Directions from the centre: bands from the south pole to the north, in each the points of its
/// lower and upper latitude in turn.
std::vector<Vector3d> sphereDirections(std::size_t segments) {
  const double count = static_cast<double>(segments);
  std::vector<Vector3d> meridian;  // in the XZ plane, exact at the poles
  meridian.reserve(segments + 1);
  meridian.emplace_back(0, 0, -1);
  for (std::size_t i = 1; i < segments; ++i) {
    const double latitude = (static_cast<double>(i) / count - 0.5) * std::numbers::pi;
    meridian.emplace_back(std::cos(latitude), 0, std::sin(latitude));
  }
  meridian.emplace_back(0, 0, 1);
  std::vector<math::Vector2d> circle;  // closed: the last is the first, to the bit
  circle.reserve(segments + 1);
  for (std::size_t j = 0; j <= segments; ++j) {
    const double longitude = 2 * std::numbers::pi * static_cast<double>(j % segments) / count;
    circle.emplace_back(std::cos(longitude), std::sin(longitude));
  }

  std::vector<Vector3d> directions;
  directions.reserve(2 * segments * (segments + 1));
  for (std::size_t i = 0; i < segments; ++i)
    for (const math::Vector2d& turn : circle)
      for (const Vector3d& at : {meridian[i], meridian[i + 1]})
        directions.emplace_back(turn.x * at.x, turn.y * at.x, at.z);
  return directions;
}

}  // namespace

PolygonalFaceSetOpenGL blockFaceSet(double x, double y, double z) {
  PolygonalFaceSetOpenGL result;
  result.coordinates = {{0, 0, 0}, {x, 0, 0}, {x, y, 0}, {0, y, 0},
                        {0, 0, z}, {x, 0, z}, {x, y, z}, {0, y, z}};
  result.faces = {{{0, 3, 2, 1}}, {{0, 1, 5, 4}}, {{1, 2, 6, 5}},
                  {{2, 3, 7, 6}}, {{3, 0, 4, 7}}, {{4, 5, 6, 7}}};
  return result;
}

PolygonalFaceSetOpenGL pyramidFaceSet(double x, double y, double height) {
  PolygonalFaceSetOpenGL result;
  result.coordinates = {{0, 0, 0}, {x, 0, 0}, {0, y, 0}, {x, y, 0}, {x / 2, y / 2, height}};
  result.faces = {{{0, 4, 2}}, {{1, 3, 4}}, {{0, 1, 4}}, {{2, 4, 3}}, {{0, 2, 3, 1}}};
  return result;
}

TriangulatedFaceSetOpenGL coneMantle(std::vector<Point3d> ring, const Point3d& apex) {
  const auto count = static_cast<std::uint32_t>(ring.size());
  TriangulatedFaceSetOpenGL result;
  result.hardEdges = false;
  result.triangles.reserve(count);
  for (std::uint32_t i = 0; i < count; ++i)
    result.triangles.push_back({i + 1 == count ? 0 : i + 1, i, count});
  ring.push_back(apex);
  result.setVertexData(std::move(ring));
  return result;
}

PolygonalFaceSetOpenGL cylinderFaceSet(std::vector<math::Point2d> ring, double height) {
  Profile2D profile({std::move(ring)}, true);
  PolygonalFaceSetOpenGL result = extrudedFaceSet(profile, {0, 0, height});
  auto& image = result.textureCoordinates.emplace();
  image.reserve(result.coordinates.size());
  for (const Point3d& point : result.coordinates)
    image.push_back(
        generate::draw::textureCoordsCalculateHelper::generateCylindricalTextureCoordinate(point,
                                                                                           height));
  return result;
}

TriangulatedFaceSetOpenGL sphereFaceSet(double radius, std::size_t segments) {
  TriangulatedFaceSetOpenGL result;
  if (segments == 0) return result;
  std::vector<Vector3d> directions = sphereDirections(segments);
  std::vector<Point3d> points;
  points.reserve(directions.size());
  for (const Vector3d& direction : directions) points.push_back(Point3d() + direction * radius);
  result.setVertexData(std::move(points), std::move(directions));

  result.hardEdges = false;
  result.triangles.reserve(2 * segments * segments);
  for (std::size_t i = 0; i < segments; ++i) {
    for (std::size_t j = 1; j <= segments; ++j) {
      const auto lower = static_cast<std::uint32_t>(2 * (i * (segments + 1) + j));
      const std::uint32_t upper = lower + 1, lowerBefore = lower - 2, upperBefore = lower - 1;
      if (i > 0) result.triangles.push_back({lowerBefore, lower, upper});
      if (i + 1 < segments) result.triangles.push_back({lowerBefore, upper, upperBefore});
    }
  }
  return result;
}

}  // namespace qor::fc::resource::geometricmodel
