#include <gmock/gmock.h>

#include <functional>
#include <set>

#include "Fc/Factory.h"
#include "Fc/FcBase.h"
#include "Fc/Reflection/SchemaTables.h"
#include "Tests/Schema/Conformance/ExpressText.h"
#include "Tests/Support/SharedModels.h"

namespace qor::fc {
namespace {

using schema::test::ExpressClass;
using schema::test::ExpressText;
using schema::test::Texts;

const ClassInfo& classNamed(const std::string& name) {
  return *Factory::find(StringHash::of(name));
}

// An attribute as the EXPRESS text declares it.
std::string declaration(const AttributeInfo& attribute) {
  static constexpr const char* kinds[] = {"LIST", "SET", "ARRAY", "BAG"};
  std::string text = std::string(attribute.name) + (attribute.optional ? ":OPTIONAL " : ":");
  for (const AggregateInfo& level : attribute.aggregates) {
    const bool open = level.upper == AggregateInfo::unbounded;
    text += std::string(kinds[static_cast<int>(level.kind)]) + '[' + std::to_string(level.lower) +
            ':' + (open ? "?" : std::to_string(level.upper)) + "]OF ";
  }
  text += attribute.typeName;
  if (attribute.isInverse()) text += " FOR " + std::string(attribute.forward);
  return text;
}

Texts declarations(std::span<const AttributeInfo> attributes) {
  Texts texts;
  for (const AttributeInfo& attribute : attributes) texts.push_back(declaration(attribute));
  return texts;
}

/// The EXPRESS text of the schema; skipped where it isn't there.
class SchemaConformance : public testing::Test {
 protected:
  void SetUp() override {
    FC_SHARED_FILE_OR_SKIP(path, "IFC4X3_ADD2.exp");
    express = schema::test::readExpressText(path);
    ASSERT_EQ(express.classes.size(), 876U);
  }
  void forEachClass(const std::function<void(const ExpressClass&, const ClassInfo&)>& check) {
    for (const auto& [name, declared] : express.classes) {
      SCOPED_TRACE(name);
      const ClassInfo* info = Factory::find(StringHash::of(name));
      ASSERT_TRUE(info);
      check(declared, *info);
    }
  }

