#include "KnxConverterDateAndTime.h"

#include <cstdint>
#include <limits>
#include <ostream>
#include <string_view>
#include <utility>

#include "ConverterCallsOf.h"
#include "ConverterLog.h"
#include "Weekdays.h"

namespace Nelmo {

namespace {

constexpr std::string_view ToKnx = "ToKnxValue";
constexpr std::string_view FromKnx = "FromKnxValue";

using DayOfWeek = KnxStack::GroupValue::DayOfWeek;

template <typename Compose>
void Error(std::string_view function, int line, Compose&& compose) {
  Log::Write(ULO_LOG_ERROR, Log::ConverterFile, function, line, std::forward<Compose>(compose));
}

// Runs body; a GroupValueException from the stack becomes a failed
// conversion with a message that names what was being converted.
template <typename Body>
bool Guarded(std::string_view function, std::string_view subject, int line, Body&& body) {
  try {
    return body();
  } catch (const KnxStack::GroupValueException& exception) {
    Error(function, line, [&](std::ostream& out) {
      out << "Exception caught during conversion of " << subject << ": " << exception.what();
    });
    return false;
  }
}

// Some refusal messages write a field as the byte itself, not as digits.
char Raw(std::uint8_t field) {
  return static_cast<char>(field);
}

// The stack hands out plain ints; only values that fit the platform's
// fields may be validated, or a narrowing cast could turn garbage valid.
template <typename Field>
bool Fits(int value) {
  return value >= 0 && value <= static_cast<int>(std::numeric_limits<Field>::max());
}

bool IsValidTime(int hour, int minute, int second) {
  return Fits<std::uint8_t>(hour) && Fits<std::uint8_t>(minute) && Fits<std::uint8_t>(second) &&
         ULOTIME::IsValidTime(static_cast<unsigned char>(hour), static_cast<unsigned char>(minute),
                              static_cast<unsigned char>(second));
}

bool IsValidDate(int year, int month, int day) {
  return Fits<std::uint16_t>(year) && Fits<std::uint8_t>(month) && Fits<std::uint8_t>(day) &&
         ULOTIME::IsValidDate(static_cast<unsigned short>(year), static_cast<unsigned char>(month),
                              static_cast<unsigned char>(day));
}

DayOfWeek ToDayOfWeek(ULO::Weekdays::Days weekday) {
  return static_cast<DayOfWeek>(ULO::Weekdays::GetMonday1ToSunday7FromWeekday(weekday));
}

ULO::Weekdays::Days FromDayOfWeek(DayOfWeek dayOfWeek) {
  return ULO::Weekdays::GetWeekdayFromMonday1ToSunday7(static_cast<unsigned char>(dayOfWeek));
}

// Time and time of day differ only in whether the weekday travels.
bool TimeToKnx(const ULOVALUE& value, KnxStack::GroupValue& groupValue, bool withWeekday) {
  return Guarded(ToKnx, "time", __LINE__, [&] {
    const ULOTIME& time = value.GetTime();
    if (time.hour > 23 || time.minute > 59 || time.second > 59) {
      Error(ToKnx, __LINE__, [&](std::ostream& out) {
        out << "Failed to convert time with values: hour=" << Raw(time.hour) << ", minute=" << Raw(time.minute)
            << ", second=" << Raw(time.second);
      });
      return false;
    }
    const DayOfWeek dayOfWeek = withWeekday ? ToDayOfWeek(time.weekday) : KnxStack::GroupValue::NoDay;
    groupValue.SetAsTimeOfDay(time.hour, time.minute, time.second, dayOfWeek);
    return true;
  });
}

bool TimeFromKnx(const KnxStack::GroupValue& groupValue, ULOVALUE& value, bool withWeekday) {
  return Guarded(FromKnx, "time", __LINE__, [&] {
    int hour = 0;
    int minute = 0;
    int second = 0;
    DayOfWeek dayOfWeek = KnxStack::GroupValue::NoDay;
    groupValue.GetAsTimeOfDay(&hour, &minute, &second, withWeekday ? &dayOfWeek : nullptr);
    if (!IsValidTime(hour, minute, second)) {
      Error(FromKnx, __LINE__, [&](std::ostream& out) {
        out << "Cannot convert invalid time: hour=" << hour << ", minute=" << minute << ", second=" << second;
      });
      return false;
    }
    ULOTIME& time = value.GetTime();
    time.Clear(true);
    time.SetTime(static_cast<unsigned char>(hour), static_cast<unsigned char>(minute),
                 static_cast<unsigned char>(second), true);
    if (withWeekday) {
      time.weekday = FromDayOfWeek(dayOfWeek);
    }
    return true;
  });
}

}  // namespace

bool KnxConverterDate::ToKnxValue(const KNXDPT& /*dpt*/, const ULOVALUE& value, KnxStack::GroupValue& groupValue) {
  return Guarded(ToKnx, "date", __LINE__, [&] {
    const ULOTIME& time = value.GetTime();
    // DPT 11.001 carries a two-digit year.
    if (time.year < 1990 || time.year > 2089) {
      Error(ToKnx, __LINE__, [&](std::ostream& out) {
        out << "Cannot convert the date outside of the range [1990...2089]: year=" << time.year
            << ", month=" << Raw(time.month) << ", day=" << Raw(time.day);
      });
      return false;
    }
    groupValue.SetAsDate(time.day, time.month, time.year);
    return true;
  });
}

bool KnxConverterDate::FromKnxValue(const KNXDPT& /*dpt*/, const KnxStack::GroupValue& groupValue, ULOVALUE& value) {
  return Guarded(FromKnx, "date", __LINE__, [&] {
    int day = 0;
    int month = 0;
    int year = 0;
    groupValue.GetAsDate(&day, &month, &year);
    if (!IsValidDate(year, month, day)) {
      Error(FromKnx, __LINE__, [&](std::ostream& out) {
        out << "Cannot convert invalid date: year=" << year << ", month=" << month << ", day=" << day;
      });
      return false;
    }
    ULOTIME& time = value.GetTime();
    time.Clear(true);
    time.SetDate(static_cast<unsigned short>(year), static_cast<unsigned char>(month), static_cast<unsigned char>(day),
                 true);
    return true;
  });
}

KnxConverter* KnxConverterDate::Clone() const {
  return new KnxConverterDate(*this);
}

bool KnxConverterTime::ToKnxValue(const KNXDPT& /*dpt*/, const ULOVALUE& value, KnxStack::GroupValue& groupValue) {
  return TimeToKnx(value, groupValue, false);
}

bool KnxConverterTime::FromKnxValue(const KNXDPT& /*dpt*/, const KnxStack::GroupValue& groupValue, ULOVALUE& value) {
  return TimeFromKnx(groupValue, value, false);
}

KnxConverter* KnxConverterTime::Clone() const {
  return new KnxConverterTime(*this);
}

bool KnxConverterTimeOfDay::ToKnxValue(const KNXDPT& /*dpt*/, const ULOVALUE& value, KnxStack::GroupValue& groupValue) {
  return TimeToKnx(value, groupValue, true);
}

bool KnxConverterTimeOfDay::FromKnxValue(const KNXDPT& /*dpt*/, const KnxStack::GroupValue& groupValue,
                                         ULOVALUE& value) {
  return TimeFromKnx(groupValue, value, true);
}

KnxConverter* KnxConverterTimeOfDay::Clone() const {
  return new KnxConverterTimeOfDay(*this);
}

bool KnxConverterDateTime::ToKnxValue(const KNXDPT& /*dpt*/, const ULOVALUE& value, KnxStack::GroupValue& groupValue) {
  return Guarded(ToKnx, "date and time", __LINE__, [&] {
    const ULOTIME& time = value.GetTime();
    // The year travels as an 8-bit offset from 1900. The message quotes the
    // date converter's range instead; that text is kept as it always was.
    if (time.year < 1900 || time.year > 2155) {
      Error(ToKnx, __LINE__, [&](std::ostream& out) {
        out << "Cannot convert the date outside of the range [1990...2089]: year=" << time.year;
      });
      return false;
    }
    // Fault, working day, no working day, no year, no date, no day of week,
    // no time, summer time, clock quality. The time is sent unchecked.
    groupValue.SetAsDateTime(time.day, time.month, time.year, time.hour, time.minute, time.second,
                             ToDayOfWeek(time.weekday), false, false, true, false, false, false, false,
                             time.summerTime != 0, false);
    return true;
  });
}

bool KnxConverterDateTime::FromKnxValue(const KNXDPT& /*dpt*/, const KnxStack::GroupValue& groupValue,
                                        ULOVALUE& value) {
  return Guarded(FromKnx, "date and time", __LINE__, [&] {
    int day = 0;
    int month = 0;
    int year = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
    DayOfWeek dayOfWeek = KnxStack::GroupValue::NoDay;
    bool fault = false;
    bool workingDay = false;
    bool noWorkingDay = true;
    bool noYear = false;
    bool noDate = false;
    bool noDayOfWeek = false;
    bool noTime = false;
    bool summerTime = false;
    bool clockQuality = false;
    // Every output gets an address: the stack's accessor is not promised to
    // accept null flags. Fault, working day, no working day and clock
    // quality are read and then not used.
    groupValue.GetAsDateTime(&day, &month, &year, &hour, &minute, &second, &dayOfWeek, &fault, &workingDay,
                             &noWorkingDay, &noYear, &noDate, &noDayOfWeek, &noTime, &summerTime, &clockQuality);

    // Fields the sender marks as absent keep what the value held before.
    ULOTIME& time = value.GetTime();
    time.isSet = true;
    time.summerTime = summerTime ? 1 : 0;
    if (!noYear) {
      time.year = static_cast<std::uint16_t>(year);
    }
    if (!noDate) {
      time.day = static_cast<std::uint8_t>(day);
      time.month = static_cast<std::uint8_t>(month);
    }
    if (!noDayOfWeek) {
      time.weekday = FromDayOfWeek(dayOfWeek);
    }
    if (noTime) {
      return true;
    }
    if (!IsValidTime(hour, minute, second)) {
      Error(FromKnx, __LINE__, [&](std::ostream& out) {
        out << "Cannot convert invalid time in DateTime structure: hour=" << hour << ", minute=" << minute
            << ", second=" << second;
      });
      return false;
    }
    time.hour = static_cast<std::uint8_t>(hour);
    time.minute = static_cast<std::uint8_t>(minute);
    time.second = static_cast<std::uint8_t>(second);
    return true;
  });
}

KnxConverter* KnxConverterDateTime::Clone() const {
  return new KnxConverterDateTime(*this);
}

template const ConverterCalls& CallsOf<KnxConverterDate>();
template const ConverterCalls& CallsOf<KnxConverterTime>();
template const ConverterCalls& CallsOf<KnxConverterTimeOfDay>();
template const ConverterCalls& CallsOf<KnxConverterDateTime>();

}  // namespace Nelmo
