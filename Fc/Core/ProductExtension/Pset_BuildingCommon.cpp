#include "Fc/Core/ProductExtension/Pset_BuildingCommon.h"

namespace qor::fc::core::productextension {

using namespace resource::measure;

void Pset_BuildingCommon::setReference(const std::string& value) {
  setValue("Reference", FcIdentifier(value));
}
void Pset_BuildingCommon::setBuildingID(const std::string& value) {
  setValue("BuildingID", FcIdentifier(value));
}
void Pset_BuildingCommon::setIsPermanentID(bool value) {
  setValue("IsPermanentID", FcBoolean(value));
}
void Pset_BuildingCommon::setConstructionMethod(const std::string& value) {
  setValue("ConstructionMethod", FcLabel(value));
}
void Pset_BuildingCommon::setFireProtectionClass(const std::string& value) {
  setValue("FireProtectionClass", FcLabel(value));
}
void Pset_BuildingCommon::setSprinklerProtection(bool value) {
  setValue("SprinklerProtection", FcBoolean(value));
}
void Pset_BuildingCommon::setSprinklerProtectionAutomatic(bool value) {
  setValue("SprinklerProtectionAutomatic", FcBoolean(value));
}
void Pset_BuildingCommon::setOccupancyType(const std::string& value) {
  setValue("OccupancyType", FcLabel(value));
}
void Pset_BuildingCommon::setGrossPlannedArea(double value) {
  setValue("GrossPlannedArea", FcAreaMeasure(value));
}
void Pset_BuildingCommon::setNetPlannedArea(double value) {
  setValue("NetPlannedArea", FcAreaMeasure(value));
}
void Pset_BuildingCommon::setNumberOfStoreys(std::int64_t value) {
  setValue("NumberOfStoreys", FcInteger(value));
}
void Pset_BuildingCommon::setYearOfConstruction(const std::string& value) {
  setValue("YearOfConstruction", FcLabel(value));
}
void Pset_BuildingCommon::setYearOfLastRefurbishment(const std::string& value) {
  setValue("YearOfLastRefurbishment", FcLabel(value));
}
void Pset_BuildingCommon::setIsLandmarked(bool value) {
  setValue("IsLandmarked", FcLogical(value ? LogicalValue::True : LogicalValue::False));
}

}  // namespace qor::fc::core::productextension
