#include "Host/Targets/Rasterizer.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "Qor/Math/Vector.h"

namespace qor::host::targets {

namespace {

using math::Point3d;
using math::Vector3d;

constexpr float farthest = -std::numeric_limits<float>::max();
constexpr double sameSurface = 0.9;  // cosine of the angle up to which no edge is drawn
constexpr float edgeLight = 0.25f;   // what an edge leaves of the light
constexpr double lineBias = 3;       // samples by which a line stands in front
constexpr int lineReach = 1;         // samples to either side of a line

std::uint8_t toByte(float value) {
  return static_cast<std::uint8_t>(std::lround(std::clamp(value, 0.0f, 1.0f) * 255));
}

std::array<std::uint8_t, 4> toBytes(const Rgb& colour, float light) {
  return {toByte(colour[0] * light), toByte(colour[1] * light), toByte(colour[2] * light), 255};
}

/// The rows or columns whose centres lie from `low` on and before `high`, within the picture.
std::pair<std::size_t, std::size_t> centresBetween(double low, double high, std::size_t size) {
  const double end = static_cast<double>(size);
  return {static_cast<std::size_t>(std::clamp(std::ceil(low - 0.5), 0.0, end)),
          static_cast<std::size_t>(std::clamp(std::ceil(high - 0.5), 0.0, end))};
}

double xAt(const Point3d& a, const Point3d& b, double y) {
  return a.y == b.y ? a.x : a.x + (b.x - a.x) * ((y - a.y) / (b.y - a.y));
}

}  // namespace

/// A triangle as its samples see it.
struct Rasterizer::Surface {
  explicit Surface(Corners corners) : byHeight(corners) {
    const Vector3d cross = (corners[1] - corners[0]).cross(corners[2] - corners[0]);
    const double length = cross.length();
    if (length == 0 || cross.z == 0) return;  // seen from its edge
    isVisible = true;
    normal = cross * ((cross.z > 0 ? 1 : -1) / length);
    // From here on, two triangles with a common edge compute the same on it.
    std::sort(byHeight.begin(), byHeight.end(),
              [](const Point3d& a, const Point3d& b) { return a.y < b.y; });
    const auto [low, high] = std::minmax({corners[0].z, corners[1].z, corners[2].z});
    lowest = low;
    highest = high;
  }

  double depthAt(double x, double y) const {
    const Point3d& p = byHeight[0];
    const double depth = p.z - (normal.x * (x - p.x) + normal.y * (y - p.y)) / normal.z;
    return std::clamp(depth, lowest, highest);
  }

  float light() const {
    constexpr Vector3d lamp(-0.36, -0.48, 0.8);  // Y is downward
    return 0.55f + 0.45f * static_cast<float>(std::max(0.0, normal.dot(lamp)));
  }

