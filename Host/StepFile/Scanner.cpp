#include "Host/StepFile/Scanner.h"

namespace qor::host::step {

namespace {

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r'; }

const char* skipBlanks(const char* at, const char* end) {
  while (at != end && isBlank(*at)) ++at;
  return at;
}

}  // namespace

bool Scanner::startsWith(const char* at, std::string_view text) const {
  return static_cast<std::size_t>(m_end - at) >= text.size() &&
         std::string_view(at, text.size()) == text;
}

const char* Scanner::skipSpaceAndComments(const char* at) {
  while (at != m_end) {
    if (static_cast<unsigned char>(*at) <= ' ')
      ++at;
    else if (*at == '/' && startsWith(at, "/*"))
      at = skipComment(at);
    else
      return at;
  }
  return at;
}

const char* Scanner::skipComment(const char* open) {
  const char* lineEnd = nullptr;
  for (const char* at = open + 2; at != m_end; ++at) {
    if (*at == '*' && startsWith(at, "*/")) return at + 2;
    if (*at == '\n' && !lineEnd) lineEnd = at;
    if (*at == '/' && lineEnd && startsWith(at, "/*")) break;
  }
  const auto place = static_cast<std::size_t>(open - m_begin);
  if (!m_openComment || place < *m_openComment) m_openComment = place;
  return lineEnd ? lineEnd : m_end;
}

bool Scanner::startsStatementBehind(const char* stop) const {
  const char* at = skipBlanks(stop + 1, m_end);
  while (*stop == ';' && at != m_end && *at == '\n') at = skipBlanks(at + 1, m_end);
  if (startsWith(at, "ENDSEC;")) return true;
  if (at == m_end || *at != '#') return false;
  const char* digits = ++at;
  while (at != m_end && isDigit(*at)) ++at;
  if (at == digits) return false;
  at = skipBlanks(at, m_end);
  return at != m_end && *at == '=';
}

// The apostrophe in \S\' stands for a character of its own. But where the string seems to end
// there, it is the path of a folder S, by a writer who didn't double its backslashes.
const char* Scanner::behindPagedApostrophe(const char* apostrophe) const {
  const auto endsValue = [this](const char* at) {
    at = skipBlanks(at, m_end);
    return at == m_end || *at == ',' || *at == ')';
  };
  const char* next = apostrophe + 1;
  if (endsValue(next)) return nullptr;
  const bool doubled = *next == '\'' && !endsValue(next + 1);
  return doubled ? next + 1 : next;
}

StringExtent Scanner::string(const char* open) const {
  std::uint8_t seen = 0;
  const char* at = open + 1;
  while (at != m_end) {
    const std::uint8_t flags = flagsOf(*at);
    seen |= flags;
    if (!(flags & stringStop)) {
      ++at;
    } else if (*at != '\'') {
      if (startsStatementBehind(at)) break;
      ++at;
    } else {
      const bool paged =
          (seen & escapeChar) && at - open > 3 && std::string_view(at - 3, 3) == "\\S\\";
      const char* behind = paged ? behindPagedApostrophe(at) : nullptr;
      if (!behind && startsWith(at, "''") && !paged) behind = at + 2;
      if (!behind) return {at, at + 1, (seen & escapeChar) == 0};
      seen |= escapeChar;
      at = behind;
    }
  }
  return {nullptr, at, false};
}

const char* Scanner::statementEnd(const char* at) {
  while (true) {
    while (at != m_end && !(flagsOf(*at) & statementStop)) ++at;
    if (at == m_end || *at == ';') return at;
    if (*at == '\'') {
      at = string(at).next;
    } else if (*at == '\n') {
      if (startsStatementBehind(at)) return at;
      ++at;
    } else {
      at = startsWith(at, "/*") ? skipComment(at) : at + 1;
    }
  }
}

}  // namespace qor::host::step
