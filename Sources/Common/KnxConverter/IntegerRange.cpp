#include "IntegerRange.h"

#include "RangeArithmetic.h"
#include "RangeText.h"

namespace Nelmo {

using namespace RangeArithmetic;

bool IntegerRange::IsInRange(std::int32_t value) const {
  return IsWithin(value, internalMinimum, internalMaximum);
}

bool IntegerRange::FitToRange(std::int32_t& value) const {
  return FitInto(value, internalMinimum, internalMaximum);
}

std::int32_t IntegerRange::ScaleTo(std::int32_t value) const {
  if (ScalesToItself(value, internalMinimum, scaleFactor, externalMinimum)) {
    return value;
  }
  return ScaleToRounded<std::int32_t>(value, internalMinimum, scaleFactor, externalMinimum);
}

std::int32_t IntegerRange::ScaleFrom(std::int32_t value) const {
  if (ScalesToItself(value, externalMinimum, scaleFactor, internalMinimum)) {
    return value;
  }
  return ScaleFromRounded<std::int32_t>(value, externalMinimum, scaleFactor, internalMinimum);
}

// An empty range is invalid; a reversed one gives a negative factor.
void IntegerRange::CalculateScaleFactor() {
  RangeText::StoreScaleFactor(scaleFactor, Span(internalMinimum, internalMaximum),
                              Span(externalMinimum, externalMaximum), RangeText::IntegerKinds, internalMinimum,
                              internalMaximum, externalMinimum, externalMaximum);
}

std::string IntegerRange::ToString() const {
  return RangeText::Describe("IntegerRange", internalMinimum, internalMaximum, externalMinimum, externalMaximum);
}

}  // namespace Nelmo
