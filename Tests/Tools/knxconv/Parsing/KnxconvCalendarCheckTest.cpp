#include <gtest/gtest.h>

#include <string>

#include "CalendarCheck.h"
#include "ValueText.h"

namespace {

using namespace Knxconv;

struct CalendarCase {
  UloValueType type;
  const char* text;
  // Empty when the calendar and the clock know it.
  const char* error;
};

const CalendarCase CalendarCases[] = {
    {IVT_DATE, "2024-02-29", ""},
    {IVT_DATE, "2024-02-30", "2024-02-30 is not a date: February 2024 has 29 days"},
    {IVT_DATE, "2023-02-29", "2023-02-29 is not a date: February 2023 has 28 days"},
    {IVT_DATE, "2000-02-29", ""},
    {IVT_DATE, "1900-02-29", "1900-02-29 is not a date: February 1900 has 28 days"},
    {IVT_DATE, "2024-04-31", "2024-04-31 is not a date: April 2024 has 30 days"},
    {IVT_DATE, "2024-12-31", ""},
    {IVT_DATE, "2024-01-32", "2024-01-32 is not a date: January 2024 has 31 days"},
    {IVT_DATE, "2024-13-01", "2024-13-01 is not a date: months run from 01 to 12"},
    {IVT_DATE, "2024-00-10", "2024-00-10 is not a date: months run from 01 to 12"},
    {IVT_DATE, "2024-02-00", "2024-02-00 is not a date: days run from 01 to 29 in February 2024"},
    {IVT_DATE_105, "2024-06-31", "2024-06-31 is not a date: June 2024 has 30 days"},
    {IVT_TIME, "00:00:00", ""},
    {IVT_TIME, "23:59:59", ""},
    {IVT_TIME, "24:00:00", "24:00:00 is not a time of day: hours run from 00 to 23"},
    {IVT_TIME, "Mon 12:60:00", "12:60:00 is not a time of day: minutes run from 00 to 59"},
    {IVT_TIME_104, "12:00:60", "12:00:60 is not a time of day: seconds run from 00 to 59"},
    {IVT_DATETIME, "2024-03-04 07:30:15", ""},
    {IVT_DATETIME, "2024-03-04 25:61:61", "2024-03-04 25:61:61 is not a date and time: hours run from 00 to 23"},
    {IVT_DATETIME, "2024-02-30 25:00:00", "2024-02-30 25:00:00 is not a date and time: February 2024 has 29 days"},
    {IVT_DATETIME_201, "Sun 2100-02-29 00:00:00",
     "2100-02-29 00:00:00 is not a date and time: February 2100 has 28 days"},
    {IVT_DOUBLE, "21.5", ""},
    {IVT_STRING, "2024-02-30", ""},
};

class CalendarCheck : public ::testing::TestWithParam<CalendarCase> {};

TEST_P(CalendarCheck, KnowsRealDatesAndTimesOfDay) {
  const CalendarCase& row = GetParam();
  EXPECT_EQ(CalendarError(ParseValue(row.type, row.text, false)).value_or(""), row.error) << row.text;
}

INSTANTIATE_TEST_SUITE_P(Values, CalendarCheck, ::testing::ValuesIn(CalendarCases));

struct WindowCase {
  unsigned short mainNumber;
  unsigned short subNumber;
  UloValueType type;
  const char* text;
  const char* error;
};

const WindowCase WindowCases[] = {
    {11, 1, IVT_DATE, "1990-01-01", ""},
    {11, 1, IVT_DATE, "2089-12-31", ""},
    {11, 1, IVT_DATE, "1989-12-31", "DPT 11.001 carries the years 1990 to 2089, not 1989"},
    {11, 1, IVT_DATE, "2090-01-01", "DPT 11.001 carries the years 1990 to 2089, not 2090"},
    {19, 1, IVT_DATETIME, "1900-01-01 00:00:00", ""},
    {19, 1, IVT_DATETIME, "2155-12-31 23:59:59", ""},
    {19, 1, IVT_DATETIME, "1899-12-31 23:59:59", "DPT 19.001 carries the years 1900 to 2155, not 1899"},
    {19, 0, IVT_DATETIME, "2156-01-01 00:00:00", "DPT 19.000 carries the years 1900 to 2155, not 2156"},
    // Rows without a year, and values without one.
    {10, 1, IVT_TIME, "12:00:00", ""},
    {9, 1, IVT_DOUBLE, "21.5", ""},
    {99, 1, IVT_DATE, "1000-01-01", ""},
};

class YearWindow : public ::testing::TestWithParam<WindowCase> {};

TEST_P(YearWindow, FollowsTheRowsConverter) {
  const WindowCase& row = GetParam();
  KNXDPT dpt;
  dpt.mainNumber = row.mainNumber;
  dpt.subNumber = row.subNumber;
  const Nelmo::KnxValueConverter converter;
  const Nelmo::KnxConverter* rowConverter = converter.GetDptValueMap().GetEntry(dpt).GetConverter();
  EXPECT_EQ(YearWindowError(dpt, rowConverter, ParseValue(row.type, row.text, false)).value_or(""), row.error)
      << row.text;
}

INSTANTIATE_TEST_SUITE_P(Rows, YearWindow, ::testing::ValuesIn(WindowCases));

}  // namespace
