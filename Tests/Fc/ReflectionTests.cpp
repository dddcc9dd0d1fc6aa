#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Fc/Core/Kernel/FcActor.h"
#include "Fc/Core/ProductExtension/FcBuildingStorey.h"
#include "Fc/Core/ProductExtension/FcRelContainedInSpatialStructure.h"
#include "Fc/Core/ProductExtension/FcRelInterferesElements.h"
#include "Fc/Model/Localize.h"
#include "Fc/Property.h"
#include "Fc/Resource/Actor/FcPerson.h"
#include "Fc/Resource/GeometricConstraint/FcObjectPlacement.h"
#include "Fc/Resource/Measure/FcLabel.h"
#include "Fc/Resource/Measure/FcPositiveLengthMeasure.h"
#include "Fc/Resource/Representation/FcProductRepresentation.h"
#include "Fc/Resource/Utility/FcOwnerHistory.h"
#include "Fc/Resource/Utility/FcStateEnum.h"
#include "Fc/Shared/BuildingElements/FcSlab.h"
#include "Fc/Shared/BuildingElements/FcWall.h"
#include "Qor/Localization/Dictionaries.h"
#include "Tests/Fc/Values.h"
#include "Tests/Support/ExpectAsserts.h"

namespace qor::fc {
namespace {

using namespace test;
using namespace core::productextension;
using qor::test::ExpectAsserts;
using namespace shared::buildingelements;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

TEST(Reflection, NamesAClassWithoutTouchingItsAttributes) {
  const FcWall wall;
  EXPECT_EQ(wall.ifcNameHash().hash, 0x99ECC1DBU);
  EXPECT_EQ(wall.ifcNameUpperHash().hash, 2077320315U);
  EXPECT_STREQ(wall.schemaGroup(), "Building Elements");
  EXPECT_STREQ(wall.schemaGroupPath(), "Shared.Building Elements");
}

TEST(Reflection, SetsAndReadsEachKindOfAttributeAsText) {
  struct Case {
    const char* entity;
    const char* attribute;
    const char* text;
    bool stored;
    const char* readBack;
  };
  const Case cases[] = {
      {"IfcWall", "Name", "Wall-1", true, "Wall-1"},
      {"IfcWall", "Name", "", true, ""},
      {"IfcWallStandardCase", "Tag", "(a, 'b')", true, "(a, 'b')"},
      {"IfcBuildingStorey", "Elevation", "2.5abc", true, "2.500000"},
      {"IfcBuildingStorey", "Elevation", " \t\n-1.25e3 m", true, "-1250.000000"},
      {"IfcBuildingStorey", "Elevation", "+.5", true, "0.500000"},
      {"IfcBuildingStorey", "Elevation", "1e", true, "1.000000"},
      {"IfcBuildingStorey", "Elevation", "abc", false, "0.000000"},
      {"IfcBuildingStorey", "Elevation", "", false, "0.000000"},
      {"IfcBuildingStorey", "Elevation", "1e400", false, "0.000000"},
      {"IfcQuantityLength", "LengthValue", "7", true, "7.000000"},
      {"IfcStairFlight", "NumberOfRisers", "\n12 steps", true, "12"},
      {"IfcStairFlight", "NumberOfRisers", "-3.9", true, "-3"},
      {"IfcStairFlight", "NumberOfRisers", "2147483647", true, "2147483647"},
      {"IfcStairFlight", "NumberOfRisers", "-2147483648", true, "-2147483648"},
      {"IfcStairFlight", "NumberOfRisers", "2147483648", false, "0"},
      {"IfcStairFlight", "NumberOfRisers", "-2147483649", false, "0"},
      {"IfcStairFlight", "NumberOfRisers", "twelve", false, "0"},
      {"IfcTaskTime", "IsCritical", "true", true, "true"},
      {"IfcTaskTime", "IsCritical", "TRUE", false, "false"},
      {"IfcMaterialLayer", "IsVentilated", "unknown", true, "unknown"},
      {"IfcMaterialLayer", "IsVentilated", "maybe", false, "false"},
      {"IfcWall", "PredefinedType", "SOLIDWALL", true, "SOLIDWALL"},
      {"IfcWall", "PredefinedType", "solidwall", false, "NOTDEFINED"},
      {"IfcWall", "PredefinedType", "SOLIDWALL ", false, "NOTDEFINED"},
      {"IfcOwnerHistory", "State", "OPEN", false, "READWRITELOCKED"},
      {"IfcWall", "GlobalId", "018qLdYQlDxm4ZHMU9gytl", true, "018qLdYQlDxm4ZHMU9gytl"},
      {"IfcWall", "GlobalId", "none", false, "0000000000000000000000"},
      {"IfcPropertySingleValue", "NominalValue", "LengthMeasure(2.5)", true, "2.500000"},
      {"IfcPropertySingleValue", "NominalValue", "Boolean(yes)", false, "false"},
      {"IfcPropertySingleValue", "NominalValue", "NoMeasure(1)", false, nullptr},
      {"IfcWall", "NoSuchAttribute", "x", false, nullptr},
      {"IfcWall", "name", "x", false, nullptr},
      {"IfcWall", "HasOpenings", "x", false, nullptr},
  };
  const ExpectAsserts none;
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.entity) + "." + c.attribute + " from \"" + c.text + "\"");
    const auto entity = make(c.entity);
    EXPECT_EQ(entity->setAttributeFromString(c.attribute, c.text), c.stored);
    EXPECT_EQ(entity->getAttributeAsString(c.attribute), some(c.readBack));
  }
}

