#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "Tests/Support/SharedModels.h"

namespace qor::test {
namespace {

using Path = std::filesystem::path;

/// The rooms of the engine from the lowest floor up; those of one floor may enter each other.
constexpr std::array<std::array<std::string_view, 3>, 8> kFloors = {{
    {"Shapes/"},
    {"Model/", "Reflection/"},
    {"Drawing/"},
    {"Resource/"},
    {"Core/"},
    {"Shared/", "Domain/"},
    {"ComplexGeometry/"},
    {"Document/", "Tree/", "Utilities/"},
}};
constexpr std::size_t kModel = 1, kCore = 4, kTop = 7;

/// Sources that stand beside their header, but on a higher floor.
constexpr std::array<std::string_view, 4> kSourcesOfCore = {
    "Data.cpp", "FcCopySettings.cpp", "Drawing/DrawOutcomes.cpp", "Drawing/FcGenerateParams.cpp"};

bool standsOnOpenCascade(std::string_view file) {
  return file.starts_with("ComplexGeometry/Bridge/") || file.starts_with("HelperFunctionsOC.");
}

// Of a file by its path below Fc, "Core/Kernel/FcProduct.h".
std::size_t floorOf(std::string_view file) {
  if (standsOnOpenCascade(file)) return kTop;
  for (const std::string_view source : kSourcesOfCore)
    if (file == source) return kCore;
  for (std::size_t floor = 0; floor < kFloors.size(); ++floor)
    for (const std::string_view room : kFloors[floor])
      if (!room.empty() && file.starts_with(room)) return floor;
  return kModel;  // what stands in Fc itself
}

struct Include {
  std::string file;      ///< below Fc
  std::string included;  ///< as it is written
};

std::vector<Include> includesOfTheEngine() {
  std::vector<Include> includes;
  const Path root = sourceFile("Fc");
  for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
    const std::string ending = entry.path().extension().string();
    if (ending != ".h" && ending != ".cpp") continue;
    std::ifstream in(entry.path());
    for (std::string line; std::getline(in, line);) {
      const std::size_t open = line.find_first_of("<\"", 8);
      if (!line.starts_with("#include") || open == std::string::npos) continue;
      const std::size_t close = line.find_first_of(">\"", open + 1);
      includes.push_back({std::filesystem::relative(entry.path(), root).generic_string(),
                          line.substr(open + 1, close - open - 1)});
    }
  }
  return includes;
}

TEST(Floors, NoFileOfTheEngineIncludesOneOfAHigherFloor) {
  const auto includes = includesOfTheEngine();
  ASSERT_GT(includes.size(), 1000U);
  for (const auto& [file, included] : includes) {
    if (!included.starts_with("Fc/")) continue;
    EXPECT_LE(floorOf(included.substr(3)), floorOf(file)) << file << " -> " << included;
  }
}

TEST(Floors, OnlyTheBridgeCallsOpenCascade) {
  for (const auto& [file, included] : includesOfTheEngine()) {
    if (!included.ends_with(".hxx")) continue;
    // The one other source passes its types on.
    EXPECT_TRUE(standsOnOpenCascade(file) || file == "ComplexGeometry/ItemShapes.cpp")
        << file << " -> " << included;
  }
}

}  // namespace
}  // namespace qor::test
