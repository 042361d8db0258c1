#pragma once

#include <optional>
#include <string>

#include "KnxValueConverterApi.h"

namespace Knxconv {

// The converter's class name without its namespace ("KnxConverter1Bit").
std::string ConverterClassName(const Nelmo::KnxConverter& converter);

// The text form of the converter's range, or nullopt for a converter that
// holds none.
std::optional<std::string> ConverterRangeText(const Nelmo::KnxConverter& converter);

}  // namespace Knxconv
