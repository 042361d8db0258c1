#include "TraceReader.h"

#include <array>
#include <string_view>

#include "InputError.h"
#include "NumberText.h"

namespace Knxconv {

namespace {

constexpr std::size_t FieldCount = 5;
using Fields = std::array<std::string_view, FieldCount>;

// Trim, called only for a field that starts or ends with a blank: few do.
std::string_view TrimField(std::string_view field) {
  const auto blank = [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; };
  if (field.empty() || (!blank(field.front()) && !blank(field.back()))) {
    return field;
  }
  return Trim(field);
}

// The line's fields as views into it, blanks around them cut, at most
// FieldCount of them kept: a line per telegram allocates nothing. Returns how
// many fields the line has.
std::size_t SplitFields(std::string_view line, Fields& fields) {
  std::size_t count = 0;
  std::size_t start = 0;
  while (true) {
    const std::size_t comma = line.find(',', start);
    if (count < FieldCount) {
      fields[count] =
          TrimField(line.substr(start, comma == std::string_view::npos ? std::string_view::npos : comma - start));
    }
    ++count;
    if (comma == std::string_view::npos) {
      return count;
    }
    start = comma + 1;
  }
}

// field set to text in place: the string keeps its capacity from line to
// line, and a copy over its bytes costs less than assign's general path.
void Assign(std::string& field, std::string_view text) {
  field.resize(text.size());
  text.copy(field.data(), text.size());
}

}  // namespace

TraceReader::TraceReader(std::istream& in) : m_in(in) {
  std::string line;
  if (!NextLine(line)) {
    throw InputError("the trace is empty; it must start with the line " + std::string(Header));
  }
  constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
  if (std::string_view(line).substr(0, ByteOrderMark.size()) == ByteOrderMark) {
    line.erase(0, ByteOrderMark.size());
  }
  Fields fields;
  const std::size_t count = SplitFields(line, fields);
  std::string header;
  for (const std::string_view field : fields) {
    header.append(header.empty() ? "" : ",").append(field);
  }
  if (count != FieldCount || header != Header) {
    throw InputError("line " + std::to_string(m_lineNumber) + " of the trace is not the header " + Header);
  }
}

bool TraceReader::Next(Telegram& telegram) {
  if (!NextLine(m_line)) {
    return false;
  }
  telegram.lineNumber = m_lineNumber;
  Fields fields;
  const std::size_t count = SplitFields(m_line, fields);
  telegram.error.clear();
  if (count != FieldCount) {
    telegram.error = "line " + std::to_string(m_lineNumber) + " has " + std::to_string(count) + " fields instead of " +
                     std::to_string(FieldCount);
  }
  Assign(telegram.time, fields[0]);
  Assign(telegram.source, fields[1]);
  Assign(telegram.destination, fields[2]);
  Assign(telegram.dpt, fields[3]);
  Assign(telegram.payload, fields[4]);
  return true;
}

bool TraceReader::NextLine(std::string& line) {
  while (std::getline(m_in, line)) {
    ++m_lineNumber;
    const std::string_view content = Trim(line);
    if (!content.empty() && content.front() != '#') {
      return true;
    }
  }
  return false;
}

}  // namespace Knxconv
