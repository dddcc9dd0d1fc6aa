#pragma once

#include <numbers>
#include <random>

#include "Qor/Math/Matrix.h"

namespace qor::math {

/// Frames and points by chance, the same in every run.
class RandomGeometry {
 public:
  double number(double from, double to) {
    return std::uniform_real_distribution<double>(from, to)(m_engine);
  }
  double angle() { return number(-std::numbers::pi, std::numbers::pi); }
  Point2d point2d(double reach) { return {number(-reach, reach), number(-reach, reach)}; }
  Point3d point(double reach) {
    return {number(-reach, reach), number(-reach, reach), number(-reach, reach)};
  }
  Vector3d direction() {
    const Vector3d v = point(1) - Point3d();
    return v.length() > 0.1 ? v * (1 / v.length()) : Vector3d(0, 0, 1);
  }
  /// Turned and moved by up to `reach` metres.
  Matrix frame(double reach) {
    return Matrix::createRotate(direction(), angle()) *
           Matrix::createTranslation(point(reach) - Point3d());
  }

 private:
  std::mt19937 m_engine{20240229};
};

}  // namespace qor::math
