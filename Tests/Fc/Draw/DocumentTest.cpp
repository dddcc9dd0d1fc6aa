#include "Fc/Document/Document.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Fc/Document/FcDrawInterfaceWrapper.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Qor/Math/Epsilon.h"
#include "Tests/Fc/Draw/Drawing.h"
#include "Tests/Support/ExpectAsserts.h"

namespace qor::fc {
namespace {

using document::Document;
using math::Epsilon;
using math::EpsilonSave;
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

TEST(Documents, KeepTheTolerancesOfTheCallerAlsoWhenATargetThrows) {
  test::SmallModel model;
  model.give(*model.storey, {model.shape("Body", {model.line()})});
  const EpsilonSave save;
  Epsilon::current().length = 0.5;
  PlainTarget plain;
  Document(model.data).generate(plain);
  EXPECT_EQ(plain.length, 1000.0 * 1e-9);
  EXPECT_EQ(Epsilon::current().length, 0.5);

  test::RecordingTarget target;
  target.problem = "full";
  model.place(*model.storey, math::Matrix::createTranslation({1, 0, 0}));
  EXPECT_THROW(Document(model.data).generate(target), std::runtime_error);
  EXPECT_EQ(Epsilon::current().length, 0.5);
  EXPECT_EQ(target.depth(), 0);
  EXPECT_EQ(target.transformationGet(), math::Matrix());
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

}  // namespace
}  // namespace qor::fc
