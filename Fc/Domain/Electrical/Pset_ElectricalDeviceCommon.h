#pragma once

#include "Fc/Core/Kernel/FcObjectDefinition.h"
#include "Fc/Core/Kernel/PropertySetView.h"

namespace qor::fc::domain::electrical {

/// The standard property set of electrical devices, found as "Pset_ElectricalDeviceCommon".
/// Amperes, volts and watts. Rated values that a file gives as a range aren't read here.
class QOR_API Pset_ElectricalDeviceCommon : public core::kernel::PropertySetView {
 public:
  using PropertySetView::PropertySetView;

  std::optional<double> RatedCurrent() const { return number("RatedCurrent"); }
  void setRatedCurrent(double value);
  std::optional<double> RatedVoltage() const { return number("RatedVoltage"); }
  void setRatedVoltage(double value);
  std::optional<double> PowerFactor() const { return number("PowerFactor"); }
  void setPowerFactor(double value);
  std::optional<std::int64_t> NumberOfPoles() const { return integer("NumberOfPoles"); }
  void setNumberOfPoles(std::int64_t value);
  std::optional<bool> HasProtectiveEarth() const { return boolean("HasProtectiveEarth"); }
  void setHasProtectiveEarth(bool value);
  std::optional<std::string> InsulationStandardClass() const {
    return text("InsulationStandardClass");
  }
  void setInsulationStandardClass(const std::string& value);
  std::optional<std::string> IP_Code() const { return text("IP_Code"); }
  void setIP_Code(const std::string& value);
  std::optional<std::string> IK_Code() const { return text("IK_Code"); }
  void setIK_Code(const std::string& value);
  std::optional<double> Power() const { return number("Power"); }
  void setPower(double value);
  std::optional<double> HeatDissipation() const { return number("HeatDissipation"); }
  void setHeatDissipation(double value);
  std::optional<double> NominalPowerConsumption() const {
    return number("NominalPowerConsumption");
  }
  void setNominalPowerConsumption(double value);
  std::optional<std::int64_t> NumberOfPowerSupplyPorts() const {
    return integer("NumberOfPowerSupplyPorts");
  }
  void setNumberOfPowerSupplyPorts(std::int64_t value);
};

}  // namespace qor::fc::domain::electrical

namespace qor::fc::core::kernel {

template <>
QOR_API std::shared_ptr<domain::electrical::Pset_ElectricalDeviceCommon>
FcObjectDefinition::getPropertySetDefinitionNonConst(const std::string& name) const;

}  // namespace qor::fc::core::kernel
