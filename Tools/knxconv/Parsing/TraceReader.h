#pragma once

#include <cstddef>
#include <istream>
#include <string>

namespace Knxconv {

// One telegram of a trace, its fields as written (blanks around them cut).
struct Telegram {
  std::size_t lineNumber = 0;
  std::string time;
  std::string source;
  std::string destination;
  std::string dpt;
  std::string payload;
  // Why the line is not a telegram; empty when it is one.
  std::string error;
};

// Reads a telegram trace: CSV with the header line
// "time,source,destination,dpt,payload" and one telegram per line. Empty
// lines and lines starting with '#' are skipped; Windows line ends are read
// too. Fields hold no commas, so there is no quoting.
class TraceReader {
 public:
  static constexpr const char* Header = "time,source,destination,dpt,payload";

  // Throws InputError when the stream does not start with the header.
  explicit TraceReader(std::istream& in);

  // The next telegram; false at the end. A line with the wrong number of
  // fields comes back with its error set.
  bool Next(Telegram& telegram);

 private:
  bool NextLine(std::string& line);

  std::istream& m_in;
  std::size_t m_lineNumber = 0;
  std::string m_line;
};

}  // namespace Knxconv
