#include "Host/Cli/AssertLines.h"

#include <fmt/format.h>

#include <utility>

#include "Host/Cli/PrintableText.h"

namespace qor::host::cli {

AssertLines::AssertLines(std::ostream& err, const Watch& watch) : m_err(err), m_watch(watch) {
  m_previous = Assert::setHandler([this](const AssertInfo& info) { take(info); });
}

AssertLines::~AssertLines() {
  Assert::setHandler(std::move(m_previous));
  for (const auto& [text, count] : m_told)
    if (count > 1) m_err << fmt::format("{}: {} times in all\n", text, count);
}

void AssertLines::take(const AssertInfo& info) {
  std::string text =
      fmt::format("fctool: assert: {} ({})", printable(info.message), printable(info.function));
  const std::lock_guard lock(m_mutex);
  if (const auto told = m_told.find(text); told != m_told.end()) {
    ++told->second;
  } else if (m_told.size() < maxLines) {
    const std::string object = m_watch.object();
    m_err << m_watch.lineStart() << (object.empty() ? text : fmt::format("{}, at {}", text, object))
          << "\n";
    m_told.emplace(std::move(text), 1);
  }
}

}  // namespace qor::host::cli
