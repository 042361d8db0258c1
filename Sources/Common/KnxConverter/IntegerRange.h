#pragma once

#include <cstdint>
#include <string>

#include "NelmoExport.h"

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
  std::int32_t ScaleTo(std::int32_t value) const;
  std::int32_t ScaleFrom(std::int32_t value) const;
  void CalculateScaleFactor();
  std::string ToString() const;
};

}  // namespace Nelmo
