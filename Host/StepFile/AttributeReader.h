#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "Fc/FcBase.h"
#include "Host/StepFile/InstanceCollector.h"
#include "Host/StepFile/ParameterSource.h"
#include "Host/StepFile/ProblemLog.h"
#include "Host/StepFile/ReplacedGuid.h"
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

  /// The guids that were none.
  std::vector<ReplacedGuid> releaseReplacedGuids() { return std::move(m_replacedGuids); }

  /// Reads the parameters of the instance at that position, which has an entity of that class. A
  /// root has a guid then, whatever they say.
  void read(std::size_t position, const FileClass& fileClass);

 private:
  using Kind = fc::ValueSource::Kind;

  void readAttributes(fc::FcBase& entity, const FileClass& fileClass);
  void readAttribute(fc::FcBase& entity, const FileAttribute& attribute);
  void mendGuid(fc::FcBase& entity, std::uint64_t number);
  void keep(Kind kind);
  void leaveOut(const FileAttribute& attribute);
  void complete(fc::FcBase& entity, const FileClass& fileClass);
  void reportCount(const fc::FcBase& entity, std::size_t found, std::size_t expected);

  InstanceCollector& m_collected;
  SchemaMap& m_schema;
  ParameterSource m_source;
  /// Of the instance that is being read, for `OlderClass::complete`.
  std::vector<std::optional<double>> m_kept;
  /// What the instance that is being read has as its guid.
  std::string_view m_badGuid;
  std::vector<ReplacedGuid> m_replacedGuids;
};

}  // namespace qor::host::step
