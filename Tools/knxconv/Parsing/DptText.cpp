#include "DptText.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "DptCatalogue.h"
#include "InputError.h"
#include "NumberText.h"

namespace Knxconv {

namespace {

// The sub-type a suggestion names, as "DPT_Value_Temp (9.001)".
std::string SuggestionText(const std::string& suggestion) {
  const std::optional<Nelmo::DptId> id = Nelmo::DptCatalogue::Parse(suggestion);
  const Nelmo::DptSubtype* subtype = id ? Nelmo::DptCatalogue::Find(id->mainNumber, id->subNumber) : nullptr;
  if (subtype == nullptr) {
    return suggestion;
  }
  KNXDPT dpt;
  dpt.mainNumber = subtype->mainNumber;
  dpt.subNumber = subtype->subNumber;
  return std::string(subtype->name) + " (" + FormatDpt(dpt) + ")";
}

// "0", and "0.000" as FormatDpt writes it back.
bool IsNoDpt(std::string_view text) {
  return text == "0" || text == "0.000";
}

std::string UnknownDptMessage(std::string_view text) {
  const std::vector<std::string> suggestions = Nelmo::DptCatalogue::Suggest(text, 1);
  const std::string start = "unknown DPT '" + std::string(text) + "'";
  if (suggestions.empty()) {
    return start + " (write it as 9.001, 9.1, 9, 9.x, DPST-9-1 or a name such as DPT_Value_Temp; 0 for none)";
  }
  return start + "; did you mean " + SuggestionText(suggestions.front()) + "?";
}

}  // namespace

KNXDPT ParseDpt(std::string_view text) {
  KNXDPT dpt;
  if (IsNoDpt(Trim(text))) {
    return dpt;
  }
  const std::optional<Nelmo::DptId> id = Nelmo::DptCatalogue::Parse(text);
  if (!id) {
    throw InputError(UnknownDptMessage(text));
  }
  dpt.mainNumber = id->mainNumber;
  dpt.subNumber = id->subNumber;
  return dpt;
}

// "%u.%03u" written out: a trace formats one DPT per telegram, and a
// printf costs more than the conversion.
std::string FormatDpt(const KNXDPT& dpt) {
  // Each trace line writes one: digits straight into a buffer, the sub
  // number with at least three of them ("9.001").
  constexpr std::uint16_t ThreeDigits = 100;
  constexpr std::uint16_t TwoDigits = 10;
  std::array<char, 16> text{};
  char* end = std::to_chars(text.data(), text.data() + text.size(), dpt.mainNumber).ptr;
  *end++ = '.';
  if (dpt.subNumber < TwoDigits) {
    *end++ = '0';
  }
  if (dpt.subNumber < ThreeDigits) {
    *end++ = '0';
  }
  end = std::to_chars(end, text.data() + text.size(), dpt.subNumber).ptr;
  return {text.data(), end};
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
