#pragma once

#include <functional>
#include <string_view>

enum UloLogLevel : int {
  ULO_LOG_TRACE = 0,
  ULO_LOG_INFO = 1,
  ULO_LOG_WARNING = 2,
  ULO_LOG_ERROR = 3,
};

// Whether messages of this level are written (level >= threshold).
bool UloLoggingStateIsActive(UloLogLevel level);
void UloLog(UloLogLevel level, std::string_view file, std::string_view function, std::string_view text, int line);

// Threshold: the lowest active level; 4 or more turns logging off. Starts at
// 3, or at the number in the environment variable ULO_LOG_LEVEL.
constexpr int ULO_LOG_OFF = 4;
void UloLogSetThreshold(int threshold);
int UloLogGetThreshold();

// Receives every active message instead of standard error; an empty sink
// restores standard error. The sink may be called from several threads.
using UloLogSink = std::function<void(UloLogLevel level, std::string_view file, std::string_view function,
                                      std::string_view text, int line)>;
void UloLogSetSink(UloLogSink sink);
