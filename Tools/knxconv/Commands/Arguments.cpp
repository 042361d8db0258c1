#include "Arguments.h"

#include <charconv>

#include "UsageError.h"

namespace Knxconv {

bool Arguments::Flag(std::string_view name) const {
  return m_flags.find(name) != m_flags.end();
}

std::optional<std::string> Arguments::Value(std::string_view name) const {
  const auto found = m_values.find(name);
  if (found == m_values.end() || found->second.empty()) {
    return std::nullopt;
  }
  return found->second.back();
}

std::vector<std::string> Arguments::Values(std::string_view name) const {
  const auto found = m_values.find(name);
  return found == m_values.end() ? std::vector<std::string>() : found->second;
}

std::optional<std::string> Arguments::Positional(std::string_view name) const {
  const auto found = m_positionals.find(name);
  if (found == m_positionals.end()) {
    return std::nullopt;
  }
  return found->second;
}

int Arguments::Integer(std::string_view name, int minimum, int maximum, int fallback) const {
  const std::optional<std::string> text = Value(name);
  if (!text) {
    return fallback;
  }
  const std::optional<int> number = ParseBoundedInteger(*text, minimum, maximum);
  if (!number) {
    throw UsageError(std::string(name) + " must be a whole number from " + std::to_string(minimum) + " to " +
                     std::to_string(maximum) + ", not '" + *text + "'");
  }
  return *number;
}

std::optional<int> ParseBoundedInteger(std::string_view text, int minimum, int maximum) {
  int number = 0;
  const char* end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number);
  if (text.empty() || result.ec != std::errc() || result.ptr != end || number < minimum || number > maximum) {
    return std::nullopt;
  }
  return number;
}

}  // namespace Knxconv
