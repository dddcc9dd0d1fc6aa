#include "Examples/Facts.h"

#include <utility>

#include "Fc/Core/Kernel/FcRelAssociatesClassification.h"
#include "Fc/Core/Kernel/FcRelDefinesByProperties.h"
#include "Fc/Core/ProductExtension/FcElementQuantity.h"
#include "Fc/Core/ProductExtension/FcRelAssociatesMaterial.h"
#include "Fc/Resource/ExternalReference/FcClassification.h"
#include "Fc/Resource/ExternalReference/FcClassificationReference.h"
#include "Fc/Resource/Material/FcMaterial.h"
#include "Fc/Resource/Measure/FcDerivedUnitElement.h"
#include "Fc/Resource/Measure/FcSIUnit.h"
#include "Fc/Resource/Property/FcPropertySingleValue.h"
#include "Fc/Resource/Quantity/FcQuantityArea.h"
#include "Fc/Resource/Quantity/FcQuantityLength.h"

namespace sample {

using namespace qor::fc::resource::externalreference;
using namespace qor::fc::resource::material;
using namespace qor::fc::resource::measure;
using namespace qor::fc::resource::property;
using namespace qor::fc::resource::quantity;
using namespace qor::fc::shared::buildingelements;

// Units. Numbers in memory are SI whatever a file says; the assignment tells it to its readers.

std::shared_ptr<FcUnitAssignment> Facts::createUnits() {
  auto units = m_model.create<FcUnitAssignment>();
  const auto squareMetre = createUnit(FcUnitEnum::AREAUNIT, FcSIUnitName::SQUARE_METRE);
  units->insertUnits(createUnit(FcUnitEnum::LENGTHUNIT, FcSIUnitName::METRE));
  units->insertUnits(squareMetre);
  units->insertUnits(createUnit(FcUnitEnum::VOLUMEUNIT, FcSIUnitName::CUBIC_METRE));
  units->insertUnits(createUnit(FcUnitEnum::PLANEANGLEUNIT, FcSIUnitName::RADIAN));
  units->insertUnits(createTransmittanceUnit(squareMetre));
  return units;
}

std::shared_ptr<FcNamedUnit> Facts::createUnit(FcUnitEnum type, FcSIUnitName name) {
  auto unit = m_model.create<FcSIUnit>();
  unit->setUnitType(type);
  unit->setName(name);
  return unit;
}

std::shared_ptr<FcDerivedUnit> Facts::createTransmittanceUnit(
    std::shared_ptr<FcNamedUnit> squareMetre) {
  auto transmittance = m_model.create<FcDerivedUnit>();
  transmittance->setUnitType(FcDerivedUnitEnum::THERMALTRANSMITTANCEUNIT);
  const auto add = [&](std::shared_ptr<FcNamedUnit> unit, int exponent) {
    auto element = m_model.create<FcDerivedUnitElement>();
    element->setUnit(std::move(unit));
    element->setExponent(exponent);
    transmittance->insertElements(element);
  };
  add(createUnit(FcUnitEnum::POWERUNIT, FcSIUnitName::WATT), 1);
  add(std::move(squareMetre), -1);
  add(createUnit(FcUnitEnum::THERMODYNAMICTEMPERATUREUNIT, FcSIUnitName::KELVIN), -1);
  return transmittance;
}

// Properties and quantities

void Facts::describeWalls() {
  auto set = m_model.createRoot<FcPropertySet>("Pset_WallCommon");
  set->setHasProperties(
      {createProperty("IsExternal", FcBoolean(true)), createProperty("FireRating", FcLabel("F90")),
       createProperty("ThermalTransmittance", FcThermalTransmittanceMeasure(0.24))});
  auto relation = m_model.createRoot<FcRelDefinesByProperties>();
  relation->setRelatedObjects(m_model.all<FcWall, FcObjectDefinition>());
  relation->setRelatingPropertyDefinition(set);
}

void Facts::describe(FcWallType& type) {
  auto set = m_model.createRoot<FcPropertySet>("Pset_WallCommon");
  set->setHasProperties(
      {createProperty("LoadBearing", FcBoolean(true)),
       createProperty("ThermalTransmittance", FcThermalTransmittanceMeasure(0.28))});
  type.insertHasPropertySets(set);
}

std::shared_ptr<FcProperty> Facts::createProperty(const std::string& name, FcValue value) {
  auto property = m_model.create<FcPropertySingleValue>();
  property->setName(name);
  property->setNominalValue(std::move(value));
  return property;
}

void Facts::measure(const std::shared_ptr<FcWall>& wall, double length, double height) {
  auto set = m_model.createRoot<FcElementQuantity>("Qto_WallBaseQuantities");
  auto along = m_model.create<FcQuantityLength>();
  along->setName("Length");
  along->setLengthValue(length);
  auto area = m_model.create<FcQuantityArea>();
  area->setName("GrossSideArea");
  area->setAreaValue(length * height);
  set->setQuantities({along, area});
  auto relation = m_model.createRoot<FcRelDefinesByProperties>();
  relation->setRelatedObjects({wall});
  relation->setRelatingPropertyDefinition(set);
}

// What others know them by

void Facts::classifyWalls() {
  auto system = m_model.create<FcClassification>();
  system->setName("DIN 276");
  auto code = m_model.create<FcClassificationReference>();
  code->setIdentification("331");
  code->setName("Load-bearing exterior walls");
  code->setReferencedSource(system);
  auto relation = m_model.createRoot<FcRelAssociatesClassification>();
  for (const auto& wall : m_model.all<FcWall, FcObjectDefinition>())
    relation->insertRelatedObjects(wall);
  relation->setRelatingClassification(code);
}

void Facts::associateMaterial(const std::string& name,
                              const std::vector<std::shared_ptr<FcObjectDefinition>>& elements) {
  auto material = m_model.create<FcMaterial>();
  material->setName(name);
  auto relation = m_model.createRoot<FcRelAssociatesMaterial>();
  for (const auto& element : elements) relation->insertRelatedObjects(element);
  relation->setRelatingMaterial(material);
}

}  // namespace sample
