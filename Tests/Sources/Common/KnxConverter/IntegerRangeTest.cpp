#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "ConverterLines.h"
#include "IntegerRange.h"
#include "LogCapture.h"
#include "RangeRows.h"

namespace {

using namespace TestSupport;
using Nelmo::IntegerRange;

constexpr std::int32_t Min32 = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t Max32 = std::numeric_limits<std::int32_t>::max();

TEST(IntegerRange, FieldsInOrder) {
  const IntegerRange range{-1, 2, -3, 4, 0.5};
  EXPECT_EQ(range.internalMinimum, -1);
  EXPECT_EQ(range.internalMaximum, 2);
  EXPECT_EQ(range.externalMinimum, -3);
  EXPECT_EQ(range.externalMaximum, 4);
  EXPECT_EQ(range.scaleFactor, 0.5);
}

TEST(IntegerRange, ScaleFactor) {
  const FactorRow<IntegerRange> rows[] = {
      {{-128, 127, -128, 127}, 1.0},
      {{1, 64, 0, 63}, 1.0},
      {{0, 100, 0, 255}, 2.55},             // the double nearest 2.55, slightly below it
      {{Min32, Max32, Min32, Max32}, 1.0},  // spans of 4294967295 without overflow
      {{0, 1, Min32, Max32}, 4294967295.0},
      {{Min32, Max32, 0, 1}, 1.0 / 4294967295.0},
      {{0, 100, 100, 0}, -1.0},  // reversed external range: mirrored map
      {{100, 0, 0, 255}, -2.55},
      {{5, 5, 0, 10}, 1.0},  // invalid internal range: stays 1.0
      {{0, 10, 7, 7}, 1.0},  // invalid external range: stays 1.0
      {{0, 0, 0, 0}, 1.0},
  };
  ExpectFactors(rows);
}

TEST(IntegerRange, FailedCalculationLeavesTheFactorAsItIs) {
  IntegerRange range{5, 5, 0, 10, 3.0};
  range.CalculateScaleFactor();
  EXPECT_EQ(range.scaleFactor, 3.0);
  range = IntegerRange{0, 10, 7, 7, 3.0};
  range.CalculateScaleFactor();
  EXPECT_EQ(range.scaleFactor, 3.0);
}

// Two non-zero integer spans always give a factor of at least 2^-64, so the
// combined message ("... or because of invalid external range [...]") cannot
// be reached with these ranges; only the two single messages are tested.
TEST(IntegerRange, CalculateScaleFactorMessages) {
  const MessageRow<IntegerRange> rows[] = {
      {{5, 5, 0, 10},
       {ScaleFactorError("Failed to calculate the scale factor because of invalid internal range [5, 5].")}},
      {{-7, -7, 0, 10},
       {ScaleFactorError("Failed to calculate the scale factor because of invalid internal range [-7, -7].")}},
      {{Min32, Min32, 0, 10},
       {ScaleFactorError(
           "Failed to calculate the scale factor because of invalid internal range [-2147483648, -2147483648].")}},
      {{0, 10, 7, 7},
       {ScaleFactorError("Failed to calculate the scale factor because of invalid external range [7, 7].")}},
      {{0, 10, Max32, Max32},
       {ScaleFactorError(
           "Failed to calculate the scale factor because of invalid external range [2147483647, 2147483647].")}},
      // The internal range is checked first and ends the calculation.
      {{0, 0, 0, 0},
       {ScaleFactorError("Failed to calculate the scale factor because of invalid internal range [0, 0].")}},
      {{0, 100, 0, 255}, {}},
      {{100, 0, 0, 255}, {}},
  };
  ExpectMessages(rows);
}

TEST(IntegerRange, NoMessageWhenErrorsAreNotLogged) {
  LogCapture capture(ULO_LOG_OFF);
  FilledRange<IntegerRange>({5, 5, 0, 10});
  EXPECT_TRUE(capture.Lines().empty());
}

TEST(IntegerRange, EqualRangesMapEveryValueToItself) {
  const auto range = FilledRange<IntegerRange>({-128, 127, -128, 127});
  for (std::int32_t value = -128; value <= 127; ++value) {
    EXPECT_EQ(range.ScaleTo(value), value);
    EXPECT_EQ(range.ScaleFrom(value), value);
  }
}

TEST(IntegerRange, ScaleTo) {
  const ScaleRow<IntegerRange> rows[] = {
      {{1, 64, 0, 63}, 1, 0},
      {{1, 64, 0, 63}, 64, 63},
      {{0, 100, 0, 255}, 0, 0},
      {{0, 100, 0, 255}, 50, 127},  // 127.49999999999999 + 0.5 truncates to 127, not 128
      {{0, 100, 0, 255}, 100, 255},
      {{0, 100, 0, 255}, 1, 3},  // 2.55
      {{-2, 2, -1, 1}, -3, -2},  // -1.5 rounds away from zero
      {{-2, 2, -1, 1}, -1, -1},  // -0.5 rounds away from zero
      {{-2, 2, -1, 1}, 0, 0},    // exactly 0 stays 0
      {{-2, 2, -1, 1}, 1, 1},    // 0.5 rounds away from zero
      {{-2, 2, -1, 1}, 3, 2},    // 1.5 rounds away from zero, not to even
      {{-4, 4, -2, 2}, 5, 3},    // 2.5 becomes 3, not 2
      {{-4, 4, -2, 2}, -5, -3},  // -2.5 becomes -3
      {{Min32, Max32, Min32, Max32}, Min32, Min32},
      {{Min32, Max32, Min32, Max32}, 0, 0},
      {{Min32, Max32, Min32, Max32}, Max32, Max32},
      {{5, 5, 10, 20}, 5, 10},  // invalid internal range: factor 1.0, v - 5 + 10
      {{5, 5, 10, 20}, 7, 12},
      {{5, 5, 10, 20}, 0, 5},
      {{0, 100, 100, 0}, 0, 100},  // reversed: mirrored
      {{0, 100, 100, 0}, 30, 70},
      {{0, 100, 100, 0}, 100, 0},
      {{Min32, Max32, Max32, Min32}, Min32, Max32},
      {{Min32, Max32, Max32, Min32}, Max32, Min32},
  };
  ExpectScaledTo(rows);
}

TEST(IntegerRange, ScaleFrom) {
  const ScaleRow<IntegerRange> rows[] = {
      {{1, 64, 0, 63}, 0, 1},
      {{1, 64, 0, 63}, 63, 64},
      {{0, 100, 0, 255}, 128, 50},  // 50.196 rounded
      {{0, 100, 0, 255}, 127, 50},  // 49.8 rounded
      {{0, 100, 0, 255}, 255, 100},
      {{0, 100, 0, 255}, 0, 0},
      {{-1, 1, -4, 4}, -6, -2},  // -1.5 rounds away from zero
      {{-1, 1, -4, 4}, -2, -1},  // -0.5 rounds away from zero
      {{-1, 1, -4, 4}, 0, 0},    // exactly 0 stays 0
      {{-1, 1, -4, 4}, 2, 1},    // 0.5 rounds away from zero
      {{-1, 1, -4, 4}, 6, 2},    // 1.5 rounds away from zero
      {{Min32, Max32, Min32, Max32}, Min32, Min32},
      {{Min32, Max32, Min32, Max32}, Max32, Max32},
      {{5, 5, 10, 20}, 3, -2},  // invalid internal range: factor 1.0, 5 + (3 - 10)
      {{0, 100, 100, 0}, 70, 30},
  };
  ExpectScaledFrom(rows);
}

// A result outside 32 bits (only reachable with inconsistent ranges or a
// factor set by hand) saturates at the nearer 32-bit bound; NaN gives 0.
TEST(IntegerRange, ResultsOutside32BitsSaturate) {
  struct Row {
    IntegerRange range;
    bool to;  // ScaleTo, else ScaleFrom
    std::int32_t value;
    std::int32_t result;
  };
  const Row rows[] = {
      {{0, 1, 0, Max32, 2147483647.0}, true, 2, Max32},          // 4294967294
      {{0, 1, 0, Max32, 2147483647.0}, true, -1, -Max32},        // -2147483647.5 still fits
      {{0, 1, 0, Max32, 2147483647.0}, true, -2, Min32},         // -4294967294.5
      {{0, 0, Max32, 0, 1.0}, true, 1, Max32},                   // 2147483648
      {{0, 0, Min32, 0, 1.0}, true, -1, Min32},                  // -2147483649.5
      {{0, 1, 0, 1, 0.0}, false, 0, 0},                          // 0 / 0 is NaN
      {{0, 1, 0, 1, 0.0}, false, 1, Max32},                      // +infinity
      {{0, 1, 0, 1, 0.0}, false, -1, Min32},                     // -infinity
      {{Max32, Max32, Min32, Min32, 0.5}, false, Max32, Max32},  // 2147483647 + 8589934590
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.range.ToString() + " value " + std::to_string(row.value));
    EXPECT_EQ(row.to ? row.range.ScaleTo(row.value) : row.range.ScaleFrom(row.value), row.result);
  }
}

