#include "Host/Cli/AssertLines.h"

#include <fmt/format.h>

#include <utility>

#include "Host/Cli/PrintableText.h"

namespace qor::host::cli {

AssertLines::AssertLines(std::ostream& err) : m_err(err) {
  m_previous = Assert::setHandler([this](const AssertInfo& info) { take(info); });
}

AssertLines::~AssertLines() { Assert::setHandler(std::move(m_previous)); }

void AssertLines::take(const AssertInfo& info) {
  std::string line =
      fmt::format("fctool: assert: {} ({})\n", printable(info.message), printable(info.function));
  const std::lock_guard lock(m_mutex);
  if (m_told.size() < maxLines && m_told.insert(line).second) m_err << line;
}

}  // namespace qor::host::cli
