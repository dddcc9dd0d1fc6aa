#pragma once

#include <cstddef>
#include <utility>
#include <variant>
#include <vector>

#include "Qor/Math/Point.h"

namespace qor::generate::draw {

/// An area in the plane: the outer ring first, then the rings of its holes, none with a repeated
/// end point, and which of its edges are soft. A body that is swept from it is shaded smoothly
/// across what comes out of a soft edge, as round an arc, and keeps a crease at a sharp one.
class Profile2D {
 public:
  using Contour = std::vector<math::Point2d>;
  /// For each contour a flag for each of its points.
  using EdgeFlags = std::vector<std::vector<bool>>;

  Profile2D() = default;
  /// All edges are of one kind.
  explicit Profile2D(std::vector<Contour> contours, bool soft = false)
      : m_contours(std::move(contours)), m_softEdges(soft) {}
  Profile2D(std::vector<Contour> contours, EdgeFlags softEdges)
      : m_contours(std::move(contours)), m_softEdges(std::move(softEdges)) {}

  const std::vector<Contour>& contours() const { return m_contours; }
  /// To move or turn round; the flags stay where they are.
  std::vector<Contour>& contours() { return m_contours; }
  bool empty() const { return m_contours.empty(); }

  /// One flag for all edges, or flags by contour and point.
  const std::variant<bool, EdgeFlags>& softEdges() const { return m_softEdges; }
  /// Both 0-based. An edge without a flag is sharp.
  bool isSoft(std::size_t contour, std::size_t point) const {
    if (const bool* all = std::get_if<bool>(&m_softEdges)) return *all;
    const auto& flags = *std::get_if<EdgeFlags>(&m_softEdges);
    return contour < flags.size() && point < flags[contour].size() && flags[contour][point];
  }

 private:
  std::vector<Contour> m_contours;
  std::variant<bool, EdgeFlags> m_softEdges = false;
};

}  // namespace qor::generate::draw
