#include "Host/StepFile/AttributeReader.h"

#include <fmt/core.h>

#include <string>

#include "Fc/Reflection/LocalValue.h"
#include "Fc/Reflection/TypeOperations.h"

namespace qor::host::step {

namespace {

using Kind = fc::ValueSource::Kind;

// Stores the last enumerator where the enumeration has none of this name.
const fc::LocalValue notDefined{std::string("NOTDEFINED")};

}  // namespace

AttributeReader::AttributeReader(InstanceCollector& collected, SchemaMap& schema, ProblemLog& log)
    : m_collected(collected),
      m_schema(schema),
      m_source(collected.instances(), collected.wrappers(), log) {
  // A NUMBER up to IFC4.
  if (!schema.isCurrent()) m_source.setIntegralType("IFCCOUNTMEASURE");
}

void AttributeReader::read(std::size_t position) {
  const NumberedEntity& instance = m_collected.instances()[position];
  const InstanceCollector::Parameters parameters = m_collected.parameters(position);
  const FileClass& fileClass = m_schema[parameters.fileClass];
  fc::FcBase& entity = *instance.entity;

  for (const fc::AttributeInfo* enumeration : fileClass.enumerations)
    enumeration->type->setLocalValue(enumeration->of(entity), notDefined);
  m_source.start(parameters.text, {parameters.offset, instance.number, fileClass.upperName},
                 parameters.isMended);
  readAttributes(entity, fileClass);
  if (fileClass.info->linksTargets) entity.updateInverseAttributes();
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
  const bool isMissing = found < expected && m_schema.isCurrent();
  if (m_source.finish() && (found > expected || isMissing)) reportCount(entity, found, expected);
}

void AttributeReader::readAttribute(fc::FcBase& entity, const FileAttribute& attribute) {
  const Kind kind = m_source.next();
  if (kind == Kind::null || kind == Kind::derived) {
    if (kind == Kind::null && attribute.mandatory)
      m_source.report(ProblemKind::missingValue,
                      [] { return "has no value, though it must have one."; });
    m_source.skip();
  } else if (attribute.attribute) {
    attribute.attribute->type->read(attribute.attribute->of(entity), m_source);
  } else {
    m_source.report(ProblemKind::noPlace, [&] {
      return fmt::format(
          "is {}; {}: left out.", m_source.quoteNext(),
          attribute.derived ? "its class derives it" : "the model has no place for it");
    });
    m_source.skip();
  }
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
