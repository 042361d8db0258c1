#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "UloPlatform.h"

namespace Knxconv {

// Routes the library's log while the tool runs: messages from the chosen
// level up go to the error stream, one escaped line each; error messages are also
// kept, so that a trace line can say why its telegram did not convert.
class LogForwarder {
 public:
  // beforeWrite, if given, runs before each line goes to err.
  LogForwarder(int threshold, std::ostream& err, std::function<void()> beforeWrite = nullptr);
  ~LogForwarder();
  LogForwarder(const LogForwarder&) = delete;
  LogForwarder& operator=(const LogForwarder&) = delete;

  // The error texts since the last call, joined with "; " (repeats dropped).
  std::string TakeErrors();

 private:
  void Receive(UloLogLevel level, std::string_view file, std::string_view function, std::string_view text, int line);

  int m_threshold;
  std::ostream& m_err;
  std::function<void()> m_beforeWrite;
  std::vector<std::string> m_errors;
  // A message and its escaped line, kept for their capacity.
  std::string m_message;
  std::string m_line;
};

// Silences the library's log while the tool looks something up for itself.
class QuietLog {
 public:
  QuietLog() : m_previous(UloLogGetThreshold()) { UloLogSetThreshold(ULO_LOG_OFF); }
  ~QuietLog() { UloLogSetThreshold(m_previous); }
  QuietLog(const QuietLog&) = delete;
  QuietLog& operator=(const QuietLog&) = delete;

 private:
  int m_previous;
};

}  // namespace Knxconv
