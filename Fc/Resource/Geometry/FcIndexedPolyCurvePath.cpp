// The building operations of indexed curves.
#include <numbers>

#include "Fc/Model/Report.h"
#include "Fc/Reflection/MakeEntity.h"
#include "Fc/Resource/GeometricModel/FcCartesianPointList2D.h"
#include "Fc/Resource/GeometricModel/FcCartesianPointList3D.h"
#include "Fc/Resource/Geometry/FcIndexedPolyCurve.h"
#include "Fc/Shapes/RoundedPath.h"
#include "Qor/Math/Arc.h"

namespace qor::fc::resource::geometry {

using geometricmodel::FcCartesianPointList2D;
using geometricmodel::FcCartesianPointList3D;
using math::Point2d;
using math::Point3d;
using math::Vector2d;
using math::_2d::Arc;
using math::_2d::ArcFactory;
using math::_2d::ArcOrientation;
using math::_2d::ArcType;

namespace {

/// The list that a path grows; null, with an assert, before a path was begun.
FcCartesianPointList2D* pathOf(FcIndexedPolyCurve& curve) {
  auto* list = fcCast<FcCartesianPointList2D>(static_cast<FcBase*>(curve.Points().get()));
  const bool begun = list && list->size() > 0;
  expectThat(begun,
             "This function should only be called after a sequence of beginAt, lineTo and arcTo");
  return begun ? list : nullptr;
}

/// A point on the arc between its ends: 45 degrees from its start, as that of a quarter turn has
/// its middle, and half-way on an arc that is too short for that.
Point2d pointBetweenEnds(const Arc& arc) {
  constexpr double eighth = std::numbers::pi / 4;
  const double sweep = arc.sweepAngle();
  if (std::abs(sweep) <= eighth) return arc.point(sweep / 2);
  return arc.point(sweep > 0 ? eighth : -eighth);
}

}  // namespace

std::int64_t FcIndexedPolyCurve::lastIndex() const {
  return static_cast<std::int64_t>(Points()->size());
}

/// Lets the line that ends the segments go on to `to`; opens one at `from` behind an arc.
void FcIndexedPolyCurve::appendIndexToLine(std::int64_t from, std::int64_t to) {
  if (m_Segments->empty() || m_Segments->back().type() != FcSegmentIndexSelect::Types::LineIndex)
    m_Segments->emplace_back(FcLineIndex({from}));
  FcLineIndex line = m_Segments->back().LineIndex();
  line.valueNonConst().emplace_back(to);
  m_Segments->back() = FcSegmentIndexSelect(std::move(line));
}

void FcIndexedPolyCurve::appendArc(std::int64_t from, std::int64_t via, std::int64_t to) {
  m_Segments->emplace_back(FcArcIndex({from, via, to}));
}

/// The segments that there were none of yet: one line through the points so far. Then a point on
/// the arc from the last point to `end`; false when there is no arc.
bool FcIndexedPolyCurve::appendArcPoint(const Point2d& end, double radius, bool counterClockwise) {
  auto& list = static_cast<FcCartesianPointList2D&>(*Points());
  const auto arc = ArcFactory::fromTwoPointsRadiusDirectionAndLarge(
      list.point2d(list.size() - 1), end, radius,
      counterClockwise ? ArcOrientation::counterClockwise : ArcOrientation::clockwise,
      ArcType::small);
  if (!arc) return false;
  if (!m_Segments) {
    m_Segments.emplace();
    for (std::int64_t i = 2; i <= lastIndex(); ++i) appendIndexToLine(i - 1, i);
  }
  list.pushBackPoint(pointBetweenEnds(*arc));
  return true;
}

void FcIndexedPolyCurve::startAt(const Point2d& point) {
  expectThat(*this, Points() == nullptr, "Point list not should exist");
  auto list = makeEntity<FcCartesianPointList2D>();
  list->pushBackPoint(point);
  setPoints(std::move(list));
}

void FcIndexedPolyCurve::lineTo(const Vector2d& move) {
  auto* list = pathOf(*this);
  if (!list) return;
  const std::int64_t from = lastIndex();
  list->pushBackPoint(list->point2d(list->size() - 1) + move);
  if (m_Segments) appendIndexToLine(from, lastIndex());
}

void FcIndexedPolyCurve::arcTo(const Vector2d& move, double radius, bool counterClockwise) {
  auto* list = pathOf(*this);
  if (!list) return;
  const std::int64_t from = lastIndex();
  const Point2d end = list->point2d(list->size() - 1) + move;
  if (!appendArcPoint(end, radius, counterClockwise)) {
    lineTo(move);
    return;
  }
  list->pushBackPoint(end);
  appendArc(from, from + 1, from + 2);
}

void FcIndexedPolyCurve::closeWithLine() {
  auto* list = pathOf(*this);
  if (!list) return;
  if (m_Segments)
    appendIndexToLine(lastIndex(), 1);
  else
    list->pushBackPoint(list->point2d(0));
}

void FcIndexedPolyCurve::closeWithArc(double radius, bool counterClockwise) {
  auto* list = pathOf(*this);
  if (!list) return;
  const std::int64_t from = lastIndex();
  if (appendArcPoint(list->point2d(0), radius, counterClockwise))
    appendArc(from, from + 1, 1);
  else
    closeWithLine();
}

void FcIndexedPolyCurve::setRounded(double radius, const std::vector<Point3d>& points) {
  const RoundedPath path = RoundedPath::through(points, radius);
  auto list = makeEntity<FcCartesianPointList3D>();
  list->setPoints(path.points);
  setPoints(std::move(list));
  m_Segments.emplace();
  for (const auto& piece : path.pieces) {
    if (const auto* line = std::get_if<RoundedPath::Line>(&piece))
      m_Segments->emplace_back(FcLineIndex({(*line)[0], (*line)[1]}));
    else {
      const auto& arc = std::get<RoundedPath::Arc>(piece);
      appendArc(arc[0], arc[1], arc[2]);
    }
  }
}

}  // namespace qor::fc::resource::geometry
