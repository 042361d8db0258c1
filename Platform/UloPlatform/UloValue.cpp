#include "UloValue.h"

#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

#include "UloPayload.h"

using UloPlatformDetail::Payload;
using UloPlatformDetail::PayloadOf;

// ---------------------------------------------------------------------------
// Factories

ULOVALUE ULOVALUE::Bool(bool value) {
  ULOVALUE result(IVT_BOOL);
  result.SetBool(value);
  return result;
}

ULOVALUE ULOVALUE::Byte(std::uint8_t value, UloValueType type) {
  ULOVALUE result(type);
  result.SetByte(value);
  return result;
}

ULOVALUE ULOVALUE::UInt16(std::uint16_t value) {
  ULOVALUE result(IVT_UINT16);
  result.SetUInt16(value);
  return result;
}

ULOVALUE ULOVALUE::Int32(std::int32_t value, UloValueType type) {
  ULOVALUE result(type);
  result.SetInt32(value);
  return result;
}

ULOVALUE ULOVALUE::UInt32(std::uint32_t value, UloValueType type) {
  ULOVALUE result(type);
  result.SetUInt32(value);
  return result;
}

ULOVALUE ULOVALUE::UInt64(std::uint64_t value) {
  ULOVALUE result(IVT_UINT64);
  result.SetUInt64(value);
  return result;
}

ULOVALUE ULOVALUE::Double(double value, UloValueType type) {
  ULOVALUE result(type);
  result.SetDouble(value);
  return result;
}

ULOVALUE ULOVALUE::String(std::string value) {
  ULOVALUE result(IVT_STRING);
  result.SetString(std::move(value));
  return result;
}

ULOVALUE ULOVALUE::TimeSpan(std::int32_t seconds) {
  return Int32(seconds, IVT_TIMESPAN);
}

ULOVALUE ULOVALUE::Date(std::uint16_t year, std::uint8_t month, std::uint8_t day) {
  ULOVALUE result(IVT_DATE);
  result.m_time.SetDate(year, month, day, true);
  return result;
}

ULOVALUE ULOVALUE::Time(std::uint8_t hour, std::uint8_t minute, std::uint8_t second) {
  ULOVALUE result(IVT_TIME);
  result.m_time.SetTime(hour, minute, second, true);
  return result;
}

ULOVALUE ULOVALUE::DateTime(const ULOTIME& time, UloValueType type) {
  ULOVALUE result(type);
  result.SetTime(time);
  return result;
}

// ---------------------------------------------------------------------------
// Numbers read from any numeric source

