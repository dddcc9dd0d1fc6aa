#include "Qor/Id/Guid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>
#include <string>
#include <thread>
#include <unordered_set>
#include <vector>

namespace qor {
namespace {

Guid guidOf(std::string_view text) {
  Guid guid;
  EXPECT_TRUE(guid.boSet(text)) << text;
  return guid;
}

struct KnownPair {
  Guid guid;
  const char* hyphens;
  const char* characters;
};

const KnownPair knownPairs[] = {
    {{}, "00000000-0000-0000-0000-000000000000", "0000000000000000000000"},
    {{0xFFFFFFFF, 0xFFFF, 0xFFFF, {255, 255, 255, 255, 255, 255, 255, 255}},
     "ffffffff-ffff-ffff-ffff-ffffffffffff",
     "3$$$$$$$$$$$$$$$$$$$$$"},
    {{0x01234567, 0x89AB, 0xCDEF, {0x01, 0x23, 0x45, 0x67, 0x89, 0xAB, 0xCD, 0xEF}},
     "01234567-89ab-cdef-0123-456789abcdef",
     "018qLdYQlDxm4ZHMU9gytl"},
    {{0xC1F2BD26, 0x6DD6, 0x4B26, {0x99, 0xD6, 0x6F, 0x5E, 0x3E, 0x6D, 0x7A, 0x01}},
     "c1f2bd26-6dd6-4b26-99d6-6f5e3e6d7a01",
     "31yhqcRTPB9fdMRru_RNe1"},
};

TEST(Guid, WritesAndReadsKnownPairsInBothForms) {
  for (const KnownPair& known : knownPairs) {
    EXPECT_EQ(known.guid.toString(true), known.hyphens);
    EXPECT_EQ(known.guid.toString(false), known.characters);
    EXPECT_EQ(guidOf(known.hyphens), known.guid);
    EXPECT_EQ(guidOf(known.characters), known.guid);
  }
  // In braces, and hexadecimal digits in any case; that of the short form counts.
  const Guid guid = knownPairs[3].guid;
  EXPECT_EQ(guidOf("{31yhqcRTPB9fdMRru_RNe1}"), guid);
  EXPECT_EQ(guidOf("{C1F2BD26-6dd6-4B26-99d6-6F5E3e6d7a01}"), guid);
  EXPECT_NE(guidOf("31YHQCRTPB9FDMRRU_RNE1"), guid);
}

TEST(Guid, LeavesItselfAloneOnAnyOtherText) {
  const Guid before = guidOf("018qLdYQlDxm4ZHMU9gytl");
  for (const char* text :
       {"", "{}", "0", "018qLdYQlDxm4ZHMU9gyt", "018qLdYQlDxm4ZHMU9gytlX", "418qLdYQlDxm4ZHMU9gytl",
        "$18qLdYQlDxm4ZHMU9gytl", "018qLdYQlDxm4ZHMU9gyt-", "018qLdYQlDxm4ZHMU9gyt\xC3",
        "{018qLdYQlDxm4ZHMU9gytl", "018qLdYQlDxm4ZHMU9gytl}", " 018qLdYQlDxm4ZHMU9gytl",
        "0123456789abcdef0123456789abcdef", "01234567-89ab-cdef-0123-456789abcdeg",
        "01234567089ab-cdef-0123-456789abcdef", "0123456789ab-cdef-0123-456789abcdef-",
        "{{1234567-89ab-cdef-0123-456789abcde}}"}) {
    Guid guid = before;
    EXPECT_FALSE(guid.boSet(text)) << text;
    EXPECT_EQ(guid, before) << text;
  }
}

TEST(Guid, SurvivesTheRoundTripThroughBothForms) {
  for (int i = 0; i < 20000; ++i) {
    const Guid guid = Guid::generate();
    char characters[22];
    guid.toCharacters(characters);
    ASSERT_EQ(std::string(characters, 22), guid.toString(false));
    ASSERT_EQ(guidOf(guid.toString(false)), guid);
    ASSERT_EQ(guidOf(guid.toString(true)), guid);
  }
}

TEST(Guid, GeneratesVersion4GuidsThatDifferOnEveryThread) {
  std::vector<std::vector<Guid>> made(4, std::vector<Guid>(5000));
  {
    std::vector<std::jthread> threads;
    for (auto& guids : made) {
      threads.emplace_back([&guids] { std::ranges::generate(guids, &Guid::generate); });
    }
  }
  std::set<Guid> all;
  for (const auto& guids : made) all.insert(guids.begin(), guids.end());
  EXPECT_EQ(all.size(), 20000U);
  for (const Guid& guid : all) {
    const std::string text = guid.toString(true);
    ASSERT_EQ(text[14], '4') << text;
    ASSERT_NE(std::string("89ab").find(text[19]), std::string::npos) << text;
  }
}

TEST(Guid, OrdersByItsFieldsUnsigned) {
  const Guid ascending[] = {{},
                            {0, 0, 0, {0, 0, 0, 0, 0, 0, 0, 0x80}},
                            {0, 0, 0, {0x01}},
                            {0, 0, 0, {0x80}},
                            {0, 0, 0x8000, {}},
                            {0, 1, 0, {}},
                            {0, 0x8000, 0, {}},
                            {1, 0, 0, {}},
                            {0x80000000, 0, 0, {}}};
  EXPECT_TRUE(ascending[0].isNull());
  EXPECT_FALSE(ascending[1].isNull());
  EXPECT_EQ(std::ranges::adjacent_find(ascending, std::greater_equal<>()), std::end(ascending));
}

TEST(Guid, HashSpreadsGuidsThatDifferInFewBits) {
  std::unordered_set<std::size_t> low;
  std::unordered_set<std::size_t> high;
  for (std::uint32_t i = 0; i < 4096; ++i) {
    const auto byte = [i](int shift) { return static_cast<std::uint8_t>(i >> shift); };
    const Guid lastBytes(7, 7, 7, {1, 2, 3, 4, 5, 6, byte(8), byte(0)});
    const Guid firstField(i << 20, 7, 7, {1, 2, 3, 4, 5, 6, 7, 8});
    low.insert(lastBytes.hash() % 65536);
    high.insert(firstField.hash() % 65536);
  }
  // 4096 balls in 65536 boxes leave about 3971 boxes taken.
  EXPECT_GT(low.size(), 3900U);
  EXPECT_GT(high.size(), 3900U);
  EXPECT_EQ(guidOf("0000000000000000000001").hash(),
            Guid(0, 0, 0, {0, 0, 0, 0, 0, 0, 0, 1}).hash());
}

}  // namespace
}  // namespace qor
