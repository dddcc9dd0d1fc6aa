#include "Host/StepFile/Units/MapUnits.h"

#include <algorithm>
#include <cmath>

#include "Fc/Resource/Representation/FcGeographicCRS.h"
#include "Fc/Resource/Representation/FcProjectedCRS.h"

namespace qor::host::step {

using namespace fc::resource::measure;
using namespace fc::resource::representation;

namespace {

/// The scale between coordinates in metres. The scale of a grid lies close to 1, and files multiply
/// it with the ratio of the two units, divide it by that, or leave the ratio out: of the three
/// readings the one closest to 1 holds.
double scaleInMetres(double scale, double modelUnit, double mapUnit) {
  const double ratio = mapUnit / modelUnit;
  const double readings[] = {scale * ratio, scale, scale / ratio};
  return *std::min_element(std::begin(readings), std::end(readings), [](double a, double b) {
    return std::abs(std::log(std::abs(a))) < std::abs(std::log(std::abs(b)));
  });
}

/// The unit of lengths on a map; null where that names none.
std::shared_ptr<FcNamedUnit> lengthUnitOf(const FcCoordinateReferenceSystem* map) {
  if (const auto* projected = fc::fcCast<FcProjectedCRS>(map)) return projected->MapUnit();
  if (const auto* geographic = fc::fcCast<FcGeographicCRS>(map)) return geographic->HeightUnit();
  return nullptr;
}

std::shared_ptr<FcNamedUnit> angleUnitOf(const FcCoordinateReferenceSystem* map) {
  const auto* geographic = fc::fcCast<FcGeographicCRS>(map);
  return geographic ? geographic->AngleUnit() : nullptr;
}

}  // namespace

MapUnits::MapUnits(const ModelUnits& model, UnitSizes& sizes, SiUnits& siUnits)
    : m_model(model), m_sizes(sizes), m_siUnits(siUnits) {}

bool MapUnits::convert(fc::FcBase& entity) {
  auto* operation = fc::fcCast<FcCoordinateOperation>(&entity);
  if (!operation) return false;
  if (auto* map = fc::fcCast<FcMapConversion>(operation)) convertMap(*map);
  if (auto* rigid = fc::fcCast<FcRigidOperation>(operation)) convertRigid(*rigid);
  if (operation->TargetCRS()) m_maps.insert(operation->TargetCRS());
  return true;
}

void MapUnits::convertMap(FcMapConversion& operation) {
  const auto unit = lengthUnitOf(operation.TargetCRS().get());
  const UnitConversion conversion = conversionOf(unit, measure::length);
  operation.setEastings(FcLengthMeasure(conversion(operation.Eastings().value())));
  operation.setNorthings(FcLengthMeasure(conversion(operation.Northings().value())));
  operation.setOrthogonalHeight(FcLengthMeasure(conversion(operation.OrthogonalHeight().value())));
  const double modelUnit = m_model.of(measure::length).scale();
  if (operation.Scale() && modelUnit != conversion.scale())
    operation.setScale(
        FcReal(scaleInMetres(operation.Scale()->value(), modelUnit, conversion.scale())));
}

void MapUnits::convertRigid(FcRigidOperation& operation) {
  const FcCoordinateReferenceSystem* map = operation.TargetCRS().get();
  const UnitConversion length = conversionOf(lengthUnitOf(map), measure::length);
  const UnitConversion angle = conversionOf(angleUnitOf(map), measure::planeAngle);
  const auto converted = [&](FcMeasureValue value) {
    const auto number = value.valueAsDoubleGet(false);
    if (number && value.type() == FcMeasureValue::Types::LengthMeasure)
      value.setDoubleValue(length(*number));
    if (number && value.type() == FcMeasureValue::Types::PlaneAngleMeasure)
      value.setDoubleValue(angle(*number));
    return value;
  };
  operation.setFirstCoordinate(converted(operation.FirstCoordinate()));
  operation.setSecondCoordinate(converted(operation.SecondCoordinate()));
  if (operation.Height()) operation.setHeight(FcLengthMeasure(length(operation.Height()->value())));
}

UnitConversion MapUnits::conversionOf(const NamedUnit& unit, MeasureId measure) {
  if (!unit) return m_model.of(measure);
  const auto size = m_sizes.of(unit.get());
  const bool fits = size && size->dimensions == measures()[measure].dimensions && siOf(unit);
  return fits ? size->toSi : UnitConversion();
}

MapUnits::NamedUnit MapUnits::siOf(const NamedUnit& unit) {
  if (!unit) return nullptr;
  const FcUnit si = m_siUnits.of(FcUnit(unit));
  return si.isSet() ? si.NamedUnit() : nullptr;
}

void MapUnits::finish() {
  const auto orAsItIs = [this](const NamedUnit& unit) {
    const NamedUnit si = siOf(unit);
    return si ? si : unit;
  };
  for (const auto& map : m_maps) {
    if (const auto projected = fc::fcCast<FcProjectedCRS>(map))
      projected->setMapUnit(orAsItIs(projected->MapUnit()));
    if (const auto geographic = fc::fcCast<FcGeographicCRS>(map)) {
      geographic->setAngleUnit(orAsItIs(geographic->AngleUnit()));
      geographic->setHeightUnit(orAsItIs(geographic->HeightUnit()));
    }
  }
}

}  // namespace qor::host::step
