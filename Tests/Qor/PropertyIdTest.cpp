#include "Qor/Object/PropertyId.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <unordered_set>

namespace qor::object {
namespace {

constexpr const PropertyId& (*nameFunction)() = &propertyId<"Name">;
static_assert(!std::is_convertible_v<std::string, PropertyId>);

TEST(PropertyId, IsItsNameByteForByte) {
  EXPECT_EQ(PropertyId("Name"), propertyId<"Name">());
  EXPECT_NE(PropertyId("name"), propertyId<"Name">());
  EXPECT_NE(PropertyId("Name "), propertyId<"Name">());
  EXPECT_EQ(propertyId<"PredefinedType">().name(), "PredefinedType");
}

TEST(PropertyId, IsOneObjectPerNameThatATableOfFunctionsReaches) {
  EXPECT_EQ(&nameFunction(), &propertyId<"Name">());
  EXPECT_NE(&propertyId<"Tag">(), &propertyId<"Name">());
}

TEST(PropertyId, IsAKeyOfHashedContainers) {
  const std::unordered_set<PropertyId> ids{PropertyId("Name"), PropertyId("Name"),
                                           PropertyId("Tag")};
  EXPECT_EQ(ids.size(), 2U);
  EXPECT_TRUE(ids.contains(propertyId<"Tag">()));
}

}  // namespace
}  // namespace qor::object
