#pragma once

#include <functional>
#include <string>

#include "Host/Cli/Console.h"

namespace qor::host::cli {

/// A bar on the console's `err` that shows how far an operation has come; gone without a trace when
/// this ends. Nothing is written where nobody watches.
class ProgressBar {
 public:
  /// `what` is in front of the bar: "Reading".
  ProgressBar(std::string what, Console& console);
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;
  ~ProgressBar();

  /// For the `progress` of reader and writer, 0 to 1; empty where nobody watches. Valid as long as
  /// this lives.
  std::function<void(double)> callback();

 private:
  void show(double done);

  std::string m_what;
  Console& m_console;
  int m_percent = -1;
};

}  // namespace qor::host::cli
