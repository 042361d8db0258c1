#pragma once

#include <cstdint>
#include <string>
#include <type_traits>

#include "NelmoExport.h"
#include "RangeClamp.h"

namespace Nelmo {

// The 64-bit signed counterpart of IntegerRange, for the unsigned 24- and
// 32-bit KNX fields.
class NELMO_EXPORT LongIntegerRange {
 public:
  std::int64_t internalMinimum = 0;
  std::int64_t internalMaximum = 0;
  std::int64_t externalMinimum = 0;
  std::int64_t externalMaximum = 0;
  double scaleFactor = 1.0;

  bool IsInRange(std::int64_t value) const;
  bool FitToRange(std::int64_t& value) const;
  // The same for a value held in a plain long long where that is not
  // std::int64_t.
  template <typename LongLong, std::enable_if_t<std::is_same_v<LongLong, long long>, int> = 0>
  bool FitToRange(LongLong& value) const {
    return RangeClamp::FitInto<LongLong>(value, internalMinimum, internalMaximum);
  }
  std::int64_t ScaleTo(std::int64_t value) const;
  std::int64_t ScaleFrom(std::int64_t value) const;
  void CalculateScaleFactor();
  std::string ToString() const;
};

// The 64-bit unsigned counterpart, for the 48-bit KNX field. ScaleTo and
// ScaleFrom clamp their input, so results never leave the target range.
class NELMO_EXPORT UnsignedLongIntegerRange {
 public:
  std::uint64_t internalMinimum = 0;
  std::uint64_t internalMaximum = 0;
  std::uint64_t externalMinimum = 0;
  std::uint64_t externalMaximum = 0;
  double scaleFactor = 1.0;

  bool IsInRange(std::uint64_t value) const;
  bool FitToRange(std::uint64_t& value) const;
  // The same for a value held in a plain unsigned long long where that is
  // not std::uint64_t.
  template <typename LongLong, std::enable_if_t<std::is_same_v<LongLong, unsigned long long>, int> = 0>
  bool FitToRange(LongLong& value) const {
    return RangeClamp::FitInto<LongLong>(value, internalMinimum, internalMaximum);
  }
  std::uint64_t ScaleTo(std::uint64_t value) const;
  std::uint64_t ScaleFrom(std::uint64_t value) const;
  void CalculateScaleFactor();
  std::string ToString() const;
};

}  // namespace Nelmo
