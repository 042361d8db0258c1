#include "LogForwarder.h"

#include <algorithm>

namespace Knxconv {

namespace {

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

}  // namespace

LogForwarder::LogForwarder(int threshold, std::ostream& err) : m_threshold(threshold), m_err(err) {
  // Errors are always received, to be kept, even when they are not shown.
  UloLogSetThreshold(std::min(threshold, static_cast<int>(ULO_LOG_ERROR)));
  UloLogSetSink([this](UloLogLevel level, std::string_view file, std::string_view function, std::string_view text,
                       int line) { Receive(level, file, function, text, line); });
}

LogForwarder::~LogForwarder() {
  UloLogSetSink(nullptr);
}

std::string LogForwarder::TakeErrors() {
  std::string joined;
  for (const std::string& error : m_errors) {
    joined.append(joined.empty() ? "" : "; ").append(error);
  }
  m_errors.clear();
  return joined;
}

void LogForwarder::Receive(UloLogLevel level, std::string_view file, std::string_view function, std::string_view text,
                           int line) {
  if (static_cast<int>(level) >= m_threshold) {
    m_err << '[' << LevelName(level) << "] " << file << "::" << function << ':' << line << ": " << text << '\n';
  }
  if (level >= ULO_LOG_ERROR && (m_errors.empty() || m_errors.back() != text)) {
    m_errors.emplace_back(text);
  }
}

}  // namespace Knxconv
