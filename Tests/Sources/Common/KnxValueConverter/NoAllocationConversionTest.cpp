#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>
#include <vector>

#include "CountedAllocations.h"
#include "FloatRange.h"
#include "KnxConverterBit.h"
#include "KnxConverterDefault.h"
#include "KnxConverterFloat.h"
#include "KnxTestBytes.h"
#include "KnxValueConverter.h"
#include "LogCapture.h"
#include "RangeRows.h"
#include "StandardRowSamples.h"

namespace {

using KnxTest::GroupOf;

class NoAllocation : public ::testing::Test {
 protected:
  void SetUp() override {
    m_facade.Clear();
    m_facade.AddDptValueMapEntry(9, 1, 16, IVT_DOUBLE, UloDP::IVST_TEMPERATURE,
                                 Nelmo::KnxConverterFloat16BitFloat(
                                     TestSupport::FilledRange<Nelmo::FloatRange>(-273.0, 670760.0, -273.0, 670760.0)));
    m_facade.AddDptValueMapEntry(1, 0, 1, IVT_BOOL, UloDP::IVST_NONE, Nelmo::KnxConverter1Bit());
    m_facade.AddDptValueMapEntry(7, 0, 16, IVT_UINT16, UloDP::IVST_NONE, Nelmo::KnxConverterDefault());
    // The shared empty entry is made once, on first use.
    Nelmo::DptValueMap::GetEmptyEntry();
  }

  Nelmo::KnxValueConverter m_facade;
  TestSupport::LogCapture m_capture{ULO_LOG_OFF};
};

TEST_F(NoAllocation, SendingNumbersAndBooleans) {
  struct Row {
    KNXDPT dpt;
    ULOVALUE value;
    bool result;
  };
  const Row rows[] = {
      {{16, 9, 1}, ULOVALUE::Double(21.5), true},   {{16, 9, 1}, ULOVALUE::Int32(21), true},
      {{1, 1, 1}, ULOVALUE::Bool(true), true},      {{16, 7, 1}, ULOVALUE::UInt16(0x1234), true},
      {{3, 0, 0}, ULOVALUE::UInt16(0x1234), false},  // missing DPT
      {{16, 99, 1}, ULOVALUE::Double(21.5), false},  // no row
  };
  KnxStack::GroupValue groupValue;
  for (const Row& row : rows) {
    SCOPED_TRACE(row.value.ToString());
    bool result = false;
    EXPECT_EQ(CountedAllocations::During([&] { result = m_facade.ToKnxValue(row.dpt, row.value, groupValue); }), 0);
    EXPECT_EQ(result, row.result);
  }
}

TEST_F(NoAllocation, ReceivingNumbersAndBooleans) {
  struct Row {
    KNXDPT dpt;
    KnxStack::GroupValue received;
    bool result;
  };
  const Row rows[] = {
      {{16, 9, 1}, GroupOf({0x0C, 0x33}, 16), true},
      {{1, 1, 1}, GroupOf({0x01}, 6), true},  // the control field beside the bit
      {{16, 7, 1}, GroupOf({0x0C, 0x33}, 16), true},
      {{16, 9, 1}, GroupOf({0x0C}, 8), false},  // too short
      {{16, 99, 1}, GroupOf({0x0C, 0x33}, 16), false},
  };
  ULOVALUE value;
  for (const Row& row : rows) {
    SCOPED_TRACE(row.received.GetRawData().ToString());
    bool result = false;
    EXPECT_EQ(CountedAllocations::During([&] { result = m_facade.FromKnxValue(row.dpt, row.received, value); }), 0);
    EXPECT_EQ(result, row.result);
  }
}

// The counter sees the library's allocations: an active log composes text.
TEST_F(NoAllocation, AnActiveLogDoesAllocate) {
  UloLogSetThreshold(ULO_LOG_ERROR);
  const ULOVALUE temperature = ULOVALUE::Double(21.5);
  KnxStack::GroupValue groupValue;
  EXPECT_GT(CountedAllocations::During([&] { m_facade.ToKnxValue(KNXDPT{16, 99, 1}, temperature, groupValue); }), 0);
}

// The standard table, whose rows reach their converters directly: every row
// but the texts, both ways, with the samples' values and bytes.
TEST(NoAllocationStandardRows, EveryRowButTheTextsBothWays) {
  const Nelmo::KnxValueConverter facade;
  Nelmo::DptValueMap::GetEmptyEntry();
  const TestSupport::LogCapture capture(ULO_LOG_OFF);
  KnxStack::GroupValue sent;
  ULOVALUE received;
  for (const TestSupport::RowSample& sample : TestSupport::StandardRowSamples()) {
    if (sample.value.GetType() == IVT_STRING) {
      continue;
    }
    SCOPED_TRACE(sample.name);
    const KnxStack::GroupValue bytes = GroupOf(sample.bytes, sample.dpt.bitSize);
    bool toKnx = false;
    bool fromKnx = false;
    EXPECT_EQ(CountedAllocations::During([&] { toKnx = facade.ToKnxValue(sample.dpt, sample.value, sent); }), 0);
    EXPECT_EQ(CountedAllocations::During([&] { fromKnx = facade.FromKnxValue(sample.dpt, bytes, received); }), 0);
    EXPECT_TRUE(toKnx);
    EXPECT_TRUE(fromKnx);
  }
}

}  // namespace
