#pragma once

#include <optional>
#include <string>

#include "KnxStack.h"
#include "UloPlatform.h"

namespace Knxconv {

// Why a received payload cannot hold a value of dpt's format, or nullopt
// when it can. The library decodes a payload that is too short as 0 and,
// given a smaller bit size, only the front of a longer one; the tool never
// shows a value the bus did not carry. A payload longer than a format of
// more than 6 bits is left to the library, which refuses it by its size. bits is the bit size the user gave,
// 0 for none. Formats of unknown or variable size are left to the library.
std::optional<std::string> PayloadSizeError(const KNXDPT& dpt, unsigned int bits, const KnxStack::BinaryData& data);

}  // namespace Knxconv
