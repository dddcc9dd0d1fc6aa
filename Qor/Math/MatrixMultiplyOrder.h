#pragma once

namespace qor::math {

/// Which factor a matrix becomes that is multiplied onto another one. The left factor of a product
/// acts first.
enum class MatrixMultiplyOrder { right = 0, left = 1 };

}  // namespace qor::math
