#pragma once

#include <string>

#include "Qor/Platform/Export.h"

/// The file name of a shared library on this platform: "libName.so".
#if defined(_WIN32)
#define QOR_SHARED_LIBRARY_NAME(name) name ".dll"
#elif defined(__APPLE__)
#define QOR_SHARED_LIBRARY_NAME(name) "lib" name ".dylib"
#else
#define QOR_SHARED_LIBRARY_NAME(name) "lib" name ".so"
#endif

namespace qor {

/// A library that is opened while the program runs, and stays open to its end: what came out of it
/// (objects, addresses of functions) may outlive this.
class QOR_API SharedLibrary {
 public:
  /// A name without a folder is looked for in the folder of the calling library first, then where
  /// the system looks.
  explicit SharedLibrary(const std::string& fileName);

  /// What the system says when the library couldn't be opened, or a name in it not found; empty
  /// otherwise.
  const std::string& error() const { return m_error; }

  /// The function of that unmangled name; null when there is none, or no library.
  template <class Function>
  Function find(const char* name) {
    return reinterpret_cast<Function>(address(name));
  }

 private:
  void* address(const char* name);

  void* m_handle = nullptr;
  std::string m_error;
};

}  // namespace qor
