#include "Tests/Support/SharedModels.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iterator>

namespace qor::test {

namespace fs = std::filesystem;

fs::path sharedFile(const std::string& relative) { return fs::path(FC_SHARED_DIR) / relative; }

fs::path sourceFile(const std::string& relative) { return fs::path(FC_SOURCE_DIR) / relative; }

std::vector<fs::path> sharedModels() {
  std::vector<fs::path> models;
  if (!fs::is_directory(sharedFile("models"))) return models;
  for (const auto& entry : fs::recursive_directory_iterator(sharedFile("models"))) {
    if (entry.is_regular_file() && entry.path().extension() == ".ifc") models.push_back(entry);
  }
  std::ranges::sort(models);
  return models;
}

std::vector<fs::path> allModels() {
  std::vector<fs::path> models = sharedModels();
  models.push_back(sourceFile("Examples/sample.ifc"));
  return models;
}

std::vector<fs::path> sharedBuildings() {
  std::vector<fs::path> models = sharedModels();
  std::erase_if(models,
                [](const auto& path) { return path.parent_path().filename() != "buildings"; });
  return models;
}

std::string readFile(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string modelTestName(const testing::TestParamInfo<fs::path>& model) {
  std::string name =
      model.param.parent_path().filename().string() + '_' + model.param.stem().string();
  std::ranges::replace_if(
      name, [](unsigned char c) { return !std::isalnum(c); }, '_');
  return name;
}

}  // namespace qor::test
