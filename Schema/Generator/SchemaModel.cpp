#include "Schema/Generator/SchemaModel.h"

#include <algorithm>
#include <cctype>
#include <stdexcept>

namespace qor::schema {

namespace {

// Coordinates and ratios of the two classes that a model has most of stand in place instead of in a
// list.
bool isCountedTriple(const Entity& owner, const Attribute& attribute) {
  return (owner.name == "IfcCartesianPoint" && attribute.name == "Coordinates") ||
         (owner.name == "IfcDirection" && attribute.name == "DirectionRatios");
}

std::string basicClass(const std::string& name) {
  if (name == "REAL" || name == "NUMBER") return "double";
  if (name == "INTEGER") return "std::int64_t";
  if (name == "STRING") return "std::string";
  if (name == "BOOLEAN") return "bool";
  if (name == "LOGICAL") return "LogicalValue";
  if (name == "BINARY") return "std::vector<std::uint8_t>";
  throw std::runtime_error("unknown basic type " + name);
}

bool isSingle(const InverseAttribute& inverse) {
  return !inverse.aggregate || (inverse.aggregate->upper && *inverse.aggregate->upper == 1);
}

}  // namespace

std::string upperName(std::string_view ifcName) {
  std::string result(ifcName);
  std::transform(result.begin(), result.end(), result.begin(),
                 [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return result;
}

SchemaModel::SchemaModel(SchemaTable table, std::set<std::string> handWritten)
    : m_table(std::move(table)), m_handWritten(std::move(handWritten)) {
  for (const Entity& entity : m_table.entities) {
    m_entities.emplace(entity.name, &entity);
    m_subclasses[entity.supertype].push_back(&entity);
  }
  for (const DefinedType& type : m_table.definedTypes) m_definedTypes.emplace(type.name, &type);
  for (const Enumeration& enumeration : m_table.enumerations)
    m_enumerations.emplace(enumeration.name, &enumeration);
  for (const Select& select : m_table.selects) m_selects.emplace(select.name, &select);
  for (const std::string& name : m_handWritten)
    if (!m_entities.contains(name) && !m_selects.contains(name))
      throw std::runtime_error("hand-written class " + name + " is none of the schema");

  std::uint32_t next = 1;
  for (const Entity* root : m_subclasses[""]) number(*root, next);
  for (const Entity* entity : m_byId)
    for (std::size_t i = 0; i < entity->inverses.size(); ++i) {
      const InverseAttribute& inverse = entity->inverses[i];
      m_links[{inverse.entity, inverse.forward}].push_back({entity, i, isSingle(inverse)});
    }

  std::set<std::string> names;
  for (const Entity& entity : m_table.entities) {
    for (const Attribute& attribute : entity.attributes) names.insert(attribute.name);
    for (const InverseAttribute& inverse : entity.inverses) names.insert(inverse.name);
  }
  m_attributeNames.assign(names.begin(), names.end());
}

void SchemaModel::number(const Entity& entity, std::uint32_t& next) {
  const std::uint32_t first = next++;
  m_byId.push_back(&entity);
  for (const Entity* subclass : m_subclasses[entity.name]) number(*subclass, next);
  m_ids[entity.name] = {first, next - 1};
}

ElementKind SchemaModel::kind(const std::string& name) const {
  if (m_entities.contains(name)) return ElementKind::entity;
  if (m_enumerations.contains(name)) return ElementKind::enumeration;
  if (m_selects.contains(name)) return ElementKind::select;
  if (m_definedTypes.contains(name)) return ElementKind::definedType;
  return ElementKind::basic;
}

const Group& SchemaModel::group(const std::string& name) const {
  switch (kind(name)) {
    case ElementKind::entity:
      return groupNamed(m_entities.at(name)->group);
    case ElementKind::enumeration:
      return groupNamed(m_enumerations.at(name)->group);
    case ElementKind::select:
      return groupNamed(m_selects.at(name)->group);
    case ElementKind::definedType:
      return groupNamed(m_definedTypes.at(name)->group);
    case ElementKind::basic:
      break;
  }
  throw std::runtime_error(name + " has no group");
}

std::string SchemaModel::className(const std::string& name, const Group& from) const {
  const Group& own = group(name);
  return own.name == from.name ? fcName(name) : std::string(own.name) + "::" + fcName(name);
}

std::string SchemaModel::basicType(const std::string& name) const {
  const auto found = m_definedTypes.find(name);
  if (found == m_definedTypes.end()) return kind(name) == ElementKind::basic ? name : "";
  return found->second->underlying.aggregates.empty() ? basicType(found->second->underlying.name)
                                                      : "";
}

std::string SchemaModel::elementType(const std::string& name, const Group& from) const {
  switch (kind(name)) {
    case ElementKind::basic:
      return basicClass(name);
    case ElementKind::entity:
      return "std::shared_ptr<" + className(name, from) + ">";
    case ElementKind::definedType: {
      if (name == "IfcGloballyUniqueId") return "Guid";
      const std::string basic = basicType(name);
      const bool isNumber = basic == "REAL" || basic == "INTEGER" || basic == "NUMBER";
      return basic.empty() || isNumber ? className(name, from) : basicClass(basic);
    }
    case ElementKind::enumeration:
    case ElementKind::select:
      return className(name, from);
  }
  return {};
}

std::string SchemaModel::aggregated(std::string element, const std::vector<Aggregate>& aggregates,
                                    bool tuples) const {
  for (auto level = aggregates.rbegin(); level != aggregates.rend(); ++level) {
    const bool innermost = level == aggregates.rbegin();
    const int first = level->kind == Aggregate::Kind::array ? level->lower - 1 : 0;
    const bool fixed =
        level->upper && (level->kind == Aggregate::Kind::array || *level->upper == level->lower);
    if (innermost && tuples && fixed)
      element = "std::array<" + element + ", " + std::to_string(*level->upper - first) + ">";
    else
      element = "std::vector<" + element + ">";
  }
  return element;
}

std::string SchemaModel::memberType(const Entity& owner, const Attribute& attribute) const {
  const Group& from = groupNamed(owner.group);
  std::string element = elementType(attribute.type.name, from);
  if (isCountedTriple(owner, attribute)) return "CountedTriple<" + element + ">";
  const bool numbers = kind(attribute.type.name) == ElementKind::definedType &&
                       !basicType(attribute.type.name).empty() &&
                       basicType(attribute.type.name) != "STRING";
  const std::string type = aggregated(std::move(element), attribute.type.aggregates, numbers);
  const ElementKind elementKind = kind(attribute.type.name);
  const bool hasOwnNull =
      attribute.type.aggregates.empty() &&
      (elementKind == ElementKind::entity || elementKind == ElementKind::select);
  return attribute.optional && !hasOwnNull ? "std::optional<" + type + ">" : type;
}

std::string SchemaModel::valueType(const DefinedType& type) const {
  if (type.name == "IfcGloballyUniqueId") return "Guid";
  const Group& from = groupNamed(type.group);
  const std::string basic = basicType(type.name);
  if (!basic.empty()) return basicClass(basic);
  const bool tuples = kind(type.underlying.name) == ElementKind::definedType;
  return aggregated(elementType(type.underlying.name, from), type.underlying.aggregates, tuples);
}

std::string SchemaModel::alternativeType(const std::string& member, const Group& from) const {
  return kind(member) == ElementKind::entity ? "std::shared_ptr<" + className(member, from) + ">"
                                             : className(member, from);
}

bool SchemaModel::isReferenceList(const Attribute& attribute) const {
  const ElementKind element = kind(attribute.type.name);
  return attribute.type.aggregates.size() == 1 &&
         (element == ElementKind::entity || element == ElementKind::select);
}

std::vector<SchemaModel::Link> SchemaModel::links(const Entity& owner,
                                                  const Attribute& attribute) const {
  const auto found = m_links.find({owner.name, attribute.name});
  return found == m_links.end() ? std::vector<Link>() : found->second;
}

std::size_t SchemaModel::nameIndex(const std::string& attribute) const {
  const auto place = std::lower_bound(m_attributeNames.begin(), m_attributeNames.end(), attribute);
  return static_cast<std::size_t>(place - m_attributeNames.begin());
}

bool SchemaModel::linksTargets(const Entity& entity) const {
  for (const Attribute& attribute : entity.attributes)
    if (!links(entity, attribute).empty()) return true;
  return !entity.supertype.empty() && linksTargets(*m_entities.at(entity.supertype));
}

bool SchemaModel::isNumericMeasure(const DefinedType& type) const {
  const std::string basic = basicType(type.name);
  if (basic != "REAL" && basic != "INTEGER" && basic != "NUMBER") return false;
  for (const char* name : {"IfcMeasureValue", "IfcDerivedMeasureValue"}) {
    const auto select = m_selects.find(name);
    if (select == m_selects.end()) continue;
    const auto& members = select->second->members;
    if (std::find(members.begin(), members.end(), type.name) != members.end()) return true;
  }
  return false;
}

bool SchemaModel::entitiesOnly(const Select& select) const {
  return std::all_of(
      select.members.begin(), select.members.end(), [this](const std::string& member) {
        return kind(member) == ElementKind::select ? entitiesOnly(*m_selects.at(member))
                                                   : kind(member) == ElementKind::entity;
      });
}

}  // namespace qor::schema
