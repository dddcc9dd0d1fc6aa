#include "Host/Targets/Triangulator.h"

#ifdef _WIN32
#include <windows.h>
#endif
#include <GL/glu.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <deque>
#include <new>

#include "Host/Targets/SmallEars.h"
#include "Qor/Math/Vector.h"

#ifndef CALLBACK
#define CALLBACK
#endif

namespace qor::host::targets {

namespace {

using math::Point3d;
using math::Vector3d;
using Indices = Triangulator::Indices;

/// Twice the area as a length, in the direction from which the outline runs counter-clockwise.
Vector3d areaVector(const std::vector<Point3d>& points, const Indices& outer) {
  Vector3d sum;
  const Point3d& first = points[outer[0]];
  for (std::size_t i = 2; i < outer.size(); ++i)
    sum = sum + (points[outer[i - 1]] - first).cross(points[outer[i]] - first);
  return sum;
}

/// A band between the outline and a hole of as many corners, as the end of a pipe has: two
/// triangles from edge to edge. Since they fill what lies between the two when all of them turn the
/// way of the outline, nothing else is asked. False, and nothing added, when one doesn't.
bool addBand(const std::vector<Point3d>& points, const Indices& outer, const Indices& hole,
             const Vector3d& normal, Indices& triangles) {
  const std::size_t n = outer.size();
  if (hole.size() != n) return false;
  for (const std::uint32_t index : hole)
    if (!points[index].isFinite()) return false;
  Indices inner = hole;
  if (areaVector(points, hole).dot(normal) < 0) std::reverse(inner.begin(), inner.end());
  const auto nearest =
      std::min_element(inner.begin(), inner.end(), [&](std::uint32_t a, std::uint32_t b) {
        return (points[a] - points[outer[0]]).length() < (points[b] - points[outer[0]]).length();
      });
  std::rotate(inner.begin(), nearest, inner.end());
  const std::size_t before = triangles.size();
  const auto add = [&](std::uint32_t a, std::uint32_t b, std::uint32_t c) {
    triangles.insert(triangles.end(), {a, b, c});
    return (points[b] - points[a]).cross(points[c] - points[a]).dot(normal) > 0;
  };
  for (std::size_t i = 0; i < n; ++i) {
    const std::size_t next = i + 1 < n ? i + 1 : 0;
    if (add(outer[i], outer[next], inner[i]) && add(outer[next], inner[next], inner[i])) continue;
    triangles.resize(before);
    return false;
  }
  return true;
}

/// From here on it pays to cut off the teeth of an outline first.
constexpr std::size_t manyCorners = 2000;

void addFan(const Indices& outer, Indices& triangles) {
  for (std::size_t i = 2; i < outer.size(); ++i)
    triangles.insert(triangles.end(), {outer[0], outer[i - 1], outer[i]});
}

}  // namespace

/// The tessellator of the GLU library, which needs no display, with what its callbacks share.
class Triangulator::Sweep {
 public:
  Sweep() : m_tessellator(gluNewTess()) {
    if (!m_tessellator) throw std::bad_alloc();
    using Function = void(CALLBACK*)();
    const auto set = [this](GLenum which, auto callback) {
      gluTessCallback(m_tessellator, which, reinterpret_cast<Function>(callback));
    };
    set(GLU_TESS_VERTEX_DATA, &Sweep::takeVertex);
    set(GLU_TESS_COMBINE_DATA, &Sweep::combine);
    set(GLU_TESS_EDGE_FLAG_DATA, &Sweep::takeEdgeFlag);  // asks for single triangles
    gluTessProperty(m_tessellator, GLU_TESS_WINDING_RULE, GLU_TESS_WINDING_ODD);
  }
  ~Sweep() { gluDeleteTess(m_tessellator); }
  Sweep(const Sweep&) = delete;
  Sweep& operator=(const Sweep&) = delete;

  void run(std::vector<Point3d>& points, const Indices& outer, const std::vector<Indices>& holes,
           const Vector3d& normal, Indices& triangles) {
    m_points = &points;
    m_origin = points[outer[0]];
    m_corners.clear();
    m_found.clear();
    gluTessNormal(m_tessellator, normal.x, normal.y, normal.z);
    gluTessBeginPolygon(m_tessellator, this);
    addContour(outer);
    for (const Indices& hole : holes) addContour(hole);
    gluTessEndPolygon(m_tessellator);
    const std::size_t whole = m_found.size() / 3 * 3;
    triangles.insert(triangles.end(), m_found.begin(),
                     m_found.begin() + static_cast<std::ptrdiff_t>(whole));
  }

