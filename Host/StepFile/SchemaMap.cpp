#include "Host/StepFile/SchemaMap.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <unordered_map>
#include <utility>

#include "Fc/Factory.h"
#include "Fc/Reflection/ValueTraits.h"
#include "Host/StepFile/NumberMap.h"
#include "Host/StepFile/OlderSchemas.h"
#include "Qor/DateTime/DateTimeFormat.h"
#include "Qor/String/IgnoreCase.h"

namespace qor::host::step {

namespace {

// Eight bytes a step; the last eight overlap the ones before. Names are 7 to 50 characters long.
std::uint64_t hashOf(std::string_view name) {
  constexpr std::uint64_t spread = 0x9E3779B97F4A7C15ULL;
  std::uint64_t hash = name.size();
  std::uint64_t bytes = 0;
  const auto add = [&hash, &bytes] {
    hash = (hash ^ bytes) * spread;
    hash ^= hash >> 32;
  };
  if (name.size() < sizeof bytes) {
    std::memcpy(&bytes, name.data(), name.size());
    add();
    return hash;
  }
  for (std::size_t i = 0; i + sizeof bytes < name.size(); i += sizeof bytes) {
    std::memcpy(&bytes, name.data() + i, sizeof bytes);
    add();
  }
  std::memcpy(&bytes, name.data() + name.size() - sizeof bytes, sizeof bytes);
  add();
  return hash;
}

const fc::ClassInfo* classNamed(std::string_view name) {
  return fc::Factory::find(StringHash::of(name));
}

bool isMandatoryEnumeration(const fc::AttributeInfo& attribute) {
  return !attribute.optional && attribute.type->family == fc::TypeFamily::enumeration;
}

bool isText(const fc::AttributeInfo& attribute) {
  using Text = std::string;
  const fc::TypeOperations* type = attribute.type;
  return type == &fc::operationsOf<Text> || type == &fc::operationsOf<std::optional<Text>> ||
         type == &fc::operationsOf<std::vector<Text>> ||
         type == &fc::operationsOf<std::optional<std::vector<Text>>>;
}

Conversion conversionOf(const fc::AttributeInfo& attribute, bool isCurrent) {
  if (isText(attribute)) return Conversion::mendText;
  return !isCurrent && attribute.typeName == "IfcPresentationStyle" ? Conversion::unwrap
                                                                    : Conversion::none;
}

FileAttribute currentAttribute(const fc::ClassInfo& info, const fc::AttributeInfo& attribute,
                               bool isCurrent) {
  const bool derived = info.isDerived(attribute.name);
  const bool mandatory = isCurrent && !attribute.optional && !derived;
  return {attribute.name, derived ? nullptr : &attribute, mandatory, derived,
          conversionOf(attribute, isCurrent)};
}

/// One attribute of a row of the table of older classes; see there.
FileAttribute olderAttribute(const fc::ClassInfo& info, std::string_view item) {
  if (item.front() == '-') return {item.substr(1)};
  FileAttribute result;
  const std::size_t nameEnd = item.find_first_of(":'%");
  result.name = item.substr(0, nameEnd);
  result.attribute = info.findAttribute(result.name);
  if (nameEnd == std::string_view::npos) return currentAttribute(info, *result.attribute, false);
  switch (item[nameEnd]) {
    case ':':
      result.conversion = Conversion::toType;
      result.type = item.substr(nameEnd + 1);
      break;
    case '\'':
      result.conversion = Conversion::toText;
      break;
    default:
      result.conversion = Conversion::toInteger;
  }
  return result;
}

std::vector<FileAttribute> olderAttributes(const fc::ClassInfo& info, std::string_view items) {
  std::vector<FileAttribute> result;
  while (!items.empty()) {
    const std::string_view item = items.substr(0, items.find(' '));
    items.remove_prefix(std::min(items.size(), item.size() + 1));
    if (item.front() == '@') {
      classNamed(item.substr(1))->forEachAttribute([&](const fc::AttributeInfo& attribute) {
        result.push_back(currentAttribute(info, attribute, false));
      });
    } else {
      result.push_back(olderAttribute(info, item));
    }
  }
  return result;
}

}  // namespace

/// The class names of one schema's files: made once for all files.
class SchemaMap::Names {
 public:
  struct Entry {
    std::string_view upperName;
    const fc::ClassInfo* info;
    const OlderClass* older;
  };

