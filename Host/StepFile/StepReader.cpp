#include "Host/StepFile/StepReader.h"

#include <fmt/core.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <unordered_map>
#include <utility>

#include "Fc/Core/Kernel/FcRoot.h"
#include "Host/StepFile/AttributeReader.h"
#include "Host/StepFile/HeaderReader.h"
#include "Host/StepFile/InstanceCollector.h"
#include "Host/StepFile/NumberMap.h"
#include "Host/StepFile/Progress.h"
#include "Host/StepFile/SchemaMap.h"
#include "Host/StepFile/Units/UnitConverter.h"
#include "Host/StepFile/Utf16.h"
#include "Host/StepFile/ZippedModel.h"
#include "Qor/Platform/MappedFile.h"

namespace qor::host::step {

namespace {

constexpr std::string_view currentSchema = "IFC4X3_ADD2";

/// The schema that the header names; that of the model where it names none. Empty for one that
/// isn't read.
std::optional<SchemaVersion> schemaOf(const Header& header, ProblemLog& log) {
  if (!header.schemas.empty()) {
    const std::string& name = header.schemas.front();
    const auto version = schemaVersionFromName(name);
    if (version == SchemaVersion::ifc2x)
      log.add(ProblemKind::takenAs, {0}, {}, [&] {
        return fmt::format("the schema {} is read as IFC2X3.", ProblemLog::quote(name));
      });
    return version;
  }
  log.add(ProblemKind::syntax, {0}, {},
          [] { return fmt::format("the header names no schema; read as {}.", currentSchema); });
  return SchemaVersion::ifc4x3Add2;
}

/// The second pass over a file: attributes, and units made SI on the way.
class ModelReader {
 public:
  ModelReader(InstanceCollector& collected, SchemaMap& schema, ProblemLog& log)
      : m_collected(collected),
        m_schema(schema),
        m_log(log),
        m_attributes(collected, schema, log),
        m_units([this](const fc::FcBase& entity, std::string_view attribute,
                       const std::string& detail) { report(entity, attribute, detail); }) {}

  void run(fc::Data& data, const ReadOptions& options, Progress& progress, std::size_t textSize) {
    InstanceTable& instances = m_collected.instances();
    readUnits();
    const bool convert = !options.keepUnits;
    if (convert && !m_units.units().isSi()) m_attributes.setUnits(&m_units.units());
    for (std::size_t i = 0; i < instances.size(); ++i) {
      if (instances[i].entity) read(i, convert);
      progress.advance(textSize + textSize * 3 / instances.size() * i);
    }
    if (convert) m_units.finish(data);
  }

  std::vector<FileUnit> releaseUnits() { return m_units.release(); }
  std::vector<ReplacedGuid> releaseReplacedGuids() { return m_attributes.releaseReplacedGuids(); }

 private:
  const FileClass& classOf(std::size_t position) {
    return m_schema[m_collected.fileClass(position)];
  }

  void readUnits() {
    InstanceTable& instances = m_collected.instances();
    for (std::size_t i = 0; i < instances.size(); ++i) {
      if (!instances[i].entity || classOf(i).unitRole != UnitRole::unit) continue;
      m_attributes.read(i, classOf(i));
      m_units.add(instances[i].number, instances[i].entity);
    }
    m_units.start();
  }

  void read(std::size_t position, bool convert) {
    const FileClass& fileClass = classOf(position);
    const UnitRole role = fileClass.unitRole;
    if (role == UnitRole::unit) return;
    m_attributes.read(position, fileClass);
    if (fileClass.isRoot) enterGuid(position);
    if (role != UnitRole::none && convert)
      m_units.convert(role, m_collected.instances()[position].entity);
  }

  void enterGuid(std::size_t position) {
    const Guid& guid = guidAt(position);
    if (m_guids.insert(guid.hash(), static_cast<std::uint32_t>(position))) return;
    const std::size_t first = m_guids.find(guid.hash());
    if (guidAt(first) != guid) return;
    const NumberedEntity& instance = m_collected.instances()[position];
    m_log.add(
        ProblemKind::duplicateGuid,
        {m_collected.parameters(position).offset, instance.number, instance.entity->ifcNameUpper()},
        "GlobalId", [&] {
          return fmt::format("has the GlobalId of #{}, {}; both are kept.",
                             m_collected.instances()[first].number, guid.toString(false));
        });
  }

  const Guid& guidAt(std::size_t position) {
    const fc::FcBase& entity = *m_collected.instances()[position].entity;
    return static_cast<const fc::core::kernel::FcRoot&>(entity).GlobalId();
  }

  void report(const fc::FcBase& entity, std::string_view attribute, const std::string& detail) {
    m_log.add(ProblemKind::unit, placeOf(entity), attribute, [&] { return detail; });
  }

  Place placeOf(const fc::FcBase& entity) {
    InstanceTable& instances = m_collected.instances();
    if (m_positions.empty())
      for (std::size_t i = 0; i < instances.size(); ++i)
        m_positions.emplace(instances[i].entity.get(), i);
    const auto found = m_positions.find(&entity);
    if (found == m_positions.end()) return {0, 0, entity.ifcNameUpper()};
    return {m_collected.parameters(found->second).offset, instances[found->second].number,
            entity.ifcNameUpper()};
  }

  InstanceCollector& m_collected;
  SchemaMap& m_schema;
  ProblemLog& m_log;
  AttributeReader m_attributes;
  UnitConverter m_units;
  /// The roots, by the hash of their guid.
  NumberMap m_guids;
  /// Filled when the first problem comes.
  std::unordered_map<const fc::FcBase*, std::size_t> m_positions;
};

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

  ModelReader reader(collected, schema, log);
  reader.run(*result.data, options, progress, text.size());
  result.units = reader.releaseUnits();
  result.replacedGuids = reader.releaseReplacedGuids();
  if (options.keepNumbers) result.instances = instances.release();
}

ReadResult readUtf8(std::string_view text, const ReadOptions& options) {
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
  const auto notes =
      std::stable_partition(result.problems.begin(), result.problems.end(),
                            [](const Problem& problem) { return !isNote(problem.kind); });
  result.notes.assign(std::make_move_iterator(notes),
                      std::make_move_iterator(result.problems.end()));
  result.problems.erase(notes, result.problems.end());
  return result;
}

ReadResult readText(std::string_view text, const ReadOptions& options) {
  const auto utf8 = utf8OfUtf16(text);
  if (!utf8) return readUtf8(text, options);
  ReadResult result = readUtf8(*utf8, options);
  result.problems.insert(
      result.problems.begin(),
      {ProblemKind::badText,
       {},
       {},
       1,
       0,
       1,
       "line 1: the file is UTF-16, where a STEP file has a byte a character; read all the same."});
  return result;
}

}  // namespace

ReadResult readStep(std::string_view text, const ReadOptions& options) {
  if (!isZip(text)) return readText(text, options);
  ZippedModel model = unzipModel(text, options.largestUnpacked);
  if (model.failure.empty()) return readText(model.text, options);
  ReadResult result;
  result.failure = std::move(model.failure);
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
