#pragma once

#include <string>
#include <string_view>

#include "UloPlatform.h"

namespace Knxconv {

// How a value type is written as text and held in a ULOVALUE.
enum class ValueKind {
  NoValue,     // IVT_NONE and IVT_ANY: no payload at all
  Boolean,     // true, false, 1, 0
  Number,      // a double
  Signed32,    // a signed 32-bit integer (IVT_TIMESPAN in seconds)
  Byte,        // 0 to 255
  Unsigned16,  // 0 to 65535
  Unsigned32,  // 0 to 4294967295
  Unsigned64,  // 0 to 18446744073709551615
  Text,        // UTF-8, taken as it is
  Date,        // YYYY-MM-DD
  Time,        // [Www ]hh:mm:ss
  DateTime,    // [Www ]YYYY-MM-DD hh:mm:ss
  Unknown,     // a number the platform does not name
};

ValueKind KindOf(UloValueType type);

// A value type by its name without "IVT_" in any case ("double", "Percent";
// "IVT_DOUBLE" is read as well) or by its number ("1036"). Throws InputError
// for a name or number that the platform does not know.
UloValueType ParseValueType(std::string_view text);

// The enumerator's name ("IVT_DOUBLE"), or the number for unknown types.
std::string ValueTypeText(UloValueType type);
std::string ValueSubTypeText(UloDP::UloValueSubType subType);

// A value of the given type read from text. A time or date-time may start
// with a weekday (Mon to Sun), which is all the weekday it gets; summerTime
// sets the summer-time flag of a date-time. Throws InputError when the text
// is not a value of that type.
ULOVALUE ParseValue(UloValueType type, std::string_view text, bool summerTime);

}  // namespace Knxconv