TEST(Reflection, LeavesAPresentValueAloneWhenATextCannotBeRead) {
  const std::array<const char*, 4> cases[] = {
      {"IfcBuildingStorey", "Elevation", "3", "3.000000"},
      {"IfcWall", "PredefinedType", "SHEAR", "SHEAR"},
      {"IfcWall", "GlobalId", "018qLdYQlDxm4ZHMU9gytl", "018qLdYQlDxm4ZHMU9gytl"},
  };
  for (const auto& [ifcName, attribute, good, readBack] : cases) {
    const auto entity = make(ifcName);
    EXPECT_TRUE(entity->setAttributeFromString(attribute, good));
    EXPECT_FALSE(entity->setAttributeFromString(attribute, "none"));
    EXPECT_EQ(entity->getAttributeAsString(attribute), readBack);
  }
}

TEST(Reflection, SpellsListsInParenthesesAndReadsNone) {
  struct Case {
    const char* entity;
    const char* attribute;
    LocalValue value;
    const char* text;
  };
  const auto pair = [](double x, double y) { return LocalValue(std::array<double, 2>{x, y}); };
  const Case cases[] = {
      {"IfcSite", "RefLatitude", list({integer(52), integer(-1)}), "(52, -1)"},
      {"IfcPerson", "MiddleNames", list({text("a"), text("b, c")}), "(a, b, c)"},
      {"IfcCartesianPointList2D", "CoordList", list({pair(0, 1), pair(2, 3)}),
       "((0.000000, 1.000000), (2.000000, 3.000000))"},
      {"IfcStructuralLoadConfiguration", "Locations", list({list({real(1)}), list({})}),
       "((1.000000), ())"},
      {"IfcDirection", "DirectionRatios", list({real(0), real(1)}),
       "(0.000000, 1.000000, 0.000000)"},
      {"IfcPropertyListValue", "ListValues",
       list({typed("IfcLengthMeasure", real(2.5)), typed("IfcLabel", text("a"))}), "(2.500000, a)"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.entity) + "." + c.attribute);
    const auto entity = make(c.entity);
    ASSERT_TRUE(entity->setLocalValue(c.value, id(c.attribute)));
    const ExpectAsserts expected(
        {{"Not implemented", "qor::fc::setMemberFromStringPrimitive", "HelperFunctions"}});
    EXPECT_FALSE(entity->setAttributeFromString(c.attribute, c.text));
    EXPECT_EQ(entity->getAttributeAsString(c.attribute), c.text);
  }
  const ExpectAsserts expected({"Not implemented"});
  const auto person = make("IfcPerson");
  EXPECT_EQ(person->getAttributeAsString("MiddleNames"), std::nullopt);
  EXPECT_FALSE(person->setAttributeFromString("MiddleNames", "(a)"));
  EXPECT_EQ(person->getAttributeAsString("MiddleNames"), "()");
}

