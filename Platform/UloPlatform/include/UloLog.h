#pragma once

#include <atomic>
#include <functional>
#include <string_view>

enum UloLogLevel : int {
  ULO_LOG_TRACE = 0,
  ULO_LOG_INFO = 1,
  ULO_LOG_WARNING = 2,
  ULO_LOG_ERROR = 3,
};

namespace UloLogDetail {
// The threshold as checks see it, never below 0; -1 until it has been read
// from the environment. Every conversion checks the level, so a check is a
// load and a compare here rather than a call into the library.
extern std::atomic<int> checkedThreshold;
bool IsActiveOnFirstUse(UloLogLevel level);
// False only where the level is certainly off; true also before the first
// read, so a hot caller pays one load and leaves the exact answer to its
// cold path.
inline bool MayBeActive(UloLogLevel level) {
  return static_cast<int>(level) >= checkedThreshold.load(std::memory_order_relaxed);
}
}  // namespace UloLogDetail

// Whether messages of this level are written (level >= threshold).
inline bool UloLoggingStateIsActive(UloLogLevel level) {
  const int threshold = UloLogDetail::checkedThreshold.load(std::memory_order_relaxed);
  return threshold >= 0 ? static_cast<int>(level) >= threshold : UloLogDetail::IsActiveOnFirstUse(level);
}
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
