#pragma once

#include <memory>
#include <optional>
#include <unordered_set>

#include "Fc/Resource/Representation/FcMapConversion.h"
#include "Fc/Resource/Representation/FcRigidOperation.h"
#include "Host/StepFile/Units/ModelUnits.h"
#include "Host/StepFile/Units/SiUnits.h"
#include "Host/StepFile/Units/UnitSizes.h"

namespace qor::host::step {

/// Converts the places of models on the earth, whose coordinates are in the unit of a map where
/// that names one, and the scale that leads from the one to the other.
class MapUnits {
 public:
  MapUnits(const ModelUnits& model, UnitSizes& sizes, SiUnits& siUnits);

  /// False when the entity is no coordinate operation.
  bool convert(fc::FcBase& entity);
  /// Lets the maps say SI. Several operations may share one.
  void finish();

 private:
  using Map = fc::resource::representation::FcCoordinateReferenceSystem;
  using NamedUnit = std::shared_ptr<fc::resource::measure::FcNamedUnit>;

  void convertMap(fc::resource::representation::FcMapConversion& operation);
  void convertRigid(fc::resource::representation::FcRigidOperation& operation);
  UnitConversion conversionOf(const NamedUnit& unit, MeasureId measure);
  NamedUnit siOf(const NamedUnit& unit);

  const ModelUnits& m_model;
  UnitSizes& m_sizes;
  SiUnits& m_siUnits;
  std::unordered_set<std::shared_ptr<Map>> m_maps;
};

}  // namespace qor::host::step
