#pragma once

#include <cstdint>

#include "Weekdays.h"

// Date/time value of the platform: a full year and plain fields.
struct ULOTIME {
  std::uint16_t year = 0;
  std::uint8_t month = 0;
  std::uint8_t day = 0;
  std::uint8_t hour = 0;
  std::uint8_t minute = 0;
  std::uint8_t second = 0;
  ULO::Weekdays::Days weekday = static_cast<ULO::Weekdays::Days>(0);
  std::uint8_t summerTime = 0;
  bool isSet = false;

  void SetTime(unsigned char hour, unsigned char minute, unsigned char second, bool set);
  void SetDate(unsigned short year, unsigned char month, unsigned char day, bool set);
  // Gregorian calendar: month 1 to 12, day 1 to the month's length.
  static bool IsValidDate(unsigned short year, unsigned char month, unsigned char day);
  // Hour 0 to 23, minute and second 0 to 59.
  static bool IsValidTime(unsigned char hour, unsigned char minute, unsigned char second);
  // Zeroes every field (weekday, summer time included) and sets the flag as given.
  void Clear(bool set);

  bool operator==(const ULOTIME& other) const;
  bool operator!=(const ULOTIME& other) const { return !(*this == other); }
};
