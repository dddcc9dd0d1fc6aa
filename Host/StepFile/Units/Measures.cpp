#include "Host/StepFile/Units/Measures.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <map>
#include <string>

#include "Fc/Resource/Quantity/FcPhysicalSimpleQuantity.h"
#include "Fc/Resource/Representation/FcCoordinateOperation.h"
#include "Host/StepFile/Units/UnitRole.h"

namespace qor::host::step {

namespace {

using fc::resource::quantity::FcPhysicalSimpleQuantity;
using fc::resource::representation::FcCoordinateOperation;

constexpr std::optional<Dimensions> anyDimensions;
using D = Dimensions;

// The first rows are the constants of namespace measure.
constexpr Measure measureTable[] = {
    {"", "", anyDimensions},
    {"IfcLengthMeasure", "LENGTHUNIT", D(1)},
    {"IfcPlaneAngleMeasure", "PLANEANGLEUNIT", D()},
    {"IfcThermodynamicTemperatureMeasure", "THERMODYNAMICTEMPERATUREUNIT", D(0, 0, 0, 0, 1)},
    {"", "THERMODYNAMICTEMPERATUREUNIT", D(0, 0, 0, 0, 1)},
    {"", "LENGTHUNIT", D(1)},
    {"", "LENGTHUNIT", D(1)},
    {"IfcAbsorbedDoseMeasure", "ABSORBEDDOSEUNIT", D(2, 0, -2)},
    {"IfcAccelerationMeasure", "ACCELERATIONUNIT", D(1, 0, -2)},
    {"IfcAmountOfSubstanceMeasure", "AMOUNTOFSUBSTANCEUNIT", D(0, 0, 0, 0, 0, 1)},
    {"IfcAngularVelocityMeasure", "ANGULARVELOCITYUNIT", D(0, 0, -1)},
    {"IfcAreaDensityMeasure", "AREADENSITYUNIT", D(-2, 1)},
    {"IfcAreaMeasure", "AREAUNIT", D(2)},
    {"IfcCurvatureMeasure", "CURVATUREUNIT", D(-1)},
    {"IfcDoseEquivalentMeasure", "DOSEEQUIVALENTUNIT", D(2, 0, -2)},
    {"IfcDynamicViscosityMeasure", "DYNAMICVISCOSITYUNIT", D(-1, 1, -1)},
    {"IfcElectricCapacitanceMeasure", "ELECTRICCAPACITANCEUNIT", D(-2, -1, 4, 2)},
    {"IfcElectricChargeMeasure", "ELECTRICCHARGEUNIT", D(0, 0, 1, 1)},
    {"IfcElectricConductanceMeasure", "ELECTRICCONDUCTANCEUNIT", D(-2, -1, 3, 2)},
    {"IfcElectricCurrentMeasure", "ELECTRICCURRENTUNIT", D(0, 0, 0, 1)},
    {"IfcElectricResistanceMeasure", "ELECTRICRESISTANCEUNIT", D(2, 1, -3, -2)},
    {"IfcElectricVoltageMeasure", "ELECTRICVOLTAGEUNIT", D(2, 1, -3, -1)},
    {"IfcEnergyMeasure", "ENERGYUNIT", D(2, 1, -2)},
    {"IfcForceMeasure", "FORCEUNIT", D(1, 1, -2)},
    {"IfcFrequencyMeasure", "FREQUENCYUNIT", D(0, 0, -1)},
    {"IfcHeatFluxDensityMeasure", "HEATFLUXDENSITYUNIT", D(0, 1, -3)},
    {"IfcHeatingValueMeasure", "HEATINGVALUEUNIT", D(2, 0, -2)},
    {"IfcIlluminanceMeasure", "ILLUMINANCEUNIT", D(-2, 0, 0, 0, 0, 0, 1)},
    {"IfcInductanceMeasure", "INDUCTANCEUNIT", D(2, 1, -2, -2)},
    {"IfcIonConcentrationMeasure", "IONCONCENTRATIONUNIT", anyDimensions},
    {"IfcIsothermalMoistureCapacityMeasure", "ISOTHERMALMOISTURECAPACITYUNIT", D(3, -1)},
    {"IfcKinematicViscosityMeasure", "KINEMATICVISCOSITYUNIT", D(2, 0, -1)},
    {"IfcLinearForceMeasure", "LINEARFORCEUNIT", D(0, 1, -2)},
    {"IfcLinearMomentMeasure", "LINEARMOMENTUNIT", D(1, 1, -2)},
    {"IfcLinearStiffnessMeasure", "LINEARSTIFFNESSUNIT", D(0, 1, -2)},
    {"IfcLinearVelocityMeasure", "LINEARVELOCITYUNIT", D(1, 0, -1)},
    {"IfcLuminousFluxMeasure", "LUMINOUSFLUXUNIT", D(0, 0, 0, 0, 0, 0, 1)},
    {"IfcLuminousIntensityDistributionMeasure", "LUMINOUSINTENSITYDISTRIBUTIONUNIT", anyDimensions},
    {"IfcLuminousIntensityMeasure", "LUMINOUSINTENSITYUNIT", D(0, 0, 0, 0, 0, 0, 1)},
    {"IfcMagneticFluxDensityMeasure", "MAGNETICFLUXDENSITYUNIT", D(0, 1, -2, -1)},
    {"IfcMagneticFluxMeasure", "MAGNETICFLUXUNIT", D(2, 1, -2, -1)},
    {"IfcMassDensityMeasure", "MASSDENSITYUNIT", D(-3, 1)},
    {"IfcMassFlowRateMeasure", "MASSFLOWRATEUNIT", D(0, 1, -1)},
    {"IfcMassMeasure", "MASSUNIT", D(0, 1)},
    {"IfcMassPerLengthMeasure", "MASSPERLENGTHUNIT", D(-1, 1)},
    {"IfcModulusOfElasticityMeasure", "MODULUSOFELASTICITYUNIT", D(-1, 1, -2)},
    {"IfcModulusOfLinearSubgradeReactionMeasure", "MODULUSOFLINEARSUBGRADEREACTIONUNIT",
     D(-1, 1, -2)},
    {"IfcModulusOfRotationalSubgradeReactionMeasure", "MODULUSOFROTATIONALSUBGRADEREACTIONUNIT",
     D(1, 1, -2)},
    {"IfcModulusOfSubgradeReactionMeasure", "MODULUSOFSUBGRADEREACTIONUNIT", D(-2, 1, -2)},
    {"IfcMoistureDiffusivityMeasure", "MOISTUREDIFFUSIVITYUNIT", anyDimensions},
    {"IfcMolecularWeightMeasure", "MOLECULARWEIGHTUNIT", D(0, 1, 0, 0, 0, -1)},
    {"IfcMomentOfInertiaMeasure", "MOMENTOFINERTIAUNIT", D(4)},
    {"IfcNonNegativeLengthMeasure", "LENGTHUNIT", D(1)},
    {"IfcPHMeasure", "PHUNIT", anyDimensions},
    {"IfcPlanarForceMeasure", "PLANARFORCEUNIT", D(-1, 1, -2)},
    {"IfcPositiveLengthMeasure", "LENGTHUNIT", D(1)},
    {"IfcPositivePlaneAngleMeasure", "PLANEANGLEUNIT", D()},
    {"IfcPowerMeasure", "POWERUNIT", D(2, 1, -3)},
    {"IfcPressureMeasure", "PRESSUREUNIT", D(-1, 1, -2)},
    {"IfcRadioActivityMeasure", "RADIOACTIVITYUNIT", D(0, 0, -1)},
    {"IfcRotationalFrequencyMeasure", "ROTATIONALFREQUENCYUNIT", D(0, 0, -1)},
    {"IfcRotationalMassMeasure", "ROTATIONALMASSUNIT", D(2, 1)},
    {"IfcRotationalStiffnessMeasure", "ROTATIONALSTIFFNESSUNIT", D(2, 1, -2)},
    {"IfcSectionModulusMeasure", "SECTIONMODULUSUNIT", D(3)},
    {"IfcSectionalAreaIntegralMeasure", "SECTIONAREAINTEGRALUNIT", D(5)},
    {"IfcShearModulusMeasure", "SHEARMODULUSUNIT", D(-1, 1, -2)},
    {"IfcSolidAngleMeasure", "SOLIDANGLEUNIT", D()},
    {"IfcSoundPowerLevelMeasure", "SOUNDPOWERLEVELUNIT", anyDimensions},
    {"IfcSoundPowerMeasure", "SOUNDPOWERUNIT", anyDimensions},
    {"IfcSoundPressureLevelMeasure", "SOUNDPRESSURELEVELUNIT", anyDimensions},
    {"IfcSoundPressureMeasure", "SOUNDPRESSUREUNIT", anyDimensions},
    {"IfcSpecificHeatCapacityMeasure", "SPECIFICHEATCAPACITYUNIT", D(2, 0, -2, 0, -1)},
    {"IfcTemperatureGradientMeasure", "TEMPERATUREGRADIENTUNIT", D(-1, 0, 0, 0, 1)},
    {"IfcTemperatureRateOfChangeMeasure", "TEMPERATURERATEOFCHANGEUNIT", D(0, 0, -1, 0, 1)},
    {"IfcThermalAdmittanceMeasure", "THERMALADMITTANCEUNIT", D(0, 1, -3, 0, -1)},
    {"IfcThermalConductivityMeasure", "THERMALCONDUCTANCEUNIT", D(1, 1, -3, 0, -1)},
    {"IfcThermalExpansionCoefficientMeasure", "THERMALEXPANSIONCOEFFICIENTUNIT", D(0, 0, 0, 0, -1)},
    {"IfcThermalResistanceMeasure", "THERMALRESISTANCEUNIT", D(0, -1, 3, 0, 1)},
    {"IfcThermalTransmittanceMeasure", "THERMALTRANSMITTANCEUNIT", D(0, 1, -3, 0, -1)},
    {"IfcTimeMeasure", "TIMEUNIT", D(0, 0, 1)},
    {"IfcTorqueMeasure", "TORQUEUNIT", D(2, 1, -2)},
    {"IfcVaporPermeabilityMeasure", "VAPORPERMEABILITYUNIT", anyDimensions},
    {"IfcVolumeMeasure", "VOLUMEUNIT", D(3)},
    {"IfcVolumetricFlowRateMeasure", "VOLUMETRICFLOWRATEUNIT", D(3, 0, -1)},
    {"IfcWarpingConstantMeasure", "WARPINGCONSTANTUNIT", D(6)},
    {"IfcWarpingMomentMeasure", "WARPINGMOMENTUNIT", D(3, 1, -2)},
};

/// Numbers whose declared type doesn't tell what they measure.
struct Exception {
  std::string_view className;
  std::string_view attribute;
  MeasureId measure;
};

constexpr Exception exceptions[] = {
    // "In model units": a length.
    {"IfcGeometricRepresentationContext", "Precision", measure::length},
    // The parameter has no unit, the curve is in lengths.
    {"IfcPolynomialCurve", "CoefficientsX", measure::length},
    {"IfcPolynomialCurve", "CoefficientsY", measure::length},
    {"IfcPolynomialCurve", "CoefficientsZ", measure::length},
    // Multiplied by a distance, and by its square, they are numbers.
    {"IfcLightSourcePositional", "DistanceAttenuation", measure::inverseLength},
    {"IfcLightSourcePositional", "QuadricAttenuation", measure::inverseSquareLength},
    // By how much it gets warmer.
    {"IfcStructuralLoadTemperature", "DeltaTConstant", measure::temperatureDifference},
    {"IfcStructuralLoadTemperature", "DeltaTY", measure::temperatureDifference},
    {"IfcStructuralLoadTemperature", "DeltaTZ", measure::temperatureDifference},
};

std::string upper(std::string_view name) {
  std::string text(name);
  std::transform(text.begin(), text.end(), text.begin(), [](char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  });
  return text;
}

bool isOneOf(const fc::ClassInfo& info, const fc::ClassInfo& base) {
  return base.contains(info.classId);
}

}  // namespace

std::span<const Measure> measures() { return measureTable; }

MeasureId measureOfType(std::string_view upperName) {
  static const std::map<std::string, MeasureId, std::less<>> byName = [] {
    std::map<std::string, MeasureId, std::less<>> ids;
    for (std::size_t i = 0; i < std::size(measureTable); ++i)
      if (!measureTable[i].type.empty())
        ids.emplace(upper(measureTable[i].type), static_cast<MeasureId>(i));
    return ids;
  }();
  const auto found = byName.find(upperName);
  return found == byName.end() ? measure::none : found->second;
}

MeasureId measureOfAttribute(const fc::ClassInfo& info, const fc::AttributeInfo& attribute) {
  const UnitRole role = unitRoleOf(info);
  if (role == UnitRole::unit || isOneOf(info, FcPhysicalSimpleQuantity::info()) ||
      isOneOf(info, FcCoordinateOperation::info()))
    return measure::none;
  const fc::ClassInfo* declaring = info.declaringClass(attribute.name);
  for (const Exception& exception : exceptions)
    if (declaring && exception.className == declaring->name.view() &&
        exception.attribute == attribute.name)
      return exception.measure;
  if (!attribute.type->select) return measureOfType(upper(attribute.typeName));
  const bool isConvertedLater = role == UnitRole::ownUnit || role == UnitRole::sharedUnit;
  return attribute.type->entitiesOnly || isConvertedLater ? measure::none : measure::byType;
}

}  // namespace qor::host::step
