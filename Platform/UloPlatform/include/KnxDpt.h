#pragma once

#include <cstdint>

// KNX datapoint type identifier. mainNumber 0 means "no DPT given",
// subNumber 0 the main type in general.
struct KNXDPT {
  std::uint8_t bitSize = 0;
  std::uint16_t mainNumber = 0;
  std::uint16_t subNumber = 0;
};
