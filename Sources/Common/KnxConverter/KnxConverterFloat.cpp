#include "KnxConverterFloat.h"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "ConverterCallsOf.h"
#include "ConverterLog.h"

namespace Nelmo {

namespace {

// Built from the bit pattern so that the bus sees exactly this NaN whatever
// the compiler's quiet_NaN() would be.
template <typename Float, typename Bits>
Float FromBits(Bits bits) {
  static_assert(sizeof(Float) == sizeof(Bits));
  Float value;
  std::memcpy(&value, &bits, sizeof value);
  return value;
}

double QuietNaN16() {
  return FromBits<double>(std::uint64_t{0x7FF8000000000000});
}
float QuietNaN32() {
  return FromBits<float>(std::uint32_t{0x7FC00000});
}

// The low bits of n that fit the bus field, read back as the field's type;
// done in unsigned arithmetic so that no signed conversion goes out of range.
template <typename Field>
Field ToField(std::int32_t n) {
  using Bits = std::make_unsigned_t<Field>;
  const Bits bits = static_cast<Bits>(static_cast<std::uint32_t>(n));
  if constexpr (std::is_signed_v<Field>) {
    constexpr int modulus = int{std::numeric_limits<Bits>::max()} + 1;
    const int wrapped = bits > std::numeric_limits<Field>::max() ? int{bits} - modulus : int{bits};
    return static_cast<Field>(wrapped);
  } else {
    return bits;
  }
}

// Round to nearest as IEEE does, but without converting a double beyond
// float's range: from the midpoint above the largest float on it rounds to
// infinity.
float ToSingle(double value) {
  constexpr double overflow = 0x1.ffffffp+127;
  if (value >= overflow) {
    return std::numeric_limits<float>::infinity();
  }
  if (value <= -overflow) {
    return -std::numeric_limits<float>::infinity();
  }
  return static_cast<float>(value);
}

// The payload clamped into the range on a copy; a change is noted at level 1.
template <typename Range>
double Fitted(const Range& range, const KNXDPT& dpt, const ULOVALUE& value) {
  double fitted = value.GetDouble();
  if (!range.FitToRange(fitted)) {
    Log::Adjusted(dpt, value.GetType(), value.GetDouble(), fitted, __LINE__);
  }
  return fitted;
}

// The scaled-integer send path of the 8- and 16-bit members.
template <typename Field>
bool SendScaled(const FloatIntegerRange& range, const KNXDPT& dpt, const ULOVALUE& value,
                KnxStack::GroupValue& groupValue, void (KnxStack::GroupValue::*set)(Field)) {
  (groupValue.*set)(ToField<Field>(range.ScaleTo(Fitted(range, dpt, value))));
  return true;
}

template <typename Field>
double ReceiveScaled(const FloatIntegerRange& range, const KnxStack::GroupValue& groupValue,
                     Field (KnxStack::GroupValue::*get)() const) {
  return range.ScaleFrom((groupValue.*get)());
}

// A received NaN means "no value".
void StoreFloat(double received, ULOVALUE& value) {
  value.SetDouble(received);
  if (std::isnan(received)) {
    value.SetType(IVT_NONE);
  }
}

}  // namespace

// ---------------------------------------------------------------------------

KnxConverterFloat8BitUnsigned::KnxConverterFloat8BitUnsigned(const FloatIntegerRange& range) : m_range(range) {}
KnxConverterFloat8BitUnsigned::~KnxConverterFloat8BitUnsigned() = default;

bool KnxConverterFloat8BitUnsigned::ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value,
                                               KnxStack::GroupValue& groupValue) {
  return Log::TracedToKnx(dpt, value, __LINE__, [&] {
    if (value.GetType() != IVT_DOUBLE) {
      return false;
    }
    return SendScaled(m_range, dpt, value, groupValue, &KnxStack::GroupValue::SetAsUnsigned8);
  });
}

bool KnxConverterFloat8BitUnsigned::FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue,
                                                 ULOVALUE& value) {
  return Log::TracedFromKnx(dpt, groupValue, __LINE__, [&] {
    double received = ReceiveScaled(m_range, groupValue, &KnxStack::GroupValue::GetAsUnsigned8);
    m_range.FitToRange(received);
    value.SetDouble(received);
    return true;
  });
}

KnxConverter* KnxConverterFloat8BitUnsigned::Clone() const {
  return new KnxConverterFloat8BitUnsigned(*this);
}

// ---------------------------------------------------------------------------

KnxConverterFloat8BitSigned::KnxConverterFloat8BitSigned(const FloatIntegerRange& range) : m_range(range) {}
KnxConverterFloat8BitSigned::~KnxConverterFloat8BitSigned() = default;

