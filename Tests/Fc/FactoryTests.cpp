#include "Fc/Factory.h"

#include <gtest/gtest.h>

#include "Fc/FcBase.h"
#include "Fc/Shared/BuildingElements/FcWall.h"
#include "Tests/Support/ExpectAsserts.h"

namespace qor::fc {
namespace {

using qor::test::ExpectAsserts;

TEST(Factory, MakesANewInstanceFromTheHashOfTheMixedCaseName) {
  const ExpectAsserts none;
  const auto wall = Factory::objectFromIfcName(StringHash::of("IfcWall"));
  ASSERT_TRUE(wall);
  EXPECT_STREQ(wall->ifcName(), "IfcWall");
  EXPECT_TRUE(std::dynamic_pointer_cast<shared::buildingelements::FcWall>(wall));
  EXPECT_EQ(wall.use_count(), 1);
  EXPECT_EQ(wall->shared_from_this(), wall);
  StringHash borrowed = StringHash::of("something else");
  borrowed.hash = StringHash::of("IfcWall").hash;
  EXPECT_STREQ(Factory::objectFromIfcName(borrowed)->ifcName(), "IfcWall");
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

}  // namespace
}  // namespace qor::fc
