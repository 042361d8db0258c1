#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "ConverterLines.h"
#include "FloatRange.h"
#include "LogCapture.h"
#include "RangeRows.h"

namespace {

using namespace TestSupport;
using Nelmo::FloatIntegerRange;
using Bounds = TestSupport::RangeBounds<FloatIntegerRange>;

constexpr std::int32_t Min32 = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t Max32 = std::numeric_limits<std::int32_t>::max();
constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinity = std::numeric_limits<double>::infinity();

TEST(FloatIntegerRange, DefaultIsTheTwoOctetFloatOntoThe32BitRange) {
  LogCapture capture;
  const FloatIntegerRange range;
  EXPECT_EQ(range.internalMinimum, -671088.64);
  EXPECT_EQ(range.internalMaximum, 670760.96);
  EXPECT_EQ(range.externalMinimum, Min32);
  EXPECT_EQ(range.externalMaximum, Max32);
  EXPECT_EQ(range.scaleFactor, 3200.7814400362004);  // 4294967295 / 1341849.6
  EXPECT_EQ(range.ToString(), "FloatIntegerRange(-671089, 670761, -2147483648, 2147483647)");
  EXPECT_TRUE(capture.Lines().empty());
}

TEST(FloatIntegerRange, ConstructorTakesTheBoundsInOrder) {
  const FloatIntegerRange range(-1.5, 2.5, -3, 4);
  EXPECT_EQ(range.internalMinimum, -1.5);
  EXPECT_EQ(range.internalMaximum, 2.5);
  EXPECT_EQ(range.externalMinimum, -3);
  EXPECT_EQ(range.externalMaximum, 4);
  EXPECT_EQ(range.scaleFactor, 7.0 / 4.0);
}

TEST(FloatIntegerRange, ScaleFactor) {
  struct Row {
    FloatIntegerRange range;
    double factor;
  };
  const Row rows[] = {
      {{0.0, 100.0, 0, 255}, 2.55},
      {{-327.68, 327.67, -32768, 32767}, 100.0},
      {{0.0, 360.0, 0, 255}, 255.0 / 360.0},
      {{0.0, 1.0, Min32, Max32}, 4294967295.0},  // the 32-bit span without overflow
      {{0.0, 100.0, 255, 0}, -2.55},             // reversed: negative factor
      {{100.0, 0.0, 0, 255}, -2.55},
      {{5.5, 5.5, 0, 10}, 1.0},      // invalid double range: stays 1.0
      {{0.0, 1.0, 7, 7}, 1.0},       // invalid integer range: stays 1.0
      {{-1e308, 1e308, 0, 1}, 1.0},  // the span overflows to infinity, the factor to 0: reset to 1.0
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.range.ToString());
    EXPECT_EQ(row.range.scaleFactor, row.factor);
  }
}

TEST(FloatIntegerRange, CalculateScaleFactorMessages) {
  struct Row {
    Bounds bounds;
    std::vector<LogLine> lines;
  };
  const Row rows[] = {
      {{5.5, 5.5, 0, 10},
       {ScaleFactorError("Failed to calculate the scale factor because of invalid double range [5.5, 5.5].")}},
      {{-671088.64, -671088.64, 0, 10},
       {ScaleFactorError("Failed to calculate the scale factor because of invalid double range [-671089, -671089].")}},
      {{0.0, 1.0, 7, 7},
       {ScaleFactorError("Failed to calculate the scale factor because of invalid integer range [7, 7].")}},
      {{0.0, 1.0, Min32, Min32},
       {ScaleFactorError(
           "Failed to calculate the scale factor because of invalid integer range [-2147483648, -2147483648].")}},
      // The internal span overflows to infinity, so the factor is 0.
      {{-1e308, 1e308, 0, 1},
       {ScaleFactorError(
           "Failed to calculate the scale factor because of invalid double range [-1e+308, 1e+308] or because "
           "invalid integer range [0, 1].")}},
      // The double range is checked first and ends the calculation.
      {{2.0, 2.0, 3, 3},
       {ScaleFactorError("Failed to calculate the scale factor because of invalid double range [2, 2].")}},
      {{0.0, 100.0, 0, 255}, {}},
  };
  for (const Row& row : rows) {
    LogCapture capture;
    const FloatIntegerRange range(row.bounds.internalMinimum, row.bounds.internalMaximum, row.bounds.externalMinimum,
                                  row.bounds.externalMaximum);
    SCOPED_TRACE(range.ToString());
    EXPECT_EQ(capture.Lines(), row.lines);
  }
}

