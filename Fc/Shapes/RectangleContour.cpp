#include "Fc/Shapes/RectangleContour.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "Qor/Assert/Report.h"
#include "Qor/Draw/PolygonOrientation.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::profile {

using math::Epsilon;
using math::Matrix2d;
using math::Point2d;
using math::Vector2d;

namespace {

bool isUnit(const Vector2d& axis) {
  return std::abs(axis.length() - 1) <= Epsilon::current().general;
}

void checkRounding(const Matrix2d& frame, double xHalf, double yHalf, double radius) {
  const double tolerance = Epsilon::current().length;
  expectThat(radius <= xHalf + tolerance,
             "Assertion failed: Expect only to be called if roundingRadius <= xDimHalf");
  expectThat(radius <= yHalf + tolerance,
             "Assertion failed: Expect only to be called if roundingRadius <= yDimHalf");
  expectThat(radius > 0, "Assertion failed: Expect only to be called if roundingRadius > 0.0");
  expectThat(isUnit(frame.x()), "Expect only to be called if profile xAxis is normalized");
  expectThat(isUnit(frame.y()), "Expect only to be called if profile yAxis is normalized");
}

FlaggedContour circle(const Matrix2d& frame, double radius, ContourOrientation orientation,
                      const math::CurveDiscretization& discretization) {
  FlaggedContour result;
  const double start = Vector2d(1, 0).counterClockwiseAngle(frame.x());
  result.points = discretization.discretizeCircle(frame.origin(), radius, start);
  expectThat(generate::draw::isCounterClockwisePolygon(result.points),
             "Assertion failed: Expect CurveDiscretization::discretizeCircle to construct points "
             "in counter-clockwise order");
  if (orientation == ContourOrientation::clockwise)
    std::reverse(result.points.begin(), result.points.end());
  result.flags.assign(result.points.size(), true);
  return result;
}

void checkOrientation(const FlaggedContour& contour, ContourOrientation orientation) {
  if (orientation == ContourOrientation::counterClockwise)
    expectThat(generate::draw::isCounterClockwisePolygon(contour.points),
               "Assertion failed: Expect to have constructed points in counter-clockwise order");
  else
    expectThat(generate::draw::isClockwisePolygon(contour.points),
               "Assertion failed: Expect to have constructed points in clockwise order");
}

}  // namespace

std::vector<Point2d> contourWithSharpCorners(const Matrix2d& frame, double xHalf, double yHalf,
                                             ContourOrientation orientation) {
  const Point2d& c = frame.origin();
  const Vector2d x = frame.x() * xHalf;
  const Vector2d y = frame.y() * yHalf;
  switch (orientation) {
    case ContourOrientation::counterClockwise:
      return {c - x - y, c + x - y, c + x + y, c - x + y};
    case ContourOrientation::clockwise:
      return {c - x + y, c + x + y, c + x - y, c - x - y};
  }
  report("Assertion failed: unknown orientation");
  return {};
}

FlaggedContour contourWithRoundedCorners(const Matrix2d& frame, double xHalf, double yHalf,
                                         double radius, ContourOrientation orientation,
                                         const math::CurveDiscretization& discretization) {
  const double tolerance = Epsilon::current().length;
  checkRounding(frame, xHalf, yHalf, radius);
  if (std::abs(radius - xHalf) <= tolerance && std::abs(radius - yHalf) <= tolerance)
    return circle(frame, radius, orientation, discretization);

  // Corners counter-clockwise from the lower left one; each arc begins a quarter after the last.
  const std::vector<Point2d> corners = contourWithSharpCorners(
      frame, xHalf - radius, yHalf - radius, ContourOrientation::counterClockwise);
  const double quarter = std::numbers::pi / 2;
  const double start = Vector2d(1, 0).counterClockwiseAngle(frame.x()) - std::numbers::pi;
  FlaggedContour result;
  for (std::size_t i = 0; i < corners.size(); ++i) {
    std::vector<Point2d> arc = discretization.discretizeCircularArc(
        corners[i], radius, start + static_cast<double>(i) * quarter, quarter);
    if (arc.empty()) arc.push_back(corners[i]);
    for (std::size_t j = 0; j < arc.size(); ++j) {
      if (!result.points.empty() && arc[j].isNear(result.points.back())) continue;
      result.points.push_back(arc[j]);
      result.flags.push_back(j > 0 && j + 1 < arc.size());
    }
  }
  if (result.points.size() > 1 && result.points.back().isNear(result.points.front())) {
    result.points.pop_back();
    result.flags.pop_back();
  }
  if (orientation == ContourOrientation::clockwise) {
    std::reverse(result.points.begin(), result.points.end());
    std::reverse(result.flags.begin(), result.flags.end());
  }
  checkOrientation(result, orientation);
  return result;
}

}  // namespace qor::fc::resource::profile
