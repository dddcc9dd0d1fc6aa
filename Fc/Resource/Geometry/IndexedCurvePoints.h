#pragma once

#include <vector>

#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/FcSegmentIndexSelect.h"
#include "Qor/Math/CurveDiscretization.h"

namespace qor::fc::resource::geometry {

/// Walks the lines and arcs of an indexed curve and collects the points on them.
///
/// `Point` is a point of the plane or of space; the indices of the segments are 1-based into the
/// points given. A segment that doesn't make sense is reported and adds nothing; one that doesn't
/// begin where the last one ended is reported and joined by a straight line.
template <typename Point>
class IndexedCurvePoints {
 public:
  using Segments = std::vector<FcSegmentIndexSelect>;

  IndexedCurvePoints(const std::vector<Point>& coordinates, const Segments& segments,
                     const math::CurveDiscretization& discretization)
      : m_coordinates(coordinates), m_discretization(discretization) {
    const FcSegmentIndexSelect* last = nullptr;
    for (const FcSegmentIndexSelect& segment : segments) {
      if (last) expectChained(*last, segment);
      append(segment);
      last = &segment;
    }
  }

  std::vector<Point>& points() { return m_points; }
  /// For each point, whether it lies on an arc. The first point goes with the first segment.
  std::vector<bool>& softFlags() { return m_softFlags; }

 private:
  using Index = std::int64_t;

  static void expectChained(const FcSegmentIndexSelect& before, const FcSegmentIndexSelect& after) {
    const auto end = lastIndex(before), start = firstIndex(after);
    expectThat(end && start && *end == *start,
               "By formal proposition of FcIndexedPolyCurve, the last index of a segment (execpt "
               "the last segment) must equal the first index of the next segment");
  }

  void append(const FcSegmentIndexSelect& segment) {
    switch (segment.type()) {
      case FcSegmentIndexSelect::Types::LineIndex:
        return appendLine(segment.LineIndex().value());
      case FcSegmentIndexSelect::Types::ArcIndex:
        return appendArc(segment.ArcIndex().value());
      default:
        report("detected a segments which is neither of type LineIndex nor ArcIndex");
    }
  }

  template <typename Indices>
  bool areInRange(const Indices& indices) const {
    for (const auto& index : indices)
      if (index.value() < 1 || static_cast<std::size_t>(index.value()) > m_coordinates.size())
        return false;
    return true;
  }
  const Point& at(Index index) const { return m_coordinates[static_cast<std::size_t>(index - 1)]; }

  void appendLine(const std::vector<measure::FcPositiveInteger>& indices) {
    expectThat(indices.size() >= 2,
               "By definition of IfcLineIndex, there must at least be 2 indexes (for start and end "
               "point of line)");
    if (!requireThat(areInRange(indices), "Invalid indices contained in this LineIndex segment"))
      return;
    for (std::size_t i = m_points.empty() ? 0 : 1; i < indices.size(); ++i)
      appendPoint(at(indices[i].value()), false);
  }

  void appendArc(const std::array<measure::FcPositiveInteger, 3>& indices) {
    if (!requireThat(areInRange(indices), "Invalid indices contained in this ArcSegment segment"))
      return;
    const std::vector<Point> arc = m_discretization.discretizeCircularArc(
        at(indices[0].value()), at(indices[1].value()), at(indices[2].value()));
    if (!requireThat(!arc.empty(), "Expect discretization of circular arc") ||
        !requireThat(arc.size() >= 2,
                     "Expect discretization of circular arc to consist of at least two points!"))
      return;
    for (std::size_t i = m_points.empty() ? 0 : 1; i < arc.size(); ++i) appendPoint(arc[i], true);
  }

  void appendPoint(const Point& point, bool soft) {
    m_points.push_back(point);
    m_softFlags.push_back(soft);
  }

 public:
  /// The first and last index of a segment; empty for one that has none.
  static std::optional<Index> firstIndex(const FcSegmentIndexSelect& segment) {
    return indexOf(segment, [](const auto& indices) { return indices.front().value(); });
  }
  static std::optional<Index> lastIndex(const FcSegmentIndexSelect& segment) {
    return indexOf(segment, [](const auto& indices) { return indices.back().value(); });
  }

 private:
  template <typename Pick>
  static std::optional<Index> indexOf(const FcSegmentIndexSelect& segment, Pick&& pick) {
    if (segment.type() == FcSegmentIndexSelect::Types::ArcIndex)
      return pick(segment.ArcIndex().value());
    if (segment.type() == FcSegmentIndexSelect::Types::LineIndex &&
        !segment.LineIndex().value().empty())
      return pick(segment.LineIndex().value());
    return {};
  }

  const std::vector<Point>& m_coordinates;
  const math::CurveDiscretization& m_discretization;
  std::vector<Point> m_points;
  std::vector<bool> m_softFlags;
};

}  // namespace qor::fc::resource::geometry
