#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "Tests/Host/Cli/DrawingModel.h"
#include "Tests/Host/Cli/RunTool.h"

namespace qor::test {
namespace {

using host::cli::ExitCode;
using nlohmann::json;
using testing::HasSubstr;

constexpr const char* wall = "0000000000000000000004";
constexpr const char* otherWall = "0000000000000000000008";

/// The wall with a hole of a cubic metre, and a copy of it without one, 5 m further along.
const std::string twoWalls = std::string(drawingModel) + R"(
#50=IFCWALL('0000000000000000000008',$,'Other',$,$,#51,#52,$,$);
#51=IFCLOCALPLACEMENT(#11,#53);
#52=IFCPRODUCTDEFINITIONSHAPE($,$,(#24));
#53=IFCAXIS2PLACEMENT3D(#54,$,$);
#54=IFCCARTESIANPOINT((8.,2.,3.));
#60=IFCOPENINGELEMENT('0000000000000000000009',$,'Hole',$,$,#61,#62,$,.OPENING.);
#61=IFCLOCALPLACEMENT(#21,#63);
#62=IFCPRODUCTDEFINITIONSHAPE($,$,(#65));
#63=IFCAXIS2PLACEMENT3D(#64,$,$);
#64=IFCCARTESIANPOINT((0.5,-0.5,1.));
#65=IFCSHAPEREPRESENTATION(#7,'Body','CSG',(#66));
#66=IFCBLOCK(#67,1.,2.,1.);
#67=IFCAXIS2PLACEMENT3D(#6,$,$);
#68=IFCRELVOIDSELEMENT('000000000000000000000A',$,$,$,#20,#60);
)";

class Measuring : public testing::Test {
 protected:
  /// What the command says of the wall, an empty object if nothing.
  json wallBy(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), {"measure", file, "--json"});
    const ToolRun run = runTool(arguments);
    EXPECT_EQ(run.code, ExitCode::success) << run.err;
    const json result = run.json();
    for (const json& product : result["products"])
      if (product["globalId"] == wall) return product;
    return json::object();
  }

  const ScratchFolder folder;
  const std::string file = folder.model(twoWalls);
};

TEST_F(Measuring, TellsOfABodyWithItsOpeningsCutOutUnlessToldOtherwise) {
  const json cut = wallBy({});
  EXPECT_EQ(cut["class"], "IFCWALL");
  EXPECT_EQ(cut["min"], json({100001.0, 200002.0, 3.0}));
  EXPECT_EQ(cut["max"], json({100003.0, 200003.0, 6.0}));
  EXPECT_NEAR(cut["area"].get<double>(), 24, 1e-6);
  EXPECT_NEAR(cut["volume"].get<double>(), 5, 1e-6);
  EXPECT_EQ(cut["closed"], true);
  EXPECT_EQ(wallBy({"--no-openings"})["triangles"], 12);
  EXPECT_THAT(runTool({"measure", file}).out, HasSubstr("area 22.000 m2, volume 6.000 m3"));
  EXPECT_THAT(runTool({"measure", file, "--id", "40"}).out, HasSubstr("area 6.000 m2, not closed"));
  EXPECT_EQ(runTool({"measure", file, "--context", "Axis"}).out, "");
  EXPECT_NEAR(wallBy({"--no-openings"})["volume"].get<double>(), 6, 1e-6);
}

TEST_F(Measuring, OutlinesTheFacesOfABody) {
  const json surfaces = wallBy({"--surfaces"})["surfaces"];
  ASSERT_EQ(surfaces.size(), 12u) << "the triangles of its tessellation";
  double least = 1e9, most = 0;
  for (const json& outline : surfaces)
    for (const json& point : outline) {
      least = std::min(least, point[0].get<double>());
      most = std::max(most, point[0].get<double>());
    }
  EXPECT_NEAR(least, 100001, 1e-6);
  EXPECT_NEAR(most, 100003, 1e-6);
}

TEST_F(Measuring, TellsTheDistanceOfTwoBodies) {
  const auto distance = [&](const char* from, const char* to) {
    return runTool({"measure", file, "--json", "--distance", from, to}).json()["distance"];
  };
  EXPECT_NEAR(distance(wall, otherWall).get<double>(), 5, 1e-6);
  EXPECT_NEAR(distance(wall, wall).get<double>(), 0, 1e-6);
  EXPECT_TRUE(distance(wall, "0000000000000000000002").is_null()) << "a site without a body";
}

}  // namespace
}  // namespace qor::test
