#include "EtsCsvReader.h"

#include <algorithm>
#include <optional>
#include <sstream>

#include "BusAddress.h"
#include "EtsDptText.h"
#include "InputError.h"
#include "NumberText.h"

namespace Knxconv {

namespace {

// Where the columns that matter stand; name columns in order of preference.
struct Columns {
  std::vector<std::size_t> names;
  std::size_t address = 0;
  std::optional<std::size_t> dpt;
  std::size_t count = 0;
};

// The separator is the first of comma, semicolon and tab outside quotes.
char Separator(std::string_view header) {
  bool quoted = false;
  for (const char c : header) {
    if (c == '"') {
      quoted = !quoted;
    } else if (!quoted && (c == ',' || c == ';' || c == '\t')) {
      return c;
    }
  }
  return ',';
}

std::optional<std::size_t> Find(const std::vector<std::string>& header, std::string_view name) {
  const auto found = std::find_if(header.begin(), header.end(),
                                  [name](const std::string& field) { return EqualsIgnoringCase(field, name); });
  return found == header.end() ? std::nullopt : std::optional<std::size_t>(found - header.begin());
}

Columns ReadHeader(const std::vector<std::string>& header) {
  Columns columns;
  columns.count = header.size();
  const std::optional<std::size_t> address = Find(header, "Address");
  if (!address) {
    throw InputError("the header has no \"Address\" column");
  }
  columns.address = *address;
  columns.dpt = Find(header, "DatapointType");
  for (const char* name : {"Group name", "Sub", "Middle", "Main"}) {
    if (const std::optional<std::size_t> column = Find(header, name)) {
      columns.names.push_back(*column);
    }
  }
  if (columns.names.empty()) {
    throw InputError(R"(the header has neither a "Group name" nor a "Main", "Middle", "Sub" column)");
  }
  return columns;
}

void AddRow(const Columns& columns, const std::vector<std::string>& fields, AddressBook& book) {
  if (fields.size() != columns.count) {
    throw InputError(std::to_string(fields.size()) + " fields instead of " + std::to_string(columns.count));
  }
  const std::string& address = fields[columns.address];
  if (address.find('-') != std::string::npos) {
    return;
  }
  AddressEntry entry;
  for (const std::size_t column : columns.names) {
    if (!fields[column].empty()) {
      entry.name = fields[column];
      break;
    }
  }
  if (columns.dpt) {
    entry.dpt = ParseEtsDpt(fields[*columns.dpt]);
  }
  book.Add(ParseGroupAddress(address), std::move(entry));
}

}  // namespace

std::vector<std::string> SplitCsvLine(std::string_view line, char separator) {
  std::vector<std::string> fields(1);
  bool quoted = false;
  for (std::size_t i = 0; i < line.size(); ++i) {
    const char c = line[i];
    if (quoted && c == '"' && i + 1 < line.size() && line[i + 1] == '"') {
      fields.back() += '"';
      ++i;
    } else if (c == '"') {
      quoted = !quoted;
    } else if (!quoted && c == separator) {
      fields.emplace_back();
    } else {
      fields.back() += c;
    }
  }
  if (quoted) {
    throw InputError("a quoted field is not closed");
  }
  return fields;
}

AddressBook ReadEtsCsv(const std::string& text, const std::string& file) {
  std::istringstream in(text);
  std::string line;
  std::size_t lineNumber = 0;
  std::optional<Columns> columns;
  char separator = ',';
  AddressBook book;
  while (std::getline(in, line)) {
    ++lineNumber;
    if (!line.empty() && line.back() == '\r') {
      line.pop_back();
    }
    if (Trim(line).empty()) {
      continue;
    }
    try {
      if (!columns) {
        separator = Separator(line);
        columns = ReadHeader(SplitCsvLine(line, separator));
      } else {
        AddRow(*columns, SplitCsvLine(line, separator), book);
      }
    } catch (const InputError& error) {
      throw AddressFileError(file, lineNumber, error.what());
    }
  }
  if (!columns) {
    throw AddressFileError(file, lineNumber, "the file is empty");
  }
  return book;
}

}  // namespace Knxconv
