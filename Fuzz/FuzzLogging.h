#pragma once

#include "UloLog.h"

// Every level active, every message composed and dropped: the fuzzers reach
// the message paths without flooding standard error.
inline void EnableSilentLogging() {
  static const bool enabled = [] {
    UloLogSetThreshold(ULO_LOG_TRACE);
    UloLogSetSink([](UloLogLevel, std::string_view, std::string_view, std::string_view, int) {});
    return true;
  }();
  (void)enabled;
}