 private:
  /// A corner as the tessellator knows it: its address stays until the polygon is done.
  struct Corner {
    std::array<double, 3> place;
    std::uint32_t index;
  };

  void addContour(const Indices& contour) {
    gluTessBeginContour(m_tessellator);
    for (const std::uint32_t index : contour) {
      if (!(*m_points)[index].isFinite()) continue;
      // Near the origin, so that large coordinates cost no precision.
      const Vector3d p = (*m_points)[index] - m_origin;
      Corner& corner = m_corners.emplace_back(Corner{{p.x, p.y, p.z}, index});
      gluTessVertex(m_tessellator, corner.place.data(), &corner);
    }
    gluTessEndContour(m_tessellator);
  }

  static void CALLBACK takeVertex(void* corner, void* self) {
    static_cast<Sweep*>(self)->m_found.push_back(static_cast<Corner*>(corner)->index);
  }
  static void CALLBACK takeEdgeFlag(GLboolean, void*) {}

  /// Asked for where corners coincide (the first of them stands for all) or edges cross.
  static void CALLBACK combine(GLdouble place[3], void* corners[4], GLfloat*, void** result,
                               void* self) {
    Sweep& sweep = *static_cast<Sweep*>(self);
    for (int i = 0; i < 4; ++i) {
      auto* corner = static_cast<Corner*>(corners[i]);
      if (corner && std::equal(place, place + 3, corner->place.begin())) {
        *result = corner;
        return;
      }
    }
    const auto index = static_cast<std::uint32_t>(sweep.m_points->size());
    sweep.m_points->push_back(sweep.m_origin + Vector3d(place[0], place[1], place[2]));
    *result = &sweep.m_corners.emplace_back(Corner{{place[0], place[1], place[2]}, index});
  }

  GLUtesselator* m_tessellator;
  std::vector<Point3d>* m_points = nullptr;
  Point3d m_origin;
  std::deque<Corner> m_corners;
  Indices m_found;
};

Triangulator::Triangulator() = default;
Triangulator::~Triangulator() = default;

void Triangulator::triangulate(std::vector<Point3d>& points, const Indices& outer,
                               const std::vector<Indices>& holes, Indices& triangles) {
  if (outer.size() < 3) return;
  for (const std::uint32_t index : outer)
    if (!points[index].isFinite()) return;
  if (holes.empty() && (outer.size() == 3 || addConvex(points, outer, triangles))) {
    if (outer.size() == 3) addFan(outer, triangles);
    return;
  }
  const Vector3d area = areaVector(points, outer);
  const double size = area.length();
  if (!std::isfinite(size) || size == 0) return addFan(outer, triangles);
  const Vector3d normal = area * (1 / size);
  if (holes.size() == 1 && addBand(points, outer, holes[0], normal, triangles)) return;
  if (!m_sweep) m_sweep = std::make_unique<Sweep>();
  if (outer.size() < manyCorners) return m_sweep->run(points, outer, holes, normal, triangles);
  Indices rest = outer;
  cutSmallEars(points, holes, normal, rest, triangles);
  m_sweep->run(points, rest, holes, normal, triangles);
}

/// A fan is right when all its triangles turn the way of the outline and all corners lie on one
/// side of its first edge.
bool Triangulator::addConvex(const std::vector<Point3d>& points, const Indices& outer,
                             Indices& triangles) const {
  const Vector3d area = areaVector(points, outer);
  const Point3d& first = points[outer[0]];
  const Vector3d edge = points[outer[1]] - first;
  for (std::size_t i = 2; i < outer.size(); ++i) {
    const Vector3d here = points[outer[i]] - first;
    const Vector3d before = points[outer[i - 1]] - first;
    if (!(before.cross(here).dot(area) > 0) || !(edge.cross(here).dot(area) > 0)) return false;
  }
  addFan(outer, triangles);
  return true;
}

}  // namespace qor::host::targets
