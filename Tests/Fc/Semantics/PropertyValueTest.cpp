#include <gtest/gtest.h>

#include <limits>

#include "Fc/Resource/Property/FcPropertySingleValue.h"
#include "Tests/Support/ExpectAsserts.h"

namespace qor::fc::resource {
namespace {

using namespace measure;
using object::PropertyValue;
using property::FcPropertySingleValue;

FcValue valueOf(const char* text) {
  FcValue value;
  EXPECT_TRUE(value.setFromString(text)) << text;
  return value;
}

TEST(Value, GivesAndTakesTheNumberOfNumericKindsAlone) {
  struct Case {
    const char* value;
    std::optional<double> number;
    bool taken;
    const char* after;  // taking 2.9
  };
  for (const Case& expected :
       {Case{"AreaMeasure(3)", 3, true, "AreaMeasure(2.900000)"},
        Case{"ForceMeasure(3)", 3, true, "ForceMeasure(2.900000)"},
        Case{"CountMeasure(7)", 7, true, "CountMeasure(2)"},
        Case{"Real(3)", 3, true, "Real(2.900000)"},
        Case{"Integer(3)", std::nullopt, false, "Integer(3)"},
        Case{"Boolean(true)", std::nullopt, false, "Boolean(true)"},
        Case{"Text(3)", std::nullopt, false, "Text(3)"},
        Case{"DescriptiveMeasure(3)", std::nullopt, false, "DescriptiveMeasure(3)"}}) {
    SCOPED_TRACE(expected.value);
    FcValue value = valueOf(expected.value);
    EXPECT_EQ(value.valueAsDoubleGet(), expected.number);
    EXPECT_EQ(value.setDoubleValue(2.9), expected.taken);
    EXPECT_EQ(value.getAsString(true), expected.after);
  }
  FcValue none;
  EXPECT_EQ(none.valueAsDoubleGet(), std::nullopt);
  EXPECT_FALSE(none.setDoubleValue(1));
}

TEST(Value, CountsOnlyWhereItIsAskedTo) {
  FcMeasureValue count = FcCountMeasure(7);
  EXPECT_EQ(count.valueAsDoubleGet(true), 7);
  EXPECT_EQ(count.valueAsDoubleGet(false), std::nullopt);
  EXPECT_EQ(FcMeasureValue(FcLengthMeasure(2)).valueAsDoubleGet(false), 2);
  for (const double odd : {std::numeric_limits<double>::quiet_NaN(), 1e300, -1e300})
    EXPECT_FALSE(count.setDoubleValue(odd));
  EXPECT_EQ(count.valueAsDoubleGet(true), 7);
}

TEST(Value, IsAPlainValueForUserInterfaces) {
  EXPECT_EQ(FcValue().getAsPropertyValue(), PropertyValue());
  EXPECT_EQ(valueOf("LengthMeasure(2.5)").getAsPropertyValue(), PropertyValue(2.5));
  EXPECT_EQ(valueOf("Real(2.5)").getAsPropertyValue(), PropertyValue(2.5));
  EXPECT_EQ(valueOf("Boolean(true)").getAsPropertyValue(), PropertyValue(true));
  EXPECT_EQ(valueOf("Integer(4)").getAsPropertyValue(), PropertyValue("4"));
  EXPECT_EQ(valueOf("Label()").getAsPropertyValue(), PropertyValue(""));
}

TEST(Value, TakesAPlainValueAndKeepsItsKind) {
  struct Case {
    const char* value;
    PropertyValue update;
    const char* after;
  };
  const test::ExpectAsserts none;
  for (const Case& expected :
       {Case{"LengthMeasure(1)", PropertyValue(2.5), "LengthMeasure(2.500000)"},
        Case{"Boolean(true)", PropertyValue(false), "Boolean(false)"},
        Case{"Label(a)", PropertyValue("b"), "Label(b)"},
        Case{"Integer(1)", PropertyValue("12"), "Integer(12)"},
        Case{"Label(a)", PropertyValue(2.5), "Label(a)"}}) {
    FcValue value = valueOf(expected.value);
    value.updateValueFromPropertyValue(expected.update);
    EXPECT_EQ(value.getAsString(true), expected.after);
  }
}

TEST(Value, ReportsAPlainValueOfAnotherKind) {
  const test::ExpectAsserts expected(
      {"FcValue::updateValueFromPropertyValue can only be used if the Value alredy has a value.",
       "Unexpected type, expected a boolean.", "Unexpected type"});
  FcValue none, flag = valueOf("Boolean(true)"), label = valueOf("Label(a)");
  none.updateValueFromPropertyValue(1.0);
  flag.updateValueFromPropertyValue("false");
  label.updateValueFromPropertyValue(true);
  EXPECT_FALSE(none.isSet());
  EXPECT_EQ(flag.getAsString(false), "true");
  EXPECT_EQ(label.getAsString(false), "a");
}

TEST(PropertySingleValue, TakesWhatItsTypeCanRead) {
  struct Case {
    const char* nominal;
    PropertyValue value;
    const char* after;
  };
  const test::ExpectAsserts none;
  for (const Case& expected :
       {Case{"LengthMeasure(1)", 2.5, "LengthMeasure(2.500000)"},
        Case{"LengthMeasure(1)", 2.5F, "LengthMeasure(2.500000)"},
        Case{"LengthMeasure(1)", "3", "LengthMeasure(3.000000)"},
        Case{"Real(1)", 2.5, "Real(2.500000)"}, Case{"Label(a)", 2.5, "Label(2.500000)"},
        Case{"Label(a)", true, "Label(true)"}, Case{"Boolean(true)", false, "Boolean(false)"},
        Case{"Boolean(true)", std::optional(false), "Boolean(false)"},
        Case{"Integer(1)", std::int64_t(-4), "Integer(-4)"},
        Case{"Text(a)", std::uint64_t(18446744073709551615U), "Text(18446744073709551615)"},
        Case{"Text(a)", std::optional<std::string>("b"), "Text(b)"}}) {
    const auto property = std::make_shared<FcPropertySingleValue>();
    property->setNominalValue(valueOf(expected.nominal));
    EXPECT_TRUE(property->setFromPropertyValue(expected.value)) << expected.after;
    EXPECT_EQ(property->NominalValue().getAsString(true), expected.after);
  }
}

TEST(PropertySingleValue, PassesOverNothingAndReportsNonsense) {
  const test::ExpectAsserts expected({"Unable to set attribute \"Width\", from string \"wide\".",
                                      "Unable to set attribute \"Width\", from string \"true\"."});
  const auto property = std::make_shared<FcPropertySingleValue>();
  property->setName("Width");
  EXPECT_FALSE(property->setFromPropertyValue(PropertyValue()));
  EXPECT_FALSE(property->setFromPropertyValue(std::optional<bool>()));
  property->setNominalValue(FcLengthMeasure(2));
  EXPECT_FALSE(property->setFromPropertyValue("wide"));
  EXPECT_EQ(property->NominalValue().valueAsDoubleGet(), 2);
  property->clearNominalValue();
  EXPECT_FALSE(property->setFromPropertyValue(true));
}

}  // namespace
}  // namespace qor::fc::resource
