#pragma once

#include <cstdint>

#include "UloPlatform.h"

namespace TestSupport {

// A DPT by number, bit size left 0, as tables of cases write it.
inline KNXDPT MakeDpt(std::uint16_t mainNumber, std::uint16_t subNumber) {
  KNXDPT dpt;
  dpt.mainNumber = mainNumber;
  dpt.subNumber = subNumber;
  return dpt;
}

}  // namespace TestSupport
