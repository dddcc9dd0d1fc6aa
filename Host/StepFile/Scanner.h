#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace qor::host::step {

/// What one character means to those who walk over the text of a STEP file: a set of these flags
/// per byte.
enum CharFlags : std::uint8_t {
  digitChar = 1,      ///< 0-9
  nameChar = 2,       ///< what names of classes, types and enumerators are made of
  stringStop = 4,     ///< inside a string: look closer
  escapeChar = 8,     ///< inside a string: the content isn't the text as it stands, or is odd
  statementStop = 16  ///< inside a statement: look closer
};

inline constexpr std::array<std::uint8_t, 256> charFlags = [] {
  std::array<std::uint8_t, 256> flags{};
  for (int c = '0'; c <= '9'; ++c) flags[static_cast<std::size_t>(c)] = digitChar | nameChar;
  for (int c = 'A'; c <= 'Z'; ++c) flags[static_cast<std::size_t>(c)] = nameChar;
  for (int c = 'a'; c <= 'z'; ++c) flags[static_cast<std::size_t>(c)] = nameChar;
  flags['_'] = nameChar;
  flags['\''] = stringStop | statementStop;
  flags[';'] = stringStop | statementStop;
  flags['\n'] = stringStop | statementStop;
  flags['/'] = statementStop;
  flags['\\'] = escapeChar;
  flags[0] = escapeChar;
  for (std::size_t c = 128; c < 256; ++c) flags[c] = escapeChar;
  return flags;
}();

inline std::uint8_t flagsOf(char c) { return charFlags[static_cast<unsigned char>(c)]; }
inline bool isDigit(char c) { return (flagsOf(c) & digitChar) != 0; }
inline bool isNameChar(char c) { return (flagsOf(c) & nameChar) != 0; }

/// Where a string ends.
struct StringExtent {
  /// The closing apostrophe; null when the string isn't closed.
  const char* close;
  /// Where to go on: behind the closing apostrophe, or where an open string was given up.
  const char* next;
  /// The characters between the apostrophes are the text: no escape, no doubled apostrophe, nothing
  /// beyond ASCII, no zero.
  bool plain;
};

/// Finds the borders of statements, strings and comments in the text of a STEP file, also of a
/// broken one.
///
/// A new instance, "#12=" at the start of a line or behind a semicolon, always ends what was open
/// before it: a string that lacks its apostrophe or a statement that lacks its semicolon costs one
/// instance, never the rest of the file. All functions take linear time in sum over a file,
/// whatever stands in it, and use no stack.
class Scanner {
 public:
  explicit Scanner(std::string_view text)
      : m_begin(text.data()), m_end(text.data() + text.size()) {}

  const char* begin() const { return m_begin; }
  const char* end() const { return m_end; }

  /// The first character from `at` on that is neither white space nor inside a comment; `end()`
  /// when there is none. A comment that isn't closed, or not before another one opens on a later
  /// line, is passed over up to the end of its first line.
  const char* skipSpace(const char* at) {
    if (at != m_end && static_cast<unsigned char>(*at) > ' ' && *at != '/') return at;
    return skipSpaceAndComments(at);
  }

  /// `open` is at the opening apostrophe.
  StringExtent string(const char* open) const;

  /// The semicolon that ends the statement in which `at` lies; where that is missing, the end of
  /// the line before the next instance or section, or the end of the text. `at` isn't inside a
  /// string or comment.
  const char* statementEnd(const char* at);

  /// Whether a new instance or the end of the section begins behind white space; in the same line,
  /// or behind a semicolon also in a later one.
  bool startsStatementBehind(const char* stop) const;

  /// The place of the first comment that isn't closed, among those passed so far.
  std::optional<std::size_t> openComment() const { return m_openComment; }

 private:
  const char* skipSpaceAndComments(const char* at);
  const char* skipComment(const char* open);
  const char* behindPagedApostrophe(const char* apostrophe) const;
  bool startsWith(const char* at, std::string_view text) const;

  const char* m_begin;
  const char* m_end;
  std::optional<std::size_t> m_openComment;
};

}  // namespace qor::host::step
