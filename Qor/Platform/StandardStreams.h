#pragma once

#include <cstdio>

#include "Qor/Platform/Export.h"

namespace qor {

/// Whether a person watches what is written to `stream`: it is a terminal, not a file or a pipe.
QOR_API bool isTerminal(std::FILE* stream);

/// From now on, writing into a pipe that nobody reads any more is an error of that write instead of
/// the end of the process. Does nothing on systems where it is so anyway.
QOR_API void surviveClosedPipes();

}  // namespace qor
