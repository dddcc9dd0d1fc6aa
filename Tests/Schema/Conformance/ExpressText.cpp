#include "Tests/Schema/Conformance/ExpressText.h"

#include <algorithm>
#include <cctype>
#include <regex>
#include <set>

#include "Tests/Support/SharedModels.h"

namespace qor::schema::test {

namespace {

bool isWord(char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '_'; }

// Words, strings and single marks of one statement, without its semicolon.
Texts takeStatement(const std::string& text, std::size_t& at) {
  Texts tokens;
  for (; at < text.size(); ++at) {
    const char c = text[at];
    std::size_t end = at + 1;
    if (c == ';') break;
    if (std::isspace(static_cast<unsigned char>(c))) continue;
    if (c == '\'') end = text.find('\'', end) + 1;
    while (isWord(c) && isWord(text[end])) ++end;
    tokens.push_back(text.substr(at, end - at));
    at = end - 1;
  }
  ++at;
  return tokens;
}

// A space between words only: "Name:OPTIONAL SET[1:?]OF IfcLabel".
std::string joined(Texts::const_iterator from, Texts::const_iterator to) {
  std::string text;
  for (; from != to; ++from) {
    if (*from == "UNIQUE") continue;
    if (!text.empty() && isWord(text.back()) && isWord(from->front())) text += ' ';
    text += *from;
  }
  return std::regex_replace(text, std::regex(R"(\(\d+\)(FIXED)?)"), "");
}

Texts namesInParentheses(const Texts& statement) {
  Texts names;
  auto at = std::ranges::find(statement, "(");
  for (; at != statement.end() && *at != ")"; ++at)
    if (isWord(at->front())) names.push_back(*at);
  return names;
}

class Reader {
 public:
  void read(Texts statement) {
    if (statement.empty()) return;
    if (statement[0] == "TYPE") {
      readType(statement);
    } else if (statement[0] == "ENTITY") {
      readEntity(statement);
    } else if (statement[0] == "END_ENTITY") {
      m_class = nullptr;
    } else if (m_class) {
      readMember(std::move(statement));
    }
  }

  ExpressText schema;

 private:
  void readType(const Texts& statement) {
    const std::string& name = statement[1];
    if (statement[3] == "ENUMERATION")
      schema.enumerations[name] = namesInParentheses(statement);
    else if (statement[3] == "SELECT")
      schema.selects[name] = namesInParentheses(statement);
    else
      schema.types[name] = joined(statement.begin() + 3, statement.end());
  }

  void readEntity(const Texts& statement) {
    m_class = &schema.classes[statement[1]];
    m_section.clear();
    m_class->isAbstract = std::ranges::count(statement, "ABSTRACT") > 0;
    const auto subtype = std::ranges::find(statement, "SUBTYPE");
    if (subtype != statement.end()) m_class->supertype = *(subtype + 3);
  }

  void readMember(Texts statement) {
    static const std::set<std::string> sections = {"DERIVE", "INVERSE", "UNIQUE", "WHERE"};
    if (sections.contains(statement[0])) {
      m_section = statement[0];
      statement.erase(statement.begin());
    }
    if (m_section.empty())
      m_class->attributes.push_back(joined(statement.begin(), statement.end()));
    else if (m_section == "INVERSE")
      m_class->inverses.push_back(joined(statement.begin(), statement.end()));
    else if (m_section == "DERIVE" && statement[0] == "SELF")
      m_class->derived.push_back(statement[4]);
  }

  ExpressClass* m_class = nullptr;
  std::string m_section;
};

}  // namespace

ExpressText readExpressText(const std::filesystem::path& path) {
  const std::string text =
      std::regex_replace(qor::test::readFile(path), std::regex(R"(\(\*[^*]*\*\)|--[^\n]*)"), " ");
  Reader reader;
  for (std::size_t at = 0; at < text.size();) reader.read(takeStatement(text, at));
  return reader.schema;
}

}  // namespace qor::schema::test
