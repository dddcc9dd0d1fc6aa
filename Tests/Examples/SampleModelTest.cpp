// The house that the example builds, as a host sees it.

#include <gmock/gmock.h>

#include <map>
#include <set>
#include <string>

#include "Tests/Host/Cli/RunTool.h"

namespace qor::test {
namespace {

using host::cli::ExitCode;
using nlohmann::json;
using testing::HasSubstr;

class SampleModel : public testing::Test {
 protected:
  /// What is measured of each product, by its name.
  static std::map<std::string, json> measured(std::vector<std::string> options = {}) {
    options.insert(options.begin(), {"measure", sampleFile(), "--json"});
    const ToolRun run = runTool(options);
    EXPECT_EQ(run.code, ExitCode::success) << run.err;
    std::map<std::string, json> products;
    const json result = run.json();
    for (const json& product : result.at("products")) products[product.at("name")] = product;
    return products;
  }
};

TEST_F(SampleModel, LoadsWithoutAProblem) {
  const json info = runTool({"info", sampleFile(), "--json"}).json();
  EXPECT_EQ(info.at("problems"), json::array());
}

TEST_F(SampleModel, IsMadeOfClosedBodies) {
  const auto products = measured();
  EXPECT_EQ(products.size(), 35u);
  std::set<std::string> classes;
  for (const auto& [name, product] : products) {
    EXPECT_EQ(product.at("closed"), true) << name;
    EXPECT_GT(product.at("volume"), 0) << name;
    classes.insert(product.at("class"));
  }
  EXPECT_EQ(classes.size(), 11u);
}

/// The volumes of openings, of which walls lose 0.24 m and slabs 0.2 m.
TEST_F(SampleModel, LosesItsOpenings) {
  constexpr double window = 1.5 * 1.2 * 0.24, door = 1.0 * 2.1 * 0.24, roundWindow = 0.5027 * 0.24;
  const std::map<std::string, double> openings{{"South wall", door + window},
                                               {"East wall", 2 * window},
                                               {"North wall", window},
                                               {"West wall", window},
                                               {"South gable", window + door + roundWindow},
                                               {"North gable", window + roundWindow},
                                               {"East knee wall", 0},
                                               {"Floor slab", (3.8 * 1.06 + 0.6 * 0.6) * 0.2},
                                               {"East pitch", 0.6 * 0.6 * 0.25}};
  const auto cut = measured(), whole = measured({"--no-openings"});
  for (const auto& [name, lost] : openings) {
    const double difference =
        whole.at(name).at("volume").get<double>() - cut.at(name).at("volume").get<double>();
    EXPECT_NEAR(difference, lost, 0.001) << name;
  }
}

TEST_F(SampleModel, KeepsTheColourOfWallsThatAreCut) {
  const std::string trace = runTool({"draw", sampleFile(), "--trace"}).out;
  for (const char* wall : {"South wall", "South gable"}) {
    const std::size_t start = trace.find("startObject IFCWALL '" + std::string(wall));
    ASSERT_NE(start, std::string::npos) << wall;
    EXPECT_THAT(trace.substr(start, trace.find("stopObject", start) - start),
                HasSubstr("setMaterial (0.75999999 0.469999999 0.360000014) opacity 1\n"))
        << wall;
  }
}

}  // namespace
}  // namespace qor::test
