#include "LongIntegerRange.h"

#include <algorithm>

#include "RangeArithmetic.h"
#include "RangeText.h"

namespace Nelmo {

using namespace RangeArithmetic;

bool LongIntegerRange::IsInRange(std::int64_t value) const {
  return IsWithin(value, internalMinimum, internalMaximum);
}

bool LongIntegerRange::FitToRange(std::int64_t& value) const {
  return FitInto(value, internalMinimum, internalMaximum);
}

std::int64_t LongIntegerRange::ScaleTo(std::int64_t value) const {
  if (ScalesToItself(value, internalMinimum, scaleFactor, externalMinimum)) {
    return value;
  }
  return ScaleToRounded<std::int64_t>(static_cast<double>(value), static_cast<double>(internalMinimum), scaleFactor,
                                      static_cast<double>(externalMinimum));
}

std::int64_t LongIntegerRange::ScaleFrom(std::int64_t value) const {
  if (ScalesToItself(value, externalMinimum, scaleFactor, internalMinimum)) {
    return value;
  }
  return ScaleFromRounded<std::int64_t>(static_cast<double>(value), static_cast<double>(externalMinimum), scaleFactor,
                                        static_cast<double>(internalMinimum));
}

namespace {

// This range has always written a bound into its messages as the bound's low
// 32 bits read as a signed number (4294967295 is written -1); kept so.
std::int32_t Low32(std::int64_t bound) {
  return AsSigned32(static_cast<std::uint32_t>(bound));
}

}  // namespace

// An empty range is invalid; a reversed one gives a negative factor.
void LongIntegerRange::CalculateScaleFactor() {
  RangeText::StoreScaleFactor(scaleFactor, Span(internalMinimum, internalMaximum),
                              Span(externalMinimum, externalMaximum), RangeText::IntegerKinds, Low32(internalMinimum),
                              Low32(internalMaximum), Low32(externalMinimum), Low32(externalMaximum));
}

std::string LongIntegerRange::ToString() const {
  return RangeText::Describe("LongIntegerRange", internalMinimum, internalMaximum, externalMinimum, externalMaximum);
}

bool UnsignedLongIntegerRange::IsInRange(std::uint64_t value) const {
  return IsWithin(value, internalMinimum, internalMaximum);
}

bool UnsignedLongIntegerRange::FitToRange(std::uint64_t& value) const {
  return FitInto(value, internalMinimum, internalMaximum);
}

namespace {

// The input's distance from minimum after clamping it into the range, so
// that a result can never leave its target range.
double ClampedOffset(std::uint64_t value, std::uint64_t minimum, std::uint64_t maximum) {
  if (value < minimum) {
    return 0.0;
  }
  return static_cast<double>(std::min(value, maximum) - minimum);
}

}  // namespace

// All values are non-negative, so 0.5 is always added: rounds half up.
std::uint64_t UnsignedLongIntegerRange::ScaleTo(std::uint64_t value) const {
  const double offset = ClampedOffset(value, internalMinimum, internalMaximum);
  return TruncateSaturated<std::uint64_t>(offset * scaleFactor + static_cast<double>(externalMinimum) + 0.5);
}

std::uint64_t UnsignedLongIntegerRange::ScaleFrom(std::uint64_t value) const {
  const double offset = ClampedOffset(value, externalMinimum, externalMaximum);
  return TruncateSaturated<std::uint64_t>(offset / scaleFactor + static_cast<double>(internalMinimum) + 0.5);
}

// Stricter than the signed ranges: a reversed range counts as empty.
void UnsignedLongIntegerRange::CalculateScaleFactor() {
  const auto forwardSpan = [](std::uint64_t minimum, std::uint64_t maximum) {
    return maximum > minimum ? Span(minimum, maximum) : 0.0;
  };
  RangeText::StoreScaleFactor(scaleFactor, forwardSpan(internalMinimum, internalMaximum),
                              forwardSpan(externalMinimum, externalMaximum), RangeText::IntegerKinds, internalMinimum,
                              internalMaximum, externalMinimum, externalMaximum);
}

std::string UnsignedLongIntegerRange::ToString() const {
  return RangeText::Describe("UnsignedLongIntegerRange", internalMinimum, internalMaximum, externalMinimum,
                             externalMaximum);
}

}  // namespace Nelmo
