#pragma once

#include <optional>
#include <string_view>

#include "UloPlatform.h"

namespace Knxconv {

// The datapoint type of an export ("DPST-9-1", "DPT-9") or as people write
// it ("9.001", "9", "DPT_Value_Temp"). Several may be listed, separated by
// commas or blanks; the first counts. Nullopt for an empty text; throws
// InputError for anything else.
std::optional<KNXDPT> ParseEtsDpt(std::string_view text);

}  // namespace Knxconv
