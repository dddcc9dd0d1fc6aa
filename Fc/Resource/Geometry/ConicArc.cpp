#include "Fc/Resource/Geometry/ConicArc.h"

#include <cmath>
#include <numbers>

namespace qor::fc::resource::geometry {

ConicArc ConicArc::between(double from, double to, bool reverse) {
  const double tolerance = math::Epsilon::current().angle;
  constexpr double turn = 2 * std::numbers::pi;
  if (reverse) return {from, to > from || from - to <= tolerance ? to - from - turn : to - from};
  return {from, from > to || to - from <= tolerance ? to - from + turn : to - from};
}

bool meansFullTurn(const FcCurve::Trim& trim1, const FcCurve::Trim& trim2) {
  const auto isParameter = [](const FcCurve::Trim& trim) {
    return trim && trim->type() == FcTrimmingSelect::Types::ParameterValue;
  };
  if (!isParameter(trim1) || !isParameter(trim2)) return false;
  const double tolerance = math::Epsilon::current().angle;
  const double difference = std::abs(trim1->ParameterValue() - trim2->ParameterValue());
  const double rest = math::Angle(difference).calculateModulusTwoTimesPI();
  return difference > tolerance && (rest <= tolerance || 2 * std::numbers::pi - rest <= tolerance);
}

}  // namespace qor::fc::resource::geometry
