#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "KnxStack.h"

namespace Knxconv {

// Reads a payload written as hexadecimal pairs, in either case, with or
// without blanks between the pairs ("0C 33", "0c33"). Throws InputError for
// an empty payload, a character that is not a hex digit, or a group of odd
// length.
KnxStack::BinaryData ParseHex(std::string_view text);
// The same into data, with the reason why not as the result instead of
// thrown: a trace may refuse many payloads, and a throw costs more than a
// conversion.
std::optional<std::string> ReadHex(std::string_view text, KnxStack::BinaryData& data);

}  // namespace Knxconv
