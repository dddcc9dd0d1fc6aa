#pragma once

#include <cstddef>

#include "Fc/FcBase.h"
#include "Host/StepFile/InstanceCollector.h"
#include "Host/StepFile/ParameterSource.h"
#include "Host/StepFile/ProblemLog.h"
#include "Host/StepFile/SchemaMap.h"

namespace qor::host::step {

/// The second of the two passes over a file: gives the entities their attributes, and their targets
/// the inverse ones.
class AttributeReader {
 public:
  AttributeReader(InstanceCollector& collected, SchemaMap& schema, ProblemLog& log);

  /// From now on numbers are converted to SI from these units; null to take them as they are. Must
  /// outlive this.
  void setUnits(const ModelUnits* units) { m_source.setUnits(units); }

  /// Reads the parameters of the instance at that position, which has an entity.
  void read(std::size_t position);

 private:
  void readAttributes(fc::FcBase& entity, const FileClass& fileClass);
  void readAttribute(fc::FcBase& entity, const FileAttribute& attribute);
  void reportCount(const fc::FcBase& entity, std::size_t found, std::size_t expected);

  InstanceCollector& m_collected;
  SchemaMap& m_schema;
  ParameterSource m_source;
};

}  // namespace qor::host::step