TEST(FloatIntegerRange, NoMessageWhenErrorsAreNotLogged) {
  LogCapture capture(ULO_LOG_OFF);
  const FloatIntegerRange range(5.5, 5.5, 0, 10);
  EXPECT_EQ(range.scaleFactor, 1.0);
  EXPECT_TRUE(capture.Lines().empty());
}

TEST(FloatIntegerRange, FailedCalculationLeavesTheFactorAsItIs) {
  FloatIntegerRange range(5.5, 5.5, 0, 10);
  range.scaleFactor = 3.0;
  range.CalculateScaleFactor();
  EXPECT_EQ(range.scaleFactor, 3.0);
}

TEST(FloatIntegerRange, ScaleTo) {
  struct Row {
    FloatIntegerRange range;
    double value;
    std::int32_t result;
  };
  const Row rows[] = {
      {{0.0, 100.0, 0, 255}, 100.0, 255},
      {{0.0, 100.0, 0, 255}, 50.0, 127},  // 127.49999999999999 + 0.5 truncates to 127
      {{0.0, 100.0, 0, 255}, 0.2, 1},     // 0.51 rounds up
      {{0.0, 100.0, 0, 255}, 0.0, 0},
      {{-327.68, 327.67, -32768, 32767}, -0.005, -1},  // exactly -0.5 rounds away from zero
      {{-327.68, 327.67, -32768, 32767}, 21.5, 2150},
      {{-327.68, 327.67, -32768, 32767}, -327.68, -32768},
      {{-327.68, 327.67, -32768, 32767}, 327.67, 32767},
      {{0.0, 360.0, 0, 255}, 180.0, 128},  // 127.5 rounds up
      {{0.0, 1.0, 0, 1}, 0.5, 1},          // 0.5 rounds away from zero
      {{0.0, 1.0, 0, 1}, -0.5, -1},        // -0.5 rounds away from zero
      {{0.0, 1.0, 0, 1}, 1.5, 2},          // 1.5 rounds away from zero
      {{0.0, 1.0, 0, 1}, -1.5, -2},        // -1.5 rounds away from zero
      {{0.0, 1.0, 0, 1}, 2.5, 3},          // not to even
      {{0.0, 1.0, 0, 1}, -2.5, -3},
      {{0.0, 1.0, 0, 1}, 0.0, 0},  // exactly 0 stays 0
      {{0.0, 1.0, 0, 1}, 0.49, 0},
      {{0.0, 1.0, 0, 1}, -0.49, 0},
      {{}, -671088.64, Min32},
      {{}, 0.0, 524416},                 // 524415.5311350822 rounded
      {{}, 670760.96, Max32},            // 2147483646.9999995 + 0.5
      {{0.0, 100.0, 255, 0}, 0.0, 255},  // reversed: mirrored
      {{0.0, 100.0, 255, 0}, 100.0, 0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.range.ToString() + " value " + std::to_string(row.value));
    EXPECT_EQ(row.range.ScaleTo(row.value), row.result);
  }
}

// Results outside 32 bits (only reachable when the value is not clamped
// first) saturate at the nearer 32-bit bound; NaN gives 0.
TEST(FloatIntegerRange, ScaleToSaturates) {
  struct Row {
    double value;
    std::int32_t result;
  };
  const Row rows[] = {
      {670761.0, Max32},  // just above the internal maximum
      {1e9, Max32},      {Infinity, Max32}, {-671089.0, Min32}, {-1e9, Min32}, {-Infinity, Min32}, {NaN, 0},
  };
  const FloatIntegerRange range;
  for (const Row& row : rows) {
    SCOPED_TRACE(row.value);
    EXPECT_EQ(range.ScaleTo(row.value), row.result);
  }
}

