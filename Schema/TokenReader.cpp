#include "Schema/TokenReader.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

#include "Qor/String/IgnoreCase.h"

namespace qor::schema {
namespace {

// Not those of <cctype>, which depend on the locale.
bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isWordPart(char c) { return isLetter(c) || isDigit(c) || c == '_'; }
bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\f'; }

}  // namespace

TokenReader::TokenReader(std::string_view text, int firstLine) : m_rest(text), m_line(firstLine) {
  skip();
}

bool TokenReader::at(std::string_view word) const { return equalsIgnoreCase(m_token, word); }

void TokenReader::skip() {
  m_token = {};
  skipBlanksAndComments();
  const std::size_t length = tokenLength();
  m_token = m_rest.substr(0, length);
  m_rest.remove_prefix(length);
}

void TokenReader::skipPast(std::string_view word) {
  while (!at(word)) {
    if (atEnd()) failExpecting(word);
    skip();
  }
  skip();
}

bool TokenReader::accept(std::string_view word) {
  if (!at(word)) return false;
  skip();
  return true;
}

void TokenReader::expect(std::string_view word) {
  if (!accept(word)) failExpecting("'" + std::string(word) + "'");
}

void TokenReader::expectEnd() {
  if (!atEnd()) failExpecting("nothing more");
}

std::string TokenReader::identifier(std::string_view what) {
  if (atEnd() || !isLetter(m_token.front())) failExpecting(what);
  std::string name(m_token);
  skip();
  return name;
}

int TokenReader::number() {
  int value = 0;
  const char* const end = m_token.data() + m_token.size();
  const auto [stop, error] = std::from_chars(m_token.data(), end, value);
  if (atEnd() || error != std::errc() || stop != end) failExpecting("a whole number");
  skip();
  return value;
}

void TokenReader::fail(const std::string& message) const {
  throw std::runtime_error("line " + std::to_string(m_line) + ": " + message);
}

void TokenReader::failExpecting(std::string_view what) const {
  fail("expected " + std::string(what) + ", found " +
       (atEnd() ? std::string("the end") : "'" + std::string(m_token) + "'"));
}

void TokenReader::skipBlanksAndComments() {
  while (!m_rest.empty()) {
    if (m_rest.front() == '\n') ++m_line;
    if (isBlank(m_rest.front())) {
      m_rest.remove_prefix(1);
    } else if (m_rest.starts_with("--")) {
      m_rest.remove_prefix(std::min(m_rest.find('\n'), m_rest.size()));
    } else if (m_rest.starts_with("(*")) {
      skipComment();
    } else {
      return;
    }
  }
}

void TokenReader::skipComment() {
  const int firstLine = m_line;
  int depth = 0;
  do {
    if (m_rest.empty()) {
      m_line = firstLine;
      fail("the comment that begins here has no end");
    }
    const bool opens = m_rest.starts_with("(*");
    const bool closes = m_rest.starts_with("*)");
    depth += opens ? 1 : closes ? -1 : 0;
    if (m_rest.front() == '\n') ++m_line;
    m_rest.remove_prefix(opens || closes ? 2 : 1);
  } while (depth > 0);
}

std::size_t TokenReader::tokenLength() const {
  if (m_rest.empty()) return 0;
  const char first = m_rest.front();
  if (first == '\'' || first == '"') return stringLength();
  if (m_rest.starts_with("::")) return 2;
  if (!isWordPart(first)) return 1;
  const auto end = std::find_if_not(m_rest.begin(), m_rest.end(), isWordPart);
  return static_cast<std::size_t>(end - m_rest.begin());
}

std::size_t TokenReader::stringLength() const {
  // A doubled quote stands for a quote; read as two strings side by side it ends in the same place.
  const std::size_t end = m_rest.find_first_of(std::string{m_rest.front(), '\n'}, 1);
  if (end == std::string_view::npos || m_rest[end] == '\n') {
    fail("the string that begins here has no end on its line");
  }
  return end + 1;
}

}  // namespace qor::schema
