#include "Fc/Domain/Electrical/Pset_ElectricalDeviceCommon.h"

#include "Fc/Core/Kernel/FcPropertySet.h"

namespace qor::fc::domain::electrical {

using namespace resource::measure;

void Pset_ElectricalDeviceCommon::setRatedCurrent(double value) {
  setValue("RatedCurrent", FcElectricCurrentMeasure(value));
}
void Pset_ElectricalDeviceCommon::setRatedVoltage(double value) {
  setValue("RatedVoltage", FcElectricVoltageMeasure(value));
}
void Pset_ElectricalDeviceCommon::setPowerFactor(double value) {
  setValue("PowerFactor", FcNormalisedRatioMeasure(value));
}
void Pset_ElectricalDeviceCommon::setNumberOfPoles(std::int64_t value) {
  setValue("NumberOfPoles", FcCountMeasure(value));
}
void Pset_ElectricalDeviceCommon::setHasProtectiveEarth(bool value) {
  setValue("HasProtectiveEarth", FcBoolean(value));
}
void Pset_ElectricalDeviceCommon::setInsulationStandardClass(const std::string& value) {
  setValue("InsulationStandardClass", FcLabel(value));
}
void Pset_ElectricalDeviceCommon::setIP_Code(const std::string& value) {
  setValue("IP_Code", FcLabel(value));
}
void Pset_ElectricalDeviceCommon::setIK_Code(const std::string& value) {
  setValue("IK_Code", FcLabel(value));
}
void Pset_ElectricalDeviceCommon::setPower(double value) {
  setValue("Power", FcPowerMeasure(value));
}
void Pset_ElectricalDeviceCommon::setHeatDissipation(double value) {
  setValue("HeatDissipation", FcPowerMeasure(value));
}
void Pset_ElectricalDeviceCommon::setNominalPowerConsumption(double value) {
  setValue("NominalPowerConsumption", FcPowerMeasure(value));
}
void Pset_ElectricalDeviceCommon::setNumberOfPowerSupplyPorts(std::int64_t value) {
  setValue("NumberOfPowerSupplyPorts", FcInteger(value));
}

}  // namespace qor::fc::domain::electrical

namespace qor::fc::core::kernel {

template <>
std::shared_ptr<domain::electrical::Pset_ElectricalDeviceCommon>
FcObjectDefinition::getPropertySetDefinitionNonConst(const std::string& name) const {
  auto set = getPropertySetDefinitionNonConst<FcPropertySet>(name);
  return set ? std::make_shared<domain::electrical::Pset_ElectricalDeviceCommon>(std::move(set))
             : nullptr;
}

}  // namespace qor::fc::core::kernel
