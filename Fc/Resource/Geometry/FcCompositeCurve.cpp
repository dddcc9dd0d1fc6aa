#include "Fc/Resource/Geometry/FcCompositeCurve.h"

#include "Fc/Model/Nesting.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/CurveTrimming.h"
#include "Fc/Resource/Geometry/FcSegment.h"

namespace qor::fc::resource::geometry {

using math::Point2d;
using math::Point3d;

namespace {

constexpr char missingSegment[] = "There is a Segment which is not set.";

template <typename Point>
std::vector<Point> pointsOf(const FcSegment& segment, const FcParams& params) {
  if constexpr (std::is_same_v<Point, Point3d>)
    return segment.curve(params);
  else
    return segment.curve2d(params).value_or(std::vector<Point>());
}

/// Appends a segment to what is there. The point that both share comes once.
template <typename Point>
void join(std::vector<Point>& points, const std::vector<Point>& segment) {
  auto first = segment.begin();
  if (!points.empty() && !segment.empty()) {
    const bool joins = requireThat(points.back().isNear(*first),
                                   "By informal proposition: when traversed in the direction "
                                   "indicated by SameSense, the segments shall join end-to-end");
    if (joins) ++first;
  }
  points.insert(points.end(), first, segment.end());
}

template <typename Point>
std::vector<Point> curvePrivate(const FcCompositeCurve& curve, const FcParams& params,
                                bool omitLastPoint) {
  std::vector<Point> points;
  const Nesting nesting(Nesting::Kind::curve, curve);
  if (!nesting) return points;
  for (const auto& segment : curve.Segments())
    if (requireThat(segment != nullptr, missingSegment))
      join(points, pointsOf<Point>(*segment, params));
  if (omitLastPoint && !points.empty()) {
    const Point last = points.back();
    points.pop_back();
    expectThat(!points.empty() && last.isNear(points.front()),
               "end of last segment does not join with very first point in over-all curve");
  }
  return points;
}

}  // namespace

bool FcCompositeCurve::isClosed(const FcParams& params) const {
  if (Segments().empty()) return false;
  for (std::size_t i = 0; i + 1 < Segments().size(); ++i) {
    const auto& segment = Segments()[i];
    if (!requireThat(*this, segment != nullptr, missingSegment)) continue;
    expectThat(*this, segment->Transition() != FcTransitionCode::DISCONTINUOUS,
               "By formal proposition, no transition code of a Segment should be DISCONTINUOUS "
               "(except for the last segment of an open curve)");
  }
  if (!requireThat(*this, Segments().back() != nullptr, "The last Segment is not set.") ||
      !Segments().front())
    return false;
  const Nesting nesting(Nesting::Kind::curve, *this);
  if (!nesting) return false;
  const auto last = Segments().back()->curve(params);
  const auto first = Segments().size() == 1 ? last : Segments().front()->curve(params);
  return !first.empty() && !last.empty() && last.back().isNear(first.front());
}

bool FcCompositeCurve::is2d() const {
  const Nesting nesting(Nesting::Kind::curve, *this);
  if (!nesting) return false;
  for (const auto& segment : Segments()) {
    if (!requireThat(*this, segment != nullptr, missingSegment) ||
        !requireThat(*this, segment->parentCurve() != nullptr,
                     "There is a Segment for which its ParentCurve is not set.") ||
        !segment->is2d())
      return false;
  }
  return true;
}

std::optional<std::vector<Point2d>> FcCompositeCurve::closedCurve2dGet(
    const FcParams& params) const {
  if (!is2d() || !isClosed(params)) return {};
  auto points = curvePrivate<Point2d>(*this, params, true);
  if (points.empty()) return {};
  return points;
}

std::optional<std::vector<Point2d>> FcCompositeCurve::curve2d(const FcParams& params,
                                                              const Trim& trim1, const Trim& trim2,
                                                              bool reverse) const {
  if (!expectWhole(trim1, trim2, reverse, "FcCompositeCurve::curve2d")) return {};
  auto points = curvePrivate<Point2d>(*this, params, false);
  if (points.empty()) return {};
  return points;
}

std::vector<Point3d> FcCompositeCurve::curveGet(const FcParams& params, const Trim& trim1,
                                                const Trim& trim2, bool reverse) const {
  if (!expectWhole(trim1, trim2, reverse, "FcCompositeCurve::curveGet")) return {};
  return curvePrivate<Point3d>(*this, params, false);
}

std::vector<std::pair<double, FcCurve::ParameterType>> FcCompositeCurve::parametricSegments()
    const {
  std::vector<std::pair<double, ParameterType>> result;
  const Nesting nesting(Nesting::Kind::curve, *this);
  if (!nesting) return result;
  for (const auto& segment : Segments()) {
    if (!segment) continue;
    const auto extents = segment->parametricSegments();
    result.insert(result.end(), extents.begin(), extents.end());
  }
  return result;
}

}  // namespace qor::fc::resource::geometry