TEST(FloatIntegerRange, ScaleFromKeepsTheFraction) {
  struct Row {
    FloatIntegerRange range;
    std::int32_t value;
    double result;
  };
  const Row rows[] = {
      {{0.0, 100.0, 0, 255}, 255, 100.0},
      {{0.0, 100.0, 0, 255}, 128, 50.196078431372555},  // no rounding
      {{0.0, 100.0, 0, 255}, 1, 0.3921568627450981},
      {{0.0, 100.0, 0, 255}, 0, 0.0},
      {{-327.68, 327.67, -32768, 32767}, 2150, 21.5},
      {{-327.68, 327.67, -32768, 32767}, -32768, -327.68},
      {{}, Min32, -671088.64},
      {{0.0, 100.0, 255, 0}, 0, 100.0},  // reversed
      // The difference to the external minimum is taken in 32 bits and wraps
      // modulo 2^32: 2147483647 + 100 becomes -2147483549.
      {{0.0, 100.0, -100, 100}, Max32, -1073741774.5},
      {{0.0, 100.0, 100, 300}, Min32, 1073741774.0},  // -2147483648 - 100 becomes 2147483548
      {{}, Max32, -671088.6403124237},                // 2147483647 + 2147483648 becomes -1
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.range.ToString() + " value " + std::to_string(row.value));
    EXPECT_EQ(row.range.ScaleFrom(row.value), row.result);
  }
}

TEST(FloatIntegerRange, FitToRangeAndIsInRange) {
  struct Row {
    double value;
    bool inRange;
    bool untouched;
    double fitted;
  };
  const Row rows[] = {
      {0.0, true, true, 0.0},          {100.0, true, true, 100.0},     {50.5, true, true, 50.5},
      {-0.001, false, false, 0.0},     {100.001, false, false, 100.0}, {-Infinity, false, false, 0.0},
      {Infinity, false, false, 100.0},
  };
  const FloatIntegerRange range(0.0, 100.0, 0, 255);
  for (const Row& row : rows) {
    SCOPED_TRACE(row.value);
    EXPECT_EQ(range.IsInRange(row.value), row.inRange);
    double value = row.value;
    EXPECT_EQ(range.FitToRange(value), row.untouched);
    EXPECT_EQ(value, row.fitted);
  }
}

TEST(FloatIntegerRange, NotANumberIsNeverInRangeAndPassesFitToRange) {
  const FloatIntegerRange range(0.0, 100.0, 0, 255);
  EXPECT_FALSE(range.IsInRange(NaN));
  double value = NaN;
  EXPECT_TRUE(range.FitToRange(value));
  EXPECT_TRUE(std::isnan(value));
}

TEST(FloatIntegerRange, ConversionsLogNothing) {
  const FloatIntegerRange range(5.5, 5.5, 0, 10);
  LogCapture capture;
  double value = 0.0;
  EXPECT_FALSE(range.FitToRange(value));
  EXPECT_TRUE(range.IsInRange(value));
  EXPECT_EQ(range.ScaleTo(7.5), 2);
  EXPECT_EQ(range.ScaleFrom(2), 7.5);
  EXPECT_TRUE(capture.Lines().empty());
}

TEST(FloatIntegerRange, ToString) {
  const TextRow<FloatIntegerRange> rows[] = {
      {{}, "FloatIntegerRange(-671089, 670761, -2147483648, 2147483647)"},  // 6 significant digits
      {{0.0, 100.0, 0, 255}, "FloatIntegerRange(0, 100, 0, 255)"},
      {{-327.68, 327.67, -32768, 32767}, "FloatIntegerRange(-327.68, 327.67, -32768, 32767)"},
      {{0.125, 1234567.0, 0, 1}, "FloatIntegerRange(0.125, 1.23457e+06, 0, 1)"},
  };
  ExpectTexts(rows);
}

}  // namespace
