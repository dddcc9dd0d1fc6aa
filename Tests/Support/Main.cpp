#include <gmock/gmock.h>
#include <gtest/gtest.h>

/// Runs the tests. 0 when all that were selected have passed, 1 when one failed, and 77 when one
/// was skipped and none failed, so that what didn't run shows.
int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  const int result = RUN_ALL_TESTS();
  const bool isSkipped = testing::UnitTest::GetInstance()->skipped_test_count() > 0;
  return result == 0 && isSkipped ? 77 : result;
}
