#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Knxconv {

// A command's arguments as the command line gave them: options by name
// ("--type"), positionals by the name their spec gives them ("DPT").
class Arguments {
 public:
  void SetFlag(const std::string& name) { m_flags[name] = true; }
  void AddValue(const std::string& name, std::string value) { m_values[name].push_back(std::move(value)); }
  void SetPositional(const std::string& name, std::string value) { m_positionals[name] = std::move(value); }

  bool Flag(std::string_view name) const;
  // The value of an option given once; nothing when it was not given.
  std::optional<std::string> Value(std::string_view name) const;
  // Every value of a repeated option, in command-line order.
  std::vector<std::string> Values(std::string_view name) const;
  std::optional<std::string> Positional(std::string_view name) const;
  // An option's value as a whole number from minimum to maximum, fallback
  // when not given. Throws UsageError otherwise.
  int Integer(std::string_view name, int minimum, int maximum, int fallback) const;

 private:
  std::map<std::string, bool, std::less<>> m_flags;
  std::map<std::string, std::vector<std::string>, std::less<>> m_values;
  std::map<std::string, std::string, std::less<>> m_positionals;
};

// text as a whole decimal number from minimum to maximum; nothing otherwise.
std::optional<int> ParseBoundedInteger(std::string_view text, int minimum, int maximum);

}  // namespace Knxconv
