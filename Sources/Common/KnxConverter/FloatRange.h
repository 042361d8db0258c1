#pragma once

#include <cstdint>
#include <string>

#include "NelmoExport.h"
#include "RangeClamp.h"

namespace Nelmo {

// A double internal range mapped onto a 32-bit integer external range: a
// scaled quantity carried as an integer (a percentage 0..100 as 0..255).
class NELMO_EXPORT FloatIntegerRange {
 public:
  // The 2-octet float's value range onto the whole 32-bit range.
  FloatIntegerRange();
  FloatIntegerRange(double internalMin, double internalMax, std::int32_t externalMin, std::int32_t externalMax);

  double internalMinimum;
  double internalMaximum;
  std::int32_t externalMinimum;
  std::int32_t externalMaximum;
  double scaleFactor;

  bool IsInRange(const double& value) const;
  bool FitToRange(double& value) const;
  std::int32_t ScaleTo(const double& value) const;
  double ScaleFrom(std::int32_t value) const;
  void CalculateScaleFactor();
  std::string ToString() const;
};

// A double range mapped onto a double range, for KNX floating-point fields;
// mainly used to clamp. Its scale factor is never negative.
class NELMO_EXPORT FloatRange {
 public:
  double internalMinimum = 0.0;
  double internalMaximum = 0.0;
  double externalMinimum = 0.0;
  double externalMaximum = 0.0;
  double scaleFactor = 1.0;

  bool IsInRange(const double& value) const;
  // Inline, as the floating-point converters call these on every conversion.
  bool FitToRange(double& value) const { return RangeClamp::FitInto(value, internalMinimum, internalMaximum); }
  double ScaleTo(double value) const;
  double ScaleFrom(double value) const { return (value - externalMinimum) / scaleFactor + internalMinimum; }
  void CalculateScaleFactor();
  std::string ToString() const;
};

}  // namespace Nelmo
