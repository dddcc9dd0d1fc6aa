#include "Schema/Generator/OutputFolder.h"

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <vector>

namespace qor::schema {

void OutputFolder::write(const std::string& name, const std::string& text) {
<<<<<<< HEAD
  const std::filesystem::path path = (m_root / name).lexically_normal();
=======
  const std::filesystem::path path = m_root / name;
>>>>>>> 76c8c452d8df2ffce50b7df532f1ed6c365bf25e
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

<<<<<<< HEAD
void OutputFolder::removeOtherHeaders() const {
  std::set<std::filesystem::path> others;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(m_root / "Fc")) {
    const std::filesystem::path path = entry.path().lexically_normal();
    if (path.extension() == ".h" && !m_written.contains(path)) others.insert(path);
  }
  for (const std::filesystem::path& path : others) std::filesystem::remove(path);
=======
void OutputFolder::removeOldHeaders() const {
  namespace fs = std::filesystem;
  std::vector<fs::path> old;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(m_root))
    if (entry.path().extension() == ".h" && !m_written.count(entry.path()))
      old.push_back(entry.path());
  for (const fs::path& path : old) fs::remove(path);
>>>>>>> 76c8c452d8df2ffce50b7df532f1ed6c365bf25e
}

}  // namespace qor::schema
