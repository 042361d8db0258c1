#include "OutputContext.h"

#include <cerrno>
#include <cstring>

#include "TextEscape.h"

namespace Knxconv {

OutputContext::OutputContext(bool json, std::istream& in, std::ostream& out, std::ostream& err)
    : m_json(json), m_in(in), m_out(out), m_err(err) {}

OutputContext::~OutputContext() = default;

void OutputContext::ForwardLog(int level) {
  m_log.reset();
  m_log = std::make_unique<LogForwarder>(level, m_err, [this] { FlushOutput(); });
}

std::string OutputContext::TakeLogErrors() {
  return m_log ? m_log->TakeErrors() : std::string();
}

void OutputContext::PrintLine(std::string_view text) {
  // Most lines need no escape and are written as they are.
  if (IsPlainText(text)) {
    WriteLine(text);
    return;
  }
  m_line.clear();
  AppendEscapedText(m_line, text);
  WriteLine(m_line);
}

void OutputContext::PrintJson(const Json& json) {
  PrintJsonLine(JsonLine(json));
}

void OutputContext::PrintJsonLine(const std::string& line) {
  WriteLine(line);
}

void OutputContext::PrintText(std::string_view text) {
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    PrintLine(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
}

void OutputContext::PrintResult(std::string_view text, const Json& json) {
  if (m_json) {
    PrintJson(json);
  } else {
    PrintLine(text);
  }
}

void OutputContext::Message(std::string_view message) {
  FlushOutput();
  m_err << "knxconv: " << EscapeText(message) << '\n';
}

int OutputContext::Fail(int status, std::string_view message) {
  Message(message);
  if (m_json) {
    Json json;
    json["error"] = std::string(message);
    json["status"] = status;
    PrintJson(json);
  }
  return status;
}

int OutputContext::Refused() {
  if (m_json) {
    std::string errors = TakeLogErrors();
    Json json;
    json["error"] = errors.empty() ? std::string("the library refused the conversion") : errors;
    json["status"] = static_cast<int>(ExitRefused);
    PrintJson(json);
  }
  return ExitRefused;
}

int OutputContext::Finish(int status) {
  FlushOutput();
  if (!OutputFailed()) {
    return status;
  }
  Message(std::string("cannot write the output: ") + std::strerror(m_writeError));
  return ExitUsage;
}

void OutputContext::WriteLine(std::string_view line) {
  if (OutputFailed()) {
    return;
  }
  errno = 0;
  // Straight into the stream's buffer, which gathers the lines; a failed
  // write fails the stream as its own write would.
  const auto size = static_cast<std::streamsize>(line.size());
  std::streambuf* buffer = m_out.rdbuf();
  if (buffer == nullptr || buffer->sputn(line.data(), size) != size ||
      buffer->sputc('\n') == std::char_traits<char>::eof()) {
    m_out.setstate(std::ios::badbit);
  }
  CheckOutput();
  if (m_flushEachLine) {
    FlushOutput();
  }
}

void OutputContext::FlushOutput() {
  if (!OutputFailed()) {
    errno = 0;
    m_out.flush();
    CheckOutput();
  }
}

void OutputContext::CheckOutput() {
  if (!m_out && m_writeError == 0) {
    // A stream that fails without errno still failed.
    m_writeError = errno != 0 ? errno : EIO;
  }
}

}  // namespace Knxconv
