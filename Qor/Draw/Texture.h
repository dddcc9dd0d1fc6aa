#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "Qor/Math/Matrix.h"

namespace qor::generate::draw {

/// An image on a surface: where it comes from and how texture coordinates reach it. Of the three
/// sources one is given.
struct Texture {
  /// The image goes on beyond 0 to 1 in the first and second coordinate.
  bool repeatS = true;
  bool repeatT = true;
  /// Texture coordinates are multiplied by it.
  math::Matrix2d transformation;

  /// Where the image lies: a file or an address, as the model gives it.
  std::string location;

  /// The bytes of an image file, and the name of its format as the model gives it ("PNG").
  std::string format;
  std::vector<std::uint8_t> file;

  /// Pixels in rows from the bottom left, each of `components` bytes: 1 grey, 2 grey and alpha, 3
  /// red, green, blue, 4 with alpha. `width * height * components` bytes.
  std::uint32_t width = 0;
  std::uint32_t height = 0;
  std::uint32_t components = 0;
  std::vector<std::uint8_t> pixels;

  friend bool operator==(const Texture&, const Texture&) = default;
};

}  // namespace qor::generate::draw
