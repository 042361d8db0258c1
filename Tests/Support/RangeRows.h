#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "LogCapture.h"

// The range tests' tables: each row gives a range by its bounds and what the
// range does with them. A range is filled the way the converters' owner
// fills it: bounds, factor 1.0, one calculation.
namespace TestSupport {

template <typename Range>
using InternalOf = decltype(Range::internalMinimum);
template <typename Range>
using ExternalOf = decltype(Range::externalMinimum);

template <typename Range>
struct RangeBounds {
  InternalOf<Range> internalMinimum;
  InternalOf<Range> internalMaximum;
  ExternalOf<Range> externalMinimum;
  ExternalOf<Range> externalMaximum;
};

template <typename Range>
Range FilledRange(const RangeBounds<Range>& bounds) {
  Range range;
  range.internalMinimum = bounds.internalMinimum;
  range.internalMaximum = bounds.internalMaximum;
  range.externalMinimum = bounds.externalMinimum;
  range.externalMaximum = bounds.externalMaximum;
  range.scaleFactor = 1.0;
  range.CalculateScaleFactor();
  return range;
}

template <typename Range>
Range FilledRange(InternalOf<Range> internalMinimum, InternalOf<Range> internalMaximum,
                  ExternalOf<Range> externalMinimum, ExternalOf<Range> externalMaximum) {
  return FilledRange(RangeBounds<Range>{internalMinimum, internalMaximum, externalMinimum, externalMaximum});
}

template <typename Range>
struct FactorRow {
  RangeBounds<Range> bounds;
  double factor;
};

template <typename Range, std::size_t N>
void ExpectFactors(const FactorRow<Range> (&rows)[N]) {
  for (const FactorRow<Range>& row : rows) {
    const Range range = FilledRange(row.bounds);
    SCOPED_TRACE(range.ToString());
    EXPECT_EQ(range.scaleFactor, row.factor);
  }
}

// The lines that filling the range writes.
template <typename Range>
struct MessageRow {
  RangeBounds<Range> bounds;
  std::vector<LogLine> lines;
};

template <typename Range, std::size_t N>
void ExpectMessages(const MessageRow<Range> (&rows)[N]) {
  for (const MessageRow<Range>& row : rows) {
    LogCapture capture;
    const Range range = FilledRange(row.bounds);
    SCOPED_TRACE(range.ToString());
    EXPECT_EQ(capture.Lines(), row.lines);
  }
}

// For the integer ranges, whose two sides have the same type.
template <typename Range>
struct ScaleRow {
  RangeBounds<Range> bounds;
  InternalOf<Range> value;
  InternalOf<Range> result;
};

template <typename Range, std::size_t N>
void ExpectScaledTo(const ScaleRow<Range> (&rows)[N]) {
  for (const ScaleRow<Range>& row : rows) {
    const Range range = FilledRange(row.bounds);
    SCOPED_TRACE(range.ToString() + " value " + std::to_string(row.value));
    EXPECT_EQ(range.ScaleTo(row.value), row.result);
  }
}

template <typename Range, std::size_t N>
void ExpectScaledFrom(const ScaleRow<Range> (&rows)[N]) {
  for (const ScaleRow<Range>& row : rows) {
    const Range range = FilledRange(row.bounds);
    SCOPED_TRACE(range.ToString() + " value " + std::to_string(row.value));
    EXPECT_EQ(range.ScaleFrom(row.value), row.result);
  }
}

template <typename Range>
struct FitRow {
  RangeBounds<Range> bounds;
  InternalOf<Range> value;
  bool inRange;
  bool untouched;
  InternalOf<Range> fitted;
};

template <typename Range, std::size_t N>
void ExpectFits(const FitRow<Range> (&rows)[N]) {
  for (const FitRow<Range>& row : rows) {
    const Range range = FilledRange(row.bounds);
    SCOPED_TRACE(range.ToString() + " value " + std::to_string(row.value));
    EXPECT_EQ(range.IsInRange(row.value), row.inRange);
    InternalOf<Range> value = row.value;
    EXPECT_EQ(range.FitToRange(value), row.untouched);
    EXPECT_EQ(value, row.fitted);
  }
}

// A value held in a plain type of the caller's (long, long long, ...).
template <typename Plain>
struct PlainFitRow {
  Plain value;
  bool untouched;
  Plain fitted;
};

template <typename Range, typename Plain, std::size_t N>
void ExpectPlainFits(const Range& range, const PlainFitRow<Plain> (&rows)[N]) {
  for (const PlainFitRow<Plain>& row : rows) {
    SCOPED_TRACE(row.value);
    Plain value = row.value;
    EXPECT_EQ(range.FitToRange(value), row.untouched);
    EXPECT_EQ(value, row.fitted);
  }
}

template <typename Range>
struct TextRow {
  Range range;
  std::string text;
};

template <typename Range, std::size_t N>
void ExpectTexts(const TextRow<Range> (&rows)[N]) {
  for (const TextRow<Range>& row : rows) {
    EXPECT_EQ(row.range.ToString(), row.text);
  }
}

}  // namespace TestSupport
