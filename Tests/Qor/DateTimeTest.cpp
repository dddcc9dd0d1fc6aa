#include <gtest/gtest.h>

#include "Qor/DateTime/DateTimeFormat.h"

namespace qor {
namespace {

TEST(DateTimeFormat, WritesWhatItReads) {
  const DateTimeFormat date(3);
  for (const char* text : {"2024-02-29", "0000-01-01", "9999-12-31"}) {
    ASSERT_TRUE(date.fromString(text)) << text;
    EXPECT_EQ(date.toString(*date.fromString(text)), text);
  }
  const DateTimeFormat dateTime(DateTimeFormat::isoDateTime);
  for (const char* text : {"2024-05-31T12:30:00", "2024-05-31T23:59:59.250Z",
                           "2024-05-31T00:00:00-05:30", "2024-05-31T00:00:00.007+14:00"}) {
    ASSERT_TRUE(dateTime.fromString(text)) << text;
    EXPECT_EQ(dateTime.toString(*dateTime.fromString(text)), text);
  }
}

TEST(DateTimeFormat, GivesNothingForNonsense) {
  for (const char* text :
       {"", "2024", "2024-5-31", "2023-02-29", "2024-13-01", "2024-00-10", "2024-05-31 ",
        " 2024-05-31", "31.05.2024", "2024-05-3x", "-024-05-31", "2024-05-31T12:30:00"})
    EXPECT_FALSE(DateTimeFormat(3).fromString(text)) << text;
  for (const char* text :
       {"", "2024-05-31", "2024-05-31T24:00:00", "2024-05-31T12:60:00", "2024-05-31T12:30",
        "2024-05-31T12:30:00.", "2024-05-31T12:30:00z", "2024-05-31T12:30:00+99:00",
        "2024-05-31T12:30:00Z ", "2024-02-30T12:30:00"})
    EXPECT_FALSE(DateTimeFormat(4).fromString(text)) << text;
  EXPECT_EQ(DateTimeFormat(3).toString(DateTime()), "");
  EXPECT_FALSE(DateTimeFormat(99).fromString("2024-05-31"));
}

TEST(DateTimeFormat, CutsOffWhatIsFinerThanAMillisecond) {
  const auto read = DateTimeFormat(4).fromString("2024-05-31T12:30:00,12399");
  ASSERT_TRUE(read);
  EXPECT_EQ(DateTimeFormat(4).toString(*read), "2024-05-31T12:30:00.123");
}

}  // namespace
}  // namespace qor
