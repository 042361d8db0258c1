#include "TraceReader.h"

#include <string_view>
#include <vector>

#include "InputError.h"
#include "NumberText.h"

namespace Knxconv {

namespace {

constexpr std::size_t FieldCount = 5;

std::vector<std::string> SplitFields(std::string_view line) {
  std::vector<std::string> fields;
  std::size_t start = 0;
  while (true) {
    const std::size_t comma = line.find(',', start);
    fields.emplace_back(
        Trim(line.substr(start, comma == std::string_view::npos ? std::string_view::npos : comma - start)));
    if (comma == std::string_view::npos) {
      return fields;
    }
    start = comma + 1;
  }
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
  std::string header;
  for (const std::string& field : SplitFields(line)) {
    header.append(header.empty() ? "" : ",").append(field);
  }
  if (header != Header) {
    throw InputError("line " + std::to_string(m_lineNumber) + " of the trace is not the header " + Header);
  }
}

bool TraceReader::Next(Telegram& telegram) {
  std::string line;
  if (!NextLine(line)) {
    return false;
  }
  telegram = Telegram();
  telegram.lineNumber = m_lineNumber;
  std::vector<std::string> fields = SplitFields(line);
  if (fields.size() != FieldCount) {
    telegram.error = "line " + std::to_string(m_lineNumber) + " has " + std::to_string(fields.size()) +
                     " fields instead of " + std::to_string(FieldCount);
    fields.resize(FieldCount);
  }
  telegram.time = std::move(fields[0]);
  telegram.source = std::move(fields[1]);
  telegram.destination = std::move(fields[2]);
  telegram.dpt = std::move(fields[3]);
  telegram.payload = std::move(fields[4]);
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
