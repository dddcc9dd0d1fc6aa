#include "Schema/Generator/OutputFolder.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace qor::schema {

void OutputFolder::write(const std::string& name, const std::string& text) const {
  const std::filesystem::path path = m_root / name;
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

}  // namespace qor::schema
