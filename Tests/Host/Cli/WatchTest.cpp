#include "Host/Cli/Watch.h"

#include <gtest/gtest.h>

#include <atomic>
#include <csignal>
#include <filesystem>
#include <iostream>
#include <sstream>
#include <thread>

#include "Fc/Core/Kernel/FcRoot.h"
#include "Fc/Resource/Geometry/FcPolyline.h"
#include "Host/Cli/AssertLines.h"
#include "Qor/Platform/ReplacingFile.h"
#include "Tests/Host/Cli/RunTool.h"
#include "Tests/Support/Make.h"

namespace qor::host::cli {
namespace {

using namespace std::chrono_literals;

/// Text that another thread may wait for.
class AwaitedText : public std::stringbuf {
 public:
  void await() const {
    while (!m_isThere) std::this_thread::sleep_for(1ms);
  }

 protected:
  int sync() override {
    m_isThere = true;
    return 0;
  }

 private:
  std::atomic<bool> m_isThere = false;
};

class WatchTest : public testing::Test {
 protected:
  const test::ScratchFolder m_folder;
  const step::ReadResult m_model = step::readStepFile(
      m_folder.model("#7=IFCWALL('0123456789012345678901',$,'South wall',$,$,$,$,$,$);"
                     "#9=IFCPOLYLINE(());"));
  const Guid m_wall =
      fc::fcCast<fc::core::kernel::FcRoot>(m_model.instances.at(0).entity)->GlobalId();
};

TEST_F(WatchTest, NamesTheObjectThatTakesLong) {
  AwaitedText text;
  std::ostream err(&text);
  {
    Watch watch(err, 1ms);
    const Watch::Walk walk(watch, m_model);
    EXPECT_EQ(watch.object(), "");
    watch.at(m_wall);
    EXPECT_EQ(watch.object(), "#7 IFCWALL 'South wall'");
    text.await();
  }
  EXPECT_EQ(text.str().find("fctool: #7 IFCWALL 'South wall' has taken "), 0u) << text.str();
}

TEST_F(WatchTest, LetsAssertsNameTheirObject) {
  std::ostringstream err;
  {
    Watch watch(err);
    const AssertLines lines(err, watch);
    const auto raise = [](const char* message) {
      Assert::addAssert({.message = message, .function = "f"});
    };
    raise("first\nof two");
    const Watch::Walk walk(watch, m_model);
    watch.at(m_wall);
    watch.setBarShown(true);
    raise("second");
    raise("first\nof two");
    const auto raiseFor = [](const char* message, const fc::FcBase& subject) {
      Assert::addAssert({.message = message, .function = "g", .subject = &subject});
    };
    raiseFor("third", *m_model.instances.at(0).entity);
    raiseFor("fourth", *m_model.instances.at(1).entity);
    raiseFor("fifth", *test::make<fc::resource::geometry::FcPolyline>());
    EXPECT_EQ(lines.count(), 6u);
  }
  EXPECT_EQ(err.str(),
            "fctool: assert: first\\nof two (f)\n"
            "\r\033[Kfctool: assert: second (f), at #7 IFCWALL 'South wall'\n"
            "\r\033[Kfctool: assert: third (g), at #7 IFCWALL 'South wall'\n"
            "\r\033[Kfctool: assert: fourth (g), #9 IFCPOLYLINE, at #7 IFCWALL 'South wall'\n"
            "\r\033[Kfctool: assert: fifth (g), IFCPOLYLINE, at #7 IFCWALL 'South wall'\n"
            "fctool: assert: first\\nof two (f): 2 times in all\n");
}

TEST_F(WatchTest, KeepsSilentBetweenWalks) {
  std::ostringstream err;
  {
    Watch watch(err, 1ms);
    { const Watch::Walk walk(watch, m_model); }
    std::this_thread::sleep_for(20ms);
    EXPECT_EQ(watch.object(), "");
  }
  EXPECT_EQ(err.str(), "");
}

TEST_F(WatchTest, EndsAnInterruptedProgramInOrder) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const std::string target = m_folder.path("out.glb");
  const auto work = [&] {
    Watch::endInOrderWhenInterrupted();
    Watch watch(std::cerr);
    const Watch::Walk walk(watch, m_model);
    watch.at(m_wall);
    ReplacingFile file;
    file.open(target);
    file.write("half a mesh");
    std::raise(SIGINT);
    for (;;) std::this_thread::sleep_for(1s);
  };
  EXPECT_EXIT(work(), testing::ExitedWithCode(Watch::interruptedExitCode),
              "interrupted at #7 IFCWALL 'South wall'");
  for (const auto& entry : std::filesystem::directory_iterator(m_folder.path("")))
    EXPECT_NE(entry.path().extension(), ".tmp");
}

}  // namespace
}  // namespace qor::host::cli