namespace {

// Integers stay exact (a 64-bit unsigned does not fit a double); everything
// else is a double.
struct Number {
  bool isReal = false;
  double real = 0.0;
  bool negative = false;  // never set for a zero magnitude
  std::uint64_t magnitude = 0;
};

Number Integer(std::uint64_t magnitude, bool negative = false) {
  Number number;
  number.magnitude = magnitude;
  number.negative = negative && magnitude != 0;
  return number;
}

Number Real(double value) {
  Number number;
  number.isReal = true;
  number.real = value;
  return number;
}

Number Signed(std::int64_t value) {
  const auto bits = static_cast<std::uint64_t>(value);
  return value < 0 ? Integer(0 - bits, true) : Integer(bits);
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

std::size_t SkipDigits(std::string_view text, std::size_t position) {
  while (position < text.size() && IsDigit(text[position])) {
    ++position;
  }
  return position;
}

std::optional<std::uint64_t> ParseWhole(std::string_view digits) {
  std::uint64_t value = 0;
  const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (result.ec != std::errc() || result.ptr != digits.data() + digits.size()) {
    return std::nullopt;
  }
  return value;
}

// Length of an unsigned decimal at the start of text: digits with an optional
// fraction (at least one digit in all) and an optional exponent; 0 if none.
std::size_t DecimalLength(std::string_view text) {
  const std::size_t integerEnd = SkipDigits(text, 0);
  std::size_t end = integerEnd;
  std::size_t digitCount = integerEnd;
  if (end < text.size() && text[end] == '.') {
    end = SkipDigits(text, end + 1);
    digitCount += end - integerEnd - 1;
  }
  if (digitCount == 0) {
    return 0;
  }
  if (end < text.size() && (text[end] == 'e' || text[end] == 'E')) {
    std::size_t exponent = end + 1;
    if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) {
      ++exponent;
    }
    const std::size_t exponentEnd = SkipDigits(text, exponent);
    if (exponentEnd == exponent) {
      return 0;
    }
    end = exponentEnd;
  }
  return end;
}

// A whole number or a decimal with an optional sign; no blanks, no
// hexadecimal, no "inf" or "nan". Parsing does not depend on the locale.
std::optional<Number> ParseNumber(std::string_view text) {
  const bool negative = !text.empty() && text.front() == '-';
  if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
    text.remove_prefix(1);
  }
  if (text.empty() || DecimalLength(text) != text.size()) {
    return std::nullopt;
  }
  if (SkipDigits(text, 0) == text.size()) {
    if (const std::optional<std::uint64_t> whole = ParseWhole(text)) {
      return Integer(*whole, negative);
    }
  }
  double value = 0.0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  if (result.ec != std::errc() || result.ptr != text.data() + text.size()) {
    return std::nullopt;
  }
  return Real(negative ? -value : value);
}

std::optional<Number> ReadNumber(const ULOVALUE& value) {
  switch (PayloadOf(value.GetType())) {
    case Payload::Bool:
      return Integer(value.GetBool() ? 1 : 0);
    case Payload::Double:
      return Real(value.GetDouble());
    case Payload::Int32:
      return Signed(value.GetInt32());
    case Payload::Byte:
      return Integer(value.GetByte());
    case Payload::UInt16:
      return Integer(value.GetUInt16());
    case Payload::UInt32:
      return Integer(value.GetUInt32());
    case Payload::UInt64:
      return Integer(value.GetUInt64());
    case Payload::Text:
      return ParseNumber(value.GetString());
    default:
      return std::nullopt;
  }
}

// ---------------------------------------------------------------------------
// Storing a number into a numeric kind

struct IntegerLimits {
  std::uint64_t positive;  // largest magnitude of a positive value
  std::uint64_t negative;  // largest magnitude of a negative value
};

std::optional<IntegerLimits> LimitsOf(Payload payload) {
  switch (payload) {
    case Payload::Int32:
      return IntegerLimits{0x7FFFFFFFu, 0x80000000u};
    case Payload::Byte:
      return IntegerLimits{0xFFu, 0};
    case Payload::UInt16:
      return IntegerLimits{0xFFFFu, 0};
    case Payload::UInt32:
      return IntegerLimits{0xFFFFFFFFu, 0};
    case Payload::UInt64:
      return IntegerLimits{~std::uint64_t{0}, 0};
    default:
      return std::nullopt;
  }
}

// Half away from zero; fails for NaN, infinities and magnitudes beyond 64 bits.
std::optional<Number> RoundToInteger(double value) {
  constexpr double TwoTo64 = 18446744073709551616.0;
  if (!std::isfinite(value)) {
    return std::nullopt;
  }
  const double rounded = std::round(value);
  const double magnitude = std::fabs(rounded);
  if (magnitude >= TwoTo64) {
    return std::nullopt;
  }
  return Integer(static_cast<std::uint64_t>(magnitude), rounded < 0);
}

bool StoreInteger(ULOVALUE& target, const IntegerLimits& limits, const Number& number) {
  const std::optional<Number> integer = number.isReal ? RoundToInteger(number.real) : number;
  if (!integer || integer->magnitude > (integer->negative ? limits.negative : limits.positive)) {
    return false;
  }
  // The integer kinds share one 64-bit storage in two's complement, so the
  // 64-bit write reads back right through every kind whose limits it passed.
  target.SetUInt64(integer->negative ? 0 - integer->magnitude : integer->magnitude);
  return true;
}

