#include "KnxConverterScene.h"

#include <cstdint>

#include "ConverterCallsOf.h"
#include "ConverterLog.h"

namespace Nelmo {

namespace {

// Scene control: bit 7 asks to learn (store) the scene instead of
// activating it.
constexpr std::uint32_t LearnBit = 0x80;
constexpr std::uint32_t SceneBits = 0x7F;

// Internal scene n is n - 1 on the bus. Unsigned arithmetic, so that a range
// reaching the 32-bit minimum cannot overflow; the byte keeps the low bits.
unsigned char SceneByte(std::int32_t scene) {
  return static_cast<unsigned char>(static_cast<std::uint32_t>(scene) - 1U);
}

}  // namespace

// ---------------------------------------------------------------------------

bool KnxConverterSceneNumber::ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) {
  return Log::TracedToKnx(dpt, value, __LINE__, [&] {
    if (value.GetType() != IVT_INT32) {
      return false;
    }
    std::int32_t scene = value.GetInt32();
    m_range.FitToRange(scene);
    groupValue.SetAsUnsigned8(SceneByte(scene));
    return true;
  });
}

bool KnxConverterSceneNumber::FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) {
  return Log::TracedFromKnx(dpt, groupValue, __LINE__, [&] {
    std::int32_t scene = groupValue.GetAsUnsigned8() + 1;
    m_range.FitToRange(scene);
    value.SetInt32(scene);
    return true;
  });
}

KnxConverter* KnxConverterSceneNumber::Clone() const {
  return new KnxConverterSceneNumber(*this);
}

// ---------------------------------------------------------------------------

bool KnxConverterSceneControl::ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) {
  return Log::TracedToKnx(dpt, value, __LINE__, [&] {
    if (value.GetType() != IVT_INT32) {
      return false;
    }
    std::int32_t scene = value.GetInt32();
    m_range.FitToRange(scene);
    unsigned char code = 0;  // 0 sends the same byte as activating scene 1
    if (scene > 0) {
      code = SceneByte(scene);
    } else if (scene < 0) {
      // Learning scene -n: the complement of n is -n - 1.
      code = static_cast<unsigned char>(~static_cast<std::uint32_t>(scene) | LearnBit);
    }
    groupValue.SetAsUnsigned8(code);
    return true;
  });
}

bool KnxConverterSceneControl::FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue,
                                            ULOVALUE& value) {
  return Log::TracedFromKnx(dpt, groupValue, __LINE__, [&] {
    const std::uint32_t code = groupValue.GetAsUnsigned8();
    // The reserved bit 6 is not masked: the clamp below takes care of it.
    std::int32_t scene =
        (code & LearnBit) != 0 ? -static_cast<std::int32_t>(code & SceneBits) - 1 : static_cast<std::int32_t>(code) + 1;
    m_range.FitToRange(scene);
    value.SetInt32(scene);
    return true;
  });
}

KnxConverter* KnxConverterSceneControl::Clone() const {
  return new KnxConverterSceneControl(*this);
}

template const ConverterCalls& CallsOf<KnxConverterSceneNumber>();
template const ConverterCalls& CallsOf<KnxConverterSceneControl>();

}  // namespace Nelmo
