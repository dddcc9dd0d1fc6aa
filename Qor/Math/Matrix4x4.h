#pragma once

#include <array>
#include <cstddef>

#include "Qor/Math/Matrix.h"

namespace qor::math::_3d {

/// The sixteen numbers of a matrix as graphics libraries take them.
class QOR_API Matrix4x4 {
 public:
  /// Rows X, Y, Z, origin; the fourth column is 0, 0, 0, 1.
  explicit Matrix4x4(const Matrix& matrix);

  /// 0-based.
  double operator()(std::size_t row, std::size_t column) const {
    return m_numbers[row * 4 + column];
  }
  /// Row by row.
  const std::array<double, 16>& numbers() const { return m_numbers; }

  /// Rows and columns exchanged: for a reader who multiplies column vectors.
  Matrix4x4 asTransposedMatrix() const;
  /// The matrix that undoes this one; the identity when there is none.
  Matrix4x4 asInversedMatrix() const;

  friend bool operator==(const Matrix4x4&, const Matrix4x4&) = default;

 private:
  std::array<double, 16> m_numbers{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
};

}  // namespace qor::math::_3d
