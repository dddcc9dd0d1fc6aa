#pragma once

#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "Fc/Resource/Measure/FcUnit.h"
#include "Fc/Resource/Measure/FcValue.h"
#include "Host/StepFile/Units/ModelUnits.h"
#include "Host/StepFile/Units/SiUnits.h"
#include "Host/StepFile/Units/UnitReport.h"
#include "Host/StepFile/Units/UnitSizes.h"

namespace qor::host::step {

/// Converts values that may have a unit beside them: properties, quantities, tables, time series.
/// Where one has none, the units of the model hold.
///
/// The unit becomes SI with the values. Values that the unit doesn't measure, such as a REAL in
/// millimetres, stay as they are, and so does their unit.
class OwnUnits {
 public:
  OwnUnits(const ModelUnits& model, UnitSizes& sizes, SiUnits& siUnits, UnitReport report);

  /// An entity of `UnitRole::ownUnit` or `UnitRole::sharedUnit` whose attributes, and those of its
  /// unit, are read; each once.
  void convert(fc::FcBase& entity);
  /// Lets units that several of the entities share say SI.
  void finish();

 private:
  using Unit = fc::resource::measure::FcUnit;
  using Value = fc::resource::measure::FcValue;

  template <class T>
  bool convertAs(fc::FcBase& entity);
  template <class T>
  void convertOne(T& entity);
  template <class Series>
  void convertSeries(Series& series);
  template <class Quantity, class Measure>
  void convertQuantity(Quantity& quantity, const Measure& (Quantity::*get)() const,
                       void (Quantity::*set)(Measure), MeasureId id);

  /// What makes SI of a value in that unit (of the model, when NotSet); empty when it stays as it
  /// is.
  std::optional<UnitConversion> conversionOf(const fc::FcBase& owner, MeasureId measure,
                                             const Unit& unit);
  /// Whether a value was converted.
  bool convertValues(const fc::FcBase& owner, std::span<Value> values, const Unit& unit);
  /// Converts the values, and gives the unit that they are in then.
  Unit convertAll(const fc::FcBase& owner, std::span<Value> values, const Unit& unit);

  const ModelUnits& m_model;
  UnitSizes& m_sizes;
  SiUnits& m_siUnits;
  UnitReport m_report;
  /// What is left to do: see `finish`.
  std::vector<std::shared_ptr<fc::FcBase>> m_shared;
};

}  // namespace qor::host::step