bool KnxConverterFloat8BitSigned::ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value,
                                             KnxStack::GroupValue& groupValue) {
  return Log::TracedToKnx(dpt, value, __LINE__, [&] {
    return SendScaled(m_range, dpt, value, groupValue, &KnxStack::GroupValue::SetAsSigned8);
  });
}

bool KnxConverterFloat8BitSigned::FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue,
                                               ULOVALUE& value) {
  return Log::TracedFromKnx(dpt, groupValue, __LINE__, [&] {
    value.SetDouble(ReceiveScaled(m_range, groupValue, &KnxStack::GroupValue::GetAsSigned8));
    return true;
  });
}

KnxConverter* KnxConverterFloat8BitSigned::Clone() const {
  return new KnxConverterFloat8BitSigned(*this);
}

// ---------------------------------------------------------------------------

KnxConverterFloat16BitSigned::KnxConverterFloat16BitSigned(const FloatIntegerRange& range) : m_range(range) {}
KnxConverterFloat16BitSigned::~KnxConverterFloat16BitSigned() = default;

bool KnxConverterFloat16BitSigned::ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value,
                                              KnxStack::GroupValue& groupValue) {
  return Log::TracedToKnx(dpt, value, __LINE__, [&] {
    return SendScaled(m_range, dpt, value, groupValue, &KnxStack::GroupValue::SetAsSigned16);
  });
}

bool KnxConverterFloat16BitSigned::FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue,
                                                ULOVALUE& value) {
  return Log::TracedFromKnx(dpt, groupValue, __LINE__, [&] {
    value.SetDouble(ReceiveScaled(m_range, groupValue, &KnxStack::GroupValue::GetAsSigned16));
    return true;
  });
}

KnxConverter* KnxConverterFloat16BitSigned::Clone() const {
  return new KnxConverterFloat16BitSigned(*this);
}

// ---------------------------------------------------------------------------

KnxConverterFloat16BitFloat::KnxConverterFloat16BitFloat(const FloatRange& range) : m_range(range) {}
KnxConverterFloat16BitFloat::~KnxConverterFloat16BitFloat() = default;

bool KnxConverterFloat16BitFloat::ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value,
                                             KnxStack::GroupValue& groupValue) {
  return Log::TracedToKnx(dpt, value, __LINE__, [&] {
    if (value.GetType() == IVT_NONE) {
      groupValue.SetAsFloat16(QuietNaN16());
      return true;
    }
    groupValue.SetAsFloat16(Fitted(m_range, dpt, value));
    return true;
  });
}

bool KnxConverterFloat16BitFloat::FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue,
                                               ULOVALUE& value) {
  return Log::TracedFromKnx(dpt, groupValue, __LINE__, [&] {
    StoreFloat(m_range.ScaleFrom(groupValue.GetAsFloat16()), value);
    return true;
  });
}

KnxConverter* KnxConverterFloat16BitFloat::Clone() const {
  return new KnxConverterFloat16BitFloat(*this);
}

// ---------------------------------------------------------------------------

KnxConverterFloat32BitFloat::KnxConverterFloat32BitFloat(const FloatRange& range) : m_range(range) {}
KnxConverterFloat32BitFloat::~KnxConverterFloat32BitFloat() = default;

bool KnxConverterFloat32BitFloat::ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value,
                                             KnxStack::GroupValue& groupValue) {
  return Log::TracedToKnx(dpt, value, __LINE__, [&] {
    if (value.GetType() == IVT_NONE) {
      groupValue.SetAsFloat32(QuietNaN32());
      return true;
    }
    groupValue.SetAsFloat32(ToSingle(Fitted(m_range, dpt, value)));
    return true;
  });
}

bool KnxConverterFloat32BitFloat::FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue,
                                               ULOVALUE& value) {
  return Log::TracedFromKnx(dpt, groupValue, __LINE__, [&] {
    StoreFloat(groupValue.GetAsFloat32(), value);
    return true;
  });
}

KnxConverter* KnxConverterFloat32BitFloat::Clone() const {
  return new KnxConverterFloat32BitFloat(*this);
}

template const ConverterCalls& CallsOf<KnxConverterFloat8BitUnsigned>();
template const ConverterCalls& CallsOf<KnxConverterFloat8BitSigned>();
template const ConverterCalls& CallsOf<KnxConverterFloat16BitSigned>();
template const ConverterCalls& CallsOf<KnxConverterFloat16BitFloat>();
template const ConverterCalls& CallsOf<KnxConverterFloat32BitFloat>();

}  // namespace Nelmo
