#include "Schema/Import/ExpressReader.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <sstream>

#include "Tests/Schema/ExpectError.h"

namespace qor::schema {
namespace {

using test::errorOf;
using test::Faulty;
using testing::ElementsAre;
using testing::HasSubstr;

SchemaTable express(const std::string& declarations) {
  return readExpress("SCHEMA TEST;\n" + declarations + "\nEND_SCHEMA;\n");
}

/// The lines of the table that stand for the declarations, each entity in the group "g".
std::string entityLines(const std::string& declarations) {
  SchemaTable table;
  table.entities = express(declarations).entities;
  for (Entity& entity : table.entities) entity.group.assign(1, 'g');
  std::ostringstream out;
  writeSchemaTable(out, table);
  const std::string text = out.str();
  const std::size_t begin = std::min(text.find("\nentity"), text.find("\nabstract entity"));
  return begin == std::string::npos ? "" : text.substr(begin);
}

TEST(ExpressReader, KeepsTheOrderOfMembersAndSortsElementsByTheirBytes) {
  const SchemaTable table = express(R"(
    TYPE IfcColour = ENUMERATION OF (RED, GREEN, NOTDEFINED); END_TYPE;
    TYPE IfcAny = SELECT (IfcWall, IfcColour); END_TYPE;
    type Ifcid = string(22) fixed; end_type;
    TYPE IfcLabel = STRING(255); END_TYPE;)");
  EXPECT_EQ(table.name, "TEST");
  EXPECT_THAT(table.enumerations,
              ElementsAre(Enumeration{"IfcColour", "", {"RED", "GREEN", "NOTDEFINED"}}));
  EXPECT_THAT(table.selects, ElementsAre(Select{"IfcAny", "", {"IfcWall", "IfcColour"}}));
  EXPECT_THAT(table.definedTypes, ElementsAre(DefinedType{"IfcLabel", "", {{}, "STRING"}},
                                              DefinedType{"Ifcid", "", {{}, "STRING"}}));
}

TEST(ExpressReader, PassesOverCommentsAndRules) {
  const std::string text = R"(
    (* ENTITY IfcGone; (* a comment in a comment *) END_ENTITY; *)
    TYPE IfcName = STRING; -- 'no string; (* and no comment
    WHERE
      WR1 : SELF IN ['END_TYPE;', 'it''s; (* one', "0000003B"];
    END_TYPE;
    FUNCTION IfcF(A : GENERIC : T) : LIST [0:?] OF GENERIC : T;
      FUNCTION IfcInner : REAL; RETURN (1.E-5); END_FUNCTION;
      LOCAL Text : STRING := 'END_FUNCTION;'; END_LOCAL;
      RETURN (?);
    END_FUNCTION;
    RULE IfcR FOR (IfcWall); WHERE WR1 : SIZEOF(IfcWall) <= 1; END_RULE;
    ENTITY IfcWall;
      Tag : IfcName;
    UNIQUE
      UR1 : Tag;
    WHERE
      NoEnd : Tag <> 'END_ENTITY;';
    END_ENTITY;)";
  EXPECT_THAT(express(text).definedTypes, ElementsAre(DefinedType{"IfcName", "", {{}, "STRING"}}));
  EXPECT_EQ(entityLines(text), R"(
entity IfcWall g
  Tag IfcName
)");
}

TEST(ExpressReader, ReadsAggregatesFromTheOutsideInwards) {
  const std::string text = R"(
    ENTITY IfcMesh;
      Faces : OPTIONAL LIST [1:?] OF SET [3:4] OF UNIQUE IfcIndex;
      X, Y : ARRAY[0 : 2] OF BAG OF Real;
    END_ENTITY;)";
  EXPECT_EQ(entityLines(text), R"(
entity IfcMesh g
  Faces OPTIONAL LIST [1:?] OF SET [3:4] OF UNIQUE IfcIndex
  X ARRAY [0:2] OF BAG [0:?] OF REAL
  Y ARRAY [0:2] OF BAG [0:?] OF REAL
)");
  const auto aggregates = express(text).entities.at(0).attributes.at(0).type.aggregates;
  EXPECT_THAT(aggregates, ElementsAre(Aggregate{Aggregate::Kind::list, 1, {}, false},
                                      Aggregate{Aggregate::Kind::set, 3, 4, true}));
}

