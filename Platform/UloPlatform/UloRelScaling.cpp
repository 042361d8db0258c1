#include "UloRelScaling.h"

#include <cmath>

namespace {

constexpr unsigned char DirectionBit = 0x08;
constexpr unsigned char StepMask = 0x07;
constexpr unsigned char LargestStepCode = 7;

// Geometric mean of the steps 100 and 50 (sqrt(5000)); the boundary between
// two neighbouring codes halves with each code. A magnitude exactly on a
// boundary takes the smaller step, as rounding 1 + log2(100 / p) half up would.
constexpr double FirstBoundary = 70.710678118654752440;

}  // namespace

unsigned char GetRelScalingAsByte(const double& percent) {
  if (std::isnan(percent) || percent == 0.0) {
    return 0;
  }
  const double magnitude = std::fabs(percent);
  unsigned char code = 1;
  for (double boundary = FirstBoundary; code < LargestStepCode && magnitude <= boundary; boundary /= 2) {
    ++code;
  }
  return percent > 0 ? static_cast<unsigned char>(code | DirectionBit) : code;
}

// Only the low four bits count. Code 8 (increase, step 0) stops like code 0
// and reads as 0.0, which GetRelScalingAsByte writes as 0.
double GetRelScalingFromByte(unsigned char code) {
  const int step = code & StepMask;
  if (step == 0) {
    return 0.0;
  }
  const double magnitude = std::ldexp(100.0, 1 - step);
  return (code & DirectionBit) != 0 ? magnitude : -magnitude;
}
