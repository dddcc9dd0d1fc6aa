#include "Qor/Platform/MappedFile.h"

#include <cerrno>
#include <fstream>
#include <iterator>
#include <system_error>

#if defined(_WIN32)
#define NOMINMAX
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace qor {

namespace {

/// The whole file mapped; null when it is empty or can't be mapped.
const char* mapWhole(const std::filesystem::path& path, std::size_t& size);

#if defined(_WIN32)

const char* mapWhole(const std::filesystem::path& path, std::size_t& size) {
  const HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                  OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
  if (file == INVALID_HANDLE_VALUE) return nullptr;
  const void* view = nullptr;
  LARGE_INTEGER length{};
  if (GetFileSizeEx(file, &length) && length.QuadPart > 0) {
    if (const HANDLE mapping = CreateFileMappingW(file, nullptr, PAGE_READONLY, 0, 0, nullptr)) {
      view = MapViewOfFile(mapping, FILE_MAP_READ, 0, 0, 0);
      CloseHandle(mapping);
    }
  }
  CloseHandle(file);
  size = static_cast<std::size_t>(length.QuadPart);
  return static_cast<const char*>(view);
}

void unmap(const char* data, std::size_t) { UnmapViewOfFile(data); }

#else

const char* mapWhole(const std::filesystem::path& path, std::size_t& size) {
  const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return nullptr;
  void* view = MAP_FAILED;
  struct stat status {};
  if (::fstat(file, &status) == 0 && S_ISREG(status.st_mode) && status.st_size > 0) {
    size = static_cast<std::size_t>(status.st_size);
    view = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file, 0);
    if (view != MAP_FAILED) ::madvise(view, size, MADV_SEQUENTIAL);
  }
  ::close(file);
  return view == MAP_FAILED ? nullptr : static_cast<const char*>(view);
}

void unmap(const char* data, std::size_t size) { ::munmap(const_cast<char*>(data), size); }

#endif

}  // namespace

MappedFile::~MappedFile() {
  if (m_mapped) unmap(m_data, m_size);
}

std::string MappedFile::open(const std::filesystem::path& path) {
  std::error_code error;
  if (std::filesystem::is_directory(path, error)) {
    return std::make_error_code(std::errc::is_a_directory).message();
  }
  m_data = mapWhole(path, m_size);
  m_mapped = m_data != nullptr;
  return m_mapped ? std::string() : readAll(path);
}

std::string MappedFile::readAll(const std::filesystem::path& path) {
  errno = 0;
  std::ifstream in(path, std::ios::binary);
  if (in) {
    m_buffer.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    m_data = m_buffer.data();
    m_size = m_buffer.size();
  }
  if (in && !in.bad()) return {};
  return std::error_code(errno != 0 ? errno : EIO, std::generic_category()).message();
}

}  // namespace qor
