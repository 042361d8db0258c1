#pragma once

// Shared by the bit, integer and scene converter tests: group values built
// from and compared as bus bytes, the ranges of the standard DPT rows and the
// expected log lines.

#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "FloatRange.h"
#include "IntegerRange.h"
#include "KnxStack.h"
#include "LogCapture.h"
#include "LongIntegerRange.h"
#include "UloPlatform.h"

namespace ScalarConverterTest {

using Bytes = std::vector<unsigned char>;
using TestSupport::LogLine;

inline KNXDPT DptOf(std::uint8_t bitSize, std::uint16_t mainNumber, std::uint16_t subNumber) {
  KNXDPT dpt;
  dpt.bitSize = bitSize;
  dpt.mainNumber = mainNumber;
  dpt.subNumber = subNumber;
  return dpt;
}

inline KnxStack::GroupValue GroupOf(const Bytes& bytes, unsigned int bits) {
  return KnxStack::GroupValue(KnxStack::BinaryData(bytes.data(), static_cast<unsigned int>(bytes.size())), bits);
}

// The group value's bytes and defined size, as the bus would carry them.
inline ::testing::AssertionResult Holds(const KnxStack::GroupValue& groupValue, const Bytes& bytes, unsigned int bits) {
  const KnxStack::BinaryData expected(bytes.data(), static_cast<unsigned int>(bytes.size()));
  if (groupValue.GetRawData() == expected && groupValue.GetDefinedSize() == bits) {
    return ::testing::AssertionSuccess();
  }
  return ::testing::AssertionFailure() << "holds [" << groupValue.GetRawData().ToString() << "] of "
                                       << groupValue.GetDefinedSize() << " bits, expected [" << expected.ToString()
                                       << "] of " << bits << " bits";
}

// Stands in for a group value that a refused conversion must leave alone.
inline KnxStack::GroupValue Untouched() {
  return GroupOf({0xA5, 0x5A}, 16);
}

inline ::testing::AssertionResult IsUntouched(const KnxStack::GroupValue& groupValue) {
  return Holds(groupValue, {0xA5, 0x5A}, 16);
}

inline LogLine Trace(const char* function, const std::string& text) {
  return LogLine{ULO_LOG_TRACE, "KnxConverter", function, text};
}

inline LogLine Adjusted(const std::string& text) {
  return LogLine{ULO_LOG_INFO, "KnxConverter", "ToKnxValue", text};
}

inline LogLine Error(const char* function, const std::string& text) {
  return LogLine{ULO_LOG_ERROR, "KnxConverter", function, text};
}

// Ranges filled the way the DPT table fills them.
inline Nelmo::IntegerRange IntegerRangeOf(std::int32_t internalMin, std::int32_t internalMax, std::int32_t externalMin,
                                          std::int32_t externalMax) {
  Nelmo::IntegerRange range;
  range.internalMinimum = internalMin;
  range.internalMaximum = internalMax;
  range.externalMinimum = externalMin;
  range.externalMaximum = externalMax;
  range.scaleFactor = 1.0;
  range.CalculateScaleFactor();
  return range;
}

inline Nelmo::LongIntegerRange LongIntegerRangeOf(std::int64_t internalMin, std::int64_t internalMax,
                                                  std::int64_t externalMin, std::int64_t externalMax) {
  Nelmo::LongIntegerRange range;
  range.internalMinimum = internalMin;
  range.internalMaximum = internalMax;
  range.externalMinimum = externalMin;
  range.externalMaximum = externalMax;
  range.scaleFactor = 1.0;
  range.CalculateScaleFactor();
  return range;
}

inline Nelmo::UnsignedLongIntegerRange UnsignedLongIntegerRangeOf(std::uint64_t internalMin, std::uint64_t internalMax,
                                                                  std::uint64_t externalMin,
                                                                  std::uint64_t externalMax) {
  Nelmo::UnsignedLongIntegerRange range;
  range.internalMinimum = internalMin;
  range.internalMaximum = internalMax;
  range.externalMinimum = externalMin;
  range.externalMaximum = externalMax;
  range.scaleFactor = 1.0;
  range.CalculateScaleFactor();
  return range;
}

// Field by field, the scale factor included.
template <typename Range>
::testing::AssertionResult SameRange(const Range& actual, const Range& expected) {
  if (actual.internalMinimum == expected.internalMinimum && actual.internalMaximum == expected.internalMaximum &&
      actual.externalMinimum == expected.externalMinimum && actual.externalMaximum == expected.externalMaximum &&
      actual.scaleFactor == expected.scaleFactor) {
    return ::testing::AssertionSuccess();
  }
  return ::testing::AssertionFailure() << actual.ToString() << " factor " << actual.scaleFactor << ", expected "
                                       << expected.ToString() << " factor " << expected.scaleFactor;
}

}  // namespace ScalarConverterTest
