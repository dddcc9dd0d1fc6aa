#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Fc/Document/FcDrawInterfaceWrapper.h"
#include "Fc/Drawing/FcClip.h"
#include "Fc/Factory.h"
#include "Fc/FcParams.h"
#include "Fc/Model/NotImplemented.h"
#include "Fc/Resource/GeometricModel/FcBooleanClippingResult.h"
#include "Fc/Resource/GeometricModel/FcBoundingBox.h"
#include "Fc/Resource/GeometricModel/FcExtrudedAreaSolidTapered.h"
#include "Fc/Resource/GeometricModel/FcGeometricCurveSet.h"
#include "Fc/Resource/GeometricModel/FcSectionedSurface.h"
#include "Fc/Resource/GeometricModel/FcTriangulatedIrregularNetwork.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcCartesianTransformationOperator3D.h"
#include "Fc/Resource/PresentationDefinition/FcTextLiteralWithExtent.h"
#include "Fc/Resource/PresentationOrganization/FcLightSourceSpot.h"
#include "Fc/Utilities/DrawForDebug.h"
#include "Tests/Fc/Draw/Drawing.h"
#include "Tests/Support/ExpectAsserts.h"
#include "Tests/Support/Make.h"

namespace qor::fc {
namespace {

using namespace resource::geometricmodel;
using namespace resource::geometry;
using namespace math;
using resource::presentationdefinition::FcTextLiteralWithExtent;
using test::drawn;
using test::ExpectAsserts;
using test::make;
using test::shapesOf;
using testing::ElementsAre;
using testing::IsEmpty;

const FcParams fine{CurveDiscretization(0.001, 12, 72)};
constexpr const char* circular = "Circular dependency in mapped item";

class Items : public testing::Test {
 protected:
  std::shared_ptr<FcMappedItem> moved(const test::SmallModel::Map& map, double x) {
    auto item = model.mapped(map);
    item->setMappingTarget(make<FcCartesianTransformationOperator3D>(
        {{"LocalOrigin", makePoint(math::Point3d(x, 0, 0))}, {"Scale", 2}}));
    return item;
  }

