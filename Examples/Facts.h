#pragma once

#include <memory>
#include <string>

#include "Examples/ModelBuilder.h"
#include "Fc/Core/Kernel/FcProject.h"
#include "Fc/Core/Kernel/FcPropertySet.h"
#include "Fc/Resource/Measure/FcDerivedUnit.h"
#include "Fc/Resource/Measure/FcSIUnitName.h"
#include "Fc/Resource/Measure/FcUnitAssignment.h"
#include "Fc/Resource/Measure/FcUnitEnum.h"
#include "Fc/Resource/Property/FcProperty.h"
#include "Fc/Shared/BuildingElements/FcWall.h"
#include "Fc/Shared/BuildingElements/FcWallType.h"

namespace sample {

/// What a model says besides shapes: units, properties, quantities, classification, materials.
class Facts {
 public:
  explicit Facts(ModelBuilder& model) : m_model(model) {}

  /// SI units, and one that is made of others: watt per square metre and kelvin.
  std::shared_ptr<fc::resource::measure::FcUnitAssignment> createUnits();

  void describeWalls();
  /// A type holds its sets itself. What an occurrence says in a set of the same name comes first.
  void describe(fc::shared::buildingelements::FcWallType& type);
  /// What a wall of that length and height measures, as quantities for those who only count.
  void measure(const std::shared_ptr<fc::shared::buildingelements::FcWall>& wall, double length,
               double height);
  /// The place of the walls in a classification that others read too.
  void classifyWalls();
  /// All elements of class `T` are of that material.
  template <class T>
  void setMaterial(const std::string& name) {
    associateMaterial(name, m_model.all<T, FcObjectDefinition>());
  }

 private:
  std::shared_ptr<fc::resource::measure::FcNamedUnit> createUnit(
      fc::resource::measure::FcUnitEnum type, fc::resource::measure::FcSIUnitName name);
  std::shared_ptr<fc::resource::measure::FcDerivedUnit> createTransmittanceUnit(
      std::shared_ptr<fc::resource::measure::FcNamedUnit> squareMetre);
  std::shared_ptr<fc::resource::property::FcProperty> createProperty(
      const std::string& name, fc::resource::measure::FcValue value);
  void associateMaterial(const std::string& name,
                         const std::vector<std::shared_ptr<FcObjectDefinition>>& elements);

  ModelBuilder& m_model;
};

}  // namespace sample
