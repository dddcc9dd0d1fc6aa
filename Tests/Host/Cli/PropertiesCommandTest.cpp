#include <gmock/gmock.h>

#include <map>
#include <regex>
#include <string>

#include "Tests/Host/Cli/RunTool.h"
#include "Tests/Support/SharedModels.h"

namespace qor::test {
namespace {

using testing::HasSubstr;

constexpr const char* guid = "0TFre1QonEaOenN0vtqaQR";

/// A wall and its type, which both have the set "Common"; and all kinds of properties.
const std::string wall = R"(
#1=IFCWALL('0TFre1QonEaOenN0vtqaQR',$,'South',$,$,$,$,$,$);
#2=IFCWALLTYPE('0TFre2QonEaOenN0vtqaQR',$,'Brick',$,$,(#10,#11),$,$,$,.SOLIDWALL.);
#3=IFCRELDEFINESBYTYPE('0TFre3QonEaOenN0vtqaQR',$,$,$,(#1),#2);
#4=IFCRELDEFINESBYPROPERTIES('0TFre4QonEaOenN0vtqaQR',$,$,$,(#1),#12);
#5=IFCRELDEFINESBYPROPERTIES('0TFre5QonEaOenN0vtqaQR',$,$,$,(#1),#13);
#10=IFCPROPERTYSET('0TFre6QonEaOenN0vtqaQR',$,'Common',$,(#20,#21));
#11=IFCDOORPANELPROPERTIES('0TFre7QonEaOenN0vtqaQR',$,'Panel',$,0.04,.SWINGING.,$,.MIDDLE.,$);
#12=IFCPROPERTYSET('0TFre8QonEaOenN0vtqaQR',$,'Common',$,(#22,#23,#24,#25,#26,#27));
#13=IFCELEMENTQUANTITY('0TFre9QonEaOenN0vtqaQR',$,$,$,$,(#28,#29));
#20=IFCPROPERTYSINGLEVALUE('FireRating',$,IFCLABEL('F30'),$);
#21=IFCPROPERTYSINGLEVALUE('External',$,IFCLOGICAL(.U.),$);
#22=IFCPROPERTYSINGLEVALUE('FireRating',$,IFCLABEL('F90'),$);
#23=IFCPROPERTYBOUNDEDVALUE('Range',$,IFCREAL(3.),IFCREAL(1.),$,IFCREAL(2.));
#24=IFCPROPERTYLISTVALUE('List',$,(IFCINTEGER(1),IFCLABEL('')),$);
#25=IFCPROPERTYTABLEVALUE('Table',$,(IFCREAL(1.),IFCREAL(2.)),(IFCLABEL('a')),$,$,$,$);
#26=IFCCOMPLEXPROPERTY('Complex',$,'use',(#30));
#27=IFCPROPERTYSINGLEVALUE('Nothing',$,$,$);
#28=IFCQUANTITYCOUNT('Doors',$,$,2,$);
#29=IFCQUANTITYNUMBER('Hands',$,#31,2.5,$);
#30=IFCPROPERTYENUMERATEDVALUE('Inside',$,(IFCLABEL('x'),IFCLABEL('y')),$);
#31=IFCCONTEXTDEPENDENTUNIT($,.USERDEFINED.,'hand');
#32=IFCPROPERTYSINGLEVALUE('Lost',$,IFCBOOLEAN(.T.),$);
#33=IFCCOMPLEXPROPERTY('Loop',$,'use',(#30,#33));
)";

TEST(PropertiesCommand, MergesAnObjectsSetsWithThoseOfItsType) {
  const ScratchFolder folder;
  const ToolRun run = runTool({"properties", folder.model(wall), "--guid", guid});
  EXPECT_EQ(run.out, R"(#1 IFCWALL 'South'
  #12 IFCPROPERTYSET 'Common'
    FireRating: F90
    Range: 1 – 3 (2)
    List: 1, ''
    Table: 1: a, 2: -
    Complex
      Inside: x, y
    Nothing: -
    External: unknown  (of its type)
  #13 IFCELEMENTQUANTITY
    Doors: 2
    Hands: 2.5 hand
  #11 IFCDOORPANELPROPERTIES 'Panel'
    PanelDepth: 0.04
    PanelOperation: SWINGING
    PanelPosition: MIDDLE
)");
}

TEST(PropertiesCommand, ShowsEverythingWithoutAGuidAlsoWhatBelongsToNothing) {
  const ScratchFolder folder;
  const std::string out = runTool({"properties", folder.model(wall)}).out;
  EXPECT_THAT(out, HasSubstr("\n#2 IFCWALLTYPE 'Brick'\n  #10 IFCPROPERTYSET 'Common'\n"
                             "    FireRating: F30\n"));
  EXPECT_THAT(out,
              testing::EndsWith(
                  "\nOf no object:\n    Lost: true\n    Loop\n      Inside: x, y\n      Loop\n"));

  const nlohmann::json json = runTool({"properties", folder.model(wall), "--json"}).json();
  const nlohmann::json& set = json.at("objects").at(0).at("sets").at(0);
  EXPECT_EQ(json.at("objects").at(0).at("class"), "IFCWALL");
  EXPECT_EQ(set.at("id"), 12);
  const nlohmann::json& property = set.at("properties").at(7);
  EXPECT_EQ(property.at("id"), 21);
  EXPECT_EQ(property.at("name"), "External");
  EXPECT_EQ(property.at("fromType"), true);
  EXPECT_EQ(property.at("depth"), 0);
  EXPECT_EQ(property.at("text"), "unknown");
  EXPECT_EQ(property.at("value"),
            nlohmann::json({{"NominalValue", {{"type", "IFCLOGICAL"}, {"value", "unknown"}}}}));
  EXPECT_TRUE(json.at("objects").back().at("id").is_null());
}

class BuildingProperties : public ModelTest {};

/// The name of each property and quantity by number, from the text of the file; names with
/// apostrophes or escapes are left empty.
std::map<std::uint64_t, std::string> propertiesIn(const std::string& text) {
  const std::regex statement(
      "#(\\d+)= ?IFC(?:PROPERTY(?:SINGLE|BOUNDED|LIST|TABLE|ENUMERATED|REFERENCE)VALUE|"
      "COMPLEXPROPERTY|QUANTITY[A-Z]+|PHYSICALCOMPLEXQUANTITY)\\('([^'\\\\]*)(',|.)");
  std::map<std::uint64_t, std::string> names;
  for (std::sregex_iterator i(text.begin(), text.end(), statement), end; i != end; ++i)
    names[std::stoull((*i)[1])] = (*i)[3] == "'," ? (*i)[2].str() : "";
  return names;
}

TEST_P(BuildingProperties, AppearEachOne) {
  const auto expected = propertiesIn(readFile(GetParam().string()));
  std::map<std::uint64_t, std::string> found;
  const nlohmann::json json = runTool({"properties", GetParam().string(), "--json"}).json();
  for (const auto& object : json.at("objects"))
    for (const auto& set : object.at("sets"))
      for (const auto& property : set.at("properties"))
        if (property.contains("id"))
          found.emplace(property.at("id").get<std::uint64_t>(),
                        property.at("name").get<std::string>());
  ASSERT_EQ(found.size(), expected.size());
  for (const auto& [number, name] : expected) {
    ASSERT_TRUE(found.contains(number)) << number;
    if (!name.empty()) {
      EXPECT_EQ(found.at(number), name);
    }
  }
}

FC_INSTANTIATE_FOR_MODELS(BuildingProperties, sharedBuildings());

}  // namespace
}  // namespace qor::test
