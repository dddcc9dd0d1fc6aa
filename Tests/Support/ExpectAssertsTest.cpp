#include "Tests/Support/ExpectAsserts.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace qor::test {
namespace {

void raise(const char* message) {
  Assert::addAssert({.message = message, .function = "qor::f", .source = "F", .line = 7});
}

TEST(ExpectAsserts, AcceptsWhatWasExpectedInAnyOrder) {
  const ExpectAsserts expected({"one", {"two", "qor::f", "F"}, "two"});
  raise("two");
  raise("two");
  raise("one");
}

TEST(ExpectAsserts, FailsOnAnAssertThatNobodyExpected) {
  EXPECT_NONFATAL_FAILURE(
      {
        const ExpectAsserts expected;
        raise("surprise");
      },
      "unexpected assert: \"surprise\" from qor::f, F:7");
}

TEST(ExpectAsserts, FailsOnAnExpectedAssertThatDidNotCome) {
  EXPECT_NONFATAL_FAILURE({ const ExpectAsserts expected({"late"}); }, "didn't come: \"late\"");
}

TEST(ExpectAsserts, ComparesFunctionAndSourceWhereGiven) {
  const ExpectedAssert anywhere("m");
  const ExpectedAssert inFunction("m", "qor::f");
  const ExpectedAssert inSource("m", "", "F");
  const AssertInfo here{.message = "m", .function = "qor::f", .source = "F"};
  const AssertInfo elsewhere{.message = "m", .function = "qor::g", .source = "G"};
  EXPECT_TRUE(anywhere.describes(here) && inFunction.describes(here) && inSource.describes(here));
  EXPECT_TRUE(anywhere.describes(elsewhere));
  EXPECT_FALSE(inFunction.describes(elsewhere));
  EXPECT_FALSE(inSource.describes(elsewhere));
}

TEST(ExpectAsserts, GivesTheOuterScopeItsHandlerBack) {
  const ExpectAsserts outer({"outer"});
  {
    const ExpectAsserts inner({"inner"});
    raise("inner");
  }
  raise("outer");
}

}  // namespace
}  // namespace qor::test
