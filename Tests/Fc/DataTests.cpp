#include "Fc/Data.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "Fc/Core/Kernel/FcProject.h"
#include "Fc/Core/Kernel/FcRelAggregates.h"
#include "Fc/Core/ProductExtension/FcSite.h"
#include "Fc/Factory.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Representation/FcGeometricRepresentationSubContext.h"
#include "Fc/Shared/BuildingElements/FcSlab.h"
#include "Fc/Shared/BuildingElements/FcWall.h"
#include "Fc/Shared/BuildingElements/FcWallStandardCase.h"
#include "Tests/Support/ExpectAsserts.h"

namespace qor::fc {
namespace {

using namespace core::kernel;
using core::productextension::FcSite;
using qor::test::ExpectAsserts;
using resource::geometry::FcCartesianPoint;
using namespace shared::buildingelements;
using namespace testing;

// Gives tests what is meant for derived classes.
class OpenData : public Data {
 public:
  using Data::idFromName;
  using Data::rangeFromId;
};

template <class Range>
std::size_t count(const Range& range) {
  return static_cast<std::size_t>(range.second - range.first);
}

std::shared_ptr<FcWall> wallWithGuid(Data& data, const Guid& guid) {
  auto wall = data.create<FcWall>();
  wall->setGuid(guid);
  return wall;
}

TEST(Data, CreatesByNameAndAddsNothingForAnUnknownOne) {
  const auto data = std::make_shared<Data>();
  const ExpectAsserts expected(
      {"Illegal class name or abstract class (IFCWALL)",
       "Illegal class name or abstract class (IfcProduct)",
       {"Illegal class name (IfcNothing)", "qor::fc::Factory::boundFromIfcName", "FcFactory"}});
  const auto wall = data->entityCreate("IfcWall");
  ASSERT_TRUE(wall);
  EXPECT_TRUE(data->hasEntity(*wall));
  EXPECT_TRUE(fcCast<FcRoot>(wall)->getGuid().isNull());
  EXPECT_EQ(data->entityCreate("IFCWALL"), nullptr);
  EXPECT_EQ(data->entityCreate("IfcProduct"), nullptr);
  EXPECT_EQ(data->size(), 1U);
  EXPECT_THAT(OpenData::idFromName("IfcWall"), Pair(429U, 430U));
  EXPECT_THAT(OpenData::idFromName("IfcRoot"), Pair(357U, 840U)) << "abstract";
  EXPECT_THAT(OpenData::idFromName("IfcNothing"), Pair(0U, 0U));
}

TEST(Data, FindsEntitiesOfAClassWithAndWithoutItsSubclasses) {
  const auto data = std::make_shared<OpenData>();
  const auto point = data->create<FcCartesianPoint>();
  const auto standardCase = data->create<FcWallStandardCase>();
  const auto slab = data->create<FcSlab>();
  const auto wall = data->create<FcWall>();
  const OpenData& reader = *data;
  EXPECT_EQ(count(reader.rangeFromId(429)), 1U);
  EXPECT_EQ(count(reader.rangeFromId(429, 430)), 2U);
  EXPECT_EQ(count(data->rangeFromId(357, 840)), 3U);
  EXPECT_EQ(count(data->rangeFromId(10001)), 0U);
  EXPECT_THAT(data->entities<FcWall>(), ElementsAre(wall, standardCase));
  EXPECT_EQ(data->entities<FcWall>().size(), 2U);
  EXPECT_THAT(data->entitiesExactly<FcWall>(), ElementsAre(wall));
  EXPECT_THAT(data->entities<FcSite>(), IsEmpty());
  EXPECT_EQ(data->findFirst<FcRoot>([&](const FcRoot& root) { return &root != slab.get(); }), wall);
  EXPECT_EQ(data->findFirst<FcWall>([](const FcWall& w) { return w.Name().has_value(); }), nullptr);

  const auto second = data->create<FcWall>();  // a query after an add sorts again
  EXPECT_THAT(data->entitiesExactly<FcWall>(), UnorderedElementsAre(wall, second));
}

TEST(Data, KeepsAThousandEntitiesInTheOrderOfTheirClasses) {
  const auto data = std::make_shared<Data>();
  const auto classes = Factory::classes();
  for (std::size_t i = 0; data->size() < 1000; ++i)
    if (const ClassInfo& info = *classes[(i * 389) % classes.size()]; !info.isAbstract())
      data->entityAdd(info.create(), false);
  const auto all = data->allEntities();
  EXPECT_TRUE(std::is_sorted(all.begin(), all.end(), [](const auto& a, const auto& b) {
    return a->classId() < b->classId();
  }));
  for (const auto& entity : all) EXPECT_TRUE(data->hasEntity(*entity));
}

TEST(Data, ListsAnEntityTwiceUnlessAskedToCheck) {
  const ExpectAsserts none;
  const auto data = std::make_shared<Data>();
  const auto point = data->create<FcCartesianPoint>();
  data->entityAdd(point, true);
  data->entityAdd(nullptr, false);
  data->entityAdd(nullptr, true);
  EXPECT_EQ(data->size(), 1U);
  data->entityAdd(point, false);
  EXPECT_EQ(data->size(), 2U);
  EXPECT_TRUE(data->entityDelete(point));
  EXPECT_TRUE(data->hasEntity(*point));
}

TEST(Data, TellsRootsAndContextsTheirModel) {
  auto data = std::make_shared<Data>();
  const auto wall = data->create<FcWall>();
  const auto context =
      data->create<resource::representation::FcGeometricRepresentationSubContext>();
  EXPECT_EQ(wall->data(), data);
  EXPECT_EQ(context->data(), data);
  data.reset();
  EXPECT_EQ(wall->data(), nullptr);

  Data unshared;
  const ExpectAsserts expected({"This should be created with std::make_shared"});
  unshared.entityAdd(std::make_shared<FcCartesianPoint>(), false);
  unshared.entityAdd(wall, false);
  EXPECT_TRUE(unshared.hasEntity(*wall));
  EXPECT_EQ(wall->data(), nullptr);
}

TEST(Data, FindsARootByItsGuidOnceItHasOne) {
  const ExpectAsserts none;
  const auto data = std::make_shared<Data>();
  const Guid guid = Guid::generate();
  const auto wall = data->create<FcWall>();
  EXPECT_EQ(data->entityByGuid(guid), nullptr);
  EXPECT_EQ(data->entityByGuid(Guid()), nullptr);
  wall->setGuid(guid);
  EXPECT_EQ(data->entityByGuid(guid), wall);
  const Guid later = Guid::generate();
  wall->setGuid(later);
  EXPECT_EQ(data->entityByGuid(guid), wall) << "a root stays under the guid of its first look-up";
  EXPECT_EQ(data->entityByGuid(later), nullptr);
}

TEST(Data, KeepsTheFirstOfTwoRootsWithOneGuid) {
  const auto data = std::make_shared<Data>();
  const Guid guid = Guid::generate();
  const auto first = wallWithGuid(*data, guid);
  const auto second = data->create<FcSlab>();
  second->setGuid(guid);
  const ExpectAsserts expected({{"Guid with id '" + guid.toString(false) +
                                     "' already exist in m_guidEntityMap on object 'IfcSlab'",
                                 "qor::fc::Data::guidUpdate"}});
  EXPECT_EQ(data->entityByGuid(guid), first);
  EXPECT_EQ(data->entityByGuid(guid), first) << "reported once";
  EXPECT_TRUE(data->hasEntity(*second));
}

TEST(Data, DeletesFromTheListAndTheGuidsAlone) {
  const ExpectAsserts none;
  const auto data = std::make_shared<Data>();
  const Guid guid = Guid::generate();
  const auto wall = wallWithGuid(*data, guid);
  const auto parent = data->create<FcRelAggregates>();
  parent->setRelatedObjects({wall});
  const auto other = data->create<FcWall>();
  EXPECT_TRUE(data->entityDelete(wall));
  EXPECT_FALSE(data->hasEntity(*wall));
  EXPECT_EQ(data->entityByGuid(guid), nullptr) << "a root that was never looked up goes as well";
  EXPECT_THAT(parent->RelatedObjects(), ElementsAre(wall));
  EXPECT_EQ(wall->Decomposes().lock(), parent);
  EXPECT_EQ(wall->data(), data);
  EXPECT_THAT(data->entities<FcWall>(), ElementsAre(other));

  EXPECT_FALSE(data->entityDelete(wall));
  EXPECT_FALSE(data->entityDelete(nullptr));
  EXPECT_EQ(data->size(), 2U);
}

TEST(Data, FindsNoDeletedRootThatGetsItsGuidLater) {
  const ExpectAsserts none;
  const auto data = std::make_shared<Data>();
  const auto deletedBefore = data->create<FcWall>(), deletedAfter = data->create<FcWall>();
  const auto kept = data->create<FcWall>();
  EXPECT_TRUE(data->entityDelete(deletedBefore));
  EXPECT_EQ(data->entityByGuid(Guid::generate()), nullptr);
  EXPECT_TRUE(data->entityDelete(deletedAfter));
  for (const auto& wall : {deletedBefore, deletedAfter, kept}) {
    const Guid guid = Guid::generate();
    wall->setGuid(guid);
    EXPECT_EQ(data->entityByGuid(guid), wall == kept ? kept : nullptr);
  }
}

TEST(Data, KnowsTheProjectThatWasAddedLast) {
  const auto data = std::make_shared<Data>();
  const auto first = data->create<FcProject>();
  const auto second = data->create<FcProject>();
  const Data& reader = *data;
  EXPECT_EQ(reader.project(), second);
  EXPECT_TRUE(data->entityDelete(second));
  EXPECT_EQ(data->project(), first) << "another one that is listed";
  EXPECT_TRUE(data->entityDelete(first));
  EXPECT_EQ(data->project(), nullptr);
}

TEST(Data, ClearForgetsItsEntitiesAndLeavesThemAsTheyAre) {
  const ExpectAsserts none;
  const auto data = std::make_shared<Data>();
  const Guid guid = Guid::generate();
  const auto wall = wallWithGuid(*data, guid);
  const auto parent = data->create<FcRelAggregates>();
  parent->setRelatedObjects({wall});
  data->create<FcProject>();
  EXPECT_EQ(data->entityByGuid(guid), wall);
  data->create<FcSlab>();
  data->clear();
  EXPECT_EQ(data->size(), 0U);
  EXPECT_EQ(data->project(), nullptr);
  EXPECT_EQ(data->entityByGuid(guid), nullptr);
  EXPECT_EQ(wall->Decomposes().lock(), parent);
  EXPECT_EQ(wall->data(), data);
  data->entityAdd(wall, false);
  EXPECT_EQ(data->entityByGuid(guid), wall) << "a cleared model may be filled again";
}

TEST(Data, ReachesWhatAnEntityNamesInBothDirections) {
  const auto aggregation = std::make_shared<FcRelAggregates>();
  const auto project = std::make_shared<FcProject>();
  const auto site = std::make_shared<FcSite>();
  const std::shared_ptr<const FcBase> point = std::make_shared<FcCartesianPoint>();
  aggregation->setRelatingObject(project);
  aggregation->setRelatedObjects({site});
  EXPECT_THAT(Data::getAllReferencedEntitiesNonConst(site),
              UnorderedElementsAre(site, aggregation, project));
  EXPECT_THAT(Data::getAllReferencedEntities(point), ElementsAre(point));
  EXPECT_TRUE(Data::getAllReferencedEntities(nullptr).empty());
}

TEST(Data, RebuildKeepsWhatTheProjectReaches) {
  const auto data = std::make_shared<Data>();
  const auto wall = wallWithGuid(*data, Guid::generate());
  {
    const ExpectAsserts expected(
        {"fc::Data::rebuildEntityList can only be used if data contains a project"});
    data->rebuildEntityList();
    EXPECT_TRUE(data->hasEntity(*wall)) << "without a project nothing changes";
  }
  const ExpectAsserts none;
  const auto project = data->create<FcProject>();
  const auto aggregation = data->create<FcRelAggregates>();
  aggregation->setRelatingObject(project);
  aggregation->setRelatedObjects({wall});
  const auto stray = data->create<FcCartesianPoint>();
  data->rebuildEntityList();
  EXPECT_THAT(data->allEntities(), ElementsAre(project, wall, aggregation));
  EXPECT_EQ(data->project(), project);
  EXPECT_EQ(data->entityByGuid(wall->getGuid()), wall);
  EXPECT_FALSE(data->hasEntity(*stray));
}

TEST(Data, IsWalkedOverAsItWasWhenTheLoopBegan) {
  const auto data = std::make_shared<Data>();
  for (int i = 0; i < 100; ++i) data->create<FcWall>();
  const auto before = data->entities<FcWall>();
  std::size_t met = 0;
  for (const std::shared_ptr<FcWall> wall : data->entities<FcWall>()) {
    data->create<FcCartesianPoint>();
    data->create<FcWall>();
    EXPECT_EQ(data->entities<FcWall>().size(), 101 + met / 2);
    if (met % 2 == 0) {
      EXPECT_TRUE(data->entityDelete(wall)) << "the one at hand";
    }
    ++met;
  }
  EXPECT_EQ(met, 100U);
  EXPECT_EQ(data->entities<FcWall>().size(), 150U);
  data->clear();
  EXPECT_EQ(before.size(), 100U);
  for (const std::shared_ptr<FcWall> wall : before) EXPECT_EQ(wall->classId(), 429U);
}

TEST(Data, IsSortedWhateverIsAddedBetweenQueries) {
  const auto data = std::make_shared<Data>();
  std::vector<std::shared_ptr<FcBase>> added;
  const auto add = [&](const std::shared_ptr<FcBase>& entity) { added.push_back(entity); };
  for (int run = 0; run < 20; ++run) {
    for (int i = 0; i < run; ++i) {
      add(data->create<FcSlab>());
      add(data->create<FcCartesianPoint>());
      add(data->create<FcWall>());
    }
    std::ranges::stable_sort(added, {}, [](const auto& entity) { return entity->classId(); });
    EXPECT_THAT(data->allEntities(), ElementsAreArray(added));
  }
}

TEST(Data, FindsARootThatWasGivenItsGuidByWhateverRoad) {
  const ExpectAsserts none;
  const auto data = std::make_shared<Data>();
  const auto find = [&](const std::shared_ptr<FcWall>& wall) {
    return data->entityByGuid(wall->GlobalId());
  };
  const auto set = data->create<FcWall>(), read = data->create<FcWall>(),
             local = data->create<FcWall>();
  EXPECT_EQ(data->entityByGuid(Guid::generate()), nullptr);
  set->setGlobalId(Guid::generate());
  EXPECT_EQ(find(set), set);
  EXPECT_TRUE(read->setAttributeFromString("GlobalId", Guid::generate().toString(false)));
  EXPECT_EQ(find(read), read);
  EXPECT_TRUE(local->setLocalValue(LocalValue(Guid::generate()), object::PropertyId("GlobalId")));
  EXPECT_EQ(find(local), local);
}

TEST(Data, ForgetsTheGuidOfADeletedRootAlone) {
  const auto data = std::make_shared<Data>();
  const Guid guid = Guid::generate();
  const auto first = wallWithGuid(*data, guid), second = wallWithGuid(*data, guid);
  const ExpectAsserts expected({"Guid with id '" + guid.toString(false) +
                                "' already exist in m_guidEntityMap on object 'IfcWall'"});
  EXPECT_EQ(data->entityByGuid(guid), first);
  data->entityDelete(first);
  EXPECT_EQ(data->entityByGuid(guid), second) << "the other one of that guid";

  second->setGuid(Guid::generate());
  data->entityDelete(second);
  EXPECT_EQ(data->entityByGuid(guid), nullptr) << "listed under the guid that it had";

  auto nameless = data->create<FcWall>();
  data->entityDelete(nameless);
  const std::weak_ptr<FcWall> watched = nameless;
  nameless.reset();
  EXPECT_TRUE(watched.expired());
}

TEST(Data, RebuildKeepsTheOrder) {
  const auto data = std::make_shared<Data>();
  const auto aggregation = data->create<FcRelAggregates>();
  std::vector<std::shared_ptr<FcBase>> walls;
  for (int i = 0; i < 200; ++i) {
    // Places in memory that rise and fall.
    const auto wall = i % 2 == 0 ? std::make_shared<FcWall>() : makeEntity<FcWall>();
    walls.push_back(wall);
    data->entityAdd(wall, false);
  }
  std::ranges::reverse(walls);
  data->clear();
  aggregation->setRelatingObject(data->create<FcProject>());
  for (const auto& wall : walls) {
    data->entityAdd(wall, false);
    aggregation->insertRelatedObjects(std::static_pointer_cast<FcWall>(wall));
  }
  data->rebuildEntityList();
  EXPECT_THAT(data->entities<FcWall>(), ElementsAreArray(walls));
  data->clear();
  const auto unlisted = data->create<FcProject>();
  aggregation->setRelatingObject(unlisted);
  data->rebuildEntityList();
  EXPECT_THAT(data->entities<FcWall>(), ElementsAreArray(walls))
      << "as the relationship names them";
}

}  // namespace
}  // namespace qor::fc
