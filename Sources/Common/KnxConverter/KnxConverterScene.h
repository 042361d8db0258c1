#pragma once

#include "IntegerRange.h"
#include "KnxConverter.h"
#include "NelmoExport.h"

namespace Nelmo {

// DPT 17.x: scenes 1 to 64 inside, 0 to 63 on the bus. Out-of-range numbers
// are clamped silently in both directions.
class NELMO_EXPORT KnxConverterSceneNumber : public KnxConverter {
 public:
  explicit KnxConverterSceneNumber(const IntegerRange& range) : m_range(range) {}

  bool ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) override;
  bool FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) override;
  KnxConverter* Clone() const override;

  const IntegerRange& GetRange() const { return m_range; }

 private:
  IntegerRange m_range;
};

// DPT 18.x: 1 to 64 activate a scene, -1 to -64 learn it; on the bus bit 7
// is the learn bit and bits 0-5 the scene minus 1.
class NELMO_EXPORT KnxConverterSceneControl : public KnxConverter {
 public:
  explicit KnxConverterSceneControl(const IntegerRange& range) : m_range(range) {}

  bool ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) override;
  bool FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) override;
  KnxConverter* Clone() const override;

  const IntegerRange& GetRange() const { return m_range; }

 private:
  IntegerRange m_range;
};

}  // namespace Nelmo