TEST(Reflection, HasNoTextForReferences) {
  const std::pair<const char*, const char*> attributes[] = {
      {"IfcWall", "ObjectPlacement"},
      {"IfcWall", "OwnerHistory"},
      {"IfcRelAggregates", "RelatedObjects"},
      {"IfcBSplineSurfaceWithKnots", "ControlPointsList"}};
  for (const auto& [ifcName, attribute] : attributes) {
    const ExpectAsserts expected(
        {{"Not implemented", "qor::fc::getMemberAsStringObject", "HelperFunctions"},
         {"Not implemented", "qor::fc::setMemberFromStringObject", "HelperFunctions"}});
    const auto entity = make(ifcName);
    EXPECT_EQ(entity->getAttributeAsString(attribute), std::nullopt) << attribute;
    EXPECT_FALSE(entity->setAttributeFromString(attribute, "#1")) << attribute;
  }
}

TEST(Reflection, ReportsValuesWithoutAText) {
  const ExpectAsserts expected(
      {{"Not implemented for this enum type",
        "qor::fc::BaseType<enum qor::LogicalValue>::getAsString", "BaseType"},
       {"Not implemented for this type",
        "qor::fc::BaseType<class std::shared_ptr<class qor::fc::resource::actor::FcPerson> "
        ">::getAsString",
        "BaseType"},
       {"Not implemented", "qor::fc::setMemberFromStringPrimitive", "HelperFunctions"}});
  core::productextension::FcRelInterferesElements interference;
  interference.setImpliedOrder(static_cast<LogicalValue>(7));
  EXPECT_EQ(interference.getAttributeAsString("ImpliedOrder"), std::nullopt);
  core::kernel::FcActor actor;
  EXPECT_EQ(actor.getAttributeAsString("TheActor"), std::nullopt) << "NotSet, without a report";
  actor.setTheActor(std::make_shared<resource::actor::FcPerson>());
  EXPECT_EQ(actor.getAttributeAsString("TheActor"), std::nullopt);
  EXPECT_FALSE(make("IfcBlobTexture")->setAttributeFromString("RasterCode", "00"));
}

TEST(Reflection, TakesADefinedTypeForItsValue) {
  FcBuildingStorey storey;
  storey.setElevation(2.5);
  EXPECT_EQ(storey.Elevation(), 2.5);
  resource::measure::FcLengthMeasure length = *storey.Elevation();
  EXPECT_EQ(length * 2, 5);
  EXPECT_TRUE(length == resource::measure::FcPositiveLengthMeasure(2.5) && 2.5 == length);
  EXPECT_TRUE(length.setFromString("-1"));
  EXPECT_FALSE(length.setFromString("one"));
  EXPECT_EQ(length.getAsString(), "-1.000000");
  EXPECT_EQ(resource::measure::FcLabel("a"), "a");
}

struct TypedCase {
  const char* entity;
  const char* attribute;
  std::size_t kind;
  LocalValue value;
};

std::vector<TypedCase> typedCases() {
  const LocalValue bytes(std::vector<std::uint8_t>{1, 0, 255});
  const LocalValue pair(std::array<double, 2>{1, 2});
  const LocalValue triple(std::array<double, 3>{1, 2, 3});
  const LocalValue indices(std::array<std::int64_t, 3>{1, 2, 3});
  return {
      {"IfcTaskTime", "IsCritical", 2, LocalValue(true)},
      {"IfcBuildingStorey", "Elevation", 3, real(2.5)},
      {"IfcStairFlight", "NumberOfRisers", 4, integer(5000000000)},
      {"IfcWall", "Name", 5, text("Wall-1")},
      {"IfcWall", "PredefinedType", 5, text("SHEAR")},
      {"IfcMaterialLayer", "IsVentilated", 6, LocalValue(LogicalValue::Unknown)},
      {"IfcBlobTexture", "RasterCode", 7, bytes},
      {"IfcWall", "GlobalId", 8, LocalValue(Guid::generate())},
      {"IfcWall", "ObjectPlacement", 9, entity(make("IfcLocalPlacement"))},
      {"IfcActor", "TheActor", 9, entity(make("IfcOrganization"))},
      {"IfcTextureVertex", "Coordinates", 10, pair},
      {"IfcStructuralLoadCase", "SelfWeightCoefficients", 11, triple},
      {"IfcTextureVertexList", "TexCoordsList", 13, list({pair, pair})},
      {"IfcCartesianPointList3D", "CoordList", 13, list({triple})},
      {"IfcIndexedTriangleTextureMap", "TexCoordIndex", 13, list({indices})},
      {"IfcPixelTexture", "Pixel", 13, list({bytes})},
      {"IfcCartesianPoint", "Coordinates", 13, list({real(1), real(2)})},
      {"IfcSite", "RefLatitude", 13, list({integer(52), integer(30), integer(0)})},
      {"IfcPerson", "Addresses", 13, list({entity(make("IfcPostalAddress")), empty()})},
      {"IfcPropertySingleValue", "NominalValue", 3, typed("IfcAreaMeasure", real(4))},
      {"IfcTableRow", "RowCells", 13, list({typed("IfcLabel", text("x")), empty()})},
  };
}

