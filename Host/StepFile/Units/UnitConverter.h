#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "Fc/Data.h"
#include "Host/StepFile/Units/FileUnit.h"
#include "Host/StepFile/Units/MapUnits.h"
#include "Host/StepFile/Units/ModelUnits.h"
#include "Host/StepFile/Units/OwnUnits.h"
#include "Host/StepFile/Units/SiUnits.h"
#include "Host/StepFile/Units/UnitReport.h"
#include "Host/StepFile/Units/UnitRole.h"
#include "Host/StepFile/Units/UnitSizes.h"

namespace qor::host::step {

/// Makes a model SI while it is read: metres, square metres, radians, kilograms, kelvins, and all
/// that is derived from them.
///
/// The instances that say what the units are come first; `start`. Measures are converted as they
/// are read, by `units()`; what depends on more than an attribute's type is handed over to
/// `convert`, and done at once or in `finish`.
class UnitConverter {
 public:
  explicit UnitConverter(UnitReport report);

  /// An instance of `UnitRole::unit` that has been read, in the order of the file.
  void add(std::uint64_t number, const std::shared_ptr<fc::FcBase>& entity);
  /// All of them are read.
  void start();

  const ModelUnits& units() const { return m_model; }
  /// An entity of another role than none and unit that has been read.
  void convert(UnitRole role, const std::shared_ptr<fc::FcBase>& entity);
  /// All entities are read: the last conversions, and `data` says that it is SI.
  void finish(fc::Data& data);

  std::vector<FileUnit> release() { return m_model.release(); }

 private:
  void convertParameters();

  using Assignment = std::shared_ptr<fc::resource::measure::FcUnitAssignment>;
  struct Numbered {
    std::uint64_t number;
    Assignment assignment;
  };

  UnitReport m_report;
  UnitSizes m_sizes;
  SiUnits m_siUnits;
  ModelUnits m_model;
  OwnUnits m_own;
  MapUnits m_maps;
  std::vector<Numbered> m_assignments;
  Assignment m_ofProject;
  std::vector<std::shared_ptr<fc::FcBase>> m_shared;
  std::vector<std::shared_ptr<fc::FcBase>> m_parameters;
};

}  // namespace qor::host::step
