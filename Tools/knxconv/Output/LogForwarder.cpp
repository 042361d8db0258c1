#include "LogForwarder.h"

#include <algorithm>

#include "TextEscape.h"

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

LogForwarder::LogForwarder(int threshold, std::ostream& err, std::function<void()> beforeWrite)
    : m_threshold(threshold), m_err(err), m_beforeWrite(std::move(beforeWrite)) {
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
    if (m_beforeWrite) {
      m_beforeWrite();
    }
    // Some messages carry the raw bytes of a value. The line goes out in
    // one write: standard error is not buffered.
    m_message.assign(1, '[').append(LevelName(level)).append("] ").append(file).append("::").append(function);
    m_message.append(1, ':').append(std::to_string(line)).append(": ").append(text);
    m_line.clear();
    AppendEscapedText(m_line, m_message);
    m_line += '\n';
    m_err.write(m_line.data(), static_cast<std::streamsize>(m_line.size()));
  }
  if (level >= ULO_LOG_ERROR && (m_errors.empty() || m_errors.back() != text)) {
    m_errors.emplace_back(text);
  }
}

}  // namespace Knxconv
