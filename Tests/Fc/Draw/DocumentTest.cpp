#include "Fc/Document/Document.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>

#include "Fc/Core/ProductExtension/FcOpeningElement.h"
#include "Fc/Core/ProductExtension/FcRelSpaceBoundary.h"
#include "Fc/Core/ProductExtension/FcRelVoidsElement.h"
#include "Fc/Core/ProductExtension/FcSpace.h"
#include "Fc/Document/FcDrawInterfaceWrapper.h"
#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/Resource/GeometricConstraint/FcConnectionPointGeometry.h"
#include "Fc/Resource/GeometricModel/FcBlock.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/PresentationAppearance/FcColourRgb.h"
#include "Fc/Resource/PresentationAppearance/FcCurveStyle.h"
#include "Fc/Resource/PresentationAppearance/FcStyledItem.h"
#include "Fc/Resource/PresentationDefinition/FcTextLiteral.h"
#include "Qor/Math/Epsilon.h"
#include "Tests/Fc/Draw/Drawing.h"
#include "Tests/Support/ExpectAsserts.h"
#include "Tests/Support/Make.h"

namespace qor::fc {
namespace {

using core::kernel::FcProduct;
using namespace core::productextension;
using document::Document;
using math::Epsilon;
using math::EpsilonSave;
using resource::geometricconstraint::FcConnectionPointGeometry;
using resource::geometricmodel::FcBlock;
using resource::geometry::makePlacement;
using resource::geometry::makePoint;
using namespace resource::presentationappearance;
using resource::presentationdefinition::FcTextLiteral;
using testing::ElementsAre;
using testing::IsEmpty;

/// A target that knows neither objects nor materials.
class PlainTarget : public generate::draw::DrawInterfaceBase {
 public:
  int polylines = 0;
  double length = 0;

