#pragma once

#include <mutex>
#include <ostream>
#include <string>
#include <vector>

#include "UloLog.h"

namespace TestSupport {

struct LogLine {
  int level;
  std::string file;
  std::string function;
  std::string text;

  bool operator==(const LogLine& other) const {
    return level == other.level && file == other.file && function == other.function && text == other.text;
  }
};

void PrintTo(const LogLine& line, std::ostream* out);

// Installs a log sink for its lifetime and records every message; sets the
// threshold (default: everything active) and restores the previous one.
class LogCapture {
 public:
  explicit LogCapture(int threshold = ULO_LOG_TRACE);
  ~LogCapture();
  LogCapture(const LogCapture&) = delete;
  LogCapture& operator=(const LogCapture&) = delete;

  std::vector<LogLine> Lines() const;
  // Only the texts, in order.
  std::vector<std::string> Texts() const;
  void Clear();

 private:
  mutable std::mutex m_mutex;
  std::vector<LogLine> m_lines;
  int m_previousThreshold;
};

}  // namespace TestSupport
