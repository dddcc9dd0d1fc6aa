#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "Qor/Image/Png.h"
#include "Tests/Host/Cli/DrawingModel.h"
#include "Tests/Host/Cli/RunTool.h"

namespace qor::test {
namespace {

using host::cli::ExitCode;
using nlohmann::json;
using testing::HasSubstr;
using testing::Not;

class Drawing : public testing::Test {
 protected:
  std::string read(const std::string& name) const { return readFile(folder.path(name)); }

  const ScratchFolder folder;
  const std::string file = folder.model(drawingModel);
};

TEST_F(Drawing, TellsWhatItDrew) {
  const ToolRun run = runTool({"draw", file, "--json"});
  EXPECT_EQ(run.code, ExitCode::success) << run.err;
  const json drawn = run.json();
  EXPECT_EQ(drawn["objects"], 1) << "the wall; its opening is hidden";
  EXPECT_EQ(drawn["triangles"], 12);
  EXPECT_EQ(drawn["lines"], 0) << "an axis is hidden beside a body";
  EXPECT_THAT(runTool({"draw", file}).out, HasSubstr("1 objects, 0 shared blocks, 12 triangles"));
  const json axis = runTool({"draw", file, "--context", "axis", "--json"}).json();
  EXPECT_EQ(axis["lines"], 1);
  EXPECT_EQ(axis["triangles"], 0);
}

TEST_F(Drawing, WritesEachFormatThatIsAskedFor) {
  const ToolRun run = runTool({"draw", "-o", folder.path("m.glb"), "-o", folder.path("m.png"), "-o",
                               folder.path("m.svg"), "-o", folder.path("m.obj"), "--size",
                               "320x240", "--view", "front", file});
  ASSERT_EQ(run.code, ExitCode::success) << run.err;
  const std::string glb = read("m.glb");
  const json content = json::parse(glb.substr(20, glb.find_last_of('}', glb.find("BIN")) - 19));
  std::vector<std::string> names;
  for (const json& node : content["nodes"]) names.push_back(node.value("name", ""));
  EXPECT_THAT(names, testing::IsSupersetOf({"Project", "Site", "Wall"}));
  const auto picture = image::fromPng(read("m.png"));
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->width(), 320u);
  const image::Pixel middle = picture->at(160, 120);
  EXPECT_GT(middle[0], middle[1] + 40) << "reddish";
  EXPECT_GT(middle[1], 60) << "white shines through";
  EXPECT_THAT(read("m.svg"), HasSubstr("IFCWALL Wall"));
  EXPECT_THAT(read("m.obj"), HasSubstr("v 100001.000000 200002.000000 3.000000\n"));
  EXPECT_THAT(read("m.mtl"), HasSubstr("Kd 1 0 0\nd 0.5"));
}

TEST_F(Drawing, TracesEachCall) {
  const ToolRun run = runTool({"draw", file, "--trace", "--context", "Axis"});
  EXPECT_EQ(run.code, ExitCode::success) << run.err;
  EXPECT_THAT(run.out, HasSubstr("startObject IFCWALL 'Wall' 0000000000000000000004\n"));
  EXPECT_THAT(run.out, HasSubstr("origin (100001 200002 3)"));
  EXPECT_THAT(run.out, HasSubstr("vPolyline 2 points (0 0.5 0) (2 0.5 0)"));
  EXPECT_THAT(run.out, Not(HasSubstr("FaceSet")));
}

TEST_F(Drawing, DrawsOneEntityAlone) {
  EXPECT_EQ(runTool({"draw", file, "--id", "#40", "--json"}).json()["triangles"], 1);
  EXPECT_EQ(runTool({"draw", file, "--id", "20", "--json"}).json()["triangles"], 12);
  EXPECT_EQ(runTool({"draw", file, "--id", "24", "--json"}).json()["triangles"], 12);
  EXPECT_EQ(runTool({"draw", file, "--id", "22", "--json"}).json()["triangles"], 12);
}

TEST_F(Drawing, DrawsProductsThatNoProjectLeadsTo) {
  std::string instances = drawingModel;
  instances.erase(instances.find("#31=IFCREL"),
                  instances.find("#32=") - instances.find("#31=IFCREL"));
  const std::string lost = folder.model(instances, "lost.ifc");
  const ToolRun run = runTool({"draw", lost, "--json"});
  EXPECT_EQ(run.json()["triangles"], 12);
  EXPECT_THAT(run.err, HasSubstr("no project leads to 1 of the products"));
}

TEST_F(Drawing, HidesSpacesAndOpeningsUnlessAskedFor) {
  std::string instances = drawingModel;
  const std::size_t wall = instances.find("IFCWALL(");
  instances.replace(wall, 8, "IFCSPACE(");
  instances.replace(instances.find(",$,$);", wall), 6, ",$,$,$,$);");
  const std::string space = folder.model(instances, "space.ifc");
  const ToolRun hidden = runTool({"draw", space, "--json"});
  EXPECT_EQ(hidden.json()["objects"], 0);
  EXPECT_EQ(hidden.code, ExitCode::problems);
  EXPECT_THAT(hidden.err, HasSubstr("nothing was drawn of 3 products: 2 hidden by the draw status, "
                                    "1 without a representation; --why tells it of each\n"));
  EXPECT_EQ(runTool({"draw", space, "--json", "--spaces"}).json()["objects"], 1);
  EXPECT_EQ(runTool({"draw", space, "--json", "--openings"}).json()["objects"], 1);
  EXPECT_EQ(runTool({"measure", space, "--json"}).json()["products"].size(), 1u);
}

TEST_F(Drawing, SaysWhyAProductIsNotSeen) {
  const char* const wall = "0000000000000000000004";
  EXPECT_THAT(runTool({"draw", file}).err,
              HasSubstr("fctool: 3 products: 1 drawn, 1 hidden by the draw status, 1 without a "
                        "representation\n"));
  EXPECT_THAT(runTool({"draw", file, "--why"}).out,
              testing::EndsWith("#36 IFCOPENINGELEMENT 'Opening' 0000000000000000000006: hidden by "
                                "the draw status\n"
                                "#10 IFCSITE 'Site' 0000000000000000000002: without a "
                                "representation\n"));
  EXPECT_THAT(runTool({"measure", file, "--why", wall}).out,
              testing::EndsWith("#20 IFCWALL 'Wall' 0000000000000000000004: drawn\n"));

  std::string instances = drawingModel;
  const std::string parts = "IFCRELAGGREGATES('0000000000000000000007',$,$,$,#20,(#36))";
  instances.replace(instances.find(parts), parts.size(),
                    "IFCRELVOIDSELEMENT('0000000000000000000007',$,$,$,#20,#36)");
  const std::string cut = folder.model(instances, "cut.ifc");
  const ToolRun run = runTool({"draw", cut, "--json", "--why", wall});
  EXPECT_EQ(run.code, ExitCode::problems) << run.err;
  EXPECT_EQ(run.json()["why"], json::array({{{"id", 20},
                                             {"class", "IFCWALL"},
                                             {"guid", wall},
                                             {"name", "Wall"},
                                             {"outcome", "cutAway"},
                                             {"text", "cut away whole by openings"},
                                             {"reports", 0}}}));
  EXPECT_THAT(runTool({"measure", cut, "--context", "FootPrint", "--why", wall}).out,
              HasSubstr("with representations of other contexts only: 'Body', 'Axis'\n"));
}

TEST_F(Drawing, TakesBrokenRulesForProblems) {
  std::string instances = drawingModel;
  const std::string placement = "IFCLOCALPLACEMENT(#11,#23)";
  instances.replace(instances.find(placement), placement.size(), "IFCGRIDPLACEMENT($,$,$)");
  const ToolRun run = runTool({"draw", folder.model(instances, "grid.ifc"), "--why", "--json"});
  EXPECT_EQ(run.code, ExitCode::problems);
  EXPECT_THAT(run.err, HasSubstr("FcProduct::absolutePlacement), at #20 IFCWALL 'Wall'\n"));
  EXPECT_EQ(run.json()["why"][0]["outcome"], "failed") << run.out;
  EXPECT_THAT(std::string(run.json()["why"][0]["text"]),
              testing::StartsWith("failed: IfcWall 0000000000000000000004 has no computable "));
}

TEST_F(Drawing, RefusesToDrawWhatHasNoName) {
  for (const auto& [option, value, why] :
       {std::tuple{"--context", "Bodi",
                   "'Bodi' is the identifier of no representation; known are Annotation, Axis, "
                   "Body, Body-FallBack, Box, "},
        {"--why", "0000000000000000000005",
         "0000000000000000000005 IFCRELCONTAINEDINSPATIALSTRUCTURE is no product"},
        {"--why", "Wall", "'Wall' is no guid"}}) {
    const ToolRun run = runTool({"draw", file, option, value});
    EXPECT_EQ(run.code, ExitCode::impossible);
    EXPECT_THAT(run.err, HasSubstr(why));
  }
}

TEST_F(Drawing, StoresAndAppliesWhatIsHidden) {
  const std::string status = folder.path("status.xml");
  const ToolRun made = runTool({"status", file, "--disable", "IfcBuiltElement",
                                "0000000000000000000002", "--write", status, "--json"});
  ASSERT_EQ(made.code, ExitCode::success) << made.err;
  const json hidden = made.json()["disabled"];
  const auto contains = [&](const json& key) {
    return std::find(hidden.begin(), hidden.end(), key) != hidden.end();
  };
  EXPECT_TRUE(contains({{"class", "IfcWall"}})) << "a subclass";
  EXPECT_TRUE(contains({{"class", "IfcOpeningElement"}})) << "hidden by default";
  EXPECT_TRUE(contains({{"context", "Axis"}, {"type", "Model"}}));
  EXPECT_TRUE(
      contains({{"class", "IFCSITE"}, {"globalId", "0000000000000000000002"}, {"name", "Site"}}));
  EXPECT_EQ(runTool({"draw", file, "--status", status, "--json"}).json()["objects"], 0);
  EXPECT_EQ(runTool({"status", file, "--status", status, "--json"}).json()["disabled"], hidden);
  EXPECT_THAT(runTool({"status", file}).out, HasSubstr("Hidden: 7\n"));
  const ToolRun refused = runTool({"draw", file, "--status", file});
  EXPECT_EQ(refused.code, ExitCode::impossible);
  EXPECT_THAT(refused.err, HasSubstr("\nfctool: can't read a draw status from '" + file));
}

}  // namespace
}  // namespace qor::test
