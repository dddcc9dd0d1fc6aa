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

std::string lastError() { return std::system_category().message(static_cast<int>(GetLastError())); }

void* open(const std::filesystem::path& path) { return LoadLibraryW(path.c_str()); }

void* find(void* library, const char* name) {
  return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(library), name));
}

std::filesystem::path ownFolder() { return {}; }  // the system looks beside the program

#else

std::string lastError() {
  const char* const error = dlerror();
  return error ? error : "unknown error";
}

void* open(const std::filesystem::path& path) {
  return dlopen(path.c_str(), RTLD_LAZY | RTLD_LOCAL);
}

void* find(void* library, const char* name) { return dlsym(library, name); }

/// Of the library that this code is in.
std::filesystem::path ownFolder() {
  Dl_info info{};
  if (dladdr(reinterpret_cast<const void*>(&ownFolder), &info) == 0 || !info.dli_fname) return {};
  return std::filesystem::path(info.dli_fname).parent_path();
}

#endif

}  // namespace

SharedLibrary::SharedLibrary(const std::string& fileName) {
  std::error_code ignored;
  const std::filesystem::path beside = ownFolder() / fileName;
  m_handle =
      open(std::filesystem::exists(beside, ignored) ? beside : std::filesystem::path(fileName));
  if (!m_handle) m_error = lastError();
}

void* SharedLibrary::address(const char* name) {
  if (!m_handle) return nullptr;
  void* const found = ::qor::find(m_handle, name);
  if (!found) m_error = lastError();
  return found;
}

}  // namespace qor
