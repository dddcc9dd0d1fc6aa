#include "Host/StepFile/Scanner.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace qor::host::step {
namespace {

/// What of `text` belongs to the statement that begins it.
std::string statementIn(const std::string& text) {
  Scanner scanner(text);
  return {scanner.begin(), scanner.statementEnd(scanner.begin())};
}

TEST(Scanner, EndsAStatementAtItsSemicolon) {
  for (const std::string statement :
       {"(1,2)", "('a;b')", "('it''s;')", "(/* ; */1)", "(1,\n2,\n#3)", "(1/2)", "('#1=\n')",
        "('\n #12,')", "('a\\')"}) {
    EXPECT_EQ(statementIn(statement + ";\n#2=X();"), statement);
  }
}

TEST(Scanner, EndsABrokenStatementBeforeTheNextInstance) {
  const std::vector<std::pair<std::string, std::string>> table = {
      {"('open,$);\n#2=IFCX('a');", "('open,$)"},
      {"('open,$);#2=IFCX('a');", "('open,$)"},
      {"('open,$)\n  #2 = IFCX('a');", "('open,$)"},
      {"('open,$);\r\nENDSEC;", "('open,$)"},
      {"(1,2)\n#2=IFCX('a');", "(1,2)"},
      {"(1,'a',/* open\n#2=IFCX('a');", "(1,'a',/* open"},
      {"(1,'a',/* open\n#2=IFCX('a'); /* another */", "(1,'a',/* open"},
      {"(1,2", "(1,2"},
      {"('a", "('a"},
  };
  for (const auto& [text, statement] : table) EXPECT_EQ(statementIn(text), statement) << text;
}

TEST(Scanner, TellsAPagedApostropheFromTheEndOfAString) {
  const auto contentOf = [](const std::string& text) {
    const StringExtent extent = Scanner(text).string(text.data());
    return extent.close ? std::string(text.data() + 1, extent.close) : "open";
  };
  const std::vector<std::pair<std::string, std::string>> table = {
      {R"('\S\' 5',$)", R"(\S\' 5)"},    // as the standard has it
      {R"('\S\'' 5',$)", R"(\S\'' 5)"},  // by a writer who doubles it
      {R"('a \S\'',$)", R"(a \S\')"},    // at the end of the text
      {R"('C:\S\',$)", R"(C:\S\)"},      // a path
      {R"('C:\S\' ))", R"(C:\S\)"},     {R"('a',$)", "a"}, {R"('a)", "open"},
  };
  for (const auto& [text, content] : table) EXPECT_EQ(contentOf(text), content) << text;
}

TEST(Scanner, NotesTheFirstCommentThatIsNotClosed) {
  const std::string text = "/* closed */ 1 /* open\n 2 /* open too\n 3";
  Scanner scanner(text);
  const char* at = scanner.skipSpace(scanner.begin());
  EXPECT_EQ(*at, '1');
  at = scanner.skipSpace(at + 1);
  EXPECT_EQ(*at, '2');
  EXPECT_EQ(*scanner.skipSpace(at + 1), '3');
  EXPECT_EQ(scanner.openComment(), text.find("/* open"));
}

// A second of time is a thousand times what these take, and a thousandth of what a quadratic walk
// takes.
TEST(Scanner, TakesLinearTimeOverWhateverStandsInAFile) {
  const std::size_t count = 1000000;
  for (const std::string part : {"/* x\n", "'x\n", "\n#111", "'\n#", "\n", "'x;", "\\S\\'"}) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i) text += part;
    Scanner scanner(text);
    for (const char* at = scanner.begin(); at != scanner.end();) {
      at = scanner.statementEnd(at);
      if (at != scanner.end()) ++at;
    }
  }
}

}  // namespace
}  // namespace qor::host::step
