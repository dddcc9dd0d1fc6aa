#include "Fc/Resource/Measure/MeasureQuantities.h"

#include <gtest/gtest.h>

#include "Fc/Resource/Measure/FcValue.h"
#include "Fc/Utilities/UnitHelper.h"
#include "Qor/Unit/Quantities.h"
#include "Tests/Support/ExpectAsserts.h"

namespace qor::fc::resource::measure {
namespace {

using unit::QuantityPresentation;

struct Row {
  const char* measure;
  int id;
  unit::Dimensions dimensions;
  const char* shown;  // 2.5
};

// One of each form: of the SI and not, by its exponents and by a unit of its own, whole and not.
const Row rows[] = {
    {"AreaMeasure", 2, {2, 0, 0, 0, 0, 0, 0}, "2.500 m²"},
    {"CountMeasure", 6, {0, 0, 0, 0, 0, 0, 0}, "2.5"},
    {"PositiveLengthMeasure", 1, {1, 0, 0, 0, 0, 0, 0}, "2.500 m"},
    {"NormalisedRatioMeasure", 8, {0, 0, 0, 0, 0, 0, 0}, "2.5"},
    {"PlaneAngleMeasure", 5, {0, 0, 0, 0, 0, 0, 0}, "143.24°"},
    {"ThermodynamicTemperatureMeasure", 9, {0, 0, 0, 0, 1, 0, 0}, "2.50 K"},
    {"TimeMeasure", 0, {0, 0, 1, 0, 0, 0, 0}, "2.5 s"},
    {"ElectricResistanceMeasure", 45, {2, 1, -3, -2, 0, 0, 0}, "2.5 Ω"},
    {"LinearMomentMeasure", 36, {1, 1, -2, 0, 0, 0, 0}, "2.5 N·m/m"},
    {"LuminousFluxMeasure", 41, {0, 0, 0, 0, 0, 0, 1}, "2.5 lm"},
    {"MolecularWeightMeasure", 40, {0, 1, 0, 0, 0, -1, 0}, "2.5 kg/mol"},
    {"SpecificHeatCapacityMeasure", 23, {2, 0, -2, 0, -1, 0, 0}, "2.5 J/(kg·K)"},
    {"ThermalTransmittanceMeasure", 12, {0, 1, -3, 0, -1, 0, 0}, "2.500 W/(m²·K)"},
    {"TorqueMeasure", 37, {2, 1, -2, 0, 0, 0, 0}, "2.5 N·m"},
    {"WarpingMomentMeasure", 38, {3, 1, -3, 0, 0, 0, 0}, "2.5 N·m²"},
};

const test::ExpectedAssert notImplemented{
    "qor::fc::helper::createQuantityPresentationFromValue: Not implemented unit for this",
    "qor::fc::helper::createQuantityPresentationFromValue", "Utilities/UnitHelper"};

FcValue valueOf(const std::string& type, const std::string& number = "2.5") {
  FcValue value;
  EXPECT_TRUE(value.setFromString(type + "(" + number + ")")) << type;
  return value;
}

TEST(MeasureQuantities, AreThoseOfTheTable) {
  const test::ExpectAsserts none;
  for (const Row& row : rows) {
    SCOPED_TRACE(row.measure);
    const unit::QuantityBase* quantity = quantityOfMeasure(row.measure);
    ASSERT_NE(quantity, nullptr);
    EXPECT_EQ(static_cast<int>(quantity->id()), row.id);
    EXPECT_EQ(quantity->dimensions(), row.dimensions);
    EXPECT_EQ(helper::appendUnit(2.5, row.measure), row.shown);

    const auto presentation = valueOf(row.measure).createQuantityPresentation();
    ASSERT_NE(presentation, nullptr);
    EXPECT_EQ(&presentation->quantity(), quantity);
    const bool counts = row.id == 6;  // an integer: nothing behind the point is stored
    EXPECT_EQ(presentation->number(), counts ? 2 : 2.5);
    EXPECT_EQ(presentation->toString(), counts ? "2" : row.shown);
  }
}

TEST(MeasureQuantities, AreAskedByTypeToo) {
  const test::ExpectAsserts none;
  using Measure = FcMeasureValue::Types;
  using Derived = FcDerivedMeasureValue::Types;
  EXPECT_EQ(helper::createQuantityPresentationFromValue(3, Measure::VolumeMeasure)->toString(),
            "3.000 m³");
  EXPECT_EQ(helper::createQuantityPresentationFromValue(3, Derived::PowerMeasure)->toString(),
            "3 W");
  EXPECT_EQ(FcAreaMeasure(4).createQuantityPresentation()->toString(), "4.000 m²");
  EXPECT_EQ(FcCountMeasure(4).createQuantityPresentation()->toString(), "4");
}

// What a user interface can tell from the class of a presentation.
template <class Unit>
bool hasUnit(const char* measure) {
  const auto presentation = valueOf(measure).createQuantityPresentation();
  return dynamic_cast<QuantityPresentation<Unit>*>(presentation.get()) != nullptr;
}

TEST(MeasureQuantities, HaveUnitsOfTheirOwnWhereTheExponentsDontNameThem) {
  using namespace unit;
  EXPECT_TRUE((hasUnit<SiUnit<0, Force>>("ForceMeasure")));
  EXPECT_TRUE((hasUnit<Unit<0, WarpingMoment>>("WarpingMomentMeasure")));
  EXPECT_TRUE((hasUnit<Unit<0, MolecularWeight>>("MolecularWeightMeasure")));
  EXPECT_TRUE((hasUnit<Unit<0, ElectricVoltage>>("ElectricVoltageMeasure")));
  EXPECT_TRUE((hasUnit<Unit<0, ElectricResistance>>("ElectricResistanceMeasure")));
  EXPECT_TRUE((hasUnit<Unit<0, Frequency>>("FrequencyMeasure")));
}

// Each measure of the schema is shown or tells, for each way to ask, that it isn't.
TEST(MeasureQuantities, AreOfMeasuresOfTheSchemaAndNoneForTheOthers) {
  std::vector<std::string> names = FcMeasureValue::enumNames();
  for (const std::string& name : FcDerivedMeasureValue::enumNames()) names.push_back(name);
  std::size_t shown = 0;
  for (const std::string& name : names) {
    SCOPED_TRACE(name);
    EXPECT_TRUE(isMeasure("Ifc" + name));
    const bool isShown = quantityOfMeasure(name) != nullptr;
    shown += isShown;
    using Asserts = std::vector<test::ExpectedAssert>;
    const test::ExpectAsserts expected(isShown ? Asserts{} : Asserts(2, notImplemented));
    FcValue value;
    ASSERT_TRUE(value.setTypeFromString(name));
    EXPECT_TRUE(value.hasQuantityPresentation());
    EXPECT_EQ(value.createQuantityPresentation() != nullptr, isShown);
    EXPECT_EQ(helper::appendUnit(2.5, name).has_value(), isShown);
  }
  EXPECT_EQ(shown, 38u);
  EXPECT_EQ(names.size(), 94u);
  const test::ExpectAsserts expected({notImplemented, notImplemented});
  EXPECT_EQ(FcMeasureValue().createQuantityPresentation(), nullptr);
  EXPECT_EQ(FcDerivedMeasureValue().createQuantityPresentation(), nullptr);
}

TEST(ShownValue, OfASimpleTypeIsShownOnlyWhenItIsAReal) {
  const test::ExpectAsserts none;
  for (const std::string& name : FcSimpleValue::enumNames()) {
    SCOPED_TRACE(name);
    FcValue value;
    ASSERT_TRUE(value.setTypeFromString(name));
    EXPECT_EQ(value.hasQuantityPresentation(), name == "Real");
    EXPECT_EQ(value.createQuantityPresentation() != nullptr, name == "Real");
    EXPECT_EQ(helper::appendUnit(2.5, name), std::nullopt);
  }
  EXPECT_EQ(valueOf("Real", "0.125").createQuantityPresentation()->toString(), "0.125");
  EXPECT_FALSE(FcValue().hasQuantityPresentation());
  EXPECT_EQ(FcValue().createQuantityPresentation(), nullptr);
  for (const char* noType : {"", "MeasureValue", "IfcLengthMeasure", "lengthmeasure"})
    EXPECT_EQ(helper::appendUnit(2.5, noType), std::nullopt) << noType;
}

TEST(ShownValue, IsShownAsTheHostsSettingsSay) {
  unit::QuantityBase& length = unit::QuantityBase::registered<unit::Length>();
  ASSERT_TRUE(length.setQppDefault({{"ft", 0.3048}, 1}));
  EXPECT_EQ(helper::appendUnit(3.048, "LengthMeasure"), "10.0 ft");
  EXPECT_EQ(helper::appendUnit(3.048, "PositiveLengthMeasure"), "10.0 ft");
  EXPECT_EQ(helper::appendUnit(3.048, "AreaMeasure"), "3.048 m²");
  length.resetQppDefault();
  EXPECT_EQ(helper::appendUnit(3.048, "LengthMeasure"), "3.048 m");
}

}  // namespace
}  // namespace qor::fc::resource::measure
