#include "Tests/Support/ExpectAsserts.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace qor::test {
namespace {

void raise(const char* message) {
  Assert::addAssert({.message = message, .function = "qor::f", .source = "F", .line = 7});
}

TEST(ExpectAsserts, AcceptsWhatWasExpectedInAnyOrderAndGivesTheOuterScopeItsHandlerBack) {
  const ExpectAsserts expected({"one", {"two", "qor::f", "F"}, "two"});
  raise("two");
  {
    const ExpectAsserts inner({"inner"});
    raise("inner");
  }
  raise("two");
  raise("one");
}

TEST(ExpectAsserts, FailsOnWhatNobodyExpectedAndOnWhatDidNotCome) {
  EXPECT_NONFATAL_FAILURE(
      {
        const ExpectAsserts expected;
        raise("surprise");
      },
      "unexpected assert: \"surprise\" from qor::f, F:7");
  EXPECT_NONFATAL_FAILURE({ const ExpectAsserts expected({"late"}); }, "didn't come: \"late\"");
}

TEST(ExpectAsserts, ComparesFunctionAndSourceWhereGiven) {
  const AssertInfo here{.message = "m", .function = "qor::f", .source = "F"};
  const AssertInfo elsewhere{.message = "m", .function = "qor::g", .source = "G"};
  for (const ExpectedAssert& expected :
       {ExpectedAssert("m"), ExpectedAssert("m", "qor::f"), ExpectedAssert("m", "", "F")}) {
    EXPECT_TRUE(expected.describes(here));
    EXPECT_EQ(expected.describes(elsewhere), expected.function.empty() && expected.source.empty());
  }
}

}  // namespace
}  // namespace qor::test