  static const Names& of(SchemaVersion version) {
    static const Names ifc2x3(SchemaVersion::ifc2x3);
    static const Names ifc4(SchemaVersion::ifc4);
    static const Names candidate(SchemaVersion::ifc4x3Candidate);
    static const Names current(SchemaVersion::ifc4x3);
    switch (version) {
      case SchemaVersion::ifc2x3:
        return ifc2x3;
      case SchemaVersion::ifc4:
        return ifc4;
      case SchemaVersion::ifc4x3Candidate:
        return candidate;
      case SchemaVersion::ifc4x3:
        break;
    }
    return current;
  }

  const std::vector<Entry>& entries() const { return m_entries; }

  std::optional<std::size_t> find(std::string_view upperName) const {
    const std::uint32_t position = m_positions.find(hashOf(upperName));
    if (position == NumberMap::none || m_entries[position].upperName != upperName)
      return std::nullopt;
    return position;
  }

 private:
  explicit Names(SchemaVersion version) {
    for (const OlderClass& older : olderClasses()) {
      if (!(older.versions & static_cast<std::uint8_t>(version))) continue;
      add({older.upperName, older.becomes == unwrapped ? nullptr : classNamed(older.becomes),
           &older});
    }
    for (const fc::ClassInfo* info : fc::Factory::classes()) {
      if (!info->isAbstract()) add({info->upperName.view(), info, nullptr});
    }
  }

  // The first of a name stays: rows of the older schema come before the classes of the model.
  void add(const Entry& entry) {
    if (m_positions.insert(hashOf(entry.upperName), static_cast<std::uint32_t>(m_entries.size())))
      m_entries.push_back(entry);
  }

  std::vector<Entry> m_entries;
  NumberMap m_positions;
};

std::optional<SchemaVersion> schemaVersionFromName(std::string_view name) {
  const auto startsWith = [name](std::string_view start) {
    return name.size() >= start.size() && equalsIgnoreCase(name.substr(0, start.size()), start);
  };
  if (startsWith("IFC2X3") || startsWith("IFC2X2")) return SchemaVersion::ifc2x3;
  if (startsWith("IFC4X3_RC")) return SchemaVersion::ifc4x3Candidate;
  if (startsWith("IFC4X3")) return SchemaVersion::ifc4x3;
  if (startsWith("IFC4")) return SchemaVersion::ifc4;
  return std::nullopt;
}

int dateFormOfType(std::string_view upperName) {
  if (upperName == "IFCDATE") return DateTimeFormat::isoDate;
  return upperName == "IFCDATETIME" ? DateTimeFormat::isoDateTime : 0;
}

SchemaMap::SchemaMap(SchemaVersion version)
    : m_version(version), m_names(Names::of(version)), m_classes(m_names.entries().size()) {}

std::optional<std::size_t> SchemaMap::find(std::string_view upperName) const {
  return m_names.find(upperName);
}

const fc::ClassInfo* SchemaMap::info(std::size_t position) const {
  return m_names.entries()[position].info;
}

const FileClass& SchemaMap::operator[](std::size_t position) {
  std::unique_ptr<const FileClass>& known = m_classes[position];
  if (!known) known = std::make_unique<const FileClass>(make(position));
  return *known;
}

FileClass SchemaMap::make(std::size_t position) const {
  const Names::Entry& entry = m_names.entries()[position];
  FileClass result{entry.upperName, entry.info};
  if (!entry.info) return result;
  const fc::ClassInfo& info = *entry.info;
  const bool isMapped = entry.older && !entry.older->attributes.empty();
  if (isMapped) result.attributes = olderAttributes(info, entry.older->attributes);
  info.forEachAttribute([&](const fc::AttributeInfo& attribute) {
    if (!isMapped) result.attributes.push_back(currentAttribute(info, attribute, isCurrent()));
    if (isMandatoryEnumeration(attribute)) result.enumerations.push_back(&attribute);
  });
  for (FileAttribute& attribute : result.attributes) {
    if (!attribute.attribute) continue;
    attribute.measure = measureOfAttribute(info, *attribute.attribute);
    if (attribute.attribute->typeName == "IfcDate") attribute.dateForm = DateTimeFormat::isoDate;
    if (attribute.attribute->typeName == "IfcDateTime")
      attribute.dateForm = DateTimeFormat::isoDateTime;
  }
  result.unitRole = unitRoleOf(info);
  return result;
}

}  // namespace qor::host::step
