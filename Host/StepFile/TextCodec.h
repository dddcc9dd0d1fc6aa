#pragma once

#include <string>
#include <string_view>

namespace qor::host::step {

/// What was wrong with an encoded text. The rest of it was decoded all the same.
struct TextDefects {
  /// A backslash that begins no escape, or an escape without its end or with other than hexadecimal
  /// digits. Its characters were taken as they stand.
  bool badEscape = false;
  /// Bytes above 0x7F that aren't UTF-8. They were taken as Latin-1.
  bool notUtf8 = false;
  /// An escape names no character (half of a surrogate pair, a value beyond U+10FFFF). U+FFFD
  /// stands in its place.
  bool noCharacter = false;
  /// Bytes that are zero. They stay.
  bool hasNul = false;

  bool any() const { return badEscape || notUtf8 || noCharacter || hasNul; }
};

/// Sets `out` to the UTF-8 of what stands between the apostrophes of a STEP string: ''
/// \\ \S\ \P?\ \X\ \X2\ \X4\ are decoded, the layout escapes \N\ and \F\ become a line feed and a
/// form feed. Bytes above 0x7F are taken as UTF-8 where all of them are.
TextDefects decodeText(std::string_view content, std::string& out);

/// Appends `text` as a STEP string with its apostrophes. Printable ASCII stands as it is, a control
/// character as \X\, any other as \X2\ or \X4\ with as few of these escapes as there can be. Bytes
/// that aren't UTF-8 are taken as Latin-1.
void appendEncodedText(std::string& out, std::string_view text);

}  // namespace qor::host::step
