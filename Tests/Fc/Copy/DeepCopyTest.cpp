#include <gtest/gtest.h>

#include "Fc/Core/Kernel/FcRelDefinesByType.h"
#include "Fc/FcCopySettings.h"
#include "Fc/Model/ValueAttributes.h"
#include "Fc/Resource/Actor/FcPerson.h"
#include "Fc/Resource/Actor/FcPostalAddress.h"
#include "Fc/Resource/GeometricConstraint/FcLocalPlacement.h"
#include "Fc/Resource/GeometricModel/FcTriangulatedFaceSet.h"
#include "Fc/Resource/PresentationAppearance/FcIndexedTriangleTextureMap.h"
#include "Fc/Resource/PresentationAppearance/FcStyledItem.h"
#include "Fc/Resource/Representation/FcGeometricRepresentationContext.h"
#include "Fc/Resource/Representation/FcShapeRepresentation.h"
#include "Fc/Resource/Utility/FcOwnerHistory.h"
#include "Fc/Shared/BuildingElements/FcWall.h"
#include "Fc/Shared/BuildingElements/FcWallType.h"
#include "Tests/Support/Make.h"
#include "Tests/Support/RandomModel.h"

namespace qor::fc {
namespace {

using namespace resource::actor;
using core::kernel::FcRelDefinesByType;
using resource::geometricconstraint::FcLocalPlacement;
using resource::geometricmodel::FcTriangulatedFaceSet;
using test::make;
using namespace resource::presentationappearance;
using namespace resource::representation;
using resource::utility::FcOwnerHistory;
using namespace shared::buildingelements;

std::shared_ptr<FcWall> placedWall() {
  auto wall = make<FcWall>(
      {{"ObjectPlacement", make<FcLocalPlacement>()}, {"OwnerHistory", make<FcOwnerHistory>()}});
  wall->setGuid(Guid::generate());
  return wall;
}

TEST(DeepCopy, EqualsItsSourceAndSharesNothingWithIt) {
  for (std::uint32_t seed = 1; seed <= 20; ++seed) {
    const auto entities = test::randomEntities(40, seed);
    for (const auto& entity : entities) {
      FcCopySettings settings;
      const auto copy = entity->deepCopy(settings);
      ASSERT_TRUE(copy->isEqualTo(*entity)) << seed << " " << entity->ifcName();
      for (const auto& [source, made] : settings.copiedEntities)
        made->forEachEntity(
            [&settings](const std::shared_ptr<FcBase>& reached, const object::PropertyId& id) {
              EXPECT_FALSE(settings.copiedEntities.contains(reached.get())) << id.name();
            },
            true);
      for (const auto& [source, made] : settings.copiedEntities) test::empty(*made);
    }
    for (const auto& entity : entities) test::empty(*entity);
  }
}

TEST(DeepCopy, CopiesThePlacementWithItsInverseAndKeepsTheGuid) {
  const auto wall = placedWall();
  const auto copy = fcCast<FcWall>(wall->deepCopy());
  EXPECT_NE(copy->ObjectPlacement(), wall->ObjectPlacement());
  EXPECT_EQ(copy->GlobalId(), wall->GlobalId());
  EXPECT_EQ(copy->ObjectPlacement()->PlacesObject().lock(),
            std::vector<std::shared_ptr<core::kernel::FcProduct>>{copy});
  EXPECT_EQ(wall->ObjectPlacement()->PlacesObject().size(), 1U);
}

TEST(DeepCopy, GivesNewGuidsInARunAndCopiesWhatIsSharedOnce) {
  auto type = std::make_shared<FcWallType>();
  type->setGuid(Guid::generate());
  auto relation = std::make_shared<FcRelDefinesByType>();
  const auto one = placedWall(), two = placedWall();
  relation->setRelatedObjects({one, two, one});
  relation->setRelatingType(type);
  FcCopySettings settings;
  settings.generateNewGuids = true;
  const auto copy = fcCast<FcRelDefinesByType>(relation->deepCopy(settings));
  EXPECT_EQ(copy->RelatedObjects()[0], copy->RelatedObjects()[2]);
  EXPECT_NE(copy->RelatedObjects()[0]->GlobalId(), one->GlobalId());
  EXPECT_NE(copy->RelatingType()->GlobalId(), type->GlobalId());
  EXPECT_EQ(one->deepCopy(settings), copy->RelatedObjects()[0]);
}

TEST(DeepCopy, EndsOnACycleWithTheSameCycle) {
  const auto a = make<FcLocalPlacement>(), b = make<FcLocalPlacement>({{"PlacementRelTo", a}});
  a->setPlacementRelTo(b);
  const auto copy = fcCast<FcLocalPlacement>(a->deepCopy());
  EXPECT_EQ(fcCast<FcLocalPlacement>(copy->PlacementRelTo())->PlacementRelTo(), copy);
  copy->clearPlacementRelTo();
  a->clearPlacementRelTo();
}

TEST(DeepCopy, StopsAtACopyFromOutside) {
  const auto wall = placedWall();
  const auto outside = std::make_shared<FcLocalPlacement>();
  FcCopySettings settings;
  settings.externalCopy = [&](const FcBase& source) -> std::shared_ptr<FcBase> {
    return fcCast<FcLocalPlacement>(&source) ? outside : nullptr;
  };
  const auto copy = fcCast<FcWall>(wall->deepCopy(settings));
  EXPECT_EQ(copy->ObjectPlacement(), outside);
  EXPECT_EQ(outside->PlacesObject().lock().front(), copy);
  EXPECT_FALSE(settings.copiedEntities.contains(wall->ObjectPlacement().get()));
}

TEST(DeepCopy, MakesAnotherCopyWhereReuseIsRefused) {
  const auto wall = placedWall();
  FcCopySettings settings;
  const auto first = wall->deepCopy(settings);
  settings.reuseCheck = [](const FcBase&, FcBase&) { return false; };
  const auto second = wall->deepCopy(settings);
  EXPECT_NE(first, second);
  EXPECT_EQ(settings.copiedEntities.at(wall.get()), first);
}

TEST(DeepCopy, ListsCopiesInTheTargetWithStylesAndTexturesWhenTheRunEnds) {
  const auto faceSet = make<FcTriangulatedFaceSet>();
  const auto style = make<FcStyledItem>({{"Item", faceSet}});
  const auto texture = make<FcIndexedTriangleTextureMap>({{"MappedTo", faceSet}});
  const auto target = std::make_shared<Data>();
  {
    FcCopySettings settings;
    settings.target = target;
    faceSet->deepCopy(settings);
    EXPECT_EQ(target->size(), 1U);
  }
  ASSERT_EQ(target->size(), 3U);
  const auto copy = *target->entities<FcTriangulatedFaceSet>().begin();
  EXPECT_NE(copy, faceSet);
  EXPECT_EQ((*target->entities<FcStyledItem>().begin())->Item(), copy);
  EXPECT_EQ((*target->entities<FcIndexedTriangleTextureMap>().begin())->MappedTo(), copy);
  EXPECT_EQ(faceSet->HasTextures().size(), 1U);
}

TEST(DeepCopy, ResolvesAnEqualContextToThatOfTheTarget) {
  const auto source = std::make_shared<Data>(), target = std::make_shared<Data>();
  const auto context = [](Data& data, const char* type) {
    return make<FcGeometricRepresentationContext>(data, {{"ContextType", type}});
  };
  const auto plan = context(*source, "Plan"), model = context(*source, "Model");
  const auto known = context(*target, "Model");
  auto shape = source->create<FcShapeRepresentation>();
  FcCopySettings settings;
  settings.target = target;
  settings.initiateCopiedEntities(*target, *source);
  shape->setContextOfItems(model);
  EXPECT_EQ(fcCast<FcShapeRepresentation>(shape->deepCopy(settings))->ContextOfItems(), known);
  EXPECT_EQ(target->entities<FcGeometricRepresentationContext>().size(), 1U);
  EXPECT_NE(plan->deepCopy(settings), known);
}

TEST(ShallowCopy, HasTheValuesAndNoReferences) {
  const auto person = make<FcPerson>(
      {{"FamilyName", "Noether"}, {"Addresses", std::vector{make<FcPostalAddress>()}}});
  const auto copy = fcCast<FcPerson>(person->shallowCopy());
  EXPECT_EQ(copy->FamilyName(), "Noether");
  EXPECT_FALSE(copy->Addresses().has_value());
}

TEST(ValueAttributes, AreCopiedWithTheGuidAndWithWhatIsAbsent) {
  auto source = std::make_shared<FcWall>();
  source->setGuid(Guid::generate());
  source->setPredefinedType(FcWallTypeEnum::SOLIDWALL);
  const auto target =
      make<FcWall>({{"Name", "old"}, {"ObjectPlacement", make<FcLocalPlacement>()}});
  mergeValueAttributes(*target, *source);
  EXPECT_EQ(target->Name(), "old");
  EXPECT_EQ(target->GlobalId(), source->GlobalId());
  copyValueAttributes(*target, *source);
  EXPECT_FALSE(target->Name().has_value());
  EXPECT_EQ(target->PredefinedType(), source->PredefinedType());
  EXPECT_NE(target->ObjectPlacement(), nullptr);
}

TEST(Model, LetsGoOfALongChainWithoutExhaustingTheStack) {
  const auto data = std::make_shared<Data>();
  std::shared_ptr<FcLocalPlacement> last;
  for (int i = 0; i < 1000000; ++i) {
    auto next = data->create<FcLocalPlacement>();
    if (last) next->setPlacementRelTo(last);
    last = next;
  }
  const std::weak_ptr<FcBase> watched = *data->entities<FcLocalPlacement>().begin();
  data->clear();
  last.reset();
  EXPECT_TRUE(watched.expired());
}

TEST(DeepCopy, LetsTheHostsExceptionOutWhenTheRunEnds) {
  const auto faceSet = make<FcTriangulatedFaceSet>();
  const auto style = make<FcStyledItem>({{"Item", faceSet}});
  const auto run = [&](bool failsBefore) {
    FcCopySettings settings;
    settings.target = std::make_shared<Data>();
    faceSet->deepCopy(settings);
    settings.externalCopy = [](const FcBase&) -> std::shared_ptr<FcBase> {
      throw std::logic_error("external");
    };
    if (failsBefore) throw std::runtime_error("before");
  };
  EXPECT_THROW(run(false), std::logic_error);
  EXPECT_THROW(run(true), std::runtime_error) << "the first one counts";
}

// Destroyed after the objects of the thread.
TEST(Model, MayStandInAStaticVariable) {
  EXPECT_EXIT(
      {
        static std::shared_ptr<FcLocalPlacement> last;
        for (int i = 0; i < 10000; ++i) {
          auto next = makeEntity<FcLocalPlacement>();
          if (last) next->setPlacementRelTo(last);
          last = next;
        }
        auto another = makeEntity<FcLocalPlacement>();
        for (int i = 0; i < 10000; ++i) {
          auto next = makeEntity<FcLocalPlacement>();
          next->setPlacementRelTo(another);
          another = next;
        }
        another.reset();  // the thread has parked entities before
        std::exit(0);
      },
      testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace qor::fc
