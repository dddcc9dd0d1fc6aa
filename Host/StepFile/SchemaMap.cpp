#include "Host/StepFile/SchemaMap.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <unordered_map>
#include <utility>

#include "Fc/Core/Kernel/FcRoot.h"
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

bool isIn(std::uint8_t versions, SchemaVersion version) {
  return (versions & static_cast<std::uint8_t>(version)) != 0;
}

bool hasOlderEnumerators(SchemaVersion version, std::string_view enumeration) {
  return std::ranges::any_of(olderEnumerators(), [&](const OlderEnumerator& row) {
    return isIn(row.versions, version) && row.enumeration == enumeration;
  });
}

Conversion conversionOf(const fc::AttributeInfo& attribute, SchemaVersion version) {
  if (isText(attribute)) return Conversion::mendText;
  if (version == SchemaVersion::ifc4x3Add2) return Conversion::none;
  if (attribute.typeName == "IfcPresentationStyle") return Conversion::unwrap;
  return attribute.type->enumeration && hasOlderEnumerators(version, attribute.typeName)
             ? Conversion::rename
             : Conversion::none;
}

FileAttribute currentAttribute(const fc::ClassInfo& info, const fc::AttributeInfo& attribute,
                               SchemaVersion version) {
  const bool isStrict = version >= SchemaVersion::ifc4x3;
  // Holds nothing of meaning in the model; older schemas had an enumeration in its place.
  const bool isStripped =
      version != SchemaVersion::ifc4x3Add2 && attribute.typeName == "IfcStrippedOptional";
  const bool derived = info.isDerived(attribute.name);
  const bool mandatory = isStrict && !attribute.optional && !derived;
  return {attribute.name, derived || isStripped ? nullptr : &attribute, mandatory, derived,
          conversionOf(attribute, version)};
}

/// One attribute of a row of the table of older classes; see there.
FileAttribute olderAttribute(const fc::ClassInfo& info, std::string_view item,
                             SchemaVersion version) {
  if (item.front() == '-') return {item.substr(1)};
  FileAttribute result;
  if (item.front() == '~') {
    result.name = item.substr(1);
    result.conversion = Conversion::keep;
    return result;
  }
  const std::size_t nameEnd = item.find_first_of(":'%[*");
  result.name = item.substr(0, nameEnd);
  result.attribute = info.findAttribute(result.name);
  if (nameEnd == std::string_view::npos) {
    result = currentAttribute(info, *result.attribute, version);
    result.mandatory = false;
    return result;
  }
  switch (item[nameEnd]) {
    case ':':
      result.conversion = Conversion::toType;
      result.type = item.substr(nameEnd + 1);
      break;
    case '\'':
      result.conversion = Conversion::toText;
      break;
    case '[':
      result.conversion = Conversion::toList;
      result.list = std::exchange(result.attribute, nullptr);
      break;
    case '*':
      result.conversion = Conversion::flatList;
      break;
    default:
      result.conversion = Conversion::toInteger;
  }
  return result;
}

void addOlderItem(FileClass& fileClass, std::string_view item, SchemaVersion version) {
  const fc::ClassInfo& info = *fileClass.info;
  if (item.front() == '@') {
    classNamed(item.substr(1))->forEachAttribute([&](const fc::AttributeInfo& attribute) {
      fileClass.attributes.push_back(currentAttribute(info, attribute, version));
    });
  } else if (const std::size_t sign = item.find('='); sign != std::string_view::npos) {
    fileClass.fixed.emplace_back(info.findAttribute(item.substr(0, sign)),
                                 std::string(item.substr(sign + 1)));
  } else {
    fileClass.attributes.push_back(olderAttribute(info, item, version));
  }
}

void addOlderItems(FileClass& fileClass, SchemaVersion version) {
  std::string_view items = fileClass.older->attributes;
  while (!items.empty()) {
    const std::string_view item = items.substr(0, items.find(' '));
    items.remove_prefix(std::min(items.size(), item.size() + 1));
    addOlderItem(fileClass, item, version);
  }
}

}  // namespace

/// The class names of one schema's files: made once for all files.
class SchemaMap::Names {
 public:
  struct Entry {
    std::string_view upperName;
    const fc::ClassInfo* info;
    const OlderClass* older;
    /// The position of the entry to ask when the condition of this one doesn't hold.
    std::size_t otherwise = 0;
  };

