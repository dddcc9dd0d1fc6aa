#include "Fc/Resource/Measure/MeasureQuantities.h"

#include "Fc/Model/Report.h"
#include "Fc/Resource/Measure/FcDerivedMeasureValueAlternatives.h"
#include "Fc/Resource/Measure/FcMeasureValueAlternatives.h"
#include "Qor/Unit/Quantities.h"
#include "Qor/Unit/QuantityPresentationFactory.h"

namespace qor::fc::resource::measure {

namespace {

struct MeasureQuantity {
  std::string_view measure;
  unit::QuantityBase& (*quantity)();
};

template <class Q>
constexpr auto of = &unit::QuantityBase::registered<Q>;

constexpr MeasureQuantity measureQuantities[] = {
    {"AreaMeasure", of<unit::Area>},
    {"CountMeasure", of<unit::Count>},
    {"ElectricCurrentMeasure", of<unit::ElectricCurrent>},
    {"LengthMeasure", of<unit::Length>},
    {"NonNegativeLengthMeasure", of<unit::Length>},
    {"PositiveLengthMeasure", of<unit::Length>},
    {"MassMeasure", of<unit::Mass>},
    {"NormalisedRatioMeasure", of<unit::Ratio>},
    {"PositiveRatioMeasure", of<unit::Ratio>},
    {"RatioMeasure", of<unit::Ratio>},
    {"PlaneAngleMeasure", of<unit::PlaneAngle>},
    {"PositivePlaneAngleMeasure", of<unit::PlaneAngle>},
    {"ThermodynamicTemperatureMeasure", of<unit::Temperature>},
    {"TimeMeasure", of<unit::Time>},
    {"VolumeMeasure", of<unit::Volume>},
    {"AbsorbedDoseMeasure", of<unit::AbsorbedDose>},
    {"CurvatureMeasure", of<unit::Curvature>},
    {"ElectricResistanceMeasure", of<unit::ElectricResistance>},
    {"ElectricVoltageMeasure", of<unit::ElectricVoltage>},
    {"ForceMeasure", of<unit::Force>},
    {"FrequencyMeasure", of<unit::Frequency>},
    {"IlluminanceMeasure", of<unit::Illuminance>},
    {"LinearForceMeasure", of<unit::LinearForce>},
    {"LinearMomentMeasure", of<unit::LinearMoment>},
    {"LinearVelocityMeasure", of<unit::LinearVelocity>},
    {"LuminousFluxMeasure", of<unit::LuminousFlux>},
    {"MassDensityMeasure", of<unit::MassDensity>},
    {"MassFlowRateMeasure", of<unit::MassFlowRate>},
    {"MolecularWeightMeasure", of<unit::MolecularWeight>},
    {"PowerMeasure", of<unit::Power>},
    {"PressureMeasure", of<unit::Pressure>},
    {"RotationalFrequencyMeasure", of<unit::RotationalFrequency>},
    {"SpecificHeatCapacityMeasure", of<unit::SpecificHeatCapacity>},
    {"ThermalConductivityMeasure", of<unit::ThermalConductivity>},
    {"ThermalTransmittanceMeasure", of<unit::ThermalTransmittance>},
    {"TorqueMeasure", of<unit::Torque>},
    {"VolumetricFlowRateMeasure", of<unit::VolumetricFlowRate>},
    {"WarpingMomentMeasure", of<unit::WarpingMoment>},
};

bool isAlternative(const SelectInfo& info, std::string_view ifcName) {
  for (const AlternativeInfo& alternative : info.alternatives)
    if (alternative.ifcName == ifcName) return true;
  return false;
}

}  // namespace

const unit::QuantityBase* quantityOfMeasure(std::string_view name) {
  for (const MeasureQuantity& row : measureQuantities)
    if (row.measure == name) return &row.quantity();
  return nullptr;
}

std::unique_ptr<unit::QuantityPresentationBase> createMeasurePresentation(std::string_view name,
                                                                          double number) {
  if (const unit::QuantityBase* quantity = quantityOfMeasure(name))
    return quantity->createPresentation(number);
  report({.kind = AssertInfo::unimplementedCase,
          .message =
              "qor::fc::helper::createQuantityPresentationFromValue: Not implemented unit for "
              "this",
          .function = "qor::fc::helper::createQuantityPresentationFromValue",
          .source = "Utilities/UnitHelper"});
  return nullptr;
}

std::unique_ptr<unit::QuantityPresentationBase> createNumberPresentation(double number) {
  return unit::QuantityBase::registered<unit::Count>().createPresentation(number);
}

std::unique_ptr<unit::QuantityPresentationBase> withSettingsOfProperty(
    std::unique_ptr<unit::QuantityPresentationBase> presentation, const std::string& setName,
    const std::string& propertyName) {
  if (!presentation) return nullptr;
  using Factory = unit::QuantityPresentationFactory;
  auto own = Factory::createNewBaseUniqueFromIfcPropertyIdWithSanityCheck(
      setName + "." + propertyName, presentation->quantity(), presentation->number());
  return own ? std::move(own) : std::move(presentation);
}

bool isMeasure(std::string_view ifcName) {
  return isAlternative(FcMeasureValueAlternatives::table, ifcName) ||
         isAlternative(FcDerivedMeasureValueAlternatives::table, ifcName);
}

}  // namespace qor::fc::resource::measure
