#include "Qor/Platform/ReplacingFile.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <mutex>
#include <random>
#include <set>
#include <system_error>
#include <utility>

#if defined(_WIN32)
#define NOMINMAX
#include <windows.h>
#else
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#endif

namespace qor {

namespace fs = std::filesystem;

namespace {

constexpr std::intptr_t noFile = -1;

std::string systemMessage(int code) { return std::system_category().message(code); }

#if defined(_WIN32)

std::string lastError() { return systemMessage(static_cast<int>(GetLastError())); }

HANDLE handleOf(std::intptr_t file) { return reinterpret_cast<HANDLE>(file); }

std::intptr_t createNew(const fs::path& path) {
  return reinterpret_cast<std::intptr_t>(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr,
                                                     CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
}

bool writeSome(std::intptr_t file, std::string_view& bytes) {
  DWORD written = 0;
  const auto length = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), 1U << 30));
  if (!WriteFile(handleOf(file), bytes.data(), length, &written, nullptr)) return false;
  bytes.remove_prefix(written);
  return true;
}

bool flush(std::intptr_t file) { return FlushFileBuffers(handleOf(file)) != 0; }

bool closeFile(std::intptr_t file) { return CloseHandle(handleOf(file)) != 0; }

bool replace(const fs::path& from, const fs::path& to) {
  return MoveFileExW(from.c_str(), to.c_str(),
                     MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

#else

std::string lastError() { return systemMessage(errno); }

std::intptr_t createNew(const fs::path& path) {
  return ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
}

bool writeSome(std::intptr_t file, std::string_view& bytes) {
  const auto written =
      ::write(static_cast<int>(file), bytes.data(), std::min<std::size_t>(bytes.size(), 1U << 30));
  if (written < 0) return errno == EINTR;
  bytes.remove_prefix(static_cast<std::size_t>(written));
  return true;
}

bool flush(std::intptr_t file) { return ::fsync(static_cast<int>(file)) == 0; }

bool closeFile(std::intptr_t file) { return ::close(static_cast<int>(file)) == 0; }

bool replace(const fs::path& from, const fs::path& to) {
  if (std::rename(from.c_str(), to.c_str()) != 0) return false;
  // The rename itself is on the disk only when its folder is. A folder that can't be opened for
  // that is no failure.
  const int folder =
      ::open(to.has_parent_path() ? to.parent_path().c_str() : ".", O_RDONLY | O_CLOEXEC);
  if (folder >= 0) {
    ::fsync(folder);
    ::close(folder);
  }
  return true;
}

#endif

fs::path temporaryBeside(const fs::path& target) {
  std::array<char, 8> digits{};
  const auto end =
      std::to_chars(digits.data(), digits.data() + digits.size(), std::random_device()(), 16).ptr;
  fs::path temporary = target;
  temporary += "." + std::string(digits.data(), end) + ".tmp";
  return temporary;
}

void removeFile(const fs::path& path) {
  std::error_code ignored;
  fs::remove(path, ignored);
}

std::mutex openMutex;

std::set<fs::path>& openTemporaries() {
  static std::set<fs::path> all;
  return all;
}

void remember(const fs::path& temporary) {
  const std::lock_guard lock(openMutex);
  openTemporaries().insert(temporary);
}

void forget(const fs::path& temporary) {
  const std::lock_guard lock(openMutex);
  openTemporaries().erase(temporary);
}

}  // namespace

ReplacingFile::~ReplacingFile() {
  close();
  if (!m_temporary.empty()) removeFile(m_temporary);
  forget(m_temporary);
}

void ReplacingFile::removeTemporaries() {
  const std::lock_guard lock(openMutex);
  for (const fs::path& temporary : openTemporaries()) removeFile(temporary);
}

void ReplacingFile::close() {
  if (m_file != noFile) closeFile(std::exchange(m_file, noFile));
}

std::string ReplacingFile::open(const fs::path& target) {
  std::error_code error;
  m_target = fs::is_symlink(target, error) ? fs::weakly_canonical(target, error) : target;
  const fs::file_status old = fs::status(m_target, error);
  if (fs::exists(old) && !fs::is_regular_file(old)) return "it is no ordinary file";
  fs::path temporary = temporaryBeside(m_target);
  m_file = createNew(temporary);
  if (m_file == noFile) return lastError();
  m_temporary = std::move(temporary);
  remember(m_temporary);
  if (fs::exists(old)) fs::permissions(m_temporary, old.permissions(), error);
  return {};
}

std::string ReplacingFile::write(std::string_view bytes) {
  while (!bytes.empty()) {
    if (!writeSome(m_file, bytes)) return lastError();
  }
  return {};
}

std::string ReplacingFile::commit() {
  if (!flush(m_file)) return lastError();
  if (!closeFile(std::exchange(m_file, noFile))) return lastError();
  if (!replace(m_temporary, m_target)) return lastError();
  forget(m_temporary);
  m_temporary.clear();
  return {};
}

}  // namespace qor
