#include "Host/StepFile/Units/Measures.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <map>
#include <string>
#include <vector>

#include "Fc/Resource/Measure/MeasureTable.h"
#include "Fc/Resource/Quantity/FcPhysicalSimpleQuantity.h"
#include "Fc/Resource/Representation/FcCoordinateOperation.h"
#include "Host/StepFile/Units/UnitRole.h"

namespace qor::host::step {

namespace {

using fc::resource::measure::findMeasure;
using fc::resource::measure::MeasureRow;
using fc::resource::measure::measureTable;
using fc::resource::quantity::FcPhysicalSimpleQuantity;
using fc::resource::representation::FcCoordinateOperation;

Measure measureOfRow(const MeasureRow& row) { return {row.type, row.unit, row.dimensions()}; }

/// The constants of namespace measure, and behind them what else has a unit.
std::vector<Measure> allMeasures() {
  constexpr std::string_view named[] = {"LengthMeasure", "PlaneAngleMeasure",
                                        "ThermodynamicTemperatureMeasure"};
  std::vector<Measure> all{{}};
  for (const std::string_view type : named) all.push_back(measureOfRow(*findMeasure(type)));
  all.push_back({"", all[measure::temperature].unit, all[measure::temperature].dimensions});
  all.resize(measure::inverseSquareLength + std::size_t{1},
             {"", all[measure::length].unit, all[measure::length].dimensions});
  for (const MeasureRow& row : measureTable())
    if (!row.unit.empty() && std::ranges::find(named, row.type) == std::end(named))
      all.push_back(measureOfRow(row));
  return all;
}

/// Numbers whose declared type doesn't tell what they measure.
struct Exception {
  std::string_view className;
  std::string_view attribute;
  MeasureId measure;
};

constexpr Exception exceptions[] = {
    // "In model units": a length.
    {"IfcGeometricRepresentationContext", "Precision", measure::length},
    // The parameter has no unit, the curve is in lengths.
    {"IfcPolynomialCurve", "CoefficientsX", measure::length},
    {"IfcPolynomialCurve", "CoefficientsY", measure::length},
    {"IfcPolynomialCurve", "CoefficientsZ", measure::length},
    // Multiplied by a distance, and by its square, they are numbers.
    {"IfcLightSourcePositional", "DistanceAttenuation", measure::inverseLength},
    {"IfcLightSourcePositional", "QuadricAttenuation", measure::inverseSquareLength},
    // By how much it gets warmer.
    {"IfcStructuralLoadTemperature", "DeltaTConstant", measure::temperatureDifference},
    {"IfcStructuralLoadTemperature", "DeltaTY", measure::temperatureDifference},
    {"IfcStructuralLoadTemperature", "DeltaTZ", measure::temperatureDifference},
};

std::string upper(std::string_view name) {
  std::string text(name);
  std::transform(text.begin(), text.end(), text.begin(), [](char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  });
  return text;
}

bool isOneOf(const fc::ClassInfo& info, const fc::ClassInfo& base) {
  return base.contains(info.classId);
}

}  // namespace

std::span<const Measure> measures() {
  static const std::vector<Measure> all = allMeasures();
  return all;
}

MeasureId measureOfType(std::string_view upperName) {
  static const std::map<std::string, MeasureId, std::less<>> byName = [] {
    std::map<std::string, MeasureId, std::less<>> ids;
    const auto all = measures();
    for (std::size_t i = 0; i < all.size(); ++i)
      if (!all[i].type.empty()) ids.emplace("IFC" + upper(all[i].type), static_cast<MeasureId>(i));
    return ids;
  }();
  const auto found = byName.find(upperName);
  return found == byName.end() ? measure::none : found->second;
}

MeasureId measureOfAttribute(const fc::ClassInfo& info, const fc::AttributeInfo& attribute) {
  const UnitRole role = unitRoleOf(info);
  if (role == UnitRole::unit || isOneOf(info, FcPhysicalSimpleQuantity::info()) ||
      isOneOf(info, FcCoordinateOperation::info()))
    return measure::none;
  const fc::ClassInfo* declaring = info.declaringClass(attribute.name);
  for (const Exception& exception : exceptions)
    if (declaring && exception.className == declaring->name.view() &&
        exception.attribute == attribute.name)
      return exception.measure;
  if (!attribute.type->select) return measureOfType(upper(attribute.typeName));
  const bool isConvertedLater = role == UnitRole::ownUnit || role == UnitRole::sharedUnit;
  return attribute.type->entitiesOnly || isConvertedLater ? measure::none : measure::byType;
}

}  // namespace qor::host::step