  void vTransformationSet(const math::Matrix&) override {}
  math::Matrix transformationGet() const override { return {}; }
  void vTransformationMultiply(const math::Matrix&, math::MatrixMultiplyOrder) override {}
  void vPolyline(const std::vector<math::Point3d>&) override {
    ++polylines;
    length = Epsilon::current().length;
  }
  using DrawInterfaceBase::vPolygon;
  void vPolygon(const std::vector<Loop3d>&,
                std::optional<generate::draw::SurfaceDrawType>) override {}
  void vTextLiteral(const char*, std::size_t) override {}
};

TEST(Documents, DrawNothingWithoutAModelOrAProject) {
  const test::ExpectAsserts none;
  test::RecordingTarget target;
  Document(nullptr).generate(target);
  Document(std::make_shared<Data>()).generate(target);
  EXPECT_THAT(target.calls, IsEmpty());
}

TEST(Documents, DrawIntoAnyTarget) {
  test::SmallModel model;
  model.give(*model.storey, {model.shape("Body", {model.line()})});
  PlainTarget plain;
  const Document document(model.data);
  const generate::document::DocumentBase& base = document;
  base.generate(plain);
  EXPECT_EQ(plain.polylines, 1);

  test::RecordingTarget target;
  FcDrawInterfaceWrapper wrapper(target);
  base.generate(static_cast<generate::draw::DrawInterface&>(wrapper));
  document.generate(static_cast<FcDrawInterface&>(wrapper));
  EXPECT_EQ(target.callsOf("polyline").size(), 2U);
}

TEST(Documents, DrawWhatTheirStatusSays) {
  test::SmallModel model;
  model.give(*model.storey, {model.shape("Body", {model.line()})});
  Document document(model.data);
  document.drawStatus().setEnabled(
      std::type_index(typeid(core::productextension::FcBuildingStorey)), false);
  test::RecordingTarget target;
  document.generate(target);
  EXPECT_THAT(target.calls, ElementsAre("start IfcBuildingStorey Storey", "stop"));
}

TEST(Documents, DrawWithTolerancesForAModelAndKeepThoseOfTheCaller) {
  test::SmallModel model;
  model.give(*model.storey, {model.shape("Body", {model.line()})});
  const EpsilonSave save;
  Epsilon::current().length = 0.5;
  PlainTarget plain;
  Document(model.data).generate(plain);
  EXPECT_EQ(plain.length, 1000.0 * 1e-9);
  EXPECT_EQ(Epsilon::current().length, 0.5);
}

/// Everything that opens a scope on a target: objects and their parts, openings, blocks within
/// blocks, a boundary, a text; and a style, a placement, lines and faces.
test::SmallModel modelOfEveryScope() {
  test::SmallModel model;
  const auto wall = model.wall("Wall"), part = model.wall("Part"), cut = model.wall("Cut");
  wall->aggregatesConnect(*model.data, part);
  model.place(*wall, math::Matrix::createTranslation({1, 0, 0}));
  const auto inner = model.map({model.line(1)});
  const auto outer = model.map({model.mapped(inner), model.line(2)});
  const auto styled = model.line(3);
  const auto colour = test::make<FcColourRgb>({{"Red", 1}, {"Green", 0}, {"Blue", 0}});
  const auto style = test::make<FcCurveStyle>({{"CurveColour", colour}});
  test::give(*model.data->create<FcStyledItem>(),
             {{"Item", styled}, {"Styles", std::vector{style}}});
  const auto text = test::make<FcTextLiteral>(
      {{"Literal", "Room"}, {"Placement", makePlacement(math::Matrix())}});
  const auto block = test::make<FcBlock>({{"XLength", 1}, {"YLength", 1}, {"ZLength", 1}});
  model.give(*wall, {model.shape("Body", {model.mapped(outer), styled, text}),
                     model.shape("Axis", {model.mapped(inner), block})});
  const auto opening = model.make<FcOpeningElement>("Opening");
  for (const auto& product :
       {std::static_pointer_cast<FcProduct>(cut), std::static_pointer_cast<FcProduct>(opening)})
    model.give(*product, {model.shape("Axis", {model.line(4)}), model.shape("Body", {block})});
  test::give(*model.make<FcRelVoidsElement>(),
             {{"RelatingBuildingElement", cut}, {"RelatedOpeningElement", opening}});
  const auto space = model.make<FcSpace>("Space");
  model.storey->aggregatesConnect(*model.data, space);
  const auto place = test::make<FcConnectionPointGeometry>(
      {{"PointOnRelatingElement", makePoint(math::Point3d(1, 2, 3))}});
  test::give(*model.make<FcRelSpaceBoundary>("Boundary"),
             {{"RelatingSpace", space}, {"ConnectionGeometry", place}});
  return model;
}

TEST(Documents, LeaveNothingBehindWhereverATargetThrows) {
  const test::SmallModel model = modelOfEveryScope();
  const Document document(model.data);
  const auto drawnAgain = [&] {
    test::RecordingBlockTarget target;
    document.generate(target);
    return target.calls;
  };
  const auto expected = drawnAgain();
  const auto frame = math::Matrix::createTranslation({0, 0, 5});
  const EpsilonSave save;
  Epsilon::current().length = 0.5;
  for (std::size_t failing = 0;; ++failing) {
    SCOPED_TRACE(failing);
    test::RecordingBlockTarget target;
    target.vTransformationSet(frame);
    target.callsBeforeFailure = failing;
    FcDrawInterfaceWrapper wrapper(target);
    bool hasThrown = false;
    try {
      document.generate(static_cast<FcDrawInterface&>(wrapper));
    } catch (const test::RecordingTarget::Failure&) {
      hasThrown = true;
    }
    target.callsBeforeFailure = std::numeric_limits<std::size_t>::max();
    EXPECT_EQ(target.depth(), 0);
    EXPECT_EQ(target.transformationGet(), frame);
    EXPECT_FALSE(wrapper.isClipping());
    EXPECT_EQ(Epsilon::current().length, 0.5);
    EXPECT_EQ(drawnAgain(), expected);
    if (hasThrown) continue;
    EXPECT_GT(failing, expected.size()) << "no call is left out";
    break;
  }
}

TEST(Documents, TellOfAllRootsByOneObject) {
  test::SmallModel model;
  const Document document(model.data);
  auto* const object = document.object(nullptr);
  EXPECT_EQ(object, document.object(model.storey));
  EXPECT_EQ(object->objectGet(), nullptr);
  object->objectSet(model.storey);
  EXPECT_EQ(object->objectGet(), model.storey.get());
  const auto point = model.data->create<resource::geometry::FcCartesianPoint>();
  object->objectSet(point.get());
  EXPECT_EQ(object->objectGet(), point.get());
  object->objectSet(static_cast<const FcBase*>(nullptr));
  EXPECT_EQ(object->objectGet(), nullptr);
  const auto wall = std::make_unique<shared::buildingelements::FcWall>();
  EXPECT_THROW(object->objectSet(static_cast<const FcBase*>(wall.get())), std::bad_weak_ptr);
  EXPECT_EQ(document.getProductInterface().lock(), nullptr);
}

/// A target that throws at what guards do on their way out.
class Thrower : public test::RecordingBlockTarget {
 public:
  enum class At { stopObject, frame, stopBlock } at = At::stopObject;
  bool armed = true;
  bool failsBefore = false;  ///< throws `Failure` at a polyline, too

