#include "Qor/Math/Matrix4x4.h"

namespace qor::math::_3d {

namespace {

using Numbers = std::array<double, 16>;

/// Brings the greatest number of the column at or below the diagonal onto it; false for zeros.
bool exchangePivot(Numbers& left, Numbers& right, std::size_t column) {
  std::size_t pivot = column;
  for (std::size_t row = column + 1; row < 4; ++row)
    if (std::abs(left[row * 4 + column]) > std::abs(left[pivot * 4 + column])) pivot = row;
  for (std::size_t k = 0; k < 4; ++k) {
    std::swap(left[column * 4 + k], left[pivot * 4 + k]);
    std::swap(right[column * 4 + k], right[pivot * 4 + k]);
  }
  return std::isfinite(1 / left[column * 4 + column]);
}

/// Makes the column that of the identity by adding multiples of its row to the others.
void eliminate(Numbers& left, Numbers& right, std::size_t column) {
  const double scale = 1 / left[column * 4 + column];
  for (std::size_t k = 0; k < 4; ++k) {
    left[column * 4 + k] *= scale;
    right[column * 4 + k] *= scale;
  }
  for (std::size_t row = 0; row < 4; ++row) {
    if (row == column) continue;
    const double factor = left[row * 4 + column];
    for (std::size_t k = 0; k < 4; ++k) {
      left[row * 4 + k] -= factor * left[column * 4 + k];
      right[row * 4 + k] -= factor * right[column * 4 + k];
    }
  }
}

}  // namespace

Matrix4x4::Matrix4x4(const Matrix& matrix) {
  const auto write = [this](std::size_t row, double x, double y, double z) {
    m_numbers[row * 4] = x;
    m_numbers[row * 4 + 1] = y;
    m_numbers[row * 4 + 2] = z;
  };
  write(0, matrix.x().x, matrix.x().y, matrix.x().z);
  write(1, matrix.y().x, matrix.y().y, matrix.y().z);
  write(2, matrix.z().x, matrix.z().y, matrix.z().z);
  write(3, matrix.origin().x, matrix.origin().y, matrix.origin().z);
}

Matrix4x4 Matrix4x4::asTransposedMatrix() const {
  Matrix4x4 result = *this;
  for (std::size_t row = 0; row < 4; ++row)
    for (std::size_t column = 0; column < 4; ++column)
      result.m_numbers[row * 4 + column] = m_numbers[column * 4 + row];
  return result;
}

Matrix4x4 Matrix4x4::asInversedMatrix() const {
  const Matrix4x4 identity{Matrix()};
  Numbers rest = m_numbers;
  Matrix4x4 result = identity;
  for (std::size_t column = 0; column < 4; ++column) {
    if (!exchangePivot(rest, result.m_numbers, column)) return identity;
    eliminate(rest, result.m_numbers, column);
  }
  return result;
}

}  // namespace qor::math::_3d
