#pragma once

#include <string>
#include <string_view>

#include "DptCatalogue.h"
#include "UloPlatform.h"

namespace Knxconv {

// The catalogue's sub-type of a DPT; nullptr for a main type alone or a
// number the catalogue does not hold.
const Nelmo::DptSubtype* SubtypeOf(const KNXDPT& dpt);

// A payload as people copy it, made into the pairs ParseHex reads: "0x0C33",
// "0C:33", "0C-33" and "0c 33" all become hex pairs with blanks.
std::string NormaliseHex(std::string_view text);

// A value as people type it for a DPT, made into the form the value parsers
// read: booleans as on/off, yes/no or the sub-type's value names; enumerations
// by value name; date-times with a T between date and time; numbers followed
// by the sub-type's unit. Text that none of these fit is returned as it is,
// for the parsers to judge. Throws InputError for a number with another unit
// than the sub-type's.
std::string NormaliseValue(const KNXDPT& dpt, UloValueType type, std::string_view text);

}  // namespace Knxconv
