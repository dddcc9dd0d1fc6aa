#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Fc/Core/Kernel/FcProjectLibrary.h"
#include "Fc/Core/Kernel/FcRelAggregates.h"
#include "Fc/Core/Kernel/FcRelDeclares.h"
#include "Fc/Core/ProductExtension/FcOpeningElement.h"
#include "Fc/Core/ProductExtension/FcRelContainedInSpatialStructure.h"
#include "Fc/Core/ProductExtension/FcRelReferencedInSpatialStructure.h"
#include "Fc/Core/ProductExtension/FcRelSpaceBoundary.h"
#include "Fc/Core/ProductExtension/FcRelVoidsElement.h"
#include "Fc/Core/ProductExtension/FcSpace.h"
#include "Fc/Document/FcDrawInterfaceWrapper.h"
#include "Fc/Document/Object.h"
#include "Fc/Drawing/DrawOutcomes.h"
#include "Fc/Drawing/FcGenerateParams.h"
#include "Fc/Resource/GeometricConstraint/FcConnectionPointGeometry.h"
#include "Fc/Resource/GeometricConstraint/FcGridPlacement.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/PresentationOrganization/FcPresentationLayerAssignment.h"
#include "Fc/Resource/Representation/FcGeometricRepresentationContext.h"
#include "Fc/Shared/BuildingElements/FcWallType.h"
#include "Fc/Shared/BuildingServiceElements/FcDistributionPort.h"
#include "Fc/Tree/DrawStatus.h"
#include "Tests/Fc/Draw/Drawing.h"
#include "Tests/Support/ExpectAsserts.h"
#include "Tests/Support/Make.h"

namespace qor::fc {
namespace {

using namespace core::kernel;
using namespace core::productextension;
using math::Matrix;
using resource::presentationorganization::FcPresentationLayerAssignment;
using namespace resource::representation;
using namespace shared::buildingelements;
using shared::buildingserviceelements::FcDistributionPort;
using test::drawn;
using test::ExpectAsserts;
using test::shapesOf;
using testing::ElementsAre;
using testing::IsEmpty;

class OneObject : public ObjectInterfaceFactory {
 public:
  ObjectInterface* object(const std::shared_ptr<FcRoot>& root) const override {
    return hidden == root ? nullptr : &m_object;
  }
  std::shared_ptr<FcRoot> hidden;

 private:
  mutable document::Object m_object;
};

class OneContext : public RepresentationContextInterface {
 public:
  bool shouldGenerate(const FcGeometricRepresentationContext& context) const override {
    return context.ContextType() == "Plan";
  }
};

class Refusing : public RepresentationInterface {
 public:
  Answer representation(FcGenerateParams& /*params*/, const FcRepresentation& shape) override {
    return {shape.RepresentationIdentifier() != "Axis",
            std::shared_ptr<void>(nullptr, [this](void*) { ++closed; })};
  }
  int closed = 0;
};

class Walk : public testing::Test {
 protected:
  FcGenerateParams params() { return params(nullptr, nullptr); }
  FcGenerateParams params(RepresentationInterface* shapes,
                          const RepresentationContextInterface* contexts) {
    return {wrapper, objects, status, *model.data, shapes, contexts, nullptr};
  }
  void walk(FcGenerateParams&& walkParams) { model.project->generate(walkParams); }

