#pragma once

#include <string>

#include "LogCapture.h"
#include "UloLog.h"

// The lines the converters (file "KnxConverter") and the facade with its map
// (file "KnxValueConverter") write, as a LogCapture records them.
namespace TestSupport {

inline LogLine Trace(const char* function, const std::string& text) {
  return LogLine{ULO_LOG_TRACE, "KnxConverter", function, text};
}

// A value clamped into its range before it is sent.
inline LogLine Adjusted(const std::string& text) {
  return LogLine{ULO_LOG_INFO, "KnxConverter", "ToKnxValue", text};
}

inline LogLine Error(const char* function, const std::string& text) {
  return LogLine{ULO_LOG_ERROR, "KnxConverter", function, text};
}

// A range whose bounds give no scale factor.
inline LogLine ScaleFactorError(const std::string& text) {
  return Error("CalculateScaleFactor", text);
}

inline LogLine FacadeLine(const char* function, const std::string& text) {
  return LogLine{ULO_LOG_ERROR, "KnxValueConverter", function, text};
}

}  // namespace TestSupport
