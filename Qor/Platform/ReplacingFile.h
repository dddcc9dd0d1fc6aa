#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "Qor/Platform/Export.h"

namespace qor {

/// A file that takes the place of another one at once, or not at all: what is written goes to a
/// temporary file beside the target, which `commit` brings onto the disk and renames. Whatever ends
/// the program before leaves the old file as it was.
///
/// Operations return an empty text on success, otherwise what the operating system says ("No space
/// left on device").
class QOR_API ReplacingFile {
 public:
  ReplacingFile() = default;
  ReplacingFile(const ReplacingFile&) = delete;
  ReplacingFile& operator=(const ReplacingFile&) = delete;
  /// Removes the temporary file unless `commit` succeeded.
  ~ReplacingFile();

  /// To be called once. A link is followed, so that the file behind it is replaced, and permissions
  /// of that file are kept. A target that is there and no ordinary file is refused.
  std::string open(const std::filesystem::path& target);
  /// Unbuffered: give it large pieces.
  std::string write(std::string_view bytes);
  /// Replaces the target. Nothing may be written afterwards.
  std::string commit();

  /// For a program that ends without destroying its objects: removes the temporary files of all
  /// that are open, in any thread.
  static void removeTemporaries();

  /// "model.ifc.1f3a9c2e.tmp"; empty before `open`.
  const std::filesystem::path& temporary() const { return m_temporary; }

 private:
  void close();

  std::filesystem::path m_target;
  std::filesystem::path m_temporary;
  std::intptr_t m_file = -1;
};

}  // namespace qor
