#include "EtsDptText.h"

#include <string>

#include "DptText.h"
#include "InputError.h"
#include "NumberText.h"

namespace Knxconv {

namespace {

bool StartsWithIgnoringCase(std::string_view text, std::string_view prefix) {
  return text.size() >= prefix.size() && EqualsIgnoringCase(text.substr(0, prefix.size()), prefix);
}

// "9-1" or "9" after the prefix, as "9.1" or "9".
std::string Dotted(std::string_view numbers) {
  std::string dotted(numbers);
  const std::size_t dash = dotted.find('-');
  if (dash != std::string::npos) {
    dotted[dash] = '.';
  }
  return dotted;
}

}  // namespace

std::optional<KNXDPT> ParseEtsDpt(std::string_view text) {
  std::string_view first = Trim(text);
  first = first.substr(0, first.find_first_of(", \t"));
  if (first.empty()) {
    return std::nullopt;
  }
  std::string dotted(first);
  if (StartsWithIgnoringCase(first, "DPST-")) {
    dotted = Dotted(first.substr(5));
  } else if (StartsWithIgnoringCase(first, "DPT-")) {
    dotted = Dotted(first.substr(4));
  }
  try {
    return ParseDpt(dotted);
  } catch (const InputError&) {
    throw InputError("not a datapoint type: '" + std::string(first) + "'");
  }
}

}  // namespace Knxconv