  ExpressText express;
};

TEST_F(SchemaConformance, ClassesHaveTheirSupertypesAndAttributesWithTypesAndBoundsInOrder) {
  EXPECT_EQ(Factory::classes().size(), express.classes.size());
  forEachClass([](const ExpressClass& declared, const ClassInfo& info) {
    EXPECT_EQ(info.isAbstract(), declared.isAbstract);
    EXPECT_EQ(info.parent ? info.parent->name.view() : "", declared.supertype);
    EXPECT_EQ(declarations(info.attributes), declared.attributes);
    EXPECT_EQ(declarations(info.inverseAttributes), declared.inverses);
    EXPECT_EQ(Texts(info.derivedAttributes.begin(), info.derivedAttributes.end()),
              declared.derived);
  });
}

TEST_F(SchemaConformance, ClassIdsNumberTheForestDepthFirstInTheOrderOfNames) {
  std::map<std::string, Texts> subclasses;
  for (const auto& [name, declared] : express.classes)
    subclasses[declared.supertype].push_back(name);
  EXPECT_EQ(subclasses[""].size(), 61U);
  std::uint32_t last = 0;
  const std::function<void(const std::string&)> number = [&](const std::string& name) {
    const ClassInfo& info = classNamed(name);
    EXPECT_EQ(info.classId, ++last) << name;
    EXPECT_EQ(Factory::classes()[last - 1], &info);
    for (const std::string& subclass : subclasses[name]) number(subclass);
    EXPECT_EQ(info.classIdLast, last) << name;
  };
  for (const std::string& root : subclasses[""]) number(root);
  EXPECT_EQ(last, 876U);
}

TEST_F(SchemaConformance, EnumerationsHaveTheirEnumeratorsInOrder) {
  std::map<std::string, Texts> tables;
  for (const EnumInfo* info : SchemaTables::enumerations())
    tables[std::string(info->name)] = Texts(info->names.begin(), info->names.end());
  EXPECT_EQ(tables, express.enumerations);
}

TEST_F(SchemaConformance, SelectsHaveTheirAlternativesInAscendingOrder) {
  std::map<std::string, Texts> tables;
  for (const SelectInfo* info : SchemaTables::selects()) {
    Texts& names = tables[std::string(info->name)];
    for (const AlternativeInfo& alternative : info->alternatives) {
      names.emplace_back(alternative.ifcName);
      EXPECT_EQ("Ifc" + std::string(alternative.name), alternative.ifcName);
      EXPECT_EQ(alternative.isEntity(), express.classes.contains(names.back())) << names.back();
      EXPECT_EQ(alternative.nested != nullptr, express.selects.contains(names.back()));
    }
  }
  for (auto& [name, alternatives] : express.selects) std::ranges::sort(alternatives);
  EXPECT_EQ(tables, express.selects);
}

// The kind of a value of this type, at the end of a chain of defined types.
std::size_t kindOf(const ExpressText& express, const std::string& type) {
  static const std::map<std::string, std::size_t> basic = {
      {"BOOLEAN", 2}, {"REAL", 3},    {"NUMBER", 3}, {"INTEGER", 4},
      {"STRING", 5},  {"LOGICAL", 6}, {"BINARY", 7}};
  if (type == "IfcGloballyUniqueId") return 8;
  if (express.enumerations.contains(type)) return 5;
  if (const auto found = basic.find(type); found != basic.end()) return found->second;
  const auto found = express.types.find(type);
  return found == express.types.end() ? 1 : kindOf(express, found->second);
}

TEST_F(SchemaConformance, NewInstancesHoldValuesOfTheDeclaredKind) {
  static const std::set<std::string> pairs = {"LIST[2:2]OF IfcParameterValue",
                                              "ARRAY[1:2]OF IfcLengthMeasure"};
  forEachClass([this](const ExpressClass&, const ClassInfo& info) {
    if (info.isAbstract()) return;
    const auto entity = info.create();
    for (const ClassInfo* owner = &info; owner; owner = owner->parent)
      for (const std::string& declared : express.classes.at(owner->name.text).attributes) {
        const std::string type = declared.substr(declared.find(':') + 1);
        const object::PropertyId id(declared.substr(0, declared.find(':')));
        const std::size_t expected = type.starts_with("OPTIONAL") ? 1
                                     : pairs.contains(type)       ? 10
                                     : type.find("]OF") != std::string::npos
                                         ? 13
                                         : kindOf(express, type);
        EXPECT_EQ(entity->getLocalValue(id).index(), expected) << declared;
      }
  });
}

TEST(Schema, NumbersItsClasses) {
  const auto bound = [](const char* name) {
    return Factory::boundFromIfcName(StringHash::of(name));
  };
  EXPECT_EQ(bound("IfcActorRole"), std::pair(1U, 1U));
  EXPECT_EQ(bound("IfcRoot"), std::pair(357U, 840U));
  EXPECT_EQ(bound("IfcWall"), std::pair(429U, 430U));
  EXPECT_EQ(bound("IfcWellKnownText"), std::pair(876U, 876U));
}

TEST(Schema, HasItsClassesInGroups) {
  std::map<std::string, int> counts;
  for (const ClassInfo* info : Factory::classes()) {
    ++counts[info->groupPath];
    EXPECT_TRUE(std::string(info->groupPath).ends_with('.' + std::string(info->group)));
  }
  std::string found;
  for (const auto& [group, count] : counts) found += group + ": " + std::to_string(count) + "; ";
  EXPECT_EQ(found,
            "Core.Control Extension: 3; Core.Kernel: 49; Core.Process Extension: 11; Core.Product "
            "Extension: 82; Domain.Architecture: 5; Domain.Building Controls: 12; "
            "Domain.Construction Management: 14; Domain.Electrical: 50; Domain.Hvac: 66; "
            "Domain.Plumbing Fire Protection: 10; Domain.Ports and Waterways: 10; Domain.Rail: 6; "
            "Domain.Road: 4; Domain.Structural Analysis: 28; Domain.Structural Elements: 23; "
            "Resource.Actor: 8; Resource.Approval: 3; Resource.Constraint: 5; Resource.Cost: 3; "
            "Resource.DateTime: 14; Resource.External Reference: 11; Resource.Geometric "
            "Constraint: 16; Resource.Geometric Model: 47; Resource.Geometry: 76; "
            "Resource.Material: 18; Resource.Measure: 11; Resource.Presentation Appearance: 46; "
            "Resource.Presentation Definition: 6; Resource.Presentation Organization: 10; "
            "Resource.Profile: 28; Resource.Property: 14; Resource.Quantity: 10; "
            "Resource.Representation: 21; Resource.Structural Load: 20; Resource.Topology: 20; "
            "Resource.Utility: 5; Shared.Building Elements: 45; Shared.Building Service Elements: "
            "26; Shared.Component Elements: 10; Shared.Facilities Elements: 7; "
            "Shared.Infrastructure Elements: 18; Shared.Management Elements: 5; ");
}

}  // namespace
}  // namespace qor::fc
