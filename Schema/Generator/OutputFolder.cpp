#include "Schema/Generator/OutputFolder.h"

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <vector>

namespace qor::schema {

void OutputFolder::write(const std::string& name, const std::string& text) {
  const std::filesystem::path path = m_root / name;
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

void OutputFolder::removeOldHeaders() const {
  namespace fs = std::filesystem;
  std::vector<fs::path> old;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(m_root))
    if (entry.path().extension() == ".h" && !m_written.count(entry.path()))
      old.push_back(entry.path());
  for (const fs::path& path : old) fs::remove(path);
}

}  // namespace qor::schema
