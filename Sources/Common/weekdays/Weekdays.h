#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include <date/date.h>

#include "NelmoExport.h"

namespace ULO {

// A set of days of the week as a bit mask, Monday first.
class NELMO_EXPORT Weekdays {
 public:
  enum Days : std::uint32_t {
    Monday = 1,
    Tuesday = 2,
    Wednesday = 4,
    Thursday = 8,
    Friday = 16,
    Saturday = 32,
    Sunday = 64,
    NoDay = 1024,
  };

  // Any value other than FORMAT_LETTERS writes flags.
  enum FORMAT : int {
    FORMAT_LETTERS = 0,
    FORMAT_FLAGS = 1,
  };

  Weekdays(Days days);
  Weekdays(unsigned int bits);

  Weekdays& operator=(unsigned int bits);
  Weekdays& operator=(Days days);
  Weekdays& operator=(date::weekday weekday);
  Weekdays& operator|=(Days day);
  Weekdays operator|(Days day) const;

  // Containment, not equality: true when every bit of the argument is set.
  bool operator==(Days days) const;
  bool operator!=(Days days) const;
  bool operator==(date::weekday weekday) const;
  bool operator!=(date::weekday weekday) const;

  explicit operator bool() const;
  operator unsigned int() const;
  explicit operator unsigned short() const;

  void Set(Days days, bool on);
  std::string Format(FORMAT format) const;
  // The first day of the set, Monday first, whose bit is not below from.
  std::optional<Days> GetFirst(Days from) const;
  // The next day of the set after day, cyclically; NoDay when there is none.
  Days GetNext(Days day) const noexcept;

  static Weekdays GetWeekdayFromString(std::string_view text);
  static unsigned int GetMonday1ToSunday7FromWeekday(Days day);
  static unsigned int GetMonday1ToSunday7FromWeekday(unsigned int day);
  static Days GetWeekdayFromMonday1ToSunday7(unsigned char number);

 private:
  std::uint32_t bits;
};

NELMO_EXPORT Weekdays operator|(Weekdays::Days first, Weekdays::Days second);
NELMO_EXPORT date::weekday toWeekday(Weekdays::Days day);
NELMO_EXPORT Weekdays::Days fromWeekday(date::weekday weekday);
NELMO_EXPORT Weekdays::Days& operator++(Weekdays::Days& day);

}  // namespace ULO
