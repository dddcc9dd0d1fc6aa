#include <gtest/gtest.h>

#include <string>

#include "Qor/String/IgnoreCase.h"
#include "Qor/String/StringHash.h"
#include "Qor/String/Utf8.h"

namespace qor {
namespace {

static_assert(StringHash::of("IfcWall").hash == 0x99ECC1DB);

TEST(StringHash, HasItsControlValues) {
  EXPECT_EQ(StringHash::of("IFCWALL").hash, 2077320315U);
  EXPECT_EQ(StringHash::of("").hash, 0x811C9DC5U);
  // (0x811C9DC5 ^ 0xFFFFFFE9) * 16777619: the byte is sign-extended.
  EXPECT_EQ(StringHash::of("\xE9").hash, 0xEBF38B44U);
}

TEST(StringHash, KnowsTheTextItWasMadeFrom) {
  const std::string text = "IfcWall and more";
  const StringHash hash = StringHash::of(std::string_view(text).substr(0, 7));
  EXPECT_EQ(hash.text, text.data());
  EXPECT_EQ(hash.view(), "IfcWall");
}

TEST(IgnoreCase, FoldsTheLettersOfAsciiAlone) {
  EXPECT_TRUE(equalsIgnoreCase("IfcWall_Az[09", "IFCWALL_aZ[09"));
  EXPECT_TRUE(equalsIgnoreCase("", ""));
  EXPECT_FALSE(equalsIgnoreCase("Wall", "Walls"));
  EXPECT_FALSE(equalsIgnoreCase("[", "{")) << "they differ by the bit that makes letters small";
  EXPECT_FALSE(equalsIgnoreCase("\xC3\x84", "\xC3\xA4"));
}

TEST(Utf8, EveryCodePointSurvivesTheRoundTrip) {
  for (char32_t codePoint = 0; codePoint <= 0x110000; ++codePoint) {
    const bool exists = codePoint <= 0x10FFFF && (codePoint < 0xD800 || codePoint > 0xDFFF);
    std::string text;
    ASSERT_EQ(appendUtf8(text, codePoint), exists) << std::hex << std::uint32_t{codePoint};
    if (!exists) {
      ASSERT_TRUE(text.empty());
      continue;
    }
    ASSERT_EQ(firstCodePoint(text), (Utf8CodePoint{codePoint, text.size()}));
    ASSERT_EQ(firstCodePoint(text + "x"), (Utf8CodePoint{codePoint, text.size()}));
    ASSERT_TRUE(isValidUtf8(text));
  }
}

TEST(Utf8, EncodesAsTheStandardSays) {
  std::string text;
  for (const char32_t codePoint : {U'A', U'\u00E4', U'\u20AC', U'\U0001F3E0'}) {
    EXPECT_TRUE(appendUtf8(text, codePoint));
  }
  EXPECT_EQ(text, "A\xC3\xA4\xE2\x82\xAC\xF0\x9F\x8F\xA0");
  EXPECT_TRUE(isValidUtf8(text));
}

TEST(Utf8, RejectsWhatIsMalformedWhereverItStands) {
  for (const char* bytes : {"\x80", "\xBF", "\xC3", "\xC3\x41", "\xE2\x82", "\xE2\x82\x41",
                            "\xF0\x9F\x8F", "\xC0\x80", "\xC1\xBF", "\xE0\x80\x80", "\xE0\x9F\xBF",
                            "\xF0\x80\x80\x80", "\xF0\x8F\xBF\xBF", "\xED\xA0\x80", "\xED\xBF\xBF",
                            "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80", "\xFE", "\xFF"}) {
    EXPECT_EQ(firstCodePoint(bytes), std::nullopt);
    EXPECT_FALSE(isValidUtf8(bytes));
    for (std::size_t before = 0; before < 18; ++before) {
      const std::string text = std::string(before, 'a') + bytes;
      EXPECT_FALSE(isValidUtf8(text)) << before;
      EXPECT_FALSE(isValidUtf8(text + "and some more text behind it")) << before;
    }
  }
  EXPECT_EQ(firstCodePoint(""), std::nullopt);
  EXPECT_TRUE(isValidUtf8(""));
}

}  // namespace
}  // namespace qor
