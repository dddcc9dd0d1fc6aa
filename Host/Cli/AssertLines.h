#pragma once

#include <cstddef>
#include <mutex>
#include <ostream>
#include <set>
#include <string>

#include "Qor/Assert/Assert.h"

namespace qor::host::cli {

/// While it lives, it writes the engine's asserts to a stream, each text once, in one line. From
/// any thread.
class AssertLines {
 public:
  /// So many different texts are told; the rest is left out, so that memory stays bounded.
  static constexpr std::size_t maxLines = 1000;

  /// `err` must outlive this.
  explicit AssertLines(std::ostream& err);
  AssertLines(const AssertLines&) = delete;
  AssertLines& operator=(const AssertLines&) = delete;
  ~AssertLines();

 private:
  void take(const AssertInfo& info);

  std::ostream& m_err;
  std::mutex m_mutex;
  std::set<std::string> m_told;
  Assert::Handler m_previous;
};

}  // namespace qor::host::cli
