#include "Fc/Shapes/SweepFaces.h"

#include <algorithm>
#include <utility>
#include <variant>

#include "Qor/Assert/Report.h"

namespace qor::fc::resource::geometricmodel {

using generate::draw::PolygonalFaceSetOpenGL;
using generate::draw::Profile2D;
using math::Point3d;

namespace {

std::uint32_t index(std::size_t i) { return static_cast<std::uint32_t>(i); }

std::size_t pointCount(const Profile2D& profile) {
  std::size_t count = 0;
  for (const auto& contour : profile.contours()) count += contour.size();
  return count;
}

/// The indices `begin` to `begin + count - 1`, from the last to the first.
std::vector<std::uint32_t> descending(std::size_t begin, std::size_t count) {
  std::vector<std::uint32_t> result(count);
  for (std::size_t i = 0; i < count; ++i) result[i] = index(begin + count - 1 - i);
  return result;
}

std::vector<std::uint32_t> reversedAndRaised(const std::vector<std::uint32_t>& indices,
                                             std::uint32_t by) {
  std::vector<std::uint32_t> result(indices.rbegin(), indices.rend());
  for (std::uint32_t& i : result) i += by;
  return result;
}

/// Sorts the quads of one contour into the hard and the soft ones.
class QuadTarget {
 public:
  QuadTarget(const Profile2D& profile, std::size_t contour, SweptFaces& hard, SweptFaces* soft)
      : m_hard(hard), m_soft(soft) {
    if (!soft) return;
    if (const bool* all = std::get_if<bool>(&profile.softEdges()))
      m_allSoft = *all;
    else if (const auto& flags = *std::get_if<Profile2D::EdgeFlags>(&profile.softEdges());
             contour < flags.size())
      m_flags = &flags[contour];
    else
      m_uncovered = true;
  }

  /// The quad stands on the edge from the point `from` to the point `to` of the contour.
  void add(std::size_t from, std::size_t to, SweptFace&& quad) {
    (isSoft(from, to) ? *m_soft : m_hard).push_back(std::move(quad));
  }

 private:
  bool isSoft(std::size_t from, std::size_t to) const {
    if (m_uncovered || (m_flags && std::max(from, to) >= m_flags->size())) {
      report("Invalid curved indices");
      return false;
    }
    return m_flags ? (*m_flags)[from] || (*m_flags)[to] : m_allSoft;
  }

  SweptFaces& m_hard;
  SweptFaces* m_soft;
  const std::vector<bool>* m_flags = nullptr;
  bool m_allSoft = false;
  bool m_uncovered = false;
};

}  // namespace

std::vector<Point3d> getPointsInProfileForGeneratingFaceSet(const Profile2D& profile,
                                                            std::size_t stations, bool reverse) {
  std::vector<Point3d> points;
  points.reserve((stations + 1) * pointCount(profile));
  for (const auto& contour : profile.contours()) {
    if (contour.empty()) report("There is a polygon in the profile which has no points");
    const std::size_t count = contour.size();
    for (std::size_t i = 0; i < count; ++i) {
      const auto& point = contour[reverse ? count - 1 - i : i];
      points.emplace_back(point.x, point.y, 0);
    }
  }
  return points;
}

SweptFace generateBottomFace(const Profile2D& profile) {
  SweptFace face;
  if (profile.contours().empty()) {
    report("Number of polygons in profile2d object should not be 0");
    return face;
  }
  const auto& contours = profile.contours();
  face.outer = descending(0, contours.front().size());
  face.holes.reserve(contours.size() - 1);
  std::size_t begin = contours.front().size();
  for (std::size_t i = 1; i < contours.size(); ++i) {
    face.holes.push_back(descending(begin, contours[i].size()));
    begin += contours[i].size();
  }
  return face;
}

SweptFace generateTopFace(const SweptFace& bottom, std::uint32_t offset, bool hasVoids) {
  if (hasVoids && bottom.holes.empty()) report("Expect bottom face to have voids");
  SweptFace face;
  face.outer = reversedAndRaised(bottom.outer, offset);
  face.holes.reserve(bottom.holes.size());
  for (const auto& hole : bottom.holes) face.holes.push_back(reversedAndRaised(hole, offset));
  return face;
}

void addIndexedFacesForSides(const Profile2D& profile, std::size_t n, std::size_t& counter,
                             SweptFaces& hard, SweptFaces* soft) {
  const auto& contours = profile.contours();
  for (std::size_t c = 0; c < contours.size(); ++c) {
    const std::size_t count = contours[c].size();
    if (count == 0) continue;
    QuadTarget target(profile, c, hard, soft);
    const std::size_t first = ++counter;
    for (std::size_t j = 1; j < count; ++j) {
      ++counter;
      target.add(
          j - 1, j,
          {{index(counter - n - 1), index(counter - n), index(counter), index(counter - 1)}, {}});
    }
    if (count > 1)
      target.add(count - 1, 0,
                 {{index(counter - n), index(first - n), index(first), index(counter)}, {}});
  }
}

bool mayHaveSoftEdges(const Profile2D& profile) {
  const bool* all = std::get_if<bool>(&profile.softEdges());
  return !all || *all;
}

PolygonalFaceSetOpenGL sweptFaceSet(std::vector<Point3d>&& points, std::size_t n, SweptFaces&& hard,
                                    SweptFaces&& soft) {
  PolygonalFaceSetOpenGL result;
  if (soft.empty() || hard.empty()) {
    result.hardEdges = soft.empty();
    result.faces = std::move(soft.empty() ? hard : soft);
    result.coordinates = std::move(points);
    return result;
  }
  result.coordinates.reserve(2 * n + points.size());
  result.coordinates.assign(points.begin(), points.begin() + static_cast<std::ptrdiff_t>(n));
  result.coordinates.insert(result.coordinates.end(), points.end() - static_cast<std::ptrdiff_t>(n),
                            points.end());
  result.faces = std::move(hard);
  PolygonalFaceSetOpenGL softSet;
  softSet.hardEdges = false;
  softSet.coordinates = std::move(points);
  softSet.faces = std::move(soft);
  mergeSharpAndSoftEdgeFaceSet(result, std::move(softSet));
  return result;
}

}  // namespace qor::fc::resource::geometricmodel
