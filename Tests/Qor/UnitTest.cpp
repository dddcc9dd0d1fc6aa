#include <gtest/gtest.h>

#include <limits>
#include <set>

#include "Qor/Assert/Exception.h"
#include "Qor/Unit/Quantities.h"
#include "Qor/Unit/QuantityPresentationFactory.h"

namespace qor::unit {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

const DisplayUnit metre{"m"};
const DisplayUnit millimetre{"mm", 1e-3};

template <class Q>
QuantityBase& quantity() {
  return QuantityBase::registered<Q>();
}

/// Gives a quantity back the settings that it had.
class RestoreSettings {
 public:
  explicit RestoreSettings(QuantityBase& quantity) : m_quantity(quantity) {}
  ~RestoreSettings() { m_quantity.resetQppDefault(); }

 private:
  QuantityBase& m_quantity;
};

TEST(QppSettings, WriteWhatAPersonReads) {
  struct Case {
    double number;
    QppSettings settings;
    const char* text;
  };
  const QppSettings fixed{metre, 3};
  const QppSettings whole{metre, 0};
  const QppSettings cut{metre, 3, false};
  for (const Case& expected : {
           Case{2.5, fixed, "2.500 m"},
           Case{-2.5, fixed, "-2.500 m"},
           Case{1234567.8916, fixed, "1234567.892 m"},
           Case{0.9996, fixed, "1.000 m"},
           Case{2.5, {millimetre, 1}, "2500.0 mm"},
           Case{2.5, {{"°"}, 2}, "2.50°"},
           Case{293.15, {{"°C", 1, 273.15}, 1}, "20.0 °C"},
           Case{2.5, {{""}, 2}, "2.50"},
           Case{2.6, whole, "3 m"},
           Case{2.5, cut, "2.5 m"},
           Case{2, cut, "2 m"},
           Case{100, cut, "100 m"},
           Case{100, {metre, 0, false}, "100 m"},
           // Zero has no sign, and nothing else reads as zero.
           Case{0, fixed, "0.000 m"},
           Case{-0.0, fixed, "0.000 m"},
           Case{-1e-17, fixed, "0.000 m"},
           Case{0, cut, "0 m"},
           Case{0.0004, fixed, "0.0004 m"},
           Case{-0.0004, fixed, "-0.0004 m"},
           Case{0.3, whole, "0.3 m"},
           Case{2.346e-7, fixed, "2.35e-07 m"},
           // What a double doesn't hold exactly isn't pretended.
           Case{123456789012345, whole, "123456789012345 m"},
           Case{1e15, fixed, "1e+15 m"},
           Case{-1.5e300, fixed, "-1.5e+300 m"},
           Case{std::numeric_limits<double>::max(), {millimetre, 3}, "∞ mm"},
           Case{kInfinity, fixed, "∞ m"},
           Case{-kInfinity, fixed, "-∞ m"},
           Case{kNaN, fixed, "NaN m"},
           // Decimals that make no sense.
           Case{2.5, {metre, -1}, "2 m"},
           Case{2.5, {metre, 99, false}, "2.5 m"},
           Case{0.1, {metre, 99}, "0.100000000000000 m"},
           Case{999999999999999.0, {metre, 99}, "999999999999999.000000000000000 m"},
       })
    EXPECT_EQ(expected.settings.writeToString(expected.number), expected.text)
        << expected.number << " with " << expected.settings.decimals << " decimals";
  EXPECT_EQ(fixed.writeToString(2.5, false), "2.500");
  EXPECT_EQ((QppSettings{{"°"}, 2}.writeToString(2.5, false)), "2.50");
}

TEST(Quantity, IsOneObjectForEachId) {
  std::set<QuantityId> ids;
  for (QuantityBase* quantity : Registration::all()) {
    EXPECT_TRUE(ids.insert(quantity->id()).second);
    EXPECT_EQ(Registration::find(quantity->id()), quantity);
  }
  EXPECT_EQ(ids.size(), 33u);
  EXPECT_EQ(&quantity<Area>(), Registration::find(QuantityId::Area));
  EXPECT_EQ(quantity<Area>().dimensions(), (Dimensions{.length = 2}));
  EXPECT_EQ(Registration::find(QuantityId(7)), nullptr);
}

TEST(Quantity, BeginsWithSoundUnits) {
  for (const QuantityBase* quantity : Registration::all()) {
    SCOPED_TRACE(static_cast<int>(quantity->id()));
    ASSERT_FALSE(quantity->units().empty());
    EXPECT_EQ(quantity->units().front(), DisplayUnit{quantity->units().front().symbol})
        << "the first is the SI's own";
    std::set<std::string> symbols;
    for (const DisplayUnit& unit : quantity->units()) {
      EXPECT_TRUE(unit.isValid());
      EXPECT_TRUE(symbols.insert(unit.symbol).second) << unit.symbol;
      EXPECT_EQ(quantity->findUnit(unit.symbol), &unit);
      EXPECT_NEAR(unit.toSi(unit.fromSi(12.5)), 12.5, 1e-9) << unit.symbol;
    }
    EXPECT_NE(quantity->findUnit(quantity->qppDefault().unit.symbol), nullptr);
  }
}

TEST(Quantity, ConvertsToItsUnits) {
  struct Case {
    QuantityBase& quantity;
    const char* unit;
    double number;
    double shown;
  };
  for (const Case& expected :
       {Case{quantity<Length>(), "in", 0.0254, 1}, Case{quantity<Area>(), "ft²", 0.09290304, 1},
        Case{quantity<Volume>(), "l", 0.001, 1}, Case{quantity<Volume>(), "ft³", 0.028316846592, 1},
        Case{quantity<LinearVelocity>(), "km/h", 10, 36},
        Case{quantity<PlaneAngle>(), "gon", 3.14159265358979323846, 200},
        Case{quantity<Temperature>(), "°F", 373.15, 212},
        Case{quantity<Temperature>(), "°C", 0, -273.15}, Case{quantity<Pressure>(), "bar", 2e5, 2},
        Case{quantity<RotationalFrequency>(), "1/min", 50, 3000},
        Case{quantity<Ratio>(), "%", 0.25, 25}}) {
    const DisplayUnit* unit = expected.quantity.findUnit(expected.unit);
    ASSERT_NE(unit, nullptr) << expected.unit;
    EXPECT_NEAR(unit->fromSi(expected.number), expected.shown, 1e-12 * 3000) << expected.unit;
  }
}

TEST(Quantity, TakesSettingsOfAHost) {
  QuantityBase& length = quantity<Length>();
  const RestoreSettings restore(length);
  const auto before = length.createPresentation(2.5);
  EXPECT_TRUE(length.setQppDefault({*length.findUnit("mm"), 0}));
  EXPECT_EQ(length.createPresentation(2.5)->toString(), "2500 mm");
  EXPECT_EQ(before->toString(), "2.500 m") << "what is shown already stays";
  EXPECT_TRUE(length.setQppDefault({{"fathom", 1.8288}, 2}));
  EXPECT_EQ(length.createPresentation(1.8288)->toString(), "1.00 fathom");
  for (const double factor : {0.0, kNaN, kInfinity})
    EXPECT_FALSE(length.setQppDefault({{"m", factor}, 3})) << factor;
  EXPECT_FALSE(length.setQppDefault({{"m", 1, kNaN}, 3}));
  EXPECT_EQ(length.qppDefault().unit.symbol, "fathom") << "nothing changed";
  length.resetQppDefault();
  EXPECT_EQ(length.createPresentation(2.5)->toString(), "2.500 m");
}

TEST(Quantity, MayBeTheHostsOwn) {
  using Jerk = Quantity<QuantityId(1001), 1, 0, -3, 0, 0, 0, 0>;
  using Impostor = Quantity<QuantityId(1001), 1, 0, -2, 0, 0, 0, 0>;
  QuantityBase& jerk = quantity<Jerk>();
  EXPECT_EQ(Registration::find(QuantityId(1001)), &jerk);
  EXPECT_EQ(jerk.createPresentation(1.5)->toString(), "1.500");
  EXPECT_TRUE(jerk.setQppDefault({{"m/s³"}, 1}));
  EXPECT_EQ(jerk.createPresentation(1.5)->toString(), "1.5 m/s³");
  EXPECT_THROW(Registration::registerQuantity(std::make_unique<Impostor>()), qor::exception);
}

TEST(Presentation, KeepsNumberUnitAndSettings) {
  const auto presentation = quantity<Area>().createPresentation(2.5);
  EXPECT_EQ(&presentation->quantity(), &quantity<Area>());
  EXPECT_TRUE((dynamic_cast<QuantityPresentation<SiUnit<0, Area>>*>(presentation.get())));
  EXPECT_EQ(presentation->toString(), "2.500 m²");
  EXPECT_EQ(presentation->text(), "");
  EXPECT_TRUE(presentation->showIn("cm²"));
  EXPECT_EQ(presentation->toString(), "25000.000 cm²");
  EXPECT_FALSE(presentation->showIn("m")) << "no unit of areas";
  EXPECT_EQ(presentation->toString(false), "25000.000");
  EXPECT_EQ(presentation->number(), 2.5) << "of the SI, whatever is shown";
  presentation->setText("varies");
  EXPECT_EQ(presentation->toString(), "varies");
  EXPECT_FALSE(presentation->setSettings({{"m²", 0}}));
}

TEST(PresentationFactory, PrefersThePropertysOwnSettingsForWhatItMeasures) {
  using Factory = QuantityPresentationFactory;
  const std::string id = "Pset_Pipe.OutsideDiameter";
  const auto create = [&](const QuantityBase& quantity) {
    return Factory::createNewBaseUniqueFromIfcPropertyIdWithSanityCheck(id, quantity, 0.05);
  };
  EXPECT_EQ(create(quantity<Length>()), nullptr);
  EXPECT_FALSE(Factory::setForIfcPropertyId(id, quantity<Length>(), {{"mm", 0}, 1}));
  ASSERT_TRUE(Factory::setForIfcPropertyId(id, quantity<Length>(), {millimetre, 1}));
  ASSERT_NE(create(quantity<Length>()), nullptr);
  EXPECT_EQ(create(quantity<Length>())->toString(), "50.0 mm");
  EXPECT_EQ(create(quantity<Area>()), nullptr) << "made for a length";
  Factory::eraseForIfcPropertyId(id);
  Factory::eraseForIfcPropertyId(id);
  EXPECT_EQ(create(quantity<Length>()), nullptr);
}

}  // namespace
}  // namespace qor::unit
