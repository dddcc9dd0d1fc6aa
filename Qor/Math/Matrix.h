#pragma once

#include <vector>

#include "Qor/Math/MatrixMultiplyOrder.h"
#include "Qor/Math/Point.h"
#include "Qor/Math/Vector.h"
#include "Qor/Platform/Export.h"

namespace qor::math {

namespace _3d {
class Matrix;
}

namespace _2d {

/// A frame in the plane as three rows of two: the X and Y axis and the origin.
///
/// A point is a row vector times the matrix; in `a * b` the matrix `a` acts first. The default is
/// the identity. Nothing asks for axes of length 1 or right angles.
class QOR_API Matrix {
 public:
  constexpr Matrix() = default;
  constexpr Matrix(const Vector& x, const Vector& y, const Point& origin)
      : m_x(x), m_y(y), m_origin(origin) {}
  /// The right-handed frame whose Y axis is X turned by a quarter.
  constexpr Matrix(const Point& origin, const Vector& x) : Matrix(x, x.perpendicular(), origin) {}

  static constexpr Matrix createTranslation(const Vector& by) {
    return {{1, 0}, {0, 1}, {by.x, by.y}};
  }
  /// Counter-clockwise around the origin.
  static Matrix createRotate(Angle angle) { return {Point(), Vector(1, 0).rotate(angle)}; }
  static constexpr Matrix createScale(double x, double y) { return {{x, 0}, {0, y}, {}}; }

  constexpr const Vector& x() const { return m_x; }
  constexpr const Vector& y() const { return m_y; }
  constexpr const Point& origin() const { return m_origin; }

  /// Each number within the length tolerance.
  bool isIdentity() const;
  /// The axes are left-handed.
  constexpr bool isMirror() const { return m_x.cross(m_y) < 0; }
  /// The matrix that undoes this one. The identity when there is none: axes that are parallel, have
  /// no length or aren't finite.
  Matrix inverse() const;
  /// With a scaling along the axes multiplied onto it: as the left factor it scales the points
  /// before this matrix acts, as the right factor after it.
  [[nodiscard]] Matrix scale(double x, double y, MatrixMultiplyOrder order) const;
  /// The frame in space at height 0 whose Z axis is (0, 0, 1).
  _3d::Matrix toMatrix3d() const;

  friend constexpr bool operator==(const Matrix&, const Matrix&) = default;
  friend constexpr Vector operator*(const Vector& v, const Matrix& m) {
    return m.m_x * v.x + m.m_y * v.y;
  }
  friend constexpr Point operator*(const Point& p, const Matrix& m) {
    return m.m_origin + Vector(p.x, p.y) * m;
  }
  friend constexpr Matrix operator*(const Matrix& a, const Matrix& b) {
    return {a.m_x * b, a.m_y * b, a.m_origin * b};
  }

 private:
  Vector m_x{1, 0};
  Vector m_y{0, 1};
  Point m_origin;
};

}  // namespace _2d

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

  static constexpr Matrix createTranslation(const Vector& by) {
    return {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {by.x, by.y, by.z}};
  }
  /// Around an axis through the origin, counter-clockwise for one towards whom it points. The axis
  /// may have any length; the identity for one that can't be normalized.
  static Matrix createRotate(const Vector& axis, Angle angle);
  static Matrix createXRotate(Angle angle);
  static Matrix createYRotate(Angle angle);
  static Matrix createZRotate(Angle angle);
  static constexpr Matrix createScale(double x, double y, double z) {
    return {{x, 0, 0}, {0, y, 0}, {0, 0, z}, {}};
  }

  constexpr const Vector& x() const { return m_x; }
  constexpr const Vector& y() const { return m_y; }
  constexpr const Vector& z() const { return m_z; }
  constexpr const Point& origin() const { return m_origin; }

  /// Each number within the length tolerance.
  bool isIdentity() const;
  /// The axes are left-handed.
  bool isMirror() const { return m_x.cross(m_y).dot(m_z) < 0; }
  /// The axes are perpendicular to each other, whatever their lengths (`Vector::isPerpendicular`).
  bool isOrthogonal() const;
  /// Keeps the XY plane and the Z direction: up to the length tolerance nothing leads from X or Y
  /// to Z or back, and the origin has no height. The length and sign of the Z axis are free.
  bool isOnly2dTransformation() const;
  /// The matrix that undoes this one. The identity when there is none: axes in one plane or not
  /// finite.
  Matrix inverse() const;

  /// What this does to the XY plane, without the third coordinates.
  constexpr _2d::Matrix toMatrix2d() const {
    return {{m_x.x, m_x.y}, {m_y.x, m_y.y}, {m_origin.x, m_origin.y}};
  }
  /// From the plane of this frame into space.
  constexpr Point transform(const _2d::Point& point) const {
    return m_origin + (m_x * point.x + m_y * point.y);
  }
  std::vector<Point> transform(const std::vector<_2d::Point>& points) const;
  /// Points times this matrix without their third coordinate. The inverse of a frame gives the
  /// points in the plane of that frame so.
  std::vector<_2d::Point> convert(const std::vector<Point>& points) const;

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

using Matrix2d = _2d::Matrix;
using Matrix = _3d::Matrix;

}  // namespace qor::math