TEST(Reflection, CarriesEachKindOfValueInItsAlternativeAndRefusesAnyOther) {
  std::vector<TypedCase> others = typedCases();
  others.push_back({"", "", 0, LocalValue()});
  others.push_back({"", "", 0, list({LocalValue(true), integer(1), text("x")})});
  for (const TypedCase& c : typedCases()) {
    SCOPED_TRACE(std::string(c.entity) + "." + c.attribute);
    const auto entity = make(c.entity);
    EXPECT_TRUE(entity->setLocalValue(c.value, id(c.attribute)));
    EXPECT_EQ(c.value.index(), c.kind);
    for (const TypedCase& other : others)
      EXPECT_TRUE(other.kind == c.kind || !entity->setLocalValue(other.value, id(c.attribute)))
          << other.attribute;
    EXPECT_EQ(entity->getLocalValue(id(c.attribute)), c.value);
    if (!entity->isOptional(id(c.attribute))) continue;
    EXPECT_TRUE(entity->setLocalValue(empty(), id(c.attribute)));
    EXPECT_EQ(entity->getLocalValue(id(c.attribute)), empty());
  }
}

TEST(Reflection, StoresTheLastEnumeratorForAnUnknownOneAndNullForAnotherClass) {
  const auto wall = make("IfcWall");
  EXPECT_TRUE(wall->setLocalValue(text("solidwall"), id("PredefinedType")));
  EXPECT_EQ(wall->getLocalValue(id("PredefinedType")), text("NOTDEFINED"));

  ASSERT_TRUE(wall->setLocalValue(entity(make("IfcLocalPlacement")), id("ObjectPlacement")));
  EXPECT_TRUE(wall->setLocalValue(entity(make("IfcSlab")), id("ObjectPlacement")));
  EXPECT_EQ(wall->getLocalValue(id("ObjectPlacement")), empty());
}

using Reached = std::vector<std::pair<std::string, const FcBase*>>;

Reached reachedFrom(FcBase& start, bool followInverse) {
  Reached reached;
  start.forEachEntity(
      [&](const std::shared_ptr<FcBase>& entity, const object::PropertyId& attribute) {
        reached.emplace_back(attribute.name(), entity.get());
      },
      followInverse);
  return reached;
}

TEST(Reflection, WalksReferencesInTheOrderOfTheSchemaSupertypesFirst) {
  const auto wall = make("IfcWall");
  const auto history = make("IfcOwnerHistory");
  const auto placement = make("IfcLocalPlacement");
  const auto shape = make("IfcProductDefinitionShape");
  for (const auto& [value, attribute] : {std::pair(shape, "Representation"),
                                         {placement, "ObjectPlacement"},
                                         {history, "OwnerHistory"}})
    ASSERT_TRUE(wall->setLocalValue(entity(value), id(attribute)));
  const auto containment = make("IfcRelContainedInSpatialStructure");
  const auto slab = make("IfcSlab");
  const auto storey = make("IfcBuildingStorey");
  ASSERT_TRUE(containment->setLocalValue(list({entity(slab), empty(), entity(wall)}),
                                         id("RelatedElements")));
  ASSERT_TRUE(containment->setLocalValue(entity(storey), id("RelatingStructure")));

  const Reached forward = {{"OwnerHistory", history.get()},
                           {"ObjectPlacement", placement.get()},
                           {"Representation", shape.get()}};
  EXPECT_EQ(reachedFrom(*wall, false), forward);
  Reached both = forward;
  both.emplace_back("ContainedInStructure", containment.get());
  EXPECT_EQ(reachedFrom(*wall, true), both);
  EXPECT_EQ(reachedFrom(*containment, true), (Reached{{"RelatedElements", slab.get()},
                                                      {"RelatedElements", wall.get()},
                                                      {"RelatingStructure", storey.get()}}));
}

