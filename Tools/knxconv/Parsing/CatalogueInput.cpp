#include "CatalogueInput.h"

#include <array>
#include <optional>

#include "DptText.h"
#include "InputError.h"
#include "NumberText.h"
#include "ValueText.h"

namespace Knxconv {

namespace {

struct BooleanWord {
  std::string_view word;
  bool value;
};

constexpr std::array<BooleanWord, 8> BooleanWords = {{
    {"on", true},
    {"off", false},
    {"yes", true},
    {"no", false},
    {"true", true},
    {"false", false},
    {"1", true},
    {"0", false},
}};

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

std::string BooleanText(const Nelmo::DptSubtype* subtype, std::string_view text) {
  for (const BooleanWord& word : BooleanWords) {
    if (EqualsIgnoringCase(text, word.word)) {
      return word.value ? "true" : "false";
    }
  }
  if (subtype != nullptr) {
    if (const std::optional<std::uint32_t> value = Nelmo::DptCatalogue::ValueOfName(*subtype, text)) {
      return *value != 0 ? "true" : "false";
    }
  }
  return std::string(text);
}

// "2024-03-04T07:30:15": the T only where a digit stands on either side.
std::string DateTimeText(std::string_view text) {
  std::string result(text);
  for (std::size_t i = 1; i + 1 < result.size(); ++i) {
    if ((result[i] == 'T' || result[i] == 't') && IsDigit(result[i - 1]) && IsDigit(result[i + 1])) {
      result[i] = ' ';
    }
  }
  return result;
}

// The length of the decimal number text starts with: sign, digits, point,
// exponent.
std::size_t NumberLength(std::string_view text) {
  std::size_t length = 0;
  auto digits = [&text, &length]() {
    const std::size_t start = length;
    while (length < text.size() && IsDigit(text[length])) {
      ++length;
    }
    return length > start;
  };
  if (length < text.size() && (text[length] == '-' || text[length] == '+')) {
    ++length;
  }
  bool any = digits();
  if (length < text.size() && text[length] == '.') {
    ++length;
    any = digits() || any;
  }
  if (!any) {
    return 0;
  }
  const std::size_t mantissa = length;
  if (length < text.size() && (text[length] == 'e' || text[length] == 'E')) {
    ++length;
    if (length < text.size() && (text[length] == '-' || text[length] == '+')) {
      ++length;
    }
    if (!digits()) {
      length = mantissa;
    }
  }
  return length;
}

std::string NumberText(const KNXDPT& dpt, const Nelmo::DptSubtype& subtype, std::string_view text) {
  const std::size_t length = NumberLength(text);
  const std::string_view unit = Trim(text.substr(length));
  if (length == 0 || unit.empty() || *subtype.unit == '\0') {
    return std::string(text);
  }
  if (unit != subtype.unit) {
    throw InputError("'" + std::string(text) + "' has the wrong unit for " + FormatDpt(dpt) + " (expected " +
                     subtype.unit + ")");
  }
  return std::string(text.substr(0, length));
}

}  // namespace

const Nelmo::DptSubtype* SubtypeOf(const KNXDPT& dpt) {
  return dpt.subNumber == 0 ? nullptr : Nelmo::DptCatalogue::Find(dpt.mainNumber, dpt.subNumber);
}

std::string NormaliseHex(std::string_view text) {
  std::string result;
  bool groupStart = true;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == ':' || c == '-' || c == ' ' || c == '\t') {
      result.push_back(' ');
      groupStart = true;
      continue;
    }
    if (groupStart && c == '0' && i + 1 < text.size() && (text[i + 1] == 'x' || text[i + 1] == 'X')) {
      ++i;
      groupStart = false;
      continue;
    }
    result.push_back(c);
    groupStart = false;
  }
  return result;
}

std::string NormaliseValue(const KNXDPT& dpt, UloValueType type, std::string_view text) {
  const Nelmo::DptSubtype* subtype = SubtypeOf(dpt);
  const std::string_view trimmed = Trim(text);
  switch (KindOf(type)) {
    case ValueKind::Boolean:
      return BooleanText(subtype, trimmed);
    case ValueKind::DateTime:
      return DateTimeText(text);
    case ValueKind::Number:
    case ValueKind::Signed32:
    case ValueKind::Byte:
    case ValueKind::Unsigned16:
    case ValueKind::Unsigned32:
    case ValueKind::Unsigned64:
      if (subtype == nullptr) {
        return std::string(text);
      }
      if (const std::optional<std::uint32_t> value = Nelmo::DptCatalogue::ValueOfName(*subtype, trimmed)) {
        return std::to_string(*value);
      }
      return NumberText(dpt, *subtype, trimmed);
    default:
      return std::string(text);
  }
}

}  // namespace Knxconv
