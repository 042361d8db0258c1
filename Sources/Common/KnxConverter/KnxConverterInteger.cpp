#include "KnxConverterInteger.h"

#include <cstdint>
#include <limits>
#include <type_traits>

#include "ConverterCallsOf.h"
#include "ConverterLog.h"
#include "RangeArithmetic.h"

namespace Nelmo {

namespace {

// The low bits of value as Field, two's complement: the bus field keeps what
// fits and drops the rest, without relying on implementation-defined
// narrowing of signed numbers.
template <typename Field, typename Number>
Field Truncate(Number value) {
  using Bits = std::make_unsigned_t<Field>;
  const auto low = static_cast<Bits>(static_cast<std::uint64_t>(value));
  if constexpr (std::is_signed_v<Field>) {
    if (low > static_cast<Bits>(std::numeric_limits<Field>::max())) {
      constexpr std::int64_t modulus = std::int64_t{1} << std::numeric_limits<Bits>::digits;
      return static_cast<Field>(static_cast<std::int64_t>(low) - modulus);
    }
  }
  return static_cast<Field>(low);
}

// Formats whose platform value is the signed 32-bit payload. The message
// shows both numbers as they are.
struct SignedPayload {
  using Range = IntegerRange;
  using Number = std::int32_t;
  static Number Load(const ULOVALUE& value) { return value.GetInt32(); }
  static void Store(ULOVALUE& value, Number number) { value.SetInt32(number); }
  static Number ShownBefore(Number number) { return number; }
  static Number ShownAfter(Number number) { return number; }
};

struct Signed8Format : SignedPayload {
  static void Send(KnxStack::GroupValue& groupValue, Number number) {
    groupValue.SetAsSigned8(Truncate<signed char>(number));
  }
  static Number Receive(const KnxStack::GroupValue& groupValue) { return groupValue.GetAsSigned8(); }
};

struct Unsigned16Format : SignedPayload {
  // The value before clamping is shown as the unsigned number it is meant to
  // be, so -5 reads 4294967291.
  static std::uint32_t ShownBefore(Number number) { return static_cast<std::uint32_t>(number); }
  static void Send(KnxStack::GroupValue& groupValue, Number number) {
    groupValue.SetAsUnsigned16(Truncate<std::uint16_t>(number));
  }
  static Number Receive(const KnxStack::GroupValue& groupValue) { return groupValue.GetAsUnsigned16(); }
};

struct Signed16Format : SignedPayload {
  static void Send(KnxStack::GroupValue& groupValue, Number number) {
    groupValue.SetAsSigned16(Truncate<std::int16_t>(number));
  }
  static Number Receive(const KnxStack::GroupValue& groupValue) { return groupValue.GetAsSigned16(); }
};

struct Signed32Format : SignedPayload {
  static void Send(KnxStack::GroupValue& groupValue, Number number) { groupValue.SetAsSigned32(number); }
  static Number Receive(const KnxStack::GroupValue& groupValue) { return groupValue.GetAsSigned32(); }
};

// Formats whose platform value is the unsigned 32-bit payload, widened to
// 64 bits so that the signed long range covers it.
struct Unsigned32Payload {
  using Range = LongIntegerRange;
  using Number = std::int64_t;
  static Number Load(const ULOVALUE& value) { return value.GetUInt32(); }
  static void Store(ULOVALUE& value, Number number) { value.SetUInt32(Truncate<std::uint32_t>(number)); }
  static std::uint32_t ShownBefore(Number number) { return Truncate<std::uint32_t>(number); }
  static std::uint32_t ShownAfter(Number number) { return Truncate<std::uint32_t>(number); }
};

struct Unsigned24Format : Unsigned32Payload {
  static void Send(KnxStack::GroupValue& groupValue, Number number) {
    groupValue.SetAsUnsigned24(Truncate<std::uint32_t>(number));
  }
  static Number Receive(const KnxStack::GroupValue& groupValue) { return groupValue.GetAsUnsigned24(); }
};

struct Unsigned32Format : Unsigned32Payload {
  static void Send(KnxStack::GroupValue& groupValue, Number number) {
    groupValue.SetAsUnsigned32(Truncate<std::uint32_t>(number));
  }
  static Number Receive(const KnxStack::GroupValue& groupValue) { return groupValue.GetAsUnsigned32(); }
};

constexpr unsigned int Unsigned48Bytes = 6;
constexpr unsigned int Unsigned48Bits = 48;

// Six bytes, most significant first; bits above 47 are dropped. The receive
// side checks the size first and is written out below.
struct Unsigned48Format {
  using Range = UnsignedLongIntegerRange;
  using Number = std::uint64_t;
  static Number Load(const ULOVALUE& value) { return value.GetUInt64(); }
  static Number ShownBefore(Number number) { return number; }
  static Number ShownAfter(Number number) { return number; }
  static void Send(KnxStack::GroupValue& groupValue, Number number) {
    unsigned char bytes[Unsigned48Bytes];
    for (unsigned int index = 0; index < Unsigned48Bytes; ++index) {
      bytes[index] = static_cast<unsigned char>(number >> (8 * (Unsigned48Bytes - 1 - index)));
    }
    groupValue.SetRawData(KnxStack::BinaryData(bytes, Unsigned48Bytes));
  }
};

// The range's clamp and scaling worked out inline: a call for a compare or
// for a scaling that gives the number back cost more than the work.
template <typename Range, typename Number>
bool Fit(const Range& range, Number& value) {
  return RangeArithmetic::FitInto(value, range.internalMinimum, range.internalMaximum);
}

template <typename Range, typename Number>
Number ScaledTo(const Range& range, Number value) {
  if constexpr (std::is_signed_v<Number>) {
    if (RangeArithmetic::ScalesToItself(value, range.internalMinimum, range.scaleFactor, range.externalMinimum)) {
      return value;
    }
  }
  return range.ScaleTo(value);
}

template <typename Range, typename Number>
Number ScaledFrom(const Range& range, Number value) {
  if constexpr (std::is_signed_v<Number>) {
    if (RangeArithmetic::ScalesToItself(value, range.externalMinimum, range.scaleFactor, range.internalMinimum)) {
      return value;
    }
  }
  return range.ScaleFrom(value);
}

// Clamp into the internal range (a notice when that changed the value),
// scale, write the bus field.
template <typename Format>
bool IntegerToKnx(const typename Format::Range& range, const KNXDPT& dpt, const ULOVALUE& value,
                  KnxStack::GroupValue& groupValue) {
  return Log::TracedToKnx(dpt, value, __LINE__, [&] {
    const typename Format::Number original = Format::Load(value);
    typename Format::Number fitted = original;
    if (!Fit(range, fitted)) {
      Log::Adjusted(dpt, value.GetType(), Format::ShownBefore(original), Format::ShownAfter(fitted), __LINE__);
    }
    Format::Send(groupValue, ScaledTo(range, fitted));
    return true;
  });
}

// Read the bus field and scale it back; no clamping on the way in.
template <typename Format>
bool IntegerFromKnx(const typename Format::Range& range, const KNXDPT& dpt, const KnxStack::GroupValue& groupValue,
                    ULOVALUE& value) {
  return Log::TracedFromKnx(dpt, groupValue, __LINE__, [&] {
    Format::Store(value, ScaledFrom(range, static_cast<typename Format::Number>(Format::Receive(groupValue))));
    return true;
  });
}

}  // namespace

// ---------------------------------------------------------------------------

bool KnxConverterByte8BitUnsigned::ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value,
                                              KnxStack::GroupValue& groupValue) {
  return Log::TracedToKnx(dpt, value, __LINE__, [&] {
    if (value.GetType() != IVT_BYTE) {
      return false;
    }
    groupValue.SetAsUnsigned8(value.GetByte());
    return true;
  });
}

