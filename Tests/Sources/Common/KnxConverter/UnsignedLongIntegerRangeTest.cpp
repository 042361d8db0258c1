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
using Nelmo::UnsignedLongIntegerRange;

constexpr std::uint64_t MaxU64 = std::numeric_limits<std::uint64_t>::max();
constexpr std::uint64_t Max48 = 281474976710655;  // 2^48 - 1
constexpr std::uint64_t Two53 = 9007199254740992;

TEST(UnsignedLongIntegerRange, FieldsInOrder) {
  const UnsignedLongIntegerRange range{1, 2, 3, MaxU64, 0.5};
  EXPECT_EQ(range.internalMinimum, 1u);
  EXPECT_EQ(range.internalMaximum, 2u);
  EXPECT_EQ(range.externalMinimum, 3u);
  EXPECT_EQ(range.externalMaximum, MaxU64);
  EXPECT_EQ(range.scaleFactor, 0.5);
}

TEST(UnsignedLongIntegerRange, ScaleFactor) {
  const FactorRow<UnsignedLongIntegerRange> rows[] = {
      {{0, Max48, 0, Max48}, 1.0}, {{0, MaxU64, 0, MaxU64}, 1.0},  // spans of 2^64 - 1 without overflow
      {{10, 20, 100, 200}, 10.0},  {{0, 100, 0, 255}, 2.55},      {{0, 1, 0, MaxU64}, 18446744073709551615.0},
      {{10, 5, 0, 100}, 1.0},  // reversed internal range is rejected: stays 1.0
      {{5, 5, 0, 100}, 1.0},   // empty internal range
      {{0, 100, 7, 3}, 1.0},   // reversed external range is rejected
      {{0, 100, 7, 7}, 1.0},   // empty external range
  };
  ExpectFactors(rows);
}

TEST(UnsignedLongIntegerRange, FailedCalculationLeavesTheFactorAsItIs) {
  UnsignedLongIntegerRange range{10, 5, 0, 100, 3.0};
  range.CalculateScaleFactor();
  EXPECT_EQ(range.scaleFactor, 3.0);
}

// The messages write the bounds in full unsigned 64-bit decimal. Two non-zero
// integer spans always give a factor of at least 2^-64, so the combined
// message cannot be reached with these ranges.
TEST(UnsignedLongIntegerRange, CalculateScaleFactorMessages) {
  const MessageRow<UnsignedLongIntegerRange> rows[] = {
      {{10, 5, 0, 100},
       {ScaleFactorError("Failed to calculate the scale factor because of invalid internal range [10, 5].")}},
      {{5, 5, 0, 100},
       {ScaleFactorError("Failed to calculate the scale factor because of invalid internal range [5, 5].")}},
      {{MaxU64, MaxU64, 0, 1},
       {ScaleFactorError(
           "Failed to calculate the scale factor because of invalid internal range [18446744073709551615, "
           "18446744073709551615].")}},
      {{4294967295, 4294967295, 0, 1},
       {ScaleFactorError(
           "Failed to calculate the scale factor because of invalid internal range [4294967295, 4294967295].")}},
      {{0, 100, 7, 3},
       {ScaleFactorError("Failed to calculate the scale factor because of invalid external range [7, 3].")}},
      {{0, 100, MaxU64, 0},
       {ScaleFactorError(
           "Failed to calculate the scale factor because of invalid external range [18446744073709551615, 0].")}},
      // The internal range is checked first and ends the calculation.
      {{9, 1, 9, 1},
       {ScaleFactorError("Failed to calculate the scale factor because of invalid internal range [9, 1].")}},
      {{0, Max48, 0, Max48}, {}},
      {{0, MaxU64, 0, MaxU64}, {}},
  };
  ExpectMessages(rows);
}

TEST(UnsignedLongIntegerRange, NoMessageWhenErrorsAreNotLogged) {
  LogCapture capture(ULO_LOG_OFF);
  FilledRange<UnsignedLongIntegerRange>({10, 5, 0, 100});
  EXPECT_TRUE(capture.Lines().empty());
}

TEST(UnsignedLongIntegerRange, ScaleTo) {
  const ScaleRow<UnsignedLongIntegerRange> rows[] = {
      {{0, Max48, 0, Max48}, Max48, Max48},  // every integer up to 2^53 is exact in a double
      {{0, Max48, 0, Max48}, 0, 0},
      {{10, 20, 100, 200}, 15, 150},
      {{10, 20, 100, 200}, 25, 200},  // above the internal maximum: the external maximum
      {{10, 20, 100, 200}, MaxU64, 200},
      {{10, 20, 100, 200}, 5, 100},  // below the internal minimum: the external minimum
      {{10, 20, 100, 200}, 0, 100},
      {{0, 2, 0, 1}, 1, 1},         // 0.5 + 0.5: half rounds up
      {{0, 4, 0, 2}, 3, 2},         // 1.5 + 0.5
      {{0, 4, 0, 2}, 1, 1},         // 0.5 + 0.5
      {{0, 100, 0, 255}, 50, 127},  // 127.49999999999999 + 0.5 truncates to 127
      {{0, MaxU64, 0, MaxU64}, 0, 0},
      {{0, MaxU64, 0, MaxU64}, Two53, Two53},
      {{0, MaxU64, 0, MaxU64}, Two53 + 1, Two53},  // above 2^53 a double skips integers
      // 2^64 - 1 is 2^64 as a double, beyond the type: saturates back.
      {{0, MaxU64, 0, MaxU64}, MaxU64, MaxU64},
      {{0, 1, 0, MaxU64}, 1, MaxU64},
      // A rejected reversed range keeps factor 1.0; the clamp then takes
      // min(value, 5) - 10, which wraps in 64 bits to nearly 2^64: saturates.
      {{10, 5, 0, 100}, 12, MaxU64},
      {{10, 5, 0, 100}, 7, 0},  // below the minimum: offset 0, 0 + 0.5
  };
  ExpectScaledTo(rows);
}

