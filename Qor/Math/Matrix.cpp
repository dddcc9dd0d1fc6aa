#include "Qor/Math/Matrix.h"

#include <algorithm>

namespace qor::math {

namespace _2d {

bool Matrix::isIdentity() const {
  return m_x.isNear({1, 0}) && m_y.isNear({0, 1}) && m_origin.isNear({});
}

Matrix Matrix::inverse() const {
  const double scale = 1 / m_x.cross(m_y);
  if (!std::isfinite(scale)) return {};
  const Vector x(m_y.y * scale, -m_x.y * scale), y(-m_y.x * scale, m_x.x * scale);
  return {x, y, Point() - (x * m_origin.x + y * m_origin.y)};
}

Matrix Matrix::scale(double x, double y, MatrixMultiplyOrder order) const {
  const Matrix factor = createScale(x, y);
  return order == MatrixMultiplyOrder::left ? factor * *this : *this * factor;
}

_3d::Matrix Matrix::toMatrix3d() const {
  return {{m_x.x, m_x.y, 0}, {m_y.x, m_y.y, 0}, {0, 0, 1}, {m_origin.x, m_origin.y, 0}};
}

}  // namespace _2d

namespace _3d {

Matrix Matrix::createRotate(const Vector& axis, Angle angle) {
  const double length = axis.length();
  if (!(length > 0) || !std::isfinite(length)) return {};
  const Vector a = axis * (1 / length);
  const double c = std::cos(angle), s = std::sin(angle);
  const auto turned = [&](const Vector& v) {
    return v * c + a.cross(v) * s + a * (a.dot(v) * (1 - c));
  };
  return {turned({1, 0, 0}), turned({0, 1, 0}), turned({0, 0, 1}), {}};
}

Matrix Matrix::createXRotate(Angle angle) { return createRotate({1, 0, 0}, angle); }
Matrix Matrix::createYRotate(Angle angle) { return createRotate({0, 1, 0}, angle); }
Matrix Matrix::createZRotate(Angle angle) { return createRotate({0, 0, 1}, angle); }

bool Matrix::isIdentity() const {
  return m_x.isNear({1, 0, 0}) && m_y.isNear({0, 1, 0}) && m_z.isNear({0, 0, 1}) &&
         m_origin.isNear({});
}

bool Matrix::isOrthogonal() const {
  return m_x.isPerpendicular(m_y) && m_y.isPerpendicular(m_z) && m_z.isPerpendicular(m_x);
}

bool Matrix::isOnly2dTransformation() const {
  const double tolerance = Epsilon::current().length;
  const auto vanishes = [&](double value) { return std::abs(value) <= tolerance; };
  return vanishes(m_x.z) && vanishes(m_y.z) && vanishes(m_z.x) && vanishes(m_z.y) &&
         vanishes(m_origin.z);
}

Matrix Matrix::inverse() const {
  const Vector yz = m_y.cross(m_z), zx = m_z.cross(m_x), xy = m_x.cross(m_y);
  const double scale = 1 / m_x.dot(yz);
  if (!std::isfinite(scale)) return {};
  const Vector x = Vector(yz.x, zx.x, xy.x) * scale;
  const Vector y = Vector(yz.y, zx.y, xy.y) * scale;
  const Vector z = Vector(yz.z, zx.z, xy.z) * scale;
  return {x, y, z, Point() - (x * m_origin.x + y * m_origin.y + z * m_origin.z)};
}

std::vector<Point> Matrix::transform(const std::vector<_2d::Point>& points) const {
  std::vector<Point> result(points.size());
  std::transform(points.begin(), points.end(), result.begin(),
                 [this](const _2d::Point& point) { return transform(point); });
  return result;
}

std::vector<_2d::Point> Matrix::convert(const std::vector<Point>& points) const {
  std::vector<_2d::Point> result(points.size());
  std::transform(points.begin(), points.end(), result.begin(), [this](const Point& point) {
    const Point moved = point * *this;
    return _2d::Point(moved.x, moved.y);
  });
  return result;
}

}  // namespace _3d

}  // namespace qor::math
