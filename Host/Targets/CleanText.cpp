#include "Host/Targets/CleanText.h"

#include "Qor/String/Utf8.h"

namespace qor::host::targets {

namespace {

/// What XML can't hold at all, not even as a reference, among the control characters and beyond.
bool isUnwelcome(char32_t c) { return isControl(c) || c == 0xFFFE || c == 0xFFFF; }

}  // namespace

std::string cleanText(std::string_view text) {
  return repairedUtf8(text, [](std::string& out, char32_t c) {
    if (!isUnwelcome(c)) return false;
    out += ' ';
    return true;
  });
}

std::string xmlText(std::string_view text) {
  std::string out;
  for (const char c : cleanText(text)) switch (c) {
      case '&':
        out += "&amp;";
        break;
      case '<':
        out += "&lt;";
        break;
      case '>':
        out += "&gt;";
        break;
      case '"':
        out += "&quot;";
        break;
      default:
        out += c;
    }
  return out;
}

}  // namespace qor::host::targets
