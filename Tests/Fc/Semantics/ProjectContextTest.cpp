#include <gtest/gtest.h>

#include <numbers>
#include <set>

#include "Fc/Core/Kernel/FcProject.h"
#include "Fc/Core/Kernel/FcRelDeclares.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
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
#include "Tests/Support/Make.h"

namespace qor::fc {
namespace {

using namespace core::kernel;
using namespace resource::geometry;
using namespace resource::measure;
using namespace resource::representation;
using shared::buildingelements::FcWall;
using ContextType = FcProject::ContextType;
using Identifier = FcProject::ModelContextIdentifier;
using Texts = generate::draw::IfcGeometricRepresentationContextEnum;
using std::numbers::pi;
using test::make;

constexpr auto notDefined = FcGeometricProjectionEnum::NOTDEFINED;

class ProjectContext : public testing::Test {
 protected:
  const std::shared_ptr<Data> data = std::make_shared<Data>();
  const std::shared_ptr<FcProject> project = data->create<FcProject>();
};

TEST_F(ProjectContext, FindsTheFirstUnitOfItsKind) {
  EXPECT_EQ(project->namedUnitGet(FcUnitEnum::LENGTHUNIT), nullptr);
  EXPECT_EQ(project->derivedUnitGet(FcDerivedUnitEnum::LINEARVELOCITYUNIT), nullptr);
  const auto metre = make<FcSIUnit>({{"UnitType", "LENGTHUNIT"}});
  const auto velocity = make<FcDerivedUnit>({{"UnitType", "LINEARVELOCITYUNIT"}});
  const std::vector<std::shared_ptr<FcBase>> units{make<FcMonetaryUnit>(), velocity, metre,
                                                   make<FcSIUnit>({{"UnitType", "LENGTHUNIT"}})};
  project->setUnitsInContext(make<FcUnitAssignment>(*data, {{"Units", units}}));
  EXPECT_EQ(project->namedUnitGet(FcUnitEnum::LENGTHUNIT), metre);
  EXPECT_EQ(project->namedUnitGet(FcUnitEnum::AREAUNIT), nullptr);
  EXPECT_EQ(project->derivedUnitGet(FcDerivedUnitEnum::LINEARVELOCITYUNIT), velocity);
  EXPECT_EQ(project->derivedUnitGet(FcDerivedUnitEnum::LINEARFORCEUNIT), nullptr);
}

TEST_F(ProjectContext, MakesAContextOnceWithItsDefaults) {
  const struct {
    ContextType type;
    const char* text;
    int dimension;
    FcGeometricProjectionEnum view;
  } cases[] = {{ContextType::Model, "Model", 3, FcGeometricProjectionEnum::MODEL_VIEW},
               {ContextType::Plan, "Plan", 2, FcGeometricProjectionEnum::PLAN_VIEW}};
  for (const auto& [type, text, dimension, view] : cases) {
    SCOPED_TRACE(text);
    EXPECT_EQ(project->representationContextGet(type, "Body"), nullptr);
    const auto made = project->representationContextGetOrAdd(*data, type, "Body", notDefined);
    EXPECT_EQ(made->ContextType(), text);
    EXPECT_EQ(made->ContextIdentifier(), "Body");
    const auto context = made->ParentContext();
    EXPECT_EQ(context->ContextType(), text);
    EXPECT_EQ(context->CoordinateSpaceDimension().value(), dimension);
    EXPECT_EQ(context->Precision()->value(), 1e-5);
    const auto placement = context->WorldCoordinateSystem().Axis2Placement3D();
    EXPECT_EQ(placement->Axis(), nullptr);
    EXPECT_TRUE(data->hasEntity(*placement));
    EXPECT_TRUE(data->hasEntity(*context));

    const std::size_t size = data->size();
    EXPECT_EQ(project->representationContextGetOrAdd(*data, type, "Body",
                                                     FcGeometricProjectionEnum::SKETCH_VIEW),
              made);
    EXPECT_EQ(data->size(), size);
    EXPECT_EQ(made->TargetView(), view);
    EXPECT_EQ(project->representationContextGet(type, "Body"), made);
    EXPECT_EQ(project->representationContextGet(type, "body"), nullptr);
  }
  EXPECT_EQ(project->RepresentationContexts()->size(), 2U);
  EXPECT_EQ(project->representationContextGet(Identifier::Body),
            project->representationContextGet(ContextType::Model, "Body"));
}

TEST_F(ProjectContext, WantsAViewForAContextThatIsNeitherModelNorPlan) {
  const auto viewOf = [&](const char* identifier, FcGeometricProjectionEnum asked) {
    return project->representationContextGetOrAdd(*data, ContextType::NotDefined, identifier, asked)
        ->TargetView();
  };
  const test::ExpectAsserts expected(
      {"FcProject::representationContextGetOrAdd -> TargetView should have been set to something "
       "other than NOTDEFINED."});
  EXPECT_EQ(viewOf("Axis", FcGeometricProjectionEnum::GRAPH_VIEW),
            FcGeometricProjectionEnum::GRAPH_VIEW);
  EXPECT_EQ(viewOf("Body", notDefined), notDefined);
}

TEST_F(ProjectContext, LooksOnlyBelowTheFirstContextOfAType) {
  const auto first = make<FcGeometricRepresentationContext>(*data, {{"ContextType", "Model"}});
  const auto second = make<FcGeometricRepresentationContext>(*data, {{"ContextType", "Model"}});
  for (const auto& context : {first, second}) project->insertRepresentationContexts(context);
  const auto body = make<FcGeometricRepresentationSubContext>(
      *data, {{"ContextIdentifier", "Body"}, {"ParentContext", second}});
  EXPECT_EQ(project->representationContextGet(Identifier::Body), nullptr);
  body->setParentContext(first);
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
  const auto north = data->create<FcDirection>();
  project->insertRepresentationContexts(data->create<FcGeometricRepresentationContext>());
  project->insertRepresentationContexts(
      make<FcGeometricRepresentationContext>(*data, {{"TrueNorth", north}}));
  const std::pair<CountedTriple<FcReal>, double> ratiosAndAngles[] = {
      {{0, 7}, 0},         {{-3, 0}, -pi / 2}, {{0, -2}, pi},
      {{1e-9, 0}, pi / 2}, {{0, 0}, 0},        {{1, 1, 0}, pi / 4}};
  for (const auto& [ratios, angle] : ratiosAndAngles) {
    north->setDirectionRatios(ratios);
    EXPECT_NEAR(project->getTrueNorth(), angle, 1e-12);
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

}  // namespace
}  // namespace qor::fc
