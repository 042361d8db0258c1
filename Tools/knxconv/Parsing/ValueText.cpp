#include "ValueText.h"

#include <cstdint>
#include <limits>
#include <optional>

#include "InputError.h"
#include "NumberText.h"

namespace Knxconv {

namespace {

constexpr UloValueType KnownTypes[] = {
    IVT_NONE,      IVT_ANY,         IVT_BOOL,         IVT_DOUBLE,      IVT_INT32,    IVT_TYPE_5,       IVT_BYTE,
    IVT_UINT16,    IVT_UINT32,      IVT_UINT64,       IVT_STRING,      IVT_DATE,     IVT_TIME,         IVT_DATETIME,
    IVT_TIMESPAN,  IVT_UNSIGNED_20, IVT_DATETIME_102, IVT_TIME_104,    IVT_DATE_105, IVT_DATETIME_201, IVT_DOUBLE_1005,
    IVT_BYTE_1021, IVT_PERCENT,     IVT_DIMMING,      IVT_DOUBLE_1039,
};

constexpr std::string_view TypePrefix = "IVT_";

struct WeekdayName {
  std::string_view name;
  ULO::Weekdays::Days day;
};

constexpr WeekdayName WeekdayNames[] = {
    {"Mon", ULO::Weekdays::Monday},   {"Tue", ULO::Weekdays::Tuesday}, {"Wed", ULO::Weekdays::Wednesday},
    {"Thu", ULO::Weekdays::Thursday}, {"Fri", ULO::Weekdays::Friday},  {"Sat", ULO::Weekdays::Saturday},
    {"Sun", ULO::Weekdays::Sunday},
};

[[noreturn]] void Refuse(UloValueType type, std::string_view text, std::string_view expected) {
  throw InputError("'" + std::string(text) + "' is not a value of type " + ValueTypeText(type) + " (expected " +
                   std::string(expected) + ")");
}

// Two or four digits at a fixed place.
std::optional<unsigned> Digits(std::string_view text, std::size_t position, std::size_t count) {
  if (position + count > text.size()) {
    return std::nullopt;
  }
  const std::optional<std::uint64_t> value = ParseUnsigned(text.substr(position, count), 9999);
  if (!value) {
    return std::nullopt;
  }
  return static_cast<unsigned>(*value);
}

// "YYYY-MM-DD"; the fields are not checked against the calendar, so that the
// converters' own checks can be seen at work.
bool ReadDate(std::string_view text, ULOTIME& time) {
  const auto year = Digits(text, 0, 4);
  const auto month = Digits(text, 5, 2);
  const auto day = Digits(text, 8, 2);
  if (text.size() != 10 || text[4] != '-' || text[7] != '-' || !year || !month || !day) {
    return false;
  }
  time.year = static_cast<std::uint16_t>(*year);
  time.month = static_cast<std::uint8_t>(*month);
  time.day = static_cast<std::uint8_t>(*day);
  time.isSet = true;
  return true;
}

// "hh:mm:ss", unchecked like the date.
bool ReadTime(std::string_view text, ULOTIME& time) {
  const auto hour = Digits(text, 0, 2);
  const auto minute = Digits(text, 3, 2);
  const auto second = Digits(text, 6, 2);
  if (text.size() != 8 || text[2] != ':' || text[5] != ':' || !hour || !minute || !second) {
    return false;
  }
  time.hour = static_cast<std::uint8_t>(*hour);
  time.minute = static_cast<std::uint8_t>(*minute);
  time.second = static_cast<std::uint8_t>(*second);
  time.isSet = true;
  return true;
}

// Takes a leading "Mon " to "Sun " off the text and sets that weekday.
std::string_view ReadWeekday(std::string_view text, ULOTIME& time) {
  const std::size_t blank = text.find(' ');
  if (blank == std::string_view::npos) {
    return text;
  }
  for (const WeekdayName& weekday : WeekdayNames) {
    if (EqualsIgnoringCase(text.substr(0, blank), weekday.name)) {
      time.weekday = weekday.day;
      return Trim(text.substr(blank));
    }
  }
  return text;
}

bool ReadDateTime(std::string_view text, ULOTIME& time) {
  const std::size_t blank = text.find(' ');
  return blank != std::string_view::npos && ReadDate(text.substr(0, blank), time) &&
         ReadTime(Trim(text.substr(blank)), time);
}

template <typename Integer>
std::optional<std::uint64_t> ReadUnsigned(std::string_view text) {
  return ParseUnsigned(text, std::numeric_limits<Integer>::max());
}

ULOVALUE ReadTimeValue(UloValueType type, ValueKind kind, std::string_view text, bool summerTime) {
  ULOTIME time;
  const std::string_view rest = kind == ValueKind::Date ? text : ReadWeekday(text, time);
  const bool read = kind == ValueKind::Date   ? ReadDate(rest, time)
                    : kind == ValueKind::Time ? ReadTime(rest, time)
                                              : ReadDateTime(rest, time);
  if (!read) {
    Refuse(type, text,
           kind == ValueKind::Date   ? "YYYY-MM-DD"
           : kind == ValueKind::Time ? "hh:mm:ss, optionally after a weekday Mon to Sun"
                                     : "YYYY-MM-DD hh:mm:ss, optionally after a weekday Mon to Sun");
  }
  if (kind == ValueKind::DateTime && summerTime) {
    time.summerTime = 1;
  }
  ULOVALUE value(type);
  value.SetTime(time);
  return value;
}

ULOVALUE ReadIntegerValue(UloValueType type, ValueKind kind, std::string_view text) {
  ULOVALUE value(type);
  if (kind == ValueKind::Signed32) {
    const auto number =
        ParseSigned(text, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max());
    if (!number) {
      Refuse(type, text, "a whole number from -2147483648 to 2147483647");
    }
    value.SetInt32(static_cast<std::int32_t>(*number));
    return value;
  }
  const std::optional<std::uint64_t> number = kind == ValueKind::Byte         ? ReadUnsigned<std::uint8_t>(text)
                                              : kind == ValueKind::Unsigned16 ? ReadUnsigned<std::uint16_t>(text)
                                              : kind == ValueKind::Unsigned32 ? ReadUnsigned<std::uint32_t>(text)
                                                                              : ReadUnsigned<std::uint64_t>(text);
  if (!number) {
    Refuse(type, text,
           kind == ValueKind::Byte         ? "a whole number from 0 to 255"
           : kind == ValueKind::Unsigned16 ? "a whole number from 0 to 65535"
           : kind == ValueKind::Unsigned32 ? "a whole number from 0 to 4294967295"
                                           : "a whole number from 0 to 18446744073709551615");
  }
  // The integer kinds share one storage, so the widest setter serves them all.
  value.SetUInt64(*number);
  return value;
}

ULOVALUE ReadBoolean(UloValueType type, std::string_view text) {
  ULOVALUE value(type);
  if (EqualsIgnoringCase(text, "true") || text == "1") {
    value.SetBool(true);
  } else if (EqualsIgnoringCase(text, "false") || text == "0") {
    value.SetBool(false);
  } else {
    Refuse(type, text, "true, false, 1 or 0");
  }
  return value;
}

// Infinities are numbers to send too: the converters clamp them into range.
std::optional<double> ReadInfinity(std::string_view text) {
  const bool minus = !text.empty() && text.front() == '-';
  const bool sign = minus || (!text.empty() && text.front() == '+');
  const std::string_view name = sign ? text.substr(1) : text;
  if (!EqualsIgnoringCase(name, "inf") && !EqualsIgnoringCase(name, "infinity")) {
    return std::nullopt;
  }
  return minus ? -std::numeric_limits<double>::infinity() : std::numeric_limits<double>::infinity();
}

ULOVALUE ReadNumber(UloValueType type, std::string_view text) {
  std::optional<double> number = ParseDecimal(text);
  if (!number) {
    number = ReadInfinity(text);
  }
  if (!number) {
    Refuse(type, text, "a decimal number, inf or -inf");
  }
  ULOVALUE value(type);
  value.SetDouble(*number);
  return value;
}

}  // namespace

ValueKind KindOf(UloValueType type) {
  switch (type) {
    case IVT_NONE:
    case IVT_ANY:
      return ValueKind::NoValue;
    case IVT_BOOL:
      return ValueKind::Boolean;
    case IVT_DOUBLE:
    case IVT_DOUBLE_1005:
    case IVT_PERCENT:
    case IVT_DIMMING:
    case IVT_DOUBLE_1039:
      return ValueKind::Number;
    case IVT_INT32:
    case IVT_TYPE_5:
    case IVT_TIMESPAN:
      return ValueKind::Signed32;
    case IVT_BYTE:
    case IVT_BYTE_1021:
      return ValueKind::Byte;
    case IVT_UINT16:
      return ValueKind::Unsigned16;
    case IVT_UINT32:
    case IVT_UNSIGNED_20:
      return ValueKind::Unsigned32;
    case IVT_UINT64:
      return ValueKind::Unsigned64;
    case IVT_STRING:
      return ValueKind::Text;
    case IVT_DATE:
    case IVT_DATE_105:
      return ValueKind::Date;
    case IVT_TIME:
    case IVT_TIME_104:
      return ValueKind::Time;
    case IVT_DATETIME:
    case IVT_DATETIME_102:
    case IVT_DATETIME_201:
      return ValueKind::DateTime;
  }
  return ValueKind::Unknown;
}

UloValueType ParseValueType(std::string_view text) {
  const std::string_view name = Trim(text);
  if (const auto number = ParseUnsigned(name, std::numeric_limits<std::int32_t>::max())) {
    for (const UloValueType type : KnownTypes) {
      if (static_cast<std::uint64_t>(type) == *number) {
        return type;
      }
    }
  }
  for (const UloValueType type : KnownTypes) {
    const std::string_view full = UloValueTypeName(type);
    if (EqualsIgnoringCase(name, full) || EqualsIgnoringCase(name, full.substr(TypePrefix.size()))) {
      return type;
    }
  }
  throw InputError("unknown value type '" + std::string(text) + "' (a name such as double or percent, or a number)");
}

std::string ValueTypeText(UloValueType type) {
  const char* name = UloValueTypeName(type);
  return name != nullptr ? std::string(name) : std::to_string(static_cast<std::int32_t>(type));
}

std::string ValueSubTypeText(UloDP::UloValueSubType subType) {
  const char* name = UloValueSubTypeName(subType);
  return name != nullptr ? std::string(name) : std::to_string(static_cast<std::int32_t>(subType));
}

ULOVALUE ParseValue(UloValueType type, std::string_view text, bool summerTime) {
  const ValueKind kind = KindOf(type);
  switch (kind) {
    case ValueKind::NoValue:
      return ULOVALUE(type);
    case ValueKind::Text: {
      ULOVALUE value(type);
      value.SetString(std::string(text));
      return value;
    }
    case ValueKind::Boolean:
      return ReadBoolean(type, Trim(text));
    case ValueKind::Number:
      return ReadNumber(type, Trim(text));
    case ValueKind::Signed32:
    case ValueKind::Byte:
    case ValueKind::Unsigned16:
    case ValueKind::Unsigned32:
    case ValueKind::Unsigned64:
      return ReadIntegerValue(type, kind, Trim(text));
    case ValueKind::Date:
    case ValueKind::Time:
    case ValueKind::DateTime:
      return ReadTimeValue(type, kind, Trim(text), summerTime);
    case ValueKind::Unknown:
      break;
  }
  throw InputError("values of type " + ValueTypeText(type) + " cannot be written as text");
}

}  // namespace Knxconv
