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
struct MainSize {
  std::uint16_t mainNumber;
  std::uint16_t bitSize;
};

constexpr std::uint16_t Variable = DptCatalogue::VariableBitSize;

constexpr MainSize MainSizes[] = {
    {1, 1},         {2, 2},    {3, 4},    {4, 8},    {5, 8},    {6, 8},         {7, 16},   {8, 16},   {9, 16},
    {10, 24},       {11, 24},  {12, 32},  {13, 32},  {14, 32},  {15, 32},       {16, 112}, {17, 8},   {18, 8},
    {19, 64},       {20, 8},   {21, 8},   {22, 16},  {23, 2},   {24, Variable}, {25, 8},   {26, 8},   {27, 32},
    {28, Variable}, {29, 64},  {30, 24},  {31, 3},   {200, 16}, {201, 16},      {202, 16}, {203, 24}, {204, 16},
    {205, 24},      {206, 24}, {207, 16}, {209, 24}, {210, 32}, {211, 16},      {212, 48}, {213, 64}, {214, 32},
    {215, 40},      {216, 40}, {217, 16}, {218, 40}, {219, 48}, {220, 32},      {221, 48}, {222, 48}, {223, 24},
    {224, 48},      {225, 24}, {229, 48}, {230, 64}, {231, 32}, {232, 24},      {234, 16}, {235, 48}, {236, 8},
    {237, 16},      {238, 8},  {239, 16}, {240, 24}, {241, 32}, {242, 48},      {243, 64}, {244, 16}, {245, 48},
    {246, 16},      {249, 48}, {250, 24}, {251, 48}, {252, 40}, {253, 32},      {254, 24}, {255, 64}, {275, 64}};

constexpr std::uint16_t MainBitSize(std::uint16_t mainNumber) {
  for (const MainSize& row : MainSizes) {
    if (row.mainNumber == mainNumber) {
      return row.bitSize;
    }
  }
  return UnknownBitSize;
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