  test::SmallModel model;
  test::RecordingTarget target;
  FcDrawInterfaceWrapper wrapper{target};
  OneObject objects;
  DrawStatus status;
};

TEST_F(Walk, OpensEachProductAndDrawsItInItsFrame) {
  const auto wall = model.wall("A"), bare = model.wall("B");
  model.give(*wall, {model.shape("Axis", {model.line()}), model.shape("Body", {model.line(5)})});
  model.place(*wall, Matrix::createTranslation({0, 2, 0}));
  model.place(*bare, Matrix::createTranslation({0, 9, 0}));
  model.give(*model.storey, {model.shape("FootPrint", {model.line()})});
  walk(params());
  EXPECT_THAT(
      target.calls,
      ElementsAre("start IfcWall A", "material 0.600000024 0.600000024 0.600000024",
                  "polyline (0 2 0) (1 2 0)", "polyline (5 2 0) (6 2 0)", "stop", "start IfcWall B",
                  "stop", "start IfcBuildingStorey Storey", "polyline (0 0 0) (1 0 0)", "stop"));
  EXPECT_EQ(target.transformationGet(), Matrix());
}

TEST_F(Walk, DrawsPartsInTheFrameOfTheProject) {
  const auto wall = model.wall("A");
  const auto part = model.make<FcWall>("Part");
  wall->aggregatesConnect(*model.data, part);
  model.place(*wall, Matrix::createTranslation({7, 0, 0}));
  model.place(*part, Matrix::createTranslation({0, 3, 0}));
  model.give(*part, {model.shape("Body", {model.line()})});
  EXPECT_THAT(shapesOf(drawn(model)), ElementsAre("polyline (0 3 0) (1 3 0)"));
}

TEST_F(Walk, MeetsEachRootOnce) {
  const auto wall = model.wall("A");
  model.make<core::productextension::FcRelContainedInSpatialStructure>();
  const auto reference = model.make<FcRelReferencedInSpatialStructure>();
  reference->setRelatingStructure(model.storey);
  reference->setRelatedElements({std::shared_ptr<FcProduct>(wall)});
  wall->aggregatesConnect(*model.data, wall);           // a part of itself
  wall->aggregatesConnect(*model.data, model.project);  // and a whole of its whole
  EXPECT_THAT(drawn(model),
              ElementsAre("start IfcWall A", "stop", "start IfcBuildingStorey Storey", "stop"));
}

TEST_F(Walk, LeavesOutWhatASpatialElementContainsWhenToldSo) {
  model.wall("A");
  auto walkParams = params();
  walkParams.generateContainedElements = false;
  model.project->generate(walkParams);
  EXPECT_THAT(target.calls, ElementsAre("start IfcBuildingStorey Storey", "stop"));
}

TEST_F(Walk, AsksTheDrawStatusAndTheHostsCallbacks) {
  const auto off = model.wall("Off"), skipped = model.wall("Skipped"), part = model.wall("Part");
  skipped->aggregatesConnect(*model.data, part);
  for (const auto& wall : {off, skipped, part})
    model.give(*wall, {model.shape("Body", {model.line()})});
  status.setEnabled(off.get(), false);
  status.setRepresentationState(part.get(), DrawStatus::ObjectRepresentationState::Wireframe);
  status.setRepresentationState(skipped.get(), DrawStatus::ObjectRepresentationState::Wireframe);
  auto walkParams = params();
  std::vector<std::string> told;
  walkParams.disabledProductCallback = [&](FcGenerateParams&, const FcProduct& product) {
    told.push_back("disabled " + *product.Name());
  };
  walkParams.skipObjectCallback = [&](const Guid& guid) { return guid == skipped->GlobalId(); };
  walkParams.representationStateCallback = [&](const FcRoot& root, auto) {
    told.push_back("state " + *root.Name());
  };
  model.project->generate(walkParams);
  EXPECT_THAT(told, ElementsAre("disabled Off", "state Part"));
  EXPECT_THAT(target.callsOf("start"), ElementsAre("start IfcWall Off", "start IfcWall Part",
                                                   "start IfcBuildingStorey Storey"));
  EXPECT_THAT(shapesOf(target.calls), ElementsAre("polyline (0 0 0) (1 0 0)"));
}

TEST_F(Walk, LeavesOutARootThatTheHostDoesNotRepresent) {
  const auto wall = model.wall("A");
  wall->aggregatesConnect(*model.data, model.make<FcWall>("Part"));
  objects.hidden = wall;
  walk(params());
  EXPECT_THAT(target.callsOf("start"),
              ElementsAre("start IfcWall Part", "start IfcBuildingStorey Storey"));
}

TEST_F(Walk, RemembersTheModelOfARootUntilItIsForgotten) {
  const auto wall = model.wall("A");
  EXPECT_EQ(FcGenerateParams::dataFromObject(wall), nullptr);
  walk(params());
  EXPECT_EQ(FcGenerateParams::dataFromObject(wall), model.data.get());
  FcGenerateParams::removeCache(*model.data);
  EXPECT_EQ(FcGenerateParams::dataFromObject(wall), nullptr);

  auto other = std::make_shared<Data>();
  FcGenerateParams(wrapper, objects, status, *other, nullptr, nullptr, nullptr).object(wall);
  EXPECT_EQ(FcGenerateParams::dataFromObject(wall), other.get());
  other.reset();
  EXPECT_EQ(FcGenerateParams::dataFromObject(wall), nullptr) << "the model is gone";
}

TEST_F(Walk, AsksForContextsAndRepresentations) {
  const auto wall = model.wall("A");
  std::vector<test::SmallModel::Shape> shapes;
  for (const auto& [identifier, type, x] :
       {std::tuple{"Axis", "Plan", 1}, {"Body", "Plan", 2}, {"Body", "Model", 3}}) {
    shapes.push_back(model.shape(identifier, {model.line(x)}));
    shapes.back()->setContextOfItems(
        test::make<FcGeometricRepresentationContext>({{"ContextType", type}}));
  }
  shapes.push_back(model.shape("Body", {model.line(4)}));
  model.give(*wall, shapes);
  Refusing refusing;
  const OneContext plan;
  walk(params(&refusing, &plan));
  EXPECT_THAT(shapesOf(target.calls),
              ElementsAre("polyline (2 0 0) (3 0 0)", "polyline (4 0 0) (5 0 0)"));
  EXPECT_EQ(refusing.closed, 3);
}

TEST_F(Walk, CutsBodiesAloneWhileTheElementWithOpeningsIsDrawn) {
  const auto wall = model.wall("A"), part = model.wall("Part"), next = model.wall("Next");
  wall->aggregatesConnect(*model.data, part);
  const auto opening = model.make<FcOpeningElement>("Hole");
  model.give(*opening, {model.shape("body", {model.line(), model.line()}),
                        model.shape("Axis", {model.line(6)})});
  const auto relation = model.make<FcRelVoidsElement>();
  relation->setRelatingBuildingElement(wall);
  relation->setRelatedOpeningElement(opening);
  for (const auto& product : {wall, part, next})
    model.give(*product,
               {model.shape("Axis", {model.line(1)}), model.shape("Body", {model.line(2)})});
  walk(params());
  // Nothing cuts here, so that what would be cut doesn't come out.
  EXPECT_THAT(shapesOf(target.calls),
              ElementsAre("polyline (0 0 0) (1 0 0)", "polyline (0 0 0) (1 0 0)",
                          "polyline (6 0 0) (7 0 0)", "polyline (1 0 0) (2 0 0)",
                          "polyline (1 0 0) (2 0 0)", "polyline (1 0 0) (2 0 0)",
                          "polyline (2 0 0) (3 0 0)"));
  EXPECT_THAT(wrapper.clipObjects(), IsEmpty());
}

TEST_F(Walk, DrawsBoundariesInTheFrameOfTheirSpace) {
  const auto space = model.make<FcSpace>("Room");
  model.storey->aggregatesConnect(*model.data, space);
  model.place(*space, Matrix::createTranslation({10, 0, 0}));
  const auto geometry = test::make<resource::geometricconstraint::FcConnectionPointGeometry>(
      {{"PointOnRelatingElement", resource::geometry::makePoint(math::Point3d(1, 2, 3))}});
  test::give(*model.make<FcRelSpaceBoundary>("Boundary"),
             {{"RelatingSpace", space}, {"ConnectionGeometry", geometry}});
  EXPECT_THAT(shapesOf(drawn(model)), ElementsAre("polyline (11 2 3)"));
}

TEST_F(Walk, DrawsTheOneTypeThatItIsFor) {
  const auto library = model.make<FcProjectLibrary>("Library");
  const auto declare = [&](auto& context, const auto& what) {
    test::give(*model.make<FcRelDeclares>(),
               {{"RelatingContext", context}, {"RelatedDefinitions", std::vector{what}}});
  };
  declare(model.project, library);
  for (const int x : {1, 2}) {
    const auto type = model.make<FcWallType>("Type" + std::to_string(x));
    type->setRepresentationMaps(std::vector{model.map({model.line(x)})});
    declare(library, type);
  }
  walk(params());
  EXPECT_THAT(shapesOf(target.calls), IsEmpty());
  auto walkParams = params();
  walkParams.typeFilterSet = true;
  walkParams.typeFilterGuid = model.data->entities<FcWallType>().front()->GlobalId();
  model.project->generate(walkParams);
  EXPECT_THAT(target.callsOf("polyline"), testing::SizeIs(1));
}

TEST_F(Walk, MarksPortsWhereTheyStand) {
  const auto port = model.make<FcDistributionPort>("Port");
  model.storey->aggregatesConnect(*model.data, port);
  auto walkParams = params();
  walkParams.drawPortMarkers = true;
  port->setPredefinedType(shared::buildingserviceelements::FcDistributionPortTypeEnum::PIPE);
  Assert::setEnabled(false);
  model.project->generate(walkParams);
  Assert::setEnabled(true);
  EXPECT_THAT(target.callsOf("material"), ElementsAre("material 0 0 1"));
}

TEST_F(Walk, SurvivesNullReferencesEverywhere) {
  const auto wall = model.wall("A");
  model.give(*wall, {nullptr, model.shape("Body", {nullptr, model.line(), model.mapped(nullptr)})});
  model.make<FcRelVoidsElement>()->setRelatingBuildingElement(wall);
  wall->aggregatesConnect(*model.data, nullptr);
  const auto mapWithout = model.make<resource::geometry::FcRepresentationMap>();
  model.give(*model.storey, {model.shape("Body", {model.mapped(mapWithout), model.line(3)})});
  const ExpectAsserts none;
  EXPECT_THAT(shapesOf(drawn(model)),
              ElementsAre("polyline (0 0 0) (1 0 0)", "polyline (3 0 0) (4 0 0)"));
}

TEST_F(Walk, LeavesOutTheShapeOfAProductWhosePlacementCannotBeComputed) {
  const auto wall = model.wall("A");
  wall->setGlobalId(Guid());
  wall->setObjectPlacement(model.make<resource::geometricconstraint::FcGridPlacement>());
  model.give(*wall, {model.shape("Body", {model.line()})});
  const ExpectAsserts expected(
      {"IfcWall 0000000000000000000000 has no computable placement (IfcGridPlacement): Not "
       "implemented"});
  EXPECT_THAT(drawn(model),
              ElementsAre("start IfcWall A", "stop", "start IfcBuildingStorey Storey", "stop"));
}

TEST_F(Walk, RecordsWhatBecomesOfEachProduct) {
  const auto shape = [&](const char* identifier, test::SmallModel::Items items) {
    auto made = model.shape(identifier, std::move(items));
    made->setContextOfItems(
        test::make<FcGeometricRepresentationContext>({{"ContextType", "Plan"}}));
    return made;
  };
  const auto wall = [&](const char* name, std::vector<test::SmallModel::Shape> shapes) {
    const auto made = model.wall(name);
    model.give(*made, std::move(shapes));
    return made;
  };
  const auto empty = model.map({});
  wall("drawn", {shape("Axis", {model.line()}), shape("Body", {model.line()})});
  const auto off = wall("hidden", {shape("Body", {model.line()})});
  status.setEnabled(off.get(), false);
  objects.hidden = wall("filtered", {shape("Body", {model.line()})});
  model.wall("noRepresentation");
  wall("noRepresentation", {nullptr});
  wall("otherContexts", {shape("Axis", {model.line()})});
  const auto strange = shape("Corpse", {model.line()});
  wall("unknownIdentifier", {shape("Axis", {model.line()}), strange});
  status.setEnabled(fcCast<FcGeometricRepresentationContext>(strange->ContextOfItems()).get(),
                    false);
  wall("noBody", {shape("Body", {model.mapped(empty)})});
  wall("noBody", {shape("Body", {model.mapped(empty)})});
  wall("failed", {shape("Body", {model.line()})})
      ->setObjectPlacement(model.make<resource::geometricconstraint::FcGridPlacement>());

  Refusing refusing;
  DrawOutcomes outcomes;
  auto walkParams = params(&refusing, nullptr);
  walkParams.outcomes = &outcomes;
  auto previous =
      Assert::setHandler([&](const AssertInfo& info) { outcomes.addReport(info.message); });
  model.project->generate(walkParams);
  Assert::setHandler(std::move(previous));

  const char* const names[] = {
      "drawn",  "hidden",  "filtered", "noRepresentation", "otherContexts", "unknownIdentifier",
      "noBody", "cutAway", "failed"};
  ASSERT_EQ(outcomes.entries().size(), 11u) << "ten walls and the storey";
  for (const DrawOutcomes::Entry& entry : outcomes.entries()) {
    const std::string name = names[static_cast<std::size_t>(entry.outcome)];
    EXPECT_EQ(name, entry.product == model.storey.get() ? "noRepresentation"
                                                        : entry.product->Name().value());
    EXPECT_EQ(entry.reports, name == "failed" ? 1u : 0u);
    EXPECT_EQ(entry.firstReport.ends_with("Not implemented"), name == "failed");
  }
  EXPECT_EQ(outcomes.count(DrawOutcome::noRepresentation), 3u);
}

TEST_F(Walk, GoesAsDeepAsAModelDoes) {
  std::shared_ptr<core::kernel::FcObjectDefinition> whole = model.storey;
  for (int level = 0; level < 100000; ++level) {
    auto part = model.make<FcWall>();
    test::give(*model.make<FcRelAggregates>(),
               {{"RelatingObject", whole}, {"RelatedObjects", std::vector{part}}});
    if (level % 1000 == 0)
      test::give(*model.make<FcRelVoidsElement>(),
                 {{"RelatingBuildingElement", part},
                  {"RelatedOpeningElement", model.make<FcOpeningElement>()}});
    whole = part;
  }
  walk(params());
  EXPECT_EQ(target.callsOf("stop").size(), 100101U);
}

}  // namespace
}  // namespace qor::fc
