#include "Host/StepFile/AttributeReader.h"

#include <fmt/core.h>

#include <algorithm>
#include <string>

#include "Fc/Core/Kernel/FcRoot.h"
#include "Fc/Reflection/LocalValue.h"
#include "Fc/Reflection/TypeOperations.h"
#include "Host/StepFile/DerivedGuid.h"
#include "Host/StepFile/OlderSchemas.h"

namespace qor::host::step {

namespace {

// Stores the last enumerator where the enumeration has none of this name.
const fc::LocalValue notDefined{std::string("NOTDEFINED")};

}  // namespace

AttributeReader::AttributeReader(InstanceCollector& collected, SchemaMap& schema, ProblemLog& log)
    : m_collected(collected),
      m_schema(schema),
      m_source(collected.instances(), collected.wrappers(), log, schema.version()) {
  // A NUMBER up to IFC4.
  if (schema.version() < SchemaVersion::ifc4x3) m_source.setIntegralType("IFCCOUNTMEASURE");
}

void AttributeReader::read(std::size_t position, const FileClass& fileClass) {
  const NumberedEntity& instance = m_collected.instances()[position];
  const InstanceCollector::Parameters parameters = m_collected.parameters(position);
  fc::FcBase& entity = *instance.entity;

  for (const fc::AttributeInfo* enumeration : fileClass.enumerations)
    enumeration->type->setLocalValue(enumeration->of(entity), notDefined);
  for (const auto& [attribute, value] : fileClass.fixed)
    attribute->type->setLocalValue(attribute->of(entity), value);
  m_source.start(parameters.text, {parameters.offset, instance.number, fileClass.upperName},
                 parameters.isMended);
  readAttributes(entity, fileClass);
  if (fileClass.isRoot) mendGuid(entity, instance.number);
  if (fileClass.older) complete(entity, fileClass);
  if (fileClass.info->linksTargets) entity.updateInverseAttributes();
}

void AttributeReader::complete(fc::FcBase& entity, const FileClass& fileClass) {
  const OlderClass& older = *fileClass.older;
  if (older.complete) {
    // Those at the end may be missing in the file.
    m_kept.resize(static_cast<std::size_t>(
        std::ranges::count(fileClass.attributes, Conversion::keep, &FileAttribute::conversion)));
    older.complete(entity, m_kept);
  }
  m_kept.clear();
  if (!older.note.empty())
    m_source.report(ProblemKind::takenAs, [&older] { return std::string(older.note); });
}

void AttributeReader::readAttributes(fc::FcBase& entity, const FileClass& fileClass) {
  const std::size_t expected = fileClass.attributes.size();
  std::size_t found = 0;
  m_source.openList();
  while (m_source.more()) {
    if (found < expected) {
      m_source.setAttribute(fileClass.attributes[found], found + 1);
      readAttribute(entity, fileClass.attributes[found]);
    } else {
      m_source.skip();
    }
    ++found;
  }
  const bool isMissing =
      found < expected && !fileClass.older && m_schema.version() >= SchemaVersion::ifc4x3;
  if (m_source.finish() && (found > expected || isMissing)) reportCount(entity, found, expected);
}

void AttributeReader::readAttribute(fc::FcBase& entity, const FileAttribute& attribute) {
  const Kind kind = m_source.next();
  if (attribute.conversion == Conversion::keep) return keep(kind);
  if (kind == Kind::null || kind == Kind::derived) {
    if (kind == Kind::null && attribute.mandatory && !attribute.isGuid)
      m_source.report(ProblemKind::missingValue,
                      [] { return "has no value, though it must have one."; });
    m_source.skip();
  } else if (attribute.attribute) {
    const bool isRead = attribute.attribute->type->read(attribute.attribute->of(entity), m_source);
    if (!isRead && attribute.isGuid) m_badGuid = m_source.lastValue();
  } else if (attribute.list && kind == Kind::entity) {
    if (const auto* target = m_source.takeEntity())
      attribute.list->type->setLocalValue(
          attribute.list->of(entity), fc::LocalValue(fc::LocalValue::List{
                                          fc::LocalValue(std::shared_ptr<fc::FcBase>(*target))}));
  } else {
    leaveOut(attribute);
  }
}

void AttributeReader::mendGuid(fc::FcBase& entity, std::uint64_t number) {
  auto& root = static_cast<fc::core::kernel::FcRoot&>(entity);
  if (!root.GlobalId().isNull()) return;
  const std::string text(std::exchange(m_badGuid, {}));
  const Guid guid = guidOfText(text.empty() ? fmt::format("#{}", number) : text);
  root.setGuid(guid);
  m_replacedGuids.push_back({number, text, guid});
  static const FileAttribute globalId{"GlobalId"};
  m_source.setAttribute(globalId, 1);
  m_source.report(ProblemKind::badGuid, [&] {
    const std::string found =
        text.empty() ? "has no value"
                     : fmt::format("is '{}', which is no guid", ProblemLog::quote(text));
    return fmt::format("{}; {} stands for it.", found, guid.toString(false));
  });
}

void AttributeReader::keep(Kind kind) {
  std::optional<double>& number = m_kept.emplace_back();
  double value = 0;
  if (kind != Kind::real && kind != Kind::integer) return m_source.skip();
  if (m_source.takeReal(value)) number = value;
}

void AttributeReader::leaveOut(const FileAttribute& attribute) {
  m_source.report(attribute.derived ? ProblemKind::derivedValue : ProblemKind::noPlace, [&] {
    return fmt::format(
        "is {}; {}: left out.", m_source.quoteNext(),
        attribute.derived ? "its class derives it" : "the model has no place for it");
  });
  m_source.skip();
}

void AttributeReader::reportCount(const fc::FcBase& entity, std::size_t found,
                                  std::size_t expected) {
  m_source.report(ProblemKind::attributeCount, [&] {
    return fmt::format(
        "has {} attributes, where {} has {}; {}", found, entity.ifcName(), expected,
        found > expected ? "those behind were left out." : "those that are missing have no value.");
  });
}

}  // namespace qor::host::step
