#include "Host/StepFile/Units/OwnUnits.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "Fc/Resource/DateTime/FcIrregularTimeSeries.h"
#include "Fc/Resource/DateTime/FcIrregularTimeSeriesValue.h"
#include "Fc/Resource/DateTime/FcRegularTimeSeries.h"
#include "Fc/Resource/DateTime/FcTimeSeriesValue.h"
#include "Fc/Resource/Property/FcPropertyBoundedValue.h"
#include "Fc/Resource/Property/FcPropertyEnumeratedValue.h"
#include "Fc/Resource/Property/FcPropertyEnumeration.h"
#include "Fc/Resource/Property/FcPropertyListValue.h"
#include "Fc/Resource/Property/FcPropertySingleValue.h"
#include "Fc/Resource/Property/FcPropertyTableValue.h"
#include "Fc/Resource/Quantity/FcQuantityArea.h"
#include "Fc/Resource/Quantity/FcQuantityLength.h"
#include "Fc/Resource/Quantity/FcQuantityTime.h"
#include "Fc/Resource/Quantity/FcQuantityVolume.h"
#include "Fc/Resource/Quantity/FcQuantityWeight.h"
#include "Fc/Resource/Utility/FcTable.h"
#include "Fc/Resource/Utility/FcTableColumn.h"
#include "Fc/Resource/Utility/FcTableRow.h"

