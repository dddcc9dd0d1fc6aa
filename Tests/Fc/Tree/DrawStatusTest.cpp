#include "Fc/Tree/DrawStatus.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "Fc/Core/Kernel/FcProject.h"
#include "Fc/Core/ProductExtension/FcOpeningElement.h"
#include "Fc/Factory.h"
#include "Fc/Resource/Representation/FcGeometricRepresentationSubContext.h"
#include "Fc/Resource/Representation/FcShapeRepresentation.h"
#include "Fc/Shared/BuildingElements/FcWall.h"
#include "Fc/Shared/BuildingElements/FcWallType.h"
#include "Tests/Support/ExpectAsserts.h"
#include "Tests/Support/Make.h"

namespace qor::fc {
namespace {

using core::kernel::FcRoot;
using namespace resource::representation;
using namespace shared::buildingelements;
using test::ExpectAsserts;
using testing::ElementsAre;
using testing::HasSubstr;
using Key = DrawStatus::StateKey;
using Keys = DrawStatus::StateSet;
using Operation = DrawStatus::ObserverOperation;
using State = DrawStatus::ObjectRepresentationState;

Key keyOf(const std::shared_ptr<FcWall>& wall) { return static_cast<const FcRoot*>(wall.get()); }
Key keyOf(const std::shared_ptr<FcGeometricRepresentationSubContext>& context) {
  return static_cast<const FcGeometricRepresentationContext*>(context.get());
}
template <class T>
Key keyOfClass() {
  return std::type_index(typeid(T));
}

class DrawStatusOfAModel : public testing::Test {
 protected:
  std::shared_ptr<FcGeometricRepresentationSubContext> context(
      std::optional<std::string> identifier) {
    auto context =
        test::make<FcGeometricRepresentationSubContext>(*data, {{"ContextType", "Model"}});
    context->setContextIdentifier(std::move(identifier));
    return context;
  }
  std::shared_ptr<FcWall> wall() {
    auto wall = makeEntity<FcWall>();
    wall->setGlobalId(Guid::generate());
    data->entityAdd(wall, false);
    return wall;
  }
  /// The type of the wall.
  std::shared_ptr<FcWallType> typeOf(FcWall& wall) {
    auto type = data->create<FcWallType>();
    type->setGlobalId(Guid::generate());
    type->IsTypedByConnect(*data, wall);
    return type;
  }
  std::string xmlOf(const DrawStatus& status) {
    std::ostringstream out;
    status.serialize(out);
    return out.str();
  }
  std::optional<DrawStatus> statusOf(const std::string& xml) {
    std::istringstream in(xml);
    return DrawStatus::deserialize(*data, in, "status.xml");
  }

