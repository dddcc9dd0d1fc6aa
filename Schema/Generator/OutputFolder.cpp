#include "Schema/Generator/OutputFolder.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace qor::schema {

void OutputFolder::write(const std::string& name, const std::string& text) {
  const std::filesystem::path path = (m_root / name).lexically_normal();
  m_written.insert(path);
  if (std::ifstream present(path, std::ios::binary); present) {
    const std::string old{std::istreambuf_iterator<char>(present), {}};
    if (old == text) return;
  }
  std::filesystem::create_directories(path.parent_path());
  std::ofstream out(path, std::ios::binary);
  out << text;
  out.close();
  if (!out) throw std::runtime_error("can't write " + path.string());
}

void OutputFolder::removeOtherHeaders() const {
  std::set<std::filesystem::path> others;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(m_root / "Fc")) {
    const std::filesystem::path path = entry.path().lexically_normal();
    if (path.extension() == ".h" && !m_written.contains(path)) others.insert(path);
  }
  for (const std::filesystem::path& path : others) std::filesystem::remove(path);
}

}  // namespace qor::schema
