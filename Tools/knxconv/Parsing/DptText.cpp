#include "DptText.h"

#include <cstdint>
#include <limits>
#include <optional>
#include <string>

#include "InputError.h"
#include "NumberText.h"

namespace Knxconv {

namespace {

constexpr std::uint64_t MaxNumber = std::numeric_limits<std::uint16_t>::max();

std::optional<std::uint16_t> ParseNumber(std::string_view text) {
  const std::optional<std::uint64_t> number = ParseUnsigned(text, MaxNumber);
  if (!number) {
    return std::nullopt;
  }
  return static_cast<std::uint16_t>(*number);
}

}  // namespace

KNXDPT ParseDpt(std::string_view text) {
  const std::string_view trimmed = Trim(text);
  const std::size_t dot = trimmed.find('.');
  const std::string_view mainText = trimmed.substr(0, dot);
  const std::string_view subText = dot == std::string_view::npos ? std::string_view("x") : trimmed.substr(dot + 1);
  const std::optional<std::uint16_t> mainNumber = ParseNumber(mainText);
  const std::optional<std::uint16_t> subNumber =
      EqualsIgnoringCase(subText, "x") ? std::optional<std::uint16_t>(0) : ParseNumber(subText);
  if (!mainNumber || !subNumber) {
    throw InputError("not a DPT: '" + std::string(text) + "' (write it as 9.001, 9.1, 9 or 9.x; 0 for none)");
  }
  KNXDPT dpt;
  dpt.mainNumber = *mainNumber;
  dpt.subNumber = *subNumber;
  return dpt;
}

// "%u.%03u" written out: a trace formats one DPT per telegram, and a
// printf costs more than the conversion.
std::string FormatDpt(const KNXDPT& dpt) {
  constexpr unsigned SubDigits = 3;
  std::string text = std::to_string(dpt.mainNumber);
  text += '.';
  const std::string sub = std::to_string(dpt.subNumber);
  if (sub.size() < SubDigits) {
    text.append(SubDigits - sub.size(), '0');
  }
  text += sub;
  return text;
}

std::string DptLabel(const KNXDPT& dpt) {
  if (dpt.subNumber == 0) {
    return std::to_string(dpt.mainNumber) + ".x";
  }
  if (dpt.mainNumber == 10 && dpt.subNumber == 1) {
    return "10.1";
  }
  return FormatDpt(dpt);
}

}  // namespace Knxconv
