#pragma once

#include <optional>

#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcCurve.h"
#include "Qor/Math/Angle.h"

namespace qor::fc::resource::geometry {

/// From where to where a conic runs: angles of its parameter, in radians.
struct ConicArc {
  double start = 0;
  double sweep = 0;  ///< negative for clockwise; between nothing and a full turn either way

  /// Between two angles in [0, 2π): counter-clockwise, or with `reverse` clockwise. Equal angles
  /// within the angle tolerance give a full turn.
  static ConicArc between(double from, double to, bool reverse);
};

/// Both are parameters that differ, and name the same point: a full turn was meant.
bool meansFullTurn(const FcCurve::Trim& trim1, const FcCurve::Trim& trim2);

/// The angle that a trim means, in [0, 2π): a parameter is one, a point is asked through
/// `angleOfPoint`. No trim means 0. Empty, with an assert, for a point that is missing; throws for
/// a trim that is neither.
template <typename AngleOfPoint>
std::optional<double> trimAngle(const FcCurve::Trim& trim, AngleOfPoint&& angleOfPoint) {
  if (!trim) return 0.0;
  if (trim->type() == FcTrimmingSelect::Types::ParameterValue)
    return math::Angle(trim->ParameterValue()).calculateModulusTwoTimesPI();
  const auto& point = trim->CartesianPoint();
  if (!requireThat(point != nullptr, "FcTrimmingSelect::CartesianPoint is required")) return {};
  return math::Angle(angleOfPoint(point->point())).calculateModulusTwoTimesPI();
}

}  // namespace qor::fc::resource::geometry
