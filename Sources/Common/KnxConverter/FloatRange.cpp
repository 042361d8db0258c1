#include "FloatRange.h"

#include <algorithm>
#include <limits>

#include "RangeArithmetic.h"
#include "RangeText.h"

namespace Nelmo {

using namespace RangeArithmetic;

// The value range of the KNX 2-octet float onto the whole 32-bit range.
FloatIntegerRange::FloatIntegerRange()
    : FloatIntegerRange(-671088.64, 670760.96, std::numeric_limits<std::int32_t>::min(),
                        std::numeric_limits<std::int32_t>::max()) {}

FloatIntegerRange::FloatIntegerRange(double internalMin, double internalMax, std::int32_t externalMin,
                                     std::int32_t externalMax)
    : internalMinimum(internalMin),
      internalMaximum(internalMax),
      externalMinimum(externalMin),
      externalMaximum(externalMax),
      scaleFactor(1.0) {
  CalculateScaleFactor();
}

bool FloatIntegerRange::IsInRange(const double& value) const {
  return IsWithin(value, internalMinimum, internalMaximum);
}

bool FloatIntegerRange::FitToRange(double& value) const {
  return FitInto(value, internalMinimum, internalMaximum);
}

std::int32_t FloatIntegerRange::ScaleTo(const double& value) const {
  return ScaleToRounded<std::int32_t>(value, internalMinimum, scaleFactor, externalMinimum);
}

// The difference to the external minimum is taken in 32 bits and wraps
// modulo 2^32 when it does not fit; that is kept on purpose. No rounding.
double FloatIntegerRange::ScaleFrom(std::int32_t value) const {
  const std::int32_t offset =
      AsSigned32(static_cast<std::uint32_t>(value) - static_cast<std::uint32_t>(externalMinimum));
  return static_cast<double>(offset) / scaleFactor + internalMinimum;
}

// A reversed range gives a negative factor. The combined message is reached
// when the internal span overflows to infinity.
void FloatIntegerRange::CalculateScaleFactor() {
  static constexpr RangeText::RangeKinds kinds{"double", "integer", "] or because invalid integer range ["};
  RangeText::StoreScaleFactor(scaleFactor, internalMaximum - internalMinimum, Span(externalMinimum, externalMaximum),
                              kinds, internalMinimum, internalMaximum, externalMinimum, externalMaximum);
}

std::string FloatIntegerRange::ToString() const {
  return RangeText::Describe("FloatIntegerRange", internalMinimum, internalMaximum, externalMinimum, externalMaximum);
}

bool FloatRange::IsInRange(const double& value) const {
  return IsWithin(value, internalMinimum, internalMaximum);
}

double FloatRange::ScaleTo(double value) const {
  return (value - internalMinimum) * scaleFactor + externalMinimum;
}

namespace {

double AbsoluteSpan(double first, double second) {
  return std::max(first, second) - std::min(first, second);
}

}  // namespace

// Unlike the other ranges the spans are absolute, so a reversed range still
// gives a positive factor. The combined message is reached when the quotient
// underflows.
void FloatRange::CalculateScaleFactor() {
  static constexpr RangeText::RangeKinds kinds{"double", "external", "] or because invalid external range ["};
  RangeText::StoreScaleFactor(scaleFactor, AbsoluteSpan(internalMinimum, internalMaximum),
                              AbsoluteSpan(externalMinimum, externalMaximum), kinds, internalMinimum, internalMaximum,
                              externalMinimum, externalMaximum);
}

std::string FloatRange::ToString() const {
  return RangeText::Describe("FloatRange", internalMinimum, internalMaximum, externalMinimum, externalMaximum);
}

}  // namespace Nelmo
