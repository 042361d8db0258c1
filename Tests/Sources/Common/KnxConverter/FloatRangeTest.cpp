#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "ConverterLines.h"
#include "FloatRange.h"
#include "LogCapture.h"
#include "RangeRows.h"

namespace {

using namespace TestSupport;
using Nelmo::FloatRange;

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double FloatMax = 3.4028234663852886e+38;

using Bounds = TestSupport::RangeBounds<FloatRange>;

const Bounds TwoOctetFloat{-671088.64, 670760.96, -671088.64, 670760.96};

TEST(FloatRange, FieldsInOrder) {
  const FloatRange range{-1.5, 2.5, -3.5, 4.5, 0.5};
  EXPECT_EQ(range.internalMinimum, -1.5);
  EXPECT_EQ(range.internalMaximum, 2.5);
  EXPECT_EQ(range.externalMinimum, -3.5);
  EXPECT_EQ(range.externalMaximum, 4.5);
  EXPECT_EQ(range.scaleFactor, 0.5);
}

TEST(FloatRange, ScaleFactorIsNeverNegative) {
  const FactorRow<FloatRange> rows[] = {
      {TwoOctetFloat, 1.0},
      {{-FloatMax, FloatMax, -FloatMax, FloatMax}, 1.0},
      {{0.0, 100.0, 0.0, 255.0}, 2.55},
      {{10.0, 0.0, 0.0, 100.0}, 10.0},  // reversed internal range: +10, not -10
      {{0.0, 10.0, 100.0, 0.0}, 10.0},  // reversed external range
      {{10.0, 0.0, 100.0, 0.0}, 10.0},
      {{5.0, 5.0, 0.0, 1.0}, 1.0},       // invalid double range: stays 1.0
      {{0.0, 1.0, 3.5, 3.5}, 1.0},       // invalid external range: stays 1.0
      {{0.0, 1e300, 0.0, 1e-300}, 1.0},  // the quotient underflows to 0: reset to 1.0
  };
  ExpectFactors(rows);
}

TEST(FloatRange, FailedCalculationLeavesTheFactorAsItIs) {
  FloatRange range{5.0, 5.0, 0.0, 1.0, 3.0};
  range.CalculateScaleFactor();
  EXPECT_EQ(range.scaleFactor, 3.0);
}

TEST(FloatRange, CalculateScaleFactorMessages) {
  const MessageRow<FloatRange> rows[] = {
      {{5.0, 5.0, 0.0, 1.0},
       {ScaleFactorError("Failed to calculate the scale factor because of invalid double range [5, 5].")}},
      {{-671088.64, -671088.64, 0.0, 1.0},
       {ScaleFactorError("Failed to calculate the scale factor because of invalid double range [-671089, -671089].")}},
      {{0.0, 1.0, 3.5, 3.5},
       {ScaleFactorError("Failed to calculate the scale factor because of invalid external range [3.5, 3.5].")}},
      {{0.0, 1.0, FloatMax, FloatMax},
       {ScaleFactorError(
           "Failed to calculate the scale factor because of invalid external range [3.40282e+38, 3.40282e+38].")}},
      {{0.0, 1e300, 0.0, 1e-300},
       {ScaleFactorError(
           "Failed to calculate the scale factor because of invalid double range [0, 1e+300] or because invalid "
           "external range [0, 1e-300].")}},
      // The double range is checked first and ends the calculation.
      {{2.0, 2.0, 3.0, 3.0},
       {ScaleFactorError("Failed to calculate the scale factor because of invalid double range [2, 2].")}},
      {TwoOctetFloat, {}},
      {{10.0, 0.0, 0.0, 100.0}, {}},
  };
  ExpectMessages(rows);
}

TEST(FloatRange, NoMessageWhenErrorsAreNotLogged) {
  LogCapture capture(ULO_LOG_OFF);
  FilledRange<FloatRange>({5.0, 5.0, 0.0, 1.0});
  EXPECT_TRUE(capture.Lines().empty());
}

TEST(FloatRange, ScaleToAndScaleFromArePureDouble) {
  struct Row {
    Bounds bounds;
    double value;
    double to;    // ScaleTo(value)
    double from;  // ScaleFrom(value)
  };
  const Row rows[] = {
      {TwoOctetFloat, 21.5, 21.5, 21.5},  // equal ranges: the identity
      {TwoOctetFloat, -671088.64, -671088.64, -671088.64},
      // Identity up to the rounding of the subtraction and the addition.
      {TwoOctetFloat, 670760.96, 670760.9600000001, 670760.9600000001},
      {{0.0, 100.0, 0.0, 255.0}, 50.0, 127.49999999999999, 19.607843137254903},  // no rounding
      {{0.0, 100.0, 0.0, 255.0}, 128.0, 326.4, 50.196078431372555},
      {{0.0, 1.0, 0.0, 1.0}, 0.5, 0.5, 0.5},
      {{0.0, 1.0, 0.0, 1.0}, -0.5, -0.5, -0.5},
      {{0.0, 1.0, 0.0, 1.0}, 1.5, 1.5, 1.5},
      {{0.0, 1.0, 0.0, 1.0}, -1.5, -1.5, -1.5},
      // A reversed internal range still gives +10, and the map is not
      // mirrored: (value - 10) * 10 + 0.
      {{10.0, 0.0, 0.0, 100.0}, 5.0, -50.0, 10.5},
      {{10.0, 0.0, 0.0, 100.0}, 10.0, 0.0, 11.0},
      {{0.0, 1.0, 0.0, 1.0}, Infinity, Infinity, Infinity},
  };
  for (const Row& row : rows) {
    const FloatRange range = FilledRange(row.bounds);
    SCOPED_TRACE(range.ToString() + " value " + std::to_string(row.value));
    EXPECT_EQ(range.ScaleTo(row.value), row.to);
    EXPECT_EQ(range.ScaleFrom(row.value), row.from);
  }
}

TEST(FloatRange, ScaleOfNotANumberIsNotANumber) {
  const FloatRange range = FilledRange(TwoOctetFloat);
  EXPECT_TRUE(std::isnan(range.ScaleTo(NaN)));
  EXPECT_TRUE(std::isnan(range.ScaleFrom(NaN)));
}

TEST(FloatRange, FitToRangeAndIsInRange) {
  const FitRow<FloatRange> rows[] = {
      {TwoOctetFloat, 700000.0, false, false, 670760.96},
      {TwoOctetFloat, -700000.0, false, false, -671088.64},
      {TwoOctetFloat, 670760.96, true, true, 670760.96},
      {TwoOctetFloat, -671088.64, true, true, -671088.64},
      {TwoOctetFloat, 0.0, true, true, 0.0},
      {TwoOctetFloat, Infinity, false, false, 670760.96},
      {TwoOctetFloat, -Infinity, false, false, -671088.64},
      {{10.0, 0.0, 0.0, 100.0}, 5.0, false, false, 10.0},  // reversed: the lower bound is tested first
      {{10.0, 0.0, 0.0, 100.0}, 20.0, false, false, 0.0},
  };
  ExpectFits(rows);
}

TEST(FloatRange, NotANumberIsNeverInRangeAndPassesFitToRange) {
  const FloatRange range = FilledRange(TwoOctetFloat);
  EXPECT_FALSE(range.IsInRange(NaN));
  double value = NaN;
  EXPECT_TRUE(range.FitToRange(value));
  EXPECT_TRUE(std::isnan(value));
}

TEST(FloatRange, ConversionsLogNothing) {
  const auto range = FilledRange<FloatRange>({5.0, 5.0, 0.0, 1.0});
  LogCapture capture;
  double value = 0.0;
  EXPECT_FALSE(range.FitToRange(value));
  EXPECT_TRUE(range.IsInRange(value));
  EXPECT_EQ(range.ScaleTo(7.0), 2.0);
  EXPECT_EQ(range.ScaleFrom(2.0), 7.0);
  EXPECT_TRUE(capture.Lines().empty());
}

TEST(FloatRange, ToString) {
  const TextRow<FloatRange> rows[] = {
      {{-671088.64, 670760.96, -671088.64, 670760.96, 1.0}, "FloatRange(-671089, 670761, -671089, 670761)"},
      {{-FloatMax, FloatMax, -FloatMax, FloatMax, 1.0},
       "FloatRange(-3.40282e+38, 3.40282e+38, -3.40282e+38, 3.40282e+38)"},
      {{-273.0, 670760.0, -273.0, 670760.0, 1.0}, "FloatRange(-273, 670760, -273, 670760)"},
      {{0.0, 100.0, 0.0, 255.0, 2.55}, "FloatRange(0, 100, 0, 255)"},  // the factor is not written
  };
  ExpectTexts(rows);
}

}  // namespace
