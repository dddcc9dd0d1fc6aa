#include "Host/StepFile/StepReader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <zip.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Fc/Core/Kernel/FcObjectDefinition.h"
#include "Fc/Core/Kernel/FcProject.h"
#include "Fc/Core/Kernel/FcRelAggregates.h"
#include "Fc/Resource/Actor/FcActorRole.h"
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

/// Each stands between two sound instances, which must not suffer. What is told of it begins with
/// "#2 CLASS, line 5: " where the row doesn't say otherwise.
TEST(StepReader, TellsABadStatementInOneLineAndLosesNothingElse) {
  const struct {
    std::string statements;
    std::string told;
  } rows[] = {
      {"#2=IFCCLASSIFICATION($,$,'2023-02-30','x',$,$,$);",
       "attribute 3 (EditionDate) is '2023-02-30', which is no date; kept as it stands."},
      {"#2=IFCPROPERTYSINGLEVALUE('x',$,IFCDATETIME('today'),$);#3=IFCPROPERTYSINGLEVALUE('y',$,"
       "IFCDATETIME('2024-02-29T12:00:00Z'),$);",
       "attribute 3 (NominalValue) is 'today', which is no date with a time; kept as it stands."},
      {"#2=IFCPROPERTYSINGLEVALUE($,$,IFCLABEL('a'),$);",
       "attribute 1 (Name) has no value, though it must have one."},
      {"#2=IFCPROPERTYSINGLEVALUE('x',$,IFCLENGTHMEASURE($),$);",
       "attribute 3 (NominalValue) is $, which is no IfcValue; left out."},
      {"#2=IFCPERSON('a',$,$,('x,$),$,$,$,$);",
       "attribute 4 (MiddleNames) is a text without its closing apostrophe, 'x,$),$,$,$,$); left "
       "out, with all that follows."},
      {"#2=IFCPERSON('a',$,$,$,$,$,$,$); /* open",
       "line 5: the comment that begins here isn't closed; passed over up to the end of the line."},
      {"#2=IFCPERSON('a',$,$,$,$,$,$,$)",
       "has no semicolon before the next instance; read up to there."},
      {"#2=IFCHOUSE('a');\n#3=IFCHOUSE('b');",
       "is of no class that the model has instances of; left out. And 1 like it."},
      {"#2=IFCPRODUCT('a');", "is of no class that the model has instances of; left out."},
      {"#2=IFCPERSON('a',$);",
       "has 2 attributes, where IfcPerson has 8; those that are missing have no value."},
      {"#2=IFCPERSON('a',$,$,$,$,$,$,$,$,(1,(2)));",
       "has 10 attributes, where IfcPerson has 8; those behind were left out."},
      {"#2=IFCPERSON('a',$,$,$,$,$,(#77),$);",
       "attribute 7 (Roles) refers to #77, which the file doesn't have; left out."},
      {"#2=IFCPERSON('a',$,$,$,$,$,(#1),$);",
       "attribute 7 (Roles) refers to #1, an IFCPERSON, where an IfcActorRole belongs; left out."},
      {"#2=IFCPERSON('a',$,$,$,$,$,$,$);\n#2=IFCPERSON('b',$,$,$,$,$,$,$);",
       "#2 IFCPERSON, line 6: has the number of an earlier instance, which stays; left out."},
      {"#2=IFCCARTESIANPOINT((1.,1.E999));",
       "attribute 1 (Coordinates) holds 1.E999, which no IfcLengthMeasure can be; left out."},
      {"#2=IFCCARTESIANPOINT((1.,1.#INF));",
       "attribute 1 (Coordinates) holds 1.#INF, which no IfcLengthMeasure can be; left out."},
      {"#2=IFCDIMENSIONALEXPONENTS(0,99999999999999999999,0,0,0,0,0);",
       "attribute 2 (MassExponent) is 99999999999999999999, which no INTEGER can be; left out."},
      {"#2=IFCCARTESIANPOINT((1.,2.,3.,4.));",
       "attribute 1 (Coordinates) is (1.,2.,3.,4.), which has more or fewer numbers than belong "
       "there; left out."},
      {"#2=IFCPERSON('Stra\xDF"
       "e',$,$,$,$,$,$,$);",
       "attribute 1 (Identification) has bytes that are no UTF-8, 'Stra?e'; taken as Latin-1."},
      {R"(#2=IFCPERSON('C:\temp',$,$,$,$,$,$,$);)",
       R"(attribute 1 (Identification) has a backslash that begins no escape, 'C:\temp'; taken as it stands.)"},
      {"#2=IFCPERSON(12,$,$,$,$,$,$,$);",
       "attribute 1 (Identification) is 12, which is no IfcIdentifier; taken as a text."},
      {"#2=IFCPERSON(('a'),$,$,$,$,$,$,$);",
       "attribute 1 (Identification) is ('a'), which is no IfcIdentifier; left out."},
      {"#2=IFCPERSON('a',$,$,'b',$,$,$,$);",
       "attribute 4 (MiddleNames) is 'b', which is no list of IfcLabel; left out."},
      {"#2=IFCACTORROLE(.KING.,$,$);",
       "attribute 1 (Role) is .KING., which is none of its 23 values; left out."},
      {"#2=IFCPROPERTYSINGLEVALUE('a',$,IFCSIZE(1.),$);",
       "attribute 3 (NominalValue) is of type IFCSIZE, which IfcValue doesn't take; left out."},
      {"#2=IFCACTORROLE($,$,$);", "attribute 1 (Role) has no value, though it must have one."},
      {"#2=IFCPROPERTYSET('x',$,$,$,());",
       "attribute 1 (GlobalId) is 'x', which is no guid; 0iU2h2A968ZhkZeaIYwcZu stands for it."},
      {"#2=IFCPROPERTYSET('{01234567-89AB-CDEF-0123-456789ABCDEF}',$,$,$,());",
       "attribute 1 (GlobalId) is '{01234567-89AB-CDEF-0123-456789ABCDEF}', which is no guid; "
       "018qLdYQlDxm4ZHMU9gytl stands for it."},
      {"#2=IFCPROPERTYSET($,$,$,$,());",
       "attribute 1 (GlobalId) has no value; 1GXlHua2I2vBZ$V64yNHKp stands for it."},
      {"#2=IFCPROPERTYSET('2Sa3dTJGn0H8TQIGiuGQd5',$,$,$,());\n"
       "#3=IFCPROPERTYSET('2Sa3dTJGn0H8TQIGiuGQd5',$,$,$,());",
       "#3 IFCPROPERTYSET, line 6: has the GlobalId of #2, 2Sa3dTJGn0H8TQIGiuGQd5; both are kept."},
      {"#99999999999999999999=IFCPERSON('b',$,$,$,$,$,$,$);",
       "line 5: #99999999999999999999 is a number beyond 9223372036854775808; the instance is "
       "passed over."},
      {std::string("#2=IFCPERSON('a\0b',$,$,$,$,$,$,$);", 34),
       "attribute 1 (Identification) has bytes that are zero, 'a?b'; taken as they stand."},
      {"#2=(IFCPERSON('a')IFCWALL('b'));",
       "#2, line 5: \"(IFCPERSON('a')IFCWALL('b'));\" is no instance of a class; passed over."},
      {"2=IFCPERSON('a');",
       "line 5: \"2=IFCPERSON('a');\" is no instance of a class; passed over."},
      {"#2;", "#2, line 5: \";\" is no instance of a class; passed over."},
      {"#2=IFCPERSON('a' 'b',$,$,$,$,$,$,$);",
       "attribute 1 (Identification) is followed by \"'b'\", where a comma or a closing "
       "parenthesis belongs; passed over."},
      {"#2=IFCPERSON('a',$,$,('b','c';",
       "attribute 4 (MiddleNames) is a list without its closing parenthesis; read up to the "
       "semicolon."},
      {"#2=IFCPERSON('a',$,$,$,$,$,$,$)$;", "\"$\" stands behind the attributes; passed over."},
      {"#2=IFCBLOBTEXTURE(.T.,.T.,$,$,$,'PNG',\"0ABC\");",
       "attribute 7 (RasterCode) is no whole number of bytes, \"0ABC\"; filled up in front with "
       "zeros."},
  };
  for (const auto& [statements, told] : rows) {
    SCOPED_TRACE(statements);
    const ReadResult result = readStatements("#1=IFCPERSON('first',$,$,$,$,$,$,$);\n" + statements +
                                             "\n#9=IFCPERSON('last',$,$,$,$,$,$,$);");
    ASSERT_TRUE(result.data) << result.failure;
    const bool isWhole = told[0] == '#' || told.starts_with("line");
    const std::string name = statements.substr(3, statements.find('(') - 3);
    EXPECT_THAT(test::messages(result),
                ElementsAre(isWhole ? told : "#2 " + name + ", line 5: " + told));
    std::vector<std::string> names;
    for (const NumberedEntity& instance : result.instances) {
      const auto person = fc::fcCast<FcPerson>(instance.entity);
      if (person && (instance.number == 1 || instance.number == 9))
        names.push_back(person->Identification().value_or("none"));
    }
    EXPECT_THAT(names, ElementsAre("first", "last"));
  }
}

