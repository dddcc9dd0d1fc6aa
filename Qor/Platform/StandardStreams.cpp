#include "Qor/Platform/StandardStreams.h"

#if defined(_WIN32)
#include <io.h>
#else
#include <unistd.h>

#include <csignal>
#endif

namespace qor {

#if defined(_WIN32)

bool isTerminal(std::FILE* stream) { return _isatty(_fileno(stream)) != 0; }

void surviveClosedPipes() {}

#else

bool isTerminal(std::FILE* stream) { return ::isatty(::fileno(stream)) != 0; }

void surviveClosedPipes() { std::signal(SIGPIPE, SIG_IGN); }

#endif

}  // namespace qor
