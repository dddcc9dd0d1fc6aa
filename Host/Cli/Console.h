#pragma once

#include <iostream>

namespace qor::host::cli {

class Watch;

/// Where a command writes to.
struct Console {
  std::ostream& out;            ///< results
  std::ostream& err;            ///< messages, each in one line
  Watch& watch;                 ///< is told what a long run is at
  bool showProgress = false;    ///< a person watches `err`
  std::istream& in = std::cin;  ///< a model, where a command line says "-"
  bool verbose = false;         ///< each note about a file has a line
};

/// How a command ends, as the exit code of the program.
enum class ExitCode {
  success = 0,
  problems = 1,    ///< done, but the file has problems, all of which were reported
  impossible = 2,  ///< what was asked can't be done
};

}  // namespace qor::host::cli
