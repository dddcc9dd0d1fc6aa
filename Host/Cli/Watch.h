#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <optional>
#include <ostream>
#include <string>
#include <thread>

#include "Host/StepFile/EntityNumbers.h"
#include "Host/StepFile/StepReader.h"
#include "Qor/Id/Guid.h"

namespace qor::host::cli {

/// Knows the object that a long run is at. It names that object, again and again, when nothing
/// else happens for long (cuts are known that take minutes), and ends the program in order when it
/// is interrupted. A thread of its own does so; `at` costs the caller some 30 ns.
class Watch {
 public:
  /// `patience` is how long one object may take before a line names it; the next line comes after
  /// twice that time, and so on. `err` must outlive this.
  explicit Watch(std::ostream& err, std::chrono::milliseconds patience = std::chrono::seconds(5));
  Watch(const Watch&) = delete;
  Watch& operator=(const Watch&) = delete;
  ~Watch();

  /// From now on Ctrl-C, and what else asks the process to end, make the watch say what the program
  /// was at, remove temporary files and end it with `interruptedExitCode`, within 50 ms.
  static void endInOrderWhenInterrupted();
  static constexpr int interruptedExitCode = 130;

  /// The program is at the object with this id.
  void at(const Guid& guid);
  /// "#12 IFCWALL 'South wall'"; empty when the program is at none.
  std::string object() const;

  /// The same for any entity; without a number when the model that the program is at doesn't list
  /// it, such as a copy that is being cut.
  std::string nameOf(const fc::FcBase& entity) const;

  /// While a progress bar stands in the last line of `err`, other lines begin by wiping it away.
  void setBarShown(bool isShown) { m_isBarShown = isShown; }
  const char* lineStart() const { return m_isBarShown ? "\r\033[K" : ""; }

  /// The time in which a command is at one object of `model` after the other. The model may not
  /// change meanwhile.
  class Walk {
   public:
    Walk(Watch& watch, const step::ReadResult& model);
    Walk(const Walk&) = delete;
    Walk& operator=(const Walk&) = delete;
    ~Walk();

   private:
    Watch& m_watch;
  };

 private:
  std::string objectWhileLocked() const;
  std::string nameWhileLocked(const fc::FcBase& entity) const;
  void run();
  void tell(std::chrono::steady_clock::duration duration) const;
  [[noreturn]] void end() const;

  std::ostream& m_err;
  const std::chrono::milliseconds m_patience;
  mutable std::mutex m_mutex;
  std::condition_variable m_wakeUp;
  std::atomic<bool> m_isBarShown = false;
  bool m_isDone = false;
  const step::ReadResult* m_model = nullptr;
  mutable std::optional<step::EntityNumbers> m_numbers;  ///< made when the first object is named
  Guid m_guid;
  std::uint64_t m_visits = 0;  ///< 0 when at none
  std::thread m_thread;        ///< last: it uses all the others
};

}  // namespace qor::host::cli
