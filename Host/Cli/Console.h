#pragma once

#include <iosfwd>

namespace qor::host::cli {

class Watch;

/// Where a command writes to.
struct Console {
  std::ostream& out;          ///< results
  std::ostream& err;          ///< messages, each in one line
  bool showProgress = false;  ///< a person watches `err`
  Watch* watch = nullptr;     ///< of the run; `runFctool` gives one to its commands
};

/// How a command ends, as the exit code of the program.
enum class ExitCode {
  success = 0,
  problems = 1,    ///< done, but the file has problems, all of which were reported
  impossible = 2,  ///< what was asked can't be done
};

}  // namespace qor::host::cli
