#include "Host/Cli/ProgressBar.h"

#include <fmt/format.h>

#include <algorithm>
#include <ostream>
#include <utility>

#include "Host/Cli/Watch.h"

namespace qor::host::cli {

ProgressBar::ProgressBar(std::string what, Console& console)
    : m_what(std::move(what)), m_console(console) {}

ProgressBar::~ProgressBar() {
  if (m_percent < 0) return;
  m_console.err << "\r\033[K" << std::flush;
  m_console.watch.setBarShown(false);
}

std::function<void(double)> ProgressBar::callback() {
  if (!m_console.showProgress) return {};
  return [this](double done) { show(done); };
}

void ProgressBar::show(double done) {
  constexpr int width = 40;
  const int percent = std::clamp(static_cast<int>(done * 100), 0, 100);
  if (percent == m_percent) return;
  m_percent = percent;
  m_console.watch.setBarShown(true);
  m_console.err << fmt::format("\r{} [{:<{}}] {:3} %", m_what,
                               std::string(static_cast<std::size_t>(percent * width / 100), '#'),
                               width, percent)
                << std::flush;
}

}  // namespace qor::host::cli