bool KnxConverterByte8BitUnsigned::FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue,
                                                ULOVALUE& value) {
  return Log::TracedFromKnx(dpt, groupValue, __LINE__, [&] {
    if (value.GetType() != IVT_BYTE) {
      return false;
    }
    value.SetByte(groupValue.GetAsUnsigned8());
    return true;
  });
}

KnxConverter* KnxConverterByte8BitUnsigned::Clone() const {
  return new KnxConverterByte8BitUnsigned(*this);
}

// ---------------------------------------------------------------------------

bool KnxConverterInteger8BitSigned::ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value,
                                               KnxStack::GroupValue& groupValue) {
  return IntegerToKnx<Signed8Format>(m_range, dpt, value, groupValue);
}

bool KnxConverterInteger8BitSigned::FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue,
                                                 ULOVALUE& value) {
  return IntegerFromKnx<Signed8Format>(m_range, dpt, groupValue, value);
}

KnxConverter* KnxConverterInteger8BitSigned::Clone() const {
  return new KnxConverterInteger8BitSigned(*this);
}

// ---------------------------------------------------------------------------

bool KnxConverterInteger16BitUnsigned::ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value,
                                                  KnxStack::GroupValue& groupValue) {
  return IntegerToKnx<Unsigned16Format>(m_range, dpt, value, groupValue);
}

bool KnxConverterInteger16BitUnsigned::FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue,
                                                    ULOVALUE& value) {
  return IntegerFromKnx<Unsigned16Format>(m_range, dpt, groupValue, value);
}

