#include "Host/StepFile/Units/SiUnits.h"

#include <algorithm>
#include <iterator>

#include "Fc/Reflection/MakeEntity.h"
#include "Fc/Resource/Measure/FcConversionBasedUnit.h"
#include "Fc/Resource/Measure/FcDerivedUnitElement.h"
#include "Fc/Resource/Measure/FcMeasureWithUnit.h"

namespace qor::host::step {

using namespace fc::resource::measure;

namespace {

struct Standard {
  FcUnitEnum::Enum type;
  FcSIUnitName::Enum name;
};

constexpr Standard standards[] = {
    {FcUnitEnum::ABSORBEDDOSEUNIT, FcSIUnitName::GRAY},
    {FcUnitEnum::AMOUNTOFSUBSTANCEUNIT, FcSIUnitName::MOLE},
    {FcUnitEnum::AREAUNIT, FcSIUnitName::SQUARE_METRE},
    {FcUnitEnum::DOSEEQUIVALENTUNIT, FcSIUnitName::SIEVERT},
    {FcUnitEnum::ELECTRICCAPACITANCEUNIT, FcSIUnitName::FARAD},
    {FcUnitEnum::ELECTRICCHARGEUNIT, FcSIUnitName::COULOMB},
    {FcUnitEnum::ELECTRICCONDUCTANCEUNIT, FcSIUnitName::SIEMENS},
    {FcUnitEnum::ELECTRICCURRENTUNIT, FcSIUnitName::AMPERE},
    {FcUnitEnum::ELECTRICRESISTANCEUNIT, FcSIUnitName::OHM},
    {FcUnitEnum::ELECTRICVOLTAGEUNIT, FcSIUnitName::VOLT},
    {FcUnitEnum::ENERGYUNIT, FcSIUnitName::JOULE},
    {FcUnitEnum::FORCEUNIT, FcSIUnitName::NEWTON},
    {FcUnitEnum::FREQUENCYUNIT, FcSIUnitName::HERTZ},
    {FcUnitEnum::ILLUMINANCEUNIT, FcSIUnitName::LUX},
    {FcUnitEnum::INDUCTANCEUNIT, FcSIUnitName::HENRY},
    {FcUnitEnum::LENGTHUNIT, FcSIUnitName::METRE},
    {FcUnitEnum::LUMINOUSFLUXUNIT, FcSIUnitName::LUMEN},
    {FcUnitEnum::LUMINOUSINTENSITYUNIT, FcSIUnitName::CANDELA},
    {FcUnitEnum::MAGNETICFLUXDENSITYUNIT, FcSIUnitName::TESLA},
    {FcUnitEnum::MAGNETICFLUXUNIT, FcSIUnitName::WEBER},
    {FcUnitEnum::MASSUNIT, FcSIUnitName::GRAM},  // with KILO
    {FcUnitEnum::PLANEANGLEUNIT, FcSIUnitName::RADIAN},
    {FcUnitEnum::POWERUNIT, FcSIUnitName::WATT},
    {FcUnitEnum::PRESSUREUNIT, FcSIUnitName::PASCAL},
    {FcUnitEnum::RADIOACTIVITYUNIT, FcSIUnitName::BECQUEREL},
    {FcUnitEnum::SOLIDANGLEUNIT, FcSIUnitName::STERADIAN},
    {FcUnitEnum::THERMODYNAMICTEMPERATUREUNIT, FcSIUnitName::KELVIN},
    {FcUnitEnum::TIMEUNIT, FcSIUnitName::SECOND},
    {FcUnitEnum::VOLUMEUNIT, FcSIUnitName::CUBIC_METRE},
};

const Standard* standardOf(FcUnitEnum type) {
  const auto* found = std::find_if(std::begin(standards), std::end(standards),
                                   [type](const Standard& row) { return row.type == type; });
  return found == std::end(standards) ? nullptr : found;
}

std::optional<FcSIPrefix> prefixOf(FcSIUnitName name) {
  return name == FcSIUnitName::GRAM ? std::optional<FcSIPrefix>(FcSIPrefix::KILO) : std::nullopt;
}

}  // namespace

void SiUnits::offer(const std::shared_ptr<FcSIUnit>& unit) {
  const Standard* row = standardOf(unit->UnitType());
  const std::optional<FcSIPrefix> prefix = row ? prefixOf(row->name) : std::nullopt;
  const bool samePrefix =
      unit->Prefix().has_value() == prefix.has_value() && (!prefix || *unit->Prefix() == *prefix);
  if (row && unit->Name() == row->name && samePrefix) m_standard.try_emplace(row->type, unit);
}

FcUnit SiUnits::of(const FcUnit& unit) {
  if (unit.type() == FcUnit::Types::NamedUnit) {
    const Named si = named(unit.NamedUnit());
    return si ? FcUnit(si) : FcUnit();
  }
  if (unit.type() != FcUnit::Types::DerivedUnit) return {};
  const Derived si = derived(unit.DerivedUnit());
  return si ? FcUnit(si) : FcUnit();
}

SiUnits::Named SiUnits::named(const Named& unit) {
  const auto size = m_sizes.of(unit.get());
  if (!size) return nullptr;
  if (size->toSi.isIdentity()) return unit;
  return standard(unit->UnitType());
}

SiUnits::Derived SiUnits::derived(const Derived& unit) {
  const auto size = m_sizes.of(unit.get());
  if (!size) return nullptr;
  if (size->toSi.isIdentity()) return unit;
  const auto [known, isNew] = m_derived.try_emplace(unit.get());
  if (!isNew) return known->second;
  std::vector<Named> parts;
  for (const auto& element : unit->Elements()) {
    parts.push_back(named(element->Unit()));
    if (!parts.back()) return nullptr;
  }
  auto si = make<FcDerivedUnit>();
  for (std::size_t i = 0; i < parts.size(); ++i) {
    auto element = make<FcDerivedUnitElement>();
    element->setUnit(parts[i]);
    element->setExponent(unit->Elements()[i]->Exponent());
    si->insertElements(element);
  }
  si->setUnitType(unit->UnitType());
  si->setUserDefinedType(unit->UserDefinedType());
  return m_derived[unit.get()] = si;
}

SiUnits::Named SiUnits::standard(FcUnitEnum type) {
  const Standard* row = standardOf(type);
  if (!row) return nullptr;
  Named& known = m_standard[row->type];
  if (!known) {
    auto unit = make<FcSIUnit>();
    unit->setUnitType(type);
    unit->setPrefix(prefixOf(row->name));
    unit->setName(row->name);
    known = unit;
  }
  return known;
}

template <class T>
std::shared_ptr<T> SiUnits::make() {
  auto entity = fc::makeEntity<T>();
  m_made.push_back(entity);
  return entity;
}

void SiUnits::listIn(fc::Data& data) {
  for (const auto& entity : m_made) data.entityAdd(entity, false);
  m_made.clear();
}

}  // namespace qor::host::step
