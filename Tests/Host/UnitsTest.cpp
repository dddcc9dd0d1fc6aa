#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <numbers>
#include <regex>
#include <string>
#include <vector>

#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Measure/FcSIUnit.h"
#include "Fc/Resource/Property/FcPropertySingleValue.h"
#include "Host/StepFile/StepReader.h"
#include "Host/StepFile/StepWriter.h"
#include "Host/StepFile/TakeApart.h"
#include "Host/StepFile/Units/Measures.h"
#include "Tests/Host/CloseModels.h"
#include "Tests/Host/StepText.h"
#include "Tests/Support/SharedModels.h"

namespace qor::host::step {
namespace {

using fc::resource::geometry::FcCartesianPoint;
using fc::resource::measure::FcSIPrefix;
using fc::resource::measure::FcSIUnit;
using fc::resource::measure::FcUnitEnum;
using fc::resource::property::FcPropertySingleValue;
using test::messages;
using test::readStatements;
using test::stepFile;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;

/// The statements of these units, each a list of its own, and an assignment of those called #10 to
/// #19.
std::string assignment(const std::string& units) {
  std::string listed;
  for (int number = 10; number < 20; ++number) {
    const std::string name = '#' + std::to_string(number);
    if (units.find(name + '=') != std::string::npos) listed += (listed.empty() ? "" : ",") + name;
  }
  return units + "#1=IFCUNITASSIGNMENT((" + listed + "));\n";
}

/// What instance #100 of a model is once that is written.
std::string written(const ReadResult& model) {
  std::string text;
  writeStep(*model.data, text, {.numbers = model.instances});
  const std::size_t begin = text.find("\n#100=") + 6;
  return text.substr(begin, text.find(";\n", begin) - begin);
}

const std::string millimetre = "#10=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);\n";
const std::string degree =
    "#20=IFCSIUNIT(*,.PLANEANGLEUNIT.,$,.RADIAN.);\n"
    "#21=IFCMEASUREWITHUNIT(IFCPLANEANGLEMEASURE(0.017453293),#20);\n"
    "#22=IFCDIMENSIONALEXPONENTS(0,0,0,0,0,0,0);\n"
    "#11=IFCCONVERSIONBASEDUNIT(#22,.PLANEANGLEUNIT.,'DEGREE',#21);\n";
const std::string celsius = "#12=IFCSIUNIT(*,.THERMODYNAMICTEMPERATUREUNIT.,$,.DEGREE_CELSIUS.);\n";
const std::string bases =
    "#30=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);#31=IFCSIUNIT(*,.FORCEUNIT.,.KILO.,.NEWTON.);\n"
    "#32=IFCSIUNIT(*,.MASSUNIT.,$,.GRAM.);#33=IFCSIUNIT(*,.TIMEUNIT.,$,.SECOND.);\n"
    "#34=IFCSIUNIT(*,.POWERUNIT.,.KILO.,.WATT.);\n"
    "#35=IFCSIUNIT(*,.THERMODYNAMICTEMPERATUREUNIT.,$,.DEGREE_CELSIUS.);\n"
    "#36=IFCSIUNIT(*,.VOLUMEUNIT.,.DECI.,.CUBIC_METRE.);#37=IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.);\n";

std::string derived(const std::string& kind, std::vector<std::pair<int, int>> elements) {
  std::string text = bases;
  std::string list;
  int number = 40;
  for (const auto& [unit, exponent] : elements) {
    text += '#' + std::to_string(number) + "=IFCDERIVEDUNITELEMENT(#" + std::to_string(unit) + ',' +
            std::to_string(exponent) + ");\n";
    list += (list.empty() ? "#" : ",#") + std::to_string(number++);
  }
  return text + "#10=IFCDERIVEDUNIT((" + list + "),." + kind + ".,$,$);\n";
}

std::string conversionBased(const std::string& kind, const std::string& factor,
                            const std::string& base, const std::string& offset = "") {
  return "#20=" + base + ";\n#21=IFCMEASUREWITHUNIT(" + factor +
         ",#20);\n#10=IFCCONVERSIONBASEDUNIT" + (offset.empty() ? "" : "WITHOFFSET") + "($,." +
         kind + ".,'x',#21" + (offset.empty() ? "" : "," + offset) + ");\n";
}

TEST(Units, NumbersOfEachKindBecomeSi) {
  const struct {
    std::string units;
    const char* value;
    double expected;
  } rows[] = {
      {millimetre, "IFCLENGTHMEASURE(1001.)", 1.001},
      {millimetre, "IFCPOSITIVELENGTHMEASURE(250.)", 0.25},
      {millimetre, "IFCAREAMEASURE(2.5)", 2.5},  // no unit of areas is listed
      {millimetre, "IFCRATIOMEASURE(0.5)", 0.5},
      {millimetre, "IFCREAL(1000.)", 1000},
      {millimetre + degree, "IFCPLANEANGLEMEASURE(180.)", std::numbers::pi},
      {celsius, "IFCTHERMODYNAMICTEMPERATUREMEASURE(20.)", 293.15},
      {"#10=IFCSIUNIT(*,.AREAUNIT.,.CENTI.,.SQUARE_METRE.);", "IFCAREAMEASURE(25.)", 0.0025},
      {"#10=IFCSIUNIT(*,.VOLUMEUNIT.,.DECI.,.CUBIC_METRE.);", "IFCVOLUMEMEASURE(12.)", 0.012},
      {"#10=IFCSIUNIT(*,.MASSUNIT.,$,.GRAM.);", "IFCMASSMEASURE(500.)", 0.5},
      {"#10=IFCSIUNIT(*,.MASSUNIT.,.KILO.,.GRAM.);", "IFCMASSMEASURE(500.)", 500},
      {"#10=IFCSIUNIT(*,.MASSUNIT.,.MEGA.,.GRAM.);", "IFCMASSMEASURE(1.5)", 1500},
      {"#10=IFCSIUNIT(*,.FORCEUNIT.,.KILO.,.NEWTON.);", "IFCFORCEMEASURE(3.)", 3000},
      {"#10=IFCSIUNIT(*,.PRESSUREUNIT.,.MEGA.,.PASCAL.);", "IFCPRESSUREMEASURE(2.)", 2e6},
      {"#10=IFCSIUNIT(*,.PRESSUREUNIT.,.MEGA.,.PASCAL.);", "IFCMODULUSOFELASTICITYMEASURE(2.)", 2},
      {"#10=IFCSIUNIT(*,.ELECTRICCURRENTUNIT.,.MILLI.,.AMPERE.);", "IFCELECTRICCURRENTMEASURE(16.)",
       0.016},
      {conversionBased("LENGTHUNIT", "IFCLENGTHMEASURE(25.4)",
                       "IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.)"),
       "IFCNONNEGATIVELENGTHMEASURE(10.)", 0.254},
      {conversionBased("TIMEUNIT", "IFCINTEGER(3600)", "IFCSIUNIT(*,.TIMEUNIT.,$,.SECOND.)"),
       "IFCTIMEMEASURE(1.5)", 5400},
      {conversionBased("THERMODYNAMICTEMPERATUREUNIT", "IFCREAL(0.5555555555555556)",
                       "IFCSIUNIT(*,.THERMODYNAMICTEMPERATUREUNIT.,$,.KELVIN.)",
                       "255.37222222222222"),
       "IFCTHERMODYNAMICTEMPERATUREMEASURE(212.)", 373.15},
      {conversionBased("PLANEANGLEUNIT", "IFCREAL(0.0157)",
                       "IFCSIUNIT(*,.PLANEANGLEUNIT.,$,.RADIAN.)"),
       "IFCPLANEANGLEMEASURE(10.)", 0.157},  // no gon
      {derived("MASSDENSITYUNIT", {{32, 1}, {36, -1}}), "IFCMASSDENSITYMEASURE(3.)", 3},
      {derived("LINEARFORCEUNIT", {{31, 1}, {30, -1}}), "IFCLINEARFORCEMEASURE(2.)", 2e6},
      {derived("MODULUSOFELASTICITYUNIT", {{31, 1}, {30, -2}}),
       "IFCMODULUSOFELASTICITYMEASURE(210.)", 2.1e11},
      {derived("MOMENTOFINERTIAUNIT", {{30, 4}}), "IFCMOMENTOFINERTIAMEASURE(5E6)", 5e-6},
      {derived("THERMALTRANSMITTANCEUNIT", {{34, 1}, {37, -2}, {35, -1}}),
       "IFCTHERMALTRANSMITTANCEMEASURE(0.001)", 1},
      {derived("THERMALTRANSMITTANCEUNIT", {{34, 1}, {37, -2}, {35, -1}}), "IFCLABEL('1')", 0},
      {"#10=IFCMONETARYUNIT('EUR');", "IFCMONETARYMEASURE(9.)", 9},
      {"#10=IFCCONTEXTDEPENDENTUNIT($,.LENGTHUNIT.,'hand');", "IFCLENGTHMEASURE(9.)", 9},
  };
  for (const auto& row : rows) {
    const ReadResult model = readStatements(
        assignment(row.units) + "#100=IFCPROPERTYSINGLEVALUE('x',$," + row.value + ",$);");
    EXPECT_THAT(messages(model), testing::Each(testing::Not(HasSubstr("Unit")))) << row.value;
    const auto property = fc::fcCast<FcPropertySingleValue>(model.instances.back().entity);
    EXPECT_NEAR(property->NominalValue().valueAsDoubleGet().value_or(0), row.expected,
                1e-14 * row.expected)
        << row.units << row.value;
  }
}

TEST(Units, EveryMeasureOfTheSchemaHasAUnit) {
  const std::vector<std::string> without{"ComplexNumber",
                                         "ContextDependentMeasure",
                                         "CountMeasure",
                                         "DescriptiveMeasure",
                                         "NormalisedRatioMeasure",
                                         "NumericMeasure",
                                         "ParameterValue",
                                         "PositiveRatioMeasure",
                                         "RatioMeasure",
                                         "CompoundPlaneAngleMeasure",
                                         "IntegerCountRateMeasure",
                                         "MonetaryMeasure"};
  const auto expectUnits = [&](const fc::SelectInfo& select) {
    for (const fc::AlternativeInfo& each : select.alternatives) {
      const bool none = std::find(without.begin(), without.end(), each.name) != without.end();
      EXPECT_EQ(measureOfType(each.upperName) == measure::none, none) << each.name;
    }
  };
  expectUnits(fc::resource::measure::FcMeasureValue::info());
  expectUnits(fc::resource::measure::FcDerivedMeasureValue::info());
  EXPECT_EQ(measures()[measure::length].type, "LengthMeasure");
  EXPECT_EQ(measures()[measure::planeAngle].type, "PlaneAngleMeasure");
  EXPECT_EQ(measures()[measure::temperature].type, "ThermodynamicTemperatureMeasure");
}

/// What stands in front of the bar of each `<a|b>`, or behind it.
std::string oneSide(const std::string& text, const char* side) {
  return std::regex_replace(text, std::regex("<([^|]*)\\|([^>]*)>"), side);
}

/// Statements with #100 at their end, in millimetres, degrees and degrees Celsius, with what
/// becomes of it in SI.
TEST(Units, AttributesOfEachShapeBecomeSi) {
  const std::string centimetre = "#50=IFCSIUNIT(*,.LENGTHUNIT.,.CENTI.,.METRE.);";
  const std::string metre = "#50=IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.);";
  const std::string circle =
      "#50=IFCCIRCLE($,1000.);#51=IFCTRIMMEDCURVE(#50,(IFCPARAMETERVALUE(0.)),"
      "(IFCPARAMETERVALUE(90.)),.T.,.PARAMETER.);";
  const std::string arcs =
      "#49=IFCCARTESIANPOINT((0.,0.));#48=IFCAXIS2PLACEMENT2D(#49,$);#50=IFCCIRCLE(#48,1000.);"
      "#51=IFCTRIMMEDCURVE(#50,(#53),(#54),.F.,.CARTESIAN.);#52=IFCPOLYLINE((#53,#54,#53));"
      "#53=IFCCARTESIANPOINT((0.,1000.));#54=IFCCARTESIANPOINT((1000.,0.));"
      "#55=IFCCOMPOSITECURVESEGMENT(.CONTINUOUS.,.T.,#52);"
      "#56=IFCCOMPOSITECURVESEGMENT(.CONTINUOUS.,.T.,#51);#57=IFCCOMPOSITECURVE((#55,#56,#55),.F.)"
      ";";
  const std::string map =
      "#52=IFCGEOMETRICREPRESENTATIONCONTEXT($,$,3,$,#53,$);#53=IFCAXIS2PLACEMENT3D(#54,$,$);"
      "#54=IFCCARTESIANPOINT((0.,0.,0.));";
  const std::string rows[] = {
      "#100=IFCCARTESIANPOINT((<1500.|1.5>,<-2.5|-0.0025>));",
      "#100=IFCCARTESIANPOINTLIST3D(((<1.|0.001>,<2.|0.002>,<3.|0.003>),(<4.|0.004>,<5.|0.005>,<6.|"
      "0.006>)),$);",
      "#100=IFCDIRECTION((0.,1.));",
      "#50=IFCDIRECTION((0.,1.));#100=IFCVECTOR(#50,<10.|0.01>);",
      "#50=IFCAXIS2PLACEMENT2D($,$);"
      "#100=IFCGEOMETRICREPRESENTATIONCONTEXT($,$,2,<0.25|0.00025>,#50,$);",
      "#50=IFCAXIS2PLACEMENT2D(#51,$);#51=IFCCARTESIANPOINT((0.,0.));"
      "#100=IFCPOLYNOMIALCURVE(#50,(0.,<1.|0.001>),(0.,<2.|0.002>),$);",
      "#100=IFCSTRUCTURALLOADTEMPERATURE($,20.,$,10.);",  // differences
      "#100=IFCCURVESTYLE($,$,IFCPOSITIVELENGTHMEASURE(<2.|0.002>),$,$);",
      "#100=IFCMEASUREWITHUNIT(IFCLENGTHMEASURE(25.4),#10);",  // the size of a unit
      "#50=IFCCIRCLE($,1000.);#100=IFCTRIMMEDCURVE(#50,(IFCPARAMETERVALUE(0.)),"
      "(IFCPARAMETERVALUE(<360.|6.283185307179586>)),.T.,.PARAMETER.);",
      "#50=IFCLINE($,$);#100=IFCTRIMMEDCURVE(#50,(IFCPARAMETERVALUE(0.)),"
      "(IFCPARAMETERVALUE(360.)),.T.,.PARAMETER.);",
      // Behind two segments, and inside an arc.
      arcs + "#100=IFCSWEPTDISKSOLID(#57,<10.|0.01>,$,1.5,<93.|4.570796326794897>);",
      arcs + "#100=IFCSWEPTDISKSOLID(#57,<10.|0.01>,$,$,<47.|2.7853981633974483>);",
      circle +
          "#100=IFCPOINTBYDISTANCEEXPRESSION(IFCLENGTHMEASURE(<90.|0.09>),<1.|0.001>,$,$,#51);",
      circle +
          "#100=IFCPOINTBYDISTANCEEXPRESSION(IFCPARAMETERVALUE(<90.|1.5707963267948966>),$,$,$,"
          "#51);",
      "#50=IFCCYLINDRICALSURFACE($,1000.);#100=IFCRECTANGULARTRIMMEDSURFACE(#50,0.,0.,"
      "<180.|3.141592653589793>,<500.|0.5>,.T.,.T.);",
      "#50=IFCCYLINDRICALSURFACE($,1000.);#51=IFCPCURVE(#50,#52);#52=IFCPOLYLINE((#100));"
      "#100=IFCCARTESIANPOINT((<90.|1.5707963267948966>,<500.|0.5>));",
      "#100=IFCQUANTITYLENGTH('x',$,$,<25.|0.025>,$);",
      metre +
          "#51=IFCSIUNIT(*,.LENGTHUNIT.,.CENTI.,.METRE.);"
          "#100=IFCQUANTITYLENGTH('x',$,<#51|#50>,<25.|0.25>,$);",
      metre + "#100=IFCPROPERTYSINGLEVALUE('x',$,IFCLENGTHMEASURE(25.),#50);",
      "#100=IFCPROPERTYSINGLEVALUE('x',$,IFCREAL(25.),#10);",
      "#100=IFCPROPERTYBOUNDEDVALUE('x',$,IFCLENGTHMEASURE(<25.|0.025>),"
      "IFCLENGTHMEASURE(<5.|0.005>),$,$);",
      metre +
          "#100=IFCPROPERTYLISTVALUE('x',$,(IFCLENGTHMEASURE(<25.|0.025>),"
          "IFCLENGTHMEASURE(<5.|0.005>)),<#10|#50>);",
      "#100=IFCPROPERTYTABLEVALUE('x',$,(IFCLENGTHMEASURE(<25.|0.025>)),(IFCRATIOMEASURE(5.)),"
      "$,$,$,$);",
      centimetre +
          "#51=IFCPROPERTYENUMERATION('x',(IFCLENGTHMEASURE(5.)),#50);"
          "#100=IFCPROPERTYENUMERATEDVALUE('x',$,(IFCLENGTHMEASURE(<5.|0.05>)),#51);",
      centimetre +
          "#51=IFCTABLECOLUMN($,$,$,#50,$);#52=IFCTABLE($,(#100),(#51));"
          "#100=IFCTABLEROW((IFCLENGTHMEASURE(<5.|0.05>),IFCLENGTHMEASURE(<5.|0.005>)),"
          ".F.);",
      "#51=IFCREGULARTIMESERIES('x',$,'','',.CONTINUOUS.,.MEASURED.,$,#10,1.,(#100));"
      "#100=IFCTIMESERIESVALUE((IFCLENGTHMEASURE(<5.|0.005>)));",
      metre + "#51=IFCPROJECTEDCRS('x',$,$,$,$,$,#50);" + map +
          "#100=IFCMAPCONVERSION(#52,#51,458657.3,2.,1.,1.,0.,<0.0009996|0.9996>);",
      "#51=IFCPROJECTEDCRS('x',$,$,$,$,$,$);" + map +
          "#100=IFCMAPCONVERSION(#52,#51,<5000.|5.>,<2.|0.002>,<1.|0.001>,$,$,$);",
  };
  for (const std::string& row : rows) {
    SCOPED_TRACE(row);
    const ReadResult model =
        readStatements(assignment(millimetre + degree + celsius) + oneSide(row, "$1"));
    for (const Problem& problem : model.problems) EXPECT_NE(problem.kind, ProblemKind::unit);
    EXPECT_THAT(oneSide(row, "$2"), EndsWith("#100=" + written(model) + ";"));
  }
}

TEST(Units, TheWrittenFileSaysThatItIsSiAndReadsBackTheSame) {
  const std::string units =
      assignment(millimetre + degree +
                 "#13=IFCDERIVEDUNIT((#31,#32),.LINEARFORCEUNIT.,$,$);"
                 "#30=IFCSIUNIT(*,.FORCEUNIT.,.KILO.,.NEWTON.);#31=IFCDERIVEDUNITELEMENT(#30,1);"
                 "#32=IFCDERIVEDUNITELEMENT(#10,-1);#14=IFCMONETARYUNIT('EUR');");
  const ReadResult model = readStatements(units + "#100=IFCCARTESIANPOINT((1500.,0.));");
  std::string text;
  writeStep(*model.data, text, {.numbers = model.instances});
  const ReadResult again = readStep(text);
  EXPECT_THAT(messages(again), IsEmpty());
  ASSERT_EQ(again.units.size(), 4u);
  for (const FileUnit& unit : again.units)
    EXPECT_TRUE(!unit.toSi || unit.toSi->isIdentity()) << unit.assignment;
  std::string second;
  writeStep(*again.data, second, {.header = again.header, .numbers = again.instances});
  EXPECT_EQ(text.substr(text.find("DATA;")), second.substr(second.find("DATA;")));

  std::string kept;
  const ReadResult asItIs = readStep(stepFile(units), {.keepUnits = true});
  writeStep(*asItIs.data, kept, {.numbers = asItIs.instances});
  EXPECT_THAT(kept, HasSubstr("#1=IFCUNITASSIGNMENT((#10,#11,#13,#14));"));
}

TEST(Units, WhatMakesNoSenseIsToldInALineAndLeavesNumbersAlone) {
  const auto inch = [](const char* factor) {
    return conversionBased("LENGTHUNIT", factor, "IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.)");
  };
  const struct {
    std::string units;
    std::string told;
    double x;
  } rows[] = {
      {inch("IFCLENGTHMEASURE(0.)"),
       "#10 IFCCONVERSIONBASEDUNIT, line 6: ConversionFactor is 0; numbers in this unit are left "
       "as they are.",
       1500},
      {inch("IFCLABEL('x')"),
       "#10 IFCCONVERSIONBASEDUNIT, line 6: ConversionFactor has no number; numbers in this unit "
       "are left as they are.",
       1500},
      {inch("IFCLENGTHMEASURE(-1.)"),
       "#10 IFCCONVERSIONBASEDUNIT, line 6: ConversionFactor is -1; numbers in this unit are left "
       "as they are.",
       1500},
      {"#20=IFCMEASUREWITHUNIT(IFCREAL(2.),#10);\n"
       "#10=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'x',#20);",
       "#10 IFCCONVERSIONBASEDUNIT, line 5: ConversionFactor is in a unit of unknown size; numbers "
       "in this unit are left as they are.",
       1500},
      {"#10=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.GRAM.);",
       "#10 IFCSIUNIT, line 4: UnitType is LENGTHUNIT, which this unit has other dimensions than; "
       "numbers in it are left as they are.",
       1500},
      {millimetre + "#11=IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.);",
       "#1 IFCUNITASSIGNMENT, line 5: Units list a LENGTHUNIT that contradicts one listed before; "
       "the first one is used, of 0.001 to the SI unit where this has 1.",
       1.5},
      {millimetre +
           "#50=IFCSIUNIT(*,.MASSUNIT.,$,.GRAM.);#51=IFCPROPERTYSINGLEVALUE('x',$,"
           "IFCLENGTHMEASURE(2.),#50);#52=IFCPROPERTYSINGLEVALUE('y',$,IFCLENGTHMEASURE(2.),#50);",
       "#51 IFCPROPERTYSINGLEVALUE, line 5: Unit is none of an IfcLengthMeasure; the value is left "
       "as it is. And 1 like it.",
       1.5},
      // Beyond what a double holds.
      {millimetre + "#50=IFCPROPERTYSINGLEVALUE('x',$,IFCLENGTHMEASURE(1E308),$);#11=IFCSIUNIT(*,"
                    ".FORCEUNIT.,.EXA.,.NEWTON.);#51=IFCPROPERTYSINGLEVALUE('x',$,IFCFORCEMEASURE("
                    "1E307),$);",
       "", 1.5},
  };
  for (const auto& row : rows) {
    const ReadResult model =
        readStatements(assignment(row.units) + "#100=IFCCARTESIANPOINT((1500.,0.));");
    std::string told;
    for (const Problem& problem : model.problems)
      if (problem.kind == ProblemKind::unit) told += problem.toString();
    EXPECT_EQ(told, row.told);
    const auto point = fc::fcCast<FcCartesianPoint>(model.instances.back().entity);
    EXPECT_EQ(point->Coordinates()[0], row.x);
    takeApart(*model.data);
  }
}

TEST(Units, TheProjectsAssignmentHoldsWhereAnotherContradictsIt) {
  const ReadResult model = readStatements(
      "#1=IFCUNITASSIGNMENT((#2));#2=IFCSIUNIT(*,.LENGTHUNIT.,.CENTI.,.METRE.);"
      "#3=IFCUNITASSIGNMENT((#4));#4=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);"
      "#5=IFCPROJECT('0TFre1QonEaOenN0vtqaQR',$,'x',$,$,$,$,$,#3);#6=IFCQUANTITYLENGTH('x',$,$,25.,"
      "$);");
  ASSERT_EQ(model.units.size(), 2u);
  EXPECT_EQ(model.units[0].assignment, 3u);
  EXPECT_EQ(model.units[0].toSi->scale(), 0.001);
  EXPECT_FALSE(model.units[1].toSi);
  EXPECT_EQ(model.instances.back().entity->getAttributeAsString("LengthValue"), "0.025000");
}

/// Each number with a point of the statements of these classes, times the factor.
std::string scaled(const std::string& text, const std::string& classes, double factor) {
  const std::regex statement("\\n#\\d+= ?(?:" + classes + ")\\([^;]*;");
  const std::regex number("-?\\d+\\.\\d*(?:E-?\\d+)?");
  std::string result;
  auto at = text.begin();
  for (std::sregex_iterator i(text.begin(), text.end(), statement), end; i != end; ++i) {
    result.append(at, text.begin() + i->position());
    const std::string found = i->str();
    auto from = found.begin();
    for (std::sregex_iterator n(found.begin(), found.end(), number); n != end; ++n) {
      char digits[40];
      std::snprintf(digits, sizeof digits, "%.17E", std::stod(n->str()) * factor);
      result.append(from, found.begin() + n->position()).append(digits);
      from = found.begin() + n->position() + n->length();
    }
    result.append(from, found.end());
    at = text.begin() + i->position() + i->length();
  }
  return result.append(at, text.end());
}

TEST(Units, ParametersInDegreesAreThoseOfACopyInRadians) {
  FC_SHARED_FILE_OR_SKIP(path, "models/samples/curve-parameters-in-degrees.ifc");
  const std::string text = test::readFile(path);
  std::string copy =
      scaled(text, "IFCCARTESIANPOINT|IFCVECTOR|IFCCIRCLE|IFCELLIPSE|IFCEXTRUDEDAREASOLID", 0.001);
  copy = scaled(copy, "IFCGEOMETRICREPRESENTATIONCONTEXT", 0.001);
  copy = scaled(copy, "IFCTRIMMEDCURVE\\(#(?:60|103|109|115|152),.*", std::numbers::pi / 180);
  copy = std::regex_replace(copy, std::regex("\\.MILLI\\."), "$$");
  copy = std::regex_replace(copy, std::regex("#24,#27,#29"), "#24,#25,#29");
  const ReadResult degrees = readStep(text);
  const ReadResult radians = readStep(copy);
  ASSERT_TRUE(degrees.data && radians.data);
  ASSERT_TRUE(radians.units.front().toSi->isIdentity());
  EXPECT_THAT(messages(radians), IsEmpty());
  EXPECT_THAT(test::differences(degrees, radians, test::Compared::allButUnits), IsEmpty());
  EXPECT_GT(
      test::differences(readStep(text, {.keepUnits = true}), radians, test::Compared::allButUnits)
          .size(),
      30u);
}

class Building : public test::ModelTest {};

/// Gives the unit of lengths another prefix.
void setLengthUnit(const ReadResult& model, std::optional<FcSIPrefix> prefix) {
  for (const FileUnit& unit : model.units)
    if (auto* si = fc::fcCast<FcSIUnit>(unit.unit.getEntity());
        si && si->UnitType() == FcUnitEnum::LENGTHUNIT)
      si->setPrefix(prefix);
}

TEST_P(Building, IsTheSameInMillimetresAndInMetres) {
  const ReadResult original = readStepFile(GetParam(), {.keepUnits = true});
  ASSERT_FALSE(original.units.empty());
  const bool isInMetres = original.units.front().toSi->isIdentity();
  std::string copy;
  EXPECT_GT(test::scaleLengths(original, isInMetres ? 1000 : 0.001), 20000u);
  setLengthUnit(original, isInMetres ? std::optional<FcSIPrefix>(FcSIPrefix::MILLI) : std::nullopt);
  writeStep(*original.data, copy, {.header = original.header, .numbers = original.instances});

  const ReadResult converted = readStep(copy);
  EXPECT_EQ(converted.units.front().toSi->isIdentity(), !isInMetres);
  const ReadResult expected = readStepFile(GetParam());
  EXPECT_THAT(test::differences(expected, converted, test::Compared::allButUnits), IsEmpty());
}

FC_INSTANTIATE_FOR_MODELS(Building, test::sharedBuildings());

}  // namespace
}  // namespace qor::host::step
