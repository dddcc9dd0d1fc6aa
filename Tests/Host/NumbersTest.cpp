#include "Host/StepFile/Numbers.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace qor::host::step {
namespace {

struct Read {
  NumberResult result{};
  double value = 7;
  std::string rest{};
};

Read read(const std::string& text) {
  Read outcome;
  const std::string ended = text + ")";
  const char* at = ended.data();
  outcome.result = readReal(at, outcome.value);
  outcome.rest = at;
  outcome.rest.pop_back();
  return outcome;
}

std::string written(double value) {
  std::string text;
  appendReal(text, value);
  return text;
}

std::uint64_t bits(double value) { return std::bit_cast<std::uint64_t>(value); }

TEST(Numbers, ReadsTheSameDoubleAsTheStandardLibrary) {
  const auto expectSame = [](const std::string& text) {
    const Read found = read(text);
    ASSERT_EQ(found.result, NumberResult::ok) << text;
    ASSERT_EQ(bits(found.value), bits(std::strtod(text.c_str(), nullptr))) << text;
    ASSERT_EQ(found.rest, "") << text;
  };
  for (const char* text :
       {"0.", "-0.", "1", "+2.5", "1.E-05", "1.5e3", ".5", "1.E+0022", "1.E23", "9007199254740993.",
        "0.1", "1.E-400", "-1.E-400", "4.9E-324", "1.7976931348623157E308", "0.E999999",
        "123456789012345678901234567890.", "0.000000000000000000000000000000000000001",
        "0.01745329251994329576923690768489"})
    expectSame(text);
  std::mt19937_64 random(1);
  for (int i = 0; i < 200000; ++i) {
    char text[64];
    std::snprintf(text, sizeof text, "%.*fE%d", static_cast<int>(random() % 18),
                  static_cast<double>(random() % 2000000000000ULL) / 1e6,
                  static_cast<int>(random() % 60) - 30);
    expectSame(text);
  }
}

TEST(Numbers, TellsWhatIsNoNumberAndWhatIsTooLarge) {
  for (const char* text : {"", "-", "+", ".", "-.", "E5", "x"}) {
    EXPECT_EQ(read(text).result, NumberResult::notANumber) << text;
    EXPECT_EQ(read(text).rest, text);
  }
  for (const char* text : {"1.E309", "-1.E309", "1.E99999999999999999999"}) {
    EXPECT_EQ(read(text).result, NumberResult::outOfRange) << text;
    EXPECT_EQ(read(text).value, 7) << text;
    EXPECT_EQ(read(text).rest, "") << text;
  }
  EXPECT_EQ(read("1.5E").rest, "E");
  EXPECT_EQ(read("1.#INF").rest, "#INF");
}

TEST(Numbers, WritesEveryDoubleSoThatItReadsBackBitForBit) {
  std::mt19937_64 random(2);
  for (int i = 0; i < 500000; ++i) {
    // All bit patterns, and decimal numbers as people type them.
    const double value = i % 2 == 0 ? std::bit_cast<double>(random())
                                    : static_cast<double>(random() % 10000000) / 1000;
    if (!std::isfinite(value)) continue;
    const std::string text = written(value);
    ASSERT_EQ(bits(read(text).value), bits(value)) << text;
    ASSERT_NE(text.find('.'), std::string::npos) << text;
  }
}

TEST(Numbers, WritesTheShortestFormWithAPoint) {
  const std::vector<std::pair<double, std::string>> table = {
      {0, "0."},        {-0.0, "-0."},       {1, "1."},        {2.5, "2.5"},
      {1e-5, "1.E-05"}, {1.5e-7, "1.5E-07"}, {1e22, "1.E+22"}, {0.1, "0.1"}};
  for (const auto& [value, text] : table) EXPECT_EQ(written(value), text);
}

TEST(Numbers, KeepsIntegersIn64Bits) {
  const auto readOne = [](std::string text, std::int64_t& value) {
    text += ')';
    const char* at = text.data();
    return readInteger(at, value);
  };
  for (const std::int64_t value :
       {std::int64_t{0}, std::int64_t{-1}, std::numeric_limits<std::int64_t>::min(),
        std::numeric_limits<std::int64_t>::max()}) {
    std::string text;
    appendInteger(text, value);
    std::int64_t again = 1;
    EXPECT_EQ(readOne(text, again), NumberResult::ok);
    EXPECT_EQ(again, value);
  }
  std::int64_t value = 7;
  EXPECT_EQ(readOne("9223372036854775808", value), NumberResult::outOfRange);
  EXPECT_EQ(readOne("+-1", value), NumberResult::notANumber);
  EXPECT_EQ(value, 7);
}

}  // namespace
}  // namespace qor::host::step