TEST(IntegerRange, FitToRangeAndIsInRange) {
  const FitRow<IntegerRange> rows[] = {
      {{-128, 127, 0, 255}, -128, true, true, -128},  // a bound is inside
      {{-128, 127, 0, 255}, 127, true, true, 127},
      {{-128, 127, 0, 255}, 0, true, true, 0},
      {{-128, 127, 0, 255}, -129, false, false, -128},  // one beyond a bound
      {{-128, 127, 0, 255}, 128, false, false, 127},
      {{-128, 127, 0, 255}, Min32, false, false, -128},
      {{-128, 127, 0, 255}, Max32, false, false, 127},
      {{Min32, Max32, 0, 1}, Min32, true, true, Min32},
      {{Min32, Max32, 0, 1}, Max32, true, true, Max32},
      {{10, 0, 0, 1}, 5, false, false, 10},  // reversed: the lower bound is tested first
      {{10, 0, 0, 1}, -5, false, false, 10},
      {{10, 0, 0, 1}, 20, false, false, 0},
      {{10, 0, 0, 1}, 10, false, false, 0},
  };
  ExpectFits(rows);
}

// A caller may hold the value in a plain long, a type of its own that is
// 64 bits wide on some hosts.
TEST(IntegerRange, FitToRangeOfAPlainLong) {
  const PlainFitRow<long> rows[] = {
      {-128, true, -128},
      {127, true, 127},
      {-129, false, -128},
      {128, false, 127},
      {std::numeric_limits<long>::min(), false, -128},
      {std::numeric_limits<long>::max(), false, 127},
  };
  ExpectPlainFits(FilledRange<IntegerRange>({-128, 127, 0, 255}), rows);
}

TEST(IntegerRange, ConversionsLogNothing) {
  const auto range = FilledRange<IntegerRange>({5, 5, 0, 10});
  LogCapture capture;
  std::int32_t value = 100;
  range.FitToRange(value);
  EXPECT_EQ(range.IsInRange(value), true);
  EXPECT_EQ(range.ScaleTo(7), 2);
  EXPECT_EQ(range.ScaleFrom(2), 7);
  EXPECT_TRUE(capture.Lines().empty());
}

TEST(IntegerRange, ToString) {
  const TextRow<IntegerRange> rows[] = {
      {{-128, 127, -128, 127, 1.0}, "IntegerRange(-128, 127, -128, 127)"},
      {{1, 64, 0, 63, 1.0}, "IntegerRange(1, 64, 0, 63)"},
      {{0, 100, 0, 255, 2.55}, "IntegerRange(0, 100, 0, 255)"},  // the factor is not written
      {{Min32, Max32, Min32, Max32, 1.0}, "IntegerRange(-2147483648, 2147483647, -2147483648, 2147483647)"},
      {{0, 0, 0, 0, 1.0}, "IntegerRange(0, 0, 0, 0)"},
  };
  ExpectTexts(rows);
}

}  // namespace
