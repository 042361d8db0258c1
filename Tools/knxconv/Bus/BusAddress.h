#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Knxconv {

// Reads a group address as installers write it: "1/2/3" (main 0-31,
// middle 0-7, sub 0-255), "1/515" (main, sub 0-2047) or the 16-bit number
// ("2563"). Throws InputError otherwise.
std::uint16_t ParseGroupAddress(std::string_view text);

// "1/2/3": always the three-level form.
std::string FormatGroupAddress(std::uint16_t address);

// "1.1.5": area, line, device.
std::string FormatIndividualAddress(std::uint16_t address);

}  // namespace Knxconv
