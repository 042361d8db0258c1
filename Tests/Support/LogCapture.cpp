#include "LogCapture.h"

namespace TestSupport {

void PrintTo(const LogLine& line, std::ostream* out) {
  *out << "{level " << line.level << ", \"" << line.file << "\", \"" << line.function << "\", \"" << line.text << "\"}";
}

LogCapture::LogCapture(int threshold) : m_previousThreshold(UloLogGetThreshold()) {
  UloLogSetThreshold(threshold);
  UloLogSetSink(
      [this](UloLogLevel level, std::string_view file, std::string_view function, std::string_view text, int /*line*/) {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_lines.push_back(LogLine{level, std::string(file), std::string(function), std::string(text)});
      });
}

LogCapture::~LogCapture() {
  UloLogSetSink(nullptr);
  UloLogSetThreshold(m_previousThreshold);
}

std::vector<LogLine> LogCapture::Lines() const {
  std::lock_guard<std::mutex> lock(m_mutex);
  return m_lines;
}

std::vector<std::string> LogCapture::Texts() const {
  std::vector<std::string> texts;
  for (const LogLine& line : Lines()) {
    texts.push_back(line.text);
  }
  return texts;
}

void LogCapture::Clear() {
  std::lock_guard<std::mutex> lock(m_mutex);
  m_lines.clear();
}

}  // namespace TestSupport
