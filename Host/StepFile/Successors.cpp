#include "Host/StepFile/Successors.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "Fc/Resource/Geometry/FcBSplineCurveWithKnots.h"
#include "Fc/Resource/Profile/FcAsymmetricIShapeProfileDef.h"
#include "Fc/Resource/Representation/FcMapConversionScaled.h"
#include "Host/StepFile/Numbers.h"
#include "Host/StepFile/Scanner.h"

namespace qor::host::step {

namespace {

/// The number that begins there; empty for what is none.
std::optional<double> numberAt(const char* at) {
  double value = 0;
  if (readReal(at, value) != NumberResult::ok) return std::nullopt;
  return value;
}

/// The parameters from `first` on as numbers; empty where one is none or isn't there. Reads a copy
/// that ends with a semicolon, since a file that was cut off may end within a number.
template <std::size_t count>
std::array<std::optional<double>, count> numbersFrom(std::string_view parameters,
                                                     std::size_t first) {
  std::array<std::optional<double>, count> numbers;
  const std::string text = std::string(parameters) + ';';
  Scanner scanner(text);
  const char* at = text.data();
  for (std::size_t position = 0; position < first + count && at != scanner.end(); ++position) {
    at = scanner.skipSpace(at + 1);  // behind the parenthesis or the comma
    if (at == scanner.end()) break;
    if (position >= first) numbers[position - first] = numberAt(at);
    while (at != scanner.end() && *at != ',') ++at;
  }
  return numbers;
}

}  // namespace

bool scalesUnequally(std::string_view parameters) {
  constexpr std::size_t positionOfScale = 7;
  const auto [x, y, z] = numbersFrom<3>(parameters, positionOfScale);
  const double scale = x.value_or(1);
  return y.value_or(scale) != scale || z.value_or(scale) != scale;
}

void completeScaledConversion(fc::FcBase& entity, KeptNumbers kept) {
  auto& conversion = static_cast<fc::resource::representation::FcMapConversionScaled&>(entity);
  const double scale = conversion.Scale() ? conversion.Scale()->value() : 1;
  const auto factor = [scale](const std::optional<double>& own) {
    return own && scale != 0 ? *own / scale : 1;
  };
  conversion.setFactorX(1);
  conversion.setFactorY(factor(kept[0]));
  conversion.setFactorZ(factor(kept[1]));
}

void completeBezierCurve(fc::FcBase& entity, KeptNumbers) {
  auto& curve = static_cast<fc::resource::geometry::FcBSplineCurveWithKnots&>(entity);
  const std::int64_t degree = curve.Degree().value();
  const auto last = static_cast<std::int64_t>(curve.ControlPointsList().size()) - 1;
  curve.setKnotSpec(fc::resource::geometry::FcKnotType::PIECEWISE_BEZIER_KNOTS);
  if (degree < 1 || last < 1 || last % degree != 0) return;
  const auto pieces = static_cast<std::size_t>(last / degree);
  std::vector<fc::resource::measure::FcInteger> multiplicities(pieces + 1, degree);
  multiplicities.front() = multiplicities.back() = degree + 1;
  std::vector<fc::resource::measure::FcParameterValue> knots;
  for (std::size_t i = 0; i <= pieces; ++i) knots.emplace_back(static_cast<double>(i));
  curve.setKnotMultiplicities(std::move(multiplicities));
  curve.setKnots(std::move(knots));
}

void completeCraneRailF(fc::FcBase& entity, KeptNumbers) {
  auto& profile = static_cast<fc::resource::profile::FcAsymmetricIShapeProfileDef&>(entity);
  profile.setBottomFlangeWidth(profile.TopFlangeWidth());
}

}  // namespace qor::host::step
