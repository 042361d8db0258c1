#pragma once

// Text of the range classes: their ToString form and the messages of
// CalculateScaleFactor. Internal to the library.

#include <ostream>
#include <sstream>
#include <string>
#include <string_view>

#include "ConverterLog.h"

namespace Nelmo::RangeText {

// "<name>(a, b, c, d)" in default stream formatting.
template <typename Internal, typename External>
std::string Describe(std::string_view name, const Internal& internalMinimum, const Internal& internalMaximum,
                     const External& externalMinimum, const External& externalMaximum) {
  std::ostringstream text;
  text << name << '(' << internalMinimum << ", " << internalMaximum << ", " << externalMinimum << ", "
       << externalMaximum << ')';
  return text.str();
}

// "Failed to calculate the scale factor because of invalid <kind> range [min, max]."
template <typename T>
void ReportInvalidRange(std::string_view kind, const T& minimum, const T& maximum, int line) {
  Log::Write(ULO_LOG_ERROR, Log::ConverterFile, "CalculateScaleFactor", line, [&](std::ostream& out) {
    out << "Failed to calculate the scale factor because of invalid " << kind << " range [" << minimum << ", "
        << maximum << "].";
  });
}

// Both ranges in one message; joint is the text between them, whose wording
// differs by class (some omit "of").
template <typename Internal, typename External>
void ReportInvalidRanges(std::string_view kind, const Internal& internalMinimum, const Internal& internalMaximum,
                         std::string_view joint, const External& externalMinimum, const External& externalMaximum,
                         int line) {
  Log::Write(ULO_LOG_ERROR, Log::ConverterFile, "CalculateScaleFactor", line, [&](std::ostream& out) {
    out << "Failed to calculate the scale factor because of invalid " << kind << " range [" << internalMinimum << ", "
        << internalMaximum << joint << externalMinimum << ", " << externalMaximum << "].";
  });
}

// How a range class names its two ranges in the messages of
// CalculateScaleFactor, and the words that join them in the combined one.
struct RangeKinds {
  std::string_view internal;
  std::string_view external;
  std::string_view joint;
};

// For the integer ranges the combined message is only a guard: two non-zero
// integer spans give a factor of at least 2^-64.
inline constexpr RangeKinds IntegerKinds{"internal", "external", "] or because of invalid external range ["};

// The common calculation: factor = external span / internal span. A span of
// 0 means an invalid range, which is reported and leaves scaleFactor as it
// is; a factor of 0 sets it to 1.0. The bounds are only written into the
// messages, in the form the caller passes them.
template <typename Internal, typename External>
void StoreScaleFactor(double& scaleFactor, double internalSpan, double externalSpan, const RangeKinds& kinds,
                      const Internal& internalMinimum, const Internal& internalMaximum, const External& externalMinimum,
                      const External& externalMaximum) {
  if (internalSpan == 0.0) {
    ReportInvalidRange(kinds.internal, internalMinimum, internalMaximum, __LINE__);
    return;
  }
  if (externalSpan == 0.0) {
    ReportInvalidRange(kinds.external, externalMinimum, externalMaximum, __LINE__);
    return;
  }
  const double factor = externalSpan / internalSpan;
  if (factor == 0.0) {
    scaleFactor = 1.0;
    ReportInvalidRanges(kinds.internal, internalMinimum, internalMaximum, kinds.joint, externalMinimum, externalMaximum,
                        __LINE__);
    return;
  }
  scaleFactor = factor;
}

}  // namespace Nelmo::RangeText
