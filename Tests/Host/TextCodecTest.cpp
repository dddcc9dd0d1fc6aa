#include "Host/StepFile/TextCodec.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "Qor/String/Utf8.h"

namespace qor::host::step {
namespace {

struct Decoded {
  std::string text;
  TextDefects defects;
};

Decoded decoded(std::string_view content) {
  Decoded result;
  result.defects = decodeText(content, result.text);
  return result;
}

std::string encoded(std::string_view text) {
  std::string result;
  appendEncodedText(result, text);
  return result;
}

TEST(TextCodec, DecodesEveryEscape) {
  const std::vector<std::pair<std::string, std::string>> table = {
      {"", ""},
      {"plain", "plain"},
      {"it''s", "it's"},
      {R"(a\\b)", R"(a\b)"},
      {R"(\S\d)", "\u00E4"},
      {R"(\S\')", "\u00A7"},
      {R"(\S\'')", "\u00A7"},
      {R"(\S\\)", "\u00DC"},
      {R"(\PE\\S\P\S\h)", "\u0430\u0448"},      // ISO 8859-5, Cyrillic
      {R"(\PB\\S\!\PA\\S\!)", "\u0104\u00A1"},  // 8859-2, then 8859-1 again
      {R"(\X\E4\X\0A)", "\u00E4\n"},
      {R"(Stra\X2\00DF\X0\e)", "Stra\u00DFe"},
      {R"(\X2\041F0440\X0\)", "\u041F\u0440"},
      {R"(\X4\0001F600\X0\)", "\U0001F600"},
      {R"(\X2\D83DDE00\X0\)", "\U0001F600"},   // UTF-16, as some writers have it
      {R"(\x2\00df\X0\)", R"(\x2\00df\X0\)"},  // escapes are upper case
      {R"(a\N\b\F\c)", "a\nb\fc"},
      {"Stra\u00DFe", "Stra\u00DFe"},
  };
  for (const auto& [content, text] : table) {
    EXPECT_EQ(decoded(content).text, text) << content;
    EXPECT_EQ(decoded(content).defects.any(), content.starts_with(R"(\x2)")) << content;
  }
}

TEST(TextCodec, TakesBrokenEscapesAsTheyStand) {
  for (const std::string content :
       {R"(C:\temp)", R"(\)", R"(\X\G0)", R"(\X2\00D)", R"(\X2\00DF)", R"(\X2\00D\X0\)",
        R"(\X2\00GG\X0\)", R"(\PZ\)", R"(\P)", R"(\S\)", R"(\Q\)", R"(\X4\00DF\X0\)"}) {
    EXPECT_EQ(decoded(content).text, content);
    EXPECT_TRUE(decoded(content).defects.badEscape) << content;
  }
}

TEST(TextCodec, PutsAReplacementForWhatIsNoCharacter) {
  for (const std::string content :
       {R"(\X2\D83D\X0\)", R"(\X2\DE00D83D\X0\)", R"(\X4\00110000\X0\)", R"(\PC\\S\%)"}) {
    EXPECT_TRUE(decoded(content).text.starts_with("\uFFFD")) << content;
    EXPECT_TRUE(decoded(content).defects.noCharacter) << content;
  }
}

TEST(TextCodec, TakesBytesThatAreNoUtf8AsLatin1) {
  const Decoded result = decoded(
      "Stra\xDF"
      "e \xC3\xA4");
  EXPECT_EQ(result.text, "Stra\u00DFe \u00C3\u00A4");
  EXPECT_TRUE(result.defects.notUtf8);
}

TEST(TextCodec, EncodesWithAsFewEscapesAsThereCanBe) {
  const std::vector<std::pair<std::string, std::string>> table = {
      {"", "''"},
      {"it's a\\b", R"('it''s a\\b')"},
      {"Gr\u00F6\u00DFe", R"('Gr\X2\00F600DF\X0\e')"},
      {"\u00E4\U0001F600\U0001F601z", R"('\X2\00E4\X0\\X4\0001F6000001F601\X0\z')"},
      {std::string("a\n\0\x7F", 4), R"('a\X\0A\X\00\X\7F')"},
      {"\xDF", R"('\X2\00DF\X0\')"},
  };
  for (const auto& [text, content] : table) EXPECT_EQ(encoded(text), content);
}

TEST(TextCodec, ReadsBackEveryCharacterThatItWrites) {
  for (char32_t c = 0; c <= 0x10FFFF; c += c < 0x3000 ? 1 : 251) {
    std::string text = "x";
    if (!appendUtf8(text, c)) continue;
    const std::string written = encoded(text + text);
    const Decoded again = decoded(std::string_view(written).substr(1, written.size() - 2));
    EXPECT_FALSE(again.defects.any()) << written;
    EXPECT_EQ(again.text, text + text) << written;
  }
}

}  // namespace
}  // namespace qor::host::step