namespace qor::host::step {

using namespace fc::resource::datetime;
using namespace fc::resource::measure;
using namespace fc::resource::property;
using namespace fc::resource::quantity;
using namespace fc::resource::utility;

namespace {

std::vector<MeasureId> measuresOf(const fc::SelectInfo& select) {
  std::vector<MeasureId> ids;
  for (const fc::AlternativeInfo& alternative : select.alternatives)
    ids.push_back(measureOfType(alternative.upperName));
  return ids;
}

MeasureId measureOf(const FcMeasureValue& value) {
  static const std::vector<MeasureId> ids = measuresOf(FcMeasureValue::info());
  return value.isSet() ? ids[static_cast<std::size_t>(value.type())] : measure::none;
}

MeasureId measureOf(const FcValue& value) {
  static const std::vector<MeasureId> derived = measuresOf(FcDerivedMeasureValue::info());
  if (value.type() == FcValue::Types::MeasureValue) return measureOf(value.MeasureValue());
  if (value.type() != FcValue::Types::DerivedMeasureValue) return measure::none;
  const FcDerivedMeasureValue& number = value.DerivedMeasureValue();
  return number.isSet() ? derived[static_cast<std::size_t>(number.type())] : measure::none;
}

}  // namespace

OwnUnits::OwnUnits(const ModelUnits& model, UnitSizes& sizes, SiUnits& siUnits, UnitReport report)
    : m_model(model), m_sizes(sizes), m_siUnits(siUnits), m_report(std::move(report)) {}

std::optional<UnitConversion> OwnUnits::conversionOf(const fc::FcBase& owner, MeasureId measure,
                                                     const FcUnit& unit) {
  if (measure == measure::none) return std::nullopt;
  if (!unit.isSet()) {
    const UnitConversion* model = m_model.find(measure);
    return model ? std::optional(*model) : std::nullopt;
  }
  const auto size = m_sizes.of(unit.getEntity());
  if (!size || size->toSi.isIdentity()) return std::nullopt;
  const Measure& row = measures()[measure];
  if (row.dimensions && *row.dimensions != size->dimensions) {
    m_report(owner, "Unit",
             fmt::format("Unit is none of an Ifc{}; the value is left as it is.", row.type));
    return std::nullopt;
  }
  return m_siUnits.of(unit).isSet() ? std::optional(size->toSi) : std::nullopt;
}

bool OwnUnits::convertValues(const fc::FcBase& owner, std::span<FcValue> values,
                             const FcUnit& unit) {
  const bool allHaveUnits = std::all_of(values.begin(), values.end(), [](const FcValue& value) {
    return !value.isSet() || measureOf(value) != measure::none;
  });
  // With a unit of their own all are converted or none.
  if (unit.isSet() && !allHaveUnits) return false;
  bool any = false;
  for (FcValue& value : values) {
    const auto conversion = conversionOf(owner, measureOf(value), unit);
    const auto number = conversion ? value.valueAsDoubleGet() : std::nullopt;
    if (number) any = value.setDoubleValue((*conversion)(*number)) || any;
  }
  return any;
}

FcUnit OwnUnits::convertAll(const fc::FcBase& owner, std::span<FcValue> values,
                            const FcUnit& unit) {
  const bool any = convertValues(owner, values, unit);
  return any && unit.isSet() ? m_siUnits.of(unit) : unit;
}

template <>
void OwnUnits::convertOne(FcPropertySingleValue& property) {
  if (m_model.isSi() && !property.Unit().isSet()) return;
  FcValue value = property.NominalValue();
  property.setUnit(convertAll(property, {&value, 1}, property.Unit()));
  property.setNominalValue(std::move(value));
}

template <>
void OwnUnits::convertOne(FcPropertyBoundedValue& property) {
  FcValue values[] = {property.LowerBoundValue(), property.UpperBoundValue(),
                      property.SetPointValue()};
  property.setUnit(convertAll(property, values, property.Unit()));
  property.setLowerBoundValue(values[0]);
  property.setUpperBoundValue(values[1]);
  property.setSetPointValue(values[2]);
}

template <>
void OwnUnits::convertOne(FcPropertyListValue& property) {
  if (!property.ListValues()) return;
  std::vector<FcValue> values = *property.ListValues();
  property.setUnit(convertAll(property, values, property.Unit()));
  property.setListValues(std::move(values));
}

template <>
void OwnUnits::convertOne(FcPropertyTableValue& property) {
  if (property.DefiningValues()) {
    std::vector<FcValue> values = *property.DefiningValues();
    property.setDefiningUnit(convertAll(property, values, property.DefiningUnit()));
    property.setDefiningValues(std::move(values));
  }
  if (property.DefinedValues()) {
    std::vector<FcValue> values = *property.DefinedValues();
    property.setDefinedUnit(convertAll(property, values, property.DefinedUnit()));
    property.setDefinedValues(std::move(values));
  }
}

template <>
void OwnUnits::convertOne(FcPropertyEnumeratedValue& property) {
  if (!property.EnumerationValues()) return;
  std::vector<FcValue> values = *property.EnumerationValues();
  const auto& enumeration = property.EnumerationReference();
  convertValues(property, values, enumeration ? enumeration->Unit() : FcUnit());
  property.setEnumerationValues(std::move(values));
}

// Properties look up the unit here: it changes when all of them are done.
template <>
void OwnUnits::convertOne(FcPropertyEnumeration& enumeration) {
  std::vector<FcValue> values = enumeration.EnumerationValues();
  if (convertValues(enumeration, values, enumeration.Unit()))
    m_shared.push_back(enumeration.shared_from_this());
  enumeration.setEnumerationValues(std::move(values));
}

template <class Series>
void OwnUnits::convertSeries(Series& series) {
  bool any = false;
  for (const auto& entry : series.Values()) {
    if (!entry) continue;
    std::vector<FcValue> values = entry->ListValues();
    any = convertValues(series, values, series.Unit()) || any;
    entry->setListValues(std::move(values));
  }
  if (any && series.Unit().isSet()) series.setUnit(m_siUnits.of(series.Unit()));
}

template <>
void OwnUnits::convertOne(FcRegularTimeSeries& series) {
  convertSeries(series);
}

template <>
void OwnUnits::convertOne(FcIrregularTimeSeries& series) {
  convertSeries(series);
}

template <>
void OwnUnits::convertOne(FcTable& table) {
  if (!table.Rows()) return;
  const auto columns = table.Columns().value_or(std::vector<std::shared_ptr<FcTableColumn>>());
  for (const auto& row : *table.Rows()) {
    if (!row || !row->RowCells()) continue;
    std::vector<FcValue> cells = *row->RowCells();
    for (std::size_t i = 0; i < cells.size(); ++i) {
      const auto column = i < columns.size() ? columns[i] : nullptr;
      if (convertValues(table, {&cells[i], 1}, column ? column->Unit() : FcUnit()) && column)
        m_shared.push_back(column);
    }
    row->setRowCells(std::move(cells));
  }
}

template <class Quantity, class M>
void OwnUnits::convertQuantity(Quantity& quantity, const M& (Quantity::*get)() const,
                               void (Quantity::*set)(M), MeasureId id) {
  const FcUnit unit = quantity.Unit() ? FcUnit(quantity.Unit()) : FcUnit();
  const auto conversion = conversionOf(quantity, id, unit);
  if (!conversion) return;
  (quantity.*set)(M((*conversion)((quantity.*get)().value())));
  if (unit.isSet()) quantity.setUnit(m_siUnits.of(unit).NamedUnit());
}

template <>
void OwnUnits::convertOne(FcQuantityLength& quantity) {
  convertQuantity(quantity, &FcQuantityLength::LengthValue, &FcQuantityLength::setLengthValue,
                  measure::length);
}

template <>
void OwnUnits::convertOne(FcQuantityArea& quantity) {
  static const MeasureId area = measureOfType("IFCAREAMEASURE");
  convertQuantity(quantity, &FcQuantityArea::AreaValue, &FcQuantityArea::setAreaValue, area);
}

template <>
void OwnUnits::convertOne(FcQuantityVolume& quantity) {
  static const MeasureId volume = measureOfType("IFCVOLUMEMEASURE");
  convertQuantity(quantity, &FcQuantityVolume::VolumeValue, &FcQuantityVolume::setVolumeValue,
                  volume);
}

template <>
void OwnUnits::convertOne(FcQuantityWeight& quantity) {
  static const MeasureId mass = measureOfType("IFCMASSMEASURE");
  convertQuantity(quantity, &FcQuantityWeight::WeightValue, &FcQuantityWeight::setWeightValue,
                  mass);
}

template <>
void OwnUnits::convertOne(FcQuantityTime& quantity) {
  static const MeasureId time = measureOfType("IFCTIMEMEASURE");
  convertQuantity(quantity, &FcQuantityTime::TimeValue, &FcQuantityTime::setTimeValue, time);
}

template <class T>
bool OwnUnits::convertAs(fc::FcBase& entity) {
  T* typed = fc::fcCast<T>(&entity);
  if (typed) convertOne(*typed);
  return typed != nullptr;
}

void OwnUnits::convert(fc::FcBase& entity) {
  // The most frequent first. Rows and entries of series are converted with what they belong to.
  [[maybe_unused]] const bool found =
      convertAs<FcPropertySingleValue>(entity) || convertAs<FcQuantityLength>(entity) ||
      convertAs<FcQuantityArea>(entity) || convertAs<FcQuantityVolume>(entity) ||
      convertAs<FcQuantityWeight>(entity) || convertAs<FcQuantityTime>(entity) ||
      convertAs<FcPropertyEnumeratedValue>(entity) || convertAs<FcPropertyListValue>(entity) ||
      convertAs<FcPropertyBoundedValue>(entity) || convertAs<FcPropertyTableValue>(entity) ||
      convertAs<FcPropertyEnumeration>(entity) || convertAs<FcRegularTimeSeries>(entity) ||
      convertAs<FcIrregularTimeSeries>(entity) || convertAs<FcTable>(entity);
}

void OwnUnits::finish() {
  for (const auto& entity : m_shared) {
    if (auto column = fc::fcCast<FcTableColumn>(entity); column && column->Unit().isSet())
      column->setUnit(m_siUnits.of(column->Unit()));
    if (auto enumeration = fc::fcCast<FcPropertyEnumeration>(entity);
        enumeration && enumeration->Unit().isSet())
      enumeration->setUnit(m_siUnits.of(enumeration->Unit()));
  }
}

}  // namespace qor::host::step
