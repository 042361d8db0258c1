#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "DateAndTimeTestSupport.h"
#include "KnxConverterDateAndTime.h"

namespace {

using namespace DateAndTimeTest;
using TestSupport::LogCapture;
using W = ULO::Weekdays;

// Both converters are stateless, so the rows can share one of each.
Nelmo::KnxConverterTime timeConverter;
Nelmo::KnxConverterTimeOfDay timeOfDayConverter;
Nelmo::KnxConverter* const Time = &timeConverter;
Nelmo::KnxConverter* const TimeOfDay = &timeOfDayConverter;

KNXDPT DptOf(const Nelmo::KnxConverter* converter) {
  return converter == Time ? KNXDPT{24, 10, 0} : KNXDPT{24, 10, 1};
}

const std::string Failed = "Failed to convert time with values: hour=";

// Sending: hour, minute, second, weekday -> bus bytes NNNHHHHH 00MMMMMM
// 00SSSSSS, or the refusal with the fields written as raw bytes.
struct SendRow {
  const char* name;
  Nelmo::KnxConverter* converter;
  std::uint8_t hour;
  std::uint8_t minute;
  std::uint8_t second;
  Day weekday;
  bool result;
  Bytes bytes;  // empty: the group value stays untouched
  std::vector<LogLine> log;
};

void PrintTo(const SendRow& row, std::ostream* out) {
  *out << row.name;
}

const SendRow sendRows[] = {
    {"Time_Midnight", Time, 0, 0, 0, NoWeekday, true, {0x00, 0x00, 0x00}, {}},
    {"Time_LastSecond", Time, 23, 59, 59, NoWeekday, true, {0x17, 0x3B, 0x3B}, {}},
    {"Time_MondayNotSent", Time, 12, 30, 15, W::Monday, true, {0x0C, 0x1E, 0x0F}, {}},
    {"Time_SundayNotSent", Time, 12, 30, 15, W::Sunday, true, {0x0C, 0x1E, 0x0F}, {}},
    {"Time_Hour24",
     Time,
     24,
     0,
     0,
     NoWeekday,
     false,
     {},
     {Error("ToKnxValue", Failed + '\x18' + ", minute=" + '\0' + ", second=" + '\0')}},
    {"Time_Minute60",
     Time,
     12,
     60,
     0,
     NoWeekday,
     false,
     {},
     {Error("ToKnxValue", Failed + '\x0c' + ", minute=<, second=" + '\0')}},
    {"Time_Second60",
     Time,
     12,
     0,
     60,
     W::Monday,
     false,
     {},
     {Error("ToKnxValue", Failed + '\x0c' + ", minute=" + '\0' + ", second=<")}},
    {"TimeOfDay_Monday", TimeOfDay, 12, 30, 15, W::Monday, true, {0x2C, 0x1E, 0x0F}, {}},
    {"TimeOfDay_Tuesday", TimeOfDay, 12, 30, 15, W::Tuesday, true, {0x4C, 0x1E, 0x0F}, {}},
    {"TimeOfDay_Wednesday", TimeOfDay, 12, 30, 15, W::Wednesday, true, {0x6C, 0x1E, 0x0F}, {}},
    {"TimeOfDay_Thursday", TimeOfDay, 12, 30, 15, W::Thursday, true, {0x8C, 0x1E, 0x0F}, {}},
    {"TimeOfDay_Friday", TimeOfDay, 12, 30, 15, W::Friday, true, {0xAC, 0x1E, 0x0F}, {}},
    {"TimeOfDay_Saturday", TimeOfDay, 12, 30, 15, W::Saturday, true, {0xCC, 0x1E, 0x0F}, {}},
    {"TimeOfDay_Sunday", TimeOfDay, 12, 30, 15, W::Sunday, true, {0xEC, 0x1E, 0x0F}, {}},
    {"TimeOfDay_NoWeekday", TimeOfDay, 12, 30, 15, NoWeekday, true, {0x0C, 0x1E, 0x0F}, {}},
    {"TimeOfDay_NoDayMarker", TimeOfDay, 12, 30, 15, W::NoDay, true, {0x0C, 0x1E, 0x0F}, {}},
    {"TimeOfDay_TwoDays",
     TimeOfDay,
     12,
     30,
     15,
     static_cast<Day>(unsigned{W::Monday} | unsigned{W::Friday}),
     true,
     {0x0C, 0x1E, 0x0F},
     {}},
    {"TimeOfDay_MidnightMonday", TimeOfDay, 0, 0, 0, W::Monday, true, {0x20, 0x00, 0x00}, {}},
    {"TimeOfDay_LastSecondSunday", TimeOfDay, 23, 59, 59, W::Sunday, true, {0xF7, 0x3B, 0x3B}, {}},
    {"TimeOfDay_Hour24",
     TimeOfDay,
     24,
     0,
     0,
     W::Monday,
     false,
     {},
     {Error("ToKnxValue", Failed + '\x18' + ", minute=" + '\0' + ", second=" + '\0')}},
    {"TimeOfDay_Minute60",
     TimeOfDay,
     12,
     60,
     0,
     W::Monday,
     false,
     {},
     {Error("ToKnxValue", Failed + '\x0c' + ", minute=<, second=" + '\0')}},
    {"TimeOfDay_AllFieldsFF",
     TimeOfDay,
     255,
     255,
     255,
     W::Monday,
     false,
     {},
     {Error("ToKnxValue", Failed + '\xff' + ", minute=" + '\xff' + ", second=" + '\xff')}},
};

class KnxConverterTimeSend : public testing::TestWithParam<SendRow> {};

TEST_P(KnxConverterTimeSend, WritesBusBytesOrRefuses) {
  const SendRow& row = GetParam();
  ExpectSent(*row.converter, DptOf(row.converter),
             ValueOf(IVT_TIME, ULOTIME{2024, 5, 30, row.hour, row.minute, row.second, row.weekday, 1, true}), 24, row);
}

INSTANTIATE_TEST_SUITE_P(Rows, KnxConverterTimeSend, testing::ValuesIn(sendRows), RowName());

// Receiving: bus bytes -> time. The output starts with a full date and
// time; a success clears it before the time (and weekday) is set, a refusal
// leaves it alone.
const ULOTIME before{2001, 2, 3, 4, 5, 6, W::Saturday, 1, false};

struct ReceiveRow {
  const char* name;
  Nelmo::KnxConverter* converter;
  Bytes bytes;
  bool result;
  ULOTIME time;
  std::vector<LogLine> log;
};

void PrintTo(const ReceiveRow& row, std::ostream* out) {
  *out << row.name;
}

const ReceiveRow receiveRows[] = {
    {"Time_Midnight", Time, {0x00, 0x00, 0x00}, true, {0, 0, 0, 0, 0, 0, NoWeekday, 0, true}, {}},
    {"Time_LastSecond", Time, {0x17, 0x3B, 0x3B}, true, {0, 0, 0, 23, 59, 59, NoWeekday, 0, true}, {}},
    {"Time_DayIgnored", Time, {0x2C, 0x1E, 0x0F}, true, {0, 0, 0, 12, 30, 15, NoWeekday, 0, true}, {}},
    {"Time_Hour24",
     Time,
     {0x18, 0x00, 0x00},
     false,
     before,
     {Error("FromKnxValue", "Cannot convert invalid time: hour=24, minute=0, second=0")}},
    {"Time_Minute60",
     Time,
     {0x0C, 0x3C, 0x00},
     false,
     before,
     {Error("FromKnxValue", "Cannot convert invalid time: hour=12, minute=60, second=0")}},
    {"Time_Second60",
     Time,
     {0x0C, 0x00, 0x3C},
     false,
     before,
     {Error("FromKnxValue", "Cannot convert invalid time: hour=12, minute=0, second=60")}},
    {"Time_AllBitsSet",
     Time,
     {0xFF, 0xFF, 0xFF},
     false,
     before,
     {Error("FromKnxValue", "Cannot convert invalid time: hour=31, minute=63, second=63")}},
    {"TimeOfDay_Monday", TimeOfDay, {0x2C, 0x1E, 0x0F}, true, {0, 0, 0, 12, 30, 15, W::Monday, 0, true}, {}},
    {"TimeOfDay_Tuesday", TimeOfDay, {0x4C, 0x1E, 0x0F}, true, {0, 0, 0, 12, 30, 15, W::Tuesday, 0, true}, {}},
    {"TimeOfDay_Wednesday", TimeOfDay, {0x6C, 0x1E, 0x0F}, true, {0, 0, 0, 12, 30, 15, W::Wednesday, 0, true}, {}},
    {"TimeOfDay_Thursday", TimeOfDay, {0x8C, 0x1E, 0x0F}, true, {0, 0, 0, 12, 30, 15, W::Thursday, 0, true}, {}},
    {"TimeOfDay_Friday", TimeOfDay, {0xAC, 0x1E, 0x0F}, true, {0, 0, 0, 12, 30, 15, W::Friday, 0, true}, {}},
    {"TimeOfDay_Saturday", TimeOfDay, {0xCC, 0x1E, 0x0F}, true, {0, 0, 0, 12, 30, 15, W::Saturday, 0, true}, {}},
    {"TimeOfDay_Sunday", TimeOfDay, {0xEC, 0x1E, 0x0F}, true, {0, 0, 0, 12, 30, 15, W::Sunday, 0, true}, {}},
    {"TimeOfDay_NoDay", TimeOfDay, {0x0C, 0x1E, 0x0F}, true, {0, 0, 0, 12, 30, 15, NoWeekday, 0, true}, {}},
    {"TimeOfDay_MidnightMonday", TimeOfDay, {0x20, 0x00, 0x00}, true, {0, 0, 0, 0, 0, 0, W::Monday, 0, true}, {}},
    {"TimeOfDay_LastSecondSunday", TimeOfDay, {0xF7, 0x3B, 0x3B}, true, {0, 0, 0, 23, 59, 59, W::Sunday, 0, true}, {}},
    {"TimeOfDay_Hour24",
     TimeOfDay,
     {0x38, 0x00, 0x00},
     false,
     before,
     {Error("FromKnxValue", "Cannot convert invalid time: hour=24, minute=0, second=0")}},
    {"TimeOfDay_Minute60",
     TimeOfDay,
     {0x2C, 0x3C, 0x00},
     false,
     before,
     {Error("FromKnxValue", "Cannot convert invalid time: hour=12, minute=60, second=0")}},
};

class KnxConverterTimeReceive : public testing::TestWithParam<ReceiveRow> {};

TEST_P(KnxConverterTimeReceive, ReadsBusBytesOrRefuses) {
  const ReceiveRow& row = GetParam();
  ExpectReceived(*row.converter, DptOf(row.converter), 24, IVT_TIME, before, row);
}

INSTANTIATE_TEST_SUITE_P(Rows, KnxConverterTimeReceive, testing::ValuesIn(receiveRows), RowName());

// A group value of the wrong size makes the stack throw; the converter
// catches it and reports it as its own failure.
struct WrongSizeRow {
  const char* name;
  Nelmo::KnxConverter* converter;
  Bytes bytes;
  unsigned int bits;
};

void PrintTo(const WrongSizeRow& row, std::ostream* out) {
  *out << row.name;
}

const WrongSizeRow wrongSizeRows[] = {
    {"Time_SixteenBits", Time, {0x0C, 0x1E}, 16},
    {"Time_ShortPayload", Time, {0x0C, 0x1E}, 24},
    {"TimeOfDay_SixtyFourBits", TimeOfDay, {0x0C, 0x1E, 0x0F, 0, 0, 0, 0, 0}, 64},
    {"TimeOfDay_Empty", TimeOfDay, {}, 0},
};

class KnxConverterTimeWrongSize : public testing::TestWithParam<WrongSizeRow> {};

TEST_P(KnxConverterTimeWrongSize, IsCaughtOnReceive) {
  const WrongSizeRow& row = GetParam();
  const KnxStack::GroupValue groupValue = GroupOf(row.bytes, row.bits);
  const std::string stackText =
      GroupValueExceptionText([&] { groupValue.GetAsTimeOfDay(nullptr, nullptr, nullptr, nullptr); });
  ExpectCaughtOnReceive(*row.converter, DptOf(row.converter), IVT_TIME, before, groupValue,
                        "Exception caught during conversion of time: " + stackText);
}

INSTANTIATE_TEST_SUITE_P(Rows, KnxConverterTimeWrongSize, testing::ValuesIn(wrongSizeRows), RowName());

}  // namespace
