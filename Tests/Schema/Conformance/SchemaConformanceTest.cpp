#include <gmock/gmock.h>

#include <algorithm>
#include <functional>
#include <map>
#include <sstream>

#include "Fc/Factory.h"
#include "Fc/FcBase.h"
#include "Fc/Reflection/SchemaTables.h"
#include "Schema/SchemaTable.h"
#include "Tests/Support/SharedModels.h"

// The library's tables are the committed one, which is compared with the EXPRESS text where it is
// imported.
namespace qor::fc {
namespace {

using schema::Aggregate;
using Texts = std::vector<std::string>;

/// "shared::buildingelements" of "Shared.Building Elements".
std::string namespaceOf(const std::string& groupPath) {
  std::string result;
  for (const char c : groupPath)
    if (c == '.')
      result += "::";
    else if (c != ' ')
      result += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return result;
}

Aggregate aggregateOf(const AggregateInfo& level) {
  const bool open = level.upper == AggregateInfo::unbounded;
  return {static_cast<Aggregate::Kind>(level.kind), static_cast<int>(level.lower),
          open ? std::nullopt : std::optional(static_cast<int>(level.upper))};
}

schema::Entity entityOf(const ClassInfo& info) {
  schema::Entity entity;
  entity.name = info.name.text;
  entity.group = namespaceOf(info.groupPath);
  entity.supertype = info.parent ? info.parent->name.text : "";
  entity.abstract = info.isAbstract();
  entity.derived.assign(info.derivedAttributes.begin(), info.derivedAttributes.end());
  for (const AttributeInfo& attribute : info.attributes) {
    auto& made = entity.attributes.emplace_back();
    made = {std::string(attribute.name), {{}, std::string(attribute.typeName)}, attribute.optional};
    for (const AggregateInfo& level : attribute.aggregates)
      made.type.aggregates.push_back(aggregateOf(level));
  }
  for (const AttributeInfo& inverse : info.inverseAttributes) {
    auto& made = entity.inverses.emplace_back();
    made = {
        std::string(inverse.name), {}, std::string(inverse.typeName), std::string(inverse.forward)};
    if (!inverse.aggregates.empty()) made.aggregate = aggregateOf(inverse.aggregates[0]);
  }
  return entity;
}

/// The committed table, without UNIQUE, which the library doesn't keep.
schema::SchemaTable committedTable() {
  std::istringstream in(qor::test::readFile(qor::test::sourceFile("Schema/ifc4x3_add2.schema")));
  schema::SchemaTable table = schema::readSchemaTable(in);
  for (schema::Entity& entity : table.entities)
    for (schema::Attribute& attribute : entity.attributes)
      for (Aggregate& level : attribute.type.aggregates) level.unique = false;
  return table;
}

const schema::SchemaTable& table() {
  static const schema::SchemaTable committed = committedTable();
  return committed;
}

TEST(SchemaConformance, ClassesHaveTheirGroupsSupertypesAndAttributesInOrder) {
  EXPECT_EQ(Factory::classes().size(), table().entities.size());
  for (const schema::Entity& entity : table().entities) {
    const ClassInfo* info = Factory::find(StringHash::of(entity.name));
    ASSERT_TRUE(info) << entity.name;
    EXPECT_TRUE(entityOf(*info) == entity) << entity.name;
    EXPECT_TRUE(std::string(info->groupPath).ends_with('.' + std::string(info->group)));
  }
}

TEST(SchemaConformance, ClassIdsNumberTheForestDepthFirstInTheOrderOfNames) {
  std::map<std::string, Texts> subclasses;
  for (const schema::Entity& entity : table().entities)
    subclasses[entity.supertype].push_back(entity.name);
  std::uint32_t last = 0;
  const std::function<void(const std::string&)> number = [&](const std::string& name) {
    const ClassInfo& info = *Factory::find(StringHash::of(name));
    EXPECT_EQ(info.classId, ++last) << name;
    EXPECT_EQ(Factory::classes()[last - 1], &info);
    for (const std::string& subclass : subclasses[name]) number(subclass);
    EXPECT_EQ(info.classIdLast, last) << name;
  };
  for (const std::string& root : subclasses[""]) number(root);
  EXPECT_EQ(last, 876U);
  EXPECT_EQ(Factory::find(StringHash::of("IfcWall"))->classId, 429U) << "what hosts may have kept";
}

TEST(SchemaConformance, EnumerationsHaveTheirEnumeratorsInOrder) {
  std::map<std::string, Texts> expected, found;
  for (const schema::Enumeration& one : table().enumerations) expected[one.name] = one.enumerators;
  for (const EnumInfo* info : SchemaTables::enumerations())
    found[std::string(info->name)] = Texts(info->names.begin(), info->names.end());
  EXPECT_EQ(found, expected);
}

TEST(SchemaConformance, SelectsHaveTheirAlternativesInAscendingOrder) {
  std::map<std::string, Texts> expected, found;
  for (schema::Select select : table().selects) {
    std::ranges::sort(select.members);
    expected[select.name] = select.members;
  }
  for (const SelectInfo* info : SchemaTables::selects())
    for (const AlternativeInfo& alternative : info->alternatives) {
      const std::string name(alternative.ifcName);
      found[std::string(info->name)].push_back(name);
      EXPECT_EQ("Ifc" + std::string(alternative.name), name);
      EXPECT_EQ(alternative.isEntity(), Factory::find(StringHash::of(name)) != nullptr) << name;
      EXPECT_EQ(alternative.nested != nullptr, expected.contains(name)) << name;
    }
  EXPECT_EQ(found, expected);
}

/// The kind of a value of this type, at the end of a chain of defined types.
std::size_t kindOf(const schema::TypeReference& type) {
  static const std::map<std::string, std::size_t> basic = {
      {"BOOLEAN", 2}, {"REAL", 3},    {"NUMBER", 3}, {"INTEGER", 4},
      {"STRING", 5},  {"LOGICAL", 6}, {"BINARY", 7}, {"IfcGloballyUniqueId", 8}};
  const bool isPair = type.aggregates.size() == 1 && type.aggregates[0].upper &&
                      ((type.name == "IfcParameterValue" && type.aggregates[0].lower == 2) ||
                       (type.name == "IfcLengthMeasure" && *type.aggregates[0].upper == 2));
  if (isPair) return 10;
  if (!type.aggregates.empty()) return 13;
  if (const auto found = basic.find(type.name); found != basic.end()) return found->second;
  if (std::ranges::count(table().enumerations, type.name, &schema::Enumeration::name) > 0) return 5;
  const auto found = std::ranges::find(table().definedTypes, type.name, &schema::DefinedType::name);
  return found == table().definedTypes.end() ? 1 : kindOf(found->underlying);
}

TEST(SchemaConformance, NewInstancesHoldValuesOfTheDeclaredKind) {
  for (const schema::Entity& owner : table().entities) {
    const ClassInfo& declaring = *Factory::find(StringHash::of(owner.name));
    for (std::uint32_t id = declaring.classId; id <= declaring.classIdLast; ++id) {
      const ClassInfo& info = *Factory::classes()[id - 1];
      if (info.isAbstract() || owner.attributes.empty()) continue;
      const auto entity = info.create();
      for (const schema::Attribute& declared : owner.attributes)
        EXPECT_EQ(entity->getLocalValue(object::PropertyId(declared.name)).index(),
                  declared.optional ? 1U : kindOf(declared.type))
            << info.name.text << '.' << declared.name;
    }
  }
}

}  // namespace
}  // namespace qor::fc
