#include <gtest/gtest.h>

#include <random>
#include <span>
#include <vector>

#include "Fc/Data.h"
#include "Fc/Document/Document.h"
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

/// Those that don't take too long for many walks.
std::vector<std::filesystem::path> smallModels() {
  std::vector<std::filesystem::path> models = test::allModels();
  std::erase_if(models, [](const auto& path) { return std::filesystem::file_size(path) > 100000; });
  return models;
}

class DrawnRealModel : public test::ModelTest {
 protected:
  const Quiet quiet;
};

/// Takes a value that refers to entities out of one of them; nothing when the one drawn has none.
void loseAReference(const EntityRange<FcBase>& entities, std::mt19937& random) {
  FcBase& entity = *entities[random() % entities.size()];
  std::vector<object::PropertyId> references;
  entity.forEachEntity([&](const auto&, const object::PropertyId& id) { references.push_back(id); },
                       false);
  if (references.empty()) return;
  const object::PropertyId lost = references[random() % references.size()];
  ASSERT_TRUE(entity.setLocalValue(LocalValue(details::EmptyValue()), lost)) << lost.name();
}

TEST_P(DrawnRealModel, SurvivesTheLossOfReferences) {
  for (std::uint32_t seed = 1; seed <= 5; ++seed) {
    std::mt19937 random(seed);
    const auto data = host::step::readStepFile(GetParam()).data;
    test::RecordingTarget target;
    for (int i = 0; i < 40; ++i) {
      loseAReference(data->allEntities(), random);
      target.calls.clear();
      document::Document(data).generate(target);
      EXPECT_EQ(target.depth(), 0);
      EXPECT_EQ(target.transformationGet(), math::Matrix());
    }
  }
}

FC_INSTANTIATE_FOR_MODELS(DrawnRealModel, smallModels());

}  // namespace
}  // namespace qor::fc
