#include <gtest/gtest.h>

#include <cstdint>
#include <map>

#include "KnxDptFormat.h"

namespace {

using Nelmo::KnxDptFormat;

struct Size {
  std::uint16_t mainNumber;
  std::int32_t bits;
};

// Every main number with a format of its own; all others have size 0.
const Size KnownSizes[] = {
    {1, 1},           {2, 2},    {3, 4},    {4, 8},    {5, 8},    {6, 8},           {7, 16},   {8, 16},   {9, 16},
    {10, 24},         {11, 24},  {12, 32},  {13, 32},  {14, 32},  {15, 32},         {16, 112}, {17, 8},   {18, 8},
    {19, 64},         {20, 8},   {21, 8},   {22, 16},  {23, 8},   {24, 2147483647}, {25, 8},   {26, 8},   {27, 32},
    {28, 2147483647}, {29, 64},  {30, 24},  {31, 3},   {200, 9},  {201, 16},        {202, 16}, {203, 24}, {204, 16},
    {205, 24},        {206, 24}, {207, 16}, {209, 24}, {210, 32}, {211, 16},        {212, 48}, {213, 64}, {214, 32},
    {215, 40},        {216, 40}, {217, 16}, {218, 40}, {219, 48}, {220, 32},        {221, 48}, {222, 48}, {223, 24},
    {224, 48},        {225, 24}, {229, 48}, {230, 64}, {231, 32}, {232, 24},        {234, 16}, {235, 48}, {236, 8},
    {237, 16},        {238, 8},  {239, 16}, {240, 24}, {241, 32}, {242, 48},        {243, 64}, {244, 16}, {245, 48},
    {246, 16},        {247, 96}, {248, 40}, {249, 32}, {250, 24}, {251, 48},        {252, 40}, {253, 32}, {254, 24},
};

TEST(KnxDptFormat, GivesTheSizeOfEveryKnownMainNumber) {
  for (const Size& row : KnownSizes) {
    EXPECT_EQ(KnxDptFormat::GetBitSize(KNXDPT{0, row.mainNumber, 0}), row.bits) << "main " << row.mainNumber;
  }
}

TEST(KnxDptFormat, GivesZeroForEveryOtherMainNumberUpTo254) {
  std::map<std::uint16_t, std::int32_t> known;
  for (const Size& row : KnownSizes) {
    known[row.mainNumber] = row.bits;
  }
  ASSERT_EQ(known.size(), 81u);
  for (std::uint16_t main = 1; main <= 254; ++main) {
    if (known.count(main) == 0) {
      EXPECT_EQ(KnxDptFormat::GetBitSize(KNXDPT{0, main, 0}), 0) << "main " << main;
    }
  }
}

const Size EdgeSizes[] = {
    {0, 0},   {32, 0},  {199, 0},  {208, 0},   {226, 0},  {227, 0},         {228, 0}, {233, 0},
    {255, 0}, {256, 0}, {1000, 0}, {65535, 0}, {16, 112}, {24, 2147483647}, {31, 3},
};

TEST(KnxDptFormat, EdgesOfTheTable) {
  for (const Size& row : EdgeSizes) {
    EXPECT_EQ(KnxDptFormat::GetBitSize(KNXDPT{0, row.mainNumber, 0}), row.bits) << "main " << row.mainNumber;
  }
}

TEST(KnxDptFormat, IgnoresSubNumberAndBitSize) {
  EXPECT_EQ(KnxDptFormat::GetBitSize(KNXDPT{0, 9, 1}), 16);
  EXPECT_EQ(KnxDptFormat::GetBitSize(KNXDPT{8, 9, 65535}), 16);
  EXPECT_EQ(KnxDptFormat::GetBitSize(KNXDPT{16, 0, 1}), 0);
  EXPECT_EQ(KnxDptFormat::GetBitSize(KNXDPT{255, 255, 1}), 0);
}

TEST(KnxDptFormat, VariableLengthIsTheLargestSigned32BitNumber) {
  EXPECT_EQ(KnxDptFormat::VariableLength, 2147483647);
  EXPECT_EQ(KnxDptFormat::GetBitSize(KNXDPT{0, 28, 1}), KnxDptFormat::VariableLength);
}

}  // namespace
