#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

#include "Tests/Host/Cli/RunTool.h"
#include "Tests/Support/SharedModels.h"

namespace qor::test {
namespace {

using host::cli::ExitCode;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

constexpr const char* southWall = "0TFreCQonEaOenN0vtqaQR";

TEST(ExtractCommand, TakesAnElementWithItsOpeningsItsTypeItsSetsAndTheWayUp) {
  const ScratchFolder folder;
  const std::string out = folder.path("wall.ifc");
  const ToolRun run = runTool({"extract", sampleFile(), "--guid", southWall, "-o", out});
  EXPECT_EQ(run.code, ExitCode::success) << run.err;
  const nlohmann::json classes = runTool({"info", out, "--json"}).json().at("classes");
  const std::vector<std::pair<const char*, int>> expected{{"IFCPROJECT", 1},
                                                          {"IFCSITE", 1},
                                                          {"IFCBUILDING", 1},
                                                          {"IFCBUILDINGSTOREY", 1},
                                                          {"IFCWALL", 1},
                                                          {"IFCWALLTYPE", 1},
                                                          {"IFCOPENINGELEMENT", 2},
                                                          {"IFCRELVOIDSELEMENT", 2},
                                                          {"IFCPROPERTYSET", 2},
                                                          {"IFCELEMENTQUANTITY", 1},
                                                          {"IFCUNITASSIGNMENT", 1},
                                                          {"IFCGEOMETRICREPRESENTATIONCONTEXT", 1},
                                                          {"IFCCLASSIFICATION", 1},
                                                          {"IFCRELCONTAINEDINSPATIALSTRUCTURE", 1},
                                                          {"IFCRELDEFINESBYTYPE", 1}};
  for (const auto& [name, count] : expected) EXPECT_EQ(classes.value(name, 0), count) << name;
  for (const char* absent : {"IFCDOOR", "IFCWINDOW", "IFCSLAB", "IFCSPACE", "IFCRELFILLSELEMENT"})
    EXPECT_FALSE(classes.contains(absent)) << absent;
  EXPECT_THAT(readFile(out), HasSubstr("'South wall'"));
  EXPECT_EQ(runTool({"info", out}).code, ExitCode::success);
}

TEST(ExtractCommand, OfADoorTakesNoWall) {
  const ScratchFolder folder;
  const std::string out = folder.path("door.ifc");
  runTool({"extract", sampleFile(), "--guid", "0TFreKQonEaOenN0vtqaQR", "-o", out});
  const nlohmann::json classes = runTool({"info", out, "--json"}).json().at("classes");
  EXPECT_EQ(classes.value("IFCDOOR", 0), 1);
  EXPECT_FALSE(classes.contains("IFCWALL"));
  // The door stands where it stood: its placement is relative to those of the opening and the wall.
  EXPECT_EQ(classes.value("IFCLOCALPLACEMENT", 0), 6);
}

class BuildingExtract : public ModelTest {};

TEST_P(BuildingExtract, HasTheContentOfItsSource) {
  const ScratchFolder folder;
  const std::string file = GetParam().string();
  const std::string out = folder.path("part.ifc");
  std::vector<std::string> guids;
  const nlohmann::json tree = runTool({"tree", file, "--json"}).json();
  for (const auto& node : tree.at("nodes"))
    if (node.at("relation") == "contained" && guids.size() < 3) guids.push_back(node.at("guid"));
  ASSERT_EQ(guids.size(), 3u);
  const ToolRun run =
      runTool({"extract", file, "--guid", guids[0], guids[1], guids[2], "-o", out, "--json"});
  EXPECT_LT(run.json().at("instances"), 20000);

  const nlohmann::json diff = runTool({"diff", file, out, "--json"}).json();
  EXPECT_THAT(diff.at("added"), IsEmpty());
  // Relationships lose members; nothing else is another.
  for (const auto& changed : diff.at("changed")) {
    const std::string name = changed.at("after").at("class");
    EXPECT_THAT(name, StartsWith("IFCREL")) << changed;
  }
  for (const auto& removed : diff.at("removed"))
    EXPECT_EQ(std::find(guids.begin(), guids.end(), removed.at("guid")), guids.end());
  const std::string source = readFile(file);
  const bool hasStyles = source.find("IFCSTYLEDITEM") != std::string::npos;
  EXPECT_EQ(readFile(out).find("IFCSTYLEDITEM") != std::string::npos, hasStyles);
}

FC_INSTANTIATE_FOR_MODELS(BuildingExtract, sharedBuildings());

}  // namespace
}  // namespace qor::test
