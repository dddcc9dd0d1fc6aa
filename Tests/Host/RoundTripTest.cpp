#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

#include "Fc/Reflection/ClassInfo.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcDirection.h"
#include "Host/StepFile/StepReader.h"
#include "Host/StepFile/StepWriter.h"
#include "Host/StepFile/TakeApart.h"
#include "Tests/Host/CanonicalStep.h"
#include "Tests/Host/StepText.h"
#include "Tests/Support/SharedModels.h"

namespace qor::host::step {
namespace {

using test::canonicalStatements;
using test::readStatements;
using test::stepFile;

std::string textOf(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

const ReadOptions asInTheFile{.keepUnits = true};

std::string written(const ReadResult& model) {
  std::string text;
  writeStep(*model.data, text, {.header = model.header, .numbers = model.instances});
  return text;
}

/// Number of the entity in its file, by entity.
std::map<const fc::FcBase*, std::uint64_t> numbersOf(const ReadResult& model) {
  std::map<const fc::FcBase*, std::uint64_t> numbers;
  for (const NumberedEntity& instance : model.instances)
    numbers[instance.entity.get()] = instance.number;
  return numbers;
}

/// Compares values, and references by the numbers of what they refer to.
class SameModel {
 public:
  SameModel(const ReadResult& a, const ReadResult& b)
      : m_a(a), m_b(b), m_numbersA(numbersOf(a)), m_numbersB(numbersOf(b)) {}

  void expect() {
    ASSERT_EQ(m_a.instances.size(), m_b.instances.size());
    for (std::size_t i = 0; i < m_a.instances.size(); ++i) {
      const fc::FcBase& a = *m_a.instances[i].entity;
      const fc::FcBase& b = *m_b.instances[i].entity;
      ASSERT_EQ(&a.classInfo(), &b.classInfo()) << m_a.instances[i].number;
      const auto compare = [&](const fc::AttributeInfo& attribute) {
        EXPECT_TRUE(same(a.getLocalValue(attribute.id()), b.getLocalValue(attribute.id())))
            << '#' << m_a.instances[i].number << ' ' << a.ifcName() << '.' << attribute.name;
      };
      a.classInfo().forEachAttribute(compare);
    }
  }

 private:
  using List = fc::LocalValue::List;

  bool same(const fc::LocalValue& a, const fc::LocalValue& b) {
    if (a.index() != b.index() || a.typeName != b.typeName) return false;
    if (const auto* entity = std::get_if<std::shared_ptr<fc::FcBase>>(&a.value))
      return m_numbersA.at(entity->get()) ==
             m_numbersB.at(std::get<std::shared_ptr<fc::FcBase>>(b.value).get());
    if (const auto* list = std::get_if<List>(&a.value)) {
      const List& other = std::get<List>(b.value);
      return std::equal(
          list->begin(), list->end(), other.begin(), other.end(),
          [this](const fc::LocalValue& x, const fc::LocalValue& y) { return same(x, y); });
    }
    return a.value == b.value;
  }

  const ReadResult& m_a;
  const ReadResult& m_b;
  std::map<const fc::FcBase*, std::uint64_t> m_numbersA;
  std::map<const fc::FcBase*, std::uint64_t> m_numbersB;
};

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

class RealModel : public testing::TestWithParam<std::filesystem::path> {};

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
  ReadResult sound = model;
  std::erase_if(sound.instances, [](const NumberedEntity& instance) { return !instance.entity; });
  SameModel(sound, again).expect();
}

TEST_P(RealModel, IsWrittenAsItWasReadButForTheFormatting) {
  const ReadResult model = readStepFile(GetParam(), asInTheFile);
  if (model.header.schemas != std::vector<std::string>{"IFC4X3_ADD2"})
    GTEST_SKIP() << "of an older schema";
  const auto before = canonicalStatements(textOf(GetParam()));
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

INSTANTIATE_TEST_SUITE_P(RoundTrip, RealModel, testing::ValuesIn(test::sharedModels()),
                         test::modelTestName);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(RealModel);

}  // namespace
}  // namespace qor::host::step
