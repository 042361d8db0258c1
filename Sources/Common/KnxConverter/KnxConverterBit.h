#pragma once

#include "FloatRange.h"
#include "KnxConverter.h"
#include "NelmoExport.h"

namespace Nelmo {

// DPT 1.x: one switching bit.
class NELMO_EXPORT KnxConverter1Bit : public KnxConverter {
 public:
  KnxConverter1Bit() = default;

  bool ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) override;
  bool FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) override;
  KnxConverter* Clone() const override;
};

// DPT 2.x: a value bit (bit 0) with a control bit (bit 1).
class NELMO_EXPORT KnxConverter2Bit : public KnxConverter {
 public:
  KnxConverter2Bit() = default;

  bool ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) override;
  bool FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) override;
  KnxConverter* Clone() const override;
};

// DPT 3.x: a signed relative percentage as a direction bit and a 3-bit step
// code. The range only clamps; the step code comes from the platform's
// relative scaling.
class NELMO_EXPORT KnxConverter4Bit : public KnxConverter {
 public:
  explicit KnxConverter4Bit(const FloatIntegerRange& range) : m_range(range) {}

  bool ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) override;
  bool FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) override;
  KnxConverter* Clone() const override;

  const FloatIntegerRange& GetRange() const { return m_range; }

 private:
  FloatIntegerRange m_range;
};

}  // namespace Nelmo
