#include <gtest/gtest.h>

#include <functional>
#include <ostream>

#include "UloTime.h"

namespace {

struct DateRow {
  unsigned short year;
  unsigned char month;
  unsigned char day;
  bool valid;
};

void PrintTo(const DateRow& row, std::ostream* out) {
  *out << row.year << "-" << int{row.month} << "-" << int{row.day};
}

class UloTimeValidDate : public ::testing::TestWithParam<DateRow> {};

TEST_P(UloTimeValidDate, FollowsTheGregorianCalendar) {
  const DateRow& row = GetParam();
  EXPECT_EQ(ULOTIME::IsValidDate(row.year, row.month, row.day), row.valid)
      << row.year << "-" << int{row.month} << "-" << int{row.day};
}

INSTANTIATE_TEST_SUITE_P(Dates, UloTimeValidDate,
                         ::testing::Values(
                             // leap years: every 4th, not every 100th, every 400th
                             DateRow{1900, 2, 28, true}, DateRow{1900, 2, 29, false},  //
                             DateRow{2000, 2, 29, true}, DateRow{2000, 2, 30, false},  //
                             DateRow{2024, 2, 29, true}, DateRow{2023, 2, 29, false},  //
                             DateRow{2023, 2, 28, true}, DateRow{2100, 2, 29, false},  //
                             // month bounds
                             DateRow{2024, 0, 1, false}, DateRow{2024, 1, 1, true},     //
                             DateRow{2024, 12, 31, true}, DateRow{2024, 13, 1, false},  //
                             DateRow{2024, 255, 1, false},
                             // day bounds
                             DateRow{2024, 1, 0, false}, DateRow{2024, 1, 31, true}, DateRow{2024, 1, 32, false},  //
                             DateRow{2024, 4, 30, true}, DateRow{2024, 4, 31, false},                              //
                             DateRow{2024, 6, 31, false}, DateRow{2024, 9, 31, false},                             //
                             DateRow{2024, 11, 31, false}, DateRow{2024, 3, 31, true},                             //
                             DateRow{2024, 7, 31, true}, DateRow{2024, 8, 31, true},                               //
                             DateRow{2024, 10, 31, true}, DateRow{2024, 5, 31, true},                              //
                             DateRow{2024, 1, 255, false},
                             // any year of the 16 bits
                             DateRow{0, 2, 29, true}, DateRow{65535, 12, 31, true}));

struct TimeRow {
  unsigned char hour;
  unsigned char minute;
  unsigned char second;
  bool valid;
};

void PrintTo(const TimeRow& row, std::ostream* out) {
  *out << int{row.hour} << ":" << int{row.minute} << ":" << int{row.second};
}

class UloTimeValidTime : public ::testing::TestWithParam<TimeRow> {};

TEST_P(UloTimeValidTime, AcceptsHoursTo23AndMinutesAndSecondsTo59) {
  const TimeRow& row = GetParam();
  EXPECT_EQ(ULOTIME::IsValidTime(row.hour, row.minute, row.second), row.valid)
      << int{row.hour} << ":" << int{row.minute} << ":" << int{row.second};
}

INSTANTIATE_TEST_SUITE_P(Times, UloTimeValidTime,
                         ::testing::Values(TimeRow{0, 0, 0, true}, TimeRow{23, 59, 59, true}, TimeRow{24, 0, 0, false},
                                           TimeRow{23, 60, 0, false}, TimeRow{23, 0, 60, false},
                                           TimeRow{255, 0, 0, false}, TimeRow{0, 255, 0, false},
                                           TimeRow{0, 0, 255, false}, TimeRow{12, 30, 45, true}));

ULOTIME FullyFilled() {
  ULOTIME time;
  time.year = 2024;
  time.month = 2;
  time.day = 29;
  time.hour = 13;
  time.minute = 45;
  time.second = 30;
  time.weekday = ULO::Weekdays::Thursday;
  time.summerTime = 1;
  time.isSet = true;
  return time;
}

TEST(UloTime, StartsEmpty) {
  const ULOTIME time;
  EXPECT_EQ(time.year, 0);
  EXPECT_EQ(time.month, 0);
  EXPECT_EQ(time.day, 0);
  EXPECT_EQ(time.hour, 0);
  EXPECT_EQ(time.minute, 0);
  EXPECT_EQ(time.second, 0);
  EXPECT_EQ(static_cast<unsigned int>(time.weekday), 0u);
  EXPECT_EQ(time.summerTime, 0);
  EXPECT_FALSE(time.isSet);
}

TEST(UloTime, SetTimeWritesTheTimeAndTheFlagOnly) {
  ULOTIME time = FullyFilled();
  time.isSet = false;
  time.SetTime(7, 8, 9, true);
  ULOTIME expected = FullyFilled();
  expected.hour = 7;
  expected.minute = 8;
  expected.second = 9;
  EXPECT_EQ(time, expected);

  time.SetTime(1, 2, 3, false);
  EXPECT_FALSE(time.isSet);
  EXPECT_EQ(time.hour, 1);
}

TEST(UloTime, SetDateWritesTheDateAndTheFlagOnly) {
  ULOTIME time = FullyFilled();
  time.isSet = false;
  time.SetDate(1999, 12, 31, true);
  ULOTIME expected = FullyFilled();
  expected.year = 1999;
  expected.month = 12;
  expected.day = 31;
  EXPECT_EQ(time, expected);

  time.SetDate(2000, 1, 1, false);
  EXPECT_FALSE(time.isSet);
  EXPECT_EQ(time.year, 2000);
}

TEST(UloTime, ClearZeroesEveryFieldAndSetsTheFlagAsGiven) {
  ULOTIME time = FullyFilled();
  time.Clear(true);
  ULOTIME expected;
  expected.isSet = true;
  EXPECT_EQ(time, expected);

  time = FullyFilled();
  time.Clear(false);
  EXPECT_EQ(time, ULOTIME());
}

TEST(UloTime, EqualityComparesEveryField) {
  const ULOTIME base = FullyFilled();
  EXPECT_EQ(base, FullyFilled());
  // Each row changes one field of the base.
  struct Row {
    const char* field;
    std::function<void(ULOTIME&)> change;
  };
  const Row rows[] = {
      {"year", [](ULOTIME& time) { time.year = 2025; }},
      {"month", [](ULOTIME& time) { time.month = 3; }},
      {"day", [](ULOTIME& time) { time.day = 1; }},
      {"hour", [](ULOTIME& time) { time.hour = 0; }},
      {"minute", [](ULOTIME& time) { time.minute = 0; }},
      {"second", [](ULOTIME& time) { time.second = 0; }},
      {"weekday", [](ULOTIME& time) { time.weekday = ULO::Weekdays::Friday; }},
      {"summerTime", [](ULOTIME& time) { time.summerTime = 0; }},
      {"isSet", [](ULOTIME& time) { time.isSet = false; }},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.field);
    ULOTIME other = base;
    row.change(other);
    EXPECT_NE(base, other);
  }
}

}  // namespace
