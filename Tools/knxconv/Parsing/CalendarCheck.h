#pragma once

#include <optional>
#include <string>

#include "KnxValueConverterApi.h"

namespace Knxconv {

// Why a date, time of day or date and time is not one that the calendar
// and the clock know (2024-02-30, 24:00:00), or nullopt. Other values pass.
// The converters send whatever fields they are given, so the tool checks
// what it read before it sends.
std::optional<std::string> CalendarError(const ULOVALUE& value);

// Why the value's year lies outside the years that the converter's bus
// format carries, or nullopt. dpt names the row in the message.
std::optional<std::string> YearWindowError(const KNXDPT& dpt, const Nelmo::KnxConverter* converter,
                                           const ULOVALUE& value);

}  // namespace Knxconv
