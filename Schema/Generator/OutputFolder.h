#pragma once

#include <filesystem>
#include <set>
#include <string>

namespace qor::schema {

/// Where generated files go. A file that would come out as it is stays untouched, so that nothing
/// is compiled again for it.
class OutputFolder {
 public:
  explicit OutputFolder(std::filesystem::path root) : m_root(std::move(root)) {}

  /// `name` is relative, with its folders: "Fc/Core/Kernel/FcProject.h". Throws std::runtime_error
  /// when it can't be written.
  void write(const std::string& name, const std::string& text);
  /// Removes the headers that an earlier run wrote and this one didn't. One that is now
  /// hand-written would else be found in its old form by a compiler cache, which looks at the files
  /// that it knows.
  void removeOldHeaders() const;

 private:
  std::filesystem::path m_root;
  std::set<std::filesystem::path> m_written;
};

}  // namespace qor::schema
