#pragma once

#include "Fc/Core/Kernel/PropertySetView.h"

namespace qor::fc::core::productextension {

/// The standard property set of buildings, found as "Pset_BuildingCommon". Areas in square metres.
class QOR_API Pset_BuildingCommon : public kernel::PropertySetView {
 public:
  using PropertySetView::PropertySetView;

  std::optional<std::string> Reference() const { return text("Reference"); }
  void setReference(const std::string& value);
  std::optional<std::string> BuildingID() const { return text("BuildingID"); }
  void setBuildingID(const std::string& value);
  std::optional<bool> IsPermanentID() const { return boolean("IsPermanentID"); }
  void setIsPermanentID(bool value);
  std::optional<std::string> ConstructionMethod() const { return text("ConstructionMethod"); }
  void setConstructionMethod(const std::string& value);
  std::optional<std::string> FireProtectionClass() const { return text("FireProtectionClass"); }
  void setFireProtectionClass(const std::string& value);
  std::optional<bool> SprinklerProtection() const { return boolean("SprinklerProtection"); }
  void setSprinklerProtection(bool value);
  std::optional<bool> SprinklerProtectionAutomatic() const {
    return boolean("SprinklerProtectionAutomatic");
  }
  void setSprinklerProtectionAutomatic(bool value);
  std::optional<std::string> OccupancyType() const { return text("OccupancyType"); }
  void setOccupancyType(const std::string& value);
  std::optional<double> GrossPlannedArea() const { return number("GrossPlannedArea"); }
  void setGrossPlannedArea(double value);
  std::optional<double> NetPlannedArea() const { return number("NetPlannedArea"); }
  void setNetPlannedArea(double value);
  std::optional<std::int64_t> NumberOfStoreys() const { return integer("NumberOfStoreys"); }
  void setNumberOfStoreys(std::int64_t value);
  std::optional<std::string> YearOfConstruction() const { return text("YearOfConstruction"); }
  void setYearOfConstruction(const std::string& value);
  std::optional<std::string> YearOfLastRefurbishment() const {
    return text("YearOfLastRefurbishment");
  }
  void setYearOfLastRefurbishment(const std::string& value);
  /// Empty for unknown.
  std::optional<bool> IsLandmarked() const { return boolean("IsLandmarked"); }
  void setIsLandmarked(bool value);
};

}  // namespace qor::fc::core::productextension
