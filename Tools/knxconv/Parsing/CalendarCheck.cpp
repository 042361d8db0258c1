#include "CalendarCheck.h"

#include <cstdio>

#include "DptText.h"
#include "ValueText.h"

namespace Knxconv {

namespace {

constexpr const char* MonthNames[] = {"January", "February", "March",     "April",   "May",      "June",
                                      "July",    "August",   "September", "October", "November", "December"};
constexpr unsigned MonthsPerYear = 12;
constexpr unsigned HoursPerDay = 24;
constexpr unsigned MinutesPerHour = 60;
constexpr unsigned SecondsPerMinute = 60;

bool IsLeapYear(unsigned year) {
  return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

unsigned DaysInMonth(unsigned year, unsigned month) {
  constexpr unsigned Days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return month == 2 && IsLeapYear(year) ? 29 : Days[month - 1];
}

std::string DateText(const ULOTIME& time) {
  char text[16];
  std::snprintf(text, sizeof text, "%04u-%02u-%02u", static_cast<unsigned>(time.year),
                static_cast<unsigned>(time.month), static_cast<unsigned>(time.day));
  return text;
}

std::string TimeText(const ULOTIME& time) {
  char text[16];
  std::snprintf(text, sizeof text, "%02u:%02u:%02u", static_cast<unsigned>(time.hour),
                static_cast<unsigned>(time.minute), static_cast<unsigned>(time.second));
  return text;
}

std::optional<std::string> DateReason(const ULOTIME& time) {
  if (time.month < 1 || time.month > MonthsPerYear) {
    return std::string("months run from 01 to 12");
  }
  const unsigned days = DaysInMonth(time.year, time.month);
  const std::string month = std::string(MonthNames[time.month - 1]) + " " + std::to_string(time.year);
  if (time.day < 1) {
    return "days run from 01 to " + std::to_string(days) + " in " + month;
  }
  if (time.day > days) {
    return month + " has " + std::to_string(days) + " days";
  }
  return std::nullopt;
}

std::optional<std::string> TimeReason(const ULOTIME& time) {
  if (time.hour >= HoursPerDay) {
    return std::string("hours run from 00 to 23");
  }
  if (time.minute >= MinutesPerHour) {
    return std::string("minutes run from 00 to 59");
  }
  if (time.second >= SecondsPerMinute) {
    return std::string("seconds run from 00 to 59");
  }
  return std::nullopt;
}

struct YearWindow {
  unsigned first;
  unsigned last;
};

// A two-digit year from 1990 on, and an 8-bit offset from 1900.
std::optional<YearWindow> WindowOf(const Nelmo::KnxConverter* converter) {
  if (dynamic_cast<const Nelmo::KnxConverterDate*>(converter) != nullptr) {
    return YearWindow{1990, 2089};
  }
  if (dynamic_cast<const Nelmo::KnxConverterDateTime*>(converter) != nullptr) {
    return YearWindow{1900, 2155};
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::string> CalendarError(const ULOVALUE& value) {
  const ULOTIME& time = value.GetTime();
  switch (KindOf(value.GetType())) {
    case ValueKind::Date:
      if (const auto reason = DateReason(time)) {
        return DateText(time) + " is not a date: " + *reason;
      }
      return std::nullopt;
    case ValueKind::Time:
      if (const auto reason = TimeReason(time)) {
        return TimeText(time) + " is not a time of day: " + *reason;
      }
      return std::nullopt;
    case ValueKind::DateTime:
      if (const auto reason = DateReason(time) ? DateReason(time) : TimeReason(time)) {
        return DateText(time) + " " + TimeText(time) + " is not a date and time: " + *reason;
      }
      return std::nullopt;
    default:
      return std::nullopt;
  }
}

std::optional<std::string> YearWindowError(const KNXDPT& dpt, const Nelmo::KnxConverter* converter,
                                           const ULOVALUE& value) {
  const ValueKind kind = KindOf(value.GetType());
  const std::optional<YearWindow> window = WindowOf(converter);
  const unsigned year = value.GetTime().year;
  if (!window || (kind != ValueKind::Date && kind != ValueKind::DateTime) ||
      (year >= window->first && year <= window->last)) {
    return std::nullopt;
  }
  return "DPT " + FormatDpt(dpt) + " carries the years " + std::to_string(window->first) + " to " +
         std::to_string(window->last) + ", not " + std::to_string(year);
}

}  // namespace Knxconv
