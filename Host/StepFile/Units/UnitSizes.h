#pragma once

#include <optional>
#include <string>
#include <unordered_map>

#include "Fc/Resource/Measure/FcConversionBasedUnit.h"
#include "Fc/Resource/Measure/FcDerivedUnit.h"
#include "Fc/Resource/Measure/FcSIUnit.h"
#include "Host/StepFile/Units/Dimensions.h"
#include "Host/StepFile/Units/UnitConversion.h"
#include "Host/StepFile/Units/UnitReport.h"

namespace qor::host::step {

/// What a number in some unit is in the SI unit of its kind.
struct UnitSize {
  UnitConversion toSi;
  Dimensions dimensions;
};

/// Finds out how large the units of a file are: SI units with their prefixes, units defined by
/// others with factor and offset, derived units. Each is looked at, and what is wrong with it told,
/// once.
class UnitSizes {
 public:
  explicit UnitSizes(UnitReport report) : m_report(std::move(report)) {}

  /// Empty for a unit that only its context explains, for a currency, and for a unit that doesn't
  /// make sense, which is reported: numbers in it stay as they are.
  std::optional<UnitSize> of(const fc::FcBase* unit);

 private:
  using Size = std::optional<UnitSize>;

  Size find(const fc::FcBase& unit);
  Size ofSi(const fc::resource::measure::FcSIUnit& unit);
  Size ofConversion(const fc::resource::measure::FcConversionBasedUnit& unit);
  Size ofDerived(const fc::resource::measure::FcDerivedUnit& unit);
  Size leave(const fc::FcBase& unit, std::string_view attribute, const std::string& what);

  UnitReport m_report;
  std::unordered_map<const fc::FcBase*, Size> m_known;
};

}  // namespace qor::host::step
