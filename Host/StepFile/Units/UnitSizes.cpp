#include "Host/StepFile/Units/UnitSizes.h"

#include <fmt/format.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <variant>

#include "Fc/Resource/Measure/FcConversionBasedUnitWithOffset.h"
#include "Fc/Resource/Measure/FcDerivedUnitElement.h"
#include "Fc/Resource/Measure/FcMeasureWithUnit.h"

namespace qor::host::step {

using namespace fc::resource::measure;

namespace {

struct SiName {
  FcSIUnitName::Enum name;
  Dimensions dimensions;
  int power = 1;  ///< of the prefix: that of a square centimetre belongs to the centimetre
};

constexpr SiName siNames[] = {
    {FcSIUnitName::AMPERE, {0, 0, 0, 1}},
    {FcSIUnitName::BECQUEREL, {0, 0, -1}},
    {FcSIUnitName::CANDELA, {0, 0, 0, 0, 0, 0, 1}},
    {FcSIUnitName::COULOMB, {0, 0, 1, 1}},
    {FcSIUnitName::CUBIC_METRE, {3}, 3},
    {FcSIUnitName::DEGREE_CELSIUS, {0, 0, 0, 0, 1}},
    {FcSIUnitName::FARAD, {-2, -1, 4, 2}},
    {FcSIUnitName::GRAM, {0, 1}},
    {FcSIUnitName::GRAY, {2, 0, -2}},
    {FcSIUnitName::HENRY, {2, 1, -2, -2}},
    {FcSIUnitName::HERTZ, {0, 0, -1}},
    {FcSIUnitName::JOULE, {2, 1, -2}},
    {FcSIUnitName::KELVIN, {0, 0, 0, 0, 1}},
    {FcSIUnitName::LUMEN, {0, 0, 0, 0, 0, 0, 1}},
    {FcSIUnitName::LUX, {-2, 0, 0, 0, 0, 0, 1}},
    {FcSIUnitName::METRE, {1}},
    {FcSIUnitName::MOLE, {0, 0, 0, 0, 0, 1}},
    {FcSIUnitName::NEWTON, {1, 1, -2}},
    {FcSIUnitName::OHM, {2, 1, -3, -2}},
    {FcSIUnitName::PASCAL, {-1, 1, -2}},
    {FcSIUnitName::RADIAN, {}},
    {FcSIUnitName::SECOND, {0, 0, 1}},
    {FcSIUnitName::SIEMENS, {-2, -1, 3, 2}},
    {FcSIUnitName::SIEVERT, {2, 0, -2}},
    {FcSIUnitName::SQUARE_METRE, {2}, 2},
    {FcSIUnitName::STERADIAN, {}},
    {FcSIUnitName::TESLA, {0, 1, -2, -1}},
    {FcSIUnitName::VOLT, {2, 1, -3, -1}},
    {FcSIUnitName::WATT, {2, 1, -3}},
    {FcSIUnitName::WEBER, {2, 1, -2, -1}},
};

constexpr bool isInOrder() {
  for (std::size_t i = 0; i < std::size(siNames); ++i)
    if (siNames[i].name != static_cast<FcSIUnitName::Enum>(i)) return false;
  return std::size(siNames) == std::size(FcSIUnitName::names);
}
static_assert(isInOrder());

/// The power of ten, in the order of the enumerators.
constexpr int prefixes[] = {-18, -2, 1, -1, 18, -15, 9, 2, 3, 6, -6, -3, -9, 15, -12, 12};
static_assert(std::size(prefixes) == std::size(FcSIPrefix::names));

UnitConversion powerOfTen(int exponent) {
  return exponent < 0 ? UnitConversion{1, std::pow(10.0, -exponent)}
                      : UnitConversion{std::pow(10.0, exponent)};
}

/// A factor as it stands in a file; one that is an integer's reciprocal as a divisor, which keeps
/// more digits.
UnitConversion fromFactor(double factor) {
  const double divisor = std::round(1 / factor);
  if (divisor > 1 && divisor < 1e15 && 1 / divisor == factor) return {1, divisor};
  return {factor};
}

/// Files write the factors of degrees and gons with as few as seven digits, too few for a right
/// angle to stay one.
UnitConversion mended(const FcConversionBasedUnit& unit, const UnitConversion& conversion) {
  if (unit.UnitType() != FcUnitEnum::PLANEANGLEUNIT || conversion.offset != 0) return conversion;
  for (const double halfTurn : {180.0, 200.0}) {
    const UnitConversion exact{std::numbers::pi, halfTurn};
    if (std::abs(conversion.scale() / exact.scale() - 1) < 1e-6) return exact;
  }
  return conversion;
}

std::optional<double> numberOf(const FcValue& value) {
  const fc::LocalValue local = value.getLocalValue();
  if (const auto* real = std::get_if<double>(&local.value)) return *real;
  if (const auto* whole = std::get_if<std::int64_t>(&local.value))
    return static_cast<double>(*whole);
  return std::nullopt;
}

}  // namespace

std::optional<UnitSize> UnitSizes::of(const fc::FcBase* unit) {
  if (!unit) return std::nullopt;
  // A unit that is explained by itself finds nothing here, and is reported by the first of them.
  const auto [known, isNew] = m_known.try_emplace(unit);
  if (!isNew) return known->second;
  const Size size = find(*unit);
  return m_known[unit] = size;
}

UnitSizes::Size UnitSizes::find(const fc::FcBase& unit) {
  if (const auto* si = fc::fcCast<FcSIUnit>(&unit)) return ofSi(*si);
  if (const auto* conversion = fc::fcCast<FcConversionBasedUnit>(&unit))
    return ofConversion(*conversion);
  if (const auto* derived = fc::fcCast<FcDerivedUnit>(&unit)) return ofDerived(*derived);
  return std::nullopt;
}

UnitSizes::Size UnitSizes::ofSi(const FcSIUnit& unit) {
  const SiName& name = siNames[unit.Name().value()];
  UnitSize size{{}, name.dimensions};
  if (unit.Prefix()) size.toSi = powerOfTen(prefixes[unit.Prefix()->value()] * name.power);
  if (name.name == FcSIUnitName::GRAM) size.toSi = size.toSi.then({1, 1000});
  if (name.name == FcSIUnitName::DEGREE_CELSIUS) size.toSi.offset = 273.15;
  // Kilograms are no thousandths of thousands.
  if (size.toSi.factor == size.toSi.divisor) size.toSi.factor = size.toSi.divisor = 1;
  return size;
}

UnitSizes::Size UnitSizes::ofConversion(const FcConversionBasedUnit& unit) {
  constexpr const char* attribute = "ConversionFactor";
  const FcMeasureWithUnit* factor = unit.ConversionFactor().get();
  if (!factor) return leave(unit, attribute, "is missing");
  const std::optional<double> number = numberOf(factor->ValueComponent());
  if (!number) return leave(unit, attribute, "has no number");
  const fc::FcBase* base = factor->UnitComponent().getEntity();
  const Size baseSize = of(base);
  if (!baseSize) return leave(unit, attribute, "is in a unit of unknown size");
  UnitConversion conversion = fromFactor(*number);
  if (const auto* shifted = fc::fcCast<FcConversionBasedUnitWithOffset>(&unit))
    conversion.offset = shifted->ConversionOffset().value();
  conversion = mended(unit, conversion.then(baseSize->toSi));
  if (!conversion.isSound()) return leave(unit, attribute, fmt::format("is {}", *number));
  return UnitSize{conversion, baseSize->dimensions};
}

UnitSizes::Size UnitSizes::ofDerived(const FcDerivedUnit& unit) {
  constexpr int maxExponent = 100;
  UnitSize size;
  for (const auto& element : unit.Elements()) {
    const Size part = element ? of(element->Unit().get()) : std::nullopt;
    if (!part) return leave(unit, "Elements", "hold a unit of unknown size");
    if (element->Exponent() < -maxExponent || element->Exponent() > maxExponent)
      return leave(*element, "Exponent", fmt::format("is {}", element->Exponent()));
    const int exponent = static_cast<int>(element->Exponent());
    size.toSi = size.toSi.then(part->toSi.ofDifferences().power(exponent));
    size.dimensions = product(size.dimensions, part->dimensions, exponent);
  }
  if (!size.toSi.isSound()) return leave(unit, "Elements", "give a unit beyond all numbers");
  if (size.toSi.isIdentity()) size.toSi = {};
  return size;
}

UnitSizes::Size UnitSizes::leave(const fc::FcBase& unit, std::string_view attribute,
                                 const std::string& what) {
  m_report(unit, attribute,
           fmt::format("{} {}; numbers in this unit are left as they are.", attribute, what));
  return std::nullopt;
}

}  // namespace qor::host::step
