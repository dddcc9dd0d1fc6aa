#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "Fc/Core/Kernel/FcProduct.h"
#include "Fc/Core/Kernel/FcProject.h"
#include "Fc/Data.h"
#include "Fc/Document/Document.h"
#include "Fc/Document/Object.h"
#include "Fc/FcDrawInterfaceWrapper.h"
#include "Fc/FcGenerateParams.h"
#include "Fc/Resource/GeometricConstraint/FcLinearPlacement.h"
#include "Fc/Resource/GeometricConstraint/FcLocalPlacement.h"
#include "Fc/Resource/Geometry/FcAxis2Placement2D.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcDirection.h"
#include "Host/StepFile/StepReader.h"
#include "Qor/Assert/Exception.h"
#include "Tests/Support/RecordingTarget.h"
#include "Tests/Support/SharedModels.h"

namespace qor::fc {
namespace {

using namespace core::kernel;
using namespace math;
using namespace resource::geometricconstraint;
using namespace resource::geometry;

Vector3d ratios(const std::shared_ptr<FcDirection>& direction, const Vector3d& otherwise) {
  if (!direction) return otherwise;
  const auto& r = direction->DirectionRatios();
  return {static_cast<double>(r[0]), static_cast<double>(r[1]), static_cast<double>(r[2])};
}

// The frame as the file's numbers say it, whatever the placements answer.
Matrix frameOf(const FcAxis2Placement& select) {
  const auto* spatial = fcCast<FcAxis2Placement3D>(select.getEntity());
  const auto* planar = fcCast<FcAxis2Placement2D>(select.getEntity());
  if (!spatial && !planar) return {};
  const auto point = fcCast<FcCartesianPoint>(spatial ? spatial->Location() : planar->Location());
  const auto& at = point->Coordinates();
  const auto scaled = [](const Vector3d& v) { return v * (1 / std::sqrt(v.dot(v))); };
  const Vector3d z = scaled(ratios(spatial ? spatial->Axis() : nullptr, {0, 0, 1}));
  const Vector3d r = ratios(spatial ? spatial->RefDirection() : planar->RefDirection(), {1, 0, 0});
  const Vector3d x = scaled(r - z * r.dot(z));
  return {x, z.cross(x), z, Point3d(at[0], at[1], at[2])};
}

// Empty where a placement of another kind than a local one takes part.
std::optional<Matrix> chain(const FcObjectPlacement* placement) {
  Matrix frame;
  for (; placement; placement = placement->PlacementRelTo().get()) {
    const auto* linear = fcCast<FcLinearPlacement>(placement);
    const auto* local = fcCast<FcLocalPlacement>(placement);
    if (!local && !(linear && linear->CartesianPosition())) return {};
    frame = frame * frameOf(local ? local->RelativePlacement()
                                  : FcAxis2Placement(linear->CartesianPosition()));
  }
  return frame;
}

class OneObject : public ObjectInterfaceFactory {
 public:
  ObjectInterface* object(const std::shared_ptr<FcRoot>& /*root*/) const override {
    return &m_object;
  }

 private:
  mutable document::Object m_object;
};

/// Asserts are no part of these tests.
class Quiet {
 public:
  Quiet() : m_previous(Assert::setHandler([](const AssertInfo&) {})) {}
  Quiet(const Quiet&) = delete;
  Quiet& operator=(const Quiet&) = delete;
  ~Quiet() { Assert::setHandler(m_previous); }

 private:
  Assert::Handler m_previous;
};

class DrawnRealModel : public testing::TestWithParam<std::filesystem::path> {
 protected:
  const Quiet quiet;
  const std::shared_ptr<Data> data = host::step::readStepFile(GetParam()).data;
};

TEST_P(DrawnRealModel, OpensEachProductInTheFrameOfItsPlacements) {
  DrawStatus status;
  for (const std::shared_ptr<FcProduct> product : data->entities<FcProduct>())
    status.setEnabled(product.get(), false);
  test::RecordingTarget target;
  FcDrawInterfaceWrapper wrapper(target);
  const OneObject objects;
  FcGenerateParams params(wrapper, objects, status, *data, nullptr, nullptr, nullptr);
  std::size_t opened = 0, computed = 0;
  params.disabledProductCallback = [&](FcGenerateParams&, const FcProduct& product) {
    ++opened;
    const auto expected = chain(product.ObjectPlacement().get());
    if (!expected) return;
    ++computed;
    const Matrix found = target.transformationGet();
    for (const Point3d& point : {Point3d(), Point3d(1, 0, 0), Point3d(0, 1, 0), Point3d(0, 0, 1)}) {
      const Vector3d difference = point * found - point * *expected;
      EXPECT_LT(difference.length(), 1e-9)
          << product.ifcName() << product.GlobalId().toString(true);
    }
  };
  const auto project = data->project();
  if (!project) GTEST_SKIP() << "no project";
  project->generate(params);
  FcGenerateParams::removeCache(*data);
  RecordProperty("products", static_cast<int>(opened));
  if (opened == 0) GTEST_SKIP() << "no product below the project";
  EXPECT_GT(computed, 0U) << "of " << opened;
}

TEST_P(DrawnRealModel, SurvivesTheLossOfReferences) {
  if (std::filesystem::file_size(GetParam()) > 100000) GTEST_SKIP() << "too long for many walks";
  std::mt19937 random(4711);
  const auto entities = data->allEntities();
  test::RecordingTarget target;
  for (int i = 0; i < 40; ++i) {
    auto& entity = *entities[random() % entities.size()];
    std::vector<const AttributeInfo*> references;
    entity.classInfo().forEachAttribute([&](const AttributeInfo& attribute) {
      bool refers = false;
      entity.forEachEntity(
          [&](const auto&, const object::PropertyId& id) {
            refers = refers || id == attribute.id();
          },
          false);
      if (refers) references.push_back(&attribute);
    });
    if (references.empty()) continue;
    entity.setLocalValue({}, references[random() % references.size()]->id());
    target.calls.clear();
    document::Document(data).generate(target);
    EXPECT_EQ(target.depth(), 0);
    EXPECT_EQ(target.transformationGet(), Matrix());
  }
  FcGenerateParams::removeCache(*data);
}

INSTANTIATE_TEST_SUITE_P(SharedModels, DrawnRealModel, testing::ValuesIn(test::sharedModels()),
                         test::modelTestName);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(DrawnRealModel);

}  // namespace
}  // namespace qor::fc
