#include "Qor/Object/PropertyValue.h"

#include <gtest/gtest.h>

#include "Tests/Support/ExpectAsserts.h"

namespace qor::object {
namespace {

TEST(PropertyValue, KeepsTheKindThatItWasGivenAndReportsAQuestionForAnother) {
  EXPECT_EQ(PropertyValue().getType(), PropertyValue::Type::Empty);
  EXPECT_EQ(PropertyValue("text").getType(), PropertyValue::Type::Text);
  EXPECT_EQ(PropertyValue(true).getType(), PropertyValue::Type::Bool);
  EXPECT_EQ(PropertyValue(std::uint64_t(1)).getType(), PropertyValue::Type::UInt64);
  EXPECT_EQ(PropertyValue(std::optional<bool>()).getType(), PropertyValue::Type::OptionalBool);
  const test::ExpectAsserts expected({"Property value doesn't hold the given type.",
                                      "Property value doesn't hold the given type."});
  EXPECT_EQ(PropertyValue("2.5").getDouble(), 0);
  EXPECT_EQ(PropertyValue().getOptionalText(), std::nullopt);
}

}  // namespace
}  // namespace qor::object
