#pragma once

#include <cstddef>
#include <functional>
#include <utility>

namespace qor::host::step {

/// Tells a caller how far a long operation has come, not more often than it is worth.
class Progress {
 public:
  /// `tell` may be empty; `total` is what `advance` reaches at the end.
  Progress(std::function<void(double)> tell, std::size_t total)
      : m_tell(std::move(tell)), m_total(total) {}

  /// `done` of the total is done. Cheap enough to be called for each instance.
  void advance(std::size_t done) {
    if (done < m_next) return;
    m_next = done + m_total / steps + 1;
    if (m_tell) m_tell(static_cast<double>(done) / static_cast<double>(m_total));
  }

 private:
  static constexpr std::size_t steps = 200;

  std::function<void(double)> m_tell;
  std::size_t m_total;
  std::size_t m_next = 0;
};

}  // namespace qor::host::step
