#include "Host/StepFile/Units/ModelUnits.h"

#include <fmt/format.h>

#include <utility>

namespace qor::host::step {

using namespace fc::resource::measure;

std::string_view kindOf(const fc::FcBase* unit) {
  if (const auto* named = fc::fcCast<FcNamedUnit>(unit))
    return named->UnitType() == FcUnitEnum::USERDEFINED
               ? ""
               : FcUnitEnum::nameFromEnum(named->UnitType().value());
  const auto* derived = fc::fcCast<FcDerivedUnit>(unit);
  return !derived || derived->UnitType() == FcDerivedUnitEnum::USERDEFINED
             ? ""
             : FcDerivedUnitEnum::nameFromEnum(derived->UnitType().value());
}

std::optional<Dimensions> dimensionsOfKind(std::string_view kind) {
  for (const Measure& measure : measures())
    if (measure.unit == kind) return measure.dimensions;
  return std::nullopt;
}

ModelUnits::ModelUnits(UnitSizes& sizes, SiUnits& siUnits, UnitReport report)
    : m_sizes(sizes), m_siUnits(siUnits), m_report(std::move(report)) {
  index();
}

void ModelUnits::add(std::uint64_t number, const Assignment& assignment) {
  for (const FcUnit& unit : assignment->Units())
    m_units.push_back({number, unit, take(*assignment, unit)});
  m_assignments.push_back(assignment);
  index();
}

std::optional<UnitConversion> ModelUnits::take(const FcUnitAssignment& assignment,
                                               const FcUnit& unit) {
  const fc::FcBase* entity = unit.getEntity();
  const auto size = m_sizes.of(entity);
  if (!size) return std::nullopt;
  const std::string_view kind = kindOf(entity);
  if (kind.empty()) return std::nullopt;
  const auto expected = dimensionsOfKind(kind);
  if (expected && *expected != size->dimensions) {
    m_report(*entity, "UnitType",
             fmt::format("UnitType is {}, which this unit has other dimensions than; numbers in it "
                         "are left as they are.",
                         kind));
    return std::nullopt;
  }
  if (!m_siUnits.of(unit).isSet()) return std::nullopt;
  const auto [known, isNew] = m_byKind.try_emplace(kind, size->toSi);
  if (known->second == size->toSi) return size->toSi;
  m_report(assignment, "Units",
           fmt::format("Units list a {} that contradicts one listed before; the first one is used, "
                       "of {} to the SI unit where this has {}.",
                       kind, known->second.scale(), size->toSi.scale()));
  return std::nullopt;
}

void ModelUnits::index() {
  const auto all = measures();
  m_conversions.assign(all.size(), {});
  m_found.assign(std::size_t{measure::byType} + 1, nullptr);
  m_isSi = true;
  for (std::size_t i = 1; i < all.size(); ++i) {
    const auto known = m_byKind.find(all[i].unit);
    if (known == m_byKind.end()) continue;
    UnitConversion& conversion = m_conversions[i];
    conversion = known->second;
    if (i == measure::temperatureDifference) conversion = conversion.ofDifferences();
    if (i == measure::inverseLength) conversion = conversion.power(-1);
    if (i == measure::inverseSquareLength) conversion = conversion.power(-2);
    if (conversion.isIdentity()) continue;
    m_found[i] = &conversion;
    m_isSi = false;
  }
}

void ModelUnits::sayTheyAreSi() {
  auto listed = m_units.begin();
  for (const Assignment& assignment : m_assignments) {
    std::vector<FcUnit> units;
    for (const FcUnit& unit : assignment->Units()) {
      const bool isConverted = (listed++)->toSi.has_value();
      units.push_back(isConverted ? m_siUnits.of(unit) : unit);
    }
    assignment->setUnits(std::move(units));
  }
}

}  // namespace qor::host::step
