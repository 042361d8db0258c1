// The README's two tables of default DPTs are read as the test's rows and
// checked against the facade for every known value type and every bit size,
// so that what users read is what the library does.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "KnxValueConverter.h"
#include "UloPlatform.h"

namespace {

using Cells = std::vector<std::string>;
using Dpt = std::optional<KNXDPT>;

const std::uint8_t BitSizes[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 16, 24, 32, 40, 48, 64, 112, 255};
constexpr std::int32_t LargestTypeNumber = 2000;

std::string Trim(const std::string& text) {
  const auto first = text.find_first_not_of(' ');
  const auto last = text.find_last_not_of(' ');
  return first == std::string::npos ? std::string() : text.substr(first, last - first + 1);
}

Cells Split(const std::string& text, const std::string& separator) {
  Cells parts;
  std::size_t start = 0;
  for (auto at = text.find(separator); at != std::string::npos; at = text.find(separator, start)) {
    parts.push_back(Trim(text.substr(start, at - start)));
    start = at + separator.size();
  }
  parts.push_back(Trim(text.substr(start)));
  return parts;
}

// The rows of the README table whose header line starts with header.
std::vector<Cells> TableRows(const std::string& header) {
  std::ifstream readme(KNXCONV_README);
  std::vector<Cells> rows;
  bool inTable = false;
  for (std::string line; std::getline(readme, line);) {
    if (line.rfind(header, 0) == 0) {
      inTable = true;
    } else if (inTable && line.rfind('|', 0) != 0) {
      break;
    } else if (inTable && line.rfind("|---", 0) != 0) {
      const Cells cells = Split(line.substr(1, line.size() - 2), "|");
      rows.push_back(cells);
    }
  }
  return rows;
}

std::map<std::string, UloValueType> KnownTypes() {
  std::map<std::string, UloValueType> types;
  for (std::int32_t number = 0; number <= LargestTypeNumber; ++number) {
    const auto type = static_cast<UloValueType>(number);
    if (const char* name = UloValueTypeName(type)) {
      types.emplace(std::string("`") + name + "`", type);
    }
  }
  return types;
}

// "9.000" or "9.000 (16)"; anything else ("none: ...") is no DPT.
Dpt ParseDpt(const std::string& text, std::uint8_t bitSize) {
  unsigned main = 0;
  unsigned sub = 0;
  unsigned bits = bitSize;
  char dot = 0;
  std::istringstream in(text);
  if (!(in >> main >> dot >> sub) || dot != '.') {
    return std::nullopt;
  }
  char open = 0;
  if (in >> open && open == '(') {
    in >> bits;
  }
  return KNXDPT{static_cast<std::uint8_t>(bits), static_cast<std::uint16_t>(main), static_cast<std::uint16_t>(sub)};
}

std::string Show(const Dpt& dpt) {
  if (!dpt) {
    return "none";
  }
  return std::to_string(dpt->mainNumber) + "." + std::to_string(dpt->subNumber) + " (" + std::to_string(dpt->bitSize) +
         ")";
}

bool Lists(const std::string& alternatives, const std::string& word) {
  const Cells parts = Split(alternatives, " or ");
  return std::find(parts.begin(), parts.end(), word) != parts.end();
}

// Value type table: "| `IVT_DOUBLE` | 0 / 4 | 9.000 (16) / 3.000 (4) |".
Dpt ByValueType(const std::vector<Cells>& rows, const std::string& type, std::uint8_t bitSize) {
  for (const Cells& row : rows) {
    if (row.size() != 3 || row[0] != type) {
      continue;
    }
    const Cells sizes = Split(row[1], " / ");
    const Cells dpts = Split(row[2], " / ");
    for (std::size_t index = 0; index < sizes.size() && index < dpts.size(); ++index) {
      if (sizes[index] == "any" || sizes[index] == std::to_string(bitSize)) {
        return ParseDpt(dpts[index], bitSize);
      }
    }
  }
  return std::nullopt;
}

// Bit size table: "| 8 | `IVT_INT32` / any other | 6.000 / 5.000 |".
Dpt BySize(const std::vector<Cells>& rows, const std::string& type, std::uint8_t bitSize) {
  for (const Cells& row : rows) {
    if (row.size() != 3 || row[0] != std::to_string(bitSize)) {
      continue;
    }
    const Cells types = Split(row[1], " / ");
    const Cells dpts = Split(row[2], " / ");
    for (std::size_t index = 0; index < types.size() && index < dpts.size(); ++index) {
      if (types[index] == "any" || types[index] == "any other" || Lists(types[index], type)) {
        return ParseDpt(dpts[index], bitSize);
      }
    }
  }
  return std::nullopt;
}

// Every known value type with every bit size: what the facade chooses
// against what the README's table says.
template <typename Actual, typename Expected>
void CompareEveryTypeAndSize(Actual actual, Expected expected) {
  for (const auto& [name, type] : KnownTypes()) {
    for (const std::uint8_t bitSize : BitSizes) {
      EXPECT_EQ(Show(actual(type, bitSize)), Show(expected(name, bitSize)))
          << name << " with " << int{bitSize} << " bits";
    }
  }
}

TEST(ReadmeDefaultDpt, ValueTypeTableIsWhatTheFacadeChooses) {
  const std::vector<Cells> rows = TableRows("| Value type | Bit size on entry |");
  ASSERT_FALSE(rows.empty()) << "no value type table in " << KNXCONV_README;
  const Nelmo::KnxValueConverter converter;
  CompareEveryTypeAndSize(
      [&](UloValueType type, std::uint8_t bitSize) {
        KNXDPT dpt{bitSize, 0, 0};
        ULOVALUE value;
        value.SetType(type);
        return converter.GetDefaultMappingDptForValueType(dpt, value) ? Dpt(dpt) : std::nullopt;
      },
      [&](const std::string& name, std::uint8_t bitSize) { return ByValueType(rows, name, bitSize); });
}

TEST(ReadmeDefaultDpt, BitSizeTableIsWhatTheFacadeChooses) {
  const std::vector<Cells> rows = TableRows("| Bit size | Value type |");
  ASSERT_FALSE(rows.empty()) << "no bit size table in " << KNXCONV_README;
  const Nelmo::KnxValueConverter converter;
  CompareEveryTypeAndSize(
      [&](UloValueType type, std::uint8_t bitSize) {
        KNXDPT dpt{bitSize, 0, 0};
        return converter.GetDefaultMappingDptForSize(type, dpt) ? Dpt(dpt) : std::nullopt;
      },
      [&](const std::string& name, std::uint8_t bitSize) { return BySize(rows, name, bitSize); });
}

}  // namespace
