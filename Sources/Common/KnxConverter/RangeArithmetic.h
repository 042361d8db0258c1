#pragma once

// Arithmetic shared by the range classes. Internal to the library.

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "RangeClamp.h"

namespace Nelmo::RangeArithmetic {

// Half away from zero, deliberately not half to even: 2.5 -> 3, -2.5 -> -3.
inline double RoundHalfAwayFromZero(double x) {
  if (x > 0.0) {
    return x + 0.5;
  }
  if (x < 0.0) {
    return x - 0.5;
  }
  return x;
}

// Truncates toward zero into Int. A double outside Int's range would be
// undefined behaviour to convert, so it saturates at the nearer bound
// instead (infinities included); NaN gives 0.
template <typename Int>
Int TruncateSaturated(double x) {
  static_assert(std::is_integral<Int>::value, "integer target");
  constexpr Int lowest = std::numeric_limits<Int>::min();
  constexpr Int highest = std::numeric_limits<Int>::max();
  // 2^digits, the first value above highest; exact in a double. Halved
  // first, so that the integer arithmetic does not overflow.
  constexpr Int halfLimit = highest / 2 + 1;
  constexpr double limit = static_cast<double>(halfLimit) * 2.0;
  if (std::isnan(x)) {
    return 0;
  }
  if (x <= static_cast<double>(lowest)) {
    return lowest;
  }
  if (x >= limit) {
    return highest;
  }
  return static_cast<Int>(x);
}

// The rounding rule of every integer-valued ScaleTo/ScaleFrom.
template <typename Int>
Int RoundToInteger(double x) {
  return TruncateSaturated<Int>(RoundHalfAwayFromZero(x));
}

// Internal to external: (value - internal minimum) * factor + external
// minimum. The operands are doubles, so no difference can overflow.
template <typename Int>
Int ScaleToRounded(double value, double internalMinimum, double factor, double externalMinimum) {
  return RoundToInteger<Int>((value - internalMinimum) * factor + externalMinimum);
}

// External to internal: internal minimum + (value - external minimum) / factor.
template <typename Int>
Int ScaleFromRounded(double value, double externalMinimum, double factor, double internalMinimum) {
  return RoundToInteger<Int>(internalMinimum + (value - externalMinimum) / factor);
}

// factor == 1.0, read as the one bit pattern that equals 1.0: an integer
// comparison, without the floating-point compare's unordered case.
inline bool IsOne(double factor) {
  constexpr std::uint64_t oneBits = 0x3FF0000000000000u;
  std::uint64_t bits = 0;
  std::memcpy(&bits, &factor, sizeof bits);
  return bits == oneBits;
}

// Whether scaling value between these minimums by factor gives value back:
// a factor of 1 between equal minimums, with numbers small enough that the
// double arithmetic above is exact. Callers skip that arithmetic then; the
// result is the same number.
template <typename Int>
bool ScalesToItself(Int value, Int fromMinimum, double factor, Int toMinimum) {
  if (fromMinimum != toMinimum || !IsOne(factor)) {
    return false;
  }
  if constexpr (sizeof(Int) <= sizeof(std::int32_t)) {
    return true;
  } else {
    constexpr Int exactBelow = Int{1} << 52;
    const auto inside = [](Int number) {
      if constexpr (std::is_signed_v<Int>) {
        return number < exactBelow && number > -exactBelow;
      } else {
        return number < exactBelow;
      }
    };
    return inside(value) && inside(fromMinimum);
  }
}

// max - min as a double, exact in 64 bits: computed on the unsigned
// difference, so no span of two 64-bit bounds can overflow.
template <typename Int>
double Span(Int minimum, Int maximum) {
  using Unsigned = std::make_unsigned_t<Int>;
  if (maximum >= minimum) {
    return static_cast<double>(static_cast<Unsigned>(static_cast<Unsigned>(maximum) - static_cast<Unsigned>(minimum)));
  }
  return -static_cast<double>(static_cast<Unsigned>(static_cast<Unsigned>(minimum) - static_cast<Unsigned>(maximum)));
}

// Reads 32 bits as two's complement without relying on the
// implementation-defined unsigned-to-signed conversion.
inline std::int32_t AsSigned32(std::uint32_t bits) {
  constexpr std::uint32_t signBit = 0x80000000u;
  if (bits < signBit) {
    return static_cast<std::int32_t>(bits);
  }
  return static_cast<std::int32_t>(bits - signBit) + std::numeric_limits<std::int32_t>::min();
}

using RangeClamp::FitInto;

template <typename T>
bool IsWithin(const T& value, const T& minimum, const T& maximum) {
  return value >= minimum && value <= maximum;
}

}  // namespace Nelmo::RangeArithmetic
