#pragma once

#include "KnxConverter.h"
#include "NelmoExport.h"

namespace Nelmo {

// Copies a value's raw bytes for datapoint types without a format of their
// own; also the converter of the map's empty entry.
class NELMO_EXPORT KnxConverterDefault : public KnxConverter {
 public:
  KnxConverterDefault() = default;

  bool ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) override;
  // Sets the whole value, type included; on failure the empty value.
  bool FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) override;
  KnxConverter* Clone() const override;
};

}  // namespace Nelmo
