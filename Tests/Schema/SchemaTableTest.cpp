#include "Schema/SchemaTable.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <sstream>

#include "Tests/Schema/ExpectError.h"
#include "Tests/Support/SharedModels.h"

namespace qor::schema {
namespace {

using test::errorOf;
using test::Faulty;
using testing::HasSubstr;

SchemaTable read(const std::string& text) {
  std::istringstream in(text);
  return readSchemaTable(in);
}

TEST(SchemaTable, ReadsWhatAPersonEdited) {
  const SchemaTable table = read(
      "schema TEST -- the name\r\n"
      "entity IfcB core::kernel : IfcA\r\n"
      "\n"
      "  -- an attribute behind a comment\n"
      "\tTag OPTIONAL list [ 1 : ? ] of real\n"
      "abstract entity IfcA core::kernel");
  SchemaTable expected;
  expected.name = "TEST";
  expected.entities = {
      {"IfcA", "core::kernel", "", true, {}, {}, {}},
      {"IfcB", "core::kernel", "IfcA", false, {{"Tag", {{Aggregate{}}, "REAL"}, true}}, {}, {}}};
  expected.entities[1].attributes[0].type.aggregates[0].lower = 1;
  EXPECT_EQ(table, expected);
}

TEST(SchemaTable, TellsTheLineThatItCantRead) {
  const Faulty cases[] = {
      {"  Tag REAL", "line 1: this line is indented"},
      {"type T g : REAL\n  Tag REAL", "line 2: this line is indented"},
      {"\nentty A g", "line 2: expected a kind of element, found 'entty'"},
      {"entity A", "line 1: expected a group, found the end"},
      {"entity A g::", "line 1: expected a group, found the end"},
      {"entity A g : B C", "line 1: expected nothing more, found 'C'"},
      {"entity A g\n  Tag OPTIONAL", "line 2: expected a type, found the end"},
      {"entity A g\n  Tag REAL REAL", "line 2: expected nothing more, found 'REAL'"},
      {"entity A g\n  inverse U SET [0:?] OF B", "line 2: expected 'FOR', found the end"},
      {"type T g : LIST [1:99999999999] OF REAL", "line 1: expected a whole number"},
      {"enumeration E g\n  A, B", "line 2: expected nothing more, found ','"},
  };
  for (const Faulty& faulty : cases) {
    EXPECT_THAT(errorOf([&] { read(faulty.text); }), HasSubstr(faulty.error)) << faulty.text;
  }
}

TEST(SchemaTable, NamesTheElementThatDoesntFit) {
  const Faulty cases[] = {
      {"entity A g\nselect A g\n  A", "A is defined twice"},
      {"type REAL g : INTEGER", "REAL is defined twice"},
      {"entity A g : B", "A: unknown supertype B"},
      {"entity A g : T\ntype T g : REAL", "A: unknown supertype T"},
      {"entity A g\n  Tag SET [0:?] OF B", "A.Tag: unknown type B"},
      {"type A g : B", "A: unknown type B"},
      {"select A g\n  B", "A: unknown alternative B"},
      {"enumeration A g", "A has no members"},
      {"enumeration A g\n  X\n  X", "A: X is there twice"},
      {"entity A g : B\nentity B g : A", "A is defined by itself"},
      {"type A g : B\ntype B g : LIST [0:?] OF A", "A is defined by itself"},
      {"select A g\n  B\nselect B g\n  A", "A is defined by itself"},
      {"entity A g\n  X REAL\nentity B g : A\n  X REAL", "B.X is there twice"},
      {"entity A g\n  X REAL\n  inverse X A FOR X", "A.X is there twice"},
      {"entity A g\n  inverse X B FOR Y", "A.X: unknown entity B"},
      {"entity A g\n  inverse X A FOR Y", "A.X: A has no attribute Y"},
      {"entity A g\n  X REAL\n  derive X", "A derives X, which no supertype has"},
  };
  for (const Faulty& faulty : cases) {
    const std::string text = std::string("schema S\n") + faulty.text;
    EXPECT_THAT(errorOf([&] { read(text); }), HasSubstr(faulty.error)) << text;
  }
  EXPECT_THAT(errorOf([] { read("entity A g"); }), HasSubstr("the schema has no name"));
  EXPECT_EQ(errorOf([] { read("schema S\ntype A g : X\ntype B g : Y"); }),
            "A: unknown type X\nB: unknown type Y");
}

TEST(CommittedTable, HoldsTheWholeSchemaAsTheWriterWritesIt) {
  const std::string text = qor::test::readFile(qor::test::sourceFile("Schema/ifc4x3_add2.schema"));
  const SchemaTable table = read(text);
  EXPECT_EQ(table.name, "IFC4X3_ADD2");
  EXPECT_EQ(table.entities.size(), 876U);
  EXPECT_EQ(std::ranges::count_if(table.entities, &Entity::abstract), 133);
  EXPECT_EQ(table.enumerations.size(), 243U);
  EXPECT_EQ(table.selects.size(), 61U);
  EXPECT_EQ(table.definedTypes.size(), 132U);
  std::ostringstream again;
  writeSchemaTable(again, table);
  EXPECT_EQ(again.str(), text);
}

}  // namespace
}  // namespace qor::schema
