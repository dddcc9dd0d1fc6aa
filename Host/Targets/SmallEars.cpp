#include "Host/Targets/SmallEars.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <numeric>

namespace qor::host::targets {

namespace {

using math::Point3d;
using math::Vector3d;
using Indices = std::vector<std::uint32_t>;

struct Place {
  double u, v;
};

/// Twice the area; above 0 for a turn to the left.
double turn(const Place& a, const Place& b, const Place& c) {
  return (b.u - a.u) * (c.v - a.v) - (b.v - a.v) * (c.u - a.u);
}

/// Looks up the corners near a triangle.
class Grid {
 public:
  explicit Grid(const std::vector<Place>& places) : m_places(places) {
    const auto [left, right] = std::minmax_element(
        places.begin(), places.end(), [](const Place& a, const Place& b) { return a.u < b.u; });
    const auto [low, high] = std::minmax_element(
        places.begin(), places.end(), [](const Place& a, const Place& b) { return a.v < b.v; });
    m_low = {left->u, low->v};
    const double width = right->u - left->u, height = high->v - low->v;
    const auto count = static_cast<double>(places.size());
    // About one corner in a cell, and no more than a few cells for each corner however slender.
    m_size = std::max(std::sqrt(width * height / count), std::max(width, height) / count);
    m_columns = static_cast<std::size_t>(width / m_size) + 1;
    m_begins.assign(m_columns * (static_cast<std::size_t>(height / m_size) + 1) + 1, 0);
    for (const Place& place : places) ++m_begins[cellOf(place) + 1];
    std::partial_sum(m_begins.begin(), m_begins.end(), m_begins.begin());
    m_corners.resize(places.size());
    auto next = m_begins;
    for (std::uint32_t i = 0; i < places.size(); ++i) m_corners[next[cellOf(places[i])]++] = i;
  }

  /// Whether a corner for which `counts` lies in the triangle or on it; true, too, for a triangle
  /// that is too large to look.
  template <class Counts>
  bool isOccupied(const Place& a, const Place& b, const Place& c, const Counts& counts) const {
    const std::size_t left = column(std::min({a.u, b.u, c.u}));
    const std::size_t right = column(std::max({a.u, b.u, c.u}));
    const std::size_t low = row(std::min({a.v, b.v, c.v}));
    const std::size_t high = row(std::max({a.v, b.v, c.v}));
    if ((right - left + 1) * (high - low + 1) > mostCells) return true;
    for (std::size_t y = low; y <= high; ++y)
      for (auto i = m_begins[y * m_columns + left]; i < m_begins[y * m_columns + right + 1]; ++i) {
        const std::uint32_t corner = m_corners[i];
        const Place& p = m_places[corner];
        if (counts(corner) && turn(a, b, p) >= 0 && turn(b, c, p) >= 0 && turn(c, a, p) >= 0)
          return true;
      }
    return false;
  }

 private:
  static constexpr std::size_t mostCells = 64;

  std::size_t column(double u) const { return static_cast<std::size_t>((u - m_low.u) / m_size); }
  std::size_t row(double v) const { return static_cast<std::size_t>((v - m_low.v) / m_size); }
  std::size_t cellOf(const Place& place) const {
    return row(place.v) * m_columns + column(place.u);
  }

  const std::vector<Place>& m_places;
  Place m_low{};
  double m_size = 0;
  std::size_t m_columns = 0;
  Indices m_begins;   ///< of each cell in the corners, row by row, and the end of the last
  Indices m_corners;  ///< by cell
};

/// The outline as a ring of links.
class Ring {
 public:
  Ring(const Grid& grid, const std::vector<Place>& places, std::size_t size)
      : m_grid(grid), m_places(places), m_next(size), m_previous(size), m_isGone(places.size()) {
    for (std::uint32_t i = 0; i < size; ++i) {
      m_next[i] = i + 1 < size ? i + 1 : 0;
      m_previous[i] = i > 0 ? i - 1 : static_cast<std::uint32_t>(size) - 1;
    }
  }

  bool isGone(std::uint32_t corner) const { return m_isGone[corner]; }
  std::uint32_t next(std::uint32_t corner) const { return m_next[corner]; }
  std::uint32_t previous(std::uint32_t corner) const { return m_previous[corner]; }

  bool isEar(std::uint32_t corner) const {
    const std::uint32_t before = m_previous[corner], after = m_next[corner];
    const Place &a = m_places[before], &b = m_places[corner], &c = m_places[after];
    return turn(a, b, c) > 0 && !m_grid.isOccupied(a, b, c, [&](std::uint32_t other) {
      return !m_isGone[other] && other != before && other != corner && other != after;
    });
  }

  void remove(std::uint32_t corner) {
    m_isGone[corner] = true;
    m_next[m_previous[corner]] = m_next[corner];
    m_previous[m_next[corner]] = m_previous[corner];
  }

 private:
  const Grid& m_grid;
  const std::vector<Place>& m_places;
  Indices m_next, m_previous;
  std::vector<bool> m_isGone;
};

/// The corners of the outline, then those of the holes, in their plane.
std::vector<Place> placesOf(const std::vector<Point3d>& points, const Indices& outer,
                            const std::vector<Indices>& holes, const Vector3d& normal) {
  const Vector3d across = std::abs(normal.x) < 0.6 ? Vector3d(1, 0, 0) : Vector3d(0, 1, 0);
  const Vector3d u = across.cross(normal).normalized(), v = normal.cross(u);
  const Point3d& origin = points[outer[0]];
  std::vector<Place> places;
  const auto add = [&](const Indices& contour) {
    for (const std::uint32_t index : contour)
      if (points[index].isFinite())
        places.push_back({(points[index] - origin).dot(u), (points[index] - origin).dot(v)});
  };
  add(outer);
  for (const Indices& hole : holes) add(hole);
  return places;
}

}  // namespace

void cutSmallEars(const std::vector<Point3d>& points, const std::vector<Indices>& holes,
                  const Vector3d& normal, Indices& outer, Indices& triangles) {
  const std::vector<Place> places = placesOf(points, outer, holes, normal);
  const Grid grid(places);
  Ring ring(grid, places, outer.size());
  std::size_t left = outer.size();
  for (std::size_t cut = left; cut > left / 100 && left > 3;) {
    cut = 0;
    for (std::uint32_t corner = 0; corner < outer.size() && left > 3; ++corner) {
      if (ring.isGone(corner) || !ring.isEar(corner)) continue;
      triangles.insert(triangles.end(),
                       {outer[ring.previous(corner)], outer[corner], outer[ring.next(corner)]});
      ring.remove(corner);
      ++cut;
      --left;
    }
  }
  Indices rest;
  for (std::uint32_t corner = 0; corner < outer.size(); ++corner)
    if (!ring.isGone(corner)) rest.push_back(outer[corner]);
  outer = std::move(rest);
}

}  // namespace qor::host::targets
