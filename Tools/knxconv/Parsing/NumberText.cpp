#include "NumberText.h"

#include <charconv>
#include <cmath>
#include <system_error>

namespace Knxconv {

namespace {

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

char ToLower(char c) {
  return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

std::optional<std::uint64_t> ParseUnsigned(std::string_view text, std::uint64_t maximum) {
  if (text.empty() || !IsDigit(text.front())) {
    return std::nullopt;
  }
  std::uint64_t value = 0;
  const char* end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, value);
  if (result.ec != std::errc() || result.ptr != end || value > maximum) {
    return std::nullopt;
  }
  return value;
}

std::optional<std::int64_t> ParseSigned(std::string_view text, std::int64_t minimum, std::int64_t maximum) {
  if (text.empty() || text.front() != '-') {
    const std::optional<std::uint64_t> value = ParseUnsigned(text, static_cast<std::uint64_t>(maximum));
    if (maximum < 0 || !value || static_cast<std::int64_t>(*value) < minimum) {
      return std::nullopt;
    }
    return static_cast<std::int64_t>(*value);
  }
  if (minimum >= 0) {
    return std::nullopt;
  }
  // The magnitude of the most negative number is one more than the largest.
  const std::uint64_t limit = static_cast<std::uint64_t>(-(minimum + 1)) + 1U;
  const std::optional<std::uint64_t> magnitude = ParseUnsigned(text.substr(1), limit);
  if (!magnitude) {
    return std::nullopt;
  }
  if (*magnitude == 0) {
    return 0;
  }
  // -(m - 1) - 1 stays inside the signed range also for the most negative m.
  const std::int64_t value = -static_cast<std::int64_t>(*magnitude - 1U) - 1;
  if (value > maximum) {
    return std::nullopt;
  }
  return value;
}

std::optional<double> ParseDecimal(std::string_view text) {
  const bool plus = !text.empty() && text.front() == '+';
  const std::string_view number = plus ? text.substr(1) : text;
  const bool minus = !number.empty() && number.front() == '-';
  const std::string_view unsignedPart = minus ? number.substr(1) : number;
  // Only plain decimal forms: no "inf", "nan" or hexadecimal floats.
  if ((plus && minus) || unsignedPart.empty() || !(IsDigit(unsignedPart.front()) || unsignedPart.front() == '.')) {
    return std::nullopt;
  }
  double value = 0.0;
  const char* end = number.data() + number.size();
  const auto result = std::from_chars(number.data(), end, value, std::chars_format::general);
  if (result.ec != std::errc() || result.ptr != end || !std::isfinite(value)) {
    return std::nullopt;
  }
  return value;
}

std::string_view Trim(std::string_view text) {
  const auto blank = [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; };
  while (!text.empty() && blank(text.front())) {
    text.remove_prefix(1);
  }
  while (!text.empty() && blank(text.back())) {
    text.remove_suffix(1);
  }
  return text;
}

bool EqualsIgnoringCase(std::string_view first, std::string_view second) {
  if (first.size() != second.size()) {
    return false;
  }
  for (std::size_t i = 0; i < first.size(); ++i) {
    if (ToLower(first[i]) != ToLower(second[i])) {
      return false;
    }
  }
  return true;
}

}  // namespace Knxconv
