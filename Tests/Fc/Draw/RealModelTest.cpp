#include <gtest/gtest.h>

#include <random>

#include "Fc/Data.h"
#include "Fc/Document/Document.h"
#include "Fc/FcGenerateParams.h"
#include "Host/StepFile/StepReader.h"
#include "Tests/Support/RecordingTarget.h"
#include "Tests/Support/SharedModels.h"

namespace qor::fc {
namespace {

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
    EXPECT_EQ(target.transformationGet(), math::Matrix());
  }
  FcGenerateParams::removeCache(*data);
}

INSTANTIATE_TEST_SUITE_P(SharedModels, DrawnRealModel, testing::ValuesIn(test::sharedModels()),
                         test::modelTestName);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(DrawnRealModel);

}  // namespace
}  // namespace qor::fc
