#pragma once

#include <istream>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>

#include "LogForwarder.h"
#include "Output.h"

namespace Knxconv {

// Exit statuses of the tool.
enum ExitStatus : int {
  ExitSuccess = 0,
  ExitRefused = 1,  // the library refused, or a trace line did not convert
  ExitUsage = 2,    // a usage error, unreadable input, or output that cannot be written
};

// Where every command writes: results to standard output as escaped text
// lines or as JSON lines, messages and the library's log to standard error.
// A failed write is remembered with its errno; Finish reports it, so that a
// full disk is never mistaken for success.
class OutputContext {
 public:
  OutputContext(bool json, std::istream& in, std::ostream& out, std::ostream& err);
  ~OutputContext();
  OutputContext(const OutputContext&) = delete;
  OutputContext& operator=(const OutputContext&) = delete;

  bool IsJson() const { return m_json; }
  std::istream& In() { return m_in; }
  // Standard error, for lines that are the tool's own (hints).
  std::ostream& Err() { return m_err; }

  // Routes the library's log to standard error from the given level up.
  void ForwardLog(int level);
  // The library's errors since the last call (see LogForwarder::TakeErrors).
  std::string TakeLogErrors();

  // One result line: text escaped, or a JSON value on one line.
  void PrintLine(std::string_view text);
  void PrintJson(const Json& json);
  // A line that is JSON already, as JsonLine writes it.
  void PrintJsonLine(const std::string& line);
  // Several lines of text, each escaped.
  void PrintText(std::string_view text);
  // Prints text or JSON as the mode asks.
  void PrintResult(std::string_view text, const Json& json);
  bool OutputFailed() const { return m_writeError != 0; }
  // For output that someone watches while it grows (a live bus, a trace
  // read from a pipe): each line is written at once, not when the buffer is
  // full.
  void FlushEachLine(bool flush) { m_flushEachLine = flush; }

  // "knxconv: <message>" on standard error, escaped.
  void Message(std::string_view message);
  // A failure of the whole command: in JSON mode also the object
  // {"error":"<message>","status":<status>} on standard output. Returns status.
  int Fail(int status, std::string_view message);
  // A refusal by the library, whose log already told why on standard error.
  int Refused();

  // Flushes standard output; a write that failed turns status into ExitUsage
  // with "knxconv: cannot write the output: <strerror>".
  int Finish(int status);

 private:
  // Writes a line that is ready to print and its line end, unless output
  // already failed.
  void WriteLine(std::string_view line);
  // Standard output is flushed before anything goes to standard error: the
  // lines keep their order, and a failed write is seen with its errno (a
  // tied stream's flush would lose it).
  void FlushOutput();
  void CheckOutput();

  bool m_json;
  std::istream& m_in;
  std::ostream& m_out;
  std::ostream& m_err;
  std::unique_ptr<LogForwarder> m_log;
  int m_writeError = 0;
  bool m_flushEachLine = false;
  // A line being escaped, kept so that its capacity is.
  std::string m_line;
};

}  // namespace Knxconv
