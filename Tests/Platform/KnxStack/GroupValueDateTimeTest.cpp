#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <string>

#include "KnxStack.h"
#include "KnxTestBytes.h"

namespace {

using KnxStack::GroupValue;
using KnxStack::GroupValueException;
using KnxTest::ExpectRefused;
using KnxTest::GroupValueExceptionText;
using KnxTest::Received;
using DayOfWeek = KnxStack::GroupValue::DayOfWeek;

// --- Date -------------------------------------------------------------------

struct DateRow {
  int day;
  int month;
  int year;
  const char* bytes;
};

// The fields read back from the row's bytes.
void ExpectDateRead(const DateRow& row) {
  int day = -1;
  int month = -1;
  int year = -1;
  Received(row.bytes, 24).GetAsDate(&day, &month, &year);
  EXPECT_EQ(day, row.day);
  EXPECT_EQ(month, row.month);
  EXPECT_EQ(year, row.year);
}

class Date : public testing::TestWithParam<DateRow> {};

TEST_P(Date, BothWays) {
  const DateRow& row = GetParam();
  GroupValue written;
  written.SetAsDate(row.day, row.month, row.year);
  EXPECT_EQ(written.GetRawData().ToString(), row.bytes);
  EXPECT_EQ(written.GetDefinedSize(), 24u);
  ExpectDateRead(row);
}

INSTANTIATE_TEST_SUITE_P(Rows, Date,
                         testing::Values(DateRow{1, 1, 1990, "01 01 5A"}, DateRow{31, 12, 1999, "1F 0C 63"},
                                         DateRow{1, 1, 2000, "01 01 00"}, DateRow{29, 2, 2024, "1D 02 18"},
                                         DateRow{15, 6, 2021, "0F 06 15"}, DateRow{31, 12, 2089, "1F 0C 59"},
                                         DateRow{0, 0, 2000, "00 00 00"}, DateRow{31, 15, 2050, "1F 0F 32"}));

class ReceivedDate : public testing::TestWithParam<DateRow> {};

TEST_P(ReceivedDate, MasksReservedBitsAndLeavesFieldsUnchecked) {
  ExpectDateRead(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Rows, ReceivedDate,
                         testing::Values(DateRow{1, 2, 1990, "E1 F2 DA"}, DateRow{0, 0, 2089, "00 00 59"},
                                         DateRow{0, 0, 1999, "00 00 63"}, DateRow{0, 0, 2000, "00 00 00"},
                                         DateRow{31, 15, 2027, "FF FF FF"}, DateRow{30, 13, 2000, "1E 0D 64"}));

TEST(Date, NullPointersSkipTheirFields) {
  int year = -1;
  Received("1F 0C 63", 24).GetAsDate(nullptr, nullptr, &year);
  EXPECT_EQ(year, 1999);
  int day = -1;
  Received("1F 0C 63", 24).GetAsDate(&day, nullptr, nullptr);
  EXPECT_EQ(day, 31);
}

struct RefusedRow {
  std::function<void(GroupValue&)> set;
  const char* what;
};

class RefusedSetter : public testing::TestWithParam<RefusedRow> {};

TEST_P(RefusedSetter, ThrowsAndKeepsTheValue) {
  ExpectRefused(GetParam().set, GetParam().what);
}

INSTANTIATE_TEST_SUITE_P(
    Date, RefusedSetter,
    testing::Values(
        RefusedRow{[](GroupValue& v) { v.SetAsDate(1, 1, 1989); }, "GroupValue: year 1989 is outside 1990 to 2089"},
        RefusedRow{[](GroupValue& v) { v.SetAsDate(1, 1, 2090); }, "GroupValue: year 2090 is outside 1990 to 2089"},
        RefusedRow{[](GroupValue& v) { v.SetAsDate(1, 1, 89); }, "GroupValue: year 89 is outside 1990 to 2089"},
        RefusedRow{[](GroupValue& v) { v.SetAsDate(32, 1, 2000); }, "GroupValue: day 32 does not fit 5 bits"},
        RefusedRow{[](GroupValue& v) { v.SetAsDate(-1, 1, 2000); }, "GroupValue: day -1 does not fit 5 bits"},
        RefusedRow{[](GroupValue& v) { v.SetAsDate(1, 16, 2000); }, "GroupValue: month 16 does not fit 4 bits"},
        RefusedRow{[](GroupValue& v) { v.SetAsDate(1, -1, 2000); }, "GroupValue: month -1 does not fit 4 bits"}));

// --- Time of day ------------------------------------------------------------

struct TimeRow {
  int hour;
  int minute;
  int second;
  DayOfWeek dayOfWeek;
  const char* bytes;
};

// The fields read back from the row's bytes.
void ExpectTimeRead(const TimeRow& row) {
  int hour = -1;
  int minute = -1;
  int second = -1;
  auto dayOfWeek = static_cast<DayOfWeek>(6);
  Received(row.bytes, 24).GetAsTimeOfDay(&hour, &minute, &second, &dayOfWeek);
  EXPECT_EQ(hour, row.hour);
  EXPECT_EQ(minute, row.minute);
  EXPECT_EQ(second, row.second);
  EXPECT_EQ(dayOfWeek, row.dayOfWeek);
}

class TimeOfDay : public testing::TestWithParam<TimeRow> {};

TEST_P(TimeOfDay, BothWays) {
  const TimeRow& row = GetParam();
  GroupValue written;
  written.SetAsTimeOfDay(row.hour, row.minute, row.second, row.dayOfWeek);
  EXPECT_EQ(written.GetRawData().ToString(), row.bytes);
  EXPECT_EQ(written.GetDefinedSize(), 24u);
  ExpectTimeRead(row);
}

INSTANTIATE_TEST_SUITE_P(Rows, TimeOfDay,
                         testing::Values(TimeRow{0, 0, 0, GroupValue::NoDay, "00 00 00"},
                                         TimeRow{23, 59, 59, GroupValue::NoDay, "17 3B 3B"},
                                         TimeRow{12, 30, 15, GroupValue::Monday, "2C 1E 0F"},
                                         TimeRow{8, 5, 1, GroupValue::Tuesday, "48 05 01"},
                                         TimeRow{6, 0, 0, GroupValue::Saturday, "C6 00 00"},
                                         TimeRow{23, 59, 59, GroupValue::Sunday, "F7 3B 3B"},
                                         TimeRow{31, 63, 63, GroupValue::Wednesday, "7F 3F 3F"}));

class ReceivedTimeOfDay : public testing::TestWithParam<TimeRow> {};

TEST_P(ReceivedTimeOfDay, MasksReservedBitsAndLeavesFieldsUnchecked) {
  ExpectTimeRead(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Rows, ReceivedTimeOfDay,
                         testing::Values(TimeRow{23, 59, 59, GroupValue::Sunday, "F7 FB FB"},
                                         TimeRow{31, 63, 63, GroupValue::NoDay, "1F 7F BF"},
                                         TimeRow{0, 0, 0, GroupValue::Friday, "A0 C0 40"}));

TEST(TimeOfDay, NullDayOfWeekPointerSkipsTheDay) {
  int hour = -1;
  int minute = -1;
  int second = -1;
  Received("F7 3B 3A", 24).GetAsTimeOfDay(&hour, &minute, &second, nullptr);
  EXPECT_EQ(hour, 23);
  EXPECT_EQ(minute, 59);
  EXPECT_EQ(second, 58);
}

TEST(TimeOfDay, NullPointersSkipTheirFields) {
  DayOfWeek dayOfWeek = GroupValue::NoDay;
  Received("F7 3B 3A", 24).GetAsTimeOfDay(nullptr, nullptr, nullptr, &dayOfWeek);
  EXPECT_EQ(dayOfWeek, GroupValue::Sunday);
}

INSTANTIATE_TEST_SUITE_P(
    TimeOfDay, RefusedSetter,
    testing::Values(RefusedRow{[](GroupValue& v) { v.SetAsTimeOfDay(32, 0, 0, GroupValue::NoDay); },
                               "GroupValue: hour 32 does not fit 5 bits"},
                    RefusedRow{[](GroupValue& v) { v.SetAsTimeOfDay(-1, 0, 0, GroupValue::NoDay); },
                               "GroupValue: hour -1 does not fit 5 bits"},
                    RefusedRow{[](GroupValue& v) { v.SetAsTimeOfDay(0, 64, 0, GroupValue::NoDay); },
                               "GroupValue: minute 64 does not fit 6 bits"},
                    RefusedRow{[](GroupValue& v) { v.SetAsTimeOfDay(0, 0, 64, GroupValue::NoDay); },
                               "GroupValue: second 64 does not fit 6 bits"},
                    RefusedRow{[](GroupValue& v) { v.SetAsTimeOfDay(0, 0, -5, GroupValue::NoDay); },
                               "GroupValue: second -5 does not fit 6 bits"},
                    RefusedRow{[](GroupValue& v) { v.SetAsTimeOfDay(0, 0, 0, static_cast<DayOfWeek>(8)); },
                               "GroupValue: day of week 8 does not fit 3 bits"}));

// --- Date and time ----------------------------------------------------------

// fault, working day, no working day, no year, no date, no day of week,
// no time, summer time, clock quality
using Flags = std::array<bool, 9>;

struct DateTimeRow {
  int day;
  int month;
  int year;
  int hour;
  int minute;
  int second;
  DayOfWeek dayOfWeek;
  Flags flags;
  const char* bytes;
};

void SetDateTime(GroupValue& value, const DateTimeRow& row) {
  const Flags& f = row.flags;
  value.SetAsDateTime(row.day, row.month, row.year, row.hour, row.minute, row.second, row.dayOfWeek, f[0], f[1], f[2],
                      f[3], f[4], f[5], f[6], f[7], f[8]);
}

DateTimeRow GetDateTime(const GroupValue& value) {
  DateTimeRow read{-1, -1, -1, -1, -1, -1, static_cast<DayOfWeek>(6), {}, ""};
  read.flags.fill(true);
  Flags& f = read.flags;
  value.GetAsDateTime(&read.day, &read.month, &read.year, &read.hour, &read.minute, &read.second, &read.dayOfWeek,
                      // NOLINTNEXTLINE(readability-container-data-pointer): one flag per parameter
                      &f[0], &f[1], &f[2], &f[3], &f[4], &f[5], &f[6], &f[7], &f[8]);
  return read;
}

void ExpectFields(const DateTimeRow& read, const DateTimeRow& expected) {
  EXPECT_EQ(read.day, expected.day);
  EXPECT_EQ(read.month, expected.month);
  EXPECT_EQ(read.year, expected.year);
  EXPECT_EQ(read.hour, expected.hour);
  EXPECT_EQ(read.minute, expected.minute);
  EXPECT_EQ(read.second, expected.second);
  EXPECT_EQ(read.dayOfWeek, expected.dayOfWeek);
  EXPECT_EQ(read.flags, expected.flags);
}

class DateTime : public testing::TestWithParam<DateTimeRow> {};

TEST_P(DateTime, BothWays) {
  GroupValue written;
  SetDateTime(written, GetParam());
  EXPECT_EQ(written.GetRawData().ToString(), GetParam().bytes);
  EXPECT_EQ(written.GetDefinedSize(), 64u);
  ExpectFields(GetDateTime(Received(GetParam().bytes, 64)), GetParam());
}

const bool o = false;
const bool X = true;
const DayOfWeek friday = GroupValue::Friday;

INSTANTIATE_TEST_SUITE_P(
    Fields, DateTime,
    testing::Values(
        DateTimeRow{15, 3, 2024, 10, 20, 30, friday, {o, o, o, o, o, o, o, o, o}, "7C 03 0F AA 14 1E 00 00"},
        DateTimeRow{1, 1, 1900, 0, 0, 0, GroupValue::NoDay, {o, o, o, o, o, o, o, o, o}, "00 01 01 00 00 00 00 00"},
        DateTimeRow{
            31, 12, 2155, 23, 59, 59, GroupValue::Sunday, {o, o, o, o, o, o, o, o, o}, "FF 0C 1F F7 3B 3B 00 00"},
        DateTimeRow{0, 0, 2000, 24, 0, 0, GroupValue::Monday, {o, o, o, o, o, o, o, o, o}, "64 00 00 38 00 00 00 00"},
        DateTimeRow{
            31, 15, 1999, 31, 63, 63, GroupValue::Wednesday, {X, X, X, X, X, X, X, X, X}, "63 0F 1F 7F 3F 3F FF 80"}));

INSTANTIATE_TEST_SUITE_P(
    EachFlagAlone, DateTime,
    testing::Values(
        DateTimeRow{15, 3, 2024, 10, 20, 30, friday, {X, o, o, o, o, o, o, o, o}, "7C 03 0F AA 14 1E 80 00"},
        DateTimeRow{15, 3, 2024, 10, 20, 30, friday, {o, X, o, o, o, o, o, o, o}, "7C 03 0F AA 14 1E 40 00"},
        DateTimeRow{15, 3, 2024, 10, 20, 30, friday, {o, o, X, o, o, o, o, o, o}, "7C 03 0F AA 14 1E 20 00"},
        DateTimeRow{15, 3, 2024, 10, 20, 30, friday, {o, o, o, X, o, o, o, o, o}, "7C 03 0F AA 14 1E 10 00"},
        DateTimeRow{15, 3, 2024, 10, 20, 30, friday, {o, o, o, o, X, o, o, o, o}, "7C 03 0F AA 14 1E 08 00"},
        DateTimeRow{15, 3, 2024, 10, 20, 30, friday, {o, o, o, o, o, X, o, o, o}, "7C 03 0F AA 14 1E 04 00"},
        DateTimeRow{15, 3, 2024, 10, 20, 30, friday, {o, o, o, o, o, o, X, o, o}, "7C 03 0F AA 14 1E 02 00"},
        DateTimeRow{15, 3, 2024, 10, 20, 30, friday, {o, o, o, o, o, o, o, X, o}, "7C 03 0F AA 14 1E 01 00"},
        DateTimeRow{15, 3, 2024, 10, 20, 30, friday, {o, o, o, o, o, o, o, o, X}, "7C 03 0F AA 14 1E 00 80"}));

class ReceivedDateTime : public testing::TestWithParam<DateTimeRow> {};

TEST_P(ReceivedDateTime, MasksReservedBitsAndLeavesFieldsUnchecked) {
  ExpectFields(GetDateTime(Received(GetParam().bytes, 64)), GetParam());
}

// The synchronisation source (byte 7, bit 6) and the other reserved bits are
// not read.
INSTANTIATE_TEST_SUITE_P(
    Rows, ReceivedDateTime,
    testing::Values(
        DateTimeRow{0, 0, 1900, 0, 0, 0, GroupValue::NoDay, {o, o, o, o, o, o, o, o, o}, "00 F0 E0 00 C0 C0 00 7F"},
        DateTimeRow{
            31, 15, 2155, 31, 63, 63, GroupValue::Sunday, {X, X, X, X, X, X, X, X, X}, "FF FF FF FF FF FF FF FF"},
        DateTimeRow{15, 3, 2024, 10, 20, 30, friday, {o, o, o, o, o, o, o, o, X}, "7C F3 EF AA D4 DE 00 C0"}));

TEST(DateTime, NullPointersSkipEveryField) {
  const GroupValue value = Received("7C 03 0F AA 14 1E 00 80", 64);
  value.GetAsDateTime(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                      nullptr, nullptr, nullptr, nullptr, nullptr);
  int year = -1;
  bool clockQuality = false;
  value.GetAsDateTime(nullptr, nullptr, &year, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                      nullptr, nullptr, nullptr, nullptr, &clockQuality);
  EXPECT_EQ(year, 2024);
  EXPECT_TRUE(clockQuality);
}

void SetDateTimeFields(GroupValue& v, int day, int month, int year, int hour, int minute, int second, int dayOfWeek) {
  v.SetAsDateTime(day, month, year, hour, minute, second, static_cast<DayOfWeek>(dayOfWeek), false, false, false, false,
                  false, false, false, false, false);
}

INSTANTIATE_TEST_SUITE_P(
    DateTime, RefusedSetter,
    testing::Values(RefusedRow{[](GroupValue& v) { SetDateTimeFields(v, 1, 1, 1899, 0, 0, 0, 0); },
                               "GroupValue: year 1899 is outside 1900 to 2155"},
                    RefusedRow{[](GroupValue& v) { SetDateTimeFields(v, 1, 1, 2156, 0, 0, 0, 0); },
                               "GroupValue: year 2156 is outside 1900 to 2155"},
                    RefusedRow{[](GroupValue& v) { SetDateTimeFields(v, 32, 1, 2000, 0, 0, 0, 0); },
                               "GroupValue: day 32 does not fit 5 bits"},
                    RefusedRow{[](GroupValue& v) { SetDateTimeFields(v, 1, 16, 2000, 0, 0, 0, 0); },
                               "GroupValue: month 16 does not fit 4 bits"},
                    RefusedRow{[](GroupValue& v) { SetDateTimeFields(v, 1, 1, 2000, 32, 0, 0, 0); },
                               "GroupValue: hour 32 does not fit 5 bits"},
                    RefusedRow{[](GroupValue& v) { SetDateTimeFields(v, 1, 1, 2000, 0, 64, 0, 0); },
                               "GroupValue: minute 64 does not fit 6 bits"},
                    RefusedRow{[](GroupValue& v) { SetDateTimeFields(v, 1, 1, 2000, 0, 0, 64, 0); },
                               "GroupValue: second 64 does not fit 6 bits"},
                    RefusedRow{[](GroupValue& v) { SetDateTimeFields(v, 1, 1, 2000, 0, 0, 0, 8); },
                               "GroupValue: day of week 8 does not fit 3 bits"},
                    RefusedRow{[](GroupValue& v) { SetDateTimeFields(v, 1, 1, 2000, -1, 0, 0, 0); },
                               "GroupValue: hour -1 does not fit 5 bits"}));

// --- Getters on a wrong size or a short payload ------------------------------

struct GetterErrorRow {
  std::function<void(const GroupValue&)> get;
  const char* received;
  unsigned int bits;
  const char* what;
};

class GetterError : public testing::TestWithParam<GetterErrorRow> {};

TEST_P(GetterError, ThrowsWithTheReason) {
  const GroupValue value = Received(GetParam().received, GetParam().bits);
  EXPECT_EQ(GroupValueExceptionText([&] { GetParam().get(value); }), GetParam().what);
}

void GetDate(const GroupValue& v) {
  int day = 0;
  v.GetAsDate(&day, nullptr, nullptr);
}

void GetTime(const GroupValue& v) {
  int hour = 0;
  v.GetAsTimeOfDay(&hour, nullptr, nullptr, nullptr);
}

void GetAllDateTime(const GroupValue& v) {
  GetDateTime(v);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, GetterError,
    testing::Values(
        GetterErrorRow{GetDate, "01 01", 16, "GroupValue: expected 24 bits, defined size is 16"},
        GetterErrorRow{GetDate, "01 01 00 00", 32, "GroupValue: expected 24 bits, defined size is 32"},
        GetterErrorRow{GetDate, "01 01", 24, "GroupValue: expected 3 bytes, payload has 2"},
        GetterErrorRow{GetTime, "0C 00 00 00", 32, "GroupValue: expected 24 bits, defined size is 32"},
        GetterErrorRow{GetTime, "", 24, "GroupValue: expected 3 bytes, payload has 0"},
        GetterErrorRow{GetAllDateTime, "7C 03 0F AA 14 1E 00", 56, "GroupValue: expected 64 bits, defined size is 56"},
        GetterErrorRow{GetAllDateTime, "7C 03 0F AA 14 1E 00", 64, "GroupValue: expected 8 bytes, payload has 7"},
        GetterErrorRow{GetAllDateTime, "7C 03 0F AA 14 1E 00 00 00 00 00 00 00 00", 112,
                       "GroupValue: expected 64 bits, defined size is 112"}));

}  // namespace
