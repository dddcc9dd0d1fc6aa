#include "Fc/Factory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Fc/Core/Kernel/FcProject.h"
#include "Fc/FcBase.h"
#include "Fc/Shared/BuildingElements/FcWall.h"
#include "Tests/Support/ExpectAsserts.h"

namespace qor::fc {
namespace {

using qor::test::ExpectAsserts;
using testing::Optional;
using testing::Pair;
using Bounds = std::pair<unsigned int, unsigned int>;

TEST(Factory, MakesAnEmptyInstanceFromTheMixedCaseName) {
  const ExpectAsserts none;
  const auto wall = Factory::objectFromIfcName(StringHash::of("IfcWall"));
  ASSERT_TRUE(wall);
  EXPECT_STREQ(wall->ifcName(), "IfcWall");
  EXPECT_TRUE(std::dynamic_pointer_cast<shared::buildingelements::FcWall>(wall));
  EXPECT_EQ(wall.use_count(), 1);
  EXPECT_EQ(wall->shared_from_this(), wall);
  EXPECT_NE(Factory::objectFromIfcName(StringHash::of("IfcWall")), wall);
}

TEST(Factory, KnowsTheRangeOfEachClassInTheWalkOfTheSchema) {
  const ExpectAsserts none;
  const std::pair<const char*, Bounds> ranges[] = {
      {"IfcActorRole", {1, 1}},
      {"IfcAddress", {2, 4}},
      {"IfcGeometricRepresentationContext", {188, 189}},
      {"IfcRepresentationItem", {190, 345}},
      {"IfcRoot", {357, 840}},
      {"IfcProject", {360, 360}},
      {"IfcWall", {429, 430}},
      {"IfcWallStandardCase", {430, 430}},
      {"IfcWellKnownText", {876, 876}},
  };
  for (const auto& [name, range] : ranges)
    EXPECT_THAT(Factory::boundFromIfcName(StringHash::of(name)), Optional(range)) << name;
}

TEST(Factory, ReportsUnknownAndAbstractNamesAsTheCallerSpelledThem) {
  const std::string illegalOrAbstract = "Illegal class name or abstract class ";
  for (const char* name : {"IFCWALL", "IfcProduct", "ifcWall", "Wall", ""}) {
    const std::string shown = "(" + std::string(name) + ")";
    const ExpectAsserts expected(
        {{illegalOrAbstract + shown, "qor::fc::Factory::objectFromIfcName", "FcFactory"},
         {illegalOrAbstract + shown, "qor::fc::Factory::typeInfoFromIfcName", "FcFactory"}});
    EXPECT_EQ(Factory::objectFromIfcName(StringHash::of(name)), nullptr);
    EXPECT_EQ(Factory::typeInfoFromIfcName(StringHash::of(name)), std::nullopt);
  }
  for (const char* name : {"IFCWALL", "IfcNothing", ""}) {
    const ExpectAsserts expected({{"Illegal class name (" + std::string(name) + ")",
                                   "qor::fc::Factory::boundFromIfcName", "FcFactory"}});
    EXPECT_EQ(Factory::boundFromIfcName(StringHash::of(name)), std::nullopt);
  }
}

TEST(Factory, ListsTheClassesThatCanBeInstantiatedOnce) {
  const ExpectAsserts none;
  const auto& classes = Factory::getFcClasses();
  EXPECT_EQ(&classes, &Factory::getFcClasses());
  EXPECT_EQ(classes.size(), 743U);
  for (const auto& [type, name] : classes)
    EXPECT_THAT(Factory::typeInfoFromIfcName(name), Optional(type)) << name.view();
  EXPECT_EQ(classes.at(typeid(core::kernel::FcProject)).view(), "IfcProject");
}

TEST(Factory, LooksUpByTheHashAlone) {
  const ExpectAsserts none;
  StringHash borrowed = StringHash::of("something else");
  borrowed.hash = StringHash::of("IfcWall").hash;
  EXPECT_STREQ(Factory::objectFromIfcName(borrowed)->ifcName(), "IfcWall");
}

}  // namespace
}  // namespace qor::fc
