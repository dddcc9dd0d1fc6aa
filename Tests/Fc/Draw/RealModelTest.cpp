#include <gtest/gtest.h>

#include <optional>
#include <random>

#include "Fc/Core/Kernel/FcProduct.h"
#include "Fc/Core/Kernel/FcProject.h"
#include "Fc/Data.h"
#include "Fc/Document/Document.h"
#include "Fc/Document/Object.h"
#include "Fc/FcDrawInterfaceWrapper.h"
#include "Fc/FcGenerateParams.h"
#include "Fc/Resource/GeometricConstraint/FcObjectPlacement.h"
#include "Host/StepFile/StepReader.h"
#include "Qor/Assert/Exception.h"
#include "Tests/Support/RecordingTarget.h"
#include "Tests/Support/SharedModels.h"

namespace qor::fc {
namespace {

using namespace core::kernel;
using math::Matrix;
using math::Point3d;

// Empty where the placement can't be computed.
std::optional<Matrix> frameOf(const FcProduct& product) try {
  return product.ObjectPlacement() ? product.ObjectPlacement()->placementGet(false) : Matrix();
} catch (const exception&) {
  return {};
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
    const auto expected = frameOf(product);
    if (!expected) return;
    ++computed;
    const Matrix found = target.transformationGet();
    for (const Point3d& point : {Point3d(), Point3d(1, 0, 0), Point3d(0, 1, 0), Point3d(0, 0, 1)})
      EXPECT_LT((point * found).distance(point * *expected), 1e-9)
          << product.ifcName() << product.GlobalId().toString(true);
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
