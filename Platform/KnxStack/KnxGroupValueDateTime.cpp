// The date and time accessors of GroupValue. They carry full years and plain
// numbers; validating a calendar date is left to the callers.
#include <cstddef>
#include <string>

#include "KnxGroupValue.h"
#include "KnxGroupValueBytes.h"

namespace KnxStack {

namespace {

constexpr unsigned int DateBits = 24;
constexpr unsigned int TimeOfDayBits = 24;
constexpr unsigned int DateTimeBits = 64;

struct Field {
  const char* name;
  int value;
  unsigned int bits;
};

[[noreturn]] void ThrowDoesNotFit(const Field& field) {
  throw GroupValueException("GroupValue: " + std::string(field.name) + " " + std::to_string(field.value) +
                            " does not fit " + std::to_string(field.bits) + " bits");
}

void CheckFits(const Field& field) {
  if (field.value < 0 || field.value >= (1 << field.bits)) {
    ThrowDoesNotFit(field);
  }
}

template <std::size_t Count>
void CheckFits(const Field (&fields)[Count]) {
  for (const Field& field : fields) {
    CheckFits(field);
  }
}

[[noreturn]] void ThrowYearOutside(int year, int first, int last) {
  throw GroupValueException("GroupValue: year " + std::to_string(year) + " is outside " + std::to_string(first) +
                            " to " + std::to_string(last));
}

void CheckYear(int year, int first, int last) {
  if (year < first || year > last) {
    ThrowYearOutside(year, first, last);
  }
}

// The checks above name the first field that does not fit, in the order of
// the parameters; these cheap tests spare correct values the work of naming.
bool Fits(int value, unsigned int bits) {
  return static_cast<unsigned int>(value) < (1u << bits);
}

bool DateFits(int day, int month, int year, int firstYear, int lastYear) {
  return Fits(day, 5) && Fits(month, 4) && year >= firstYear && year <= lastYear;
}

bool TimeFits(int hour, int minute, int second, GroupValue::DayOfWeek dayOfWeek) {
  return Fits(hour, 5) && Fits(minute, 6) && Fits(second, 6) && Fits(dayOfWeek, 3);
}

[[gnu::cold]] void CheckDate(int day, int month, int year, int firstYear, int lastYear) {
  CheckFits({{"day", day, 5}, {"month", month, 4}});
  CheckYear(year, firstYear, lastYear);
}

[[gnu::cold]] void CheckTime(int hour, int minute, int second, GroupValue::DayOfWeek dayOfWeek) {
  CheckFits({{"hour", hour, 5}, {"minute", minute, 6}, {"second", second, 6}, {"day of week", dayOfWeek, 3}});
}

template <typename T>
void Put(T* target, T value) {
  if (target != nullptr) {
    *target = value;
  }
}

// Day of week in bits 7-5, hour in bits 4-0.
unsigned char DayAndHour(int hour, GroupValue::DayOfWeek dayOfWeek) {
  return static_cast<unsigned char>(dayOfWeek << 5 | hour);
}

void GetDayAndHour(unsigned char byte, int* hour, GroupValue::DayOfWeek* dayOfWeek) {
  Put(hour, byte & 0x1F);
  Put(dayOfWeek, static_cast<GroupValue::DayOfWeek>(byte >> 5));
}

unsigned char Flag(bool value, unsigned int bit) {
  return static_cast<unsigned char>(value ? 1u << bit : 0u);
}

void GetFlag(unsigned char byte, unsigned int bit, bool* flag) {
  Put(flag, ((byte >> bit) & 1u) != 0);
}

}  // namespace

void GroupValue::GetAsDate(int* day, int* month, int* year) const {
  const unsigned char* bytes = Payload(DateBits);
  const int twoDigitYear = bytes[2] & 0x7F;
  Put(day, bytes[0] & 0x1F);
  Put(month, bytes[1] & 0x0F);
  Put(year, twoDigitYear >= 90 ? 1900 + twoDigitYear : 2000 + twoDigitYear);
}

void GroupValue::SetAsDate(int day, int month, int year) {
  if (!DateFits(day, month, year, 1990, 2089)) {
    CheckDate(day, month, year, 1990, 2089);
  }
  const unsigned char bytes[] = {static_cast<unsigned char>(day), static_cast<unsigned char>(month),
                                 static_cast<unsigned char>(year % 100)};
  Store(bytes, DateBits);
}

void GroupValue::GetAsTimeOfDay(int* hour, int* minute, int* second, DayOfWeek* dayOfWeek) const {
  const unsigned char* bytes = Payload(TimeOfDayBits);
  GetDayAndHour(bytes[0], hour, dayOfWeek);
  Put(minute, bytes[1] & 0x3F);
  Put(second, bytes[2] & 0x3F);
}

void GroupValue::SetAsTimeOfDay(int hour, int minute, int second, DayOfWeek dayOfWeek) {
  if (!TimeFits(hour, minute, second, dayOfWeek)) {
    CheckTime(hour, minute, second, dayOfWeek);
  }
  const unsigned char bytes[] = {DayAndHour(hour, dayOfWeek), static_cast<unsigned char>(minute),
                                 static_cast<unsigned char>(second)};
  Store(bytes, TimeOfDayBits);
}

void GroupValue::GetAsDateTime(int* day, int* month, int* year, int* hour, int* minute, int* second,
                               DayOfWeek* dayOfWeek, bool* fault, bool* workingDay, bool* noWorkingDay, bool* noYear,
                               bool* noDate, bool* noDayOfWeek, bool* noTime, bool* summerTime,
                               bool* clockQuality) const {
  const unsigned char* bytes = Payload(DateTimeBits);
  Put(year, 1900 + bytes[0]);
  Put(month, bytes[1] & 0x0F);
  Put(day, bytes[2] & 0x1F);
  GetDayAndHour(bytes[3], hour, dayOfWeek);
  Put(minute, bytes[4] & 0x3F);
  Put(second, bytes[5] & 0x3F);
  GetFlag(bytes[6], 7, fault);
  GetFlag(bytes[6], 6, workingDay);
  GetFlag(bytes[6], 5, noWorkingDay);
  GetFlag(bytes[6], 4, noYear);
  GetFlag(bytes[6], 3, noDate);
  GetFlag(bytes[6], 2, noDayOfWeek);
  GetFlag(bytes[6], 1, noTime);
  GetFlag(bytes[6], 0, summerTime);
  GetFlag(bytes[7], 7, clockQuality);
}

void GroupValue::SetAsDateTime(int day, int month, int year, int hour, int minute, int second, DayOfWeek dayOfWeek,
                               bool fault, bool workingDay, bool noWorkingDay, bool noYear, bool noDate,
                               bool noDayOfWeek, bool noTime, bool summerTime, bool clockQuality) {
  // The flags first: most of them arrive on the stack, and this way each is
  // read once instead of being saved and reloaded around the checks.
  const auto flags =
      static_cast<unsigned char>(Flag(fault, 7) | Flag(workingDay, 6) | Flag(noWorkingDay, 5) | Flag(noYear, 4) |
                                 Flag(noDate, 3) | Flag(noDayOfWeek, 2) | Flag(noTime, 1) | Flag(summerTime, 0));
  const unsigned char quality = Flag(clockQuality, 7);
  if (!DateFits(day, month, year, 1900, 2155) || !TimeFits(hour, minute, second, dayOfWeek)) {
    CheckDate(day, month, year, 1900, 2155);
    CheckTime(hour, minute, second, dayOfWeek);
  }
  const unsigned char bytes[] = {
      static_cast<unsigned char>(year - 1900),
      static_cast<unsigned char>(month),
      static_cast<unsigned char>(day),
      DayAndHour(hour, dayOfWeek),
      static_cast<unsigned char>(minute),
      static_cast<unsigned char>(second),
      flags,
      quality,
  };
  Store(bytes, DateTimeBits);
}

}  // namespace KnxStack
