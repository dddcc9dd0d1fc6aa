#include "Schema/Import/SchemaImport.h"

#include <gmock/gmock.h>

#include <sstream>

#include "Tests/Schema/ExpectError.h"
#include "Tests/Support/SharedModels.h"

namespace qor::schema {
namespace {

using qor::test::readFile;
using test::errorOf;
using test::Faulty;
using testing::Pair;
using testing::UnorderedElementsAre;

Groups groupsOf(std::initializer_list<const char*> files) {
  Groups groups;
  for (const char* file : files) {
    std::istringstream in(file);
    readGroups(in, groups);
  }
  return groups;
}

TEST(Groups, ComeFromListsAndFromTables) {
  EXPECT_THAT(groupsOf({"# name\tgroup\nIfcWall\tshared::buildingelements\r\n\nIfcRoot\tcore\n",
                        "-- a table\nschema S\nentity IfcRoot core\ntype IfcLabel measure : REAL\n"
                        "enumeration IfcE core\n  A\nselect IfcS core\n  IfcRoot\n"}),
              UnorderedElementsAre(Pair("IfcWall", "shared::buildingelements"),
                                   Pair("IfcRoot", "core"), Pair("IfcLabel", "measure"),
                                   Pair("IfcE", "core"), Pair("IfcS", "core")));
}

TEST(SchemaImport, PutsEveryElementInItsGroup) {
  const SchemaTable table =
      importSchema("SCHEMA S; ENTITY A; END_ENTITY; TYPE B = SELECT (A); END_TYPE; END_SCHEMA;",
                   {{"A", "one::a"}, {"B", "two::b"}, {"Gone", "three"}});
  EXPECT_EQ(table.entities.at(0).group + ' ' + table.selects.at(0).group, "one::a two::b");
}

TEST(SchemaImport, NamesWhatIsMissingOrThereTwice) {
  const Faulty cases[] = {{"ENTITY A; END_ENTITY; ENTITY C; END_ENTITY; TYPE B = REAL; END_TYPE;",
                           "no group is given for: C B"},
                          {"ENTITY A; Tag : IfcLabel; END_ENTITY;", "A.Tag: unknown type IfcLabel"},
                          {"ENTITY A; END_ENTITY; TYPE A = REAL; END_TYPE;", "A is defined twice"}};
  for (const Faulty& faulty : cases) {
    const std::string text = "SCHEMA S; " + std::string(faulty.text) + " END_SCHEMA;";
    EXPECT_EQ(errorOf([&] { importSchema(text, {{"A", "core"}}); }), faulty.error);
  }
  EXPECT_EQ(errorOf([] {
              groupsOf({"IfcWall\ta::b\n", "IfcWall\ta::c\n"});
            }),
            "IfcWall has two groups, a::b and a::c");
  EXPECT_EQ(errorOf([] { groupsOf({"IfcWall\ta\nIfcDoor\n"}); }),
            "line 2: expected a group, found the end");
}

TEST(SchemaImport, MakesTheCommittedTableAgain) {
  FC_SHARED_FILE_OR_SKIP(express, "IFC4X3_ADD2.exp");
  const std::string committed = readFile(qor::test::sourceFile("Schema/ifc4x3_add2.schema"));
  std::ostringstream again;
  writeSchemaTable(again, importSchema(readFile(express), groupsOf({committed.c_str()})));
  EXPECT_TRUE(again.str() == committed) << "run schema_import, and look at the difference";
}

}  // namespace
}  // namespace qor::schema
