#include "Host/Cli/UnitWords.h"

#include <fmt/format.h>

#include <algorithm>
#include <memory>
#include <string_view>
#include <variant>

#include "Fc/Resource/Measure/FcContextDependentUnit.h"
#include "Fc/Resource/Measure/FcConversionBasedUnitWithOffset.h"
#include "Fc/Resource/Measure/FcDerivedUnit.h"
#include "Fc/Resource/Measure/FcDerivedUnitElement.h"
#include "Fc/Resource/Measure/FcMeasureWithUnit.h"
#include "Fc/Resource/Measure/FcMonetaryUnit.h"
#include "Fc/Resource/Measure/FcSIUnit.h"

namespace qor::host::cli {

using namespace fc::resource::measure;

namespace {

constexpr const char* unknown = "?";

std::string lower(std::string_view name) {
  std::string text(name);
  std::ranges::transform(text, text.begin(), [](char c) {
    return c == '_' ? ' ' : c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c;
  });
  return text;
}

/// The prefix belongs to the metre, not to its square: "square centimetre".
std::string siWords(const FcSIUnit& unit) {
  if (unit.Name() == FcSIUnitName::DEGREE_CELSIUS) return "degree Celsius";
  std::string words = lower(FcSIUnitName::nameFromEnum(unit.Name().value()));
  if (!unit.Prefix()) return words;
  const std::size_t lastWord = words.rfind(' ') + 1;  // 0 where there is one word
  return words.insert(lastWord, lower(FcSIPrefix::nameFromEnum(unit.Prefix()->value())));
}

/// The name alone, so that units that are explained by each other come to an end.
std::string shortWords(const FcNamedUnit* unit) {
  if (const auto* si = fc::fcCast<FcSIUnit>(unit)) return siWords(*si);
  if (const auto* conversion = fc::fcCast<FcConversionBasedUnit>(unit)) return conversion->Name();
  if (const auto* dependent = fc::fcCast<FcContextDependentUnit>(unit)) return dependent->Name();
  return unknown;
}

/// "square metre", "kelvin", "metre^4"; the sign of the exponent is the caller's.
std::string powerWords(const std::string& unit, std::uint64_t exponent) {
  switch (exponent) {
    case 1:
      return unit;
    case 2:
      return "square " + unit;
    case 3:
      return "cubic " + unit;
    default:
      return fmt::format("{}^{}", unit, exponent);
  }
}

std::string derivedWords(const FcDerivedUnit& unit) {
  std::string factors;
  std::string divisors;
  for (const std::shared_ptr<FcDerivedUnitElement>& element : unit.Elements()) {
    if (!element) continue;
    const std::int64_t exponent = element->Exponent();
    const auto size = exponent < 0 ? 0 - static_cast<std::uint64_t>(exponent)
                                   : static_cast<std::uint64_t>(exponent);
    const std::string words = powerWords(shortWords(element->Unit().get()), size);
    if (exponent < 0)
      divisors += " per " + words;
    else
      factors += (factors.empty() ? "" : " ") + words;
  }
  return (factors.empty() ? "1" : factors) + divisors;
}

std::string conversionWords(const FcConversionBasedUnit& unit) {
  std::string words = unit.Name() + " = ";
  const FcMeasureWithUnit* factor = unit.ConversionFactor().get();
  if (!factor) return words + unknown;
  const fc::LocalValue value = factor->ValueComponent().getLocalValue();
  if (const double* number = std::get_if<double>(&value.value))
    words += fmt::format("{} ", *number);
  else if (const auto* whole = std::get_if<std::int64_t>(&value.value))
    words += fmt::format("{} ", *whole);
  else
    words += "? ";
  const FcUnit& base = factor->UnitComponent();
  if (base.type() == FcUnit::Types::DerivedUnit && base.DerivedUnit())
    words += derivedWords(*base.DerivedUnit());
  else
    words += shortWords(fc::fcCast<FcNamedUnit>(base.getEntity()));
  if (const auto* offset = fc::fcCast<FcConversionBasedUnitWithOffset>(&unit))
    words += fmt::format(", zero at {}", offset->ConversionOffset().value());
  return words;
}

}  // namespace

std::string unitWords(const FcUnit& unit) {
  const fc::FcBase* entity = unit.getEntity();
  if (const auto* derived = fc::fcCast<FcDerivedUnit>(entity)) return derivedWords(*derived);
  if (const auto* money = fc::fcCast<FcMonetaryUnit>(entity)) return money->Currency();
  if (const auto* conversion = fc::fcCast<FcConversionBasedUnit>(entity))
    return conversionWords(*conversion);
  return shortWords(fc::fcCast<FcNamedUnit>(entity));
}

std::string unitType(const FcUnit& unit) {
  const fc::FcBase* entity = unit.getEntity();
  if (const auto* named = fc::fcCast<FcNamedUnit>(entity))
    return FcUnitEnum::nameFromEnum(named->UnitType().value());
  if (const auto* derived = fc::fcCast<FcDerivedUnit>(entity)) {
    if (derived->UnitType() == FcDerivedUnitEnum::USERDEFINED && derived->UserDefinedType())
      return *derived->UserDefinedType();
    return FcDerivedUnitEnum::nameFromEnum(derived->UnitType().value());
  }
  return entity ? "MONETARYUNIT" : unknown;
}

}  // namespace qor::host::cli