  test::SmallModel model;
};

TEST_F(Items, PutAMapToItsPlace) {
  const auto map = model.map({model.line(1)});
  map->setMappingOrigin(std::make_shared<FcAxis2Placement3D>(Matrix::createTranslation({0, 5, 0})));
  const auto item = moved(map, 100);
  test::RecordingTarget target;
  EXPECT_THAT(shapesOf(drawn(item, target)), ElementsAre("polyline (102 10 0) (104 10 0)"));
  EXPECT_EQ(target.transformationGet(), Matrix());
  EXPECT_EQ(item->boundingBox(fine), Extent({102, 10, 0}, {104, 10, 0}));
  item->transform(Matrix::createTranslation({0, 0, 1}));
  EXPECT_EQ(item->boundingBox(fine), Extent({102, 10, 1}, {104, 10, 1}));
}

TEST_F(Items, FillABlockOnceAndPlaceItOften) {
  const auto map = model.map({model.line()});
  test::RecordingBlockTarget target;
  drawn(moved(map, 1), target);
  EXPECT_THAT(shapesOf(drawn(moved(map, 2), target)),
              ElementsAre("block", "polyline (1 0 0) (3 0 0)", "end", "block again", "end"));
}

TEST_F(Items, CountAsShownUnlessTheirBlockIsEmpty) {
  test::RecordingBlockTarget target;
  FcDrawInterfaceWrapper wrapper(target);
  const auto counted = [&](const test::SmallModel::Item& item) {
    const auto before = wrapper.shownCount().value();
    item->draw(FcDrawParams(wrapper));
    return wrapper.shownCount().value() - before;
  };
  const auto line = model.mapped(model.map({model.line(), model.line()}));
  const auto empty = model.mapped(model.map({}));
  for (const auto& item : {model.mapped(model.map({line, empty})), line})
    EXPECT_EQ(counted(item), item == line ? 1u : 2u);
  EXPECT_EQ(counted(line), 1u) << "a known block";
  EXPECT_EQ(counted(empty), 0u);
  EXPECT_EQ(counted(model.mapped(model.map({empty}))), 0u);
}

TEST_F(Items, AreMovedInTheRepresentationsThatAreChosen) {
  const auto body = model.shape("Body", {model.line()}), axis = model.shape("Axis", {model.line()});
  const auto wall = model.wall("South");
  model.give(*wall, {body, axis});
  wall->Representation()->transform(
      math::Matrix::createTranslation({5, 0, 0}),
      [&](const auto& representation) { return representation == body; });
  EXPECT_THAT(shapesOf(drawn(*body->Items().begin())), ElementsAre("polyline (5 0 0) (6 0 0)"));
  EXPECT_THAT(shapesOf(drawn(*axis->Items().begin())), ElementsAre("polyline (0 0 0) (1 0 0)"));
}

TEST_F(Items, CutAMapThatLiesWithinItself) {
  const auto map = model.map({model.line()});
  const auto first = model.mapped(map), second = model.mapped(map);
  map->MappedRepresentation()->setItems({model.line(), first, second, model.line(2)});
  const auto outer = model.mapped(map);
  const ExpectAsserts expected({circular, circular, circular, circular, circular});
  EXPECT_THAT(shapesOf(drawn(outer)),
              ElementsAre("polyline (0 0 0) (1 0 0)", "polyline (2 0 0) (3 0 0)"));
  EXPECT_EQ(drawn(first).size(), 3U) << "the same again: no flag stays behind";
  EXPECT_EQ(outer->boundingBox(fine), std::nullopt);
  map->MappedRepresentation()->setItems({});  // a circle would own itself for ever
}

TEST_F(Items, CutMapsThatLieTooDeepInEachOther) {
  test::SmallModel::Item item = model.line();
  for (int i = 0; i < 100000; ++i) item = model.mapped(model.map({model.line(i), item}));
  const ExpectAsserts expected({circular});
  EXPECT_EQ(shapesOf(drawn(item)).size(), 256U);
}

// Every class of items can be asked everything while it is empty, and every base form names it.
TEST_F(Items, AnswerForEveryClassWhileTheyAreEmpty) {
  std::size_t classes = 0, silent = 0;
  std::vector<std::string> reports;
  const auto previous =
      Assert::setHandler([&](const AssertInfo& info) { reports.push_back(info.message); });
  for (const ClassInfo* info : Factory::classes()) {
    if (info->isAbstract() || !FcRepresentationItem::record.contains(info->classId)) continue;
    const auto item = std::static_pointer_cast<FcRepresentationItem>(info->create());
    reports.clear();
    EXPECT_THAT(shapesOf(drawn(item)), testing::SizeIs(testing::Le(1U))) << info->name.text;
    item->boundingBox(fine);
    item->representationGet();
    for (const std::string& report : reports)
      if (report.find(" not implemented for: ") != std::string::npos) {
        EXPECT_TRUE(report.ends_with(std::string("::Fc") + (info->name.text + 3))) << report;
      }
    silent += reports.empty();
    ++classes;
  }
  Assert::setHandler(previous);
  EXPECT_GT(classes, 100U);
  EXPECT_LT(silent, classes / 4);
}

TEST(ItemNames, AreThoseOfTheClassesInTheSource) {
  EXPECT_EQ(runTimeTypeName(FcSectionedSurface()),
            "class qor::fc::resource::geometricmodel::FcSectionedSurface");
  EXPECT_EQ(runTimeTypeName(FcTextLiteralWithExtent()),
            "class qor::fc::resource::presentationdefinition::FcTextLiteralWithExtent");
}

TEST(Representations, SayWhatTheirItemsAre) {
  const struct {
    std::shared_ptr<FcRepresentationItem> item;
    int identifier, type;
  } cases[] = {{make<FcCartesianPoint>(), 2, 1},
               {make<FcPolyline>(), 2, 3},
               {make<FcGeometricSet>(), 2, 12},
               {make<FcGeometricCurveSet>(), 2, 13},
               {make<FcTriangulatedIrregularNetwork>(), 7, 16},
               {make<FcExtrudedAreaSolid>(), 7, 18},
               {make<FcExtrudedAreaSolidTapered>(), 7, 19},
               {make<FcBooleanClippingResult>(), 7, 22},
               {make<resource::presentationorganization::FcLightSourceSpot>(), 10, 26},
               {make<FcMappedItem>(), 7, 27}};
  for (const auto& [item, identifier, type] : cases) {
    const auto found = item->representationGet();
    EXPECT_EQ(static_cast<int>(found.identifier.value()), identifier) << item->ifcName();
    EXPECT_EQ(static_cast<int>(found.type.value()), type) << item->ifcName();
  }
  EXPECT_TRUE(FcBoundingBox().representationGet().empty());
}

TEST_F(Items, UniteTheirBoxesUnlessOneHasNone) {
  const auto shape = model.shape("Body", {model.line(), model.line(4)});
  EXPECT_EQ(shape->boundingBox(fine), Extent({0, 0, 0}, {5, 0, 0}));
  EXPECT_FALSE(model.shape("Body", {})->boundingBox(fine).value().isValid());
  shape->insertItems(model.make<FcTextLiteralWithExtent>());
  const ExpectAsserts expected(
      {"boundingBox() not implemented for class: class "
       "qor::fc::resource::presentationdefinition::FcTextLiteralWithExtent"});
  EXPECT_EQ(shape->boundingBox(fine), std::nullopt);
}

TEST(Clipping, NestsLikeAStack) {
  FcClip clip;
  const FcClip::ClipObject object{std::make_shared<FcPolyline>(), Matrix()};
  FcClip::ClippingItemsWorker outer(clip);
  outer.addClipObject(object);
  {
    FcClip::ClippingItemsWorker inner(clip);
    inner.addClipObject(object);
    inner.addClipObject(object);
    {
      const FcClip::RestoreClipping uncut(clip);
      EXPECT_FALSE(clip.isClipping());
      FcClip::ClippingItemsWorker within(clip);
      within.addClipObject(object);
    }
    EXPECT_EQ(clip.clipObjects().size(), 3U);
  }
  EXPECT_EQ(clip.clipObjects().size(), 1U);
}

TEST(Parameters, OwnTheirDiscretizationAndKeepTheFlag) {
  test::RecordingTarget target(CurveDiscretization(0.5, 3, 7));
  FcDrawInterfaceWrapper wrapper(target);
  FcDrawParams draw(wrapper);
  draw.skipExpensiveClipping = true;
  FcParams params{FcDrawParams(draw, wrapper)};
  EXPECT_TRUE(params.skipExpensiveClipping);
  EXPECT_EQ(params.curveDiscretization().maxSegmentsOfFullCircle(), 7U);
  const FcParams other(params, CurveDiscretization(0.5, 3, 9));
  EXPECT_TRUE(other.skipExpensiveClipping);
  params.curveDiscretization().setMinMaxSegmentsOfFullCircle(4, 5);
  EXPECT_EQ(target.curveDiscretization().maxSegmentsOfFullCircle(), 7U);
  EXPECT_FALSE(
      FcParams(static_cast<generate::draw::DrawInterfaceBase&>(target)).skipExpensiveClipping);
  FcParams copy(other);
  copy = params;
  EXPECT_EQ(copy.curveDiscretization().maxSegmentsOfFullCircle(), 5U);
}

TEST(Parameters, OfAHostsOwnWrapperAreThoseOfTheTarget) {
  class HostsWrapper : public FcDrawInterfaceWrapper {
   public:
    using FcDrawInterfaceWrapper::FcDrawInterfaceWrapper;
  };
  test::RecordingTarget target(CurveDiscretization(0.5, 3, 7));
  HostsWrapper wrapper(target);
  EXPECT_EQ(FcParams(FcDrawParams(wrapper)).curveDiscretization().maxSegmentsOfFullCircle(), 7U);
}

TEST_F(Items, HandPolylinesAndTextsThroughTheWrapperAsTheyAre) {
  test::RecordingTarget target;
  FcDrawInterfaceWrapper wrapper(target);
  const std::vector<math::Point3d> points(1000000);
  wrapper.vPolyline(points);
  EXPECT_EQ(target.lastPoints, points.data());
  wrapper.vTextLiteral("Room 12", 7);
  EXPECT_THAT(target.callsOf("text"), ElementsAre("text Room 12 (0 0 0)"));
}

TEST_F(Items, ShowForDebuggingWhatHasSomethingToShow) {
  test::RecordingTarget target;
  FcDrawInterfaceWrapper wrapper(target);
  const FcDrawParams params(wrapper);
  Assert::setEnabled(false);
  utilities::drawForDebug(params, *model.shape("Body", {model.line(), nullptr}), 0.1);
  utilities::drawForDebug(params, FcAxis2Placement3D(Matrix()), 0.1);
  utilities::drawForDebug(params, *model.storey, 0.1);
  Assert::setEnabled(true);
  EXPECT_THAT(target.callsOf("material"),
              ElementsAre("material 1 0 0", "material 0 1 0", "material 0 0 1"));
  EXPECT_EQ(target.callsOf("polyline").size(), 1U);
}

}  // namespace
}  // namespace qor::fc
