#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcDirection.h"
#include "Host/StepFile/StepReader.h"
#include "Host/StepFile/StepWriter.h"
#include "Tests/Host/CanonicalStep.h"
#include "Tests/Host/CloseModels.h"
#include "Tests/Support/SharedModels.h"

namespace qor::host::step {
namespace {

using test::canonicalStatements;

const ReadOptions asInTheFile{.keepUnits = true};

std::string written(const ReadResult& model) {
  std::string text;
  writeStep(*model.data, text, {.header = model.header, .numbers = model.instances});
  return text;
}

TEST(Writing, NumbersEntitiesOfAClassInTheOrderInWhichTheyWereAdded) {
  fc::Data data;
  constexpr int count = 500;
  for (int i = 0; i < count; ++i) {
    data.create<fc::resource::geometry::FcDirection>();
    data.create<fc::resource::geometry::FcCartesianPoint>()->setCoordinates({double(i), 0.0});
  }
  std::string text;
  writeStep(data, text);
  std::size_t at = 0;
  for (int i = 0; i < count; ++i) {
    at = text.find("=IFCCARTESIANPOINT((" + std::to_string(i) + ".,", at);
    ASSERT_NE(at, std::string::npos) << i;
  }
}

class RealModel : public test::ModelTest {};

TEST_P(RealModel, ReadsBackTheSameWhenItWasWritten) {
  const ReadResult model = readStepFile(GetParam(), asInTheFile);
  ASSERT_TRUE(model.data) << model.failure;
  const ReadResult again = readStep(written(model), asInTheFile);
  ASSERT_TRUE(again.data) << again.failure;
  // A value that an older schema needn't have may be one that IFC4X3_ADD2 asks for.
  for (const Problem& problem : again.problems) {
    if (problem.kind == ProblemKind::unit) continue;  // as the file had it
    const bool isOlder = model.header.schemas != again.header.schemas;
    EXPECT_TRUE(isOlder && problem.kind == ProblemKind::missingValue) << problem.toString();
  }
  const auto isThere = [](const NumberedEntity& instance) { return instance.entity != nullptr; };
  EXPECT_EQ(std::ranges::count_if(model.instances, isThere), std::ssize(again.instances));
  EXPECT_THAT(test::differences(model, again), testing::IsEmpty());
}

TEST_P(RealModel, IsWrittenAsItWasReadButForTheFormatting) {
  const ReadResult model = readStepFile(GetParam(), asInTheFile);
  // What an older schema calls otherwise is written by its new name.
  if (model.header.schemas != std::vector<std::string>{"IFC4X3_ADD2"}) return;
  const auto before = canonicalStatements(test::readFile(GetParam()));
  const auto after = canonicalStatements(written(model));
  EXPECT_EQ(before.size(), after.size());
  std::vector<std::string> differences;
  for (const auto& [number, statement] : before) {
    const std::string now = after.contains(number) ? after.at(number) : "nothing";
    if (now != statement)
      differences.push_back('#' + std::to_string(number) + '=' + statement + " became " + now);
  }
  // Where a file breaks its own schema the log says so.
  std::uint64_t mended = 0;
  for (const Problem& problem : model.problems) mended += problem.count;
  EXPECT_LE(differences.size(), mended) << testing::PrintToString(differences);
}

FC_INSTANTIATE_FOR_MODELS(RealModel, test::sharedModels());

}  // namespace
}  // namespace qor::host::step
