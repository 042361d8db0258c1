#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "DateAndTimeTestSupport.h"
#include "KnxConverterDateAndTime.h"

namespace {

using namespace DateAndTimeTest;
using Nelmo::KnxConverterDate;
using TestSupport::LogCapture;

const KNXDPT Dpt11{24, 11, 1};
const std::string OutsideRange = "Cannot convert the date outside of the range [1990...2089]: year=";

// Sending: year, month, day -> bus bytes DDDDD MMMM YYYYYYY, or the refusal.
struct SendRow {
  const char* name;
  std::uint16_t year;
  std::uint8_t month;
  std::uint8_t day;
  bool result;
  Bytes bytes;  // empty: the group value stays untouched
  std::vector<LogLine> log;
};

void PrintTo(const SendRow& row, std::ostream* out) {
  *out << row.name;
}

const SendRow sendRows[] = {
    {"FirstYear", 1990, 1, 1, true, {0x01, 0x01, 0x5A}, {}},
    {"LastYear", 2089, 12, 31, true, {0x1F, 0x0C, 0x59}, {}},
    {"LastOfTheNineties", 1999, 12, 31, true, {0x1F, 0x0C, 0x63}, {}},
    {"Year2000", 2000, 1, 1, true, {0x01, 0x01, 0x00}, {}},
    {"Ordinary", 2024, 5, 30, true, {0x1E, 0x05, 0x18}, {}},
    {"InvalidDayPassedUnchanged", 2024, 2, 30, true, {0x1E, 0x02, 0x18}, {}},
    {"BeforeFirstYear",
     1989,
     12,
     31,
     false,
     {},
     {Error("ToKnxValue", OutsideRange + "1989, month=" + '\x0c' + ", day=" + '\x1f')}},
    {"AfterLastYear",
     2090,
     1,
     1,
     false,
     {},
     {Error("ToKnxValue", OutsideRange + "2090, month=" + '\x01' + ", day=" + '\x01')}},
    {"MonthAndDayAsRawBytes",
     1989,
     5,
     30,
     false,
     {},
     {Error("ToKnxValue", OutsideRange + "1989, month=" + '\x05' + ", day=" + '\x1e')}},
    {"DigitBytes", 2155, 49, 57, false, {}, {Error("ToKnxValue", OutsideRange + "2155, month=1, day=9")}},
    {"ZeroDate", 0, 0, 0, false, {}, {Error("ToKnxValue", OutsideRange + "0, month=" + '\0' + ", day=" + '\0')}},
};

class KnxConverterDateSend : public testing::TestWithParam<SendRow> {};

TEST_P(KnxConverterDateSend, WritesBusBytesOrRefuses) {
  const SendRow& row = GetParam();
  KnxConverterDate converter;
  ExpectSent(converter, Dpt11, ValueOf(IVT_DATE, ULOTIME{row.year, row.month, row.day, 0, 0, 0, NoWeekday, 0, true}),
             24, row);
}

INSTANTIATE_TEST_SUITE_P(Rows, KnxConverterDateSend, testing::ValuesIn(sendRows), RowName());

// Receiving: bus bytes -> date, or the refusal. The output starts with a
// full date and time; a success clears it before the date is set.
const ULOTIME before{2001, 2, 3, 4, 5, 6, ULO::Weekdays::Saturday, 1, false};

const ReceiveRow receiveRows[] = {
    {"FirstYear", {0x01, 0x01, 0x5A}, true, {1990, 1, 1, 0, 0, 0, NoWeekday, 0, true}, {}},
    {"LastYear", {0x1F, 0x0C, 0x59}, true, {2089, 12, 31, 0, 0, 0, NoWeekday, 0, true}, {}},
    {"Ordinary", {0x1E, 0x05, 0x18}, true, {2024, 5, 30, 0, 0, 0, NoWeekday, 0, true}, {}},
    {"LeapDay", {0x1D, 0x02, 0x18}, true, {2024, 2, 29, 0, 0, 0, NoWeekday, 0, true}, {}},
    {"FebruaryThirtieth",
     {0x1E, 0x02, 0x18},
     false,
     before,
     {Error("FromKnxValue", "Cannot convert invalid date: year=2024, month=2, day=30")}},
    {"NoLeapDay",
     {0x1D, 0x02, 0x17},
     false,
     before,
     {Error("FromKnxValue", "Cannot convert invalid date: year=2023, month=2, day=29")}},
    {"DayZero",
     {0x00, 0x01, 0x18},
     false,
     before,
     {Error("FromKnxValue", "Cannot convert invalid date: year=2024, month=1, day=0")}},
    {"MonthZero",
     {0x01, 0x00, 0x18},
     false,
     before,
     {Error("FromKnxValue", "Cannot convert invalid date: year=2024, month=0, day=1")}},
    {"MonthThirteen",
     {0x01, 0x0D, 0x63},
     false,
     before,
     {Error("FromKnxValue", "Cannot convert invalid date: year=1999, month=13, day=1")}},
    {"AprilThirtyFirst",
     {0x1F, 0x04, 0x00},
     false,
     before,
     {Error("FromKnxValue", "Cannot convert invalid date: year=2000, month=4, day=31")}},
};

class KnxConverterDateReceive : public testing::TestWithParam<ReceiveRow> {};

TEST_P(KnxConverterDateReceive, ReadsBusBytesOrRefuses) {
  KnxConverterDate converter;
  ExpectReceived(converter, Dpt11, 24, IVT_DATE, before, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Rows, KnxConverterDateReceive, testing::ValuesIn(receiveRows), RowName());

// The stack's exception is caught inside and reported by the converter.
TEST(KnxConverterDate, DayThatDoesNotFitItsBitsIsCaughtOnSend) {
  const std::string stackText = GroupValueExceptionText([] { KnxStack::GroupValue().SetAsDate(40, 1, 2024); });
  LogCapture capture;
  KnxConverterDate converter;
  KnxStack::GroupValue groupValue;

  EXPECT_FALSE(
      converter.ToKnxValue(Dpt11, ValueOf(IVT_DATE, ULOTIME{2024, 1, 40, 0, 0, 0, NoWeekday, 0, true}), groupValue));
  EXPECT_EQ(capture.Lines(),
            std::vector<LogLine>{Error("ToKnxValue", "Exception caught during conversion of date: " + stackText)});
}

const WrongSizeRow wrongSizeRows[] = {
    {"SixteenBits", {0x01, 0x01}, 16},
    {"ThirtyTwoBits", {0x01, 0x01, 0x5A, 0x00}, 32},
    {"ShortPayload", {0x01, 0x01}, 24},
    {"Empty", {}, 0},
};

class KnxConverterDateWrongSize : public testing::TestWithParam<WrongSizeRow> {};

TEST_P(KnxConverterDateWrongSize, IsCaughtOnReceive) {
  const WrongSizeRow& row = GetParam();
  const KnxStack::GroupValue groupValue = GroupOf(row.bytes, row.bits);
  const std::string stackText = GroupValueExceptionText([&] { groupValue.GetAsDate(nullptr, nullptr, nullptr); });
  KnxConverterDate converter;
  ExpectCaughtOnReceive(converter, Dpt11, IVT_DATE, before, groupValue,
                        "Exception caught during conversion of date: " + stackText);
}

INSTANTIATE_TEST_SUITE_P(Rows, KnxConverterDateWrongSize, testing::ValuesIn(wrongSizeRows), RowName());

// An invalid day is the receiver's business: sent as it is, refused on return.
TEST(KnxConverterDate, FebruaryThirtiethIsSentButRefusedOnReceive) {
  LogCapture capture;
  KnxConverterDate converter;
  KnxStack::GroupValue groupValue;
  ULOVALUE received = ValueOf(IVT_DATE, before);

  ASSERT_TRUE(
      converter.ToKnxValue(Dpt11, ValueOf(IVT_DATE, ULOTIME{2024, 2, 30, 0, 0, 0, NoWeekday, 0, true}), groupValue));
  EXPECT_EQ(BytesOf(groupValue), (Bytes{0x1E, 0x02, 0x18}));
  EXPECT_FALSE(converter.FromKnxValue(Dpt11, groupValue, received));
  EXPECT_EQ(received.GetTime(), before);
  EXPECT_EQ(capture.Lines(),
            std::vector<LogLine>{Error("FromKnxValue", "Cannot convert invalid date: year=2024, month=2, day=30")});
}

}  // namespace
