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
#include "KnxValueConverter.h"
#include "LogCapture.h"

namespace {

using Bytes = std::vector<unsigned char>;

// Counts the heap allocations made while it lives.
class AllocationWatch {
 public:
  AllocationWatch() : m_before(CountedAllocations::Total()) {}
  int Count() const { return static_cast<int>(CountedAllocations::Total() - m_before); }

 private:
  std::uint64_t m_before;
};

KnxStack::GroupValue GroupOf(const Bytes& bytes, unsigned int bits) {
  return KnxStack::GroupValue(KnxStack::BinaryData(bytes.data(), static_cast<unsigned int>(bytes.size())), bits);
}

class NoAllocation : public ::testing::Test {
 protected:
  void SetUp() override {
    m_facade.Clear();
    Nelmo::FloatRange range;
    range.internalMinimum = -273.0;
    range.internalMaximum = 670760.0;
    range.externalMinimum = -273.0;
    range.externalMaximum = 670760.0;
    range.scaleFactor = 1.0;
    range.CalculateScaleFactor();
    m_facade.AddDptValueMapEntry(9, 1, 16, IVT_DOUBLE, UloDP::IVST_TEMPERATURE,
                                 Nelmo::KnxConverterFloat16BitFloat(range));
    m_facade.AddDptValueMapEntry(1, 0, 1, IVT_BOOL, UloDP::IVST_NONE, Nelmo::KnxConverter1Bit());
    m_facade.AddDptValueMapEntry(7, 0, 16, IVT_UINT16, UloDP::IVST_NONE, Nelmo::KnxConverterDefault());
    // The shared empty entry is made once, on first use.
    Nelmo::DptValueMap::GetEmptyEntry();
  }

  Nelmo::KnxValueConverter m_facade;
  TestSupport::LogCapture m_capture{ULO_LOG_OFF};
};

TEST_F(NoAllocation, SendingNumbersAndBooleans) {
  const ULOVALUE temperature = ULOVALUE::Double(21.5);
  const ULOVALUE converted = ULOVALUE::Int32(21);
  const ULOVALUE on = ULOVALUE::Bool(true);
  const ULOVALUE count = ULOVALUE::UInt16(0x1234);
  KnxStack::GroupValue groupValue;
  KNXDPT missing{3, 0, 0};
  bool results[6] = {};
  int counts[6] = {};
  {
    AllocationWatch watch;
    results[0] = m_facade.ToKnxValue(KNXDPT{16, 9, 1}, temperature, groupValue);
    counts[0] = watch.Count();
    results[1] = m_facade.ToKnxValue(KNXDPT{16, 9, 1}, converted, groupValue);
    counts[1] = watch.Count();
    results[2] = m_facade.ToKnxValue(KNXDPT{1, 1, 1}, on, groupValue);
    counts[2] = watch.Count();
    results[3] = m_facade.ToKnxValue(KNXDPT{16, 7, 1}, count, groupValue);
    counts[3] = watch.Count();
    results[4] = m_facade.ToKnxValue(missing, count, groupValue);
    counts[4] = watch.Count();
    results[5] = m_facade.ToKnxValue(KNXDPT{16, 99, 1}, temperature, groupValue);
    counts[5] = watch.Count();
  }
  const bool expected[6] = {true, true, true, true, false, false};
  for (int index = 0; index < 6; ++index) {
    EXPECT_EQ(results[index], expected[index]) << index;
    EXPECT_EQ(counts[index], 0) << index;
  }
}

TEST_F(NoAllocation, ReceivingNumbersAndBooleans) {
  const KnxStack::GroupValue temperature = GroupOf({0x0C, 0x33}, 16);
  const KnxStack::GroupValue controlField = GroupOf({0x01}, 6);
  const KnxStack::GroupValue tooShort = GroupOf({0x0C}, 8);
  ULOVALUE value;
  bool results[5] = {};
  int counts[5] = {};
  {
    AllocationWatch watch;
    results[0] = m_facade.FromKnxValue(KNXDPT{16, 9, 1}, temperature, value);
    counts[0] = watch.Count();
    results[1] = m_facade.FromKnxValue(KNXDPT{1, 1, 1}, controlField, value);
    counts[1] = watch.Count();
    results[2] = m_facade.FromKnxValue(KNXDPT{16, 7, 1}, temperature, value);
    counts[2] = watch.Count();
    results[3] = m_facade.FromKnxValue(KNXDPT{16, 9, 1}, tooShort, value);
    counts[3] = watch.Count();
    results[4] = m_facade.FromKnxValue(KNXDPT{16, 99, 1}, temperature, value);
    counts[4] = watch.Count();
  }
  const bool expected[5] = {true, true, true, false, false};
  for (int index = 0; index < 5; ++index) {
    EXPECT_EQ(results[index], expected[index]) << index;
    EXPECT_EQ(counts[index], 0) << index;
  }
}

// The watch sees the library's allocations: an active log composes text.
TEST_F(NoAllocation, AnActiveLogDoesAllocate) {
  UloLogSetThreshold(ULO_LOG_ERROR);
  const ULOVALUE temperature = ULOVALUE::Double(21.5);
  KnxStack::GroupValue groupValue;
  int count = 0;
  {
    AllocationWatch watch;
    m_facade.ToKnxValue(KNXDPT{16, 99, 1}, temperature, groupValue);
    count = watch.Count();
  }
  EXPECT_GT(count, 0);
}

}  // namespace
