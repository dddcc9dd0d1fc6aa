#include "Fc/Shapes/ExtrudedFaceSet.h"

#include <algorithm>
#include <utility>
#include <variant>

#include "Qor/Assert/Report.h"
#include "Fc/Shapes/SweepFaces.h"

namespace qor::fc::resource::geometricmodel {

using generate::draw::PolygonalFaceSetOpenGL;
using generate::draw::Profile2D;
using math::Point3d;
using math::Vector3d;

namespace {

void turnRound(Profile2D& profile) {
  for (auto& contour : profile.contours()) std::reverse(contour.begin(), contour.end());
  const auto* flags = std::get_if<Profile2D::EdgeFlags>(&profile.softEdges());
  if (!flags) return;
  Profile2D::EdgeFlags turned = *flags;
  for (auto& contour : turned) std::reverse(contour.begin(), contour.end());
  profile = Profile2D(std::move(profile.contours()), std::move(turned));
}

/// Bottom of `start`, sides and top of `end`, over rings of `n` points.
void buildFaces(const Profile2D& start, const Profile2D& end, std::size_t n, SweptFaces& hard,
                SweptFaces& soft) {
  hard.reserve(n + 2);
  hard.push_back(generateBottomFace(start));
  std::size_t counter = n - 1;
  addIndexedFacesForSides(end, n, counter, hard, mayHaveSoftEdges(end) ? &soft : nullptr);
  hard.push_back(
      generateTopFace(hard.front(), static_cast<std::uint32_t>(n), end.contours().size() >= 2));
}

}  // namespace

PolygonalFaceSetOpenGL extrudedFaceSet(Profile2D& profile, const Vector3d& extrusion) {
  if (extrusion.z < 0) turnRound(profile);
  std::vector<Point3d> points = getPointsInProfileForGeneratingFaceSet(profile, 1, false);
  const std::size_t n = points.size();
  for (std::size_t i = 0; i < n; ++i) points.push_back(points[i] + extrusion);
  SweptFaces hard, soft;
  buildFaces(profile, profile, n, hard, soft);
  return sweptFaceSet(std::move(points), n, std::move(hard), std::move(soft));
}

std::vector<PolygonalFaceSetOpenGL> taperedExtrudedFaceSets(Profile2D& start, Profile2D& end,
                                                            const Vector3d& extrusion) {
  if (extrusion.z < 0) {
    turnRound(start);
    turnRound(end);
  }
  std::vector<Point3d> points = getPointsInProfileForGeneratingFaceSet(start, 1, false);
  const std::size_t n = points.size();
  for (const auto& contour : end.contours())
    for (const auto& point : contour)
      points.emplace_back(point.x + extrusion.x, point.y + extrusion.y, extrusion.z);

  PolygonalFaceSetOpenGL hard, soft;
  buildFaces(start, end, n, hard.faces, soft.faces);
  std::vector<PolygonalFaceSetOpenGL> result;
  if (!soft.faces.empty()) {
    soft.hardEdges = false;
    soft.coordinates = points;
    result.push_back(std::move(soft));
  }
  hard.coordinates = std::move(points);
  result.push_back(std::move(hard));
  return result;
}

bool profilesPair(const Profile2D& start, const Profile2D& end) {
  if (start.contours().size() != end.contours().size()) {
    report("Number of polygons in top and bottom profile should be equal");
    return false;
  }
  const bool pair =
      std::equal(start.contours().begin(), start.contours().end(), end.contours().begin(),
                 [](const auto& a, const auto& b) { return a.size() == b.size(); });
  if (!pair) report("Number of points in top and bottom profile should be equal");
  return pair;
}

}  // namespace qor::fc::resource::geometricmodel
