#include "FloorConversions.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>

#include "FloatRange.h"
#include "Weekdays.h"

namespace Floor {

namespace {

using KnxStack::GroupValue;
using DayOfWeek = KnxStack::GroupValue::DayOfWeek;

template <typename Number>
Number Clamp(Number value, Number low, Number high) {
  return std::min(std::max(value, low), high);
}

// --- bits, bytes and plain integers ---------------------------------------

void BooleanTo(const ULOVALUE& value, GroupValue& groupValue) {
  groupValue.SetAsBoolean(value.GetBool());
}
void BooleanFrom(const GroupValue& groupValue, ULOVALUE& value) {
  value.SetType(IVT_BOOL);
  value.SetBool(groupValue.GetAsBoolean());
}

void ControlledTo(const ULOVALUE& value, GroupValue& groupValue) {
  groupValue.SetAsUnsigned2(value.GetBool() ? 3 : 2);
}
void ControlledFrom(const GroupValue& groupValue, ULOVALUE& value) {
  value.SetType(IVT_BOOL);
  value.SetBool((groupValue.GetAsUnsigned2() & 1U) != 0);
}

void StepTo(const ULOVALUE& value, GroupValue& groupValue) {
  groupValue.SetAsUnsigned4(GetRelScalingAsByte(Clamp(value.GetDouble(), -100.0, 100.0)));
}
void StepFrom(const GroupValue& groupValue, ULOVALUE& value) {
  value.SetType(IVT_DOUBLE);
  value.SetDouble(GetRelScalingFromByte(groupValue.GetAsUnsigned4()));
}

void ByteTo(const ULOVALUE& value, GroupValue& groupValue) {
  groupValue.SetAsUnsigned8(value.GetByte());
}
void ByteFrom(const GroupValue& groupValue, ULOVALUE& value) {
  value.SetType(IVT_BYTE);
  value.SetByte(groupValue.GetAsUnsigned8());
}

void Signed8To(const ULOVALUE& value, GroupValue& groupValue) {
  groupValue.SetAsSigned8(static_cast<signed char>(Clamp(value.GetInt32(), -128, 127)));
}
void Signed8From(const GroupValue& groupValue, ULOVALUE& value) {
  value.SetType(IVT_INT32);
  value.SetInt32(groupValue.GetAsSigned8());
}

template <UloValueType Type>
void Unsigned16To(const ULOVALUE& value, GroupValue& groupValue) {
  groupValue.SetAsUnsigned16(static_cast<std::uint16_t>(Clamp(value.GetInt32(), 0, 65535)));
}
template <UloValueType Type>
void Unsigned16From(const GroupValue& groupValue, ULOVALUE& value) {
  value.SetType(Type);
  value.SetInt32(groupValue.GetAsUnsigned16());
}

void Signed16To(const ULOVALUE& value, GroupValue& groupValue) {
  groupValue.SetAsSigned16(static_cast<std::int16_t>(Clamp(value.GetInt32(), -32768, 32767)));
}
void Signed16From(const GroupValue& groupValue, ULOVALUE& value) {
  value.SetType(IVT_INT32);
  value.SetInt32(groupValue.GetAsSigned16());
}

void Unsigned24To(const ULOVALUE& value, GroupValue& groupValue) {
  groupValue.SetAsUnsigned24(std::min<std::uint32_t>(value.GetUInt32(), 0xFFFFFFU));
}
void Unsigned24From(const GroupValue& groupValue, ULOVALUE& value) {
  value.SetType(IVT_UINT32);
  value.SetUInt32(groupValue.GetAsUnsigned24());
}

void Unsigned32To(const ULOVALUE& value, GroupValue& groupValue) {
  groupValue.SetAsUnsigned32(value.GetUInt32());
}
void Unsigned32From(const GroupValue& groupValue, ULOVALUE& value) {
  value.SetType(IVT_UINT32);
  value.SetUInt32(groupValue.GetAsUnsigned32());
}

void Signed32To(const ULOVALUE& value, GroupValue& groupValue) {
  groupValue.SetAsSigned32(value.GetInt32());
}
template <UloValueType Type>
void Signed32From(const GroupValue& groupValue, ULOVALUE& value) {
  value.SetType(Type);
  value.SetInt32(groupValue.GetAsSigned32());
}

constexpr unsigned int Unsigned48Bytes = 6;

void Unsigned48To(const ULOVALUE& value, GroupValue& groupValue) {
  const std::uint64_t number = std::min<std::uint64_t>(value.GetUInt64(), 0xFFFFFFFFFFFFU);
  unsigned char bytes[Unsigned48Bytes];
  for (unsigned int index = 0; index < Unsigned48Bytes; ++index) {
    bytes[index] = static_cast<unsigned char>(number >> (8 * (Unsigned48Bytes - 1 - index)));
  }
  groupValue.SetRawData(KnxStack::BinaryData(bytes, Unsigned48Bytes));
}
void Unsigned48From(const GroupValue& groupValue, ULOVALUE& value) {
  value.SetType(IVT_UINT64);
  const KnxStack::BinaryData& data = groupValue.GetRawData();
  std::uint64_t number = 0;
  for (unsigned int index = 0; index < data.GetLength(); ++index) {
    number = number * 256U + data.GetData()[index];
  }
  value.SetUInt64(number);
}

// --- scaled numbers ---------------------------------------------------------

template <int InternalMin, int InternalMax>
const Nelmo::FloatIntegerRange& Scaled(std::int32_t externalMin, std::int32_t externalMax) {
  static const Nelmo::FloatIntegerRange range(InternalMin, InternalMax, externalMin, externalMax);
  return range;
}

template <int InternalMax>
void PercentTo(const ULOVALUE& value, GroupValue& groupValue) {
  const Nelmo::FloatIntegerRange& range = Scaled<0, InternalMax>(0, 255);
  const double fitted = Clamp(value.GetDouble(), 0.0, double{InternalMax});
  groupValue.SetAsUnsigned8(static_cast<unsigned char>(range.ScaleTo(fitted)));
}
template <int InternalMax>
void PercentFrom(const GroupValue& groupValue, ULOVALUE& value) {
  const Nelmo::FloatIntegerRange& range = Scaled<0, InternalMax>(0, 255);
  value.SetType(IVT_DOUBLE);
  value.SetDouble(Clamp(range.ScaleFrom(groupValue.GetAsUnsigned8()), 0.0, double{InternalMax}));
}

void SignedPercentTo(const ULOVALUE& value, GroupValue& groupValue) {
  const Nelmo::FloatIntegerRange& range = Scaled<-128, 127>(-128, 127);
  groupValue.SetAsSigned8(static_cast<signed char>(range.ScaleTo(Clamp(value.GetDouble(), -128.0, 127.0))));
}
void SignedPercentFrom(const GroupValue& groupValue, ULOVALUE& value) {
  value.SetType(IVT_DOUBLE);
  value.SetDouble(Scaled<-128, 127>(-128, 127).ScaleFrom(groupValue.GetAsSigned8()));
}

const Nelmo::FloatIntegerRange& Hundredths() {
  static const Nelmo::FloatIntegerRange range(-327.68, 327.67, -32768, 32767);
  return range;
}
void HundredthsTo(const ULOVALUE& value, GroupValue& groupValue) {
  const double fitted = Clamp(value.GetDouble(), -327.68, 327.67);
  groupValue.SetAsSigned16(static_cast<std::int16_t>(Hundredths().ScaleTo(fitted)));
}
void HundredthsFrom(const GroupValue& groupValue, ULOVALUE& value) {
  value.SetType(IVT_DOUBLE);
  value.SetDouble(Hundredths().ScaleFrom(groupValue.GetAsSigned16()));
}

// --- floats -----------------------------------------------------------------

// The identity ranges of the 16-bit float rows, by their lower bound.
struct FloatBounds {
  double low;
  double high;
};
constexpr FloatBounds Float16Whole{-671088.64, 670760.96};
constexpr FloatBounds Temperature{-273.0, 670760.0};
constexpr FloatBounds Positive{0.0, 670760.0};
constexpr FloatBounds Fahrenheit{-459.6, 670760.96};
constexpr FloatBounds PositiveWhole{0.0, 670760.96};

void StoreFloat(double received, ULOVALUE& value) {
  value.SetDouble(received);
  if (std::isnan(received)) {
    value.SetType(IVT_NONE);
  }
}

template <const FloatBounds& Bounds>
void Float16To(const ULOVALUE& value, GroupValue& groupValue) {
  groupValue.SetAsFloat16(Clamp(value.GetDouble(), Bounds.low, Bounds.high));
}
template <const FloatBounds& Bounds>
void Float16From(const GroupValue& groupValue, ULOVALUE& value) {
  // The identity range's arithmetic, so that the result rounds the same.
  value.SetType(IVT_DOUBLE);
  StoreFloat((groupValue.GetAsFloat16() - Bounds.low) / 1.0 + Bounds.low, value);
}

constexpr double Float32Max = 3.4028234663852886e38;

void Float32To(const ULOVALUE& value, GroupValue& groupValue) {
  groupValue.SetAsFloat32(static_cast<float>(Clamp(value.GetDouble(), -Float32Max, Float32Max)));
}
void Float32From(const GroupValue& groupValue, ULOVALUE& value) {
  value.SetType(IVT_DOUBLE);
  StoreFloat(groupValue.GetAsFloat32(), value);
}

// --- texts ------------------------------------------------------------------

// One byte of a two-byte UTF-8 sequence or a single byte as it is.
unsigned char SingleByte(const std::string& text, std::size_t& index) {
  const auto lead = static_cast<unsigned char>(text[index]);
  if ((lead & 0xE0U) != 0xC0U || index + 1 >= text.size()) {
    return lead;
  }
  ++index;
  return static_cast<unsigned char>(((lead << 6U) & 0xFFU) | (static_cast<unsigned char>(text[index]) & 0x3FU));
}

void AppendUtf8(std::string& text, unsigned char byte, unsigned char highest) {
  if (byte < 0x80U) {
    text += static_cast<char>(byte);
    return;
  }
  const auto lead = static_cast<unsigned char>(0xC0U | (byte >> 6U));
  const auto trail = static_cast<unsigned char>(0x80U | (byte & 0x3FU));
  if (lead <= highest) {
    text += static_cast<char>(lead);
  }
  if (trail <= highest) {
    text += static_cast<char>(trail);
  }
}

template <unsigned char Highest>
void CharacterTo(const ULOVALUE& value, GroupValue& groupValue) {
  const std::string& text = value.GetString();
  std::size_t index = 0;
  const unsigned char character = text.empty() ? 0 : SingleByte(text, index);
  if (character <= Highest) {
    groupValue.SetAsUnsigned8(character);
  }
}
template <unsigned char Highest>
void CharacterFrom(const GroupValue& groupValue, ULOVALUE& value) {
  value.SetType(IVT_STRING);
  const unsigned char character = groupValue.GetAsUnsigned8();
  std::string text;
  if (character != 0 && character <= Highest) {
    AppendUtf8(text, character, 0xFF);
  }
  value.SetString(std::move(text));
}

constexpr std::size_t String14Bytes = 14;

template <unsigned char Highest>
void String14To(const ULOVALUE& value, GroupValue& groupValue) {
  const std::string& text = value.GetString();
  std::string bytes;
  for (std::size_t index = 0; index < text.size() && bytes.size() < String14Bytes; ++index) {
    const unsigned char byte = SingleByte(text, index);
    if (byte <= Highest) {
      bytes += static_cast<char>(byte);
    }
  }
  groupValue.SetAsString14(bytes);
}
template <unsigned char Highest>
void String14From(const GroupValue& groupValue, ULOVALUE& value) {
  value.SetType(IVT_STRING);
  const std::string received = groupValue.GetAsString14();
  std::string text;
  for (const char byte : received) {
    AppendUtf8(text, static_cast<unsigned char>(byte), Highest);
  }
  value.SetString(std::move(text));
}

// --- dates and times --------------------------------------------------------

DayOfWeek ToDayOfWeek(ULO::Weekdays::Days weekday) {
  return static_cast<DayOfWeek>(ULO::Weekdays::GetMonday1ToSunday7FromWeekday(weekday));
}

template <bool WithWeekday>
void TimeTo(const ULOVALUE& value, GroupValue& groupValue) {
  const ULOTIME& time = value.GetTime();
  groupValue.SetAsTimeOfDay(time.hour, time.minute, time.second,
                            WithWeekday ? ToDayOfWeek(time.weekday) : GroupValue::NoDay);
}
template <bool WithWeekday>
void TimeFrom(const GroupValue& groupValue, ULOVALUE& value) {
  value.SetType(IVT_TIME);
  int hour = 0;
  int minute = 0;
  int second = 0;
  DayOfWeek dayOfWeek = GroupValue::NoDay;
  groupValue.GetAsTimeOfDay(&hour, &minute, &second, WithWeekday ? &dayOfWeek : nullptr);
  if (!ULOTIME::IsValidTime(static_cast<unsigned char>(hour), static_cast<unsigned char>(minute),
                            static_cast<unsigned char>(second))) {
    return;
  }
  ULOTIME& time = value.GetTime();
  time.Clear(true);
  time.SetTime(static_cast<unsigned char>(hour), static_cast<unsigned char>(minute), static_cast<unsigned char>(second),
               true);
  if (WithWeekday) {
    time.weekday = ULO::Weekdays::GetWeekdayFromMonday1ToSunday7(static_cast<unsigned char>(dayOfWeek));
  }
}

void DateTo(const ULOVALUE& value, GroupValue& groupValue) {
  const ULOTIME& time = value.GetTime();
  groupValue.SetAsDate(time.day, time.month, time.year);
}
void DateFrom(const GroupValue& groupValue, ULOVALUE& value) {
  value.SetType(IVT_DATE);
  int day = 0;
  int month = 0;
  int year = 0;
  groupValue.GetAsDate(&day, &month, &year);
  if (!ULOTIME::IsValidDate(static_cast<unsigned short>(year), static_cast<unsigned char>(month),
                            static_cast<unsigned char>(day))) {
    return;
  }
  ULOTIME& time = value.GetTime();
  time.Clear(true);
  time.SetDate(static_cast<unsigned short>(year), static_cast<unsigned char>(month), static_cast<unsigned char>(day),
               true);
}

void DateTimeTo(const ULOVALUE& value, GroupValue& groupValue) {
  const ULOTIME& time = value.GetTime();
  groupValue.SetAsDateTime(time.day, time.month, time.year, time.hour, time.minute, time.second,
                           ToDayOfWeek(time.weekday), false, false, true, false, false, false, false,
                           time.summerTime != 0, false);
}
void DateTimeFrom(const GroupValue& groupValue, ULOVALUE& value) {
  value.SetType(IVT_DATETIME);
  int fields[6] = {};
  DayOfWeek dayOfWeek = GroupValue::NoDay;
  bool flags[9] = {};
  groupValue.GetAsDateTime(&fields[0], &fields[1], &fields[2], &fields[3], &fields[4], &fields[5], &dayOfWeek,
                           &flags[0], &flags[1], &flags[2], &flags[3], &flags[4], &flags[5], &flags[6], &flags[7],
                           &flags[8]);
  ULOTIME& time = value.GetTime();
  time.isSet = true;
  time.summerTime = flags[7] ? 1 : 0;
  time.day = static_cast<std::uint8_t>(fields[0]);
  time.month = static_cast<std::uint8_t>(fields[1]);
  time.year = static_cast<std::uint16_t>(fields[2]);
  time.weekday = ULO::Weekdays::GetWeekdayFromMonday1ToSunday7(static_cast<unsigned char>(dayOfWeek));
  const auto hour = static_cast<std::uint8_t>(fields[3]);
  const auto minute = static_cast<std::uint8_t>(fields[4]);
  const auto second = static_cast<std::uint8_t>(fields[5]);
  if (!ULOTIME::IsValidTime(hour, minute, second)) {
    return;
  }
  time.hour = hour;
  time.minute = minute;
  time.second = second;
}

// --- scenes -----------------------------------------------------------------

void SceneTo(const ULOVALUE& value, GroupValue& groupValue) {
  groupValue.SetAsUnsigned8(static_cast<unsigned char>(Clamp(value.GetInt32(), 1, 64) - 1));
}
void SceneFrom(const GroupValue& groupValue, ULOVALUE& value) {
  value.SetType(IVT_INT32);
  value.SetInt32(Clamp(groupValue.GetAsUnsigned8() + 1, 1, 64));
}

void SceneControlTo(const ULOVALUE& value, GroupValue& groupValue) {
  const std::int32_t scene = Clamp(value.GetInt32(), -64, 64);
  unsigned char code = 0;
  if (scene > 0) {
    code = static_cast<unsigned char>(scene - 1);
  } else if (scene < 0) {
    code = static_cast<unsigned char>(~static_cast<std::uint32_t>(scene) | 0x80U);
  }
  groupValue.SetAsUnsigned8(code);
}
void SceneControlFrom(const GroupValue& groupValue, ULOVALUE& value) {
  value.SetType(IVT_INT32);
  const std::uint32_t code = groupValue.GetAsUnsigned8();
  const std::int32_t scene =
      (code & 0x80U) != 0 ? -static_cast<std::int32_t>(code & 0x7FU) - 1 : static_cast<std::int32_t>(code) + 1;
  value.SetInt32(Clamp(scene, -64, 64));
}

// clang-format off
constexpr Conversion Conversions[] = {
    {"1.000", BooleanTo, BooleanFrom},
    {"2.000", ControlledTo, ControlledFrom},
    {"3.000", StepTo, StepFrom},
    {"4.000", CharacterTo<127>, CharacterFrom<127>},
    {"4.001", CharacterTo<127>, CharacterFrom<127>},
    {"4.002", CharacterTo<255>, CharacterFrom<255>},
    {"5.000", ByteTo, ByteFrom},
    {"5.001", PercentTo<100>, PercentFrom<100>},
    {"5.004", PercentTo<255>, PercentFrom<255>},
    {"5.003", PercentTo<360>, PercentFrom<360>},
    {"6.000", Signed8To, Signed8From},
    {"6.001", SignedPercentTo, SignedPercentFrom},
    {"7.000", Unsigned16To<IVT_UINT16>, Unsigned16From<IVT_UINT16>},
    {"8.000", Signed16To, Signed16From},
    {"8.010", HundredthsTo, HundredthsFrom},
    {"9.000", Float16To<Float16Whole>, Float16From<Float16Whole>},
    {"9.001", Float16To<Temperature>, Float16From<Temperature>},
    {"9.004", Float16To<Positive>, Float16From<Positive>},
    {"9.005", Float16To<Positive>, Float16From<Positive>},
    {"9.006", Float16To<Positive>, Float16From<Positive>},
    {"9.007", Float16To<Positive>, Float16From<Positive>},
    {"9.008", Float16To<Positive>, Float16From<Positive>},
    {"9.027", Float16To<Fahrenheit>, Float16From<Fahrenheit>},
    {"9.028", Float16To<PositiveWhole>, Float16From<PositiveWhole>},
    {"10.000", TimeTo<false>, TimeFrom<false>},
    {"10.001", TimeTo<true>, TimeFrom<true>},
    {"11.000", DateTo, DateFrom},
    {"12.000", Unsigned32To, Unsigned32From},
    {"13.000", Signed32To, Signed32From<IVT_INT32>},
    {"13.100", Signed32To, Signed32From<IVT_TIMESPAN>},
    {"14.000", Float32To, Float32From},
    {"15.000", Unsigned32To, Unsigned32From},
    {"16.000", String14To<127>, String14From<127>},
    {"16.001", String14To<255>, String14From<255>},
    {"17.000", SceneTo, SceneFrom},
    {"18.000", SceneControlTo, SceneControlFrom},
    {"19.000", DateTimeTo, DateTimeFrom},
    {"20.000", ByteTo, ByteFrom},
    {"21.000", ByteTo, ByteFrom},
    {"22.000", Unsigned16To<IVT_UINT16>, Unsigned16From<IVT_UINT16>},
    {"23.000", ByteTo, ByteFrom},
    {"26.000", ByteTo, ByteFrom},
    {"27.000", Unsigned32To, Unsigned32From},
    {"232.000", Unsigned24To, Unsigned24From},
    {"236.000", ByteTo, ByteFrom},
    {"238.000", ByteTo, ByteFrom},
    {"242.000", Unsigned48To, Unsigned48From},
    {"250.000", Unsigned24To, Unsigned24From},
};
// clang-format on

}  // namespace

const Conversion* Find(std::string_view row) {
  for (const Conversion& conversion : Conversions) {
    if (conversion.row == row) {
      return &conversion;
    }
  }
  return nullptr;
}

}  // namespace Floor
