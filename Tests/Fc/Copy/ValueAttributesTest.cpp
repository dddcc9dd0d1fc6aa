#include "Fc/ValueAttributes.h"

#include <gtest/gtest.h>

#include "Fc/Resource/Actor/FcActorRole.h"
#include "Fc/Resource/Actor/FcPerson.h"
#include "Fc/Resource/Actor/FcPostalAddress.h"
#include "Fc/Resource/GeometricConstraint/FcLocalPlacement.h"
#include "Fc/Shared/BuildingElements/FcWall.h"

namespace qor::fc {
namespace {

using resource::actor::FcPerson;
using resource::actor::FcPostalAddress;
using shared::buildingelements::FcWall;

TEST(ShallowCopy, HasTheValuesAndNoReferences) {
  auto person = std::make_shared<FcPerson>();
  person->setFamilyName("Noether");
  person->pushBackAddresses(std::make_shared<FcPostalAddress>());
  const auto copy = fcCast<FcPerson>(person->shallowCopy());
  EXPECT_EQ(copy->FamilyName(), "Noether");
  EXPECT_FALSE(copy->Addresses().has_value());
}

TEST(ValueAttributes, AreCopiedWithTheGuidAndWithWhatIsAbsent) {
  auto source = std::make_shared<FcWall>();
  source->setGuid(Guid::generate());
  source->setPredefinedType(shared::buildingelements::FcWallTypeEnum::SOLIDWALL);
  auto target = std::make_shared<FcWall>();
  target->setName("old");
  target->setObjectPlacement(std::make_shared<resource::geometricconstraint::FcLocalPlacement>());
  mergeValueAttributes(*target, *source);
  EXPECT_EQ(target->Name(), "old");
  EXPECT_EQ(target->GlobalId(), source->GlobalId());
  copyValueAttributes(*target, *source);
  EXPECT_FALSE(target->Name().has_value());
  EXPECT_EQ(target->PredefinedType(), source->PredefinedType());
  EXPECT_NE(target->ObjectPlacement(), nullptr);
}

}  // namespace
}  // namespace qor::fc