TEST(Reflection, NeedsACallbackAndHandsItTheIdOfTheTables) {
  FcWall wall;
  EXPECT_THROW(wall.forEachEntity({}, false), std::bad_function_call);
  const auto owned = std::make_shared<FcWall>();
  owned->setOwnerHistory(std::make_shared<resource::utility::FcOwnerHistory>());
  owned->forEachEntity(
      [](const auto&, const object::PropertyId& attribute) {
        EXPECT_EQ(&attribute, &object::propertyId<"OwnerHistory">());
      },
      false);
}

TEST(Reflection, ListsAttributesForInspectorsThatKeepTheirEntityAlive) {
  for (const auto& property : make("IfcWall")->getLocalProperties()) {
    ASSERT_TRUE(property->entity());
    EXPECT_STREQ(property->entity()->ifcName(), "IfcWall");
    EXPECT_EQ(property->text(), std::nullopt);
    EXPECT_THAT(property->furtherEntities(), IsEmpty());
    EXPECT_TRUE(property->isLocal());
  }
  EXPECT_THROW(FcWall().getLocalProperties(), std::bad_weak_ptr);
  EXPECT_EQ(FcWall().getEnumeratedValues(id("PredefinedType")), FcWallTypeEnum::enumNames());
}

TEST(Reflection, NamesEnumeratorsInTheOrderOfTheSchema) {
  EXPECT_THAT(FcWallTypeEnum::enumNames(),
              ElementsAre("ELEMENTEDWALL", "MOVABLE", "PARAPET", "PARTITIONING", "PLUMBINGWALL",
                          "POLYGONAL", "RETAININGWALL", "SHEAR", "SOLIDWALL", "STANDARD",
                          "WAVEWALL", "USERDEFINED", "NOTDEFINED"));
  EXPECT_STREQ(FcWallTypeEnum::nameFromEnum(FcWallTypeEnum::SHEAR), "SHEAR");
  EXPECT_THAT(FcWallTypeEnum::enumFromName("NOTDEFINED"), Optional(FcWallTypeEnum::NOTDEFINED));
  for (const char* unknown : {static_cast<const char*>(nullptr), "", "shear", "SHEARS"})
    EXPECT_EQ(FcWallTypeEnum::enumFromName(unknown), std::nullopt);
  EXPECT_EQ(FcWallTypeEnum(FcWallTypeEnum::SHEAR).getLocalValue(), text("SHEAR"));
}

TEST(Reflection, TakesNamesForPeopleFromTheFirstDictionaryThatHasThem) {
  using qor::localization::Dictionaries;
  const qor::localization::DictionaryContext contexts[] = {
      {"Host", {{"IfcElement.Tag", "other domain"}}},
      {"IFC", {{"IfcElement.Tag", "Kennzeichen"}, {"Menu.Open", "Oeffnen"}, {"Open", "Auf"}}},
      {"IFC",
       {{"IfcElement.Tag", "late"},
        {"IfcElement.Tag_Description", "Number on the drawing"},
        {"IfcWall.Tag_Description", "not the declaring class"},
        {"IfcElement.HasOpenings", "Openings"}}}};
  EXPECT_EQ(localize("Open"), "Open");
  EXPECT_EQ(localize("Menu", "Open"), "Open");
  EXPECT_EQ(localizeWithFallback("key", "fallback"), "fallback");
  for (const auto& context : contexts) Dictionaries::add(context);
  const FcWall wall;
  EXPECT_EQ(wall.getPropertyName(id("Tag")), "Kennzeichen");
  EXPECT_EQ(wall.getPropertyDescription(id("Tag")), "Number on the drawing");
  EXPECT_EQ(wall.getPropertyName(id("HasOpenings")), "Openings");
  EXPECT_EQ(wall.getPropertyName(id("Name")), "Name");
  EXPECT_EQ(localize("Open"), "Auf");
  EXPECT_EQ(localize("Menu", "Open"), "Oeffnen");
  for (const auto& context : contexts) EXPECT_TRUE(Dictionaries::remove(context));
}

}  // namespace
}  // namespace qor::fc
