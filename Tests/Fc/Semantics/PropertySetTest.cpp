#include <gtest/gtest.h>

#include "Fc/Core/Kernel/FcProject.h"
#include "Fc/Core/Kernel/FcPropertySet.h"
#include "Fc/Core/Kernel/FcRelDefinesByProperties.h"
#include "Fc/Core/ProductExtension/FcBuilding.h"
#include "Fc/Core/ProductExtension/FcElementQuantity.h"
#include "Fc/Core/ProductExtension/Pset_BuildingCommon.h"
#include "Fc/Domain/Electrical/Pset_ElectricalDeviceCommon.h"
#include "Fc/Resource/Material/FcMaterial.h"
#include "Fc/Resource/Material/FcMaterialProperties.h"
#include "Fc/Resource/Property/FcComplexProperty.h"
#include "Fc/Resource/Property/FcPropertySingleValue.h"
#include "Fc/Resource/Quantity/FcQuantityLength.h"
#include "Fc/Shared/BuildingElements/FcWall.h"
#include "Fc/Shared/BuildingElements/FcWallType.h"
#include "Fc/Utilities/Merge.h"
#include "Fc/Utilities/MergedPset.h"
#include "Tests/Support/ExpectAsserts.h"
#include "Tests/Support/Make.h"

namespace qor::fc {
namespace {

using namespace core::kernel;
using namespace core::productextension;
using domain::electrical::Pset_ElectricalDeviceCommon;
using resource::measure::FcLabel;
using namespace resource::property;
using namespace resource::quantity;
using namespace shared::buildingelements;
using test::make;
using utilities::detail::getMergedPset;

class PropertySets : public testing::Test {
 protected:
  std::shared_ptr<FcPropertySet> set(FcObjectDefinition& object, const char* name) {
    return object.getOrCreatePropertySetDefinition<FcPropertySet>(*data, name);
  }
  std::shared_ptr<FcPropertySetDefinition> find(const FcObjectDefinition& object,
                                                const char* name) {
    return object.getPropertySetDefinitionNonConst<FcPropertySetDefinition>(name);
  }
  std::shared_ptr<FcPropertySingleValue> property(const char* name, const char* value = "") {
    auto made = make<FcPropertySingleValue>(*data, {{"Name", name}});
    made->setNominalValue(FcLabel(value));
    return made;
  }
  std::shared_ptr<FcQuantityLength> quantity(const char* name) {
    return make<FcQuantityLength>(*data, {{"Name", name}});
  }
  static std::string valueOf(const FcPropertySetDefinition& of, const char* name) {
    const auto found = fcCast<FcPropertySingleValue>(of.getPropertyAsFcBase(name));
    return found ? found->NominalValue().getAsString(false).value_or("no value") : "none";
  }
  std::size_t relations() const { return data->entities<FcRelDefinesByProperties>().size(); }

