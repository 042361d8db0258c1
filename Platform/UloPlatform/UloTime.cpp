#include "UloTime.h"

namespace {

bool IsLeapYear(unsigned int year) {
  return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

unsigned int DaysInMonth(unsigned int year, unsigned int month) {
  static constexpr unsigned char Days[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return month == 2 && IsLeapYear(year) ? 29 : Days[month - 1];
}

}  // namespace

void ULOTIME::SetTime(unsigned char newHour, unsigned char newMinute, unsigned char newSecond, bool set) {
  hour = newHour;
  minute = newMinute;
  second = newSecond;
  isSet = set;
}

void ULOTIME::SetDate(unsigned short newYear, unsigned char newMonth, unsigned char newDay, bool set) {
  year = newYear;
  month = newMonth;
  day = newDay;
  isSet = set;
}

bool ULOTIME::IsValidDate(unsigned short year, unsigned char month, unsigned char day) {
  return month >= 1 && month <= 12 && day >= 1 && day <= DaysInMonth(year, month);
}

bool ULOTIME::IsValidTime(unsigned char hour, unsigned char minute, unsigned char second) {
  return hour <= 23 && minute <= 59 && second <= 59;
}

void ULOTIME::Clear(bool set) {
  *this = ULOTIME();
  isSet = set;
}

bool ULOTIME::operator==(const ULOTIME& other) const {
  return year == other.year && month == other.month && day == other.day && hour == other.hour &&
         minute == other.minute && second == other.second && weekday == other.weekday &&
         summerTime == other.summerTime && isSet == other.isSet;
}