  const std::shared_ptr<Data> data = std::make_shared<Data>();
};

TEST_F(DrawStatusOfAModel, HidesSixClassesAtFirst) {
  const Keys disabled = DrawStatus::createDefaultForProject(*data).getDisabledStates();
  std::set<std::string> names;
  for (const Key& key : disabled)
    names.emplace(Factory::getFcClasses().at(std::get<std::type_index>(key)).view());
  EXPECT_THAT(names,
              ElementsAre("IfcOpeningElement", "IfcRelSpaceBoundary", "IfcRelSpaceBoundary1stLevel",
                          "IfcRelSpaceBoundary2ndLevel", "IfcSpatialZone", "IfcVoidingFeature"));
}

TEST_F(DrawStatusOfAModel, HidesTheContextsThatRepeatTheBody) {
  const char* invalid = "Invalid IfcGeometricRepresentationSubContext ContextIdentifier";
  const struct {
    std::vector<std::optional<std::string>> contexts;
    std::set<std::string> hidden;
    std::vector<test::ExpectedAssert> asserts;
  } cases[]{
      {{"Body", "Axis"}, {"Axis"}, {}},
      {{"Body", "Body - Detail", "Axis"}, {"Axis", "Body"}, {}},
      {{"body - detail", "Box"}, {"Box"}, {}},
      {{"FootPrint", "Axis"}, {}, {}},
      {{"bODY", "axis", "FOOTPRINT", "Annotation"}, {"axis"}, {}},
      {{"Rendering", "Lighting"}, {"Lighting"}, {invalid}},
      {{"Rendering", "Body - Detail"}, {"Rendering"}, {invalid}},
      {{"Body", std::nullopt, "Body-FallBack"}, {"Body-FallBack"}, {}},
  };
  for (const auto& expected : cases) {
    data->clear();
    for (const auto& identifier : expected.contexts) context(identifier);
    const ExpectAsserts asserts(expected.asserts);
    DrawStatus status;
    status.addProject(*data);
    std::set<std::string> hidden;
    for (const Key& key : status.getDisabledStates())
      hidden.insert(*std::get<const FcGeometricRepresentationContext*>(key)->ContextIdentifier());
    EXPECT_EQ(hidden, expected.hidden);
  }
}

TEST_F(DrawStatusOfAModel, DrawsWhatNeitherClassNorObjectNorTypeForbids) {
  const auto first = wall(), second = wall();
  const auto type = typeOf(*second);
  const std::vector<std::pair<Key, std::pair<bool, bool>>> cases{
      {keyOf(first), {false, true}},
      {static_cast<const FcRoot*>(type.get()), {true, false}},
      {keyOfClass<FcWall>(), {false, false}},
      {keyOfClass<core::productextension::FcOpeningElement>(), {true, true}},
  };
  for (const auto& [key, drawn] : cases) {
    DrawStatus status;
    status.setEnabled(key, false);
    EXPECT_EQ(status.shouldDraw(*first), drawn.first);
    EXPECT_EQ(status.shouldDraw(*second), drawn.second);
  }
}

TEST_F(DrawStatusOfAModel, DrawsARepresentationByItsContext) {
  const auto body = context("Body");
  const auto shape = test::make<FcShapeRepresentation>({{"ContextOfItems", body}});
  DrawStatus status;
  EXPECT_TRUE(status.shouldDraw(*shape));
  status.setEnabled(keyOf(body), false);
  EXPECT_FALSE(status.shouldDraw(*shape));
  EXPECT_TRUE(status.shouldDraw(FcShapeRepresentation()));
}

TEST_F(DrawStatusOfAModel, PrefersTheStateOfAClassThenOfTheObjectThenOfItsType) {
  const auto wall = this->wall();
  const auto type = typeOf(*wall);
  DrawStatus status;
  EXPECT_EQ(status.getRepresentationState(*wall), std::nullopt);
  status.setRepresentationState(static_cast<const FcRoot*>(type.get()), State::Wireframe);
  EXPECT_EQ(status.getRepresentationState(*wall), State::Wireframe);
  status.setRepresentationState(keyOf(wall), State::Transparent);
  EXPECT_EQ(status.getRepresentationState(*wall), State::Transparent);
  status.setRepresentationState(keyOfClass<FcWall>(), State::Wireframe);
  EXPECT_EQ(status.getRepresentationState(*wall), State::Wireframe);
  status.setRepresentationState(Keys{keyOfClass<FcWall>(), keyOf(wall)}, std::nullopt);
  EXPECT_EQ(status.getRepresentationState(keyOf(wall)), std::nullopt);
}

TEST_F(DrawStatusOfAModel, TellsItsHandlersInTheirOrder) {
  const auto wall = this->wall();
  DrawStatus status, other;
  std::vector<std::string> told;
  const auto note = [&](const char* name) {
    return [&told, name](const Keys& keys, Operation operation) {
      told.push_back(name + std::to_string(keys.size()) +
                     (operation == Operation::Enabled ? "+" : "-"));
    };
  };
  status.disabledStatesEvent().add(note("a"));
  const auto second = status.disabledStatesEvent().add(note("b"));
  status.setEnabled(keyOf(wall), true);
  EXPECT_THAT(told, ElementsAre("a1+", "b1+")) << "also when nothing changed";
  told.clear();
  status.disabledStatesEvent().remove(second);
  {
    const ExpectAsserts asserts({"Event handler doesn't exist"});
    status.disabledStatesEvent().remove(second);
  }
  status.setDisabledStates({keyOf(wall)});
  other.setEnabled(Keys{keyOfClass<FcWall>(), keyOfClass<FcWallType>()}, false);
  status.assignAndNotify(other);
  EXPECT_THAT(told, ElementsAre("a2-", "a1+"));
  EXPECT_EQ(status.getDisabledStates(), other.getDisabledStates());
}

TEST_F(DrawStatusOfAModel, AllowsHandlersThatChangeTheList) {
  DrawStatus status;
  int calls = 0;
  DrawStatus::DisabledStatesEvent::HandlerId last = 0;
  status.disabledStatesEvent().add([&](const Keys&, Operation) {
    status.disabledStatesEvent().remove(last);
    status.disabledStatesEvent().add([&](const Keys&, Operation) { ++calls; });
  });
  last = status.disabledStatesEvent().add([&](const Keys&, Operation) { calls += 100; });
  status.setEnabled(keyOfClass<FcWall>(), false);
  EXPECT_EQ(calls, 0);
}

TEST_F(DrawStatusOfAModel, ForgetsAModelWithOneEventOfEitherKind) {
  const auto wall = this->wall();
  const auto body = context("Body");
  DrawStatus status;
  status.setDisabledStates({keyOf(wall), keyOf(body), keyOfClass<FcWall>()});
  status.setRepresentationState(keyOf(wall), State::Wireframe);
  int events = 0;
  status.disabledStatesEvent().add([&](const Keys& keys, Operation operation) {
    events += keys.size() == 2 && operation == Operation::Enabled;
  });
  status.representationStatesEvent().add(
      [&](const Keys& keys, std::optional<State> state) { events += keys.size() == 2 && !state; });
  status.removeProject(*data);
  EXPECT_EQ(events, 2);
  EXPECT_EQ(status.getDisabledStates(), Keys{keyOfClass<FcWall>()});
  EXPECT_EQ(status.getRepresentationState(keyOf(wall)), std::nullopt);
}

TEST_F(DrawStatusOfAModel, ComesBackFromXml) {
  const auto hidden = wall(), glassy = wall();
  const auto body = context("Body"), odd = context("a<b> & \"c\"\n\xc3\xa4"), bare = context({});
  DrawStatus status;
  status.setEnabled(
      Keys{keyOf(hidden), keyOf(body), keyOf(odd), keyOf(bare), keyOfClass<FcWallType>()}, false);
  status.setRepresentationState(Keys{keyOf(glassy), keyOfClass<FcWall>()}, State::Transparent);
  status.setRepresentationState(keyOf(body), State::Wireframe);
  const std::string xml = xmlOf(status);
  const auto read = statusOf(xml);
  ASSERT_TRUE(read);
  EXPECT_EQ(read->getDisabledStates(), status.getDisabledStates());
  EXPECT_EQ(xmlOf(*read), xml) << "equal statuses give equal bytes";
  EXPECT_EQ(read->getRepresentationState(keyOf(body)), State::Wireframe);
  EXPECT_EQ(read->getRepresentationState(keyOf(glassy)), State::Transparent);
  EXPECT_THAT(xml, HasSubstr("<DisabledIfcRoot guid=\"" + hidden->GlobalId().toString(false)));
  EXPECT_THAT(xml, HasSubstr("<DisabledContext identifier=\"Body\" type=\"Model\""));
  EXPECT_THAT(xml, HasSubstr("<DisabledClass name=\"IfcWallType\""));
  EXPECT_THAT(xml, HasSubstr("<WireframeIfcContext identifier=\"Body\" type=\"Model\""));
  EXPECT_THAT(xml, HasSubstr("<TransparentIfcClass name=\"IfcWall\""));
  data->clear();
  EXPECT_EQ(statusOf(xml)->getDisabledStates(), Keys{keyOfClass<FcWallType>()})
      << "what isn't in the model any more is lost";
}

TEST_F(DrawStatusOfAModel, TellsBrokenEntriesAndReadsTheRest) {
  const std::string missing = "Missing attribute ", unknown = "Unknown element ",
                    unparsed = "Could not parse XML file status.xml";
  const ExpectAsserts asserts(
      {missing + "guid on DisabledIfcRoot", "Invalid guid nonsense",
       missing + "name on DisabledClass", unknown + "IfcRoot", unknown + "DisabledIfcContext",
       unknown + "Glassy", missing + "guid on DisabledIfcRoot", missing + "name on DisabledClass",
       unparsed, unparsed, "Error in FcDrawStatus xml file"});
  const auto status = statusOf(R"(<FcDrawStatus><!-- --><other>
      <DisabledItems>text<DisabledIfcRoot/><DisabledIfcRoot guid="nonsense"/><DisabledClass/>
      <IfcRoot guid="x"/><DisabledIfcContext/><DisabledClass name="IfcNothing"/>
      <DisabledIfcRoot guid="2O2Fr$t4X7Zf8NOew3FNr2"/><DisabledClass name="IfcWall"/>
      </DisabledItems></other>
      <representationStates><Glassy/><TransparentIfcRoot/><WireframeIfcClass/>
      <WireframeIfcClass name="IfcWall"/></representationStates></FcDrawStatus>)");
  ASSERT_TRUE(status);
  EXPECT_EQ(status->getDisabledStates(), Keys{keyOfClass<FcWall>()});
  EXPECT_EQ(status->getRepresentationState(keyOfClass<FcWall>()), State::Wireframe);
  EXPECT_FALSE(statusOf(""));
  EXPECT_FALSE(statusOf("<FcDrawStatus><DisabledItems></FcDrawStatus>"));
  EXPECT_FALSE(statusOf("<DrawStatus/>"));
}

TEST_F(DrawStatusOfAModel, PassesOverWhatHasDied) {
  DrawStatus status;
  const std::string empty = xmlOf(status);
  for (int i = 0; i < 100; ++i) {
    const auto passing = std::make_shared<FcWall>();
    EXPECT_TRUE(status.isEnabled(keyOf(passing))) << "at the place of none that is hidden";
    status.setEnabled(keyOf(passing), false);
    status.setRepresentationState(keyOf(passing), State::Wireframe);
  }
  EXPECT_EQ(xmlOf(status), empty);
  EXPECT_TRUE(status.getDisabledStates().empty());
  DrawStatus other;
  other.assignAndNotify(status);
  EXPECT_EQ(xmlOf(other), empty);
}

}  // namespace
}  // namespace qor::fc
