#include "BusAddress.h"

#include <optional>
#include <vector>

#include "InputError.h"
#include "NumberText.h"

namespace Knxconv {

namespace {

std::vector<std::string_view> SplitSlashes(std::string_view text) {
  std::vector<std::string_view> parts;
  std::size_t start = 0;
  while (true) {
    const std::size_t slash = text.find('/', start);
    parts.push_back(text.substr(start, slash == std::string_view::npos ? std::string_view::npos : slash - start));
    if (slash == std::string_view::npos) {
      return parts;
    }
    start = slash + 1;
  }
}

// The parts' limits, most significant first, and their widths in bits.
std::optional<std::uint16_t> Combine(const std::vector<std::string_view>& parts) {
  static const std::vector<std::vector<std::uint64_t>> Limits = {{65535}, {31, 2047}, {31, 7, 255}};
  static const std::vector<std::vector<int>> Shifts = {{0}, {11, 0}, {11, 8, 0}};
  if (parts.empty() || parts.size() > Limits.size()) {
    return std::nullopt;
  }
  const std::size_t form = parts.size() - 1;
  std::uint32_t address = 0;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    const std::optional<std::uint64_t> number = ParseUnsigned(parts[i], Limits[form][i]);
    if (!number) {
      return std::nullopt;
    }
    address |= static_cast<std::uint32_t>(*number) << Shifts[form][i];
  }
  return static_cast<std::uint16_t>(address);
}

}  // namespace

std::uint16_t ParseGroupAddress(std::string_view text) {
  const std::optional<std::uint16_t> address = Combine(SplitSlashes(Trim(text)));
  if (!address) {
    throw InputError("not a group address: '" + std::string(text) + "' (write it as 1/2/3)");
  }
  return *address;
}

std::string FormatGroupAddress(std::uint16_t address) {
  return std::to_string(address >> 11U) + "/" + std::to_string((address >> 8U) & 0x7U) + "/" +
         std::to_string(address & 0xFFU);
}

std::string FormatIndividualAddress(std::uint16_t address) {
  return std::to_string(address >> 12U) + "." + std::to_string((address >> 8U) & 0xFU) + "." +
         std::to_string(address & 0xFFU);
}

}  // namespace Knxconv