  static const Names& of(SchemaVersion version) {
    static const Names ifc2x(SchemaVersion::ifc2x);
    static const Names ifc2x3(SchemaVersion::ifc2x3);
    static const Names ifc4(SchemaVersion::ifc4);
    static const Names ifc4x1(SchemaVersion::ifc4x1);
    static const Names candidate(SchemaVersion::ifc4x3Candidate);
    static const Names ifc4x3(SchemaVersion::ifc4x3);
    static const Names current(SchemaVersion::ifc4x3Add2);
    switch (version) {
      case SchemaVersion::ifc2x:
        return ifc2x;
      case SchemaVersion::ifc2x3:
        return ifc2x3;
      case SchemaVersion::ifc4:
        return ifc4;
      case SchemaVersion::ifc4x1:
        return ifc4x1;
      case SchemaVersion::ifc4x3Candidate:
        return candidate;
      case SchemaVersion::ifc4x3:
        return ifc4x3;
      case SchemaVersion::ifc4x3Add2:
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
      if (!isIn(older.versions, version)) continue;
      const bool isClass = older.becomes != unwrapped && older.becomes != withoutPlace;
      add({older.upperName, isClass ? classNamed(older.becomes) : nullptr, &older});
    }
    for (const fc::ClassInfo* info : fc::Factory::classes()) {
      if (!info->isAbstract()) add({info->upperName.view(), info, nullptr});
    }
  }

  // The first of a name stays, and those behind it are reached from it where it has a condition:
  // rows of the older schema come before the classes of the model.
  void add(const Entry& entry) {
    const std::size_t position = m_entries.size();
    const std::uint64_t hash = hashOf(entry.upperName);
    if (!m_positions.insert(hash, static_cast<std::uint32_t>(position))) {
      Entry* last = &m_entries[m_positions.find(hash)];
      while (last->otherwise != 0) last = &m_entries[last->otherwise];
      if (!last->older || !last->older->when) return;
      last->otherwise = position;
    }
    m_entries.push_back(entry);
  }

  std::vector<Entry> m_entries;
  NumberMap m_positions;
};

std::optional<SchemaVersion> schemaVersionFromName(std::string_view name) {
  const auto startsWith = [name](std::string_view start) {
    return name.size() >= start.size() && equalsIgnoreCase(name.substr(0, start.size()), start);
  };
  if (startsWith("IFC2X3")) return SchemaVersion::ifc2x3;
  if (startsWith("IFC2X")) return SchemaVersion::ifc2x;
  if (startsWith("IFC4X3_RC")) return SchemaVersion::ifc4x3Candidate;
  if (startsWith("IFC4X3_ADD2")) return SchemaVersion::ifc4x3Add2;
  if (startsWith("IFC4X3")) return SchemaVersion::ifc4x3;
  if (startsWith("IFC4X1") || startsWith("IFC4X2")) return SchemaVersion::ifc4x1;
  if (startsWith("IFC4")) return SchemaVersion::ifc4;
  return std::nullopt;
}

std::string_view enumeratorInModel(SchemaVersion version, std::string_view enumeration,
                                   std::string_view name) {
  for (const OlderEnumerator& row : olderEnumerators())
    if (isIn(row.versions, version) && row.enumeration == enumeration && row.name == name)
      return row.becomes;
  return name;
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

std::size_t SchemaMap::variant(std::size_t position, std::string_view parameters) const {
  const std::vector<Names::Entry>& entries = m_names.entries();
  while (entries[position].otherwise != 0 && !entries[position].older->when(parameters))
    position = entries[position].otherwise;
  return position;
}

const fc::ClassInfo* SchemaMap::info(std::size_t position) const {
  return m_names.entries()[position].info;
}

bool SchemaMap::isWithoutPlace(std::size_t position) const {
  const OlderClass* older = m_names.entries()[position].older;
  return older && older->becomes == withoutPlace;
}

const FileClass& SchemaMap::operator[](std::size_t position) {
  std::unique_ptr<const FileClass>& known = m_classes[position];
  if (!known) known = std::make_unique<const FileClass>(make(position));
  return *known;
}

FileClass SchemaMap::make(std::size_t position) const {
  const Names::Entry& entry = m_names.entries()[position];
  FileClass result{entry.upperName, entry.info, entry.older};
  if (!entry.info) return result;
  const fc::ClassInfo& info = *entry.info;
  const bool isMapped = entry.older && !entry.older->attributes.empty();
  if (isMapped) addOlderItems(result, m_version);
  info.forEachAttribute([&](const fc::AttributeInfo& attribute) {
    if (!isMapped) result.attributes.push_back(currentAttribute(info, attribute, m_version));
    if (isMandatoryEnumeration(attribute)) result.enumerations.push_back(&attribute);
  });
  for (FileAttribute& attribute : result.attributes) {
    if (!attribute.attribute) continue;
    attribute.measure = measureOfAttribute(info, *attribute.attribute);
    attribute.isGuid = attribute.attribute->typeName == "IfcGloballyUniqueId";
    if (attribute.attribute->typeName == "IfcDate") attribute.dateForm = DateTimeFormat::isoDate;
    if (attribute.attribute->typeName == "IfcDateTime")
      attribute.dateForm = DateTimeFormat::isoDateTime;
  }
  result.unitRole = unitRoleOf(info);
  result.isRoot = fc::core::kernel::FcRoot::info().contains(info.classId);
  return result;
}

}  // namespace qor::host::step
