#include <gtest/gtest.h>

#include <limits>
#include <set>

#include "Fc/Core/Kernel/FcPropertySet.h"
#include "Fc/Core/ProductExtension/FcBuilding.h"
#include "Fc/Core/ProductExtension/FcElementQuantity.h"
#include "Fc/Reflection/SchemaTables.h"
#include "Fc/Resource/Measure/MeasureQuantities.h"
#include "Fc/Resource/Property/FcPropertyBoundedValue.h"
#include "Fc/Resource/Property/FcPropertySingleValue.h"
#include "Fc/Resource/Quantity/FcPhysicalComplexQuantity.h"
#include "Fc/Resource/Quantity/FcQuantityArea.h"
#include "Fc/Resource/Quantity/FcQuantityCount.h"
#include "Fc/Resource/Quantity/FcQuantityLength.h"
#include "Fc/Resource/Quantity/FcQuantityNumber.h"
#include "Fc/Resource/Quantity/FcQuantityTime.h"
#include "Fc/Resource/Quantity/FcQuantityVolume.h"
#include "Fc/Resource/Quantity/FcQuantityWeight.h"
#include "Qor/Unit/Quantities.h"
#include "Qor/Unit/QuantityPresentationFactory.h"
#include "Tests/Support/ExpectAsserts.h"
#include "Tests/Support/Make.h"