std::string failureOf(std::string_view text) {
  const ReadResult result = readStep(text);
  EXPECT_FALSE(result.data);
  return result.failure;
}

TEST(StepReader, SaysWhyItCannotReadAFile) {
  EXPECT_EQ(failureOf(""), "it is empty");
  EXPECT_EQ(failureOf(" \r\n/* nothing */"), "it is empty");
  EXPECT_EQ(failureOf("<?xml version='1.0'?>"),
            "it is no STEP file: it begins with \"<?xml version='1.0'?\", not with ISO-10303-21;");
  EXPECT_EQ(failureOf("PK\x03\x04 and more"), "it is a ZIP archive that is broken");
  EXPECT_EQ(failureOf("\x1F\x8B\x08"), "it is packed by gzip, no STEP file; unpack it first");
  EXPECT_EQ(failureOf("ISO-10303-21;HEADER;FILE_SCHEMA(('AP203'));ENDSEC;DATA;ENDSEC;"),
            "its schema AP203 is none of IFC");
  EXPECT_EQ(failureOf("ISO-10303-21;HEADER;ENDSEC;END-ISO-10303-21;"), "it has no section DATA");
  EXPECT_EQ(readStepFile("no such file.ifc").failure, "No such file or directory");
}

/// A zip archive with these files, as a program that packs models makes it.
std::string zipped(const std::vector<std::pair<std::string, std::string>>& files) {
  const auto path = std::filesystem::temp_directory_path() / "StepReaderTest.ifczip";
  std::filesystem::remove(path);
  zip_t* archive = zip_open(path.c_str(), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
  for (const auto& [name, text] : files)
    zip_file_add(archive, name.c_str(), zip_source_buffer(archive, text.data(), text.size(), 0), 0);
  zip_close(archive);
  std::ifstream in(path, std::ios::binary);
  std::string bytes{std::istreambuf_iterator<char>(in), {}};
  std::filesystem::remove(path);
  return bytes;
}

TEST(StepReader, UnpacksTheOneModelOfAZipArchiveUpToALimit) {
  const std::string model = stepFile("#1=IFCPERSON('a',$,$,$,$,$,$,$);" + std::string(5000, ' '));
  const std::string archive = zipped({{"house/House.IFC", model}, {"a.txt", "b"}});
  EXPECT_EQ(readStep(archive).instances.size(), 1U);
  EXPECT_EQ(readStep(zipped({{"house", model}})).instances.size(), 1U);
  EXPECT_EQ(readStep(archive, {.largestUnpacked = 5000}).failure,
            "it is a ZIP archive whose model has more than 5000 bytes");
  EXPECT_EQ(failureOf(zipped({{"a.ifc", model}, {"b.ifc", model}})),
            "it is a ZIP archive with 2 files, of which one must be the model");
  for (std::size_t i = 30; i < archive.size(); i += 7) {
    std::string broken = archive;
    broken[i] = static_cast<char>(broken[i] ^ 0x55);
    const ReadResult result = readStep(broken);
    EXPECT_TRUE(!result.failure.empty() || result.data) << i;
  }
  const std::string twice = zipped({{"inner.ifc", archive}});
  EXPECT_THAT(failureOf(twice), testing::HasSubstr("it is no STEP file: it begins with"));
}

TEST(StepReader, ReadsUtf16AndSaysSo) {
  const std::string text = stepFile("#1=IFCPERSON('\xC3\xA9',$,$,$,$,$,$,$);");
  for (const bool isBig : {false, true}) {
    std::string wide = isBig ? "\xFE\xFF" : "\xFF\xFE";
    for (std::size_t i = 0; i < text.size(); ++i) {
      const char character = text[i] == '\xC3' ? '\xE9' : text[i];
      if (text[i] == '\xA9') continue;
      wide += isBig ? std::string{'\0', character} : std::string{character, '\0'};
    }
    const ReadResult result = readStep(wide);
    EXPECT_THAT(test::messages(result),
                ElementsAre("line 1: the file is UTF-16, where a STEP file has a byte a character; "
                            "read all the same."));
    EXPECT_EQ(fc::fcCast<FcPerson>(result.instances.at(0).entity)->Identification(), "\xC3\xA9");
  }
}

TEST(StepReader, TellsProblemsInTheOrderOfLinesAndWhatStandsBehindTheEnd) {
  const ReadResult result =
      readStep(stepFile("#1=IFCPERSON($,$,$,$,$,$,(#9),$);\n#2=IFCHOUSE();") + "more of it\n");
  EXPECT_THAT(test::messages(result),
              ElementsAre("#1 IFCPERSON, line 4: attribute 7 (Roles) refers to #9, which the file "
                          "doesn't have; left out.",
                          "#2 IFCHOUSE, line 5: is of no class that the model has instances of; "
                          "left out.",
                          "line 8: \"more of it\" stands behind END-ISO-10303-21; and was passed "
                          "over."));
}

TEST(StepReader, GivesRootsWithoutAGuidOneThatStaysTheSame) {
  const ReadResult result = readStatements(
      "#1=IFCPROPERTYSET('wall 1',$,$,$,());\n#2=IFCPROPERTYSET('wall 2',$,$,$,());");
  const ReadResult other = readStatements("#7=IFCPROPERTYSET('wall 2',$,$,$,());");
  ASSERT_EQ(result.replacedGuids.size(), 2U);
  EXPECT_EQ(result.replacedGuids[1].text, "wall 2");
  EXPECT_EQ(result.replacedGuids[1].guid, other.replacedGuids.at(0).guid);
  EXPECT_NE(result.replacedGuids[0].guid, result.replacedGuids[1].guid);
  EXPECT_EQ(result.data->entityByGuid(result.replacedGuids[1].guid).get(),
            result.instances[1].entity.get());
}

TEST(StepReader, PassesOverAStrayStart) {
  const ReadResult result = readStep(
      "\xEF\xBB\xBF"
      "c" +
      stepFile("#1=IFCPERSON('a',$,$,$,$,$,$,$);"));
  EXPECT_THAT(test::messages(result),
              ElementsAre("line 1: \"c\" stands before ISO-10303-21; and was passed over."));
  EXPECT_EQ(result.instances.size(), 1U);
}

TEST(StepReader, LoadsATruncatedFileUpToItsEnd) {
  const std::string whole =
      stepFile("#1=IFCPERSON('a',$,$,$,$,$,$,$);\n#2=IFCPERSON('b','c','d',$,$,$,$,$);");
  const std::string header = whole.substr(0, whole.find("#1"));
  for (std::size_t length = header.size(); length < whole.size() - 1; ++length) {
    const ReadResult result = readStep(std::string_view(whole).substr(0, length));
    ASSERT_TRUE(result.data);
    if (length < whole.rfind("END-ISO") + 16) {
      ASSERT_EQ(result.problems.size(), 1U) << whole.substr(0, length) << '\n'
                                            << testing::PrintToString(test::messages(result));
      EXPECT_EQ(result.problems[0].kind, ProblemKind::truncated);
    }
  }
  const ReadResult result = readStep(std::string_view(whole).substr(0, whole.find("'d'") + 2));
  EXPECT_THAT(test::messages(result),
              ElementsAre("#2 IFCPERSON, line 5: the file ends inside of this instance; it has "
                          "what stands there of its attributes."));
  const auto person = fc::fcCast<FcPerson>(result.instances.at(1).entity);
  EXPECT_EQ(person->FamilyName(), "c");
  EXPECT_EQ(person->GivenName(), std::nullopt);
}

TEST(StepReader, TakesNestingAndTextsOfAnySize) {
  const std::string deep = std::string(100000, '(') + std::string(100000, ')');
  const std::string open(100000, '(');
  const std::string text(50 << 20, 'x');
  const ReadResult result = readStep(stepFile(
      "#1=IFCPERSON('a',$,$," + deep + ",$,$,$,$);\n#2=IFCPERSON(" + open + ";\n#3=IFCPERSON('" +
      text + "',$,$,$,$,$,$,$);\n#4=IFCCARTESIANPOINTLIST3D(" + deep + ",$);"));
  EXPECT_EQ(result.problems.size(), 4U) << testing::PrintToString(test::messages(result));
  EXPECT_EQ(fc::fcCast<FcPerson>(result.instances.at(0).entity)->Identification(), "a");
  EXPECT_EQ(fc::fcCast<FcPerson>(result.instances.at(2).entity)->Identification()->size(),
            text.size());
}

TEST(StepReader, TakesLittleMemoryForNumbersWithGaps) {
  const ReadResult result = readStep(
      stepFile("#999999999999=IFCPERSON('a',$,$,$,$,$,(#7),$);\n#7=IFCACTORROLE(.OWNER.,$,$);"));
  EXPECT_THAT(result.problems, IsEmpty());
  EXPECT_EQ(static_cast<const fc::FcBase*>(
                fc::fcCast<FcPerson>(result.instances.at(0).entity)->Roles()->at(0).get()),
            result.instances.at(1).entity.get());
}

TEST(StepReader, CountsNoMoreThanAThousandKindsOfProblems) {
  std::string statements;
  for (int i = 1; i <= 3000; ++i)
    statements += "#" + std::to_string(i) + "=IFCNOSUCH" + std::to_string(i) + "();\n";
  const ReadResult result = readStep(stepFile(statements));
  EXPECT_EQ(result.problems.size(), ProblemLog::maxGroups + 1);
  EXPECT_EQ(result.problems.back().count, 2000U);
}

TEST(StepReader, LinksBothSidesOfARelationshipWhateverTheirOrder) {
  const ReadResult result = readStatements(
      "#1=IFCRELAGGREGATES('1Sa3dTJGn0H8TQIGiuGQd5',$,$,$,#2,(#3));\n"
      "#2=IFCPROJECT('0$WU4A9R19$vKWO$AdOnKA',$,$,$,$,$,$,$,$);\n#3=IFCSITE('"
      "2Sa3dTJGn0H8TQIGiuGQd5',$,$,$,$,$,$,$,$,$,$,$,$,$);");
  EXPECT_THAT(test::messages(result), IsEmpty());
  const auto project = result.data->project();
  ASSERT_TRUE(project);
  ASSERT_EQ(project->IsDecomposedBy().lock().size(), 1U);
  EXPECT_EQ(static_cast<const fc::FcBase*>(
                project->IsDecomposedBy().lock()[0]->RelatedObjects().at(0).get()),
            result.instances.at(2).entity.get());
}

TEST(StepReader, TakesCommentsAndWhiteSpaceAnywhere) {
  const ReadResult result = readStatements(
      "#1 /*a*/ = /*b;*/ IFCPERSON /*'*/ ( /*c*/ 'x' /*d*/ , $,\r\n\t('m' , /*,*/ 'n' ) ,$, * "
      ",$,$,$ ) /*e*/ ;"
      "#2=IFCPERSON($,$,$,( ),$,$,$,$);");
  ASSERT_EQ(result.instances.size(), 2U);
  EXPECT_EQ(fc::fcCast<FcPerson>(result.instances[0].entity)->Identification(), "x");
}

TEST(StepReader, TellsItsProgressUpToTheEnd) {
  std::string statements;
  for (int i = 1; i <= 5000; ++i)
    statements += "#" + std::to_string(i) + "=IFCPERSON($,$,$,$,$,$,$,$);\n";
  std::vector<double> told;
  readStep(stepFile(statements), {.progress = [&told](double part) { told.push_back(part); }});
  EXPECT_TRUE(std::ranges::is_sorted(told));
  EXPECT_GT(told.size(), 100U);
  EXPECT_LE(told.back(), 1.0);
  EXPECT_GT(told.back(), 0.98);
}

TEST(StepReader, LeavesAModelWithCirclesAndLongChainsThatCanBeTakenApart) {
  std::string statements = "#1=IFCLOCALPLACEMENT(#1,$);\n";
  for (int i = 2; i <= 200000; ++i)
    statements +=
        "#" + std::to_string(i) + "=IFCLOCALPLACEMENT(#" + std::to_string(i - 1) + ",$);\n";
  ReadResult result = readStep(stepFile(statements));
  const std::weak_ptr<fc::FcBase> circle = result.instances.front().entity;
  takeApart(*result.data);
  result = {};
  EXPECT_TRUE(circle.expired());
}

}  // namespace
}  // namespace qor::host::step
