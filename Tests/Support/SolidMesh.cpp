#include "Tests/Support/SolidMesh.h"

#include <algorithm>
#include <cmath>
#include <compare>
#include <map>
#include <numeric>
#include <utility>

namespace qor::test {

using generate::draw::PolygonalFaceSetOpenGL;
using math::Point3d;
using math::Vector3d;

namespace {

using Loop = std::vector<std::uint32_t>;

/// Of the fan over a loop: twice its area as a vector.
Vector3d areaVector(const std::vector<Point3d>& points, const Loop& loop) {
  Vector3d sum;
  for (std::size_t i = 2; i < loop.size(); ++i) {
    const Point3d& apex = points[loop[0]];
    sum = sum + (points[loop[i - 1]] - apex).cross(points[loop[i]] - apex);
  }
  return sum;
}

/// Points that follow themselves are one; so are a spike's way out and back.
void removeSpikes(Loop& loop) {
  bool changed = true;
  while (changed && loop.size() > 2) {
    changed = false;
    for (std::size_t i = 0; i < loop.size() && loop.size() > 2; ++i) {
      const std::size_t next = (i + 1) % loop.size();
      const std::size_t afterNext = (i + 2) % loop.size();
      if (loop[i] != loop[next] && loop[i] != loop[afterNext]) continue;
      loop.erase(loop.begin() + static_cast<std::ptrdiff_t>(next));
      changed = true;
    }
  }
  if (loop.size() < 3) loop.clear();
}

}  // namespace

PolygonalFaceSetOpenGL boxFaces(double x, double y, double z) {
  PolygonalFaceSetOpenGL set;
  for (const unsigned i : {0u, 1u, 2u, 3u, 4u, 5u, 6u, 7u})
    set.coordinates.emplace_back(i & 1 ? x : 0, i & 2 ? y : 0, i & 4 ? z : 0);
  set.faces = {{{0, 2, 3, 1}}, {{4, 5, 7, 6}}, {{0, 1, 5, 4}},
               {{1, 3, 7, 5}}, {{3, 2, 6, 7}}, {{2, 0, 4, 6}}};
  return set;
}

void SolidMesh::add(const PolygonalFaceSetOpenGL& faceSet, const math::Matrix& frame) {
  const auto offset = static_cast<std::uint32_t>(m_points.size());
  for (const Point3d& point : faceSet.coordinates) m_points.push_back(point * frame);
  for (const auto& face : faceSet.faces) {
    std::vector<Loop> loops{face.outer};
    loops.insert(loops.end(), face.holes.begin(), face.holes.end());
    for (Loop& loop : loops)
      for (std::uint32_t& index : loop) {
        if (index >= faceSet.coordinates.size()) {
          m_badInput = "index " + std::to_string(index) + " of " +
                       std::to_string(faceSet.coordinates.size()) + " points";
          return;
        }
        index += offset;
      }
    m_faces.push_back(std::move(loops));
  }
}

void SolidMesh::addPolygon(const std::vector<std::vector<Point3d>>& polygon) {
  std::vector<Loop> loops;
  for (const auto& points : polygon) {
    Loop loop(points.size());
    std::iota(loop.begin(), loop.end(), static_cast<std::uint32_t>(m_points.size()));
    m_points.insert(m_points.end(), points.begin(), points.end());
    loops.push_back(std::move(loop));
  }
  m_faces.push_back(std::move(loops));
}

void SolidMesh::addTriangle(const Point3d& a, const Point3d& b, const Point3d& c) {
  addPolygon({{a, b, c}});
}

double SolidMesh::volume() const {
  if (m_points.empty()) return 0;
  const Point3d& from = m_points.front();  // near the body, so that digits aren't lost
  double sum = 0;
  for (const auto& face : m_faces)
    for (const Loop& loop : face)
      for (std::size_t i = 2; i < loop.size(); ++i)
        sum += (m_points[loop[0]] - from)
                   .dot((m_points[loop[i - 1]] - from).cross(m_points[loop[i]] - from));
  return sum / 6;
}

double SolidMesh::area() const {
  double sum = 0;
  for (const auto& face : m_faces) {
    Vector3d vector;
    for (const Loop& loop : face) vector = vector + areaVector(m_points, loop);
    sum += vector.length() / 2;
  }
  return sum;
}

std::vector<std::uint32_t> SolidMesh::weldedIndices() const {
  const double size = 4 * m_weldDistance;
  std::map<Cell, std::vector<std::uint32_t>> cells;
  std::vector<std::uint32_t> welded(m_points.size());
  for (std::uint32_t i = 0; i < m_points.size(); ++i) {
    const Point3d& p = m_points[i];
    const Cell cell{std::llround(p.x / size), std::llround(p.y / size), std::llround(p.z / size)};
    welded[i] = i;
    for (int n = 0; n < 27 && welded[i] == i; ++n) {
      const auto near =
          cells.find({cell.x + n % 3 - 1, cell.y + n / 3 % 3 - 1, cell.z + n / 9 - 1});
      if (near == cells.end()) continue;
      for (const std::uint32_t other : near->second)
        if (m_points[other].distance(p) <= m_weldDistance) welded[i] = other;
    }
    if (welded[i] == i) cells[cell].push_back(i);
  }
  return welded;
}

std::vector<std::vector<Loop>> SolidMesh::weldedFaces() const {
  const std::vector<std::uint32_t> welded = weldedIndices();
  std::vector<std::vector<Loop>> faces = m_faces;
  for (auto& face : faces)
    for (Loop& loop : face) {
      for (std::uint32_t& index : loop) index = welded[index];
      removeSpikes(loop);
    }
  return faces;
}

std::string SolidMesh::problem() const {
  if (!m_badInput.empty()) return m_badInput;
  if (m_faces.empty()) return "no faces";
  for (const Point3d& p : m_points)
    if (!p.isFinite()) return "a coordinate isn't finite";

  std::map<std::pair<std::uint32_t, std::uint32_t>, int> uses;
  for (const auto& face : weldedFaces())
    for (const Loop& loop : face)
      for (std::size_t i = 0; i < loop.size(); ++i) ++uses[{loop[i], loop[(i + 1) % loop.size()]}];
  for (const auto& [edge, count] : uses) {
    const auto back = uses.find({edge.second, edge.first});
    if (count == 1 && back != uses.end()) continue;
    const Point3d& a = m_points[edge.first];
    const Point3d& b = m_points[edge.second];
    const auto text = [](const Point3d& p) {
      return "(" + std::to_string(p.x) + ", " + std::to_string(p.y) + ", " + std::to_string(p.z) +
             ")";
    };
    return "the edge from " + text(a) + " to " + text(b) + " is used " + std::to_string(count) +
           " times, and " + std::to_string(back == uses.end() ? 0 : back->second) + " times back";
  }
  return {};
}

testing::AssertionResult isClosedSolidOfVolume(const SolidMesh& mesh, double volume,
                                               double relativeError) {
  if (const std::string problem = mesh.problem(); !problem.empty())
    return testing::AssertionFailure() << "not closed: " << problem;
  const double found = mesh.volume();
  if (!(std::abs(found - volume) <= relativeError * std::abs(volume)))
    return testing::AssertionFailure() << "a volume of " << found << " and not " << volume;
  return testing::AssertionSuccess();
}

testing::AssertionResult isClosedSolidOfVolume(const std::vector<PolygonalFaceSetOpenGL>& faceSets,
                                               double volume, double relativeError) {
  SolidMesh mesh;
  for (const PolygonalFaceSetOpenGL& faceSet : faceSets) mesh.add(faceSet);
  return isClosedSolidOfVolume(mesh, volume, relativeError);
}

}  // namespace qor::test
