#include <gmock/gmock.h>

#include <functional>
#include <set>
#include <typeindex>

#include "Fc/Factory.h"
#include "Fc/FcBase.h"
#include "Fc/Property.h"
#include "Fc/Reflection/EnumInfo.h"
#include "Tests/Support/ExpectAsserts.h"

// What must hold for an instance of every class, and for each of its attributes.
namespace qor::fc {
namespace {

using details::EmptyValue;
using object::PropertyId;
using test::ExpectAsserts;
using test::ExpectedAssert;

void forEachCreatableClass(const std::function<void(const ClassInfo&, FcBase&)>& check) {
  int count = 0;
  for (const ClassInfo* info : Factory::classes()) {
    if (info->isAbstract()) continue;
    SCOPED_TRACE(info->name.text);
    check(*info, *info->create());
    ++count;
  }
  EXPECT_EQ(count, 743);
}

using AttributeCheck = std::function<void(const AttributeInfo&, FcBase&)>;

enum class Side { forward, inverse };

// Inherited attributes too.
void forEachAttribute(Side side, const AttributeCheck& check) {
  forEachCreatableClass([&](const ClassInfo& info, FcBase& entity) {
    const auto checkOne = [&](const AttributeInfo& attribute) {
      SCOPED_TRACE(attribute.name);
      check(attribute, entity);
    };
    if (side == Side::forward) info.forEachAttribute(checkOne);
    if (side == Side::inverse) info.forEachInverseAttribute(checkOne);
  });
}

// 32-bit FNV-1a; all names are ASCII.
std::uint32_t fnv1a(std::string_view text) {
  std::uint32_t hash = 0x811C9DC5;
  for (const char c : text) hash = (hash ^ static_cast<std::uint32_t>(c)) * 16777619;
  return hash;
}

TEST(EveryClass, IsKnownByItsName) {
  const ExpectAsserts none;
  std::set<std::uint32_t> hashes;
  for (const ClassInfo* info : Factory::classes()) {
    EXPECT_EQ(Factory::boundFromIfcName(info->name), std::pair(info->classId, info->classIdLast));
    EXPECT_EQ(info->name.hash, fnv1a(info->name.view()));
    EXPECT_EQ(info->upperName.hash, fnv1a(info->upperName.view()));
    hashes.insert({info->name.hash, info->upperName.hash});
    if (info->parent) {
      EXPECT_GE(info->parent->classIdLast, info->classIdLast) << info->name.text;
      EXPECT_LT(info->parent->classId, info->classId) << info->name.text;
    }
  }
  EXPECT_EQ(hashes.size(), 2 * Factory::classes().size()) << "two names collide";
}

TEST(EveryInstance, AnswersForItsClass) {
  const ExpectAsserts none;
  EXPECT_EQ(Factory::getFcClasses().size(), 743U);
  forEachCreatableClass([](const ClassInfo& info, FcBase& entity) {
    EXPECT_EQ(&entity.classInfo(), &info);
    EXPECT_EQ(std::pair(entity.classId(), entity.classIdLast()),
              Factory::boundFromIfcName(entity.ifcNameHash()));
    std::string upper = entity.ifcName();
    for (char& c : upper) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    EXPECT_EQ(entity.ifcNameUpper(), upper);
    EXPECT_EQ(Factory::objectFromIfcName(entity.ifcNameHash())->classId(), entity.classId());
    EXPECT_EQ(Factory::typeInfoFromIfcName(entity.ifcNameHash()), typeid(entity));
    EXPECT_EQ(Factory::getFcClasses().at(typeid(entity)).view(), entity.ifcName());
  });
}

// Whether the attribute can say that it has no value.
bool hasEmptyState(const AttributeInfo& attribute) {
  const TypeFamily family = attribute.type->family;
  return attribute.optional || family == TypeFamily::reference || family == TypeFamily::select;
}

void expectFresh(const AttributeInfo& attribute, const FcBase& entity) {
  const LocalValue value = entity.getLocalValue(attribute.id());
  EXPECT_EQ(value.isEmpty(), hasEmptyState(attribute));
  EXPECT_NE(value.index(), 0U);
  if (value.isEmpty()) return;
  if (attribute.type->family == TypeFamily::enumeration) {
    EXPECT_TRUE(attribute.type->enumeration->find(std::get<std::string>(value.value)));
    return;
  }
  std::visit(
      [](const auto& alternative) {
        EXPECT_TRUE(alternative == std::remove_cvref_t<decltype(alternative)>{});
      },
      value.value);
}

TEST(EveryAttribute, IsEmptyWhenItIsNewOrClearedIfItCanBeEmpty) {
  forEachAttribute(Side::forward, [](const AttributeInfo& attribute, FcBase& entity) {
    expectFresh(attribute, entity);
    const bool isList = attribute.type->family == TypeFamily::list;
    EXPECT_EQ(entity.setLocalValue(LocalValue(EmptyValue()), attribute.id()),
              hasEmptyState(attribute) || isList);
    EXPECT_FALSE(entity.setLocalValue(LocalValue(), attribute.id()));
    expectFresh(attribute, entity);
  });
}

TEST(EveryAttribute, ReadsBackWhatReflectionWrote) {
  forEachAttribute(Side::forward, [](const AttributeInfo& attribute, FcBase& entity) {
    const LocalValue fresh = entity.getLocalValue(attribute.id());
    EXPECT_TRUE(entity.setLocalValue(fresh, attribute.id()));
    EXPECT_EQ(entity.getLocalValue(attribute.id()), fresh);
    if (attribute.type->family != TypeFamily::enumeration) return;
    for (const char* name : attribute.type->enumeration->names) {
      EXPECT_TRUE(entity.setLocalValue(LocalValue(std::string(name)), attribute.id()));
      EXPECT_EQ(entity.getAttributeAsString(std::string(attribute.name)), name);
    }
  });
}

TEST(EveryAttribute, TellsItsNameItsDescriptionAndWhetherItIsOptional) {
  const auto check = [](const AttributeInfo& attribute, FcBase& entity) {
    EXPECT_EQ(entity.isOptional(attribute.id()), attribute.optional);
    EXPECT_EQ(entity.getPropertyName(attribute.id()), attribute.name);
    EXPECT_EQ(entity.getPropertyDescription(attribute.id()), attribute.name);
    EXPECT_EQ(attribute.id().name(), attribute.name);
    const bool isEnumeration = attribute.type->family == TypeFamily::enumeration;
    EXPECT_EQ(entity.hasEnumeratedValues(attribute.id()), isEnumeration);
    EXPECT_EQ(entity.getEnumeratedValues(attribute.id()).size(),
              isEnumeration ? attribute.type->enumeration->names.size() : 0U);
  };
  forEachAttribute(Side::forward, check);
  forEachAttribute(Side::inverse, check);
}

// The assert that asking for the text raises, if any.
std::vector<ExpectedAssert> assertsOfText(const AttributeInfo& attribute, const LocalValue& value) {
  const TypeFamily family = attribute.type->family;
  if (value.index() == 7) return {"Not implemented for this type"};
  const bool isReference = family == TypeFamily::reference;
  if (isReference || (attribute.type->entitiesOnly && value.index() == 13))
    return {{"Not implemented", "qor::fc::getMemberAsStringObject", "HelperFunctions"}};
  return {};
}

TEST(EveryAttribute, OfANewInstanceHasATextUnlessItIsEmptyOrHasNone) {
  forEachAttribute(Side::forward, [](const AttributeInfo& attribute, FcBase& entity) {
    const LocalValue value = entity.getLocalValue(attribute.id());
    const auto asserts = assertsOfText(attribute, value);
    const ExpectAsserts expected(asserts);
    EXPECT_EQ(entity.getAttributeAsString(std::string(attribute.name)).has_value(),
              asserts.empty() && !value.isEmpty());
  });
}

TEST(EveryInverseAttribute, IsReadAndNotWrittenByReflection) {
  const ExpectAsserts none;
  forEachAttribute(Side::inverse, [](const AttributeInfo& attribute, FcBase& entity) {
    const bool single = attribute.aggregates.empty() || attribute.aggregates[0].upper == 1;
    EXPECT_EQ(entity.getLocalValue(attribute.id()),
              single ? LocalValue(EmptyValue()) : LocalValue(LocalValue::List()));
    EXPECT_FALSE(entity.setLocalValue(LocalValue(EmptyValue()), attribute.id()));
    EXPECT_FALSE(entity.setLocalValue(LocalValue(LocalValue::List()), attribute.id()));
    const std::string name(attribute.name);
    EXPECT_EQ(entity.getAttributeAsString(name), std::nullopt);
    EXPECT_FALSE(entity.setAttributeFromString(name, "1"));
  });
}

TEST(EveryInstance, ShowsInspectorsAllForwardAttributesButReferences) {
  forEachCreatableClass([](const ClassInfo& info, FcBase& entity) {
    std::vector<std::string> expected, shown;
    info.forEachAttribute([&expected](const AttributeInfo& attribute) {
      if (!attribute.type->entitiesOnly) expected.emplace_back(attribute.name);
    });
    for (const auto& property : entity.getLocalProperties()) shown.push_back(property->id().name());
    EXPECT_EQ(shown, expected);
  });
}

TEST(EveryInstance, GivesTheNegativeResultsForAnUnknownAttribute) {
  const ExpectAsserts none;
  forEachCreatableClass([](const ClassInfo&, FcBase& entity) {
    for (const std::string name : {"", "NoSuchAttribute", "name", "classId"}) {
      const PropertyId id(name);
      EXPECT_EQ(entity.getLocalValue(id), LocalValue());
      EXPECT_FALSE(entity.setLocalValue(LocalValue(EmptyValue()), id));
      EXPECT_FALSE(entity.setLocalValue(LocalValue(name), id));
      EXPECT_EQ(entity.getAttributeAsString(name), std::nullopt);
      EXPECT_FALSE(entity.setAttributeFromString(name, "1"));
      EXPECT_FALSE(entity.isOptional(id));
      EXPECT_EQ(entity.getPropertyName(id), "");
      EXPECT_EQ(entity.getPropertyDescription(id), "");
      EXPECT_FALSE(entity.hasEnumeratedValues(id));
      EXPECT_TRUE(entity.getEnumeratedValues(id).empty());
    }
  });
}

}  // namespace
}  // namespace qor::fc
