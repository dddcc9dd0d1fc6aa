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

std::uint64_t AssertLines::count() const {
  const std::lock_guard lock(m_mutex);
  return m_count;
}

/// ", #4711 IFCEXTRUDEDAREASOLID, at #12 IFCWALL 'South wall'".
std::string AssertLines::whereOf(const AssertInfo& info) const {
  const std::string object = m_watch.object();
  std::string where = object.empty() ? object : ", at " + object;
  if (!info.subject) return where;
  const std::string subject = m_watch.nameOf(*static_cast<const fc::FcBase*>(info.subject));
  return subject == object ? where : ", " + subject + where;
}

void AssertLines::take(const AssertInfo& info) {
  std::string text =
      fmt::format("fctool: assert: {} ({})", printable(info.message), printable(info.function));
  const std::lock_guard lock(m_mutex);
  ++m_count;
  if (const auto told = m_told.find(text); told != m_told.end()) {
    ++told->second;
  } else if (m_told.size() < maxLines) {
    m_err << m_watch.lineStart() << text << whereOf(info) << "\n";
    m_told.emplace(std::move(text), 1);
  }
}

}  // namespace qor::host::cli
