#include "KnxDptFormat.h"

#include <cstddef>

namespace Nelmo {

namespace {

constexpr std::int32_t VariableLength = KnxDptFormat::VariableLength;
constexpr std::size_t MainNumberCount = 254;

// Indexed by main number minus 1.
// clang-format off
constexpr std::int32_t BitSizes[MainNumberCount] = {
    1, 2, 4, 8, 8, 8, 16, 16, 16, 24,  // 1 to 10
    24, 32, 32, 32, 32, 112, 8, 8, 64, 8,  // 11 to 20
    8, 16, 8, VariableLength, 8, 8, 32, VariableLength, 64, 24,  // 21 to 30
    3, 0, 0, 0, 0, 0, 0, 0, 0, 0,  // 31 to 40
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0,  // 41 to 50
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0,  // 51 to 60
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0,  // 61 to 70
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0,  // 71 to 80
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0,  // 81 to 90
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0,  // 91 to 100
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0,  // 101 to 110
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0,  // 111 to 120
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0,  // 121 to 130
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0,  // 131 to 140
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0,  // 141 to 150
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0,  // 151 to 160
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0,  // 161 to 170
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0,  // 171 to 180
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0,  // 181 to 190
    0, 0, 0, 0, 0, 0, 0, 0, 0, 9,  // 191 to 200
    16, 16, 24, 16, 24, 24, 16, 0, 24, 32,  // 201 to 210
    16, 48, 64, 32, 40, 40, 16, 40, 48, 32,  // 211 to 220
    48, 48, 24, 48, 24, 0, 0, 0, 48, 64,  // 221 to 230
    32, 24, 0, 16, 48, 8, 16, 8, 16, 24,  // 231 to 240
    32, 48, 64, 16, 48, 16, 96, 40, 32, 24,  // 241 to 250
    48, 40, 32, 24,  // 251 to 254
};
// clang-format on

}  // namespace

std::int32_t KnxDptFormat::GetBitSize(const KNXDPT& dpt) {
  if (dpt.mainNumber == 0 || dpt.mainNumber > MainNumberCount) {
    return 0;
  }
  return BitSizes[dpt.mainNumber - 1];
}

}  // namespace Nelmo
