#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace qor::test {

/// Where `relative`, such as "models/buildings/duplex.ifc", lies beside the repository. The file
/// needn't be there.
std::filesystem::path sharedFile(const std::string& relative);

/// A file of the repository, such as "Examples/sample.ifc".
std::filesystem::path sourceFile(const std::string& relative);

/// All IFC files under the folder "models", sorted by path; empty when the folder isn't there.
std::vector<std::filesystem::path> sharedModels();

/// These and the model of the repository, which is there on every machine.
std::vector<std::filesystem::path> allModels();

/// Those of the shared ones under "models/buildings".
std::vector<std::filesystem::path> sharedBuildings();

/// The bytes of a file; none where it can't be read.
std::string readFile(const std::filesystem::path& path);

/// Name of a model as a test parameter's suffix: letters, digits and underscores alone.
std::string modelTestName(const testing::TestParamInfo<std::filesystem::path>& model);

/// What holds for each of some models; the parameter is its path.
using ModelTest = testing::TestWithParam<std::filesystem::path>;

}  // namespace qor::test

/// Runs the tests of `suite`, a ModelTest, for each of these models, which may be none.
#define FC_INSTANTIATE_FOR_MODELS(suite, models)                                                  \
  INSTANTIATE_TEST_SUITE_P(Models, suite, testing::ValuesIn(models), ::qor::test::modelTestName); \
  GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(suite)

/// Declares `variable` as the path of a file that isn't part of the repository; skips the test
/// where it is absent.
#define FC_SHARED_FILE_OR_SKIP(variable, relative)                          \
  const std::filesystem::path variable = ::qor::test::sharedFile(relative); \
  if (!std::filesystem::exists(variable)) GTEST_SKIP() << variable << " isn't there"
