#include <gtest/gtest.h>

#include <cstdint>

#include "KnxValueConverter.h"

namespace {

UloValueType Type(int number) {
  return static_cast<UloValueType>(number);
}

// Marks a DPT field that a refused default must leave alone.
constexpr std::uint16_t Untouched = 4711;

::testing::AssertionResult Is(const KNXDPT& dpt, unsigned bitSize, unsigned mainNumber, unsigned subNumber) {
  if (dpt.bitSize == bitSize && dpt.mainNumber == mainNumber && dpt.subNumber == subNumber) {
    return ::testing::AssertionSuccess();
  }
  return ::testing::AssertionFailure() << "DPT is " << unsigned{dpt.bitSize} << " bits " << dpt.mainNumber << "."
                                       << dpt.subNumber << ", expected " << bitSize << " bits " << mainNumber << "."
                                       << subNumber;
}

struct ValueTypeRow {
  int type;
  std::uint8_t bitSizeOnEntry;
  bool found;
  std::uint8_t bitSize;
  std::uint16_t mainNumber;
  std::uint16_t subNumber;
};

// Found rows give the whole DPT; refused rows leave it as it was.
const ValueTypeRow ValueTypeRows[] = {
    {IVT_BOOL, 0, true, 1, 1, 1},
    {IVT_BOOL, 8, true, 1, 1, 1},
    {IVT_BOOL, 3, true, 1, 1, 1},
    {IVT_DIMMING, 0, true, 4, 3, 7},
    {IVT_DIMMING, 4, true, 4, 3, 7},
    {IVT_DIMMING, 16, true, 4, 3, 7},
    {IVT_BYTE, 0, true, 8, 5, 0},
    {IVT_BYTE, 16, true, 8, 5, 0},
    {IVT_PERCENT, 0, true, 8, 5, 1},
    {IVT_PERCENT, 16, true, 8, 5, 1},
    {IVT_DOUBLE, 0, true, 16, 9, 0},
    {IVT_DOUBLE, 4, true, 4, 3, 0},
    {IVT_DOUBLE, 8, true, 8, 5, 1},
    {IVT_DOUBLE, 16, true, 16, 9, 0},
    {IVT_DOUBLE, 32, true, 32, 14, 0},
    {IVT_DOUBLE, 24, false, 24, 0, Untouched},
    {IVT_DOUBLE, 64, false, 64, 0, Untouched},
    {IVT_DOUBLE, 1, false, 1, 0, Untouched},
    {IVT_TIME, 0, true, 24, 10, 1},
    {IVT_TIME, 64, true, 24, 10, 1},
    {IVT_DATE, 0, true, 24, 11, 1},
    {IVT_DATE, 8, true, 24, 11, 1},
    {IVT_UINT32, 0, true, 32, 12, 1},
    {IVT_UINT32, 8, true, 8, 5, 0},
    {IVT_UINT32, 16, true, 16, 7, 0},
    {IVT_UINT32, 24, true, 24, 232, 0},
    {IVT_UINT32, 32, true, 32, 12, 0},
    {IVT_UINT32, 48, false, 48, 0, Untouched},
    {IVT_UINT32, 4, false, 4, 0, Untouched},
    {IVT_INT32, 0, true, 32, 13, 0},
    {IVT_INT32, 8, true, 8, 6, 0},
    {IVT_INT32, 16, true, 16, 8, 0},
    {IVT_INT32, 32, true, 32, 13, 0},
    {IVT_INT32, 24, false, 24, 0, Untouched},
    {IVT_INT32, 64, false, 64, 0, Untouched},
    {IVT_TIMESPAN, 0, true, 32, 13, 100},
    {IVT_TIMESPAN, 16, true, 32, 13, 100},
    {IVT_UINT64, 0, true, 40, 218, 0},
    {IVT_UINT64, 48, true, 40, 218, 0},
    {IVT_DATETIME, 0, true, 64, 19, 1},
    {IVT_DATETIME, 24, true, 64, 19, 1},
    {IVT_STRING, 0, true, 112, 16, 1},
    {IVT_STRING, 8, true, 8, 4, 2},
    {IVT_STRING, 112, true, 112, 16, 1},
    {IVT_STRING, 16, false, 16, 0, Untouched},
    {IVT_STRING, 14, false, 14, 0, Untouched},
    {IVT_UINT16, 0, false, 0, 0, Untouched},
    {IVT_UINT16, 16, false, 16, 0, Untouched},
    {IVT_NONE, 0, false, 0, 0, Untouched},
    {IVT_ANY, 16, false, 16, 0, Untouched},
    {IVT_TYPE_5, 32, false, 32, 0, Untouched},
    {IVT_UNSIGNED_20, 32, false, 32, 0, Untouched},
    {IVT_DATETIME_102, 64, false, 64, 0, Untouched},
    {IVT_TIME_104, 24, false, 24, 0, Untouched},
    {IVT_DATE_105, 24, false, 24, 0, Untouched},
    {IVT_DATETIME_201, 64, false, 64, 0, Untouched},
    {IVT_DOUBLE_1005, 8, false, 8, 0, Untouched},
    {IVT_BYTE_1021, 8, false, 8, 0, Untouched},
    {IVT_DOUBLE_1039, 16, false, 16, 0, Untouched},
    {77, 16, false, 16, 0, Untouched},
};

TEST(DefaultDptForValueType, EveryRowOfTheTable) {
  const Nelmo::KnxValueConverter facade;
  for (const ValueTypeRow& row : ValueTypeRows) {
    SCOPED_TRACE(::testing::Message() << "type " << row.type << " with " << unsigned{row.bitSizeOnEntry} << " bits");
    KNXDPT dpt{row.bitSizeOnEntry, 0, Untouched};
    const ULOVALUE value(Type(row.type));
    EXPECT_EQ(facade.GetDefaultMappingDptForValueType(dpt, value), row.found);
    EXPECT_TRUE(Is(dpt, row.bitSize, row.mainNumber, row.subNumber));
  }
}

TEST(DefaultDptForValueType, ReadsOnlyTheValuesTypeNotItsPayload) {
  const Nelmo::KnxValueConverter facade;
  KNXDPT dpt;
  EXPECT_TRUE(facade.GetDefaultMappingDptForValueType(dpt, ULOVALUE::Double(1e300)));
  EXPECT_TRUE(Is(dpt, 16, 9, 0));
}

struct SizeRow {
  std::uint8_t bitSize;
  int type;
  bool found;
  std::uint16_t mainNumber;
  std::uint16_t subNumber;
};

// Found rows write main and sub only; the bit size always stays.
const SizeRow SizeRows[] = {
    {1, IVT_BOOL, true, 1, 1},
    {1, IVT_STRING, true, 1, 1},
    {2, IVT_BOOL, true, 2, 1},
    {2, IVT_DOUBLE, true, 2, 1},
    {4, IVT_DOUBLE, true, 3, 0},
    {4, IVT_DIMMING, true, 3, 7},
    {4, IVT_INT32, true, 3, 7},
    {8, IVT_INT32, true, 6, 0},
    {8, IVT_STRING, true, 4, 2},
    {8, IVT_DOUBLE, true, 5, 1},
    {8, IVT_PERCENT, true, 5, 1},
    {8, IVT_BYTE, true, 5, 0},
    {8, IVT_UINT32, true, 5, 0},
    {8, IVT_DOUBLE_1005, true, 5, 0},
    {16, IVT_INT32, true, 8, 0},
    {16, IVT_UINT16, true, 7, 0},
    {16, IVT_UINT32, true, 7, 0},
    {16, IVT_DOUBLE, true, 9, 0},
    {16, IVT_UNSIGNED_20, true, 9, 0},
    {16, IVT_TIMESPAN, true, 9, 0},
    {24, IVT_UINT32, true, 232, 0},
    {24, IVT_DATE, true, 11, 1},
    {24, IVT_TIME, true, 10, 1},
    {24, IVT_DOUBLE, true, 10, 1},
    {24, IVT_DATE_105, true, 10, 1},
    {32, IVT_UINT32, true, 12, 0},
    {32, IVT_TIMESPAN, true, 13, 100},
    {32, IVT_INT32, true, 13, 0},
    {32, IVT_DOUBLE, true, 14, 0},
    {32, IVT_UINT16, true, 14, 0},
    {40, IVT_UINT64, true, 218, 0},
    {40, IVT_UINT16, true, 218, 0},
    {48, IVT_UINT64, true, 219, 1},
    {48, IVT_STRING, true, 219, 1},
    {64, IVT_DATETIME, true, 19, 1},
    {64, IVT_UINT64, true, 19, 1},
    {112, IVT_STRING, true, 16, 1},
    {112, IVT_BYTE, true, 16, 0},
    {112, 77, true, 16, 0},
    {0, IVT_DOUBLE, false, 0, Untouched},
    {0, IVT_BOOL, false, 0, Untouched},
    {3, IVT_UINT16, false, 0, Untouched},
    {5, IVT_BYTE, false, 0, Untouched},
    {6, IVT_DOUBLE, false, 0, Untouched},
    {7, IVT_BOOL, false, 0, Untouched},
    {9, IVT_INT32, false, 0, Untouched},
    {56, IVT_UINT64, false, 0, Untouched},
    {96, IVT_STRING, false, 0, Untouched},
    {255, IVT_STRING, false, 0, Untouched},
};

TEST(DefaultDptForSize, EveryRowOfTheTable) {
  const Nelmo::KnxValueConverter facade;
  for (const SizeRow& row : SizeRows) {
    SCOPED_TRACE(::testing::Message() << unsigned{row.bitSize} << " bits with type " << row.type);
    KNXDPT dpt{row.bitSize, 0, Untouched};
    EXPECT_EQ(facade.GetDefaultMappingDptForSize(Type(row.type), dpt), row.found);
    EXPECT_TRUE(Is(dpt, row.bitSize, row.mainNumber, row.subNumber));
  }
}

TEST(DefaultDptForSize, OverwritesAGivenMainAndSubNumber) {
  const Nelmo::KnxValueConverter facade;
  KNXDPT dpt{16, 12, 34};
  EXPECT_TRUE(facade.GetDefaultMappingDptForSize(IVT_UINT16, dpt));
  EXPECT_TRUE(Is(dpt, 16, 7, 0));
}

}  // namespace