TEST(ExpressReader, ReadsWhatStandsAtTheHeadOfAnEntity) {
  EXPECT_EQ(entityLines(R"(
    ENTITY C SUPERTYPE OF (D) SUBTYPE OF (A); END_ENTITY;
    ENTITY A ABSTRACT SUPERTYPE OF (ONEOF (B, C ANDOR (D)))
      SUBTYPE OF (Root); END_ENTITY;
    ENTITY B ABSTRACT SUPERTYPE; END_ENTITY;)"),
            R"(
abstract entity A g : Root

abstract entity B g

entity C g : A
)");
}

TEST(ExpressReader, KeepsOfDerivationsThoseOfInheritedAttributes) {
  EXPECT_EQ(entityLines(R"(
    ENTITY IfcSIUnit SUBTYPE OF (IfcNamedUnit);
      Name : IfcSIUnitName;
    DERIVE
      SELF\IfcNamedUnit.Dimensions : IfcExponents := IfcFor(SELF.Name, 'a;b');
      Own : LIST [2:2] OF IfcDirection := [Name, ?];
      SELF\IfcNamedUnit.UnitType : IfcUnitEnum := ?;
    INVERSE
      Users : SET [0:?] OF IfcUse FOR Unit;
      Owner : IfcOwner FOR Units;
    END_ENTITY;)"),
            R"(
entity IfcSIUnit g : IfcNamedUnit
  Name IfcSIUnitName
  inverse Users SET [0:?] OF IfcUse FOR Unit
  inverse Owner IfcOwner FOR Units
  derive Dimensions
  derive UnitType
)");
}

TEST(ExpressReader, TellsTheLineAndTheCulprit) {
  const Faulty cases[] = {
      {"ENTITY A\n Tag : REAL;", "line 3: expected ';', found 'Tag'"},
      {"ENTITY A;\n\n Tag REAL; END_ENTITY;", "line 4: expected ':', found 'REAL'"},
      {"ENTITY A; Tag : ; END_ENTITY;", "line 2: expected a type, found ';'"},
      {"ENTITY A; T : LIST [1:N] OF B; END_ENTITY;", "expected a whole number, found 'N'"},
      {"ENTITY A; T : SET [2:1] OF B; END_ENTITY;", "the upper bound is below the lower one"},
      {"ENTITY A SUBTYPE OF (B, C); END_ENTITY;", "A has several supertypes"},
      {"ENTITY A SUBTYPE OF (B); SELF\\B.T : C; END_ENTITY;", "A redeclares an attribute"},
      {"ENTITY A; INVERSE T : SET OF BAG OF B FOR C; END_ENTITY;", "T is a collection of"},
      {"ENTITY A; WHERE TRUE;", "expected END_ENTITY, found the end"},
      {"FUNCTION F; FUNCTION G; END_FUNCTION;", "expected END_FUNCTION, found the end"},
      {"USE FROM Other;", "line 2: expected a declaration, found 'USE'"},
      {"TYPE A = EXTENSIBLE ENUMERATION; END_TYPE;", "found 'ENUMERATION'"},
      {"TYPE A = REAL; WHERE SELF <> 'open;\nEND_TYPE;", "line 2: the string that begins here"},
      {"\n(* open (* *)\n", "line 3: the comment that begins here has no end"},
      {"END_SCHEMA; ENTITY", "expected nothing more, found 'ENTITY'"},
  };
  for (const Faulty& faulty : cases) {
    EXPECT_THAT(errorOf([&] { express(faulty.text); }), HasSubstr(faulty.error)) << faulty.text;
  }
}

}  // namespace
}  // namespace qor::schema
