#pragma once

#include <algorithm>
#include <limits>

#include "Qor/Math/Matrix.h"

namespace qor::math {

namespace _2d {

/// A box along the axes of the plane, edges included. The default is empty.
class Extent {
 public:
  constexpr Extent() = default;
  /// The smallest box around two points.
  constexpr Extent(const Point& a, const Point& b) {
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
  constexpr bool isValid() const { return m_min.x <= m_max.x && m_min.y <= m_max.y; }
  constexpr const Point& minimum() const { return m_min; }
  constexpr const Point& maximum() const { return m_max; }
  constexpr Vector size() const { return m_max - m_min; }
  constexpr Point center() const { return m_min + size() * 0.5; }

  /// Grows it as far as the point; a coordinate that isn't a number is passed over.
  constexpr void include(const Point& point) {
    m_min = {std::min(m_min.x, point.x), std::min(m_min.y, point.y)};
    m_max = {std::max(m_max.x, point.x), std::max(m_max.y, point.y)};
  }
  /// The box around both; the other one when one is empty.
  [[nodiscard]] constexpr Extent uniteWith(const Extent& other) const {
    Extent result = *this;
    result.include(other.m_min);
    result.include(other.m_max);
    return !isValid() ? other : !other.isValid() ? *this : result;
  }
  /// What both have in common; empty when that is nothing.
  [[nodiscard]] constexpr Extent intersectWith(const Extent& other) const {
    Extent result;
    result.m_min = {std::max(m_min.x, other.m_min.x), std::max(m_min.y, other.m_min.y)};
    result.m_max = {std::min(m_max.x, other.m_max.x), std::min(m_max.y, other.m_max.y)};
    return result.isValid() ? result : Extent();
  }

  friend constexpr bool operator==(const Extent&, const Extent&) = default;

 private:
  static constexpr double kFar = std::numeric_limits<double>::infinity();
  Point m_min{kFar, kFar};
  Point m_max{-kFar, -kFar};
};

}  // namespace _2d

namespace _3d {

/// A box along the axes of space, faces included. The default is empty.
class QOR_API Extent {
 public:
  constexpr Extent() = default;
  /// The smallest box around two points.
  constexpr Extent(const Point& a, const Point& b) {
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
  constexpr bool isValid() const {
    return m_min.x <= m_max.x && m_min.y <= m_max.y && m_min.z <= m_max.z;
  }
  constexpr const Point& minimum() const { return m_min; }
  constexpr const Point& maximum() const { return m_max; }
  constexpr Vector size() const { return m_max - m_min; }
  constexpr Point center() const { return m_min + size() * 0.5; }

  /// Grows it as far as the point; a coordinate that isn't a number is passed over.
  constexpr void include(const Point& point) {
    m_min = {std::min(m_min.x, point.x), std::min(m_min.y, point.y), std::min(m_min.z, point.z)};
    m_max = {std::max(m_max.x, point.x), std::max(m_max.y, point.y), std::max(m_max.z, point.z)};
  }
  /// The box around both; the other one when one is empty.
  [[nodiscard]] constexpr Extent uniteWith(const Extent& other) const {
    Extent result = *this;
    result.include(other.m_min);
    result.include(other.m_max);
    return !isValid() ? other : !other.isValid() ? *this : result;
  }
  /// What both have in common; empty when that is nothing.
  [[nodiscard]] constexpr Extent intersectWith(const Extent& other) const {
    Extent result;
    result.m_min = {std::max(m_min.x, other.m_min.x), std::max(m_min.y, other.m_min.y),
                    std::max(m_min.z, other.m_min.z)};
    result.m_max = {std::min(m_max.x, other.m_max.x), std::min(m_max.y, other.m_max.y),
                    std::min(m_max.z, other.m_max.z)};
    return result.isValid() ? result : Extent();
  }
  /// The box around the eight corners times the matrix: it can be larger than that of what was in
  /// it. Empty stays empty.
  [[nodiscard]] Extent transformExtent(const Matrix& matrix) const;

  friend constexpr bool operator==(const Extent&, const Extent&) = default;

 private:
  static constexpr double kFar = std::numeric_limits<double>::infinity();
  Point m_min{kFar, kFar, kFar};
  Point m_max{-kFar, -kFar, -kFar};
};

}  // namespace _3d

using Extent2d = _2d::Extent;
using Extent = _3d::Extent;

}  // namespace qor::math
