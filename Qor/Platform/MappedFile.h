#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include "Qor/Platform/Export.h"

namespace qor {

/// The bytes of a file, read-only, as long as this lives. An ordinary file is mapped, so that it
/// takes no heap and pages come as they are read; what can't be mapped (a pipe) is read into
/// memory.
///
/// Whoever shortens the file meanwhile pulls the bytes away from under its reader, which ends the
/// process on most systems.
class QOR_API MappedFile {
 public:
  MappedFile() = default;
  MappedFile(const MappedFile&) = delete;
  MappedFile& operator=(const MappedFile&) = delete;
  ~MappedFile();

  /// To be called once. Empty on success, otherwise what the operating system says ("No such file
  /// or directory").
  std::string open(const std::filesystem::path& path);

  std::string_view bytes() const { return {m_data, m_size}; }

 private:
  std::string readAll(const std::filesystem::path& path);

  const char* m_data = nullptr;
  std::size_t m_size = 0;
  bool m_mapped = false;
  std::string m_buffer;
};

}  // namespace qor
