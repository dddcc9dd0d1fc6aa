#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "Qor/Image/Image.h"
#include "Qor/Math/Point.h"

namespace qor::host::targets {

/// Red, green and blue, 0 to 1.
using Rgb = std::array<float, 3>;

/// Draws triangles and lines into a picture, the nearer in front of the farther, on the processor
/// alone. Works on two by two samples a pixel, 16 bytes each.
///
/// Places are pixels from the upper left corner with Z towards the eye, in any unit; they must be
/// finite. What lies outside the picture is left out. The order of calls is: opaque triangles and
/// lines, `drawEdges`, transparent triangles from the farthest to the nearest, `image`.
class Rasterizer {
 public:
  /// `pixelsPerUnit` tells how many pixels one unit of Z is.
  Rasterizer(std::size_t width, std::size_t height, double pixelsPerUnit, const Rgb& background);

  using Corners = std::array<math::Point3d, 3>;

  /// Lit from above the eye's left, from either side alike. Edges are drawn between different
  /// numbers of objects, which start at 1.
  void drawTriangle(const Corners& corners, const Rgb& colour, std::uint32_t object);
  /// Mixes with what is behind it; hides nothing.
  void blendTriangle(const Corners& corners, const Rgb& colour, float opacity);
  /// One and a half pixels wide, in front of surfaces that it lies on.
  void drawLine(const math::Point3d& from, const math::Point3d& to, const Rgb& colour);
  /// Darkens where objects end, and where surfaces break or stand in front of each other.
  void drawEdges();

  image::Image image() const;

 private:
  static constexpr std::size_t samples = 2;  // along either side of a pixel

  struct Sample {
    float depth;
    std::array<std::uint8_t, 4> colour;  // the fourth isn't used
    std::uint32_t object;                // 0 for the background
    std::array<std::int8_t, 4> normal;   // times 127; the fourth isn't used
  };
  struct Surface;

  template <class Paint>
  void scan(const Surface& surface, const Paint& paint);
  bool breaks(const Sample& a, const Sample& b, std::size_t axis) const;
  Sample& at(std::size_t x, std::size_t y) { return m_samples[y * m_width + x]; }
  const Sample& at(std::size_t x, std::size_t y) const { return m_samples[y * m_width + x]; }
  math::Point3d inSamples(const math::Point3d& point) const;

  std::size_t m_width;   // in samples
  std::size_t m_height;  // in samples
  double m_depthScale;   // samples a unit
  std::vector<Sample> m_samples;
};

}  // namespace qor::host::targets
