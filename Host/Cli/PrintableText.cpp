#include "Host/Cli/PrintableText.h"

#include <fmt/format.h>

#include <iterator>
#include <optional>

#include "Qor/String/Utf8.h"

namespace qor::host::cli {

namespace {

bool isControl(char32_t c) { return c < 0x20 || (c >= 0x7F && c < 0xA0); }

void appendEscape(std::string& out, char32_t control) {
  switch (control) {
    case '\n':
      out += "\\n";
      break;
    case '\r':
      out += "\\r";
      break;
    case '\t':
      out += "\\t";
      break;
    default:
      fmt::format_to(std::back_inserter(out), "\\u{:04X}", static_cast<std::uint32_t>(control));
  }
}

}  // namespace

std::string printable(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  while (!text.empty()) {
    const std::optional<Utf8CodePoint> next = firstCodePoint(text);
    const std::size_t length = next ? next->length : 1;
    if (!next)
      appendUtf8(out, 0xFFFD);
    else if (isControl(next->value))
      appendEscape(out, next->value);
    else
      out += text.substr(0, length);
    text.remove_prefix(length);
  }
  return out;
}

std::string inQuotes(std::string_view text) { return "'" + printable(text) + "'"; }

}  // namespace qor::host::cli
