#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace qor::image {

/// Red, green, blue and opacity, 0 to 255 each; colours aren't multiplied by the opacity.
using Pixel = std::array<std::uint8_t, 4>;

/// A picture of pixels, row by row from the top, each row from the left.
class Image {
 public:
  Image() = default;
  /// All pixels the same.
  Image(std::size_t width, std::size_t height, const Pixel& fill = {})
      : m_width(width), m_height(height), m_pixels(width * height, fill) {}

  std::size_t width() const { return m_width; }
  std::size_t height() const { return m_height; }
  Pixel& at(std::size_t x, std::size_t y) { return m_pixels[y * m_width + x]; }
  const Pixel& at(std::size_t x, std::size_t y) const { return m_pixels[y * m_width + x]; }
  const std::vector<Pixel>& pixels() const { return m_pixels; }

 private:
  std::size_t m_width = 0;
  std::size_t m_height = 0;
  std::vector<Pixel> m_pixels;
};

}  // namespace qor::image
