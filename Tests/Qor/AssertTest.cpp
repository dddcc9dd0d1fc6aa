#include "Qor/Assert/Assert.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

namespace qor {
namespace {

TEST(Assert, DefaultHandlerWritesOneLineThatNamesTheCulprit) {
  EXPECT_TRUE(Assert::isEnabled());
  testing::internal::CaptureStderr();
  Assert::addAssert(
      {.message = "Illegal class name (IfcX)", .function = "qor::f", .source = "F", .line = 12});
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "assert: Illegal class name (IfcX) [qor::f, F:12]\n");
}

TEST(Assert, PassesTheWholeReportToTheHandlerAndGivesThePreviousOneBack) {
  std::vector<AssertInfo> first;
  int second = 0;
  const auto original = Assert::setHandler([&](const AssertInfo& info) { first.push_back(info); });
  const auto previous = Assert::setHandler([&](const AssertInfo&) { ++second; });
  Assert::addAssert({.message = "for the second"});
  Assert::setHandler(previous);
  Assert::addAssert(
      {.kind = AssertInfo::unimplementedCase, .message = "m", .function = "f", .source = "s"});
  Assert::setHandler(original);

  EXPECT_EQ(second, 1);
  ASSERT_EQ(first.size(), 1U);
  EXPECT_EQ(first[0].kind, 1U);
  EXPECT_EQ(first[0].message + first[0].function + first[0].source, "mfs");
}

TEST(Assert, HandlerMayReportAndReplaceItself) {
  int inner = 0;
  const auto original = Assert::setHandler([&](const AssertInfo&) {
    Assert::setHandler([&](const AssertInfo&) { ++inner; });
    Assert::addAssert({.message = "from within"});
  });
  Assert::addAssert({.message = "outer"});
  Assert::setHandler(original);
  EXPECT_EQ(inner, 1);
}

TEST(Assert, LosesNoReportWhileHandlersChange) {
  std::atomic<int> seen = 0;
  const Assert::Handler count = [&seen](const AssertInfo&) { ++seen; };
  const auto original = Assert::setHandler(count);
  {
    std::vector<std::jthread> threads;
    for (int t = 0; t < 4; ++t) {
      threads.emplace_back([] {
        for (int i = 0; i < 1000; ++i) Assert::addAssert({.message = "m"});
      });
    }
    for (int i = 0; i < 1000; ++i) Assert::setHandler(count);
  }
  Assert::setHandler(original);
  EXPECT_EQ(seen, 4000);
}

}  // namespace
}  // namespace qor
