#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <limits>
#include <ostream>
#include <string>
#include <vector>

#include "UloByteArray.h"

namespace {

using V = ULOVALUE;
using Bytes = std::vector<unsigned char>;

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr unsigned char Guard = 0xEE;

void PrintValue(const ULOVALUE& value, std::ostream* out) {
  const char* name = UloValueTypeName(value.GetType());
  *out << (name != nullptr ? name : std::to_string(value.GetType())) << " \"" << value.ToString() << "\"";
}

// ---------------------------------------------------------------------------
// UloValueToByteArray

struct ToBytesRow {
  ULOVALUE value;
  unsigned int capacity;
  bool converted;
  Bytes bytes;
};

void PrintTo(const ToBytesRow& row, std::ostream* out) {
  PrintValue(row.value, out);
  *out << " capacity " << row.capacity;
}

class UloValueToByteArrayTest : public ::testing::TestWithParam<ToBytesRow> {};

TEST_P(UloValueToByteArrayTest, WritesTheBytesWithinTheCapacity) {
  const ToBytesRow& row = GetParam();
  std::array<unsigned char, 24> buffer;
  buffer.fill(Guard);
  unsigned int size = row.capacity;
  EXPECT_EQ(UloValueToByteArray(row.value, buffer.data(), size), row.converted);
  if (row.converted) {
    EXPECT_EQ(Bytes(buffer.begin(), buffer.begin() + size), row.bytes);
  } else {
    EXPECT_EQ(size, row.capacity);
  }
  const std::size_t written = row.converted ? size : 0;
  for (std::size_t i = written; i < buffer.size(); ++i) {
    EXPECT_EQ(buffer[i], Guard) << "byte " << i << " written";
  }
}

INSTANTIATE_TEST_SUITE_P(
    Integers, UloValueToByteArrayTest,
    ::testing::Values(ToBytesRow{V::Bool(true), 1, true, {0x01}}, ToBytesRow{V::Bool(false), 8, true, {0x00}},
                      ToBytesRow{V::Bool(true), 0, false, {}}, ToBytesRow{V::Byte(0xAB), 1, true, {0xAB}},
                      ToBytesRow{V::Byte(0xAB, IVT_BYTE_1021), 4, true, {0xAB}},
                      ToBytesRow{V::Byte(0xAB), 0, false, {}}, ToBytesRow{V::UInt16(0x1234), 2, true, {0x12, 0x34}},
                      ToBytesRow{V::UInt16(0x1234), 1, false, {}},
                      ToBytesRow{V::Int32(-2), 4, true, {0xFF, 0xFF, 0xFF, 0xFE}},
                      ToBytesRow{V::Int32(-2, IVT_TYPE_5), 4, true, {0xFF, 0xFF, 0xFF, 0xFE}},
                      ToBytesRow{V::TimeSpan(3600), 4, true, {0x00, 0x00, 0x0E, 0x10}},
                      ToBytesRow{V::UInt32(0x12345678), 4, true, {0x12, 0x34, 0x56, 0x78}},
                      ToBytesRow{V::UInt32(0x12345678, IVT_UNSIGNED_20), 8, true, {0x12, 0x34, 0x56, 0x78}},
                      ToBytesRow{V::UInt32(0x12345678), 3, false, {}},
                      ToBytesRow{V::UInt64(0x0102030405060708u), 8, true, {1, 2, 3, 4, 5, 6, 7, 8}},
                      ToBytesRow{V::UInt64(0x0102030405060708u), 7, false, {}}));

INSTANTIATE_TEST_SUITE_P(
    Doubles, UloValueToByteArrayTest,
    ::testing::Values(ToBytesRow{V::Double(21.5), 8, true, {0x40, 0x35, 0x80, 0, 0, 0, 0, 0}},
                      ToBytesRow{V::Double(-1.0, IVT_DOUBLE_1039), 8, true, {0xBF, 0xF0, 0, 0, 0, 0, 0, 0}},
                      ToBytesRow{V::Double(NaN), 8, true, {0x7F, 0xF8, 0, 0, 0, 0, 0, 0}},
                      ToBytesRow{V::Double(21.5), 7, false, {}}));

INSTANTIATE_TEST_SUITE_P(Percent, UloValueToByteArrayTest,
                         ::testing::Values(ToBytesRow{V::Double(0.0, IVT_PERCENT), 1, true, {0x00}},
                                           ToBytesRow{V::Double(100.0, IVT_PERCENT), 1, true, {0xFF}},
                                           ToBytesRow{V::Double(50.0, IVT_PERCENT), 1, true, {0x80}},  // 127.5
                                           ToBytesRow{V::Double(49.9, IVT_PERCENT), 1, true, {0x7F}},
                                           ToBytesRow{V::Double(0.19, IVT_PERCENT), 1, true, {0x00}},
                                           ToBytesRow{V::Double(0.2, IVT_PERCENT), 1, true, {0x01}},
                                           ToBytesRow{V::Double(100.0001, IVT_PERCENT), 1, false, {}},
                                           ToBytesRow{V::Double(-0.1, IVT_PERCENT), 1, false, {}},
                                           ToBytesRow{V::Double(NaN, IVT_PERCENT), 1, false, {}},
                                           ToBytesRow{V::Double(50.0, IVT_PERCENT), 0, false, {}}));

INSTANTIATE_TEST_SUITE_P(Dimming, UloValueToByteArrayTest,
                         ::testing::Values(ToBytesRow{V::Double(100.0, IVT_DIMMING), 1, true, {0x09}},
                                           ToBytesRow{V::Double(-100.0, IVT_DIMMING), 1, true, {0x01}},
                                           ToBytesRow{V::Double(12.5, IVT_DIMMING), 1, true, {0x0C}},
                                           ToBytesRow{V::Double(-1.5625, IVT_DIMMING), 1, true, {0x07}},
                                           ToBytesRow{V::Double(0.0, IVT_DIMMING), 1, true, {0x00}},
                                           ToBytesRow{V::Double(NaN, IVT_DIMMING), 1, true, {0x00}},
                                           ToBytesRow{V::Double(100.0, IVT_DIMMING), 0, false, {}}));

INSTANTIATE_TEST_SUITE_P(Number1005, UloValueToByteArrayTest,
                         ::testing::Values(ToBytesRow{V::Double(12.5, IVT_DOUBLE_1005), 1, true, {0x0D}},
                                           ToBytesRow{V::Double(254.5, IVT_DOUBLE_1005), 1, true, {0xFF}},
                                           ToBytesRow{V::Double(255.5, IVT_DOUBLE_1005), 1, false, {}},
                                           ToBytesRow{V::Double(-0.4, IVT_DOUBLE_1005), 1, true, {0x00}},
                                           ToBytesRow{V::Double(-0.5, IVT_DOUBLE_1005), 1, false, {}},
                                           ToBytesRow{V::Double(NaN, IVT_DOUBLE_1005), 1, false, {}},
                                           ToBytesRow{V::Double(1e300, IVT_DOUBLE_1005), 1, false, {}}));

INSTANTIATE_TEST_SUITE_P(Texts, UloValueToByteArrayTest,
                         ::testing::Values(ToBytesRow{V::String("abc"), 3, true, {0x61, 0x62, 0x63}},
                                           ToBytesRow{V::String("abc"), 14, true, {0x61, 0x62, 0x63}},
                                           ToBytesRow{V::String("abc"), 2, false, {}},
                                           ToBytesRow{V::String(""), 0, true, {}},
                                           ToBytesRow{V::String(std::string("a\0b", 3)), 3, true, {0x61, 0x00, 0x62}}));

INSTANTIATE_TEST_SUITE_P(NoByteForm, UloValueToByteArrayTest,
                         ::testing::Values(ToBytesRow{V::Date(2024, 2, 29), 16, false, {}},
                                           ToBytesRow{V::Time(13, 45, 30), 16, false, {}},
                                           ToBytesRow{V::DateTime(ULOTIME()), 16, false, {}},
                                           ToBytesRow{V::DateTime(ULOTIME(), IVT_DATETIME_201), 16, false, {}},
                                           ToBytesRow{V(), 16, false, {}}, ToBytesRow{V(IVT_NONE), 16, false, {}},
                                           ToBytesRow{V(static_cast<UloValueType>(999)), 16, false, {}}));

TEST(UloValueToByteArray, NoBufferIsRefused) {
  unsigned int size = 8;
  EXPECT_FALSE(UloValueToByteArray(V::Byte(1), nullptr, size));
  EXPECT_EQ(size, 8u);
}

// ---------------------------------------------------------------------------
// ByteArrayToUloValue

struct FromBytesRow {
  Bytes bytes;
  bool isOneBit;
  UloValueType type;
  const char* text;
};

void PrintTo(const FromBytesRow& row, std::ostream* out) {
  static const char digits[] = "0123456789ABCDEF";
  for (const unsigned char byte : row.bytes) {
    *out << digits[byte >> 4] << digits[byte & 0x0F] << ' ';
  }
  *out << (row.isOneBit ? "one bit" : "bytes");
}

class ByteArrayToUloValueTest : public ::testing::TestWithParam<FromBytesRow> {};

TEST_P(ByteArrayToUloValueTest, ChoosesTheKindBySize) {
  const FromBytesRow& row = GetParam();
  ULOVALUE out = V::Double(1.0);
  ASSERT_TRUE(ByteArrayToUloValue(row.bytes.data(), static_cast<unsigned int>(row.bytes.size()), out, row.isOneBit));
  EXPECT_EQ(out.GetType(), row.type);
  EXPECT_EQ(out.ToString(), row.text);
}

INSTANTIATE_TEST_SUITE_P(
    Sizes, ByteArrayToUloValueTest,
    ::testing::Values(FromBytesRow{{0x01}, true, IVT_BOOL, "true"}, FromBytesRow{{0xFE}, true, IVT_BOOL, "false"},
                      FromBytesRow{{0x03, 0x00}, true, IVT_BOOL, "true"}, FromBytesRow{{0x01}, false, IVT_BYTE, "1"},
                      FromBytesRow{{0xAB}, false, IVT_BYTE, "171"},
                      FromBytesRow{{0x12, 0x34}, false, IVT_UINT16, "4660"},
                      FromBytesRow{{0xFF, 0xFF}, false, IVT_UINT16, "65535"},
                      FromBytesRow{{0x12, 0x34, 0x56}, false, IVT_UINT32, "1193046"},
                      FromBytesRow{{0xFF, 0xFF, 0xFF, 0xFF}, false, IVT_UINT32, "4294967295"},
                      FromBytesRow{{0x01, 0x02, 0x03, 0x04, 0x05}, false, IVT_UINT64, "4328719365"},
                      FromBytesRow{
                          {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}, false, IVT_UINT64, "18446744073709551615"},
                      FromBytesRow{{'A', 'B', 'C', 'D', 'E', 'F', 'G', 'H', 'I'}, false, IVT_STRING, "ABCDEFGHI"}));

TEST(ByteArrayToUloValue, LongPayloadKeepsEveryByte) {
  const unsigned char data[14] = {'K', 'N', 'X', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xFF};
  ULOVALUE out;
  ASSERT_TRUE(ByteArrayToUloValue(data, sizeof data, out, false));
  EXPECT_EQ(out.GetType(), IVT_STRING);
  EXPECT_EQ(out.GetString(), std::string(reinterpret_cast<const char*>(data), sizeof data));
}

TEST(ByteArrayToUloValue, ReadsOnlyTheGivenBytes) {
  const unsigned char data[] = {0x12, 0x34, 0x56, 0x78, 0x9A};
  ULOVALUE out;
  ASSERT_TRUE(ByteArrayToUloValue(data, 3, out, false));
  EXPECT_EQ(out.GetUInt32(), 0x123456u);
}

TEST(ByteArrayToUloValue, NoDataIsRefusedAndTheValueKept) {
  const unsigned char data[] = {0x01};
  ULOVALUE out = V::Double(1.5);
  EXPECT_FALSE(ByteArrayToUloValue(nullptr, 1, out, false));
  EXPECT_FALSE(ByteArrayToUloValue(nullptr, 1, out, true));
  EXPECT_FALSE(ByteArrayToUloValue(data, 0, out, false));
  EXPECT_FALSE(ByteArrayToUloValue(data, 0, out, true));
  EXPECT_EQ(out.GetType(), IVT_DOUBLE);
  EXPECT_EQ(out.GetDouble(), 1.5);
}

}  // namespace
