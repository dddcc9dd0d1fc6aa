#include "Qor/Platform/ReplacingFile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "Qor/Platform/MappedFile.h"
#include "Tests/Support/SharedModels.h"

namespace qor {
namespace {

namespace fs = std::filesystem;

class ReplacingFileTest : public testing::Test {
 protected:
  void SetUp() override {
    m_folder = fs::path(testing::TempDir()) /
               ("replacing" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) +
                testing::UnitTest::GetInstance()->current_test_info()->name());
    fs::remove_all(m_folder);
    fs::create_directory(m_folder);
    std::ofstream(target()) << "old";
  }
  void TearDown() override { fs::remove_all(m_folder); }

  fs::path target() const { return m_folder / "model.ifc"; }
  std::string content() const { return test::readFile(target()); }
  std::ptrdiff_t files() const { return std::distance(fs::directory_iterator(m_folder), {}); }

  fs::path m_folder;
};

TEST_F(ReplacingFileTest, ReplacesTheTargetAtOnceWhenItIsComplete) {
  ReplacingFile file;
  ASSERT_EQ(file.open(target()), "");
  EXPECT_EQ(file.write("new "), "");
  EXPECT_EQ(content(), "old");
  EXPECT_EQ(file.write("text"), "");
  EXPECT_EQ(file.commit(), "");
  EXPECT_EQ(content(), "new text");
  EXPECT_EQ(files(), 1);
}

TEST_F(ReplacingFileTest, LeavesTheOldFileAndNothingElseWhenItIsGivenUp) {
  {
    ReplacingFile file;
    ASSERT_EQ(file.open(target()), "");
    EXPECT_EQ(file.write("half of it"), "");
    EXPECT_EQ(files(), 2);
  }
  EXPECT_EQ(content(), "old");
  EXPECT_EQ(files(), 1);
}

TEST_F(ReplacingFileTest, KeepsPermissionsAndFollowsALink) {
  fs::permissions(target(), fs::perms::owner_read | fs::perms::owner_write);
  const fs::path link = m_folder / "link.ifc";
  fs::create_symlink(target(), link);
  ReplacingFile file;
  ASSERT_EQ(file.open(link), "");
  EXPECT_EQ(file.write("new"), "");
  EXPECT_EQ(file.commit(), "");
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_EQ(content(), "new");
  EXPECT_EQ(fs::status(target()).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(ReplacingFileTest, SaysWhyItCannotWrite) {
  EXPECT_NE(ReplacingFile().open(m_folder), "");
  EXPECT_NE(ReplacingFile().open(m_folder / "no" / "such" / "folder.ifc"), "");
}

TEST_F(ReplacingFileTest, MappedFileGivesTheBytesOrSaysWhyNot) {
  MappedFile file;
  EXPECT_EQ(file.open(target()), "");
  EXPECT_EQ(file.bytes(), "old");
  std::ofstream(target(), std::ios::trunc);
  MappedFile empty;
  EXPECT_EQ(empty.open(target()), "");
  EXPECT_EQ(empty.bytes(), "");
  EXPECT_EQ(MappedFile().open(m_folder / "none.ifc"), "No such file or directory");
  EXPECT_EQ(MappedFile().open(m_folder), "Is a directory");
}

}  // namespace
}  // namespace qor
