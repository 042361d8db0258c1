#pragma once

// The clamp of every range class, also used inline by their headers for
// callers that hold a value in a plain integer type of their own.

namespace Nelmo::RangeClamp {

// Clamps value into [minimum, maximum], lower bound first. True when value
// was inside and is untouched. A NaN fails both comparisons and stays.
template <typename T>
bool FitInto(T& value, const T& minimum, const T& maximum) {
  if (value < minimum) {
    value = minimum;
    return false;
  }
  if (value > maximum) {
    value = maximum;
    return false;
  }
  return true;
}

}  // namespace Nelmo::RangeClamp
