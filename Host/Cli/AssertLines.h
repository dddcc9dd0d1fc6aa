#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <mutex>
#include <ostream>
#include <string>

#include "Host/Cli/Watch.h"
#include "Qor/Assert/Assert.h"

namespace qor::host::cli {

/// While it lives, it writes the engine's asserts to a stream, each text once, in one line that
/// names the entity that breaks the rule and the object that the program is at. How often a text
/// came is told in the end. From any thread.
class AssertLines {
 public:
  /// So many different texts are told; the rest is left out, so that memory stays bounded.
  static constexpr std::size_t maxLines = 1000;

  /// Both must outlive this.
  AssertLines(std::ostream& err, const Watch& watch);
  AssertLines(const AssertLines&) = delete;
  AssertLines& operator=(const AssertLines&) = delete;
  ~AssertLines();

  /// Of all that came so far.
  std::uint64_t count() const;

 private:
  std::string whereOf(const AssertInfo& info) const;
  void take(const AssertInfo& info);

  std::ostream& m_err;
  const Watch& m_watch;
  mutable std::mutex m_mutex;
  std::uint64_t m_count = 0;
  std::map<std::string, std::uint64_t> m_told;  ///< with how often each came
  Assert::Handler m_previous;
};

}  // namespace qor::host::cli
