#include "Fc/Utilities/DeleteEntities.h"

#include <gmock/gmock.h>

#include "Fc/Core/Kernel/FcProject.h"
#include "Fc/Core/Kernel/FcPropertySet.h"
#include "Fc/Core/Kernel/FcRelAggregates.h"
#include "Fc/Core/Kernel/FcRelDefinesByProperties.h"
#include "Fc/Core/ProductExtension/FcBuildingStorey.h"
#include "Fc/Core/ProductExtension/FcRelContainedInSpatialStructure.h"
#include "Fc/Resource/GeometricConstraint/FcLocalPlacement.h"
#include "Fc/Resource/Geometry/FcBSplineSurfaceWithKnots.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Representation/FcProductDefinitionShape.h"
#include "Fc/Resource/Representation/FcShapeRepresentation.h"
#include "Fc/Shared/BuildingElements/FcWall.h"
#include "Tests/Support/ExpectAsserts.h"
#include "Tests/Support/Make.h"

namespace qor::fc::utilities {
namespace {

using namespace core::kernel;
using namespace core::productextension;
using namespace resource::geometry;
using namespace resource::representation;
using resource::geometricconstraint::FcLocalPlacement;
using shared::buildingelements::FcWall;
using test::ExpectAsserts;
using testing::ElementsAre;
using testing::IsEmpty;

/// A project with a storey; walls come into the storey by `addWall`.
struct StoreyModel : testing::Test {
  StoreyModel() {
    aggregates->setRelatingObject(project);
    aggregates->insertRelatedObjects(storey);
    contains->setRelatingStructure(storey);
  }
  std::shared_ptr<FcWall> addWall() {
    auto wall = data->create<FcWall>();
    wall->setGlobalId(Guid::generate());
    wall->setObjectPlacement(data->create<FcLocalPlacement>());
    contains->insertRelatedElements(wall);
    return wall;
  }
  std::size_t walls() const { return data->entities<FcWall>().size(); }