double ToDouble(const Number& number) {
  if (number.isReal) {
    return number.real;
  }
  const auto magnitude = static_cast<double>(number.magnitude);
  return number.negative ? -magnitude : magnitude;
}

bool StoreNumber(ULOVALUE& target, Payload payload, const Number& number) {
  if (payload == Payload::Double) {
    target.SetDouble(ToDouble(number));
    return true;
  }
  if (payload == Payload::Bool) {
    if (number.isReal && std::isnan(number.real)) {
      return false;
    }
    target.SetBool(number.isReal ? number.real != 0.0 : number.magnitude != 0);
    return true;
  }
  const std::optional<IntegerLimits> limits = LimitsOf(payload);
  return limits && StoreInteger(target, *limits, number);
}

// ---------------------------------------------------------------------------
// Assign by target kind

bool IsNumeric(Payload payload) {
  return payload == Payload::Bool || payload == Payload::Double || LimitsOf(payload).has_value();
}

bool AssignNumber(ULOVALUE& target, Payload to, const ULOVALUE& source, Payload from) {
  // A text may hold a number, but not a truth value.
  if (to == Payload::Bool && from == Payload::Text) {
    return false;
  }
  const std::optional<Number> number = ReadNumber(source);
  return number && StoreNumber(target, to, *number);
}

bool AssignText(ULOVALUE& target, const ULOVALUE& source, Payload from) {
  if (!IsNumeric(from)) {
    return false;
  }
  target.SetString(source.ToString());
  return true;
}

bool HasDate(Payload payload) {
  return payload == Payload::Date || payload == Payload::DateTime;
}

bool HasTime(Payload payload) {
  return payload == Payload::Time || payload == Payload::DateTime;
}

// Between the date, time and date-time kinds only the fields both sides have
// are taken; the rest stays zero. A date and a time share nothing, so neither
// converts into the other. The weekday and the summer-time flag go with the
// time of day.
bool AssignTime(ULOVALUE& target, Payload to, const ULOVALUE& source, Payload from) {
  const bool sharesDate = HasDate(to) && HasDate(from);
  const bool sharesTime = HasTime(to) && HasTime(from);
  if (!sharesDate && !sharesTime) {
    return false;
  }
  const ULOTIME& in = source.GetTime();
  ULOTIME out;
  out.isSet = in.isSet;
  if (sharesDate) {
    out.year = in.year;
    out.month = in.month;
    out.day = in.day;
  }
  if (sharesTime) {
    out.hour = in.hour;
    out.minute = in.minute;
    out.second = in.second;
    out.weekday = in.weekday;
    out.summerTime = in.summerTime;
  }
  target.SetTime(out);
  return true;
}

// ---------------------------------------------------------------------------
// Text forms

std::string FormatUnsigned(std::uint64_t magnitude, bool negative) {
  char text[24];
  char* begin = text;
  if (negative) {
    *begin++ = '-';
  }
  const auto result = std::to_chars(begin, text + sizeof text, magnitude);
  return std::string(text, result.ptr);
}

