#pragma once

// Shared by the bit, integer and scene converter tests: group values built
// from and compared as bus bytes, the ranges of the standard DPT rows, the
// expected log lines and the checks every converter family gets.

#include <cstddef>
#include <vector>

#include <gtest/gtest.h>

#include "ConverterChecks.h"
#include "ConverterLines.h"
#include "FloatRange.h"
#include "IntegerRange.h"
#include "KnxConverter.h"
#include "KnxStack.h"
#include "KnxTestBytes.h"
#include "LogCapture.h"
#include "LongIntegerRange.h"
#include "RangeRows.h"
#include "UloPlatform.h"

namespace ScalarConverterTest {

using KnxTest::Bytes;
using KnxTest::GroupOf;
using KnxTest::Holds;
using Nelmo::IntegerRange;
using Nelmo::LongIntegerRange;
using Nelmo::UnsignedLongIntegerRange;
using TestSupport::Adjusted;
using TestSupport::Error;
using TestSupport::ExpectCloneKeepsRange;
using TestSupport::ExpectRoundTripAllocatesNothing;
using TestSupport::FilledRange;
using TestSupport::LogLine;
using TestSupport::Trace;

// Stands in for a group value that a refused conversion must leave alone.
inline KnxStack::GroupValue Untouched() {
  return GroupOf({0xA5, 0x5A}, 16);
}

inline ::testing::AssertionResult IsUntouched(const KnxStack::GroupValue& groupValue) {
  return Holds(groupValue, {0xA5, 0x5A}, 16);
}

struct SendRow {
  ULOVALUE value;
  Bytes bytes;
};

// Sends each row's value into a group value that starts as start.
inline void ExpectSends(Nelmo::KnxConverter& converter, const KNXDPT& dpt, const std::vector<SendRow>& rows,
                        unsigned int bits, const KnxStack::GroupValue& start = KnxStack::GroupValue()) {
  for (const SendRow& row : rows) {
    SCOPED_TRACE("value " + row.value.ToString());
    KnxStack::GroupValue groupValue = start;
    EXPECT_TRUE(converter.ToKnxValue(dpt, row.value, groupValue));
    EXPECT_TRUE(Holds(groupValue, row.bytes, bits));
  }
}

// Receiving on a main number that is not the converter's fails without a
// line and leaves the value alone.
inline void ExpectNotReceivedSilently(Nelmo::KnxConverter& converter, const KNXDPT& dpt,
                                      const KnxStack::GroupValue& groupValue) {
  TestSupport::LogCapture capture;
  ULOVALUE value = ULOVALUE::Bool(false);
  EXPECT_FALSE(converter.FromKnxValue(dpt, groupValue, value));
  EXPECT_FALSE(value.GetBool());
  EXPECT_TRUE(capture.Lines().empty());
}

// A refusal leaves the group value alone and writes nothing at level 1 or
// above.
inline void ExpectRefusedSilently(Nelmo::KnxConverter& converter, const KNXDPT& dpt, const ULOVALUE& value) {
  TestSupport::LogCapture capture(ULO_LOG_INFO);
  KnxStack::GroupValue groupValue = Untouched();
  EXPECT_FALSE(converter.ToKnxValue(dpt, value, groupValue));
  EXPECT_TRUE(IsUntouched(groupValue));
  EXPECT_TRUE(capture.Lines().empty());
}

struct RefusalRow {
  const char* name;
  KNXDPT dpt;
  ULOVALUE value;
};

template <std::size_t N>
void ExpectRefusedSilently(Nelmo::KnxConverter& converter, const RefusalRow (&rows)[N]) {
  for (const RefusalRow& row : rows) {
    SCOPED_TRACE(row.name);
    ExpectRefusedSilently(converter, row.dpt, row.value);
  }
}

}  // namespace ScalarConverterTest
