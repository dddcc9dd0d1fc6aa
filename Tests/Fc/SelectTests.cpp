#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Fc/Core/Kernel/FcPropertySetDefinitionSelect.h"
#include "Fc/Resource/Actor/FcActorSelect.h"
#include "Fc/Resource/Actor/FcOrganization.h"
#include "Fc/Resource/Actor/FcPerson.h"
#include "Fc/Resource/Cost/FcAppliedValueSelect.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcTrimmingSelect.h"
#include "Fc/Resource/Measure/FcUnit.h"
#include "Fc/Resource/Measure/FcValue.h"
#include "Fc/Resource/PresentationAppearance/FcColourRgb.h"
#include "Fc/Resource/PresentationAppearance/FcFillStyleSelect.h"
#include "Tests/Fc/Values.h"
#include "Tests/Support/ExpectAsserts.h"

namespace qor::fc {
namespace {

using namespace test;
using namespace resource::measure;
using core::kernel::FcPropertySetDefinitionSelect;
using qor::test::ExpectAsserts;
using namespace resource::actor;
using resource::cost::FcAppliedValueSelect;
using resource::geometry::FcTrimmingSelect;
using testing::ElementsAre;
using testing::Optional;

// Too long for a string's own buffer: a value that stands on the heap.
const std::string longText = "a text that no string keeps within itself";

template <class Callable>
void expectNotOfCorrectType(Callable&& getter) {
  try {
    getter();
    ADD_FAILURE() << "no exception";
  } catch (const qor::exception& exception) {
    EXPECT_STREQ(exception.what(), "Not of correct type");
  }
}

TEST(Select, IsNotSetAtTheStart) {
  const ExpectAsserts none;
  FcValue value;
  EXPECT_EQ(value.type(), FcValue::Types::NotSet);
  EXPECT_FALSE(value.isSet());
  EXPECT_EQ(value.getEntity(), nullptr);
  EXPECT_EQ(value.getLocalValue(), empty());
  EXPECT_EQ(value.getAsString(false), std::nullopt);
  EXPECT_EQ(value.getAsString(true), std::nullopt);
  EXPECT_FALSE(value.setValueOnTypeFromString("1"));
  EXPECT_EQ(FcValue(FcValue::Types::MeasureValue).getLocalValue(), empty()) << "nor one below it";
}

TEST(Select, ReadsATypeWithItsValueAndWritesItBack) {
  struct Case {
    const char* text;
    bool stored;
    const char* withType;
    const char* bare;
  };
  // What can't be read leaves a Label of "before" alone unless the type was found.
  const Case cases[] = {
      {"LengthMeasure(2.5)", true, "LengthMeasure(2.500000)", "2.500000"},
      {"CountMeasure(7)", true, "CountMeasure(7)", "7"},
      {"Label()", true, "Label()", ""},
      {"Text((a)(b))", true, "Text((a)(b))", "(a)(b)"},
      {"Logical(unknown)", true, "Logical(unknown)", "unknown"},
      {"LengthMeasure(abc)", false, "LengthMeasure(0.000000)", "0.000000"},
      {"Integer(2147483648)", false, "Integer(0)", "0"},
      {"LengthMeasure 2.5", false, "Label(before)", "before"},
      {"LengthMeasure(2.5", false, "Label(before)", "before"},
      {"LengthMeasure(2.5) ", false, "Label(before)", "before"},
      {"LengthMeasure)", false, "Label(before)", "before"},
      {"(2.5)", false, "Label(before)", "before"},
      {"", false, "Label(before)", "before"},
      {"IfcLengthMeasure(2.5)", false, "Label(before)", "before"},
      {"MeasureValue(2.5)", false, "Label(before)", "before"},
  };
  const ExpectAsserts none;
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    FcValue value(FcLabel("before"));
    EXPECT_EQ(value.setFromString(c.text), c.stored);
    EXPECT_EQ(value.getAsString(true), c.withType);
    EXPECT_EQ(value.getAsString(false), c.bare);
  }
}

TEST(Select, FindsATypeBelowTheNestedSelects) {
  const std::pair<const char*, FcValue::Types> types[] = {
      {"LengthMeasure", FcValue::Types::MeasureValue},
      {"ForceMeasure", FcValue::Types::DerivedMeasureValue},
      {"Label", FcValue::Types::SimpleValue}};
  FcValue value;
  for (const auto& [name, type] : types) {
    EXPECT_TRUE(value.setTypeFromString(name));
    EXPECT_EQ(value.type(), type);
    for (const char* unknown : {"MeasureValue", "NotSet", "", "length"})
      EXPECT_FALSE(value.setTypeFromString(unknown));
    EXPECT_EQ(value.type(), type);
  }
  EXPECT_TRUE(value.setValueOnTypeFromString("a"));
  EXPECT_EQ(value.SimpleValue().Label().value(), "a");
}

TEST(Select, HandsATextOnToASelectAmongOtherAlternatives) {
  FcAppliedValueSelect applied;
  EXPECT_TRUE(applied.setFromString("Value(LengthMeasure(2.5))"));
  EXPECT_EQ(applied.getAsString(true), "LengthMeasure(2.500000)");
  EXPECT_TRUE(applied.setValueOnTypeFromString("Label(x)"));
  EXPECT_EQ(applied.Value().SimpleValue().Label().value(), "x");
  EXPECT_FALSE(applied.setTypeFromString("LengthMeasure"));

  FcActorSelect actor;
  EXPECT_FALSE(actor.setFromString("Person(1)")) << "takes the type from a text but no value";
  EXPECT_EQ(actor.Person(), nullptr);
  EXPECT_EQ(actor.getEntity(), nullptr);
}

TEST(Select, ReportsValuesWithoutAText) {
  const auto reports = [](const std::string& type, const char* operation) {
    return qor::test::ExpectedAssert("Not implemented for this type",
                                     "qor::fc::BaseType<" + type + " >::" + operation, "BaseType");
  };
  const std::string person = "class std::shared_ptr<class qor::fc::resource::actor::FcPerson>";
  const std::string point =
      "class std::shared_ptr<class qor::fc::resource::geometry::FcCartesianPoint>";
  const std::string set =
      "class std::shared_ptr<class qor::fc::core::kernel::FcPropertySetDefinition>";
  const std::string doubles = "class std::vector<double,class std::allocator<double> >";
  const std::string bytes = "class std::vector<unsigned char,class std::allocator<unsigned char> >";
  const ExpectAsserts expected(
      {reports(doubles, "getAsString"), reports(doubles, "setFromString"),
       reports(bytes, "getAsString"), reports(bytes, "setFromString"),
       reports(person, "getAsString"), reports(point, "setFromString"),
       reports("class std::vector<" + set + ",class std::allocator<" + set + " > >",
               "getAsString")});
  for (const char* name : {"ComplexNumber", "Binary"}) {
    FcValue value;
    EXPECT_FALSE(value.setFromString(std::string(name) + "(1)"));
    EXPECT_EQ(value.getAsString(true), std::nullopt);
  }
  EXPECT_EQ(FcActorSelect(std::make_shared<FcPerson>()).getAsString(true), std::nullopt);
  EXPECT_FALSE(FcTrimmingSelect().setFromString("CartesianPoint(1)"));
  FcPropertySetDefinitionSelect sets;
  EXPECT_TRUE(sets.setTypeFromString("PropertySetDefinitionSet"));
  EXPECT_EQ(sets.getAsString(false), std::nullopt);
}

TEST(Select, GivesTheCurrentAlternativeAndThrowsForAnyOther) {
  const auto person = std::make_shared<FcPerson>();
  const FcActorSelect actor(person);
  EXPECT_EQ(actor.Person(), person);
  EXPECT_EQ(actor.getEntity(), person.get());
  expectNotOfCorrectType([&] { actor.Organization(); });
  expectNotOfCorrectType([] { FcActorSelect().Person(); });

  const FcValue value = FcLengthMeasure(2.5);
  EXPECT_EQ(value.MeasureValue().LengthMeasure().value(), 2.5);
  EXPECT_EQ(value.getEntity(), nullptr);
  expectNotOfCorrectType([&] { value.SimpleValue(); });
  expectNotOfCorrectType([&] { value.MeasureValue().AreaMeasure(); });

  const auto rgb = std::make_shared<resource::presentationappearance::FcColourRgb>();
  resource::presentationappearance::FcFillStyleSelect style;
  EXPECT_TRUE(style.setLocalValue(entity(rgb)));
  EXPECT_EQ(style.Colour().ColourSpecification(), rgb);
  EXPECT_EQ(style.getEntity(), rgb.get()) << "of a select below it";
  EXPECT_EQ(style.getLocalValue(), entity(rgb));
}

TEST(Select, CopiesValuesAndSharesEntities) {
  FcValue original(FcLabel{longText});
  FcValue copy(original);
  FcValue assigned(FcLengthMeasure(1));
  assigned = original;
  EXPECT_TRUE(original.setFromString("Text(changed)"));
  for (const FcValue& other : {copy, assigned})
    EXPECT_EQ(other.getAsString(true), "Label(" + longText + ")");
  EXPECT_NE(&copy.SimpleValue().Label(), &assigned.SimpleValue().Label());

  const auto person = std::make_shared<FcPerson>();
  const FcActorSelect actor(person);
  FcActorSelect other;
  other = actor;
  EXPECT_EQ(other.getEntity(), person.get());
  EXPECT_EQ(person.use_count(), 3);
}

TEST(Select, IsNotSetOnceItsValueHasMovedOn) {
  for (const FcValue& value :
       {FcValue(FcLabel{longText}), FcValue(FcLengthMeasure(2)), FcValue(FcLabel("x"))}) {
    FcValue from(value);
    const auto text = value.getAsString(true);
    FcValue to(std::move(from));
    EXPECT_EQ(to.getAsString(true), text);
    EXPECT_FALSE(from.isSet());
    from = std::move(to);
    EXPECT_EQ(from.getAsString(true), text);
    EXPECT_FALSE(to.isSet());
    EXPECT_EQ(to.getAsString(true), std::nullopt);
    EXPECT_TRUE(to.setFromString("Real(1)"));
  }
  FcTrimmingSelect point(std::make_shared<resource::geometry::FcCartesianPoint>());
  const FcTrimmingSelect moved(std::move(point));
  EXPECT_TRUE(moved.getEntity());
  EXPECT_EQ(point.getEntity(), nullptr);
}

TEST(Select, SurvivesAssignmentOfItselfAndOfItsOwnPart) {
  FcValue value(FcLabel("Text(" + longText + ")"));
  EXPECT_TRUE(value.setFromString(value.SimpleValue().Label()));
  EXPECT_EQ(value.getAsString(true), "Text(" + longText + ")");
  FcAppliedValueSelect applied(FcValue(FcLabel{longText}));
  const auto& alias = applied;
  applied = alias;
  EXPECT_EQ(applied.getAsString(false), longText);
  applied = std::move(const_cast<FcAppliedValueSelect&>(alias));
  EXPECT_EQ(applied.getAsString(false), longText);
  applied = applied.Value();
  EXPECT_EQ(applied.getAsString(false), longText);
}

TEST(Select, MakesADefaultValueOfTheTypeItIsSetTo) {
  FcSimpleValue value(FcLabel{longText});
  value.set(FcSimpleValue::Types::Label);
  EXPECT_EQ(value.Label().value(), "");
  value.set(FcSimpleValue::Types::Real);
  EXPECT_EQ(value.Real().value(), 0.0);
  value.set(FcSimpleValue::Types::NotSet);
  EXPECT_FALSE(value.isSet());
  EXPECT_EQ(FcActorSelect(FcActorSelect::Types::Person).Person(), nullptr);
}

TEST(Select, PicksAValueByItsTypeNameAndKind) {
  const LocalValue fitting[] = {
      typed("IfcAreaMeasure", real(3)),
      typed("IfcCountMeasure", integer(3)),
      typed("IfcComplexNumber", list({real(1), real(-1)})),
      typed("IfcCompoundPlaneAngleMeasure", list({integer(52), integer(30)})),
      typed("IfcLabel", text("x")),
      typed("IfcLogical", LocalValue(LogicalValue::Unknown)),
      typed("IfcBinary", LocalValue(std::vector<std::uint8_t>{7})),
  };
  for (const LocalValue& local : fitting) {
    FcValue value;
    EXPECT_TRUE(value.setLocalValue(local)) << *local.typeName;
    EXPECT_EQ(value.getLocalValue(), local);
  }
  const LocalValue unfit[] = {real(3),
                              empty(),
                              LocalValue(),
                              entity(make("IfcPerson")),
                              typed("If", real(3)),
                              typed("", real(3)),
                              typed("IfcMeasureValue", real(3)),
                              typed("IfcAreaMeasure", text("3")),
                              typed("IfcAreaMeasure", integer(3)),
                              typed("IfcCountMeasure", real(3)),
                              typed("IfcComplexNumber", list({real(1), text("i")})),
                              typed("IfcLabel", real(3))};
  for (const LocalValue& local : unfit) {
    FcValue value(FcLabel("before"));
    EXPECT_FALSE(value.setLocalValue(local)) << testing::PrintToString(local);
    EXPECT_EQ(value.getAsString(true), "Label(before)");
  }
}

TEST(Select, PicksAnEntityByItsClass) {
  FcActorSelect actor;
  EXPECT_TRUE(actor.setLocalValue(entity(make("IfcOrganization"))));
  EXPECT_EQ(actor.type(), FcActorSelect::Types::Organization);
  EXPECT_FALSE(actor.setLocalValue(entity(make("IfcWall"))));
  EXPECT_FALSE(actor.setLocalValue(text("x")));
  EXPECT_EQ(actor.type(), FcActorSelect::Types::Organization);

  FcUnit unit;
  EXPECT_TRUE(unit.setLocalValue(entity(make("IfcSIUnit"))));
  EXPECT_EQ(unit.type(), FcUnit::Types::NamedUnit) << "a subclass of the alternative";

  FcTrimmingSelect trim;
  EXPECT_TRUE(trim.setLocalValue(real(0.5))) << "the only value alternative needs no type name";
  EXPECT_EQ(trim.getLocalValue(), typed("IfcParameterValue", real(0.5)));
  EXPECT_FALSE(trim.setLocalValue(typed("IfcLengthMeasure", real(0.5))));
  EXPECT_TRUE(trim.setLocalValue(entity(make("IfcCartesianPoint"))));
  EXPECT_EQ(trim.type(), FcTrimmingSelect::Types::CartesianPoint);
}

TEST(Select, NamesItsAlternatives) {
  using Types = FcActorSelect::Types;
  EXPECT_STREQ(FcActorSelect::nameFromEnum(Types::PersonAndOrganization), "PersonAndOrganization");
  EXPECT_THAT(FcActorSelect::enumFromName("Person"), Optional(Types::Person));
  for (const char* unknown : {static_cast<const char*>(nullptr), "", "IfcPerson", "NotSet"})
    EXPECT_EQ(FcActorSelect::enumFromName(unknown), std::nullopt);
  EXPECT_THAT(FcActorSelect::enumNames(),
              ElementsAre("Organization", "Person", "PersonAndOrganization"));
  EXPECT_EQ(FcMeasureValue::enumNames().size(), 23U);
  EXPECT_EQ(FcDerivedMeasureValue::enumNames().size(), 71U);
  EXPECT_EQ(FcSimpleValue::enumNames().size(), 15U);
}

}  // namespace
}  // namespace qor::fc
