#pragma once

#include "KnxConverter.h"
#include "KnxStack.h"
#include "NelmoExport.h"
#include "UloPlatform.h"

namespace Nelmo {

// The date and time converters write no trace and leave the DPT and value
// type checks to the facade. They catch KnxStack::GroupValueException
// themselves: a field that does not fit its bits is reported as a failed
// conversion of this converter, not as a generic stack error.

// DPT 11.x: day, month and a two-digit year, so only 1990 to 2089 can be sent.
class NELMO_EXPORT KnxConverterDate : public KnxConverter {
 public:
  KnxConverterDate() = default;
  bool ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) override;
  bool FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) override;
  KnxConverter* Clone() const override;
};

// DPT 10.000: time of day; the weekday is never sent nor read.
class NELMO_EXPORT KnxConverterTime : public KnxConverter {
 public:
  KnxConverterTime() = default;
  bool ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) override;
  bool FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) override;
  KnxConverter* Clone() const override;
};

// DPT 10.001: time of day with the weekday, both ways.
class NELMO_EXPORT KnxConverterTimeOfDay : public KnxConverter {
 public:
  KnxConverterTimeOfDay() = default;
  bool ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) override;
  bool FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) override;
  KnxConverter* Clone() const override;
};

// DPT 19.x: date, time, weekday and the validity and status flags.
class NELMO_EXPORT KnxConverterDateTime : public KnxConverter {
 public:
  KnxConverterDateTime() = default;
  bool ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) override;
  bool FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) override;
  KnxConverter* Clone() const override;
};

}  // namespace Nelmo
