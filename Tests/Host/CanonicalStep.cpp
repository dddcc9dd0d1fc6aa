#include "Tests/Host/CanonicalStep.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>

namespace qor::test {

namespace {

bool isSpace(char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; }
bool isDigit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }

std::string canonicalNumber(const std::string& token) {
  char value[40];
  std::snprintf(value, sizeof value, "%a", std::strtod(token.c_str(), nullptr));
  return value;
}

/// Without white space and comments, texts as they stand.
std::string stripped(std::string_view text) {
  std::string result;
  bool inText = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!inText && text.substr(i, 2) == "/*")
      i = text.find("*/", i) + 1;
    else if (inText || !isSpace(text[i]))
      result += text[i];
    if (text[i] == '\'') inText = !inText;
  }
  return result;
}

std::string canonical(std::string_view parameters) {
  std::string result;
  bool inText = false;
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    const char c = parameters[i];
    if (c == '\'') inText = !inText;
    const bool startsNumber = !inText && (isDigit(c) || c == '-' || c == '+') && i > 0 &&
                              (parameters[i - 1] == ',' || parameters[i - 1] == '(');
    if (startsNumber) {
      const std::size_t end = parameters.find_first_of(",)", i);
      result += canonicalNumber(std::string(parameters.substr(i, end - i)));
      i = end - 1;
    } else {
      result += c;
    }
  }
  return result;
}

std::size_t endOfStatement(std::string_view text) {
  bool inText = false;
  std::size_t i = 0;
  for (; i < text.size() && (inText || text[i] != ';'); ++i) inText = inText != (text[i] == '\'');
  return i;
}

}  // namespace

std::map<std::uint64_t, std::string> canonicalStatements(std::string_view text) {
  std::map<std::uint64_t, std::string> statements;
  const std::string all = stripped(text);
  for (std::string_view rest = all; !rest.empty();) {
    const std::size_t end = endOfStatement(rest);
    const std::string_view statement = rest.substr(0, end);
    if (statement.starts_with('#')) {
      const std::size_t equals = statement.find('=');
      const auto number =
          std::strtoull(std::string(statement.substr(1, equals)).c_str(), nullptr, 10);
      statements[number] = canonical(statement.substr(equals + 1));
    }
    rest.remove_prefix(std::min(rest.size(), end + 1));
  }
  return statements;
}

}  // namespace qor::test