namespace qor::fc {
namespace {

using namespace resource::measure;
using namespace resource::property;
using namespace resource::quantity;
using namespace core::productextension;
using object::PropertyId;
using test::make;
using unit::QuantityPresentationFactory;

const std::string notImplemented =
    "qor::fc::helper::createQuantityPresentationFromValue: Not implemented unit for this";

TEST(MeasureAttribute, IsItsNumberWhateverTheUnits) {
  const auto data = std::make_shared<Data>();
  const auto building = data->create<FcBuilding>();
  const PropertyId id("ElevationOfRefHeight");
  EXPECT_EQ(building->getAttributeAsSiUnit(*data, "ElevationOfRefHeight"), std::nullopt);
  EXPECT_TRUE(building->hasQuantityPresentationLocal(id)) << "absent, but of a length's type";
  EXPECT_EQ(building->createQuantityPresentationLocal(id), nullptr);
  building->setElevationOfRefHeight(FcLengthMeasure(2.5));
  EXPECT_EQ(building->getAttributeAsSiUnit(*data, "ElevationOfRefHeight"), 2.5);
  EXPECT_EQ(building->createQuantityPresentationLocal(id)->toString(), "2.500 m");
  for (const char* other :
       {"Name", "CompositionType", "ObjectPlacement", "IsDefinedBy", "", "None"}) {
    EXPECT_EQ(building->getAttributeAsSiUnit(*data, other), std::nullopt) << other;
    EXPECT_FALSE(building->hasQuantityPresentationLocal(PropertyId(other))) << other;
    EXPECT_EQ(building->createQuantityPresentationLocal(PropertyId(other)), nullptr) << other;
  }
}

bool store(FcBase& entity, const AttributeInfo& attribute) {
  return entity.setLocalValue(LocalValue(2.5), attribute.id()) ||
         entity.setLocalValue(LocalValue(std::int64_t{2}), attribute.id());
}

// The three operations agree with each other and with the declared types, over the whole schema.
TEST(MeasureAttribute, IsTheSameToAllThatAsk) {
  const test::ExpectAsserts none;
  const auto data = std::make_shared<Data>();
  std::set<std::string_view> declaring;  // classes with a number that is a measure
  std::set<std::string_view> showing;
  for (const ClassInfo* info : SchemaTables::classes()) {
    for (const AttributeInfo& attribute : info->attributes) {
      if (!attribute.aggregates.empty() || !isMeasure(attribute.typeName)) continue;
      if (attribute.typeName == "IfcDescriptiveMeasure" ||
          attribute.typeName == "IfcCompoundPlaneAngleMeasure")
        continue;
      declaring.insert(info->name.view());
      if (quantityOfMeasure(attribute.typeName.substr(3))) showing.insert(info->name.view());
    }
    if (info->isAbstract()) continue;
    const std::shared_ptr<FcBase> entity = info->create();
    info->forEachAttribute([&](const AttributeInfo& attribute) {
      const bool single = attribute.aggregates.empty();
      const bool isNumber = store(*entity, attribute) && single && isMeasure(attribute.typeName);
      const bool isShown = isNumber && quantityOfMeasure(attribute.typeName.substr(3));
      const std::string name(attribute.name);
      const auto number = entity->getAttributeAsSiUnit(*data, name);
      const auto presentation = entity->createQuantityPresentationLocal(attribute.id());
      const bool agree = number.has_value() == isNumber &&
                         entity->hasQuantityPresentationLocal(attribute.id()) == isShown &&
                         (presentation != nullptr) == isShown &&
                         (!presentation || presentation->number() == number);
      EXPECT_TRUE(agree) << info->name.view() << "." << name;
    });
  }
  EXPECT_EQ(declaring.size(), 117u);
  EXPECT_EQ(showing.size(), 111u);
}

TEST(PhysicalQuantity, ShowsItsValue) {
  const test::ExpectAsserts none;
  const std::pair<std::shared_ptr<FcPhysicalQuantity>, const char*> cases[] = {
      {make<FcQuantityLength>({{"LengthValue", 2.5}}), "2.500 m"},
      {make<FcQuantityArea>({{"AreaValue", 2.5}}), "2.500 m²"},
      {make<FcQuantityVolume>({{"VolumeValue", 2.5}}), "2.500 m³"},
      {make<FcQuantityCount>({{"CountValue", 7}}), "7"},
      {make<FcQuantityWeight>({{"WeightValue", 2.5}}), "2.500 kg"},
      {make<FcQuantityTime>({{"TimeValue", 2.5}}), "2.5 s"},
      {make<FcQuantityNumber>({{"NumberValue", 2.5}}), "2.5"}};
  for (const auto& [quantity, text] : cases) {
    ASSERT_NE(quantity->createQuantityPresentation(), nullptr) << text;
    EXPECT_EQ(quantity->createQuantityPresentation()->toString(), text);
  }
  EXPECT_EQ(FcPhysicalComplexQuantity().createQuantityPresentation(), nullptr);
}

TEST(PhysicalQuantity, IsShownAsTheHostSaysForItsSet) {
  const auto area = make<FcQuantityArea>({{"Name", "NetArea"}, {"AreaValue", 2.5}});
  FcElementQuantity set;
  EXPECT_EQ(set.createQuantityPresentationFor(*area)->toString(), "2.500 m²") << "of no name";
  set.setName("Qto_SlabBaseQuantities");
  const std::string id = "Qto_SlabBaseQuantities.NetArea";
  const auto& areas = *quantityOfMeasure("AreaMeasure");
  ASSERT_TRUE(QuantityPresentationFactory::setForIfcPropertyId(id, areas, {{"cm²", 1e-4}, 0}));
  EXPECT_EQ(set.createQuantityPresentationFor(*area)->toString(), "25000 cm²");
  EXPECT_EQ(area->createQuantityPresentation()->toString(), "2.500 m²") << "outside its set";
  QuantityPresentationFactory::eraseForIfcPropertyId(id);
}

TEST(Property, IsShownInTheUnitThatIsAskedFor) {
  const test::ExpectAsserts expected({test::ExpectedAssert(notImplemented)});
  const auto data = std::make_shared<Data>();
  const auto diameter = make<FcPropertySingleValue>(*data, {{"Name", "Diameter"}});
  const auto set = make<core::kernel::FcPropertySet>(
      *data, {{"Name", "Pset_Pipe"}, {"HasProperties", std::vector{diameter}}});
  const auto shown = [&](const FcValue& value, std::optional<std::string> unit = {}) {
    const auto presentation = diameter->createQuantityPresentationFor("NominalValue", value, unit);
    return presentation ? presentation->toString() : "nothing";
  };
  const FcValue length = FcPositiveLengthMeasure(0.05);
  EXPECT_EQ(shown(length), "0.050 m");
  EXPECT_EQ(shown(length, "mm"), "50.000 mm");
  EXPECT_EQ(shown(length, "kg"), "0.050 m") << "no unit of lengths";
  EXPECT_EQ(shown(FcValue(FcReal(0.05)), "mm"), "0.05");
  EXPECT_EQ(shown(FcValue(FcLabel("DN50"))), "nothing");
  EXPECT_EQ(shown(FcValue()), "nothing");
  EXPECT_EQ(shown(FcValue(FcAccelerationMeasure(9.81))), "nothing");

  const auto& lengths = *quantityOfMeasure("LengthMeasure");
  using Factory = QuantityPresentationFactory;
  ASSERT_TRUE(Factory::setForIfcPropertyId("Pset_Pipe.Diameter", lengths, {{"mm", 1e-3}, 1}));
  EXPECT_EQ(shown(length), "50.0 mm");
  EXPECT_EQ(shown(length, "cm"), "5.0 cm");
  ASSERT_TRUE(Factory::setForIfcPropertyId("Pset_Pipe.Diameter.NominalValue", lengths,
                                           {{"in", 0.0254}, 2}));
  EXPECT_EQ(shown(length), "1.97 in") << "set for this attribute alone";
  Factory::eraseForIfcPropertyId("Pset_Pipe.Diameter.NominalValue");
  Factory::eraseForIfcPropertyId("Pset_Pipe.Diameter");
}

TEST(BoundedValue, IsOneLine) {
  const auto m = [](double number) { return FcValue(FcLengthMeasure(number)); };
  const FcValue none;
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const test::ExpectAsserts asserts(std::vector<test::ExpectedAssert>(2, notImplemented));
  const auto g = [](double number) { return FcValue(FcAccelerationMeasure(number)); };
  const struct {
    FcValue lower, upper, setPoint;
    const char* text;
  } cases[] = {
      {m(0), m(10), none, "0.000 – 10.000 m"},
      {m(2), m(10), none, "2.000 – 10.000 m"},
      {m(-1e-9), m(10), none, "-1e-09 – 10.000 m"},
      {m(-5), m(5), none, "-5.000 m – 5.000 m"},
      {m(nan), m(5), none, "NaN m – 5.000 m"},
      {m(0), m(10), m(5), "0.000 – 10.000 m (5.000 m)"},
      {none, none, m(5), "5.000 m"},
      {m(0), none, m(5), "5.000 m"},
      {none, m(10), m(5), "5.000 m"},
      {m(2), none, none, "BoundedValue_Min 2.000 m"},
      {none, m(10), none, "BoundedValue_Max 10.000 m"},
      {none, none, none, ""},
      {FcValue(FcInteger(1)), FcValue(FcInteger(9)), none, "1 – 9"},
      {FcValue(FcLabel("A")), FcValue(FcLabel("C")), FcValue(FcLabel("")), "A – C ()"},
      {g(1), g(9.5), none, "1 – 9.5"},
  };
  for (const auto& expected : cases) {
    FcPropertyBoundedValue property;
    property.setName("Range");
    property.setLowerBoundValue(expected.lower);
    property.setUpperBoundValue(expected.upper);
    property.setSetPointValue(expected.setPoint);
    EXPECT_EQ(property.getAsOneLineString({}), expected.text);
  }
  FcPropertyBoundedValue property;
  property.setLowerBoundValue(m(0.5));
  property.setUpperBoundValue(m(1.5));
  EXPECT_EQ(property.getAsOneLineString("mm"), "500.000 – 1500.000 mm");
  EXPECT_EQ(property.getAsOneLineString("kg"), "0.500 – 1.500 m");
}

}  // namespace
}  // namespace qor::fc
