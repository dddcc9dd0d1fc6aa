#include "Host/Cli/PrintableText.h"

#include <fmt/format.h>

#include "Qor/String/Utf8.h"

namespace qor::host::cli {

namespace {

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
      out += fmt::format("\\u{:04X}", static_cast<std::uint32_t>(control));
  }
}

}  // namespace

std::string printable(std::string_view text) {
  return repairedUtf8(text, [](std::string& out, char32_t c) {
    if (!isControl(c)) return false;
    appendEscape(out, c);
    return true;
  });
}

std::string inQuotes(std::string_view text) { return "'" + printable(text) + "'"; }

}  // namespace qor::host::cli
