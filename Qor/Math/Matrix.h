#pragma once

#include "Qor/Math/Point.h"
#include "Qor/Math/Vector.h"
#include "Qor/Platform/Export.h"

namespace qor::math {

namespace _3d {

/// A frame in space as four rows of three: the X, Y and Z axis and the origin.
///
/// A point is a row vector times the matrix; in `a * b` the matrix `a` acts first. The default is
/// the identity. Nothing asks for axes of length 1 or right angles.
class QOR_API Matrix {
 public:
  constexpr Matrix() = default;
  constexpr Matrix(const Vector& x, const Vector& y, const Vector& z, const Point& origin)
      : m_x(x), m_y(y), m_z(z), m_origin(origin) {}
  /// The right-handed frame whose Y axis is z × x.
  constexpr Matrix(const Point& origin, const Vector& x, const Vector& z)
      : Matrix(x, z.cross(x), z, origin) {}

  constexpr const Vector& x() const { return m_x; }
  constexpr const Vector& y() const { return m_y; }
  constexpr const Vector& z() const { return m_z; }
  constexpr const Point& origin() const { return m_origin; }

  /// Each number within the length tolerance.
  bool isIdentity() const;
  /// The axes are left-handed.
  bool isMirror() const { return m_x.cross(m_y).dot(m_z) < 0; }

  friend constexpr bool operator==(const Matrix&, const Matrix&) = default;
  friend constexpr Vector operator*(const Vector& v, const Matrix& m) {
    return m.m_x * v.x + m.m_y * v.y + m.m_z * v.z;
  }
  friend constexpr Point operator*(const Point& p, const Matrix& m) {
    return m.m_origin + Vector(p.x, p.y, p.z) * m;
  }
  friend constexpr Matrix operator*(const Matrix& a, const Matrix& b) {
    return {a.m_x * b, a.m_y * b, a.m_z * b, a.m_origin * b};
  }

 private:
  Vector m_x{1, 0, 0};
  Vector m_y{0, 1, 0};
  Vector m_z{0, 0, 1};
  Point m_origin;
};

}  // namespace _3d

using Matrix = _3d::Matrix;

}  // namespace qor::math
