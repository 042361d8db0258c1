#include <cstdint>
#include <optional>
#include <string_view>

#include "CatalogueText.h"
#include "DptCatalogue.h"

namespace Nelmo {

namespace {

constexpr std::size_t MaxDigits = 5;
// Sub numbers are written with three digits ("9.001"); a longer zero-padded
// number is a slip of the keyboard, not a DPT.
constexpr std::size_t PaddedSubDigits = 3;

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// Takes the leading number off text.
std::optional<std::uint16_t> TakeNumber(std::string_view& text, bool isSubNumber) {
  std::size_t digits = 0;
  while (digits < text.size() && IsDigit(text[digits])) {
    ++digits;
  }
  if (digits == 0 || digits > MaxDigits) {
    return std::nullopt;
  }
  if (text[0] == '0' && (isSubNumber ? digits > PaddedSubDigits : true)) {
    return std::nullopt;
  }
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < digits; ++i) {
    value = value * 10 + static_cast<std::uint32_t>(text[i] - '0');
  }
  if (value > UINT16_MAX) {
    return std::nullopt;
  }
  text.remove_prefix(digits);
  return static_cast<std::uint16_t>(value);
}

bool TakeChar(std::string_view& text, char c) {
  if (text.empty() || text[0] != c) {
    return false;
  }
  text.remove_prefix(1);
  return true;
}

// main separator sub, or main alone when the sub number may be left out.
std::optional<DptId> ParseNumbers(std::string_view text, char separator, bool subRequired) {
  const std::optional<std::uint16_t> mainNumber = TakeNumber(text, false);
  if (!mainNumber) {
    return std::nullopt;
  }
  if (text.empty() && !subRequired) {
    return DptId{*mainNumber, 0, false};
  }
  if (!TakeChar(text, separator)) {
    return std::nullopt;
  }
  if (!subRequired && (CatalogueText::EqualIgnoringCase(text, "x") || text == "*")) {
    return DptId{*mainNumber, 0, false};
  }
  const std::optional<std::uint16_t> subNumber = TakeNumber(text, true);
  if (!subNumber || !text.empty()) {
    return std::nullopt;
  }
  return DptId{*mainNumber, *subNumber, true};
}

// "DPST-9-1", "DPT-9-1", "DPT-9": the forms of the ETS project files.
std::optional<DptId> ParseDashed(std::string_view text) {
  if (CatalogueText::StartsWithIgnoringCase(text, "DPST-")) {
    return ParseNumbers(text.substr(5), '-', true);
  }
  if (CatalogueText::StartsWithIgnoringCase(text, "DPT-")) {
    return ParseNumbers(text.substr(4), '-', false);
  }
  return std::nullopt;
}

}  // namespace

std::optional<DptId> DptCatalogue::Parse(std::string_view text) {
  text = CatalogueText::Trim(text);
  if (const DptSubtype* named = FindByName(text)) {
    return DptId{named->mainNumber, named->subNumber, true};
  }
  if (CatalogueText::StartsWithIgnoringCase(text, "DPST-") || CatalogueText::StartsWithIgnoringCase(text, "DPT-")) {
    return ParseDashed(text);
  }
  if (CatalogueText::StartsWithIgnoringCase(text, "DPT")) {
    text.remove_prefix(3);
    TakeChar(text, ' ');
  }
  return ParseNumbers(text, '.', false);
}

}  // namespace Nelmo
