#include "Weekdays.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace ULO {

namespace {

// The seven day bits, Monday first; position i holds bit 2^i.
constexpr std::array<Weekdays::Days, 7> DayTable = {Weekdays::Monday,   Weekdays::Tuesday, Weekdays::Wednesday,
                                                    Weekdays::Thursday, Weekdays::Friday,  Weekdays::Saturday,
                                                    Weekdays::Sunday};

constexpr char DayLetters[] = "MTWTFSS";

// Indexed by a value up to Sunday's bit: 1 for Monday to 7 for Sunday, 0
// for anything that is not a single day. A table rather than a search: the
// date and time converters ask for it on every conversion.
constexpr std::array<unsigned char, Weekdays::Sunday + 1> DayNumbers = [] {
  std::array<unsigned char, Weekdays::Sunday + 1> numbers{};
  for (std::size_t index = 0; index < DayTable.size(); ++index) {
    numbers[DayTable[index]] = static_cast<unsigned char>(index + 1);
  }
  return numbers;
}();

unsigned int Monday1ToSunday7(unsigned int day) {
  return day < DayNumbers.size() ? DayNumbers[day] : 0;
}

}  // namespace

Weekdays::Weekdays(Days days) : bits(days) {}

Weekdays::Weekdays(unsigned int bits) : bits(bits) {}

Weekdays& Weekdays::operator=(unsigned int bits) {
  this->bits = bits;
  return *this;
}

Weekdays& Weekdays::operator=(Days days) {
  bits = days;
  return *this;
}

// A weekday that is not a calendar day leaves the set as it is, on purpose.
Weekdays& Weekdays::operator=(date::weekday weekday) {
  const Days day = fromWeekday(weekday);
  if (day != NoDay) {
    bits = day;
  }
  return *this;
}

Weekdays& Weekdays::operator|=(Days day) {
  bits |= day;
  return *this;
}

Weekdays Weekdays::operator|(Days day) const {
  Weekdays result(*this);
  result |= day;
  return result;
}

bool Weekdays::operator==(Days days) const {
  return (bits & days) == days;
}

bool Weekdays::operator!=(Days days) const {
  return !(*this == days);
}

bool Weekdays::operator==(date::weekday weekday) const {
  if ((bits & NoDay) != 0) {
    return false;
  }
  const Days day = fromWeekday(weekday);
  return day != NoDay && *this == day;
}

bool Weekdays::operator!=(date::weekday weekday) const {
  return !(*this == weekday);
}

Weekdays::operator bool() const {
  return bits != 0;
}

Weekdays::operator unsigned int() const {
  return bits;
}

Weekdays::operator unsigned short() const {
  return static_cast<unsigned short>(bits & 0xFFFFu);
}

void Weekdays::Set(Days days, bool on) {
  if (on) {
    bits |= days;
  } else {
    bits &= ~static_cast<std::uint32_t>(days);
  }
}

std::string Weekdays::Format(FORMAT format) const {
  std::string text(DayTable.size(), '-');
  for (std::size_t i = 0; i < DayTable.size(); ++i) {
    if ((bits & DayTable[i]) != 0) {
      text[i] = format == FORMAT_LETTERS ? DayLetters[i] : '1';
    }
  }
  return text;
}

std::optional<Weekdays::Days> Weekdays::GetFirst(Days from) const {
  for (const Days day : DayTable) {
    if (day >= from && *this == day) {
      return day;
    }
  }
  return std::nullopt;
}

// Combined or unknown days can stop moving under operator++ (96 stays 96),
// so a step that changes nothing ends the walk instead of looping forever.
Weekdays::Days Weekdays::GetNext(Days day) const noexcept {
  Days next = day;
  do {
    const Days previous = next;
    if (++next == day || next == previous) {
      return NoDay;
    }
  } while (*this != next);
  return next;
}

Weekdays Weekdays::GetWeekdayFromString(std::string_view text) {
  std::uint32_t result = 0;
  const std::size_t length = std::min(text.size(), DayTable.size());
  for (std::size_t i = 0; i < length; ++i) {
    if (text[i] != '-') {
      result |= DayTable[i];
    }
  }
  return result != 0 ? Weekdays(result) : Weekdays(NoDay);
}

unsigned int Weekdays::GetMonday1ToSunday7FromWeekday(Days day) {
  return Monday1ToSunday7(day);
}

unsigned int Weekdays::GetMonday1ToSunday7FromWeekday(unsigned int day) {
  return Monday1ToSunday7(day);
}

Weekdays::Days Weekdays::GetWeekdayFromMonday1ToSunday7(unsigned char number) {
  return number >= 1 && number <= DayTable.size() ? DayTable[number - 1] : static_cast<Days>(0);
}

Weekdays operator|(Weekdays::Days first, Weekdays::Days second) {
  return Weekdays(first) | second;
}

// Anything that is not Monday to Saturday maps to Sunday (0), on purpose.
date::weekday toWeekday(Weekdays::Days day) {
  const unsigned int number = Weekdays::GetMonday1ToSunday7FromWeekday(day);
  return date::weekday{number <= 6 ? number : 0};
}

Weekdays::Days fromWeekday(date::weekday weekday) {
  const unsigned int number = weekday.c_encoding();
  if (number == 0) {
    return Weekdays::Sunday;
  }
  return number < DayTable.size() ? DayTable[number - 1] : Weekdays::NoDay;
}

Weekdays::Days& operator++(Weekdays::Days& day) {
  if (day == Weekdays::Sunday) {
    day = Weekdays::Monday;
  } else if (day >= 1 && day <= 63) {
    day = static_cast<Weekdays::Days>(day * 2);
  }
  return day;
}

}  // namespace ULO