  std::shared_ptr<Data> data = std::make_shared<Data>();
  std::shared_ptr<FcProject> project = data->create<FcProject>();
  std::shared_ptr<FcBuildingStorey> storey = data->create<FcBuildingStorey>();
  std::shared_ptr<FcRelAggregates> aggregates = data->create<FcRelAggregates>();
  std::shared_ptr<FcRelContainedInSpatialStructure> contains =
      data->create<FcRelContainedInSpatialStructure>();
  ExpectAsserts noAsserts;
};
using DeleteEntities = StoreyModel;

TEST_F(DeleteEntities, LeavesTheContainmentOfTheOnlyWallWithoutElements) {
  auto wall = addWall();
  const Guid guid = wall->GlobalId();
  ASSERT_EQ(data->entityByGuid(guid), wall);
  const std::weak_ptr<FcWall> watched = wall;
  deleteEntities(*data, {std::exchange(wall, nullptr).get()});
  EXPECT_TRUE(watched.expired());
  EXPECT_TRUE(data->hasEntity(*contains));
  EXPECT_THAT(contains->RelatedElements(), IsEmpty());
  EXPECT_THAT(storey->ContainsElements().lock(), ElementsAre(contains));
  EXPECT_EQ(data->entityByGuid(guid), nullptr);
  EXPECT_THAT(data->entities<FcLocalPlacement>(), IsEmpty()) << "only the wall led to it";
  EXPECT_EQ(data->size(), 4U);
  EXPECT_EQ(data->project(), project);
}

TEST_F(DeleteEntities, KeepsTheOthersInStepAndInTheirOrder) {
  const auto a = addWall(), b = addWall(), c = addWall();
  c->setObjectPlacement(b->ObjectPlacement());
  const auto properties = data->create<FcPropertySet>();
  const auto defines = data->create<FcRelDefinesByProperties>();
  defines->setRelatedObjects({a, b, c});
  defines->setRelatingPropertyDefinition(std::shared_ptr<FcPropertySetDefinition>(properties));
  deleteEntities(*data, {b.get()});
  EXPECT_EQ(walls(), 2U);
  EXPECT_THAT(contains->RelatedElements(), ElementsAre(a, c));
  EXPECT_THAT(defines->RelatedObjects(), ElementsAre(a, c));
  EXPECT_THAT(c->ObjectPlacement()->PlacesObject().lock(), ElementsAre(c));
  EXPECT_EQ(c->ContainedInStructure().lock(), contains);
  EXPECT_THAT(properties->DefinesOccurrence().lock(), ElementsAre(defines));
  EXPECT_EQ(b->ObjectPlacement(), nullptr);
  EXPECT_THAT(b->IsDefinedBy().lock(), IsEmpty()) << "taken off the list of the relationship";
}

TEST_F(DeleteEntities, NullsSingleReferencesAndSelectsAndEmptiesSetsOfPropertyDefinitions) {
  const auto wall = addWall();
  const auto single = data->create<FcPropertySet>(), inSet = data->create<FcPropertySet>();
  const auto bySelect = data->create<FcRelDefinesByProperties>();
  const auto bySet = data->create<FcRelDefinesByProperties>();
  bySelect->setRelatingPropertyDefinition(std::shared_ptr<FcPropertySetDefinition>(single));
  bySet->setRelatingPropertyDefinition(FcPropertySetDefinitionSet({inSet}));
  for (const auto& defines : {bySelect, bySet}) defines->insertRelatedObjects(wall);
  deleteEntities(*data, {single.get(), inSet.get(), wall->ObjectPlacement().get(), nullptr});
  EXPECT_EQ(wall->ObjectPlacement(), nullptr);
  EXPECT_FALSE(bySelect->RelatingPropertyDefinition().isSet());
  EXPECT_THAT(bySet->RelatingPropertyDefinition().PropertySetDefinitionSet().value(), IsEmpty());
  EXPECT_TRUE(data->hasEntity(*bySelect));
  EXPECT_THAT(data->entities<FcPropertySet>(), IsEmpty());
}

TEST_F(DeleteEntities, TakesThemOutOfListsOfLists) {
  const auto surface = data->create<FcBSplineSurfaceWithKnots>();
  const auto kept = data->create<FcCartesianPoint>(), gone = data->create<FcCartesianPoint>();
  surface->setControlPointsList({{kept, gone}, {gone}});
  const auto representation =
      test::make<FcShapeRepresentation>(*data, {{"Items", std::vector{surface}}});
  addWall()->setRepresentation(test::make<FcProductDefinitionShape>(
      *data, {{"Representations", std::vector{representation}}}));
  deleteEntities(*data, {gone.get()});
  EXPECT_THAT(surface->ControlPointsList(), ElementsAre(ElementsAre(kept), IsEmpty()));
}

TEST_F(DeleteEntities, OfARelationshipCutsOffWhatItAloneLedTo) {
  addWall();
  const auto other = data->create<FcWall>();
  deleteEntities(*data, {contains.get()});
  EXPECT_EQ(walls(), 0U) << "neither the contained one nor the one that nothing ever led to";
  EXPECT_TRUE(storey->ContainsElements().empty());
  EXPECT_THAT(contains->RelatedElements(), IsEmpty());
  EXPECT_EQ(contains->RelatingStructure(), nullptr);
}

TEST_F(DeleteEntities, MayDeleteWhatOnlyAnotherDeletedOneHolds) {
  auto first = std::make_shared<FcLocalPlacement>(), second = std::make_shared<FcLocalPlacement>();
  // The set is worked on in the order of addresses: the holder comes before what it holds.
  if (second < first) std::swap(first, second);
  FcBase* const held = second.get();
  first->setPlacementRelTo(std::exchange(second, nullptr));
  addWall()->setObjectPlacement(first);
  deleteEntities(*data, {held, first.get()});
  EXPECT_EQ(first->PlacementRelTo(), nullptr);
  EXPECT_THAT(data->entities<FcLocalPlacement>(), IsEmpty());
}

TEST_F(DeleteEntities, PutsInverseAttributesRightThatWereOutOfStep) {
  const auto a = addWall(), b = addWall(), c = addWall();
  // As a reader writes members: nothing is linked or unlinked.
  const AttributeInfo& elements = FcRelContainedInSpatialStructure::info().attributes[0];
  LocalValue::List list;
  list.emplace_back(std::static_pointer_cast<FcBase>(a));
  elements.type->setLocalValue(elements.of(*contains), LocalValue(list));
  a->clearInverseAttributes();
  ASSERT_EQ(b->ContainedInStructure().lock(), contains);
  aggregates->insertRelatedObjects(b);
  deleteEntities(*data, {c.get()});
  EXPECT_EQ(a->ContainedInStructure().lock(), contains);
  EXPECT_EQ(b->ContainedInStructure().lock(), nullptr);
}

TEST_F(DeleteEntities, ReachesAlongAChainOfAHundredThousandReferences) {
  const auto wall = addWall();
  std::vector<std::shared_ptr<FcLocalPlacement>> chain;
  for (int i = 0; i < 100'000; ++i) {
    chain.push_back(data->create<FcLocalPlacement>());
    if (i > 0) chain[chain.size() - 2]->setPlacementRelTo(chain.back());
  }
  wall->setObjectPlacement(chain.front());
  deleteEntities(*data, {chain[50'000].get()});
  EXPECT_EQ(data->entities<FcLocalPlacement>().size(), 50'000U);
  EXPECT_EQ(chain[49'999]->PlacementRelTo(), nullptr);
  // Longest last, so that the chain isn't freed in one recursion.
  for (const auto& placement : chain) placement->clearPlacementRelTo();
}

TEST_F(DeleteEntities, OfTheProjectItselfKeepsWhatItLedToBackwards) {
  deleteEntities(*data, {project.get()});
  EXPECT_EQ(data->project(), nullptr);
  EXPECT_TRUE(data->hasEntity(*storey));
  EXPECT_EQ(aggregates->RelatingObject(), nullptr);
  EXPECT_EQ(storey->Decomposes().lock(), aggregates);
}

TEST(DeleteEntitiesWithoutProject, IsRefused) {
  const ExpectAsserts expected({{"deleteEntities can only be used if data contains a project",
                                 "qor::fc::utilities::deleteEntities", "DeleteEntities"}});
  const auto data = std::make_shared<Data>();
  const auto wall = data->create<FcWall>();
  wall->setObjectPlacement(data->create<FcLocalPlacement>());
  deleteEntities(*data, {wall.get()});
  EXPECT_EQ(data->size(), 2U);
  EXPECT_NE(wall->ObjectPlacement(), nullptr);
}

}  // namespace
}  // namespace qor::fc::utilities
