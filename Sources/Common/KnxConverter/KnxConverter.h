#pragma once

#include "KnxStack.h"
#include "NelmoExport.h"
#include "UloPlatform.h"

namespace Nelmo {

// One converter per KNX bit format. The DPT value map holds a clone of each
// configured converter; converters are immutable after construction, so one
// object may convert in several threads at once.
class NELMO_EXPORT KnxConverter {
 public:
  virtual ~KnxConverter();
  // Encodes value as a group value of the given DPT; false when refused.
  virtual bool ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) = 0;
  // Decodes the group value into value's payload; false when refused.
  virtual bool FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) = 0;
  // A new copy of the same class; the caller owns it.
  virtual KnxConverter* Clone() const = 0;

 protected:
  KnxConverter() = default;
  KnxConverter(const KnxConverter&) = default;
  KnxConverter& operator=(const KnxConverter&) = default;
};

}  // namespace Nelmo
