#include "Host/StepFile/StepReader.h"

#include <fmt/core.h>

#include <cstddef>
#include <optional>
#include <utility>

#include "Host/StepFile/AttributeReader.h"
#include "Host/StepFile/HeaderReader.h"
#include "Host/StepFile/InstanceCollector.h"
#include "Host/StepFile/Progress.h"
#include "Host/StepFile/SchemaMap.h"
#include "Qor/Platform/MappedFile.h"

namespace qor::host::step {

namespace {

constexpr std::string_view currentSchema = "IFC4X3_ADD2";

/// The schema that the header names; that of the model where it names none. Empty for one that
/// isn't read.
std::optional<SchemaVersion> schemaOf(const Header& header, ProblemLog& log) {
  if (!header.schemas.empty()) return schemaVersionFromName(header.schemas.front());
  log.add(ProblemKind::syntax, {0}, {},
          [] { return fmt::format("the header names no schema; read as {}.", currentSchema); });
  return SchemaVersion::ifc4x3;
}

void readInstances(std::string_view text, std::size_t begin, SchemaMap schema, ProblemLog& log,
                   const ReadOptions& options, ReadResult& result) {
  // The first pass takes about a third of the time of the second one.
  Progress progress(options.progress, text.size() * 4);
  InstanceCollector collected(text, schema, log, progress);
  if (!collected.run(text.data() + begin)) {
    result.failure = "it has no section DATA";
    return;
  }
  result.data = std::make_shared<fc::Data>();
  InstanceTable& instances = collected.instances();
  result.data->reserve(instances.size());
  for (std::size_t i = 0; i < instances.size(); ++i)
    result.data->entityAdd(instances[i].entity, false);

  AttributeReader attributes(collected, schema, log);
  for (std::size_t i = 0; i < instances.size(); ++i) {
    if (instances[i].entity) attributes.read(i);
    progress.advance(text.size() + text.size() * 3 / instances.size() * i);
  }
  if (options.keepNumbers) result.instances = instances.release();
}

}  // namespace

ReadResult readStep(std::string_view text, const ReadOptions& options) {
  ReadResult result;
  ProblemLog log(text);
  HeaderResult header = readHeader(text, log);
  result.header = std::move(header.header);
  result.failure = std::move(header.failure);
  if (!result.failure.empty()) return result;

  if (const auto version = schemaOf(result.header, log))
    readInstances(text, header.end, SchemaMap(*version), log, options, result);
  else
    result.failure = fmt::format("its schema {} is none of IFC",
                                 ProblemLog::quote(result.header.schemas.front()));
  result.problems = log.release();
  return result;
}

ReadResult readStepFile(const std::filesystem::path& path, const ReadOptions& options) {
  MappedFile file;
  if (std::string failure = file.open(path); !failure.empty()) {
    ReadResult result;
    result.failure = std::move(failure);
    return result;
  }
  return readStep(file.bytes(), options);
}

}  // namespace qor::host::step
