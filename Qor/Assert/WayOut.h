#pragma once

#include <exception>
#include <utility>

namespace qor {

/// How a guard, whose destructor calls operations of a host that may throw, leaves its scope.
///
/// Its destructor is `noexcept(false)` and does its work by `leave`: on the ordinary way out what
/// the work throws reaches the host; while another exception passes, which is the first and the one
/// that counts, the work is done all the same and what it throws is dropped.
class WayOut {
 public:
  template <class Work>
  void leave(Work&& work) const {
    if (std::uncaught_exceptions() <= m_before) {
      std::forward<Work>(work)();
      return;
    }
    try {
      std::forward<Work>(work)();
    } catch (...) {  // NOLINT(bugprone-empty-catch): an earlier exception is on its way
    }
  }

 private:
  int m_before = std::uncaught_exceptions();
};

}  // namespace qor
