#pragma once

#include "FloatRange.h"
#include "KnxConverter.h"

namespace Nelmo {

// A double carried as an unsigned byte (percentages, angles). The only member
// of the family that insists on IVT_DOUBLE and that clamps on receive.
class NELMO_EXPORT KnxConverterFloat8BitUnsigned : public KnxConverter {
 public:
  explicit KnxConverterFloat8BitUnsigned(const FloatIntegerRange& range);
  ~KnxConverterFloat8BitUnsigned() override;

  bool ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) override;
  bool FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) override;
  KnxConverter* Clone() const override;

  const FloatIntegerRange& GetRange() const { return m_range; }

 private:
  FloatIntegerRange m_range;
};

// A double carried as a signed byte.
class NELMO_EXPORT KnxConverterFloat8BitSigned : public KnxConverter {
 public:
  explicit KnxConverterFloat8BitSigned(const FloatIntegerRange& range);
  ~KnxConverterFloat8BitSigned() override;

  bool ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) override;
  bool FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) override;
  KnxConverter* Clone() const override;

  const FloatIntegerRange& GetRange() const { return m_range; }

 private:
  FloatIntegerRange m_range;
};

// A double with a fixed number of decimals carried as a signed 16-bit number.
class NELMO_EXPORT KnxConverterFloat16BitSigned : public KnxConverter {
 public:
  explicit KnxConverterFloat16BitSigned(const FloatIntegerRange& range);
  ~KnxConverterFloat16BitSigned() override;

  bool ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) override;
  bool FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) override;
  KnxConverter* Clone() const override;

  const FloatIntegerRange& GetRange() const { return m_range; }

 private:
  FloatIntegerRange m_range;
};

// The KNX 2-octet float. IVT_NONE travels as NaN in both directions.
class NELMO_EXPORT KnxConverterFloat16BitFloat : public KnxConverter {
 public:
  explicit KnxConverterFloat16BitFloat(const FloatRange& range);
  ~KnxConverterFloat16BitFloat() override;

  bool ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) override;
  bool FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) override;
  KnxConverter* Clone() const override;

  const FloatRange& GetRange() const { return m_range; }

 private:
  FloatRange m_range;
};

// The 4-octet IEEE single-precision float. IVT_NONE travels as NaN in both
// directions; the range only clamps on send.
class NELMO_EXPORT KnxConverterFloat32BitFloat : public KnxConverter {
 public:
  explicit KnxConverterFloat32BitFloat(const FloatRange& range);
  ~KnxConverterFloat32BitFloat() override;

  bool ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) override;
  bool FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) override;
  KnxConverter* Clone() const override;

  const FloatRange& GetRange() const { return m_range; }

 private:
  FloatRange m_range;
};

}  // namespace Nelmo
