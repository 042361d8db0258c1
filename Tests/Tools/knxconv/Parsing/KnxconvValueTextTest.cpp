#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "InputError.h"
#include "ValueText.h"

namespace {

using namespace Knxconv;

struct TypeCase {
  const char* text;
  UloValueType type;
};

const TypeCase TypeCases[] = {
    {"double", IVT_DOUBLE},
    {"DOUBLE", IVT_DOUBLE},
    {"Double", IVT_DOUBLE},
    {"IVT_DOUBLE", IVT_DOUBLE},
    {"ivt_double", IVT_DOUBLE},
    {"3", IVT_DOUBLE},
    {"1036", IVT_PERCENT},
    {"percent", IVT_PERCENT},
    {"dimming", IVT_DIMMING},
    {"none", IVT_NONE},
    {"0", IVT_NONE},
    {"any", IVT_ANY},
    {"bool", IVT_BOOL},
    {"uint64", IVT_UINT64},
    {"type_5", IVT_TYPE_5},
    {"datetime_102", IVT_DATETIME_102},
    {"201", IVT_DATETIME_201},
    {"timespan", IVT_TIMESPAN},
    {" string ", IVT_STRING},
    {"byte_1021", IVT_BYTE_1021},
    {"unsigned_20", IVT_UNSIGNED_20},
};

class ValueTextType : public ::testing::TestWithParam<TypeCase> {};

TEST_P(ValueTextType, ReadsNamesInAnyCaseAndNumbers) {
  EXPECT_EQ(ParseValueType(GetParam().text), GetParam().type);
}

INSTANTIATE_TEST_SUITE_P(Names, ValueTextType, ::testing::ValuesIn(TypeCases));

const char* const UnknownTypes[] = {"fancy", "77", "", "-1", "IVT_", "doubl", "double precision", "4294967299"};

class ValueTextUnknownType : public ::testing::TestWithParam<const char*> {};

TEST_P(ValueTextUnknownType, IsRefusedWithItsName) {
  try {
    ParseValueType(GetParam());
    FAIL() << "accepted " << GetParam();
  } catch (const InputError& error) {
    EXPECT_EQ(std::string(error.what()),
              "unknown value type '" + std::string(GetParam()) + "' (a name such as double or percent, or a number)");
  }
}

INSTANTIATE_TEST_SUITE_P(Names, ValueTextUnknownType, ::testing::ValuesIn(UnknownTypes));

TEST(ValueText, NamesTypesAndSubtypes) {
  EXPECT_EQ(ValueTypeText(IVT_DATETIME), "IVT_DATETIME");
  EXPECT_EQ(ValueTypeText(static_cast<UloValueType>(77)), "77");
  EXPECT_EQ(ValueSubTypeText(UloDP::IVST_TEMPERATURE), "IVST_TEMPERATURE");
  EXPECT_EQ(ValueSubTypeText(static_cast<UloDP::UloValueSubType>(12)), "12");
}

struct ValueCase {
  UloValueType type;
  const char* text;
  bool summerTime;
  // The value's text form, weekday and summer-time flag.
  const char* expected;
  std::uint32_t weekday;
  std::uint8_t summer;
};

constexpr std::uint32_t NoWeekday = 0;
constexpr std::uint32_t Monday = ULO::Weekdays::Monday;
constexpr std::uint32_t Sunday = ULO::Weekdays::Sunday;

const ValueCase ValueCases[] = {
    {IVT_BOOL, "true", false, "true", NoWeekday, 0},
    {IVT_BOOL, "FALSE", false, "false", NoWeekday, 0},
    {IVT_BOOL, "1", false, "true", NoWeekday, 0},
    {IVT_BOOL, "0", false, "false", NoWeekday, 0},
    {IVT_DOUBLE, "21.5", false, "21.5", NoWeekday, 0},
    {IVT_DOUBLE, "-1e3", false, "-1000", NoWeekday, 0},
    {IVT_DOUBLE, "-1000", false, "-1000", NoWeekday, 0},
    {IVT_DOUBLE, "-.5", false, "-0.5", NoWeekday, 0},
    {IVT_DOUBLE, "-inf", false, "-inf", NoWeekday, 0},
    {IVT_DOUBLE, "+Infinity", false, "inf", NoWeekday, 0},
    {IVT_DOUBLE, "INF", false, "inf", NoWeekday, 0},
    {IVT_INT32, "-1000", false, "-1000", NoWeekday, 0},
    {IVT_STRING, "-hello", false, "-hello", NoWeekday, 0},
    {IVT_PERCENT, "50", false, "50", NoWeekday, 0},
    {IVT_INT32, "-2147483648", false, "-2147483648", NoWeekday, 0},
    {IVT_TIMESPAN, "3600", false, "3600", NoWeekday, 0},
    {IVT_BYTE, "255", false, "255", NoWeekday, 0},
    {IVT_UINT16, "65535", false, "65535", NoWeekday, 0},
    {IVT_UINT32, "4294967295", false, "4294967295", NoWeekday, 0},
    {IVT_UINT64, "18446744073709551615", false, "18446744073709551615", NoWeekday, 0},
    {IVT_STRING, " Grüße, Welt ", false, " Grüße, Welt ", NoWeekday, 0},
    {IVT_STRING, "", false, "", NoWeekday, 0},
    {IVT_DATE, "2024-02-29", false, "2024-02-29", NoWeekday, 0},
    {IVT_DATE, "2024-02-30", false, "2024-02-30", NoWeekday, 0},
    {IVT_DATE_105, "1990-01-01", false, "1990-01-01", NoWeekday, 0},
    {IVT_TIME, "12:34:56", false, "12:34:56", NoWeekday, 0},
    {IVT_TIME, "24:00:00", false, "24:00:00", NoWeekday, 0},
    {IVT_TIME, "Mon 07:30:00", false, "07:30:00", Monday, 0},
    {IVT_TIME, "sun  23:59:59", false, "23:59:59", Sunday, 0},
    {IVT_DATETIME, "2024-03-04 07:30:15", false, "2024-03-04 07:30:15", NoWeekday, 0},
    {IVT_DATETIME, "Mon 2024-03-04 07:30:15", true, "2024-03-04 07:30:15", Monday, 1},
    {IVT_TIME, "07:30:00", true, "07:30:00", NoWeekday, 0},
    {IVT_NONE, "ignored", false, "", NoWeekday, 0},
};

class ValueTextValue : public ::testing::TestWithParam<ValueCase> {};

TEST_P(ValueTextValue, ReadsTheTypesTextForm) {
  const ValueCase& expected = GetParam();
  const ULOVALUE value = ParseValue(expected.type, expected.text, expected.summerTime);
  EXPECT_EQ(value.GetType(), expected.type);
  EXPECT_EQ(value.ToString(), expected.expected);
  EXPECT_EQ(static_cast<std::uint32_t>(value.GetTime().weekday), expected.weekday);
  EXPECT_EQ(value.GetTime().summerTime, expected.summer);
}

INSTANTIATE_TEST_SUITE_P(Types, ValueTextValue, ::testing::ValuesIn(ValueCases));

struct BadValueCase {
  UloValueType type;
  const char* text;
  const char* message;
};

const BadValueCase BadValueCases[] = {
    {IVT_BOOL, "yes", "'yes' is not a value of type IVT_BOOL (expected true, false, 1 or 0)"},
    {IVT_DOUBLE, "abc", "'abc' is not a value of type IVT_DOUBLE (expected a decimal number, inf or -inf)"},
    {IVT_DOUBLE, "nan", "'nan' is not a value of type IVT_DOUBLE (expected a decimal number, inf or -inf)"},
    {IVT_DOUBLE, "--inf", "'--inf' is not a value of type IVT_DOUBLE (expected a decimal number, inf or -inf)"},
    {IVT_DOUBLE, "-", "'-' is not a value of type IVT_DOUBLE (expected a decimal number, inf or -inf)"},
    {IVT_DOUBLE, "infinite", "'infinite' is not a value of type IVT_DOUBLE (expected a decimal number, inf or -inf)"},
    {IVT_INT32, "2147483648",
     "'2147483648' is not a value of type IVT_INT32 (expected a whole number from -2147483648 to 2147483647)"},
    {IVT_INT32, "1.5",
     "'1.5' is not a value of type IVT_INT32 (expected a whole number from -2147483648 to 2147483647)"},
    {IVT_BYTE, "256", "'256' is not a value of type IVT_BYTE (expected a whole number from 0 to 255)"},
    {IVT_UINT16, "-5", "'-5' is not a value of type IVT_UINT16 (expected a whole number from 0 to 65535)"},
    {IVT_UINT32, "4294967296",
     "'4294967296' is not a value of type IVT_UINT32 (expected a whole number from 0 to 4294967295)"},
    {IVT_UINT64, "18446744073709551616",
     "'18446744073709551616' is not a value of type IVT_UINT64 (expected a whole number from 0 to "
     "18446744073709551615)"},
    {IVT_DATE, "2024-2-29", "'2024-2-29' is not a value of type IVT_DATE (expected YYYY-MM-DD)"},
    {IVT_DATE, "Mon 2024-02-26", "'Mon 2024-02-26' is not a value of type IVT_DATE (expected YYYY-MM-DD)"},
    {IVT_TIME, "7:30",
     "'7:30' is not a value of type IVT_TIME (expected hh:mm:ss, optionally after a weekday Mon to Sun)"},
    {IVT_TIME, "Xyz 07:30:00",
     "'Xyz 07:30:00' is not a value of type IVT_TIME (expected hh:mm:ss, optionally after a weekday Mon to Sun)"},
    {IVT_DATETIME, "2024-03-04",
     "'2024-03-04' is not a value of type IVT_DATETIME (expected YYYY-MM-DD hh:mm:ss, optionally after a weekday Mon "
     "to Sun)"},
    {static_cast<UloValueType>(77), "1", "values of type 77 cannot be written as text"},
};

class ValueTextRefuse : public ::testing::TestWithParam<BadValueCase> {};

TEST_P(ValueTextRefuse, ThrowsWithAClearMessage) {
  try {
    ParseValue(GetParam().type, GetParam().text, false);
    FAIL() << "accepted " << GetParam().text;
  } catch (const InputError& error) {
    EXPECT_EQ(std::string(error.what()), GetParam().message);
  }
}

INSTANTIATE_TEST_SUITE_P(Types, ValueTextRefuse, ::testing::ValuesIn(BadValueCases));

}  // namespace
