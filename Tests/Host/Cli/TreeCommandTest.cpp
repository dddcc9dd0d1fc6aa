#include <gmock/gmock.h>

#include <sstream>

#include "Tests/Host/Cli/RunTool.h"

namespace qor::test {
namespace {

using host::cli::ExitCode;
using testing::HasSubstr;

TEST(TreeCommand, ShowsTheSampleHouse) {
  const ToolRun run = runTool({"tree", sampleFile()});
  EXPECT_EQ(run.code, ExitCode::success);
  EXPECT_EQ(run.out, R"(#1 IFCPROJECT 'Sample house'
  #13 IFCSITE 'Meadow'
    #23 IFCBUILDING 'House'
      #25 IFCBUILDINGSTOREY 'Ground floor'
        #29 IFCSPACE '0.1'
        #41 IFCSLAB 'Base slab'
        #53 IFCWALL 'South wall'
        #67 IFCWALL 'East wall'
        #78 IFCWALL 'North wall'
        #89 IFCWALL 'West wall'
        #98 IFCSLAB 'Doorstep'
        #143 IFCDOOR 'Front door'
        #172 IFCWINDOW 'Küchenfenster'
        #186 IFCWINDOW 'East window 1'
        #200 IFCWINDOW 'East window 2'
        #214 IFCWINDOW 'North window'
        #228 IFCWINDOW 'West window'
        #241 IFCCOLUMN 'West column'
        #247 IFCCOLUMN 'East column'
        #253 IFCSTAIR 'Stair'
        #262 IFCCHIMNEY 'Chimney'
      #27 IFCBUILDINGSTOREY 'Upper floor'
        #274 IFCSLAB 'Floor slab'
        #303 IFCWALL 'South gable'
        #317 IFCWALL 'East knee wall'
        #334 IFCWALL 'North gable'
        #348 IFCWALL 'West knee wall'
        #355 IFCROOF 'Roof'
          #357 IFCSLAB 'West pitch'
          #369 IFCSLAB 'East pitch'
        #388 IFCSLAB 'Balcony'
        #432 IFCRAILING 'Balcony railing'
        #443 IFCWINDOW 'South window'
        #466 IFCDOOR 'Balcony door'
        #489 IFCWINDOW 'South round window'
        #503 IFCWINDOW 'Gable window'
        #517 IFCWINDOW 'North round window'
    #540 IFCGEOGRAPHICELEMENT 'Tree 1'
    #546 IFCGEOGRAPHICELEMENT 'Tree 2'
    #552 IFCGEOGRAPHICELEMENT 'Tree 3'
)");
}

TEST(TreeCommand, JsonListsTheNodesWithTheirParents) {
  const nlohmann::json json = runTool({"tree", sampleFile(), "--json"}).json();
  EXPECT_EQ(json.at("file"), sampleFile());
  ASSERT_EQ(json.at("nodes").size(), 40u);
  EXPECT_EQ(json.at("nodes").at(0), nlohmann::json({{"id", 1},
                                                    {"class", "IFCPROJECT"},
                                                    {"guid", "0TFre1QonEaOenN0vtqaQR"},
                                                    {"name", "Sample house"},
                                                    {"depth", 0},
                                                    {"parent", nullptr},
                                                    {"relation", "root"},
                                                    {"repeated", false}}));
  const nlohmann::json& slab = json.at("nodes").at(5);
  EXPECT_EQ(slab.at("name"), "Base slab");
  EXPECT_EQ(slab.at("parent"), 25);
  EXPECT_EQ(slab.at("relation"), "contained");
}

TEST(TreeCommand, EndsOnCyclesAndShowsWhatNoProjectLeadsTo) {
  const ScratchFolder folder;
  const std::string file = folder.model(R"(
#1=IFCPROJECT('0TFre1QonEaOenN0vtqa01',$,'P',$,$,$,$,$,$);
#2=IFCSITE('0TFre1QonEaOenN0vtqa02',$,'S',$,$,$,$,$,$,$,$,$,$,$);
#3=IFCRELAGGREGATES('0TFre1QonEaOenN0vtqa03',$,$,$,#1,(#2));
#4=IFCRELAGGREGATES('0TFre1QonEaOenN0vtqa04',$,$,$,#2,(#1,#2));
#5=IFCPUMP('0TFre1QonEaOenN0vtqa05',$,'in a ring',$,$,$,$,$,$);
#6=IFCPUMP('0TFre1QonEaOenN0vtqa06',$,$,$,$,$,$,$,$);
#7=IFCRELNESTS('0TFre1QonEaOenN0vtqa07',$,$,$,#5,(#6));
#8=IFCRELNESTS('0TFre1QonEaOenN0vtqa08',$,$,$,#6,(#5));
#9=IFCPUMP('0TFre1QonEaOenN0vtqa09',$,'child',$,$,$,$,$,$);
#10=IFCPUMP('0TFre1QonEaOenN0vtqa10',$,'lost',$,$,$,$,$,$);
#11=IFCRELNESTS('0TFre1QonEaOenN0vtqa11',$,$,$,#10,(#9));
#12=IFCOPENINGELEMENT('0TFre1QonEaOenN0vtqa12',$,$,$,$,$,$,$,$);
)");
  const ToolRun run = runTool({"tree", file});
  EXPECT_EQ(run.err, "");
  EXPECT_EQ(run.out, R"(#1 IFCPROJECT 'P'
  #2 IFCSITE 'S'
    #1 IFCPROJECT 'P' (shown above)
    #2 IFCSITE 'S' (shown above)
Outside of the project:
  #10 IFCPUMP 'lost'
    #9 IFCPUMP 'child'
  #5 IFCPUMP 'in a ring'
    #6 IFCPUMP
      #5 IFCPUMP 'in a ring' (shown above)
)");
  const nlohmann::json nodes = runTool({"tree", file, "--json"}).json().at("nodes");
  EXPECT_EQ(nodes.at(2).at("repeated"), true);
  EXPECT_EQ(nodes.at(4).at("relation"), "outside");
  EXPECT_EQ(nodes.at(5).at("relation"), "nested");
}

TEST(TreeCommand, TakesAChainOfAHundredThousandInLinearSpace) {
  const ScratchFolder folder;
  std::ostringstream chain;
  constexpr int length = 100'000;
  for (int i = 1; i <= length; ++i) {
    chain << "#" << i << "=IFCSPACE($,$,$,$,$,$,$,$,$,$,$);\n";
    if (i < length)
      chain << "#" << length + i << "=IFCRELAGGREGATES($,$,$,$,#" << i << ",(#" << i + 1 << "));\n";
  }
  const std::string file = folder.model(chain.str());
  const ToolRun text = runTool({"tree", file});
  EXPECT_THAT(text.out, HasSubstr(" (100000) #100000 IFCSPACE\n"));
  EXPECT_LT(text.out.size(), std::size_t{150} * length);
  EXPECT_EQ(runTool({"tree", file, "--json"}).json().at("nodes").size(), std::size_t{length});
}

TEST(TreeCommand, KeepsControlCharactersOfNamesFromTheTerminal) {
  const ScratchFolder folder;
  const std::string file = folder.model(
      R"(#1=IFCPROJECT('0TFre1QonEaOenN0vtqa01',$,'a\X\1B[2J\X2\0085000A\X0\ \X2\65E5\X0\',$,$,$,$,$,$);
)");
  EXPECT_EQ(runTool({"tree", file}).out, "#1 IFCPROJECT 'a\\u001B[2J\\u0085\\n 日'\n");
  EXPECT_EQ(runTool({"tree", file, "--json"}).json().at("nodes").at(0).at("name"),
            "a\x1B[2J\u0085\n 日");
}

}  // namespace
}  // namespace qor::test
