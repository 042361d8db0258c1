#pragma once

#include <optional>
#include <string>

#include "KnxValueConverterApi.h"
#include "Output.h"

namespace Knxconv {

// The row the library would use, looked up without the lookup's own log.
const Nelmo::DptValueEntry& QuietEntry(const Nelmo::KnxValueConverter& converter, const KNXDPT& dpt);

// The DPT as text with the bit size from --bits (0: none given).
KNXDPT DptWithBits(const std::string& text, int bits);

// Decodes hex payload as result.dpt into result; bits 0 takes the DPT's
// size. A payload that cannot hold the DPT's value is not converted: the
// reason is the result's error. Throws InputError for a payload that is not
// hex.
void Decode(const Nelmo::KnxValueConverter& converter, const std::string& payload, int bits, TraceResult& result);

// Why the value read for dpt is not sent, or nullopt: the converters send
// impossible dates and times as they are given.
std::optional<std::string> SendError(const Nelmo::KnxValueConverter& converter, const KNXDPT& dpt,
                                     const ULOVALUE& value);

}  // namespace Knxconv
