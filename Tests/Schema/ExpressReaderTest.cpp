#include "Schema/Import/ExpressReader.h"

#include <gmock/gmock.h>

#include <sstream>

#include "Tests/Schema/ExpectError.h"

namespace qor::schema {
namespace {

using test::errorOf;
using test::Faulty;
using testing::EndsWith;
using testing::HasSubstr;

SchemaTable express(const std::string& declarations) {
  return readExpress("SCHEMA TEST;\n" + declarations + "\nEND_SCHEMA;\n");
}

/// The table as text, with every element in the group "g".
std::string tableOf(const std::string& declarations) {
  SchemaTable table = express(declarations);
  const auto group = [](auto& elements) {
    for (auto& element : elements) element.group.assign(1, 'g');
  };
  group(table.entities);
  group(table.definedTypes);
  group(table.enumerations);
  group(table.selects);
  std::ostringstream out;
  writeSchemaTable(out, table);
  return out.str();
}

TEST(ExpressReader, KeepsTheDataOfASchemaAndPassesOverItsRules) {
  EXPECT_THAT(tableOf(R"(
    (* ENTITY IfcGone; (* a comment in a comment *) END_ENTITY; *)
    type Ifcid = string(22) fixed; end_type;
    TYPE IfcAny = SELECT (IfcWall, IfcColour); END_TYPE;
    TYPE IfcColour = ENUMERATION OF (RED, GREEN, NOTDEFINED); END_TYPE;
    TYPE IfcName = STRING(255); -- 'no string; (* and no comment
    WHERE
      WR1 : SELF IN ['END_TYPE;', 'it''s; (* one', "0000003B"];
    END_TYPE;
    FUNCTION IfcF(A : GENERIC : T) : LIST [0:?] OF GENERIC : T;
      FUNCTION IfcInner : REAL; RETURN (1.E-5); END_FUNCTION;
      LOCAL Text : STRING := 'END_FUNCTION;'; END_LOCAL;
      RETURN (?);
    END_FUNCTION;
    RULE IfcR FOR (IfcWall); WHERE WR1 : SIZEOF(IfcWall) <= 1; END_RULE;
    ENTITY IfcWall SUPERTYPE OF (D) SUBTYPE OF (IfcMesh);
      Tag : IfcName;
    DERIVE
      SELF\IfcMesh.Faces : IfcExponents := IfcFor(SELF.Name, 'a;b');
      Own : LIST [2:2] OF IfcDirection := [Name, ?];
      SELF\IfcMesh.X : IfcUnitEnum := ?;
    INVERSE
      Users : SET [0:?] OF IfcUse FOR Unit;
      Owner : IfcOwner FOR Units;
    UNIQUE
      UR1 : Tag;
    WHERE
      NoEnd : Tag <> 'END_ENTITY;';
    END_ENTITY;
    ENTITY IfcMesh ABSTRACT SUPERTYPE OF (ONEOF (B, C ANDOR (D)))
      SUBTYPE OF (IfcRoot);
      Faces : OPTIONAL LIST [1:?] OF SET [3:4] OF UNIQUE IfcIndex;
      X, Y : ARRAY[0 : 2] OF BAG OF Real;
    END_ENTITY;
    ENTITY IfcRoot ABSTRACT SUPERTYPE; END_ENTITY;)"),
              EndsWith(R"(
schema TEST

type IfcName g : STRING
type Ifcid g : STRING

enumeration IfcColour g
  RED
  GREEN
  NOTDEFINED

select IfcAny g
  IfcWall
  IfcColour

abstract entity IfcMesh g : IfcRoot
  Faces OPTIONAL LIST [1:?] OF SET [3:4] OF UNIQUE IfcIndex
  X ARRAY [0:2] OF BAG [0:?] OF REAL
  Y ARRAY [0:2] OF BAG [0:?] OF REAL

abstract entity IfcRoot g

entity IfcWall g : IfcMesh
  Tag IfcName
  inverse Users SET [0:?] OF IfcUse FOR Unit
  inverse Owner IfcOwner FOR Units
  derive Faces
  derive X
)"));
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