TEST(UnsignedLongIntegerRange, ScaleFrom) {
  const ScaleRow<UnsignedLongIntegerRange> rows[] = {
      {{0, Max48, 0, Max48}, Max48, Max48},
      {{10, 20, 100, 200}, 150, 15},
      {{10, 20, 100, 200}, 155, 16},  // 15.5 + 0.5
      {{10, 20, 100, 200}, 154, 15},  // 15.4 + 0.5
      {{10, 20, 100, 200}, 250, 20},  // above the external maximum: the internal maximum
      {{10, 20, 100, 200}, 50, 10},   // below the external minimum: the internal minimum
      {{0, 1, 0, 4}, 2, 1},           // 0.5 + 0.5
      {{0, 1, 0, 4}, 1, 0},           // 0.25 + 0.5
      {{0, 2, 0, 4}, 3, 2},           // 1.5 + 0.5
      {{0, 100, 0, 255}, 128, 50},    // 50.196
      {{0, MaxU64, 0, MaxU64}, MaxU64, MaxU64},
      {{0, MaxU64, 0, 1}, 1, MaxU64},
  };
  ExpectScaledFrom(rows);
}

// A factor of 0 set by hand: 0 / 0 is NaN, which gives 0; infinity saturates.
TEST(UnsignedLongIntegerRange, NotANumberAndInfinitySaturate) {
  struct Row {
    std::uint64_t value;
    std::uint64_t result;
  };
  const Row rows[] = {{0, 0}, {1, MaxU64}};
  const UnsignedLongIntegerRange range{0, 1, 0, 1, 0.0};
  for (const Row& row : rows) {
    EXPECT_EQ(range.ScaleFrom(row.value), row.result);
  }
}

TEST(UnsignedLongIntegerRange, FitToRangeAndIsInRange) {
  const FitRow<UnsignedLongIntegerRange> rows[] = {
      {{10, 20, 0, 1}, 10, true, true, 10},
      {{10, 20, 0, 1}, 20, true, true, 20},
      {{10, 20, 0, 1}, 9, false, false, 10},
      {{10, 20, 0, 1}, 21, false, false, 20},
      {{10, 20, 0, 1}, 0, false, false, 10},
      {{10, 20, 0, 1}, MaxU64, false, false, 20},
      {{0, MaxU64, 0, 1}, MaxU64, true, true, MaxU64},
      {{0, Max48, 0, 1}, Max48 + 1, false, false, Max48},
      {{10, 5, 0, 1}, 7, false, false, 10},  // reversed: the lower bound is tested first
      {{10, 5, 0, 1}, 12, false, false, 5},
  };
  ExpectFits(rows);
}

// A caller may hold the value in a plain unsigned long long, which need not
// be std::uint64_t.
TEST(UnsignedLongIntegerRange, FitToRangeOfAPlainUnsignedLongLong) {
  const PlainFitRow<unsigned long long> rows[] = {
      {10, true, 10},  {20, true, 20}, {9, false, 10},
      {21, false, 20}, {0, false, 10}, {std::numeric_limits<unsigned long long>::max(), false, 20},
  };
  ExpectPlainFits(FilledRange<UnsignedLongIntegerRange>({10, 20, 0, 1}), rows);
}

TEST(UnsignedLongIntegerRange, ConversionsLogNothing) {
  const auto range = FilledRange<UnsignedLongIntegerRange>({10, 5, 0, 100});
  LogCapture capture;
  std::uint64_t value = 0;
  EXPECT_FALSE(range.FitToRange(value));
  EXPECT_FALSE(range.IsInRange(value));
  EXPECT_EQ(range.ScaleTo(7), 0u);
  EXPECT_EQ(range.ScaleFrom(50), 60u);  // 50 + 10 + 0.5
  EXPECT_TRUE(capture.Lines().empty());
}

TEST(UnsignedLongIntegerRange, ToString) {
  const TextRow<UnsignedLongIntegerRange> rows[] = {
      {{0, Max48, 0, Max48, 1.0}, "UnsignedLongIntegerRange(0, 281474976710655, 0, 281474976710655)"},
      {{0, MaxU64, 10, 5, 0.5},
       "UnsignedLongIntegerRange(0, 18446744073709551615, 10, 5)"},  // the factor is not written
  };
  ExpectTexts(rows);
}

}  // namespace
