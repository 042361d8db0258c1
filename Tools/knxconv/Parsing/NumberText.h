#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace Knxconv {

// Whole decimal numbers without sign, spaces or anything else around them;
// nullopt when the text is not one or exceeds maximum.
std::optional<std::uint64_t> ParseUnsigned(std::string_view text, std::uint64_t maximum);
// The same with an optional leading minus sign, within minimum and maximum.
std::optional<std::int64_t> ParseSigned(std::string_view text, std::int64_t minimum, std::int64_t maximum);
// A finite decimal number ("21.5", "-3", "1e3"); nullopt for anything else.
std::optional<double> ParseDecimal(std::string_view text);
// The text without leading and trailing blanks.
std::string_view Trim(std::string_view text);
// Case-insensitive comparison of ASCII texts.
bool EqualsIgnoringCase(std::string_view first, std::string_view second);

}  // namespace Knxconv
