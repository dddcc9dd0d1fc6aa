#include "Host/StepFile/OlderSchemas.h"

#include <gtest/gtest.h>

#include <string>

#include "Host/StepFile/SchemaMap.h"
#include "Host/StepFile/StepWriter.h"
#include "Tests/Host/StepText.h"

namespace qor::host::step {
namespace {

/// The instance with that number as it is written.
std::string written(const ReadResult& result, std::uint64_t number) {
  std::string text;
  writeStep(*result.data, text, {.header = result.header, .numbers = result.instances});
  const std::string start = "\n#" + std::to_string(number) + "=";
  const std::size_t begin = text.find(start);
  if (begin == std::string::npos) return "nothing";
  return text.substr(begin + start.size(), text.find(";\n", begin) - begin - start.size());
}

TEST(OlderSchemas, TheTableNamesOnlyWhatTheModelHas) {
  for (const SchemaVersion version :
       {SchemaVersion::ifc2x3, SchemaVersion::ifc4, SchemaVersion::ifc4x3Candidate}) {
    SchemaMap map(version);
    for (const OlderClass& row : olderClasses()) {
      const auto position = map.find(row.upperName);
      if (!(row.versions & static_cast<std::uint8_t>(version)) || row.becomes == unwrapped)
        continue;
      ASSERT_TRUE(position) << row.upperName;
      const FileClass& fileClass = map[*position];
      ASSERT_TRUE(fileClass.info) << row.upperName;
      EXPECT_EQ(fileClass.info->name.view(), row.becomes);
      EXPECT_FALSE(fileClass.info->isAbstract()) << row.becomes;
      std::size_t withoutPlace = 0;
      for (const FileAttribute& attribute : fileClass.attributes)
        withoutPlace += !attribute.attribute && !attribute.derived;
      EXPECT_EQ(withoutPlace, static_cast<std::size_t>(std::ranges::count(row.attributes, '-')))
          << row.upperName;
    }
  }
}

TEST(OlderSchemas, AreKnownByTheNamesThatFilesGiveThem) {
  EXPECT_EQ(schemaVersionFromName("IFC2X3"), SchemaVersion::ifc2x3);
  EXPECT_EQ(schemaVersionFromName("IFC2X3_TC1"), SchemaVersion::ifc2x3);
  EXPECT_EQ(schemaVersionFromName("IFC4"), SchemaVersion::ifc4);
  EXPECT_EQ(schemaVersionFromName("IFC4X1"), SchemaVersion::ifc4);
  EXPECT_EQ(schemaVersionFromName("IFC4X3_RC2"), SchemaVersion::ifc4x3Candidate);
  for (const char* name : {"IFC4X3", "ifc4x3_add2", "IFC4X3_TC1"})
    EXPECT_EQ(schemaVersionFromName(name), SchemaVersion::ifc4x3);
  EXPECT_EQ(schemaVersionFromName("CONFIG_CONTROL_DESIGN"), std::nullopt);
}

struct Older {
  const char* schema;
  std::string before;
  std::string after;
  std::string losses;
};

TEST(OlderSchemas, BecomeTheModelWithEveryLossTold) {
  const Older table[] = {
      {"IFC2X3",
       "#2=IFCDOORSTYLE('2Sa3dTJGn0H8TQIGiuGQd5',$,'d',$,$,$,$,'t',.SINGLE_SWING_LEFT.,.WOOD.,.F.,$"
       ");",
       "IFCDOORTYPE('2Sa3dTJGn0H8TQIGiuGQd5',$,'d',$,$,$,$,'t',$,.NOTDEFINED.,.SINGLE_SWING_LEFT.,."
       "F.,$)",
       "#2 IFCDOORSTYLE, line 4: attribute 10 (ConstructionType) is .WOOD.; the model has no "
       "place for it: left out.\n"},
      {"IFC4", "#2=IFCSLABSTANDARDCASE('2Sa3dTJGn0H8TQIGiuGQd5',$,$,$,$,$,$,$,.FLOOR.);",
       "IFCSLAB('2Sa3dTJGn0H8TQIGiuGQd5',$,$,$,$,$,$,$,.FLOOR.)", ""},
      {"IFC2X3", "#2=IFCMONETARYUNIT(.EUR.);", "IFCMONETARYUNIT('EUR')", ""},
      {"IFC4", "#2=IFCQUANTITYCOUNT('n',$,$,3.,$);", "IFCQUANTITYCOUNT('n',$,$,3,$)", ""},
      {"IFC4", "#2=IFCQUANTITYCOUNT('n',$,$,3.5,$);", "IFCQUANTITYCOUNT('n',$,$,0,$)",
       "#2 IFCQUANTITYCOUNT, line 4: attribute 4 (CountValue) is 3.5, which is no "
       "IfcCountMeasure; left out.\n"},
      {"IFC2X3", "#2=IFCPROPERTYSINGLEVALUE('n',$,IFCCOUNTMEASURE(3.),$);",
       "IFCPROPERTYSINGLEVALUE('n',$,IFCCOUNTMEASURE(3),$)", ""},
      {"IFC4", "#2=IFCSURFACECURVESWEPTAREASOLID($,$,$,0.,IFCPARAMETERVALUE(1.5),$);",
       "IFCSURFACECURVESWEPTAREASOLID($,$,$,IFCPARAMETERVALUE(0.),IFCPARAMETERVALUE(1.5),$)", ""},
      {"IFC4", "#2=IFCGRIDPLACEMENT($,$);", "IFCGRIDPLACEMENT($,$,$)", ""},
      {"IFC2X3",
       "#2=IFCSTYLEDITEM($,(#3,#4),'s');\n#3=IFCPRESENTATIONSTYLEASSIGNMENT((#5,IFCNULLSTYLE(.NULL."
       ")));\n"
       "#4=IFCPRESENTATIONSTYLEASSIGNMENT(( ));\n#5=IFCCURVESTYLE('c',$,$,$);",
       "IFCSTYLEDITEM($,(#5),'s')",
       "#2 IFCSTYLEDITEM, line 4: attribute 2 (Styles) holds IFCNULLSTYLE(.NULL.), which is no "
       "IfcPresentationStyle; left out.\n"},
      {"IFC2X3", "#2=IFCPROCEDURE('2Sa3dTJGn0H8TQIGiuGQd5',$,$,$,$,'id',.STARTUP.,$);",
       "IFCPROCEDURE('2Sa3dTJGn0H8TQIGiuGQd5',$,$,$,$,'id',$,.STARTUP.)", ""},
      {"IFC2X3", "#2=IFCASYMMETRICISHAPEPROFILEDEF(.AREA.,$,$,1.,2.,3.,4.,5.,6.,7.,8.,9.);",
       "IFCASYMMETRICISHAPEPROFILEDEF(.AREA.,$,$,1.,2.,3.,4.,5.,6.,7.,8.,$,$,$,$)",
       "#2 IFCASYMMETRICISHAPEPROFILEDEF, line 4: attribute 12 (CentreOfGravityInY) is 9.; the "
       "model has no place for it: left out.\n"},
      {"IFC2X3", "#2=IFCCLASSIFICATIONREFERENCE($,'i','n',#3);\n#3=IFCCLASSIFICATIONITEM($,$,'t');",
       "IFCCLASSIFICATIONREFERENCE($,'i','n',$,$,$)",
       "#3 IFCCLASSIFICATIONITEM, line 5: is of no class that the model has instances of; left "
       "out.\n"
       "#2 IFCCLASSIFICATIONREFERENCE, line 4: attribute 4 (ReferencedSource) refers to #3, which "
       "was left out itself; left out.\n"},
  };
  for (const Older& older : table) {
    const ReadResult result = test::readStatements(older.before, older.schema);
    EXPECT_EQ(written(result, 2), older.after);
    std::string losses;
    for (const std::string& message : test::messages(result)) losses += message + '\n';
    EXPECT_EQ(losses, older.losses);
  }
}

}  // namespace
}  // namespace qor::host::step
