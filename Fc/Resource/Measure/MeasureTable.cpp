#include "Fc/Resource/Measure/MeasureTable.h"

#include <algorithm>

#include "Qor/Unit/Quantities.h"

namespace qor::fc::resource::measure {

namespace {

template <class Q>
constexpr auto of = &unit::QuantityBase::registered<Q>;
using D = unit::Dimensions;

constexpr MeasureRow rowsOfMeasures[] = {
    {"AbsorbedDoseMeasure", "ABSORBEDDOSEUNIT", std::nullopt, of<unit::AbsorbedDose>},
    {"AccelerationMeasure", "ACCELERATIONUNIT", D{1, 0, -2}, nullptr},
    {"AmountOfSubstanceMeasure", "AMOUNTOFSUBSTANCEUNIT", D{0, 0, 0, 0, 0, 1}, nullptr},
    {"AngularVelocityMeasure", "ANGULARVELOCITYUNIT", D{0, 0, -1}, nullptr},
    {"AreaDensityMeasure", "AREADENSITYUNIT", D{-2, 1}, nullptr},
    {"AreaMeasure", "AREAUNIT", std::nullopt, of<unit::Area>},
    {"CountMeasure", "", std::nullopt, of<unit::Count>},
    {"CurvatureMeasure", "CURVATUREUNIT", std::nullopt, of<unit::Curvature>},
    {"DoseEquivalentMeasure", "DOSEEQUIVALENTUNIT", D{2, 0, -2}, nullptr},
    {"DynamicViscosityMeasure", "DYNAMICVISCOSITYUNIT", D{-1, 1, -1}, nullptr},
    {"ElectricCapacitanceMeasure", "ELECTRICCAPACITANCEUNIT", D{-2, -1, 4, 2}, nullptr},
    {"ElectricChargeMeasure", "ELECTRICCHARGEUNIT", D{0, 0, 1, 1}, nullptr},
    {"ElectricConductanceMeasure", "ELECTRICCONDUCTANCEUNIT", D{-2, -1, 3, 2}, nullptr},
    {"ElectricCurrentMeasure", "ELECTRICCURRENTUNIT", std::nullopt, of<unit::ElectricCurrent>},
    {"ElectricResistanceMeasure", "ELECTRICRESISTANCEUNIT", std::nullopt,
     of<unit::ElectricResistance>},
    {"ElectricVoltageMeasure", "ELECTRICVOLTAGEUNIT", std::nullopt, of<unit::ElectricVoltage>},
    {"EnergyMeasure", "ENERGYUNIT", D{2, 1, -2}, nullptr},
    {"ForceMeasure", "FORCEUNIT", std::nullopt, of<unit::Force>},
    {"FrequencyMeasure", "FREQUENCYUNIT", std::nullopt, of<unit::Frequency>},
    {"HeatFluxDensityMeasure", "HEATFLUXDENSITYUNIT", D{0, 1, -3}, nullptr},
    {"HeatingValueMeasure", "HEATINGVALUEUNIT", D{2, 0, -2}, nullptr},
    {"IlluminanceMeasure", "ILLUMINANCEUNIT", std::nullopt, of<unit::Illuminance>},
    {"InductanceMeasure", "INDUCTANCEUNIT", D{2, 1, -2, -2}, nullptr},
    {"IonConcentrationMeasure", "IONCONCENTRATIONUNIT", std::nullopt, nullptr},
    {"IsothermalMoistureCapacityMeasure", "ISOTHERMALMOISTURECAPACITYUNIT", D{3, -1}, nullptr},
    {"KinematicViscosityMeasure", "KINEMATICVISCOSITYUNIT", D{2, 0, -1}, nullptr},
    {"LengthMeasure", "LENGTHUNIT", std::nullopt, of<unit::Length>},
    {"LinearForceMeasure", "LINEARFORCEUNIT", std::nullopt, of<unit::LinearForce>},
    {"LinearMomentMeasure", "LINEARMOMENTUNIT", std::nullopt, of<unit::LinearMoment>},
    {"LinearStiffnessMeasure", "LINEARSTIFFNESSUNIT", D{0, 1, -2}, nullptr},
    {"LinearVelocityMeasure", "LINEARVELOCITYUNIT", std::nullopt, of<unit::LinearVelocity>},
    {"LuminousFluxMeasure", "LUMINOUSFLUXUNIT", std::nullopt, of<unit::LuminousFlux>},
    {"LuminousIntensityDistributionMeasure", "LUMINOUSINTENSITYDISTRIBUTIONUNIT", std::nullopt,
     nullptr},
    {"LuminousIntensityMeasure", "LUMINOUSINTENSITYUNIT", D{0, 0, 0, 0, 0, 0, 1}, nullptr},
    {"MagneticFluxDensityMeasure", "MAGNETICFLUXDENSITYUNIT", D{0, 1, -2, -1}, nullptr},
    {"MagneticFluxMeasure", "MAGNETICFLUXUNIT", D{2, 1, -2, -1}, nullptr},
    {"MassDensityMeasure", "MASSDENSITYUNIT", std::nullopt, of<unit::MassDensity>},
    {"MassFlowRateMeasure", "MASSFLOWRATEUNIT", std::nullopt, of<unit::MassFlowRate>},
    {"MassMeasure", "MASSUNIT", std::nullopt, of<unit::Mass>},
    {"MassPerLengthMeasure", "MASSPERLENGTHUNIT", D{-1, 1}, nullptr},
    {"ModulusOfElasticityMeasure", "MODULUSOFELASTICITYUNIT", D{-1, 1, -2}, nullptr},
    {"ModulusOfLinearSubgradeReactionMeasure", "MODULUSOFLINEARSUBGRADEREACTIONUNIT", D{-1, 1, -2},
     nullptr},
    {"ModulusOfRotationalSubgradeReactionMeasure", "MODULUSOFROTATIONALSUBGRADEREACTIONUNIT",
     D{1, 1, -2}, nullptr},
    {"ModulusOfSubgradeReactionMeasure", "MODULUSOFSUBGRADEREACTIONUNIT", D{-2, 1, -2}, nullptr},
    {"MoistureDiffusivityMeasure", "MOISTUREDIFFUSIVITYUNIT", std::nullopt, nullptr},
    {"MolecularWeightMeasure", "MOLECULARWEIGHTUNIT", std::nullopt, of<unit::MolecularWeight>},
    {"MomentOfInertiaMeasure", "MOMENTOFINERTIAUNIT", D{4}, nullptr},
    {"NonNegativeLengthMeasure", "LENGTHUNIT", std::nullopt, of<unit::Length>},
    {"NormalisedRatioMeasure", "", std::nullopt, of<unit::Ratio>},
    {"PHMeasure", "PHUNIT", std::nullopt, nullptr},
    {"PlanarForceMeasure", "PLANARFORCEUNIT", D{-1, 1, -2}, nullptr},
    {"PlaneAngleMeasure", "PLANEANGLEUNIT", std::nullopt, of<unit::PlaneAngle>},
    {"PositiveLengthMeasure", "LENGTHUNIT", std::nullopt, of<unit::Length>},
    {"PositivePlaneAngleMeasure", "PLANEANGLEUNIT", std::nullopt, of<unit::PlaneAngle>},
    {"PositiveRatioMeasure", "", std::nullopt, of<unit::Ratio>},
    {"PowerMeasure", "POWERUNIT", std::nullopt, of<unit::Power>},
    {"PressureMeasure", "PRESSUREUNIT", std::nullopt, of<unit::Pressure>},
    {"RadioActivityMeasure", "RADIOACTIVITYUNIT", D{0, 0, -1}, nullptr},
    {"RatioMeasure", "", std::nullopt, of<unit::Ratio>},
    {"RotationalFrequencyMeasure", "ROTATIONALFREQUENCYUNIT", std::nullopt,
     of<unit::RotationalFrequency>},
    {"RotationalMassMeasure", "ROTATIONALMASSUNIT", D{2, 1}, nullptr},
    {"RotationalStiffnessMeasure", "ROTATIONALSTIFFNESSUNIT", D{2, 1, -2}, nullptr},
    {"SectionModulusMeasure", "SECTIONMODULUSUNIT", D{3}, nullptr},
    {"SectionalAreaIntegralMeasure", "SECTIONAREAINTEGRALUNIT", D{5}, nullptr},
    {"ShearModulusMeasure", "SHEARMODULUSUNIT", D{-1, 1, -2}, nullptr},
    {"SolidAngleMeasure", "SOLIDANGLEUNIT", D{}, nullptr},
    {"SoundPowerLevelMeasure", "SOUNDPOWERLEVELUNIT", std::nullopt, nullptr},
    {"SoundPowerMeasure", "SOUNDPOWERUNIT", std::nullopt, nullptr},
    {"SoundPressureLevelMeasure", "SOUNDPRESSURELEVELUNIT", std::nullopt, nullptr},
    {"SoundPressureMeasure", "SOUNDPRESSUREUNIT", std::nullopt, nullptr},
    {"SpecificHeatCapacityMeasure", "SPECIFICHEATCAPACITYUNIT", std::nullopt,
     of<unit::SpecificHeatCapacity>},
    {"TemperatureGradientMeasure", "TEMPERATUREGRADIENTUNIT", D{-1, 0, 0, 0, 1}, nullptr},
    {"TemperatureRateOfChangeMeasure", "TEMPERATURERATEOFCHANGEUNIT", D{0, 0, -1, 0, 1}, nullptr},
    {"ThermalAdmittanceMeasure", "THERMALADMITTANCEUNIT", D{0, 1, -3, 0, -1}, nullptr},
    {"ThermalConductivityMeasure", "THERMALCONDUCTANCEUNIT", std::nullopt,
     of<unit::ThermalConductivity>},
    {"ThermalExpansionCoefficientMeasure", "THERMALEXPANSIONCOEFFICIENTUNIT", D{0, 0, 0, 0, -1},
     nullptr},
    {"ThermalResistanceMeasure", "THERMALRESISTANCEUNIT", D{0, -1, 3, 0, 1}, nullptr},
    {"ThermalTransmittanceMeasure", "THERMALTRANSMITTANCEUNIT", std::nullopt,
     of<unit::ThermalTransmittance>},
    {"ThermodynamicTemperatureMeasure", "THERMODYNAMICTEMPERATUREUNIT", std::nullopt,
     of<unit::Temperature>},
    {"TimeMeasure", "TIMEUNIT", std::nullopt, of<unit::Time>},
    {"TorqueMeasure", "TORQUEUNIT", std::nullopt, of<unit::Torque>},
    {"VaporPermeabilityMeasure", "VAPORPERMEABILITYUNIT", std::nullopt, nullptr},
    {"VolumeMeasure", "VOLUMEUNIT", std::nullopt, of<unit::Volume>},
    {"VolumetricFlowRateMeasure", "VOLUMETRICFLOWRATEUNIT", std::nullopt,
     of<unit::VolumetricFlowRate>},
    {"WarpingConstantMeasure", "WARPINGCONSTANTUNIT", D{6}, nullptr},
    {"WarpingMomentMeasure", "WARPINGMOMENTUNIT", D{3, 1, -2}, of<unit::WarpingMoment>},
};
static_assert(std::ranges::is_sorted(rowsOfMeasures, {}, &MeasureRow::type));

}  // namespace

std::optional<unit::Dimensions> MeasureRow::dimensions() const {
  if (ownDimensions || !quantity) return ownDimensions;
  return quantity().dimensions();
}

std::span<const MeasureRow> measureTable() { return rowsOfMeasures; }

const MeasureRow* findMeasure(std::string_view type) {
  const auto found = std::ranges::lower_bound(rowsOfMeasures, type, {}, &MeasureRow::type);
  return found != std::end(rowsOfMeasures) && found->type == type ? found : nullptr;
}

}  // namespace qor::fc::resource::measure
