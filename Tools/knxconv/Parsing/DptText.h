#pragma once

#include <string>
#include <string_view>

#include "UloPlatform.h"

namespace Knxconv {

// Reads a DPT in any spelling the catalogue knows ("9.001", "9.1", "9",
// "9.x", "DPST-9-1", "DPT_Value_Temp", ...); a main type alone has sub number
// 0. "0" means that no DPT is given. The bit size is left 0. Throws
// InputError when the text is not a DPT, naming the nearest known one.
KNXDPT ParseDpt(std::string_view text);

// "9.001": the sub number in three digits, as DPTs are usually written.
std::string FormatDpt(const KNXDPT& dpt);

// The standard table's label of a row: "9.x" for a main number's general
// row, "9.001" for the others, except "10.1" for 10.001.
std::string DptLabel(const KNXDPT& dpt);

}  // namespace Knxconv
