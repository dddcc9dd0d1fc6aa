#include <cerrno>
#include <cstdio>
#include <cstring>
#include <iostream>

#include "Host/Cli/CommandLine.h"
#include "Host/Cli/OutputBuffer.h"
#include "Host/Cli/Watch.h"
#include "Qor/Platform/StandardStreams.h"

int main(int argc, char** argv) {
  using namespace qor::host::cli;
  qor::surviveClosedPipes();
  Watch::endInOrderWhenInterrupted();
  OutputBuffer buffer(stdout);
  std::ostream out(&buffer);
  Watch watch(std::cerr);
  Console console{out, std::cerr, watch, qor::isTerminal(stderr)};
  const ExitCode code = runFctool(argc, argv, console);
  out.flush();
  // Whoever closes the pipe has seen enough; whatever else keeps the results back is a failure.
  if (buffer.error() == 0 || buffer.error() == EPIPE) return static_cast<int>(code);
  std::cerr << "fctool: can't write the results: " << std::strerror(buffer.error()) << "\n";
  return static_cast<int>(ExitCode::impossible);
}
