#pragma once

#include <cstdint>

#include "NelmoExport.h"
#include "UloPlatform.h"

namespace Nelmo {

// Sizes of the KNX byte formats by DPT main number.
class NELMO_EXPORT KnxDptFormat {
 public:
  // Marks the formats of any length (texts of main numbers 24 and 28).
  static constexpr std::int32_t VariableLength = 2147483647;

  // Bits of the format of dpt's main number; 0 for an unknown main number.
  // The sub number plays no part.
  static std::int32_t GetBitSize(const KNXDPT& dpt);
};

}  // namespace Nelmo
