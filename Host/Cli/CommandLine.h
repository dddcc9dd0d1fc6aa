#pragma once

#include "Host/Cli/Console.h"

namespace qor::host::cli {

/// The program `fctool` but for its streams: reads the command line and runs the command that it
/// names. Nothing is thrown: what a command can't cope with, lack of memory included, is told in
/// one line and gives `impossible`, as a wrong command line does.
ExitCode runFctool(int argc, const char* const* argv, Console& console) noexcept;

}  // namespace qor::host::cli
