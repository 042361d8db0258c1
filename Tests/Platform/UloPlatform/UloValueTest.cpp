#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <ostream>
#include <string>

#include "UloValue.h"

namespace {

using V = ULOVALUE;

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr std::uint64_t UInt64Max = std::numeric_limits<std::uint64_t>::max();
constexpr auto Unknown = static_cast<UloValueType>(999);

ULOTIME MakeTime(std::uint16_t year, std::uint8_t month, std::uint8_t day, std::uint8_t hour, std::uint8_t minute,
                 std::uint8_t second) {
  ULOTIME time;
  time.SetDate(year, month, day, true);
  time.SetTime(hour, minute, second, true);
  return time;
}

const ULOTIME leapDayAfternoon = MakeTime(2024, 2, 29, 13, 45, 30);

void PrintValue(const ULOVALUE& value, std::ostream* out) {
  const char* name = UloValueTypeName(value.GetType());
  *out << (name != nullptr ? name : std::to_string(value.GetType())) << " \"" << value.ToString() << "\"";
}

// ---------------------------------------------------------------------------
// Construction and storage

TEST(UloValue, DefaultIsTheEmptyValue) {
  const ULOVALUE value;
  EXPECT_EQ(value.GetType(), IVT_ANY);
  EXPECT_EQ(value.ToString(), "");
  EXPECT_EQ(ULOVALUE(IVT_UINT16).GetUInt16(), 0);
  EXPECT_EQ(ULOVALUE(IVT_UINT16).GetType(), IVT_UINT16);
}

TEST(UloValue, FactoriesSetTagAndPayload) {
  EXPECT_EQ(V::Bool(true).GetType(), IVT_BOOL);
  EXPECT_TRUE(V::Bool(true).GetBool());
  EXPECT_EQ(V::Byte(200).GetType(), IVT_BYTE);
  EXPECT_EQ(V::Byte(200, IVT_BYTE_1021).GetType(), IVT_BYTE_1021);
  EXPECT_EQ(V::Byte(200, IVT_BYTE_1021).GetByte(), 200);
  EXPECT_EQ(V::UInt16(65535).GetType(), IVT_UINT16);
  EXPECT_EQ(V::UInt16(65535).GetUInt16(), 65535);
  EXPECT_EQ(V::Int32(-7).GetType(), IVT_INT32);
  EXPECT_EQ(V::Int32(-7, IVT_TYPE_5).GetType(), IVT_TYPE_5);
  EXPECT_EQ(V::Int32(-7, IVT_TYPE_5).GetInt32(), -7);
  EXPECT_EQ(V::UInt32(7, IVT_UNSIGNED_20).GetType(), IVT_UNSIGNED_20);
  EXPECT_EQ(V::UInt32(0xFFFFFFFFu).GetUInt32(), 0xFFFFFFFFu);
  EXPECT_EQ(V::UInt64(UInt64Max).GetType(), IVT_UINT64);
  EXPECT_EQ(V::UInt64(UInt64Max).GetUInt64(), UInt64Max);
  EXPECT_EQ(V::Double(1.5, IVT_PERCENT).GetType(), IVT_PERCENT);
  EXPECT_EQ(V::Double(1.5, IVT_PERCENT).GetDouble(), 1.5);
  EXPECT_EQ(V::String("text").GetType(), IVT_STRING);
  EXPECT_EQ(V::String("text").GetString(), "text");
  EXPECT_EQ(V::TimeSpan(-60).GetType(), IVT_TIMESPAN);
  EXPECT_EQ(V::TimeSpan(-60).GetInt32(), -60);
  EXPECT_EQ(V::DateTime(leapDayAfternoon, IVT_DATETIME_201).GetType(), IVT_DATETIME_201);
  EXPECT_EQ(V::DateTime(leapDayAfternoon).GetTime(), leapDayAfternoon);
}

TEST(UloValue, DateAndTimeFactoriesMarkTheTimeSet) {
  ULOTIME date;
  date.SetDate(2024, 2, 29, true);
  EXPECT_EQ(V::Date(2024, 2, 29).GetType(), IVT_DATE);
  EXPECT_EQ(V::Date(2024, 2, 29).GetTime(), date);
  ULOTIME time;
  time.SetTime(13, 45, 30, true);
  EXPECT_EQ(V::Time(13, 45, 30).GetType(), IVT_TIME);
  EXPECT_EQ(V::Time(13, 45, 30).GetTime(), time);
}

TEST(UloValue, SettersLeaveTheTagAlone) {
  ULOVALUE value(IVT_DOUBLE);
  value.SetBool(true);
  value.SetUInt32(5);
  value.SetString("x");
  EXPECT_EQ(value.GetType(), IVT_DOUBLE);
  value.SetType(IVT_UINT32);
  EXPECT_EQ(value.GetType(), IVT_UINT32);
  EXPECT_EQ(value.ToString(), "5");
}

TEST(UloValue, IntegerKindsShareOneStorage) {
  ULOVALUE value(IVT_UINT16);
  value.SetUInt16(40000);
  EXPECT_EQ(value.GetInt32(), 40000);
  EXPECT_EQ(value.GetUInt32(), 40000u);
  EXPECT_EQ(value.GetUInt64(), 40000u);
  value.SetByte(200);
  EXPECT_EQ(value.GetUInt16(), 200);
  EXPECT_EQ(value.GetInt32(), 200);
  value.SetInt32(-1);
  EXPECT_EQ(value.GetUInt32(), 0xFFFFFFFFu);
  value.SetUInt32(0xFFFFFFFFu);
  EXPECT_EQ(value.GetInt32(), -1);
  value.SetInt32(std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(value.GetUInt32(), 0x80000000u);
}

TEST(UloValue, CopyTakesTagAndPayload) {
  const ULOVALUE source = V::String("a text longer than any short-string buffer");
  ULOVALUE target = V::Double(1.0);
  target = source;
  EXPECT_EQ(target.GetType(), IVT_STRING);
  EXPECT_EQ(target.GetString(), source.GetString());
}

// ---------------------------------------------------------------------------
// ToString

struct TextRow {
  ULOVALUE value;
  const char* text;
};

void PrintTo(const TextRow& row, std::ostream* out) {
  PrintValue(row.value, out);
}

class UloValueToString : public ::testing::TestWithParam<TextRow> {};

TEST_P(UloValueToString, WritesTheValueOfItsKind) {
  EXPECT_EQ(GetParam().value.ToString(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(EmptyKinds, UloValueToString,
                         ::testing::Values(TextRow{V(), ""}, TextRow{V(IVT_NONE), ""}, TextRow{V(Unknown), ""}));

TEST(UloValueToStringEmpty, ShowsNoPayload) {
  ULOVALUE value(IVT_NONE);
  value.SetUInt32(5);
  value.SetString("x");
  EXPECT_EQ(value.ToString(), "");
  value.SetType(Unknown);
  EXPECT_EQ(value.ToString(), "");
}

INSTANTIATE_TEST_SUITE_P(Booleans, UloValueToString,
                         ::testing::Values(TextRow{V::Bool(true), "true"}, TextRow{V::Bool(false), "false"}));

INSTANTIATE_TEST_SUITE_P(
    Integers, UloValueToString,
    ::testing::Values(TextRow{V::Int32(0), "0"}, TextRow{V::Int32(-2147483647 - 1), "-2147483648"},
                      TextRow{V::Int32(2147483647), "2147483647"}, TextRow{V::Int32(-1, IVT_TYPE_5), "-1"},
                      TextRow{V::TimeSpan(-3600), "-3600"}, TextRow{V::TimeSpan(86400), "86400"},
                      TextRow{V::Byte(255), "255"}, TextRow{V::Byte(0, IVT_BYTE_1021), "0"},
                      TextRow{V::UInt16(65535), "65535"}, TextRow{V::UInt32(4294967295u), "4294967295"},
                      TextRow{V::UInt32(20, IVT_UNSIGNED_20), "20"},
                      TextRow{V::UInt64(UInt64Max), "18446744073709551615"}, TextRow{V::UInt64(0), "0"}));

INSTANTIATE_TEST_SUITE_P(
    Doubles, UloValueToString,
    ::testing::Values(TextRow{V::Double(21.5), "21.5"}, TextRow{V::Double(-21.5), "-21.5"},
                      TextRow{V::Double(0.1), "0.1"}, TextRow{V::Double(0.1 + 0.2), "0.30000000000000004"},
                      TextRow{V::Double(1.0 / 3.0), "0.3333333333333333"}, TextRow{V::Double(0.0), "0"},
                      TextRow{V::Double(-0.0), "-0"}, TextRow{V::Double(100.0), "100"},
                      TextRow{V::Double(20.47), "20.47"}, TextRow{V::Double(670433.28), "670433.28"},
                      TextRow{V::Double(123.456), "123.456"}, TextRow{V::Double(0.0001), "0.0001"},
                      TextRow{V::Double(0.00001), "1e-05"}, TextRow{V::Double(1.5e-7), "1.5e-07"},
                      TextRow{V::Double(1e16), "10000000000000000"}, TextRow{V::Double(1e17), "1e+17"},
                      TextRow{V::Double(123456789012345678.0), "1.2345678901234568e+17"},
                      TextRow{V::Double(1e300), "1e+300"}, TextRow{V::Double(-1e300), "-1e+300"},
                      TextRow{V::Double(std::numeric_limits<double>::max()), "1.7976931348623157e+308"},
                      TextRow{V::Double(std::numeric_limits<double>::denorm_min()), "5e-324"},
                      TextRow{V::Double(NaN), "nan"}, TextRow{V::Double(Infinity), "inf"},
                      TextRow{V::Double(-Infinity), "-inf"}, TextRow{V::Double(50.0, IVT_PERCENT), "50"},
                      TextRow{V::Double(-12.5, IVT_DIMMING), "-12.5"}, TextRow{V::Double(2.5, IVT_DOUBLE_1005), "2.5"},
                      TextRow{V::Double(1e-3, IVT_DOUBLE_1039), "0.001"}));

INSTANTIATE_TEST_SUITE_P(Texts, UloValueToString,
                         ::testing::Values(TextRow{V::String("Hello, KNX"), "Hello, KNX"}, TextRow{V::String(""), ""},
                                           TextRow{V::String("\xC4pfel"), "\xC4pfel"}));

INSTANTIATE_TEST_SUITE_P(
    DatesAndTimes, UloValueToString,
    ::testing::Values(TextRow{V::Date(2024, 2, 29), "2024-02-29"}, TextRow{V::Date(5, 1, 2), "0005-01-02"},
                      TextRow{V::DateTime(leapDayAfternoon, IVT_DATE_105), "2024-02-29"},
                      TextRow{V::Time(7, 5, 9), "07:05:09"},
                      TextRow{V::DateTime(leapDayAfternoon, IVT_TIME_104), "13:45:30"},
                      TextRow{V::DateTime(leapDayAfternoon), "2024-02-29 13:45:30"},
                      TextRow{V::DateTime(leapDayAfternoon, IVT_DATETIME_102), "2024-02-29 13:45:30"},
                      TextRow{V::DateTime(leapDayAfternoon, IVT_DATETIME_201), "2024-02-29 13:45:30"},
                      TextRow{V::DateTime(ULOTIME()), "0000-00-00 00:00:00"},
                      TextRow{V::DateTime(MakeTime(65535, 255, 255, 255, 255, 255)), "65535-255-255 255:255:255"}));

TEST(UloValueToStringDouble, NegativeNotANumberIsNan) {
  EXPECT_EQ(V::Double(-NaN).ToString(), "nan");
}

// ---------------------------------------------------------------------------
// Assign

struct AssignRow {
  ULOVALUE source;
  ULOVALUE target;  // its type is the wanted one, its payload what a refusal keeps
  bool converted;
  const char* text;  // the target's text afterwards
};

void PrintTo(const AssignRow& row, std::ostream* out) {
  PrintValue(row.source, out);
  *out << " into ";
  PrintValue(row.target, out);
}

class UloValueAssign : public ::testing::TestWithParam<AssignRow> {};

TEST_P(UloValueAssign, ConvertsIntoTheTargetTypeOrLeavesTheTarget) {
  const AssignRow& row = GetParam();
  ULOVALUE target = row.target;
  EXPECT_EQ(target.Assign(row.source), row.converted);
  EXPECT_EQ(target.GetType(), row.target.GetType());
  EXPECT_EQ(target.ToString(), row.text);
}

INSTANTIATE_TEST_SUITE_P(SameType, UloValueAssign,
                         ::testing::Values(AssignRow{V::Double(21.5), V::Double(0.0), true, "21.5"},
                                           AssignRow{V::Double(NaN), V::Double(0.0), true, "nan"},
                                           AssignRow{V::String("abc"), V::String("old"), true, "abc"},
                                           AssignRow{V::Int32(-5, IVT_TYPE_5), V::Int32(1, IVT_TYPE_5), true, "-5"},
                                           AssignRow{V::Date(2024, 2, 29), V::Date(2000, 1, 1), true, "2024-02-29"},
                                           AssignRow{V(), V(), true, ""}, AssignRow{V(IVT_NONE), V(IVT_NONE), true, ""},
                                           AssignRow{V(Unknown), V(Unknown), true, ""}));

INSTANTIATE_TEST_SUITE_P(
    DoublesIntoIntegers, UloValueAssign,
    ::testing::Values(
        AssignRow{V::Double(21.5), V::Int32(7), true, "22"}, AssignRow{V::Double(-21.5), V::Int32(7), true, "-22"},
        AssignRow{V::Double(21.4999), V::Int32(7), true, "21"},
        AssignRow{V::Double(2147483647.4), V::Int32(7), true, "2147483647"},
        AssignRow{V::Double(2147483647.5), V::Int32(7), false, "7"},
        AssignRow{V::Double(-2147483648.4), V::Int32(7), true, "-2147483648"},
        AssignRow{V::Double(-2147483648.5), V::Int32(7), false, "7"},
        AssignRow{V::Double(-3600.5), V::TimeSpan(7), true, "-3601"},
        AssignRow{V::Double(254.5), V::Byte(7), true, "255"}, AssignRow{V::Double(255.5), V::Byte(7), false, "7"},
        AssignRow{V::Double(300.0), V::Byte(7, IVT_BYTE_1021), false, "7"},
        AssignRow{V::Double(-0.4), V::UInt32(7), true, "0"}, AssignRow{V::Double(-0.5), V::UInt32(7), false, "7"},
        AssignRow{V::Double(65535.0), V::UInt16(7), true, "65535"},
        AssignRow{V::Double(65535.5), V::UInt16(7), false, "7"},
        AssignRow{V::Double(4294967295.0), V::UInt32(7, IVT_UNSIGNED_20), true, "4294967295"},
        AssignRow{V::Double(4294967295.5), V::UInt32(7), false, "7"},
        AssignRow{V::Double(18446744073709549568.0), V::UInt64(7), true, "18446744073709549568"},
        AssignRow{V::Double(18446744073709551616.0), V::UInt64(7), false, "7"},
        AssignRow{V::Double(1e300), V::UInt64(7), false, "7"}, AssignRow{V::Double(-1.0), V::UInt64(7), false, "7"},
        AssignRow{V::Double(NaN), V::Int32(7), false, "7"}, AssignRow{V::Double(Infinity), V::Int32(7), false, "7"},
        AssignRow{V::Double(-Infinity), V::Int32(7), false, "7"}, AssignRow{V::Double(NaN), V::UInt64(7), false, "7"},
        AssignRow{V::Double(12.5, IVT_PERCENT), V::Byte(7), true, "13"},
        AssignRow{V::Double(-2.5, IVT_DIMMING), V::Int32(7), true, "-3"}));

INSTANTIATE_TEST_SUITE_P(
    IntegersIntoNumbers, UloValueAssign,
    ::testing::Values(
        AssignRow{V::Int32(255), V::Byte(7), true, "255"}, AssignRow{V::Int32(300), V::Byte(7), false, "7"},
        AssignRow{V::Int32(-1), V::Byte(7), false, "7"}, AssignRow{V::Int32(-1), V::UInt32(7), false, "7"},
        AssignRow{V::Int32(-1), V::UInt64(7), false, "7"}, AssignRow{V::Int32(-5), V::Double(0.0), true, "-5"},
        AssignRow{V::Int32(-2147483647 - 1), V::Double(0.0), true, "-2147483648"},
        AssignRow{V::Int32(-60), V::TimeSpan(7), true, "-60"}, AssignRow{V::TimeSpan(3600), V::Int32(7), true, "3600"},
        AssignRow{V::Int32(-5), V::Int32(7, IVT_TYPE_5), true, "-5"},
        AssignRow{V::UInt32(2147483647u), V::Int32(7), true, "2147483647"},
        AssignRow{V::UInt32(2147483648u), V::Int32(7), false, "7"},
        AssignRow{V::UInt32(65535), V::UInt16(7), true, "65535"}, AssignRow{V::UInt32(65536), V::UInt16(7), false, "7"},
        AssignRow{V::UInt16(40000), V::UInt32(7, IVT_UNSIGNED_20), true, "40000"},
        AssignRow{V::UInt16(40000), V::Int32(7), true, "40000"}, AssignRow{V::UInt16(256), V::Byte(7), false, "7"},
        AssignRow{V::Byte(200), V::Byte(7, IVT_BYTE_1021), true, "200"},
        AssignRow{V::Byte(200, IVT_BYTE_1021), V::UInt64(7), true, "200"},
        AssignRow{V::UInt64(4294967295u), V::UInt32(7), true, "4294967295"},
        AssignRow{V::UInt64(4294967296u), V::UInt32(7), false, "7"},
        AssignRow{V::UInt64(UInt64Max), V::Int32(7), false, "7"},
        AssignRow{V::UInt64(UInt64Max), V::Double(0.0), true, "1.8446744073709552e+19"},
        AssignRow{V::UInt32(42, IVT_UNSIGNED_20), V::Double(0.0, IVT_PERCENT), true, "42"}));

INSTANTIATE_TEST_SUITE_P(
    DoublesIntoDoubles, UloValueAssign,
    ::testing::Values(AssignRow{V::Double(21.5), V::Double(0.0, IVT_DOUBLE_1005), true, "21.5"},
                      AssignRow{V::Double(50.0, IVT_PERCENT), V::Double(0.0, IVT_DIMMING), true, "50"},
                      AssignRow{V::Double(-12.5, IVT_DIMMING), V::Double(0.0, IVT_DOUBLE_1039), true, "-12.5"},
                      AssignRow{V::Double(NaN, IVT_DOUBLE_1039), V::Double(0.0), true, "nan"},
                      AssignRow{V::Double(-Infinity), V::Double(0.0, IVT_PERCENT), true, "-inf"}));

INSTANTIATE_TEST_SUITE_P(Booleans, UloValueAssign,
                         ::testing::Values(AssignRow{V::Bool(true), V::Int32(7), true, "1"},
                                           AssignRow{V::Bool(false), V::Int32(7), true, "0"},
                                           AssignRow{V::Bool(true), V::Byte(7), true, "1"},
                                           AssignRow{V::Bool(true), V::UInt64(7), true, "1"},
                                           AssignRow{V::Bool(true), V::Double(7.0), true, "1"},
                                           AssignRow{V::Bool(false), V::Double(7.0, IVT_PERCENT), true, "0"},
                                           AssignRow{V::Int32(0), V::Bool(true), true, "false"},
                                           AssignRow{V::Int32(-3), V::Bool(false), true, "true"},
                                           AssignRow{V::UInt64(UInt64Max), V::Bool(false), true, "true"},
                                           AssignRow{V::Byte(0), V::Bool(true), true, "false"},
                                           AssignRow{V::Double(0.1), V::Bool(false), true, "true"},
                                           AssignRow{V::Double(-0.0), V::Bool(true), true, "false"},
                                           AssignRow{V::Double(-Infinity), V::Bool(false), true, "true"},
                                           AssignRow{V::Double(NaN), V::Bool(true), false, "true"},
                                           AssignRow{V::String("1"), V::Bool(false), false, "false"},
                                           AssignRow{V::String("true"), V::Bool(false), false, "false"}));

INSTANTIATE_TEST_SUITE_P(
    TextsIntoNumbers, UloValueAssign,
    ::testing::Values(
        AssignRow{V::String("12"), V::Int32(7), true, "12"}, AssignRow{V::String("-12"), V::Int32(7), true, "-12"},
        AssignRow{V::String("+12"), V::Byte(7), true, "12"}, AssignRow{V::String("007"), V::UInt16(7), true, "7"},
        AssignRow{V::String("21.5"), V::Double(0.0), true, "21.5"},
        AssignRow{V::String("21.5"), V::Int32(7), true, "22"}, AssignRow{V::String("-0.5"), V::Int32(7), true, "-1"},
        AssignRow{V::String("1e3"), V::UInt16(7), true, "1000"},
        AssignRow{V::String("2.5E-1"), V::Double(0.0), true, "0.25"},
        AssignRow{V::String("1e+300"), V::Double(0.0), true, "1e+300"},
        AssignRow{V::String(".5"), V::Double(0.0), true, "0.5"}, AssignRow{V::String("5."), V::Double(0.0), true, "5"},
        AssignRow{V::String("-0"), V::UInt32(7), true, "0"}, AssignRow{V::String("60"), V::TimeSpan(7), true, "60"},
        AssignRow{V::String("18446744073709551615"), V::UInt64(7), true, "18446744073709551615"},
        AssignRow{V::String("18446744073709551616"), V::UInt64(7), false, "7"},
        AssignRow{V::String("18446744073709551616"), V::Double(0.0), true, "1.8446744073709552e+19"},
        AssignRow{V::String("300"), V::Byte(7), false, "7"}, AssignRow{V::String("-1"), V::UInt32(7), false, "7"},
        AssignRow{V::String("12abc"), V::Int32(7), false, "7"}, AssignRow{V::String(""), V::Int32(7), false, "7"},
        AssignRow{V::String(" 12"), V::Int32(7), false, "7"}, AssignRow{V::String("12 "), V::Int32(7), false, "7"},
        AssignRow{V::String("0x10"), V::Int32(7), false, "7"}, AssignRow{V::String("1,5"), V::Double(7.0), false, "7"},
        AssignRow{V::String("1e"), V::Double(7.0), false, "7"}, AssignRow{V::String("."), V::Double(7.0), false, "7"},
        AssignRow{V::String("-"), V::Double(7.0), false, "7"}, AssignRow{V::String("--1"), V::Double(7.0), false, "7"},
        AssignRow{V::String("inf"), V::Double(7.0), false, "7"},
        AssignRow{V::String("nan"), V::Double(7.0), false, "7"},
        AssignRow{V::String("1e400"), V::Double(7.0), false, "7"}));

INSTANTIATE_TEST_SUITE_P(IntoTexts, UloValueAssign,
                         ::testing::Values(AssignRow{V::Double(21.5), V::String("old"), true, "21.5"},
                                           AssignRow{V::Double(NaN, IVT_PERCENT), V::String("old"), true, "nan"},
                                           AssignRow{V::Int32(-5), V::String("old"), true, "-5"},
                                           AssignRow{V::TimeSpan(60), V::String("old"), true, "60"},
                                           AssignRow{V::Byte(255, IVT_BYTE_1021), V::String("old"), true, "255"},
                                           AssignRow{V::UInt64(UInt64Max), V::String("old"), true,
                                                     "18446744073709551615"},
                                           AssignRow{V::Bool(true), V::String("old"), true, "true"},
                                           AssignRow{V::Date(2024, 2, 29), V::String("old"), false, "old"},
                                           AssignRow{V::Time(13, 45, 30), V::String("old"), false, "old"},
                                           AssignRow{V::DateTime(leapDayAfternoon), V::String("old"), false, "old"},
                                           AssignRow{V(), V::String("old"), false, "old"},
                                           AssignRow{V(IVT_NONE), V::String("old"), false, "old"},
                                           AssignRow{V(Unknown), V::String("old"), false, "old"}));

INSTANTIATE_TEST_SUITE_P(
    DatesAndTimes, UloValueAssign,
    ::testing::Values(
        AssignRow{V::Date(2024, 2, 29), V::DateTime(ULOTIME(), IVT_DATE_105), true, "2024-02-29"},
        AssignRow{V::Date(2024, 2, 29), V::DateTime(ULOTIME()), true, "2024-02-29 00:00:00"},
        AssignRow{V::Date(2024, 2, 29), V::DateTime(ULOTIME(), IVT_DATETIME_102), true, "2024-02-29 00:00:00"},
        AssignRow{V::Time(13, 45, 30), V::DateTime(ULOTIME(), IVT_TIME_104), true, "13:45:30"},
        AssignRow{V::Time(13, 45, 30), V::DateTime(ULOTIME(), IVT_DATETIME_201), true, "0000-00-00 13:45:30"},
        AssignRow{V::DateTime(leapDayAfternoon), V::Date(2000, 1, 1), true, "2024-02-29"},
        AssignRow{V::DateTime(leapDayAfternoon, IVT_DATETIME_102), V::Time(1, 2, 3), true, "13:45:30"},
        AssignRow{V::DateTime(leapDayAfternoon, IVT_DATETIME_201), V::DateTime(ULOTIME()), true, "2024-02-29 13:45:30"},
        AssignRow{V::Date(2024, 2, 29), V::Time(1, 2, 3), false, "01:02:03"},
        AssignRow{V::Time(13, 45, 30), V::Date(2000, 1, 1), false, "2000-01-01"},
        AssignRow{V::DateTime(leapDayAfternoon, IVT_TIME_104), V::DateTime(ULOTIME(), IVT_DATE_105), false,
                  "0000-00-00"}));

INSTANTIATE_TEST_SUITE_P(
    Refused, UloValueAssign,
    ::testing::Values(AssignRow{V::Date(2024, 2, 29), V::Int32(7), false, "7"},
                      AssignRow{V::Time(13, 45, 30), V::Double(7.0), false, "7"},
                      AssignRow{V::DateTime(leapDayAfternoon), V::Bool(true), false, "true"},
                      AssignRow{V::Int32(20240229), V::Date(2000, 1, 1), false, "2000-01-01"},
                      AssignRow{V::Bool(true), V::Time(1, 2, 3), false, "01:02:03"},
                      AssignRow{V::String("2024-02-29"), V::Date(2000, 1, 1), false, "2000-01-01"},
                      AssignRow{V::String("13:45:30"), V::Time(1, 2, 3), false, "01:02:03"},
                      AssignRow{V(), V::Int32(7), false, "7"}, AssignRow{V(IVT_NONE), V::Double(7.0), false, "7"},
                      AssignRow{V(IVT_NONE), V::Bool(true), false, "true"},
                      AssignRow{V(IVT_NONE), V::Date(2000, 1, 1), false, "2000-01-01"},
                      AssignRow{V(Unknown), V::Int32(7), false, "7"}, AssignRow{V::Int32(7), V(), false, ""},
                      AssignRow{V::Int32(7), V(IVT_NONE), false, ""}, AssignRow{V(IVT_NONE), V(), false, ""},
                      AssignRow{V(), V(IVT_NONE), false, ""}, AssignRow{V::Int32(7), V(Unknown), false, ""},
                      AssignRow{V::String("x"), V(Unknown), false, ""}));

// The fields that ToString does not show.
TEST(UloValueAssignTime, DateTimeIntoTimeKeepsWeekdaySummerTimeAndFlag) {
  ULOTIME full = leapDayAfternoon;
  full.weekday = ULO::Weekdays::Thursday;
  full.summerTime = 1;
  ULOVALUE target = V::Time(1, 2, 3);
  ASSERT_TRUE(target.Assign(V::DateTime(full)));
  ULOTIME expected;
  expected.SetTime(13, 45, 30, true);
  expected.weekday = ULO::Weekdays::Thursday;
  expected.summerTime = 1;
  EXPECT_EQ(target.GetTime(), expected);
}

TEST(UloValueAssignTime, DateTimeIntoDateDropsTheTimeOfDay) {
  ULOTIME full = leapDayAfternoon;
  full.weekday = ULO::Weekdays::Thursday;
  full.summerTime = 1;
  full.isSet = false;
  ULOVALUE target = V::Date(2000, 1, 1);
  ASSERT_TRUE(target.Assign(V::DateTime(full)));
  ULOTIME expected;
  expected.SetDate(2024, 2, 29, false);
  EXPECT_EQ(target.GetTime(), expected);
}

TEST(UloValueAssignTime, SameGroupCopiesTheWholeTime) {
  ULOTIME full = leapDayAfternoon;
  full.weekday = ULO::Weekdays::Thursday;
  full.summerTime = 1;
  ULOVALUE target = V::DateTime(ULOTIME(), IVT_DATETIME_102);
  ASSERT_TRUE(target.Assign(V::DateTime(full, IVT_DATETIME_201)));
  EXPECT_EQ(target.GetTime(), full);
}

TEST(UloValueAssign, SelfAssignKeepsTheValue) {
  ULOVALUE value = V::String("a text longer than any short-string buffer");
  const ULOVALUE& alias = value;
  EXPECT_TRUE(value.Assign(alias));
  EXPECT_EQ(value.GetString(), "a text longer than any short-string buffer");
}

TEST(UloValueAssign, RefusalLeavesTheWholePayload) {
  ULOVALUE target = V::Byte(7);
  target.SetString("kept");
  EXPECT_FALSE(target.Assign(V::Int32(300)));
  EXPECT_EQ(target.GetType(), IVT_BYTE);
  EXPECT_EQ(target.GetByte(), 7);
  EXPECT_EQ(target.GetString(), "kept");
}

}  // namespace
