#pragma once

#include <cstdint>
#include <string>
#include <type_traits>

#include "NelmoExport.h"
#include "RangeClamp.h"

namespace Nelmo {

// Two closed intervals of 32-bit signed integers and the linear map between
// them: internal is the platform side, external the KNX side. The owner fills
// the bounds, sets scaleFactor to 1.0 and calls CalculateScaleFactor() once.
class NELMO_EXPORT IntegerRange {
 public:
  std::int32_t internalMinimum = 0;
  std::int32_t internalMaximum = 0;
  std::int32_t externalMinimum = 0;
  std::int32_t externalMaximum = 0;
  double scaleFactor = 1.0;

  bool IsInRange(std::int32_t value) const;
  // True when value was inside and is untouched; false when moved to a bound.
  bool FitToRange(std::int32_t& value) const;
  // The same for a value held in a plain long, which is not std::int32_t
  // (and may be wider): compared in the caller's type.
  template <typename Long, std::enable_if_t<std::is_same_v<Long, long>, int> = 0>
  bool FitToRange(Long& value) const {
    return RangeClamp::FitInto<Long>(value, internalMinimum, internalMaximum);
  }
  std::int32_t ScaleTo(std::int32_t value) const;
  std::int32_t ScaleFrom(std::int32_t value) const;
  void CalculateScaleFactor();
  std::string ToString() const;
};

}  // namespace Nelmo
