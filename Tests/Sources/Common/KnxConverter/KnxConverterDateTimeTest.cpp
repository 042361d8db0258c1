#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "DateAndTimeTestSupport.h"
#include "KnxConverterDateAndTime.h"

namespace {

using namespace DateAndTimeTest;
using Nelmo::KnxConverterDateTime;
using TestSupport::LogCapture;
using W = ULO::Weekdays;

const KNXDPT Dpt19{64, 19, 1};
const std::string OutsideRange = "Cannot convert the date outside of the range [1990...2089]: year=";

// Sending: the date-time -> bus bytes
//   year-1900, 0000MMMM, 000DDDDD, NNNHHHHH, 00MMMMMM, 00SSSSSS,
//   flags (fault, working day, no working day, no year, no date, no day of
//   week, no time, summer time), clock quality.
// Of the flags only "no working day" (always) and summer time are sent.
struct SendRow {
  const char* name;
  ULOTIME time;
  bool result;
  Bytes bytes;  // empty: the group value stays untouched
  std::vector<LogLine> log;
};

void PrintTo(const SendRow& row, std::ostream* out) {
  *out << row.name;
}

const SendRow sendRows[] = {
    {"Ordinary",
     {2024, 5, 30, 12, 30, 15, W::Thursday, 0, true},
     true,
     {0x7C, 0x05, 0x1E, 0x8C, 0x1E, 0x0F, 0x20, 0x00},
     {}},
    {"SummerTime",
     {2024, 5, 30, 12, 30, 15, W::Thursday, 1, true},
     true,
     {0x7C, 0x05, 0x1E, 0x8C, 0x1E, 0x0F, 0x21, 0x00},
     {}},
    {"SummerTimeAnyNonZero",
     {2024, 5, 30, 12, 30, 15, W::Thursday, 2, true},
     true,
     {0x7C, 0x05, 0x1E, 0x8C, 0x1E, 0x0F, 0x21, 0x00},
     {}},
    {"SetFlagNotSent",
     {2024, 5, 30, 12, 30, 15, W::Thursday, 0, false},
     true,
     {0x7C, 0x05, 0x1E, 0x8C, 0x1E, 0x0F, 0x20, 0x00},
     {}},
    {"Monday", {2024, 5, 27, 12, 0, 0, W::Monday, 0, true}, true, {0x7C, 0x05, 0x1B, 0x2C, 0, 0, 0x20, 0}, {}},
    {"Tuesday", {2024, 5, 28, 12, 0, 0, W::Tuesday, 0, true}, true, {0x7C, 0x05, 0x1C, 0x4C, 0, 0, 0x20, 0}, {}},
    {"Wednesday", {2024, 5, 29, 12, 0, 0, W::Wednesday, 0, true}, true, {0x7C, 0x05, 0x1D, 0x6C, 0, 0, 0x20, 0}, {}},
    {"Thursday", {2024, 5, 30, 12, 0, 0, W::Thursday, 0, true}, true, {0x7C, 0x05, 0x1E, 0x8C, 0, 0, 0x20, 0}, {}},
    {"Friday", {2024, 5, 31, 12, 0, 0, W::Friday, 0, true}, true, {0x7C, 0x05, 0x1F, 0xAC, 0, 0, 0x20, 0}, {}},
    {"Saturday", {2024, 6, 1, 12, 0, 0, W::Saturday, 0, true}, true, {0x7C, 0x06, 0x01, 0xCC, 0, 0, 0x20, 0}, {}},
    {"Sunday", {2024, 6, 2, 12, 0, 0, W::Sunday, 0, true}, true, {0x7C, 0x06, 0x02, 0xEC, 0, 0, 0x20, 0}, {}},
    {"NoWeekday", {2024, 6, 2, 12, 0, 0, NoWeekday, 0, true}, true, {0x7C, 0x06, 0x02, 0x0C, 0, 0, 0x20, 0}, {}},
    {"NoDayMarker", {2024, 6, 2, 12, 0, 0, W::NoDay, 0, true}, true, {0x7C, 0x06, 0x02, 0x0C, 0, 0, 0x20, 0}, {}},
    {"Midnight",
     {2024, 5, 30, 0, 0, 0, W::Thursday, 0, true},
     true,
     {0x7C, 0x05, 0x1E, 0x80, 0x00, 0x00, 0x20, 0x00},
     {}},
    {"LastSecond",
     {2024, 5, 30, 23, 59, 59, W::Thursday, 0, true},
     true,
     {0x7C, 0x05, 0x1E, 0x97, 0x3B, 0x3B, 0x20, 0x00},
     {}},
    {"FirstYear", {1900, 1, 1, 0, 0, 0, NoWeekday, 0, true}, true, {0x00, 0x01, 0x01, 0, 0, 0, 0x20, 0}, {}},
    {"LastYear",
     {2155, 12, 31, 23, 59, 59, W::Sunday, 1, true},
     true,
     {0xFF, 0x0C, 0x1F, 0xF7, 0x3B, 0x3B, 0x21, 0x00},
     {}},
    {"YearBeforeDateRange",
     {1989, 12, 31, 0, 0, 0, NoWeekday, 0, true},
     true,
     {0x59, 0x0C, 0x1F, 0, 0, 0, 0x20, 0},
     {}},
    {"YearAfterDateRange", {2090, 1, 1, 0, 0, 0, NoWeekday, 0, true}, true, {0xBE, 0x01, 0x01, 0, 0, 0, 0x20, 0}, {}},
    {"TimeNotChecked",
     {2024, 5, 30, 24, 60, 60, W::Thursday, 0, true},
     true,
     {0x7C, 0x05, 0x1E, 0x98, 0x3C, 0x3C, 0x20, 0x00},
     {}},
    {"DateNotChecked", {2024, 0, 0, 12, 0, 0, NoWeekday, 0, true}, true, {0x7C, 0x00, 0x00, 0x0C, 0, 0, 0x20, 0}, {}},
    {"BeforeFirstYear",
     {1899, 12, 31, 23, 59, 59, W::Sunday, 0, true},
     false,
     {},
     {Error("ToKnxValue", OutsideRange + "1899")}},
    {"AfterLastYear",
     {2156, 1, 1, 0, 0, 0, W::Saturday, 0, true},
     false,
     {},
     {Error("ToKnxValue", OutsideRange + "2156")}},
    {"YearZero", {0, 0, 0, 0, 0, 0, NoWeekday, 0, false}, false, {}, {Error("ToKnxValue", OutsideRange + "0")}},
};

class KnxConverterDateTimeSend : public testing::TestWithParam<SendRow> {};

TEST_P(KnxConverterDateTimeSend, WritesBusBytesOrRefuses) {
  const SendRow& row = GetParam();
  KnxConverterDateTime converter;
  ExpectSent(converter, Dpt19, ValueOf(IVT_DATETIME, row.time), 64, row);
}

INSTANTIATE_TEST_SUITE_P(Rows, KnxConverterDateTimeSend, testing::ValuesIn(sendRows), RowName());

// Sending fields that the converter does not check but that do not fit
// their bits: the stack throws, the converter reports it.
struct DoesNotFitRow {
  const char* name;
  int day;
  int month;
  int hour;
  int minute;
  int second;
};

void PrintTo(const DoesNotFitRow& row, std::ostream* out) {
  *out << row.name;
}

const DoesNotFitRow doesNotFitRows[] = {
    {"Hour40", 30, 5, 40, 0, 0},    {"Day40", 40, 5, 12, 0, 0},       {"Month16", 30, 16, 12, 0, 0},
    {"Minute64", 30, 5, 12, 64, 0}, {"Second255", 30, 5, 12, 0, 255},
};

class KnxConverterDateTimeDoesNotFit : public testing::TestWithParam<DoesNotFitRow> {};

TEST_P(KnxConverterDateTimeDoesNotFit, IsCaughtOnSend) {
  const DoesNotFitRow& row = GetParam();
  const std::string stackText = GroupValueExceptionText([&] {
    KnxStack::GroupValue().SetAsDateTime(row.day, row.month, 2024, row.hour, row.minute, row.second,
                                         KnxStack::GroupValue::Thursday, false, false, true, false, false, false, false,
                                         false, false);
  });
  const ULOTIME time{2024,
                     static_cast<std::uint8_t>(row.month),
                     static_cast<std::uint8_t>(row.day),
                     static_cast<std::uint8_t>(row.hour),
                     static_cast<std::uint8_t>(row.minute),
                     static_cast<std::uint8_t>(row.second),
                     W::Thursday,
                     0,
                     true};
  LogCapture capture;
  KnxConverterDateTime converter;
  KnxStack::GroupValue groupValue;

  EXPECT_FALSE(converter.ToKnxValue(Dpt19, ValueOf(IVT_DATETIME, time), groupValue));
  EXPECT_EQ(BytesOf(groupValue), Bytes{});
  EXPECT_EQ(capture.Lines(), std::vector<LogLine>{Error(
                                 "ToKnxValue", "Exception caught during conversion of date and time: " + stackText)});
}

INSTANTIATE_TEST_SUITE_P(Rows, KnxConverterDateTimeDoesNotFit, testing::ValuesIn(doesNotFitRows), RowName());

// Receiving. The output starts with a full, different date and time: what a
// flag marks as absent keeps its earlier value, the rest is overwritten; the
// set flag and summer time are always written.
const ULOTIME before{2001, 2, 3, 4, 5, 6, W::Saturday, 1, false};

const std::string InvalidTime = "Cannot convert invalid time in DateTime structure: hour=";

const ReceiveRow receiveRows[] = {
    {"NoFlags",
     {0x7C, 0x05, 0x1E, 0x8C, 0x1E, 0x0F, 0x00, 0x00},
     true,
     {2024, 5, 30, 12, 30, 15, W::Thursday, 0, true},
     {}},
    {"FaultIgnored",
     {0x7C, 0x05, 0x1E, 0x8C, 0x1E, 0x0F, 0x80, 0x00},
     true,
     {2024, 5, 30, 12, 30, 15, W::Thursday, 0, true},
     {}},
    {"WorkingDayIgnored",
     {0x7C, 0x05, 0x1E, 0x8C, 0x1E, 0x0F, 0x40, 0x00},
     true,
     {2024, 5, 30, 12, 30, 15, W::Thursday, 0, true},
     {}},
    {"NoWorkingDayIgnored",
     {0x7C, 0x05, 0x1E, 0x8C, 0x1E, 0x0F, 0x20, 0x00},
     true,
     {2024, 5, 30, 12, 30, 15, W::Thursday, 0, true},
     {}},
    {"NoYearKeepsYear",
     {0x7C, 0x05, 0x1E, 0x8C, 0x1E, 0x0F, 0x10, 0x00},
     true,
     {2001, 5, 30, 12, 30, 15, W::Thursday, 0, true},
     {}},
    {"NoDateKeepsMonthAndDay",
     {0x7C, 0x05, 0x1E, 0x8C, 0x1E, 0x0F, 0x08, 0x00},
     true,
     {2024, 2, 3, 12, 30, 15, W::Thursday, 0, true},
     {}},
    {"NoDayOfWeekKeepsWeekday",
     {0x7C, 0x05, 0x1E, 0x8C, 0x1E, 0x0F, 0x04, 0x00},
     true,
     {2024, 5, 30, 12, 30, 15, W::Saturday, 0, true},
     {}},
    {"NoTimeKeepsTime",
     {0x7C, 0x05, 0x1E, 0x8C, 0x1E, 0x0F, 0x02, 0x00},
     true,
     {2024, 5, 30, 4, 5, 6, W::Thursday, 0, true},
     {}},
    {"SummerTime",
     {0x7C, 0x05, 0x1E, 0x8C, 0x1E, 0x0F, 0x01, 0x00},
     true,
     {2024, 5, 30, 12, 30, 15, W::Thursday, 1, true},
     {}},
    {"ClockQualityIgnored",
     {0x7C, 0x05, 0x1E, 0x8C, 0x1E, 0x0F, 0x00, 0x80},
     true,
     {2024, 5, 30, 12, 30, 15, W::Thursday, 0, true},
     {}},
    {"SynchronisationSourceIgnored",
     {0x7C, 0x05, 0x1E, 0x8C, 0x1E, 0x0F, 0x00, 0x40},
     true,
     {2024, 5, 30, 12, 30, 15, W::Thursday, 0, true},
     {}},
    {"EverythingAbsent",
     {0x7C, 0x05, 0x1E, 0x8C, 0x1E, 0x0F, 0x1E, 0x00},
     true,
     {2001, 2, 3, 4, 5, 6, W::Saturday, 0, true},
     {}},
    {"AllBitsSet",
     {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF},
     true,
     {2001, 2, 3, 4, 5, 6, W::Saturday, 1, true},
     {}},
    {"Monday", {0x7C, 0x05, 0x1B, 0x2C, 0, 0, 0, 0}, true, {2024, 5, 27, 12, 0, 0, W::Monday, 0, true}, {}},
    {"Tuesday", {0x7C, 0x05, 0x1C, 0x4C, 0, 0, 0, 0}, true, {2024, 5, 28, 12, 0, 0, W::Tuesday, 0, true}, {}},
    {"Wednesday", {0x7C, 0x05, 0x1D, 0x6C, 0, 0, 0, 0}, true, {2024, 5, 29, 12, 0, 0, W::Wednesday, 0, true}, {}},
    {"Thursday", {0x7C, 0x05, 0x1E, 0x8C, 0, 0, 0, 0}, true, {2024, 5, 30, 12, 0, 0, W::Thursday, 0, true}, {}},
    {"Friday", {0x7C, 0x05, 0x1F, 0xAC, 0, 0, 0, 0}, true, {2024, 5, 31, 12, 0, 0, W::Friday, 0, true}, {}},
    {"Saturday", {0x7C, 0x06, 0x01, 0xCC, 0, 0, 0, 0}, true, {2024, 6, 1, 12, 0, 0, W::Saturday, 0, true}, {}},
    {"Sunday", {0x7C, 0x06, 0x02, 0xEC, 0, 0, 0, 0}, true, {2024, 6, 2, 12, 0, 0, W::Sunday, 0, true}, {}},
    {"NoDayGivesEmptySet", {0x7C, 0x06, 0x02, 0x0C, 0, 0, 0, 0}, true, {2024, 6, 2, 12, 0, 0, NoWeekday, 0, true}, {}},
    {"Midnight",
     {0x7C, 0x05, 0x1E, 0x80, 0x00, 0x00, 0x00, 0x00},
     true,
     {2024, 5, 30, 0, 0, 0, W::Thursday, 0, true},
     {}},
    {"LastSecond",
     {0x7C, 0x05, 0x1E, 0x97, 0x3B, 0x3B, 0x00, 0x00},
     true,
     {2024, 5, 30, 23, 59, 59, W::Thursday, 0, true},
     {}},
    {"FirstYear", {0x00, 0x01, 0x01, 0, 0, 0, 0, 0}, true, {1900, 1, 1, 0, 0, 0, NoWeekday, 0, true}, {}},
    {"LastYear",
     {0xFF, 0x0C, 0x1F, 0xF7, 0x3B, 0x3B, 0x01, 0x00},
     true,
     {2155, 12, 31, 23, 59, 59, W::Sunday, 1, true},
     {}},
    {"DateNotValidated",
     {0x7C, 0x02, 0x1E, 0x0C, 0x00, 0x00, 0x00, 0x00},
     true,
     {2024, 2, 30, 12, 0, 0, NoWeekday, 0, true},
     {}},
    {"Hour25AfterDateWritten",
     {0x7C, 0x05, 0x1E, 0x99, 0x1E, 0x0F, 0x00, 0x00},
     false,
     {2024, 5, 30, 4, 5, 6, W::Thursday, 0, true},
     {Error("FromKnxValue", InvalidTime + "25, minute=30, second=15")}},
    {"Minute60",
     {0x7C, 0x05, 0x1E, 0x8C, 0x3C, 0x0F, 0x01, 0x00},
     false,
     {2024, 5, 30, 4, 5, 6, W::Thursday, 1, true},
     {Error("FromKnxValue", InvalidTime + "12, minute=60, second=15")}},
    {"Second60",
     {0x7C, 0x05, 0x1E, 0x8C, 0x1E, 0x3C, 0x00, 0x00},
     false,
     {2024, 5, 30, 4, 5, 6, W::Thursday, 0, true},
     {Error("FromKnxValue", InvalidTime + "12, minute=30, second=60")}},
    {"Hour24WithNoYear",
     {0x7C, 0x05, 0x1E, 0x98, 0x00, 0x00, 0x10, 0x00},
     false,
     {2001, 5, 30, 4, 5, 6, W::Thursday, 0, true},
     {Error("FromKnxValue", InvalidTime + "24, minute=0, second=0")}},
    {"Hour25WithNoTime",
     {0x7C, 0x05, 0x1E, 0x99, 0x1E, 0x0F, 0x02, 0x00},
     true,
     {2024, 5, 30, 4, 5, 6, W::Thursday, 0, true},
     {}},
};

class KnxConverterDateTimeReceive : public testing::TestWithParam<ReceiveRow> {};

TEST_P(KnxConverterDateTimeReceive, ReadsBusBytesOrRefuses) {
  KnxConverterDateTime converter;
  ExpectReceived(converter, Dpt19, 64, IVT_DATETIME, before, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Rows, KnxConverterDateTimeReceive, testing::ValuesIn(receiveRows), RowName());

// A group value of the wrong size makes the stack throw; the converter
// catches it, reports it and leaves the output alone.
const WrongSizeRow wrongSizeRows[] = {
    {"TwentyFourBits", {0x7C, 0x05, 0x1E}, 24},
    {"ShortPayload", {0x7C, 0x05, 0x1E, 0x8C, 0x1E, 0x0F, 0x00}, 64},
    {"Empty", {}, 0},
};

class KnxConverterDateTimeWrongSize : public testing::TestWithParam<WrongSizeRow> {};

TEST_P(KnxConverterDateTimeWrongSize, IsCaughtOnReceive) {
  const WrongSizeRow& row = GetParam();
  const KnxStack::GroupValue groupValue = GroupOf(row.bytes, row.bits);
  const std::string stackText = GroupValueExceptionText([&] {
    groupValue.GetAsDateTime(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                             nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
  });
  KnxConverterDateTime converter;
  ExpectCaughtOnReceive(converter, Dpt19, IVT_DATETIME, before, groupValue,
                        "Exception caught during conversion of date and time: " + stackText);
}

INSTANTIATE_TEST_SUITE_P(Rows, KnxConverterDateTimeWrongSize, testing::ValuesIn(wrongSizeRows), RowName());

}  // namespace
