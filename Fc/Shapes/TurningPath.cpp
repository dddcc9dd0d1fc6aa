#include "Fc/Shapes/TurningPath.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace qor::fc::resource::geometry {

using math::Point2d;
using math::Vector2d;

namespace {

/// How many pieces: as many as arcs of the sharpest curvature met have.
std::size_t piecesOf(const TurningCurve& curve, double start, double length,
                     const math::CurveDiscretization& discretization) {
  const auto curvature = [&](double s) { return std::abs(curve.turn + 2 * curve.twist * s); };
  const double sharpest = std::max(curvature(start), curvature(start + length));
  const double angle = sharpest * std::abs(length);
  if (!(angle > 1e-12)) return 1;
  const double turns = std::clamp(std::ceil(angle / 6.283), 1.0, 1000.0);
  return static_cast<std::size_t>(turns) *
         std::max<std::size_t>(1, discretization.numberOfArcSegments(1 / sharpest, angle / turns));
}

/// The way that a unit of length of the direction makes over a piece, by Gauss's rule of five
/// points.
template <typename Direction>
Vector2d integral(double from, double width, Direction&& direction) {
  static constexpr std::array<std::array<double, 2>, 5> rule{
      {{0.5, 0.28444444444444444},
       {0.23076534494715845, 0.23931433524968324},
       {0.76923465505284155, 0.23931433524968324},
       {0.046910077030668, 0.11846344252809454},
       {0.953089922969332, 0.11846344252809454}}};
  Vector2d sum;
  for (const auto& [place, weight] : rule) {
    const double angle = direction(from + place * width);
    sum += Vector2d(std::cos(angle), std::sin(angle)) * (weight * width);
  }
  return sum;
}

}  // namespace

std::vector<Point2d> turningPath(const TurningCurve& curve, double start, double length,
                                 const math::CurveDiscretization& discretization) {
  std::vector<Point2d> points;
  if (!std::isfinite(start) || !std::isfinite(length) || !std::isfinite(curve.turn) ||
      !std::isfinite(curve.twist))
    return points;
  points.emplace_back();
  if (length == 0) return points;
  const double sense = length < 0 ? -1 : 1;
  // Relative to the start, so that a start far away costs no digits.
  const auto direction = [&](double way) {
    const double s = sense * way;
    return curve.turn * s + curve.twist * s * (2 * start + s);
  };
  const std::size_t pieces = piecesOf(curve, start, length, discretization);
  const double width = std::abs(length) / static_cast<double>(pieces);
  points.reserve(pieces + 1);
  for (std::size_t i = 0; i < pieces; ++i)
    points.push_back(points.back() + integral(static_cast<double>(i) * width, width, direction));
  return points;
}

}  // namespace qor::fc::resource::geometry
