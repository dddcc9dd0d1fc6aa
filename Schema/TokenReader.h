#pragma once

#include <string>
#include <string_view>

namespace qor::schema {

/// Reads a text in EXPRESS token by token, one token ahead, and knows on which line it is.
///
/// Comments, `-- to the end of the line` and `(* nested *)`, are no tokens. A string is one token
/// with its quotes, so that no word or semicolon in it is taken for syntax. Words are compared
/// without regard to case, as EXPRESS has it. The text must outlive the reader.
///
/// Whatever doesn't fit throws std::runtime_error "line 12: expected ';', found 'OF'".
class TokenReader {
 public:
  explicit TokenReader(std::string_view text, int firstLine = 1);

  bool atEnd() const { return m_token.empty(); }
  bool at(std::string_view word) const;

  /// Goes to the next token; at the end it stays there.
  void skip();
  /// Skips to behind the next `word`; throws when the text ends before.
  void skipPast(std::string_view word);

  /// Takes the word when it comes next, and tells whether it did.
  bool accept(std::string_view word);
  void expect(std::string_view word);
  void expectEnd();

  /// Takes a name; `what` ("the name of an attribute") tells in the message what was looked for.
  std::string identifier(std::string_view what);
  /// Takes a whole number without sign.
  int number();

  /// Throws; the message gets the line of the token that comes next.
  [[noreturn]] void fail(const std::string& message) const;
  [[noreturn]] void failExpecting(std::string_view what) const;

 private:
  void skipBlanksAndComments();
  void skipComment();
  std::size_t tokenLength() const;
  std::size_t stringLength() const;

  std::string_view m_rest;   ///< Behind the token.
  std::string_view m_token;  ///< Empty at the end.
  int m_line;
};

}  // namespace qor::schema
