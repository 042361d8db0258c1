#pragma once

#include "IntegerRange.h"
#include "KnxConverter.h"

namespace Nelmo {

// One character (DPT 4.x). The range is the character set: 0..127 for ASCII,
// 0..255 for ISO 8859-1; a character outside it is refused.
class NELMO_EXPORT KnxConverter8BitString : public KnxConverter {
 public:
  explicit KnxConverter8BitString(const IntegerRange& range);
  ~KnxConverter8BitString() override;

  bool ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) override;
  bool FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) override;
  KnxConverter* Clone() const override;

  const IntegerRange& GetRange() const { return m_range; }

 private:
  IntegerRange m_range;
};

// A text of up to 14 characters (DPT 16.x). The range is the character set;
// characters outside it are dropped, never refused.
class NELMO_EXPORT KnxConverter14ByteString : public KnxConverter {
 public:
  explicit KnxConverter14ByteString(const IntegerRange& range);
  ~KnxConverter14ByteString() override;

  bool ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) override;
  bool FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) override;
  KnxConverter* Clone() const override;

  const IntegerRange& GetRange() const { return m_range; }

 private:
  IntegerRange m_range;
};

}  // namespace Nelmo
