#include "Qor/Platform/SharedLibrary.h"

#include <filesystem>
#include <system_error>

#if defined(_WIN32)
#define NOMINMAX
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace qor {

namespace {

#if defined(_WIN32)

std::string lastLoadError() {
  return std::system_category().message(static_cast<int>(GetLastError()));
}

void* load(const std::filesystem::path& path) { return LoadLibraryW(path.c_str()); }

void* addressIn(void* library, const char* name) {
  return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(library), name));
}

std::filesystem::path folderOfThisLibrary() { return {}; }  // the system looks beside the program

#else

std::string lastLoadError() {
  const char* const error = dlerror();
  return error ? error : "unknown error";
}

void* load(const std::filesystem::path& path) {
  return dlopen(path.c_str(), RTLD_LAZY | RTLD_LOCAL);
}

void* addressIn(void* library, const char* name) { return dlsym(library, name); }

/// Of the library that this code is in.
std::filesystem::path folderOfThisLibrary() {
  Dl_info info{};
  if (dladdr(reinterpret_cast<const void*>(&folderOfThisLibrary), &info) == 0 || !info.dli_fname)
    return {};
  return std::filesystem::path(info.dli_fname).parent_path();
}

#endif

}  // namespace

SharedLibrary::SharedLibrary(const std::string& fileName) {
  std::error_code ignored;
  const std::filesystem::path beside = folderOfThisLibrary() / fileName;
  m_handle =
      load(std::filesystem::exists(beside, ignored) ? beside : std::filesystem::path(fileName));
  if (!m_handle) m_error = lastLoadError();
}

void* SharedLibrary::address(const char* name) {
  if (!m_handle) return nullptr;
  void* const found = addressIn(m_handle, name);
  if (!found) m_error = lastLoadError();
  return found;
}

}  // namespace qor
