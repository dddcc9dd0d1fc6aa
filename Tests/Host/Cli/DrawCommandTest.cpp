#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>

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
  std::string textOf(const std::string& name) const {
    std::ifstream stream(folder.path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }

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
  const std::string glb = textOf("m.glb");
  const json content = json::parse(glb.substr(20, glb.find_last_of('}', glb.find("BIN")) - 19));
  std::vector<std::string> names;
  for (const json& node : content["nodes"]) names.push_back(node.value("name", ""));
  EXPECT_THAT(names, testing::IsSupersetOf({"Project", "Site", "Wall"}));
  const auto picture = image::fromPng(textOf("m.png"));
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->width(), 320u);
  const image::Pixel middle = picture->at(160, 120);
  EXPECT_GT(middle[0], middle[1] + 40) << "reddish";
  EXPECT_GT(middle[1], 60) << "white shines through";
  EXPECT_THAT(textOf("m.svg"), HasSubstr("IFCWALL Wall"));
  EXPECT_THAT(textOf("m.obj"), HasSubstr("v 100001.000000 200002.000000 3.000000\n"));
  EXPECT_THAT(textOf("m.mtl"), HasSubstr("Kd 1 0 0\nd 0.5"));
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
  EXPECT_EQ(runTool({"draw", space, "--json"}).json()["objects"], 0);
  EXPECT_EQ(runTool({"draw", space, "--json", "--spaces"}).json()["objects"], 1);
  EXPECT_EQ(runTool({"draw", space, "--json", "--openings"}).json()["objects"], 1);
  EXPECT_EQ(runTool({"measure", space, "--json"}).json()["products"].size(), 1u);
}

TEST_F(Drawing, MeasuresBodies) {
  const json products = runTool({"measure", file, "--json"}).json()["products"];
  ASSERT_EQ(products.size(), 1u);
  const json& wall = products[0];
  EXPECT_EQ(wall["globalId"], "0000000000000000000004");
  EXPECT_EQ(wall["class"], "IFCWALL");
  EXPECT_EQ(wall["min"], json({100001.0, 200002.0, 3.0}));
  EXPECT_EQ(wall["max"], json({100003.0, 200003.0, 6.0}));
  EXPECT_NEAR(wall["area"].get<double>(), 22, 1e-6);
  EXPECT_NEAR(wall["volume"].get<double>(), 6, 1e-6);
  EXPECT_EQ(wall["triangles"], 12);
  EXPECT_EQ(wall["closed"], true);
  EXPECT_THAT(runTool({"measure", file}).out, HasSubstr("area 22.000 m2, volume 6.000 m3"));
  EXPECT_THAT(runTool({"measure", file, "--id", "40"}).out, HasSubstr("area 6.000 m2, not closed"));
  EXPECT_EQ(runTool({"measure", file, "--context", "Axis"}).out, "");
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
}

TEST_F(Drawing, SaysWhatItCannotDo) {
  struct Case {
    std::vector<std::string> arguments;
    const char* message;
  };
  const Case cases[] = {
      {{"draw", file, "-o", "x.dwg"}, "'x.dwg' ends in none of .glb, .obj, .png, .svg"},
      {{"draw", file, "-o", "/nowhere/x.glb"}, "can't write '/nowhere/x.glb'"},
      {{"draw", file, "--view", "top"}, "'top' is none of plan, front, side, iso"},
      {{"draw", file, "--size", "0x5"}, "'0x5' is no size of a picture"},
      {{"draw", file, "--segments", "20,10"}, "'20,10' is no least and most number of segments"},
      {{"draw", file, "--segments", "20"}, "'20' is no least and most number of segments"},
      {{"draw", file, "--chord", "0"}, "a chord of 0 mm isn't above 0"},
      {{"draw", file, "--id", "99"}, "the file has no instance #99"},
      {{"draw", file, "--id", "x"}, "'x' is no number of an instance"},
      {{"draw", file, "--id", "5"}, "5 IFCSIUNIT is nothing that can be drawn"},
      {{"draw", file, "--status", file}, "can't read a draw status from"},
      {{"status", file, "--disable", "IfcNothing"}, "'IfcNothing' is neither a class nor a guid"},
      {{"status", file, "--disable", "0000000000000000000009"},
       "no entity with the guid 0000000000000000000009"},
      {{"measure", folder.model("#1=IFCCARTESIANPOINT((0.,0.,0.));", "point.ifc")},
       "has no product to draw; --id draws any one entity"},
  };
  for (const Case& expected : cases) {
    const ToolRun run = runTool(expected.arguments);
    EXPECT_EQ(run.code, ExitCode::impossible) << expected.message;
    EXPECT_THAT(run.err, HasSubstr(expected.message));
  }
}

}  // namespace
}  // namespace qor::test
