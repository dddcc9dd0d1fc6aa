#include "Host/StepFile/StepReader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "Fc/Core/Kernel/FcProject.h"
#include "Fc/Core/Kernel/FcRelAggregates.h"
#include "Fc/Resource/Actor/FcPerson.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Host/StepFile/TakeApart.h"
#include "Tests/Host/StepText.h"

namespace qor::host::step {
namespace {

using fc::resource::actor::FcPerson;
using test::readStatements;
using test::stepFile;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> messages(const ReadResult& result) {
  std::vector<std::string> texts;
  for (const Problem& problem : result.problems) texts.push_back(problem.toString());
  return texts;
}

struct BadInput {
  const char* name;
  std::string statements;
  std::string message;
};

void PrintTo(const BadInput& input, std::ostream* out) { *out << input.name; }

class BadStatements : public testing::TestWithParam<BadInput> {};

// Each stands between two sound instances, which must not suffer.
TEST_P(BadStatements, AreToldInOneLineAndCostNothingElse) {
  const std::string before = "#1=IFCPERSON('first',$,$,$,$,$,$,$);\n";
  const std::string after = "\n#9=IFCPERSON('last',$,$,$,$,$,$,$);";
  const ReadResult result = readStatements(before + GetParam().statements + after);
  ASSERT_TRUE(result.data) << result.failure;
  EXPECT_THAT(messages(result), ElementsAre(GetParam().message));
  std::vector<std::string> names;
  for (const NumberedEntity& instance : result.instances) {
    const auto person = fc::fcCast<FcPerson>(instance.entity);
    if (person && (instance.number == 1 || instance.number == 9))
      names.push_back(person->Identification().value_or("none"));
  }
  EXPECT_THAT(names, ElementsAre("first", "last"));
}

const BadInput badInputs[] = {
    {"OpenString", "#2=IFCPERSON('a',$,$,('x,$),$,$,$,$);",
     "#2 IFCPERSON, line 5: attribute 4 (MiddleNames) is a text without its closing apostrophe, "
     "'x,$),$,$,$,$); left out, with all that follows."},
    {"OpenComment", "#2=IFCPERSON('a',$,$,$,$,$,$,$); /* open",
     "line 5: the comment that begins here isn't closed; passed over up to the end of the line."},
    {"MissingSemicolon", "#2=IFCPERSON('a',$,$,$,$,$,$,$)",
     "#2 IFCPERSON, line 5: has no semicolon before the next instance; read up to there."},
    {"UnknownClass", "#2=IFCHOUSE('a');\n#3=IFCHOUSE('b');",
     "#2 IFCHOUSE, line 5: is of no class that the model has instances of; left out. So 2 times in "
     "all."},
    {"AbstractClass", "#2=IFCPRODUCT('a');",
     "#2 IFCPRODUCT, line 5: is of no class that the model has instances of; left out."},
    {"TooFewAttributes", "#2=IFCPERSON('a',$);",
     "#2 IFCPERSON, line 5: has 2 attributes, where IfcPerson has 8; those that are missing have "
     "no value."},
    {"TooManyAttributes", "#2=IFCPERSON('a',$,$,$,$,$,$,$,$,(1,(2)));",
     "#2 IFCPERSON, line 5: has 10 attributes, where IfcPerson has 8; those behind were left out."},
    {"ReferenceToNothing", "#2=IFCPERSON('a',$,$,$,$,$,(#77),$);",
     "#2 IFCPERSON, line 5: attribute 7 (Roles) refers to #77, which the file doesn't have; left "
     "out."},
    {"ReferenceToAnotherClass", "#2=IFCPERSON('a',$,$,$,$,$,(#1),$);",
     "#2 IFCPERSON, line 5: attribute 7 (Roles) refers to #1, an IFCPERSON, where an IfcActorRole "
     "belongs; left out."},
    {"SameNumberTwice", "#2=IFCPERSON('a',$,$,$,$,$,$,$);\n#2=IFCPERSON('b',$,$,$,$,$,$,$);",
     "#2 IFCPERSON, line 6: has the number of an earlier instance, which stays; left out."},
    {"RealOutOfRange", "#2=IFCCARTESIANPOINT((1.,1.E999));",
     "#2 IFCCARTESIANPOINT, line 5: attribute 1 (Coordinates) holds 1.E999, which no "
     "IfcLengthMeasure can be; left out."},
    {"RealThatIsNone", "#2=IFCCARTESIANPOINT((1.,1.#INF));",
     "#2 IFCCARTESIANPOINT, line 5: attribute 1 (Coordinates) holds 1.#INF, which no "
     "IfcLengthMeasure can be; left out."},
    {"IntegerOutOfRange", "#2=IFCTRIANGULATEDFACESET($,$,$,((1,2,99999999999999999999)),$);", ""},
    {"TooManyNumbers", "#2=IFCCARTESIANPOINT((1.,2.,3.,4.));",
     "#2 IFCCARTESIANPOINT, line 5: attribute 1 (Coordinates) is (1.,2.,3.,4.), which has more or "
     "fewer numbers than belong there; left out."},
    {"BytesThatAreNoText",
     "#2=IFCPERSON('Stra\xDF"
     "e',$,$,$,$,$,$,$);",
     "#2 IFCPERSON, line 5: attribute 1 (Identification) has bytes that are no UTF-8, 'Stra?e'; "
     "taken as Latin-1."},
    {"BackslashThatIsNoEscape", R"(#2=IFCPERSON('C:\temp',$,$,$,$,$,$,$);)",
     R"(#2 IFCPERSON, line 5: attribute 1 (Identification) has a backslash that begins no escape, 'C:\temp'; taken as it stands.)"},
    {"NumberInPlaceOfAText", "#2=IFCPERSON(12,$,$,$,$,$,$,$);",
     "#2 IFCPERSON, line 5: attribute 1 (Identification) is 12, which is no IfcIdentifier; taken "
     "as a text."},
    {"ListInPlaceOfAText", "#2=IFCPERSON(('a'),$,$,$,$,$,$,$);",
     "#2 IFCPERSON, line 5: attribute 1 (Identification) is ('a'), which is no IfcIdentifier; left "
     "out."},
    {"TextInPlaceOfAList", "#2=IFCPERSON('a',$,$,'b',$,$,$,$);",
     "#2 IFCPERSON, line 5: attribute 4 (MiddleNames) is 'b', which is no list of IfcLabel; left "
     "out."},
    {"UnknownEnumerator", "#2=IFCACTORROLE(.KING.,$,$);",
     "#2 IFCACTORROLE, line 5: attribute 1 (Role) is .KING., which is none of its 23 values; left "
     "out."},
    {"UnknownType", "#2=IFCPROPERTYSINGLEVALUE('a',$,IFCSIZE(1.),$);",
     "#2 IFCPROPERTYSINGLEVALUE, line 5: attribute 3 (NominalValue) is of type IFCSIZE, which "
     "IfcValue doesn't take; left out."},
    {"MissingValue", "#2=IFCACTORROLE($,$,$);",
     "#2 IFCACTORROLE, line 5: attribute 1 (Role) has no value, though it must have one."},
    {"NoGuid", "#2=IFCPROPERTYSET('x',$,$,$,());",
     "#2 IFCPROPERTYSET, line 5: attribute 1 (GlobalId) is 'x', which no IfcGloballyUniqueId can "
     "be; left out."},
    {"SeveralClasses", "#2=(IFCPERSON('a')IFCWALL('b'));",
     "#2, line 5: \"(IFCPERSON('a')IFCWALL('b'));\" is no instance of a class; passed over."},
    {"Garbage", "2=IFCPERSON('a');",
     "line 5: \"2=IFCPERSON('a');\" is no instance of a class; passed over."},
    {"NumberWithoutClass", "#2;", "#2, line 5: \";\" is no instance of a class; passed over."},
    {"MissingComma", "#2=IFCPERSON('a' 'b',$,$,$,$,$,$,$);",
     "#2 IFCPERSON, line 5: attribute 1 (Identification) is followed by \"'b'\", where a comma or "
     "a closing parenthesis belongs; passed over."},
    {"OpenList", "#2=IFCPERSON('a',$,$,('b',$,$,$,$;",
     "#2 IFCPERSON, line 5: attribute 4 (MiddleNames) is a list without its closing parenthesis; "
     "read up to the semicolon."},
    {"TextBehind", "#2=IFCPERSON('a',$,$,$,$,$,$,$)$;",
     "#2 IFCPERSON, line 5: \"$\" stands behind the attributes; passed over."},
    {"OddBinary", "#2=IFCBLOBTEXTURE(.T.,.T.,$,$,$,'PNG',\"0ABC\");",
     "#2 IFCBLOBTEXTURE, line 5: attribute 7 (RasterCode) is no whole number of bytes, \"0ABC\"; "
     "filled up in front with zeros."},
};

INSTANTIATE_TEST_SUITE_P(StepReader, BadStatements, testing::ValuesIn(badInputs),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace qor::host::step
