#include "KnxConverterBit.h"

#include <cstdint>

#include "ConverterCallsOf.h"
#include "ConverterLog.h"

namespace Nelmo {

namespace {

constexpr std::uint16_t SwitchMainNumber = 1;
constexpr std::uint16_t ControlledMainNumber = 2;
constexpr std::uint16_t StepMainNumber = 3;

// DPT 2.x: the control bit is always sent set, the value bit carries the
// boolean.
constexpr unsigned char ControlBit = 0x02;
constexpr unsigned char ValueBit = 0x01;

}  // namespace

// ---------------------------------------------------------------------------

bool KnxConverter1Bit::ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) {
  return Log::TracedToKnx(dpt, value, __LINE__, [&dpt, &value, &groupValue] {
    if (dpt.mainNumber != SwitchMainNumber || value.GetType() != IVT_BOOL) {
      return false;
    }
    groupValue.SetAsBoolean(value.GetBool());
    return true;
  });
}

bool KnxConverter1Bit::FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) {
  if (dpt.mainNumber != SwitchMainNumber) {
    return false;
  }
  value.SetBool(groupValue.GetAsBoolean());
  return true;
}

KnxConverter* KnxConverter1Bit::Clone() const {
  return new KnxConverter1Bit(*this);
}

// ---------------------------------------------------------------------------

bool KnxConverter2Bit::ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) {
  return Log::TracedToKnx(dpt, value, __LINE__, [&] {
    if (dpt.mainNumber != ControlledMainNumber || value.GetType() != IVT_BOOL) {
      return false;
    }
    groupValue.SetAsUnsigned2(value.GetBool() ? ControlBit | ValueBit : ControlBit);
    return true;
  });
}

bool KnxConverter2Bit::FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) {
  if (dpt.mainNumber != ControlledMainNumber) {
    return false;
  }
  // Telegrams with and without the control bit yield the value bit alone.
  value.SetBool((groupValue.GetAsUnsigned2() & ValueBit) != 0);
  return true;
}

KnxConverter* KnxConverter2Bit::Clone() const {
  return new KnxConverter2Bit(*this);
}

// ---------------------------------------------------------------------------

bool KnxConverter4Bit::ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) {
  return Log::TracedToKnx(dpt, value, __LINE__, [&] {
    if (dpt.mainNumber != StepMainNumber || value.GetType() != IVT_DOUBLE) {
      return false;
    }
    const double original = value.GetDouble();
    double fitted = original;
    if (!m_range.FitToRange(fitted)) {
      Log::Adjusted(dpt, value.GetType(), original, fitted, __LINE__);
    }
    groupValue.SetAsUnsigned4(GetRelScalingAsByte(fitted));
    return true;
  });
}

bool KnxConverter4Bit::FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) {
  return Log::TracedFromKnx(dpt, groupValue, __LINE__, [&] {
    if (dpt.mainNumber != StepMainNumber) {
      return false;
    }
    value.SetDouble(GetRelScalingFromByte(groupValue.GetAsUnsigned4()));
    return true;
  });
}

KnxConverter* KnxConverter4Bit::Clone() const {
  return new KnxConverter4Bit(*this);
}

template const ConverterCalls& CallsOf<KnxConverter1Bit>();
template const ConverterCalls& CallsOf<KnxConverter2Bit>();
template const ConverterCalls& CallsOf<KnxConverter4Bit>();

}  // namespace Nelmo
