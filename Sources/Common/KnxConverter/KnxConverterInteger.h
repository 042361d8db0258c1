#pragma once

#include "IntegerRange.h"
#include "KnxConverter.h"
#include "LongIntegerRange.h"
#include "NelmoExport.h"

namespace Nelmo {

// The integer converters clamp the value into the range's internal bounds
// (logging the adjustment), scale it and truncate it to the bus field. They
// do not check the DPT's main number nor, except for the byte converter, the
// value type: the facade has already matched both.

// KNX unsigned 8-bit field (DPT 5.x, 20.x, ...): the byte payload as it is.
// Both directions refuse any value type but IVT_BYTE.
class NELMO_EXPORT KnxConverterByte8BitUnsigned : public KnxConverter {
 public:
  KnxConverterByte8BitUnsigned() = default;

  bool ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) override;
  bool FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) override;
  KnxConverter* Clone() const override;
};

// KNX signed 8-bit field (DPT 6.x).
class NELMO_EXPORT KnxConverterInteger8BitSigned : public KnxConverter {
 public:
  explicit KnxConverterInteger8BitSigned(const IntegerRange& range) : m_range(range) {}

  bool ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) override;
  bool FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) override;
  KnxConverter* Clone() const override;

  const IntegerRange& GetRange() const { return m_range; }

 private:
  IntegerRange m_range;
};

// KNX unsigned 16-bit field (DPT 7.x, 22.x); the value is read through the
// signed 32-bit payload.
class NELMO_EXPORT KnxConverterInteger16BitUnsigned : public KnxConverter {
 public:
  explicit KnxConverterInteger16BitUnsigned(const IntegerRange& range) : m_range(range) {}

  bool ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) override;
  bool FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) override;
  KnxConverter* Clone() const override;

  const IntegerRange& GetRange() const { return m_range; }

 private:
  IntegerRange m_range;
};

// KNX signed 16-bit field (DPT 8.x).
class NELMO_EXPORT KnxConverterInteger16BitSigned : public KnxConverter {
 public:
  explicit KnxConverterInteger16BitSigned(const IntegerRange& range) : m_range(range) {}

  bool ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) override;
  bool FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) override;
  KnxConverter* Clone() const override;

  const IntegerRange& GetRange() const { return m_range; }

 private:
  IntegerRange m_range;
};

// KNX unsigned 24-bit field (DPT 232.x, 250.x).
class NELMO_EXPORT KnxConverterInteger24BitUnsigned : public KnxConverter {
 public:
  explicit KnxConverterInteger24BitUnsigned(const LongIntegerRange& range) : m_range(range) {}

  bool ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) override;
  bool FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) override;
  KnxConverter* Clone() const override;

  const LongIntegerRange& GetRange() const { return m_range; }

 private:
  LongIntegerRange m_range;
};

// KNX unsigned 32-bit field (DPT 12.x, 15.x, 27.x).
class NELMO_EXPORT KnxConverterInteger32BitUnsigned : public KnxConverter {
 public:
  explicit KnxConverterInteger32BitUnsigned(const LongIntegerRange& range) : m_range(range) {}

  bool ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) override;
  bool FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) override;
  KnxConverter* Clone() const override;

  const LongIntegerRange& GetRange() const { return m_range; }

 private:
  LongIntegerRange m_range;
};

// KNX signed 32-bit field (DPT 13.x).
class NELMO_EXPORT KnxConverterInteger32BitSigned : public KnxConverter {
 public:
  explicit KnxConverterInteger32BitSigned(const IntegerRange& range) : m_range(range) {}

  bool ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) override;
  bool FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) override;
  KnxConverter* Clone() const override;

  const IntegerRange& GetRange() const { return m_range; }

 private:
  IntegerRange m_range;
};

// KNX unsigned 48-bit field (DPT 242.x), six bytes, most significant first.
class NELMO_EXPORT KnxConverterInteger48BitUnsigned : public KnxConverter {
 public:
  explicit KnxConverterInteger48BitUnsigned(const UnsignedLongIntegerRange& range) : m_range(range) {}

  bool ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) override;
  bool FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) override;
  KnxConverter* Clone() const override;

  const UnsignedLongIntegerRange& GetRange() const { return m_range; }

 private:
  UnsignedLongIntegerRange m_range;
};

}  // namespace Nelmo