  std::array<Point3d, 3> byHeight;
  Vector3d normal;
  double lowest = 0;
  double highest = 0;
  bool isVisible = false;
};

Rasterizer::Rasterizer(std::size_t width, std::size_t height, double pixelsPerUnit,
                       const Rgb& background)
    : m_width(width * samples),
      m_height(height * samples),
      m_depthScale(pixelsPerUnit * samples),
      m_samples(m_width * m_height, {farthest, toBytes(background, 1), 0, {}}) {}

Point3d Rasterizer::inSamples(const Point3d& point) const {
  return {point.x * samples, point.y * samples, point.z * m_depthScale};
}

/// Calls `paint` with each sample whose centre the surface covers, and the depth there.
template <class Paint>
void Rasterizer::scan(const Surface& surface, const Paint& paint) {
  const auto& [top, middle, bottom] = surface.byHeight;
  const auto rows = centresBetween(top.y, bottom.y, m_height);
  for (std::size_t row = rows.first; row < rows.second; ++row) {
    const double y = static_cast<double>(row) + 0.5;
    const double onLong = xAt(top, bottom, y);
    const double onShort = y < middle.y ? xAt(top, middle, y) : xAt(middle, bottom, y);
    const auto columns =
        centresBetween(std::min(onLong, onShort), std::max(onLong, onShort), m_width);
    for (std::size_t column = columns.first; column < columns.second; ++column)
      paint(at(column, row),
            static_cast<float>(surface.depthAt(static_cast<double>(column) + 0.5, y)));
  }
}

void Rasterizer::drawTriangle(const Corners& corners, const Rgb& colour, std::uint32_t object) {
  const Surface surface({inSamples(corners[0]), inSamples(corners[1]), inSamples(corners[2])});
  if (!surface.isVisible) return;
  const auto part = [](double value) { return static_cast<std::int8_t>(std::lround(value * 127)); };
  const Sample painted{0,
                       toBytes(colour, surface.light()),
                       object,
                       {part(surface.normal.x), part(surface.normal.y), part(surface.normal.z), 0}};
  scan(surface, [&](Sample& sample, float depth) {
    if (depth <= sample.depth) return;
    sample = painted;
    sample.depth = depth;
  });
}

void Rasterizer::blendTriangle(const Corners& corners, const Rgb& colour, float opacity) {
  const Surface surface({inSamples(corners[0]), inSamples(corners[1]), inSamples(corners[2])});
  if (!surface.isVisible) return;
  const auto front = toBytes(colour, surface.light());
  scan(surface, [&](Sample& sample, float depth) {
    if (depth <= sample.depth) return;
    for (std::size_t i = 0; i < 3; ++i) {
      const float behind = static_cast<float>(sample.colour[i]);
      const float mixed = behind + (static_cast<float>(front[i]) - behind) * opacity;
      sample.colour[i] = static_cast<std::uint8_t>(mixed + 0.5f);
    }
  });
}

void Rasterizer::drawLine(const Point3d& from, const Point3d& to, const Rgb& colour) {
  const Point3d a = inSamples(from);
  const Vector3d along = inSamples(to) - a;
  const double steps = std::ceil(std::max(std::abs(along.x), std::abs(along.y)));
  if (steps > 4 * static_cast<double>(m_width + m_height)) return;  // mostly outside
  const auto bytes = toBytes(colour, 1);
  for (double step = 0; step <= steps; ++step) {
    const Point3d p = a + along * (steps > 0 ? step / steps : 0);
    const auto depth = static_cast<float>(p.z + lineBias);
    const auto columns = centresBetween(p.x - lineReach, p.x + lineReach + 1, m_width);
    const auto rows = centresBetween(p.y - lineReach, p.y + lineReach + 1, m_height);
    for (std::size_t row = rows.first; row < rows.second; ++row)
      for (std::size_t column = columns.first; column < columns.second; ++column)
        if (Sample& sample = at(column, row); depth > sample.depth) sample = {depth, bytes, 0, {}};
  }
}

/// Whether an edge runs between neighbours along an axis.
bool Rasterizer::breaks(const Sample& a, const Sample& b, std::size_t axis) const {
  if (a.object != b.object) return a.object != 0 || a.depth == farthest || b.depth == farthest;
  if (a.object == 0) return false;
  double cosine = 0;
  for (std::size_t i = 0; i < 3; ++i) cosine += a.normal[i] * b.normal[i];
  if (cosine < sameSurface * 127 * 127) return true;
  const double slope = -a.normal[axis] / std::max<double>(a.normal[2], 8);
  return std::abs(b.depth - (a.depth + slope)) > 2 + 2 * std::abs(slope);
}

void Rasterizer::drawEdges() {
  std::vector<bool> isEdge(m_samples.size());
  for (std::size_t y = 0; y < m_height; ++y)
    for (std::size_t x = 0; x < m_width; ++x) {
      const std::size_t here = y * m_width + x;
      if (x + 1 < m_width && breaks(m_samples[here], m_samples[here + 1], 0))
        isEdge[here] = isEdge[here + 1] = true;
      if (y + 1 < m_height && breaks(m_samples[here], m_samples[here + m_width], 1))
        isEdge[here] = isEdge[here + m_width] = true;
    }
  for (std::size_t i = 0; i < m_samples.size(); ++i)
    if (isEdge[i])
      for (std::size_t k = 0; k < 3; ++k)
        m_samples[i].colour[k] =
            static_cast<std::uint8_t>(static_cast<float>(m_samples[i].colour[k]) * edgeLight);
}

image::Image Rasterizer::image() const {
  image::Image image(m_width / samples, m_height / samples);
  constexpr unsigned count = samples * samples;
  for (std::size_t y = 0; y < image.height(); ++y)
    for (std::size_t x = 0; x < image.width(); ++x) {
      std::array<unsigned, 3> sum{};
      for (std::size_t i = 0; i < count; ++i) {
        const Sample& sample = at(x * samples + i % samples, y * samples + i / samples);
        for (std::size_t k = 0; k < 3; ++k) sum[k] += sample.colour[k];
      }
      const auto mean = [&](std::size_t k) {
        return static_cast<std::uint8_t>((sum[k] + count / 2) / count);
      };
      image.at(x, y) = {mean(0), mean(1), mean(2), 255};
    }
  return image;
}

}  // namespace qor::host::targets
