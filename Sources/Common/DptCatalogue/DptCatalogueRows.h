#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>

#include "DptCatalogue.h"

namespace Nelmo::DptCatalogueRows {

// All rows, ordered by main and sub number.
extern const DptSubtype* const Rows;
extern const std::size_t RowCount;

constexpr double NoLimit = std::numeric_limits<double>::quiet_NaN();
// Marks a main number left out of MainBitSize, which the table may not hold.
constexpr std::uint16_t UnknownBitSize = 0xFFFF;

// The size of each main type's format in the standard.
constexpr std::uint16_t MainBitSize(std::uint16_t mainNumber) {
  switch (mainNumber) {
    case 1:
      return 1;
    case 2:
    case 23:
      return 2;
    case 31:
      return 3;
    case 3:
      return 4;
    case 7:
    case 8:
    case 9:
    case 22:
    case 200:
    case 201:
    case 202:
    case 204:
    case 207:
    case 211:
    case 217:
    case 234:
    case 237:
    case 239:
    case 244:
    case 246:
      return 16;
    case 10:
    case 11:
    case 30:
    case 203:
    case 205:
    case 206:
    case 209:
    case 223:
    case 225:
    case 232:
    case 240:
    case 250:
    case 254:
      return 24;
    case 12:
    case 13:
    case 14:
    case 15:
    case 27:
    case 210:
    case 214:
    case 220:
    case 231:
    case 241:
    case 253:
      return 32;
    case 215:
    case 216:
    case 218:
    case 252:
      return 40;
    case 212:
    case 219:
    case 221:
    case 222:
    case 224:
    case 229:
    case 235:
    case 242:
    case 245:
    case 249:
    case 251:
      return 48;
    case 19:
    case 29:
    case 213:
    case 230:
    case 243:
    case 255:
    case 275:
      return 64;
    case 16:
      return 112;
    case 4:
    case 5:
    case 6:
    case 17:
    case 18:
    case 20:
    case 21:
    case 25:
    case 26:
    case 236:
    case 238:
      return 8;
    case 24:
    case 28:
      return DptCatalogue::VariableBitSize;
    default:
      return UnknownBitSize;
  }
}

constexpr DptSubtype Row(std::uint16_t mainNumber, std::uint16_t subNumber, const char* name, const char* description,
                         const char* unit = "", double minimum = NoLimit, double maximum = NoLimit) {
  return DptSubtype{mainNumber, subNumber, MainBitSize(mainNumber), name, description, unit, minimum, maximum,
                    nullptr,    0};
}

template <std::size_t N>
constexpr DptSubtype Named(std::uint16_t mainNumber, std::uint16_t subNumber, const char* name, const char* description,
                           const DptValueName (&names)[N]) {
  return DptSubtype{mainNumber,
                    subNumber,
                    MainBitSize(mainNumber),
                    name,
                    description,
                    "",
                    static_cast<double>(names[0].value),
                    static_cast<double>(names[N - 1].value),
                    names,
                    N};
}

}  // namespace Nelmo::DptCatalogueRows
