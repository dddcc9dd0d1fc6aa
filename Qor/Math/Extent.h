#pragma once

#include <algorithm>
#include <limits>
#include <type_traits>

#include "Qor/Math/Matrix.h"

namespace qor::math {

namespace details {

constexpr _2d::Point lowest(const _2d::Point& a, const _2d::Point& b) {
  return {std::min(a.x, b.x), std::min(a.y, b.y)};
}
constexpr _3d::Point lowest(const _3d::Point& a, const _3d::Point& b) {
  return {std::min(a.x, b.x), std::min(a.y, b.y), std::min(a.z, b.z)};
}
constexpr _2d::Point highest(const _2d::Point& a, const _2d::Point& b) {
  return {std::max(a.x, b.x), std::max(a.y, b.y)};
}
constexpr _3d::Point highest(const _3d::Point& a, const _3d::Point& b) {
  return {std::max(a.x, b.x), std::max(a.y, b.y), std::max(a.z, b.z)};
}

/// What `Extent2d` and `Extent` have in common: a box along the axes, its sides included. The
/// default is empty.
template <class Extent, class Point>
class BasicExtent {
 public:
  constexpr BasicExtent() = default;
  /// The smallest box around two points.
  constexpr BasicExtent(const Point& a, const Point& b) {
    include(a);
    include(b);
  }
  /// The smallest box around all points; empty for none.
  template <typename Points>
  static constexpr Extent ofPoints(const Points& points) {
    Extent result;
    for (const Point& point : points) result.include(point);
    return result;
  }

  /// False when it is empty. The other questions have no answer then.
  constexpr bool isValid() const { return lowest(m_min, m_max) == m_min; }
  constexpr const Point& minimum() const { return m_min; }
  constexpr const Point& maximum() const { return m_max; }
  constexpr auto size() const { return m_max - m_min; }
  constexpr Point center() const { return m_min + size() * 0.5; }

  /// Grows it as far as the point; a coordinate that isn't a number is passed over.
  constexpr void include(const Point& point) {
    m_min = lowest(m_min, point);
    m_max = highest(m_max, point);
  }
  /// The box around both; the other one when one is empty.
  [[nodiscard]] constexpr Extent uniteWith(const Extent& other) const {
    if (!isValid()) return other;
    return other.isValid() ? Extent(lowest(m_min, other.m_min), highest(m_max, other.m_max))
                           : static_cast<const Extent&>(*this);
  }
  /// What both have in common; empty when that is nothing.
  [[nodiscard]] constexpr Extent intersectWith(const Extent& other) const {
    Extent result;
    result.m_min = highest(m_min, other.m_min);
    result.m_max = lowest(m_max, other.m_max);
    return result.isValid() ? result : Extent();
  }

  friend constexpr bool operator==(const BasicExtent&, const BasicExtent&) = default;

 private:
  static constexpr Point cornerAt(double coordinate) {
    if constexpr (std::is_constructible_v<Point, double, double>)
      return {coordinate, coordinate};
    else
      return {coordinate, coordinate, coordinate};
  }

  static constexpr double kFar = std::numeric_limits<double>::infinity();
  Point m_min = cornerAt(kFar);
  Point m_max = cornerAt(-kFar);
};

}  // namespace details

namespace _2d {

/// A box along the axes of the plane, edges included.
class Extent : public details::BasicExtent<Extent, Point> {
 public:
  using BasicExtent::BasicExtent;
};

}  // namespace _2d

namespace _3d {

/// A box along the axes of space, faces included.
class QOR_API Extent : public details::BasicExtent<Extent, Point> {
 public:
  using BasicExtent::BasicExtent;

  /// The box around the eight corners times the matrix: it can be larger than that of what was in
  /// it. Empty stays empty.
  [[nodiscard]] Extent transformExtent(const Matrix& matrix) const;
};

}  // namespace _3d

using Extent2d = _2d::Extent;
using Extent = _3d::Extent;

}  // namespace qor::math