KnxConverter* KnxConverterInteger16BitUnsigned::Clone() const {
  return new KnxConverterInteger16BitUnsigned(*this);
}

// ---------------------------------------------------------------------------

bool KnxConverterInteger16BitSigned::ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value,
                                                KnxStack::GroupValue& groupValue) {
  return IntegerToKnx<Signed16Format>(m_range, dpt, value, groupValue);
}

bool KnxConverterInteger16BitSigned::FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue,
                                                  ULOVALUE& value) {
  return IntegerFromKnx<Signed16Format>(m_range, dpt, groupValue, value);
}

KnxConverter* KnxConverterInteger16BitSigned::Clone() const {
  return new KnxConverterInteger16BitSigned(*this);
}

// ---------------------------------------------------------------------------

bool KnxConverterInteger24BitUnsigned::ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value,
                                                  KnxStack::GroupValue& groupValue) {
  return IntegerToKnx<Unsigned24Format>(m_range, dpt, value, groupValue);
}

bool KnxConverterInteger24BitUnsigned::FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue,
                                                    ULOVALUE& value) {
  return IntegerFromKnx<Unsigned24Format>(m_range, dpt, groupValue, value);
}

KnxConverter* KnxConverterInteger24BitUnsigned::Clone() const {
  return new KnxConverterInteger24BitUnsigned(*this);
}

// ---------------------------------------------------------------------------

bool KnxConverterInteger32BitUnsigned::ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value,
                                                  KnxStack::GroupValue& groupValue) {
  return IntegerToKnx<Unsigned32Format>(m_range, dpt, value, groupValue);
}

bool KnxConverterInteger32BitUnsigned::FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue,
                                                    ULOVALUE& value) {
  return IntegerFromKnx<Unsigned32Format>(m_range, dpt, groupValue, value);
}

KnxConverter* KnxConverterInteger32BitUnsigned::Clone() const {
  return new KnxConverterInteger32BitUnsigned(*this);
}

// ---------------------------------------------------------------------------

bool KnxConverterInteger32BitSigned::ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value,
                                                KnxStack::GroupValue& groupValue) {
  return IntegerToKnx<Signed32Format>(m_range, dpt, value, groupValue);
}

bool KnxConverterInteger32BitSigned::FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue,
                                                  ULOVALUE& value) {
  return IntegerFromKnx<Signed32Format>(m_range, dpt, groupValue, value);
}

KnxConverter* KnxConverterInteger32BitSigned::Clone() const {
  return new KnxConverterInteger32BitSigned(*this);
}

// ---------------------------------------------------------------------------

bool KnxConverterInteger48BitUnsigned::ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value,
                                                  KnxStack::GroupValue& groupValue) {
  return IntegerToKnx<Unsigned48Format>(m_range, dpt, value, groupValue);
}

bool KnxConverterInteger48BitUnsigned::FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue,
                                                    ULOVALUE& value) {
  return Log::TracedFromKnx(dpt, groupValue, __LINE__, [&] {
    const KnxStack::BinaryData& data = groupValue.GetRawData();
    if (groupValue.GetDefinedSize() != Unsigned48Bits) {
      Log::Write(ULO_LOG_ERROR, Log::ConverterFile, "FromKnxValue", __LINE__, [&](std::ostream& out) {
        out << "GroupValue object size is not 48 bit! Size: " << groupValue.GetDefinedSize()
            << ", value: " << data.ToString();
      });
      return false;
    }
    // Every byte of the buffer is folded in; unsigned arithmetic wraps should a
    // malformed buffer be longer than 8 bytes.
    std::uint64_t number = 0;
    const unsigned char* bytes = data.GetData();
    for (unsigned int index = 0; index < data.GetLength(); ++index) {
      number = number * 256U + bytes[index];
    }
    value.SetUInt64(m_range.ScaleFrom(number));
    return true;
  });
}

KnxConverter* KnxConverterInteger48BitUnsigned::Clone() const {
  return new KnxConverterInteger48BitUnsigned(*this);
}

template const ConverterCalls& CallsOf<KnxConverterByte8BitUnsigned>();
template const ConverterCalls& CallsOf<KnxConverterInteger8BitSigned>();
template const ConverterCalls& CallsOf<KnxConverterInteger16BitUnsigned>();
template const ConverterCalls& CallsOf<KnxConverterInteger16BitSigned>();
template const ConverterCalls& CallsOf<KnxConverterInteger24BitUnsigned>();
template const ConverterCalls& CallsOf<KnxConverterInteger32BitUnsigned>();
template const ConverterCalls& CallsOf<KnxConverterInteger32BitSigned>();
template const ConverterCalls& CallsOf<KnxConverterInteger48BitUnsigned>();

}  // namespace Nelmo
