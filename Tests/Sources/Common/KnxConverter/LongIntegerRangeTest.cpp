#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "ConverterLines.h"
#include "LogCapture.h"
#include "LongIntegerRange.h"
#include "RangeRows.h"

namespace {

using namespace TestSupport;
using Nelmo::LongIntegerRange;

constexpr std::int64_t Min64 = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t Max64 = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t Max24 = 16777215;
constexpr std::int64_t MaxU32 = 4294967295;

TEST(LongIntegerRange, FieldsInOrder) {
  const LongIntegerRange range{-1, MaxU32, Min64, Max64, 0.5};
  EXPECT_EQ(range.internalMinimum, -1);
  EXPECT_EQ(range.internalMaximum, MaxU32);
  EXPECT_EQ(range.externalMinimum, Min64);
  EXPECT_EQ(range.externalMaximum, Max64);
  EXPECT_EQ(range.scaleFactor, 0.5);
}

TEST(LongIntegerRange, ScaleFactor) {
  const FactorRow<LongIntegerRange> rows[] = {
      {{0, MaxU32, 0, MaxU32}, 1.0},
      {{0, Max24, 0, Max24}, 1.0},
      {{0, 100, 0, 255}, 2.55},
      {{Min64, Max64, Min64, Max64}, 1.0},  // spans of 2^64 - 1 without overflow
      {{0, 1, 0, Max64}, 9223372036854775807.0},
      {{0, 100, 100, 0}, -1.0},       // reversed: mirrored map
      {{MaxU32, MaxU32, 0, 1}, 1.0},  // invalid internal range: stays 1.0
      {{0, 1, 5, 5}, 1.0},            // invalid external range: stays 1.0
  };
  ExpectFactors(rows);
}

TEST(LongIntegerRange, FailedCalculationLeavesTheFactorAsItIs) {
  LongIntegerRange range{7, 7, 0, 10, 3.0};
  range.CalculateScaleFactor();
  EXPECT_EQ(range.scaleFactor, 3.0);
}

// The messages write each bound as its low 32 bits read as a signed 32-bit
// number. Two non-zero integer spans always give a factor of at least
// 2^-64, so the combined message cannot be reached with these ranges.
TEST(LongIntegerRange, CalculateScaleFactorMessages) {
  const MessageRow<LongIntegerRange> rows[] = {
      {{MaxU32, MaxU32, 0, MaxU32},
       {ScaleFactorError("Failed to calculate the scale factor because of invalid internal range [-1, -1].")}},
      {{5, 5, 0, 1},
       {ScaleFactorError("Failed to calculate the scale factor because of invalid internal range [5, 5].")}},
      {{2147483648, 2147483648, 0, 1},
       {ScaleFactorError(
           "Failed to calculate the scale factor because of invalid internal range [-2147483648, -2147483648].")}},
      {{-1, -1, 0, 1},
       {ScaleFactorError("Failed to calculate the scale factor because of invalid internal range [-1, -1].")}},
      {{0, 1, 4294967296, 4294967296},
       {ScaleFactorError("Failed to calculate the scale factor because of invalid external range [0, 0].")}},
      {{0, 1, 4294967297, 4294967297},
       {ScaleFactorError("Failed to calculate the scale factor because of invalid external range [1, 1].")}},
      {{0, 1, Min64, Min64},
       {ScaleFactorError("Failed to calculate the scale factor because of invalid external range [0, 0].")}},
      {{0, 1, Max64, Max64},
       {ScaleFactorError("Failed to calculate the scale factor because of invalid external range [-1, -1].")}},
      {{0, 1, -7, -7},
       {ScaleFactorError("Failed to calculate the scale factor because of invalid external range [-7, -7].")}},
      {{3, 3, 4, 4},
       {ScaleFactorError("Failed to calculate the scale factor because of invalid internal range [3, 3].")}},
      {{0, MaxU32, 0, MaxU32}, {}},
      {{Min64, Max64, Max64, Min64}, {}},
  };
  ExpectMessages(rows);
}

TEST(LongIntegerRange, NoMessageWhenErrorsAreNotLogged) {
  LogCapture capture(ULO_LOG_OFF);
  FilledRange<LongIntegerRange>({MaxU32, MaxU32, 0, 1});
  EXPECT_TRUE(capture.Lines().empty());
}

TEST(LongIntegerRange, ScaleTo) {
  const ScaleRow<LongIntegerRange> rows[] = {
      {{0, MaxU32, 0, MaxU32}, MaxU32, MaxU32},
      {{0, MaxU32, 0, MaxU32}, 0, 0},
      {{0, Max24, 0, Max24}, Max24, Max24},
      {{0, 100, 0, 255}, 50, 127},  // 127.49999999999999 + 0.5 truncates to 127
      {{0, 100, 0, 255}, 100, 255},
      {{-2, 2, -1, 1}, -3, -2},    // -1.5 rounds away from zero
      {{-2, 2, -1, 1}, -1, -1},    // -0.5 rounds away from zero
      {{-2, 2, -1, 1}, 0, 0},      // exactly 0 stays 0
      {{-2, 2, -1, 1}, 1, 1},      // 0.5 rounds away from zero
      {{-2, 2, -1, 1}, 3, 2},      // 1.5 rounds away from zero
      {{-4, 4, -2, 2}, 5, 3},      // 2.5 becomes 3, not 2
      {{0, 100, 100, 0}, 30, 70},  // reversed: mirrored
      {{Min64, Max64, Min64, Max64}, 0, 0},
      {{Min64, Max64, Min64, Max64}, Min64, Min64},
      // 2^63 - 1 is 2^63 as a double, beyond the type: saturates back.
      {{Min64, Max64, Min64, Max64}, Max64, Max64},
      {{0, 1, 0, Max64}, 2, Max64},  // 2^64: saturates
      {{0, 1, 0, Max64}, -2, Min64},
      {{MaxU32, MaxU32, 0, 1}, MaxU32 + 7, 7},  // invalid internal range: factor 1.0, offset only
  };
  ExpectScaledTo(rows);
}

TEST(LongIntegerRange, ScaleFrom) {
  const ScaleRow<LongIntegerRange> rows[] = {
      {{0, Max24, 0, Max24}, Max24, Max24},
      {{0, Max24, 0, Max24}, 0, 0},
      {{0, MaxU32, 0, MaxU32}, MaxU32, MaxU32},
      {{0, 100, 0, 255}, 128, 50},  // 50.196 rounded
      {{-1, 1, -4, 4}, -6, -2},     // -1.5 rounds away from zero
      {{-1, 1, -4, 4}, -2, -1},     // -0.5 rounds away from zero
      {{-1, 1, -4, 4}, 0, 0},       // exactly 0 stays 0
      {{-1, 1, -4, 4}, 2, 1},       // 0.5 rounds away from zero
      {{-1, 1, -4, 4}, 6, 2},       // 1.5 rounds away from zero
      {{0, 100, 100, 0}, 70, 30},
      {{Min64, Max64, Min64, Max64}, Min64, Min64},
      {{Min64, Max64, Min64, Max64}, Max64, Max64},  // saturates back, as in ScaleTo
  };
  ExpectScaledFrom(rows);
}

// A factor of 0 set by hand: 0 / 0 is NaN, which gives 0; infinities saturate.
TEST(LongIntegerRange, NotANumberAndInfinitySaturate) {
  struct Row {
    std::int64_t value;
    std::int64_t result;
  };
  const Row rows[] = {{0, 0}, {1, Max64}, {-1, Min64}};
  const LongIntegerRange range{0, 1, 0, 1, 0.0};
  for (const Row& row : rows) {
    EXPECT_EQ(range.ScaleFrom(row.value), row.result);
  }
}

TEST(LongIntegerRange, FitToRangeAndIsInRange) {
  const FitRow<LongIntegerRange> rows[] = {
      {{0, MaxU32, 0, MaxU32}, -1, false, false, 0},
      {{0, MaxU32, 0, MaxU32}, 0, true, true, 0},
      {{0, MaxU32, 0, MaxU32}, MaxU32, true, true, MaxU32},
      {{0, MaxU32, 0, MaxU32}, MaxU32 + 1, false, false, MaxU32},
      {{0, MaxU32, 0, MaxU32}, Min64, false, false, 0},
      {{0, MaxU32, 0, MaxU32}, Max64, false, false, MaxU32},
      {{Min64, Max64, 0, 1}, Min64, true, true, Min64},
      {{Min64, Max64, 0, 1}, Max64, true, true, Max64},
      {{10, 0, 0, 1}, 5, false, false, 10},  // reversed: the lower bound is tested first
      {{10, 0, 0, 1}, 20, false, false, 0},
  };
  ExpectFits(rows);
}

// A caller may hold the value in a plain long long, which need not be
// std::int64_t.
TEST(LongIntegerRange, FitToRangeOfAPlainLongLong) {
  const PlainFitRow<long long> rows[] = {
      {0, true, 0},
      {4294967295, true, 4294967295},
      {-1, false, 0},
      {4294967296, false, 4294967295},
      {std::numeric_limits<long long>::min(), false, 0},
      {std::numeric_limits<long long>::max(), false, 4294967295},
  };
  ExpectPlainFits(FilledRange<LongIntegerRange>({0, MaxU32, 0, MaxU32}), rows);
}

TEST(LongIntegerRange, ConversionsLogNothing) {
  const auto range = FilledRange<LongIntegerRange>({MaxU32, MaxU32, 0, 1});
  LogCapture capture;
  std::int64_t value = 0;
  EXPECT_FALSE(range.FitToRange(value));
  EXPECT_TRUE(range.IsInRange(value));
  EXPECT_EQ(range.ScaleTo(MaxU32), 0);
  EXPECT_EQ(range.ScaleFrom(0), MaxU32);
  EXPECT_TRUE(capture.Lines().empty());
}

TEST(LongIntegerRange, ToString) {
  const TextRow<LongIntegerRange> rows[] = {
      {{0, MaxU32, 0, MaxU32, 1.0}, "LongIntegerRange(0, 4294967295, 0, 4294967295)"},  // full 64-bit decimal
      {{0, Max24, 0, Max24, 1.0}, "LongIntegerRange(0, 16777215, 0, 16777215)"},
      {{Min64, Max64, -1, 1, 0.5},
       "LongIntegerRange(-9223372036854775808, 9223372036854775807, -1, 1)"},  // the factor is not written
  };
  ExpectTexts(rows);
}

}  // namespace
