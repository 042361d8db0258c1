#include <gtest/gtest.h>

#include <cmath>
#include <iomanip>
#include <limits>
#include <ostream>

#include "UloRelScaling.h"

namespace {

struct CodeRow {
  unsigned char code;
  double percent;
  unsigned char codeAgain;
};

// Bit 3 set: increase (positive); bits 0-2: stop or a step of 100 / 2^(n-1).
const CodeRow codes[] = {
    {0x0, 0.0, 0x0},
    {0x1, -100.0, 0x1},
    {0x2, -50.0, 0x2},
    {0x3, -25.0, 0x3},
    {0x4, -12.5, 0x4},
    {0x5, -6.25, 0x5},
    {0x6, -3.125, 0x6},
    {0x7, -1.5625, 0x7},
    {0x8, 0.0, 0x0},  // increase with step 0 stops like
                      // code 0
    {0x9, 100.0, 0x9},
    {0xA, 50.0, 0xA},
    {0xB, 25.0, 0xB},
    {0xC, 12.5, 0xC},
    {0xD, 6.25, 0xD},
    {0xE, 3.125, 0xE},
    {0xF, 1.5625, 0xF},
};

void PrintTo(const CodeRow& row, std::ostream* out) {
  *out << "code " << int{row.code};
}

class UloRelScalingCode : public ::testing::TestWithParam<CodeRow> {};

TEST_P(UloRelScalingCode, ReadsTheSignedStepAndWritesTheCodeBack) {
  const CodeRow& row = GetParam();
  const double percent = GetRelScalingFromByte(row.code);
  EXPECT_EQ(percent, row.percent);
  EXPECT_EQ(GetRelScalingAsByte(percent), row.codeAgain);
}

INSTANTIATE_TEST_SUITE_P(EveryFourBitCode, UloRelScalingCode, ::testing::ValuesIn(codes));

TEST(UloRelScaling, FromByteIgnoresTheHighNibble) {
  EXPECT_EQ(GetRelScalingFromByte(0x19), 100.0);
  EXPECT_EQ(GetRelScalingFromByte(0xF7), -1.5625);
  EXPECT_EQ(GetRelScalingFromByte(0xF0), 0.0);
}

struct PercentRow {
  double percent;
  unsigned char code;
};

double Above(double value) {
  return std::nextafter(value, std::numeric_limits<double>::infinity());
}

constexpr double Infinity = std::numeric_limits<double>::infinity();

// The boundary between two steps is their geometric mean; on it the smaller
// step wins.
const PercentRow percents[] = {
    {0.0, 0x0},
    {-0.0, 0x0},
    {std::numeric_limits<double>::quiet_NaN(), 0x0},
    {100.0, 0x9},
    {-100.0, 0x1},
    {150.0, 0x9},
    {1e300, 0x9},
    {Infinity, 0x9},
    {-Infinity, 0x1},
    {Above(std::sqrt(100.0 * 50.0)), 0x9},
    {std::sqrt(100.0 * 50.0), 0xA},
    {-std::sqrt(100.0 * 50.0), 0x2},
    {50.0, 0xA},
    {Above(std::sqrt(50.0 * 25.0)), 0xA},
    {std::sqrt(50.0 * 25.0), 0xB},
    {30.0, 0xB},
    {Above(std::sqrt(25.0 * 12.5)), 0xB},
    {std::sqrt(25.0 * 12.5), 0xC},
    {-10.0, 0x4},
    {Above(std::sqrt(12.5 * 6.25)), 0xC},
    {std::sqrt(12.5 * 6.25), 0xD},
    {5.0, 0xD},
    {Above(std::sqrt(6.25 * 3.125)), 0xD},
    {std::sqrt(6.25 * 3.125), 0xE},
    {-4.0, 0x6},
    {Above(std::sqrt(3.125 * 1.5625)), 0xE},
    {std::sqrt(3.125 * 1.5625), 0xF},
    {1.5625, 0xF},
    {-1.0, 0x7},
    {0.001, 0xF},
    {std::numeric_limits<double>::denorm_min(), 0xF},
    {-std::numeric_limits<double>::denorm_min(), 0x7},
};

void PrintTo(const PercentRow& row, std::ostream* out) {
  *out << std::setprecision(17) << row.percent << "%";
}

class UloRelScalingPercent : public ::testing::TestWithParam<PercentRow> {};

TEST_P(UloRelScalingPercent, TakesTheNearestStepOnALogScale) {
  const PercentRow& row = GetParam();
  EXPECT_EQ(GetRelScalingAsByte(row.percent), row.code) << row.percent;
}

INSTANTIATE_TEST_SUITE_P(Percentages, UloRelScalingPercent, ::testing::ValuesIn(percents));

}  // namespace
