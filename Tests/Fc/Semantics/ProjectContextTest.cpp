#include <gtest/gtest.h>

#include <numbers>
#include <set>

#include "Fc/Core/Kernel/FcProject.h"
#include "Fc/Core/Kernel/FcRelDeclares.h"
#include "Fc/Data.h"
#include "Fc/Resource/Geometry/FcAxis2Placement2D.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcDirection.h"
#include "Fc/Resource/Measure/FcDerivedUnit.h"
#include "Fc/Resource/Measure/FcMonetaryUnit.h"
#include "Fc/Resource/Measure/FcSIUnit.h"
#include "Fc/Resource/Measure/FcUnitAssignment.h"
#include "Fc/Resource/Representation/FcGeometricRepresentationSubContext.h"
#include "Fc/Resource/Representation/FcProductDefinitionShape.h"
#include "Fc/Shared/BuildingElements/FcWall.h"
#include "Fc/Utilities/RepresentationContextCreate.h"
#include "Tests/Support/ExpectAsserts.h"

namespace qor::fc {
namespace {

using core::kernel::FcProject;
using core::kernel::FcRelDeclares;
using math::Matrix;
using resource::geometry::FcAxis2Placement3D;
using resource::geometry::FcCartesianPoint;
using resource::geometry::FcDirection;
using resource::measure::FcDerivedUnit;
using resource::measure::FcDerivedUnitEnum;
using resource::measure::FcSIUnit;
using resource::measure::FcUnitAssignment;
using resource::measure::FcUnitEnum;
using resource::representation::FcGeometricProjectionEnum;
using resource::representation::FcGeometricRepresentationContext;
using resource::representation::FcGeometricRepresentationSubContext;
using resource::representation::FcProductDefinitionShape;
using shared::buildingelements::FcWall;
using ContextType = FcProject::ContextType;
using Identifier = FcProject::ModelContextIdentifier;
using Texts = generate::draw::IfcGeometricRepresentationContextEnum;
using std::numbers::pi;

constexpr auto notDefined = FcGeometricProjectionEnum::NOTDEFINED;

class ProjectContext : public testing::Test {
 protected:
  const std::shared_ptr<Data> data = std::make_shared<Data>();
  const std::shared_ptr<FcProject> project = data->create<FcProject>();
};

TEST_F(ProjectContext, FindsTheFirstUnitOfItsKind) {
  EXPECT_EQ(project->namedUnitGet(FcUnitEnum::LENGTHUNIT), nullptr);
  EXPECT_EQ(project->derivedUnitGet(FcDerivedUnitEnum::LINEARVELOCITYUNIT), nullptr);
  const auto assignment = data->create<FcUnitAssignment>();
  project->setUnitsInContext(assignment);
  const auto metre = data->create<FcSIUnit>(), other = data->create<FcSIUnit>();
  metre->setUnitType(FcUnitEnum::LENGTHUNIT);
  other->setUnitType(FcUnitEnum::LENGTHUNIT);
  const auto velocity = data->create<FcDerivedUnit>();
  velocity->setUnitType(FcDerivedUnitEnum::LINEARVELOCITYUNIT);
  assignment->insertUnits(data->create<resource::measure::FcMonetaryUnit>());
  assignment->insertUnits(velocity);
  assignment->insertUnits(std::static_pointer_cast<resource::measure::FcNamedUnit>(metre));
  assignment->insertUnits(std::static_pointer_cast<resource::measure::FcNamedUnit>(other));
  EXPECT_EQ(project->namedUnitGet(FcUnitEnum::LENGTHUNIT), metre);
  EXPECT_EQ(project->namedUnitGet(FcUnitEnum::AREAUNIT), nullptr);
  EXPECT_EQ(project->derivedUnitGet(FcDerivedUnitEnum::LINEARVELOCITYUNIT), velocity);
  EXPECT_EQ(project->derivedUnitGet(FcDerivedUnitEnum::LINEARFORCEUNIT), nullptr);
}

TEST_F(ProjectContext, MakesAContextOnceWithItsDefaults) {
  struct Case {
    ContextType type;
    const char* text;
    int dimension;
    FcGeometricProjectionEnum view;
  };
  for (const Case& expected :
       {Case{ContextType::Model, "Model", 3, FcGeometricProjectionEnum::MODEL_VIEW},
        Case{ContextType::Plan, "Plan", 2, FcGeometricProjectionEnum::PLAN_VIEW}}) {
    SCOPED_TRACE(expected.text);
    EXPECT_EQ(project->representationContextGet(expected.type, "Body"), nullptr);
    const auto made =
        project->representationContextGetOrAdd(*data, expected.type, "Body", notDefined);
    EXPECT_EQ(made->TargetView(), expected.view);
    EXPECT_EQ(made->ContextType(), expected.text);
    EXPECT_EQ(made->ContextIdentifier(), "Body");
    const auto context = made->ParentContext();
    EXPECT_EQ(context->ContextType(), expected.text);
    EXPECT_EQ(context->CoordinateSpaceDimension().value(), expected.dimension);
    EXPECT_EQ(context->Precision()->value(), 1e-5);
    const auto placement = context->WorldCoordinateSystem().Axis2Placement3D();
    EXPECT_EQ(placement->Axis(), nullptr);
    EXPECT_TRUE(data->hasEntity(*placement));
    EXPECT_TRUE(data->hasEntity(*context));

    const std::size_t size = data->size();
    EXPECT_EQ(project->representationContextGetOrAdd(*data, expected.type, "Body",
                                                     FcGeometricProjectionEnum::SKETCH_VIEW),
              made);
    EXPECT_EQ(data->size(), size);
    EXPECT_EQ(made->TargetView(), expected.view);
    EXPECT_EQ(project->representationContextGet(expected.type, "Body"), made);
    EXPECT_EQ(project->representationContextGet(expected.type, "body"), nullptr);
  }
  EXPECT_EQ(project->RepresentationContexts()->size(), 2U);
  EXPECT_EQ(project->representationContextGet(Identifier::Body),
            project->representationContextGet(ContextType::Model, "Body"));
}

TEST_F(ProjectContext, WantsAViewForAContextThatIsNeitherModelNorPlan) {
  {
    const test::ExpectAsserts none;
    const auto made = project->representationContextGetOrAdd(*data, ContextType::NotDefined, "Axis",
                                                             FcGeometricProjectionEnum::GRAPH_VIEW);
    EXPECT_EQ(made->TargetView(), FcGeometricProjectionEnum::GRAPH_VIEW);
  }
  const test::ExpectAsserts expected(
      {"FcProject::representationContextGetOrAdd -> TargetView should have been set to something "
       "other than NOTDEFINED."});
  EXPECT_EQ(
      project->representationContextGetOrAdd(*data, ContextType::NotDefined, "Body", notDefined)
          ->TargetView(),
      notDefined);
}

TEST_F(ProjectContext, LooksOnlyBelowTheFirstContextOfAType) {
  std::shared_ptr<FcGeometricRepresentationContext> contexts[2];
  for (auto& context : contexts) {
    context = data->create<FcGeometricRepresentationContext>();
    context->setContextType("Model");
    project->insertRepresentationContexts(context);
  }
  const auto body = data->create<FcGeometricRepresentationSubContext>();
  body->setContextIdentifier("Body");
  body->setParentContext(contexts[1]);
  EXPECT_EQ(project->representationContextGet(Identifier::Body), nullptr);
  body->setParentContext(contexts[0]);
  EXPECT_EQ(project->representationContextGet(Identifier::Body), body);
}

TEST_F(ProjectContext, NamesBodyAndFootPrintByTheirFixedNumbers) {
  EXPECT_STREQ(Texts::sContextIdentifier(Identifier(4)), "Body");
  EXPECT_STREQ(Texts::sContextIdentifier(Identifier(2)), "FootPrint");
  EXPECT_STREQ(Texts::sContextType(ContextType(0)), "Model");
  EXPECT_STREQ(Texts::sContextType(ContextType(1)), "Plan");
  EXPECT_STREQ(Texts::sContextIdentifier(Identifier(200)), "");
}

TEST_F(ProjectContext, GivesTrueNorthBackAsItWasSet) {
  EXPECT_EQ(project->getTrueNorth(), 0);
  for (const double angle : {0.0, pi / 2, -pi / 2, 0.3, -2.5}) {
    project->setTrueNorth(*data, angle);
    EXPECT_NEAR(project->getTrueNorth(), angle, 1e-12) << angle;
  }
  project->setTrueNorth(*data, pi / 2);
  const auto body = project->representationContextGet(Identifier::Body);
  EXPECT_EQ(body->TrueNorth(), nullptr);
  const auto north = body->ParentContext()->TrueNorth();
  EXPECT_EQ(north->DirectionRatios().size(), 2U);
  EXPECT_NEAR(north->DirectionRatios()[0].value(), 1, 1e-15);
  EXPECT_NEAR(north->DirectionRatios()[1].value(), 0, 1e-15);
  EXPECT_FALSE(data->hasEntity(*north));
}

TEST_F(ProjectContext, ReadsTrueNorthWhateverItsLength) {
  struct Case {
    CountedTriple<resource::measure::FcReal> ratios;
    double angle;
  };
  const auto context = data->create<FcGeometricRepresentationContext>();
  project->insertRepresentationContexts(data->create<FcGeometricRepresentationContext>());
  project->insertRepresentationContexts(context);
  const auto north = data->create<FcDirection>();
  context->setTrueNorth(north);
  for (const Case& expected : {Case{{0, 7}, 0}, Case{{-3, 0}, -pi / 2}, Case{{0, -2}, pi},
                               Case{{1e-9, 0}, pi / 2}, Case{{0, 0}, 0}, Case{{1, 1, 0}, pi / 4}}) {
    north->setDirectionRatios(expected.ratios);
    EXPECT_NEAR(project->getTrueNorth(), expected.angle, 1e-12);
  }
}

TEST_F(ProjectContext, DeclaresAllObjectsByOneRelationship) {
  const auto first = data->create<FcWall>(), second = data->create<FcWall>();
  int initialised = 0;
  const auto count = [&](FcRelDeclares&) { ++initialised; };
  const auto relation = project->hasContextConnect(*data, *first, count);
  EXPECT_EQ(project->hasContextConnect(*data, *second, count), relation);
  EXPECT_EQ(initialised, 1);
  EXPECT_EQ(relation->RelatedDefinitions().size(), 2U);
  EXPECT_EQ(relation->RelatingContext(), project);
  EXPECT_FALSE(relation->GlobalId().isNull());
  EXPECT_EQ(second->HasContext().lock(), relation);
}

TEST_F(ProjectContext, AnswersNullWhereTheDeclarationHasDied) {
  data->entityDelete(project->hasContextConnect(*data, *data->create<FcWall>()));
  const auto wall = data->create<FcWall>();
  EXPECT_EQ(project->hasContextConnect(*data, *wall), nullptr);
  EXPECT_EQ(wall->HasContext().lock(), nullptr);
}

TEST_F(ProjectContext, GivesEachShapeTheContextOfTheProject) {
  const auto one = data->create<FcProductDefinitionShape>();
  const auto two = data->create<FcProductDefinitionShape>();
  std::set<std::shared_ptr<FcProductDefinitionShape>> seen;
  utilities::RepresentationContextCreate create(data);
  create.shapeRepresentationAdd(
      [&](const std::shared_ptr<FcProject>& of) {
        return of->representationContextGetOrAdd(*data, ContextType::Model, "Box", notDefined);
      },
      [&](const auto& context, const auto& shape) {
        EXPECT_EQ(context->ContextIdentifier(), "Box");
        seen.insert(shape);
        data->create<FcProductDefinitionShape>();  // isn't part of the walk
      });
  EXPECT_EQ(seen, (std::set{one, two}));
  data->entityDelete(project);
  create.shapeRepresentationAdd([](const auto&) { return nullptr; },
                                [](const auto&, const auto&) { ADD_FAILURE(); });
}

TEST(SetPlacement, OverwritesInPlaceAndStoresTheIdentityAsNoAxes) {
  const test::ExpectAsserts none;
  const auto placement =
      std::make_shared<FcAxis2Placement3D>(Matrix({1, 2, 3}, {0, 2, 0}, {1, 0, 0}));
  const auto point = fcCast<FcCartesianPoint>(placement->Location());
  const auto axis = placement->Axis(), reference = placement->RefDirection();
  EXPECT_EQ(point->Coordinates(),
            (CountedTriple<resource::measure::FcLengthMeasure>{1.0, 2.0, 3.0}));
  EXPECT_EQ(reference->DirectionRatios(), (CountedTriple<resource::measure::FcReal>{0., 2., 0.}));
  placement->setPlacement(Matrix({4, 5, 6}, {0, 0, 1}, {0, 1, 0}));
  EXPECT_EQ(placement->Location(), point);
  EXPECT_EQ(placement->Axis(), axis);
  EXPECT_EQ(axis->DirectionRatios(), (CountedTriple<resource::measure::FcReal>{0., 1., 0.}));
  EXPECT_EQ(point->Coordinates()[2].value(), 6);
  placement->setPlacement(Matrix());
  EXPECT_EQ(placement->Axis(), nullptr);
  EXPECT_EQ(placement->RefDirection(), nullptr);
}

TEST(SetPlacement, ReportsMirrorsAndParallelAxes) {
  const test::ExpectAsserts expected(
      {"Assertion failed in Constructor FcAxis2Placement3D: by formal propositions, placements "
       "must not allow mirroring",
       "Assertion failed in vPlacementSet: by formal propositions, placements must not allow "
       "mirroring",
       "Assertion failed in vPlacementSet: by formal propositions, cross product of Axis() and "
       "RefDirection() must not be Null vector"});
  const auto mirror =
      std::make_shared<FcAxis2Placement3D>(Matrix({-1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {}));
  EXPECT_EQ(mirror->RefDirection()->DirectionRatios()[0].value(), -1);
  mirror->setPlacement(Matrix({0, 0, 1}, {0, 1, 0}, {0, 0, 1}, {}));
}

}  // namespace
}  // namespace qor::fc
