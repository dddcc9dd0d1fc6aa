#pragma once

#include <string>

#include "Qor/Platform/Export.h"

namespace qor::fc::resource {

/// Reports a broken rule of the model, when asserts are enabled. `function` is the qualified name
/// of the operation; the class in it is the source.
QOR_API void report(std::string message, const char* function, int line);

}  // namespace qor::fc::resource