  const std::shared_ptr<Data> data = std::make_shared<Data>();
  const std::shared_ptr<FcWall> wall = data->create<FcWall>(), other = data->create<FcWall>();
  const std::shared_ptr<FcWallType> type = data->create<FcWallType>();
  const std::shared_ptr<FcProject> project = data->create<FcProject>();
};

TEST_F(PropertySets, AreMadeOnceOnEachKindOfObject) {
  for (FcObjectDefinition* object :
       std::initializer_list<FcObjectDefinition*>{wall.get(), type.get(), project.get()}) {
    SCOPED_TRACE(object->ifcName());
    const std::size_t before = relations();
    EXPECT_EQ(find(*object, "A"), nullptr);
    const auto made = set(*object, "A");
    EXPECT_EQ(made->Name(), "A");
    EXPECT_FALSE(made->GlobalId().isNull());
    EXPECT_TRUE(data->hasEntity(*made));
    EXPECT_EQ(set(*object, "A"), made);
    EXPECT_EQ(find(*object, "A"), made);
    EXPECT_EQ(find(*object, "a"), nullptr);
    EXPECT_EQ(relations() - before, object == type.get() ? 0U : 1U);

    EXPECT_EQ(object->getPropertySetDefinitionNonConst<FcElementQuantity>("A"), nullptr);
    const auto quantities = object->getOrCreatePropertySetDefinition<FcElementQuantity>(*data, "A");
    EXPECT_EQ(object->getPropertySetDefinitions<FcPropertySetDefinition>().size(), 2U);
    EXPECT_EQ(object->getPropertySetDefinitions<FcPropertySet>(),
              std::vector<std::shared_ptr<const FcPropertySet>>{made});
    EXPECT_EQ(object->getPropertySetDefinitions<FcElementQuantity>(),
              std::vector<std::shared_ptr<const FcElementQuantity>>{quantities});

    EXPECT_TRUE(object->deletePropertySetDefinition("A"));
    EXPECT_TRUE(object->deletePropertySetDefinition("A"));
    EXPECT_FALSE(object->deletePropertySetDefinition("A"));
    EXPECT_TRUE(data->hasEntity(*made));
  }
}

TEST_F(PropertySets, InitialiseOnlyWhatIsNewInTheOrderOfTheirOwner) {
  std::string calls;
  const auto onSet = [&](FcPropertySet& made) { calls += made.Name().value_or("?") + " "; };
  const auto onRelation = [&](FcRelDefinesByProperties& relation) {
    calls += relation.RelatingPropertyDefinition().isSet() ? "named " : "empty ";
  };
  for (int i = 0; i < 2; ++i) {
    wall->getOrCreatePropertySetDefinition<FcPropertySet>(*data, "W", onSet, onRelation);
    project->getOrCreatePropertySetDefinition<FcPropertySet>(*data, "P", onSet, onRelation);
    type->getOrCreatePropertySetDefinition<FcPropertySet>(*data, "T", onSet);
  }
  EXPECT_EQ(calls, "W named P empty T ");
}

TEST_F(PropertySets, OfATypeWithoutAModelAreListedNowhere) {
  const auto loose = std::make_shared<FcWallType>();
  const std::size_t size = data->size();
  const auto made = set(*loose, "A");
  EXPECT_EQ(data->size(), size);
  EXPECT_EQ(made->data(), nullptr);
  EXPECT_EQ(find(*loose, "A"), made);
}

TEST_F(PropertySets, WithoutANameAreNeverFoundByName) {
  const auto nameless = data->create<FcPropertySet>();
  wall->propertySetAdd(*data, nameless);
  type->setHasPropertySets({nameless, nullptr});
  for (const FcObjectDefinition* object :
       std::initializer_list<FcObjectDefinition*>{wall.get(), type.get()}) {
    EXPECT_EQ(find(*object, ""), nullptr);
    EXPECT_EQ(object->getPropertySetDefinitions<FcPropertySet>().size(), 1U);
  }
}

TEST_F(PropertySets, AreSharedByOneRelationship) {
  const auto shared = set(*wall, "A");
  other->propertySetAdd(*data, shared);
  ASSERT_EQ(shared->DefinesOccurrence().size(), 1U);
  const auto relation = shared->DefinesOccurrence().lockFirst();
  EXPECT_EQ(relation->RelatedObjects().size(), 2U);
  project->propertySetAdd(*data, shared);
  EXPECT_EQ(relations(), 2U);

  EXPECT_TRUE(wall->deletePropertySetDefinition("A"));
  EXPECT_EQ(find(*wall, "A"), nullptr);
  EXPECT_EQ(find(*other, "A"), shared);
  EXPECT_EQ(relation->RelatedObjects().size(), 1U);
  EXPECT_TRUE(other->deletePropertySetDefinition("A"));
  EXPECT_TRUE(data->hasEntity(*relation));
}

TEST_F(PropertySets, GetANewRelationshipWhereTheOldOneHasDied) {
  const auto shared = set(*wall, "A");
  data->entityDelete(shared->DefinesOccurrence().lockFirst());
  EXPECT_EQ(find(*wall, "A"), nullptr);
  other->propertySetAdd(*data, shared);
  EXPECT_EQ(find(*other, "A"), shared);
}

TEST_F(PropertySets, InAListAreFoundAndDetachedOneByOne) {
  const auto a = make<FcPropertySet>(*data, {{"Name", "A"}});
  const auto b = make<FcPropertySet>(*data, {{"Name", "B"}});
  const auto relation = data->create<FcRelDefinesByProperties>();
  relation->setRelatingPropertyDefinition(
      FcPropertySetDefinitionSet(std::vector<std::shared_ptr<FcPropertySetDefinition>>{a, b}));
  relation->insertRelatedObjects(wall);
  relation->insertRelatedObjects(other);
  EXPECT_EQ(wall->getPropertySetDefinitions<FcPropertySet>(),
            (std::vector<std::shared_ptr<const FcPropertySet>>{a, b}));

  EXPECT_TRUE(wall->deletePropertySetDefinition("A"));
  EXPECT_EQ(find(*wall, "A"), nullptr);
  EXPECT_EQ(find(*wall, "B"), b);
  EXPECT_EQ(find(*other, "A"), a);
  EXPECT_TRUE(wall->deletePropertySetDefinition("B"));
  EXPECT_EQ(find(*wall, "B"), nullptr);
  EXPECT_EQ(find(*other, "B"), b);
}

TEST_F(PropertySets, LeaveEverythingWhenTheyAreDeleted) {
  const auto doomed = set(*wall, "A"), kept = set(*wall, "B");
  other->propertySetAdd(*data, doomed);
  type->insertHasPropertySets(doomed);
  const auto own = property("own"), shared = property("shared"), inComplex = property("complex");
  for (const auto& each : {own, shared, inComplex}) doomed->addProperty(each);
  kept->addProperty(shared);
  const auto complex = data->create<FcComplexProperty>();
  complex->insertHasProperties(inComplex);
  const auto relation = doomed->DefinesOccurrence().lockFirst();

  doomed->deletePset(*data);
  EXPECT_FALSE(data->hasEntity(*relation));
  EXPECT_EQ(find(*wall, "A"), nullptr);
  EXPECT_EQ(find(*other, "A"), nullptr);
  EXPECT_EQ(find(*type, "A"), nullptr);
  EXPECT_EQ(find(*wall, "B"), kept);
  EXPECT_TRUE(doomed->HasProperties().empty());
  EXPECT_TRUE(data->hasEntity(*doomed));
  EXPECT_FALSE(data->hasEntity(*own));
  EXPECT_TRUE(data->hasEntity(*shared));
  EXPECT_TRUE(data->hasEntity(*inComplex));
}

TEST_F(PropertySets, LoseTheirQuantitiesWithoutATestForSharing) {
  const auto one = data->create<FcElementQuantity>(), two = data->create<FcElementQuantity>();
  const auto shared = quantity("Width");
  one->insertQuantities(shared);
  two->insertQuantities(shared);
  EXPECT_TRUE(one->hasPropertyOrQuantity("Width"));
  EXPECT_FALSE(one->hasPropertyOrQuantity("width"));
  EXPECT_EQ(one->getPropertyAsFcBase("Width"), shared);
  one->deleteAllProperties(*data);
  EXPECT_TRUE(one->Quantities().empty());
  EXPECT_EQ(two->Quantities().size(), 1U);
  EXPECT_FALSE(data->hasEntity(*shared));
}

TEST_F(PropertySets, GiveAPropertyAwayByName) {
  const auto of = set(*wall, "A");
  const auto first = property("Same"), second = property("Same");
  of->addProperty(first);
  of->addProperty(second);
  EXPECT_EQ(of->getPropertyAsFcBase("Same"), first);
  EXPECT_EQ(first->getPropertySetName(), "A");
  EXPECT_TRUE(of->deleteProperty("Same"));
  EXPECT_EQ(of->getPropertyAsFcBase("Same"), second);
  EXPECT_TRUE(data->hasEntity(*first));
  EXPECT_EQ(first->getPropertySetName(), std::nullopt);
  EXPECT_FALSE(of->deleteProperty("Other"));
}

TEST_F(PropertySets, FollowTheirLastPropertyWhereThatIsAskedFor) {
  for (const bool deleteEmptySets : {false, true}) {
    const auto full = set(*wall, "Full"), single = set(*wall, "Single");
    const auto doomed = property("Doomed");
    full->addProperty(property("Other"));
    full->addProperty(doomed);
    single->addProperty(doomed);
    const auto complex = data->create<FcComplexProperty>();
    complex->insertHasProperties(doomed);
    doomed->deleteProperty(*data, deleteEmptySets);
    EXPECT_FALSE(data->hasEntity(*doomed));
    EXPECT_TRUE(complex->HasProperties().empty());
    EXPECT_EQ(find(*wall, "Full"), full);
    EXPECT_EQ(find(*wall, "Single") == nullptr, deleteEmptySets);
  }
}

TEST_F(PropertySets, OfOneSideAloneAreMergedIntoThemselves) {
  const auto pair = [&](const char* name) { return getMergedPset(name, wall.get(), type.get()); };
  EXPECT_EQ(pair("A").first, nullptr);
  EXPECT_EQ(pair("A").second, nullptr);
  const auto ofWall = set(*wall, "A"), ofType = set(*type, "B");
  EXPECT_EQ(pair("A").first, ofWall);
  EXPECT_EQ(pair("A").second, data);
  EXPECT_EQ(pair("B").first, ofType);
  EXPECT_EQ(getMergedPset("A", nullptr, type.get()).first, nullptr);
  EXPECT_EQ(getMergedPset("B", wall.get(), nullptr).first, nullptr);
}

TEST_F(PropertySets, OfBothSidesAreMergedWithTheOccurrenceFirst) {
  const auto ofWall = set(*wall, "A"), ofType = set(*type, "A");
  ofWall->addProperty(property("Both", "wall"));
  ofWall->addProperty(property("Own", "wall"));
  ofType->addProperty(property("Both", "type"));
  ofType->addProperty(property("Typed", "type"));
  const std::size_t size = data->size();
  const auto [merged, store] = getMergedPset("A", wall.get(), type.get());
  EXPECT_EQ(valueOf(*merged, "Both"), "wall");
  EXPECT_EQ(valueOf(*merged, "Own"), "wall");
  EXPECT_EQ(valueOf(*merged, "Typed"), "type");
  EXPECT_EQ(fcCast<const FcPropertySet>(merged)->HasProperties().size(), 3U);
  EXPECT_EQ(merged->data(), store);
  EXPECT_NE(merged->getPropertyAsFcBase("Typed"), ofType->getPropertyAsFcBase("Typed"));
  EXPECT_EQ(ofType->HasProperties().size(), 2U);
  EXPECT_EQ(ofType->HasProperties()[1]->PartOfPset().size(), 1U);
  EXPECT_EQ(data->size(), size);
}

TEST_F(PropertySets, OfQuantitiesAreMergedToo) {
  const auto ofWall = wall->getOrCreatePropertySetDefinition<FcElementQuantity>(*data, "Q");
  const auto ofType = type->getOrCreatePropertySetDefinition<FcElementQuantity>(*data, "Q");
  ofWall->insertQuantities(quantity("Width"));
  ofType->insertQuantities(quantity("Width"));
  ofType->insertQuantities(quantity("Height"));
  const auto [merged, store] = getMergedPset("Q", wall.get(), type.get());
  EXPECT_EQ(fcCast<const FcElementQuantity>(merged)->Quantities().size(), 2U);
  EXPECT_TRUE(merged->hasPropertyOrQuantity("Height"));
}

TEST_F(PropertySets, AndTextsOfOneObjectAreMergedIntoThoseOfAnother) {
  for (const auto& of : {wall, other}) {
    const bool isTarget = of == wall;
    const char* const origin = isTarget ? "target" : "source";
    for (const char* name : {"Both", isTarget ? "Own" : "New"})
      set(*of, "P")->addProperty(property(name, origin));
    of->getOrCreatePropertySetDefinition<FcElementQuantity>(*data, "Q")
        ->insertQuantities(quantity("Width"));
    of->setName(origin);
  }
  other->setTag("T1");
  other->setPredefinedTypeFromString("PARAPET");
  utilities::merge(*wall, *other);
  const auto merged = set(*wall, "P");
  EXPECT_EQ(merged->HasProperties().size(), 3U);
  EXPECT_EQ(valueOf(*merged, "Both"), "source");
  EXPECT_EQ(valueOf(*merged, "New"), "source");
  EXPECT_EQ(valueOf(*merged, "Own"), "target");
  EXPECT_EQ(wall->getPropertySetDefinitionNonConst<FcElementQuantity>("Q")->Quantities().size(),
            2U);
  EXPECT_EQ(set(*other, "P")->HasProperties().size(), 2U);
  EXPECT_EQ(wall->Name(), "target");
  EXPECT_EQ(wall->Tag(), "T1");
  EXPECT_EQ(wall->predefinedTypeAsString(), "PARAPET");
}

TEST_F(PropertySets, OfAMaterialHaveTheSameFace) {
  const auto steel = data->create<resource::material::FcMaterial>();
  const auto made = steel->getOrCreatePropertySet(*data, "Pset_MaterialCommon");
  EXPECT_EQ(steel->getOrCreatePropertySet(*data, "Pset_MaterialCommon"), made);
  EXPECT_EQ(steel->getPropertySets(), std::vector{made});
  EXPECT_EQ(made->Material(), steel);
  made->addProperty(property("MassDensity"));
  EXPECT_EQ(made->Properties().size(), 1U);
  EXPECT_TRUE(made->deleteProperty("MassDensity"));
  EXPECT_FALSE(made->deleteProperty("MassDensity"));
  EXPECT_FALSE(steel->deletePropertySet(*data, "Other"));
  EXPECT_TRUE(steel->deletePropertySet(*data, "Pset_MaterialCommon"));
  EXPECT_TRUE(steel->getPropertySets().empty());
  EXPECT_FALSE(data->hasEntity(*made));
}

TEST_F(PropertySets, OfTheStandardHaveTypedViews) {
  const auto building = data->create<core::productextension::FcBuilding>();
  const char* const name = "Pset_BuildingCommon";
  EXPECT_EQ(building->getPropertySetDefinitionNonConst<Pset_BuildingCommon>(name), nullptr);
  const auto plain = set(*building, name);
  plain->addProperty(property("NumberOfStoreys", "three"));
  const auto view = building->getPropertySetDefinitionNonConst<Pset_BuildingCommon>(name);
  EXPECT_EQ(view->propertySet(), plain);
  EXPECT_EQ(view->NumberOfStoreys(), std::nullopt);  // a text
  view->setNumberOfStoreys(3);
  view->setGrossPlannedArea(120.5);
  view->setIsLandmarked(true);
  view->setOccupancyType("Office");
  EXPECT_EQ(view->NumberOfStoreys(), 3);
  EXPECT_EQ(view->GrossPlannedArea(), 120.5);
  EXPECT_EQ(view->IsLandmarked(), true);
  EXPECT_EQ(view->OccupancyType(), "Office");
  EXPECT_EQ(view->YearOfConstruction(), std::nullopt);
  EXPECT_EQ(plain->HasProperties().size(), 4U);
  const auto area = fcCast<FcPropertySingleValue>(plain->getPropertyAsFcBase("GrossPlannedArea"));
  EXPECT_EQ(area->NominalValue().getAsString(true), "AreaMeasure(120.500000)");
  EXPECT_TRUE(data->hasEntity(*area));

  const auto device = std::make_shared<Pset_ElectricalDeviceCommon>(set(*wall, "E"));
  device->setRatedVoltage(230);
  device->setNumberOfPoles(2);
  const auto found = wall->getPropertySetDefinitionNonConst<Pset_ElectricalDeviceCommon>("E");
  EXPECT_EQ(found->RatedVoltage(), 230);
  EXPECT_EQ(found->NumberOfPoles(), 2);
}

}  // namespace
}  // namespace qor::fc