// Shortest digits that read back to the same double, written in plain
// decimal for exponents -4 to 16 and in scientific form ("1e+300") otherwise,
// as "%.17g" would choose. Independent of the locale.
std::string FormatDouble(double value) {
  if (std::isnan(value)) {
    return "nan";
  }
  if (std::isinf(value)) {
    return value < 0 ? "-inf" : "inf";
  }
  char scientific[40];
  const char* const end =
      std::to_chars(scientific, scientific + sizeof scientific, value, std::chars_format::scientific).ptr;
  const std::string_view text(scientific, static_cast<std::size_t>(end - scientific));
  const std::size_t e = text.find('e');
  const char* exponentBegin = scientific + e + 1;
  if (*exponentBegin == '+') {
    ++exponentBegin;
  }
  int exponent = 0;
  std::from_chars(exponentBegin, end, exponent);
  if (exponent < -4 || exponent >= 17) {
    return std::string(text);
  }
  const bool negative = text.front() == '-';
  std::string digits;
  for (const char c : text.substr(0, e)) {
    if (IsDigit(c)) {
      digits.push_back(c);
    }
  }
  std::string result(negative ? "-" : "");
  if (exponent < 0) {
    result.append("0.").append(static_cast<std::size_t>(-exponent - 1), '0').append(digits);
  } else if (digits.size() <= static_cast<std::size_t>(exponent) + 1) {
    result.append(digits).append(static_cast<std::size_t>(exponent) + 1 - digits.size(), '0');
  } else {
    const auto point = static_cast<std::size_t>(exponent) + 1;
    result.append(digits, 0, point).append(".").append(digits, point);
  }
  return result;
}

// value in decimal, zero-padded to at least width digits, as "%0*u" writes it.
void AppendPadded(std::string& text, unsigned int value, std::size_t width) {
  char digits[10];
  const char* const end = std::to_chars(digits, digits + sizeof digits, value).ptr;
  const auto length = static_cast<std::size_t>(end - digits);
  if (length < width) {
    text.append(width - length, '0');
  }
  text.append(digits, length);
}

// Three fields between separators, "YYYY-MM-DD" or "hh:mm:ss": the first
// padded to firstWidth digits, the others to two.
void AppendFields(std::string& text, unsigned int first, std::size_t firstWidth, unsigned int second,
                  unsigned int third, char separator) {
  AppendPadded(text, first, firstWidth);
  text += separator;
  AppendPadded(text, second, 2);
  text += separator;
  AppendPadded(text, third, 2);
}

std::string FormatTime(Payload payload, const ULOTIME& time) {
  std::string text;
  if (payload != Payload::Time) {
    AppendFields(text, time.year, 4, time.month, time.day, '-');
  }
  if (payload == Payload::DateTime) {
    text += ' ';
  }
  if (payload != Payload::Date) {
    AppendFields(text, time.hour, 2, time.minute, time.second, ':');
  }
  return text;
}

}  // namespace

// ---------------------------------------------------------------------------

bool ULOVALUE::Assign(const ULOVALUE& src) {
  if (src.m_type == m_type) {
    if (this != &src) {
      *this = src;
    }
    return true;
  }
  const Payload to = PayloadOf(m_type);
  const Payload from = PayloadOf(src.m_type);
  switch (to) {
    case Payload::Nothing:
      return false;
    case Payload::Text:
      return AssignText(*this, src, from);
    case Payload::Date:
    case Payload::Time:
    case Payload::DateTime:
      return AssignTime(*this, to, src, from);
    default:
      return AssignNumber(*this, to, src, from);
  }
}

std::string ULOVALUE::ToString() const {
  const Payload payload = PayloadOf(m_type);
  switch (payload) {
    case Payload::Nothing:
      return std::string();
    case Payload::Bool:
      return m_bool ? "true" : "false";
    case Payload::Double:
      return FormatDouble(m_double);
    case Payload::Int32: {
      const std::int32_t value = GetInt32();
      return FormatUnsigned(Signed(value).magnitude, value < 0);
    }
    case Payload::Byte:
      return FormatUnsigned(GetByte(), false);
    case Payload::UInt16:
      return FormatUnsigned(GetUInt16(), false);
    case Payload::UInt32:
      return FormatUnsigned(GetUInt32(), false);
    case Payload::UInt64:
      return FormatUnsigned(GetUInt64(), false);
    case Payload::Text:
      return m_text;
    case Payload::Date:
    case Payload::Time:
    case Payload::DateTime:
      return FormatTime(payload, m_time);
  }
  return std::string();
}