  void vPolyline(const std::vector<math::Point3d>& points) override {
    if (armed && failsBefore) throw Failure();
    RecordingTarget::vPolyline(points);
  }
  void stopObject() override {
    RecordingTarget::stopObject();
    throwAt(At::stopObject);
  }
  void vTransformationSet(const math::Matrix& matrix) override {
    RecordingTarget::vTransformationSet(matrix);
    throwAt(At::frame);
  }
  void stopBlock() override {
    RecordingBlockTarget::stopBlock();
    throwAt(At::stopBlock);
  }

 private:
  void throwAt(At place) const {
    if (armed && place == at) throw std::logic_error("at the end");
  }
};

TEST(Documents, LetOutWhatATargetThrowsWhileItIsRestored) {
  test::SmallModel model;
  model.give(*model.storey, {model.shape("Body", {model.mapped(model.map({model.line()}))})});
  model.place(*model.storey, math::Matrix::createTranslation({1, 0, 0}));
  for (const auto at : {Thrower::At::stopObject, Thrower::At::frame, Thrower::At::stopBlock}) {
    for (const bool failsBefore : {false, true}) {
      Thrower target;
      target.at = at;
      target.failsBefore = failsBefore;
      if (failsBefore) {
        EXPECT_THROW(Document(model.data).generate(target), Thrower::Failure);
      } else {
        EXPECT_THROW(Document(model.data).generate(target), std::logic_error);
      }
      EXPECT_EQ(target.depth(), 0);
      target.armed = false;
      target.calls.clear();
      Document(model.data).generate(target);
      EXPECT_EQ(target.callsOf("start").size(), 1U) << "the next draw is sound";
    }
  }
}

TEST(Documents, DrawOneModelOnSeveralThreads) {
  test::SmallModel model;
  const auto map = model.map({model.line()});
  test::SmallModel::Items items;
  for (int i = 0; i < 2000; ++i) items.push_back(model.mapped(map));
  const auto shape = model.shape("Body", items);
  model.give(*model.storey, {shape});
  model.data->allEntities();
  std::vector<std::size_t> polylines(4);
  std::vector<std::thread> threads;
  for (std::size_t& count : polylines)
    threads.emplace_back([&model, &shape, &count] {
      test::RecordingTarget target;
      FcDrawInterfaceWrapper wrapper(target);
      shape->draw(FcDrawParams(wrapper));
      count = target.callsOf("polyline").size();
    });
  for (std::thread& thread : threads) thread.join();
  EXPECT_THAT(polylines, ElementsAre(2000U, 2000U, 2000U, 2000U));
}

}  // namespace
}  // namespace qor::fc
