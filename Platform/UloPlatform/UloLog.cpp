#include "UloLog.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <string>

namespace {

constexpr int DefaultThreshold = ULO_LOG_ERROR;
constexpr const char* ThresholdVariable = "ULO_LOG_LEVEL";

int ThresholdFromEnvironment() {
  const char* text = std::getenv(ThresholdVariable);
  if (text == nullptr || *text == '\0') {
    return DefaultThreshold;
  }
  char* end = nullptr;
  const long value = std::strtol(text, &end, 10);
  if (*end != '\0' || value < ULO_LOG_TRACE) {
    return DefaultThreshold;
  }
  return value > ULO_LOG_OFF ? ULO_LOG_OFF : static_cast<int>(value);
}

// Set once the threshold below exists. Constant-initialised, so it may be
// read before any dynamic initialisation, and it keeps the first-use set-up
// out of the check that every conversion makes.
std::atomic<std::atomic<int>*> g_threshold{nullptr};

// Levels are never below 0, so a lower threshold checks the same as 0.
void MirrorForChecks(int threshold) {
  UloLogDetail::checkedThreshold.store(threshold < 0 ? 0 : threshold, std::memory_order_relaxed);
}

[[gnu::noinline]] std::atomic<int>& FirstThreshold() {
  static std::atomic<int> threshold{ThresholdFromEnvironment()};
  // Only where no threshold has been set yet: a set one is mirrored already.
  int unread = -1;
  const int fromEnvironment = threshold.load(std::memory_order_relaxed);
  UloLogDetail::checkedThreshold.compare_exchange_strong(unread, fromEnvironment < 0 ? 0 : fromEnvironment,
                                                         std::memory_order_relaxed);
  g_threshold.store(&threshold, std::memory_order_release);
  return threshold;
}

std::atomic<int>& Threshold() {
  std::atomic<int>* threshold = g_threshold.load(std::memory_order_acquire);
  return threshold != nullptr ? *threshold : FirstThreshold();
}

// The sink is swapped under a lock but called through a shared copy, so a
// sink may log or be replaced while another thread is inside it.
struct SinkSlot {
  std::mutex mutex;
  std::shared_ptr<const UloLogSink> sink;
};

SinkSlot& Slot() {
  static SinkSlot slot;
  return slot;
}

std::shared_ptr<const UloLogSink> CurrentSink() {
  SinkSlot& slot = Slot();
  std::lock_guard<std::mutex> lock(slot.mutex);
  return slot.sink;
}

const char* LevelName(UloLogLevel level) {
  switch (level) {
    case ULO_LOG_TRACE:
      return "TRACE";
    case ULO_LOG_INFO:
      return "INFO";
    case ULO_LOG_WARNING:
      return "WARNING";
    case ULO_LOG_ERROR:
      return "ERROR";
  }
  return "LEVEL?";
}

void WriteToStandardError(UloLogLevel level, std::string_view file, std::string_view function, std::string_view text,
                          int line) {
  std::string message;
  message.reserve(text.size() + file.size() + function.size() + 32);
  message.append("[").append(LevelName(level)).append("] ");
  message.append(file).append("::").append(function).append(":").append(std::to_string(line)).append(": ");
  message.append(text).append("\n");
  // One fwrite per message keeps lines from several threads whole.
  std::fwrite(message.data(), 1, message.size(), stderr);
}

}  // namespace

// Constant-initialised, so checks made during dynamic initialisation see -1.
std::atomic<int> UloLogDetail::checkedThreshold{-1};

bool UloLogDetail::IsActiveOnFirstUse(UloLogLevel level) {
  return static_cast<int>(level) >= Threshold().load(std::memory_order_relaxed);
}

void UloLog(UloLogLevel level, std::string_view file, std::string_view function, std::string_view text, int line) {
  if (!UloLoggingStateIsActive(level)) {
    return;
  }
  if (const std::shared_ptr<const UloLogSink> sink = CurrentSink()) {
    (*sink)(level, file, function, text, line);
    return;
  }
  WriteToStandardError(level, file, function, text, line);
}

void UloLogSetThreshold(int threshold) {
  Threshold().store(threshold, std::memory_order_relaxed);
  MirrorForChecks(threshold);
}

int UloLogGetThreshold() {
  return Threshold().load(std::memory_order_relaxed);
}

void UloLogSetSink(UloLogSink sink) {
  std::shared_ptr<const UloLogSink> replacement;
  if (sink) {
    replacement = std::make_shared<const UloLogSink>(std::move(sink));
  }
  SinkSlot& slot = Slot();
  std::lock_guard<std::mutex> lock(slot.mutex);
  slot.sink = std::move(replacement);
}
