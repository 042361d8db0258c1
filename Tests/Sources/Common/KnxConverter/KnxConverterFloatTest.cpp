#include <gtest/gtest.h>

#include <atomic>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include "ConverterChecks.h"
#include "ConverterLines.h"
#include "CountedAllocations.h"
#include "KnxConverterFloat.h"
#include "KnxTestBytes.h"
#include "LogCapture.h"
#include "RangeRows.h"
#include "RowName.h"

namespace {

using KnxTest::Bytes;
using KnxTest::BytesOf;
using KnxTest::GroupOf;
using Nelmo::FloatIntegerRange;
using Nelmo::FloatRange;
using Nelmo::KnxConverter;
using TestSupport::Adjusted;
using TestSupport::ExpectCloneKeepsRange;
using TestSupport::FilledRange;
using TestSupport::LogLine;
using TestSupport::RowName;
using TestSupport::Trace;
using Maker = std::unique_ptr<KnxConverter> (*)();

constexpr double Float16Min = -671088.64;
constexpr double Float16Max = 670760.96;
constexpr double Float32Max = 3.4028234663852886e38;

FloatRange MakeFloatRange(double minimum, double maximum) {
  return FilledRange<FloatRange>(minimum, maximum, minimum, maximum);
}

// The converters of the standard DPT rows, with their ranges.
std::unique_ptr<KnxConverter> Conv5_001() {
  return std::make_unique<Nelmo::KnxConverterFloat8BitUnsigned>(FloatIntegerRange(0.0, 100.0, 0, 255));
}
std::unique_ptr<KnxConverter> Conv5_004() {
  return std::make_unique<Nelmo::KnxConverterFloat8BitUnsigned>(FloatIntegerRange(0.0, 255.0, 0, 255));
}
std::unique_ptr<KnxConverter> Conv5_003() {
  return std::make_unique<Nelmo::KnxConverterFloat8BitUnsigned>(FloatIntegerRange(0.0, 360.0, 0, 255));
}
std::unique_ptr<KnxConverter> Conv6_001() {
  return std::make_unique<Nelmo::KnxConverterFloat8BitSigned>(FloatIntegerRange(-128.0, 127.0, -128, 127));
}
std::unique_ptr<KnxConverter> Conv8_010() {
  return std::make_unique<Nelmo::KnxConverterFloat16BitSigned>(FloatIntegerRange(-327.68, 327.67, -32768, 32767));
}
std::unique_ptr<KnxConverter> Conv9_x() {
  return std::make_unique<Nelmo::KnxConverterFloat16BitFloat>(MakeFloatRange(Float16Min, Float16Max));
}
std::unique_ptr<KnxConverter> Conv9_001() {
  return std::make_unique<Nelmo::KnxConverterFloat16BitFloat>(MakeFloatRange(-273.0, 670760.0));
}
std::unique_ptr<KnxConverter> Conv14_x() {
  return std::make_unique<Nelmo::KnxConverterFloat32BitFloat>(MakeFloatRange(-Float32Max, Float32Max));
}

const KNXDPT Dpt5_001{8, 5, 1};
const KNXDPT Dpt5_004{8, 5, 4};
const KNXDPT Dpt5_003{8, 5, 3};
const KNXDPT Dpt6_001{8, 6, 1};
const KNXDPT Dpt8_010{16, 8, 10};
const KNXDPT Dpt9_x{16, 9, 0};
const KNXDPT Dpt9_001{16, 9, 1};
const KNXDPT Dpt14_x{32, 14, 0};

double NaN64() {
  const std::uint64_t bits = 0x7FF8000000000000;
  double value = 0.0;
  std::memcpy(&value, &bits, sizeof value);
  return value;
}

std::uint64_t BitsOf(double value) {
  std::uint64_t bits = 0;
  std::memcpy(&bits, &value, sizeof bits);
  return bits;
}

// --- Sending -----------------------------------------------------------------

struct SendRow {
  const char* name;
  Maker make;
  KNXDPT dpt;
  UloValueType type;
  double value;
  Bytes bytes;
  unsigned int size;
};

class FloatSend : public testing::TestWithParam<SendRow> {};

TEST_P(FloatSend, WritesTheBusBytes) {
  const SendRow& row = GetParam();
  KnxStack::GroupValue groupValue;
  EXPECT_TRUE(row.make()->ToKnxValue(row.dpt, ULOVALUE::Double(row.value, row.type), groupValue));
  EXPECT_EQ(BytesOf(groupValue), row.bytes);
  EXPECT_EQ(groupValue.GetDefinedSize(), row.size);
}

const SendRow sendRows[] = {
    // 5.001: percent 0..100 as 0..255
    {"P5_001_Zero", Conv5_001, Dpt5_001, IVT_DOUBLE, 0.0, {0x00}, 8},
    {"P5_001_Max", Conv5_001, Dpt5_001, IVT_DOUBLE, 100.0, {0xFF}, 8},
    {"P5_001_Half", Conv5_001, Dpt5_001, IVT_DOUBLE, 50.0, {0x7F}, 8},
    {"P5_001_PointTwo", Conv5_001, Dpt5_001, IVT_DOUBLE, 0.2, {0x01}, 8},
    {"P5_001_AboveMax", Conv5_001, Dpt5_001, IVT_DOUBLE, 120.0, {0xFF}, 8},
    {"P5_001_BelowMin", Conv5_001, Dpt5_001, IVT_DOUBLE, -5.0, {0x00}, 8},
    // 5.004: 0..255 as 0..255
    {"P5_004_Zero", Conv5_004, Dpt5_004, IVT_DOUBLE, 0.0, {0x00}, 8},
    {"P5_004_Max", Conv5_004, Dpt5_004, IVT_DOUBLE, 255.0, {0xFF}, 8},
    {"P5_004_AboveMax", Conv5_004, Dpt5_004, IVT_DOUBLE, 256.0, {0xFF}, 8},
    {"P5_004_BelowMin", Conv5_004, Dpt5_004, IVT_DOUBLE, -1.0, {0x00}, 8},
    // 5.003: angle 0..360 as 0..255
    {"P5_003_Zero", Conv5_003, Dpt5_003, IVT_DOUBLE, 0.0, {0x00}, 8},
    {"P5_003_Half", Conv5_003, Dpt5_003, IVT_DOUBLE, 180.0, {0x80}, 8},
    {"P5_003_Max", Conv5_003, Dpt5_003, IVT_DOUBLE, 360.0, {0xFF}, 8},
    {"P5_003_AboveMax", Conv5_003, Dpt5_003, IVT_DOUBLE, 361.0, {0xFF}, 8},
    {"P5_003_BelowMin", Conv5_003, Dpt5_003, IVT_DOUBLE, -1.0, {0x00}, 8},
    // 6.001: -128..127 as a signed byte
    {"P6_001_Zero", Conv6_001, Dpt6_001, IVT_DOUBLE, 0.0, {0x00}, 8},
    {"P6_001_Min", Conv6_001, Dpt6_001, IVT_DOUBLE, -128.0, {0x80}, 8},
    {"P6_001_Max", Conv6_001, Dpt6_001, IVT_DOUBLE, 127.0, {0x7F}, 8},
    {"P6_001_MinusOne", Conv6_001, Dpt6_001, IVT_DOUBLE, -1.0, {0xFF}, 8},
    {"P6_001_BelowMin", Conv6_001, Dpt6_001, IVT_DOUBLE, -129.0, {0x80}, 8},
    {"P6_001_AboveMax", Conv6_001, Dpt6_001, IVT_DOUBLE, 128.0, {0x7F}, 8},
    // The signed members read the double whatever the type tag says.
    {"P6_001_AnyTag", Conv6_001, Dpt6_001, IVT_INT32, 10.0, {0x0A}, 8},
    // 8.010: -327.68..327.67 as a signed 16-bit number
    {"P8_010_Zero", Conv8_010, Dpt8_010, IVT_DOUBLE, 0.0, {0x00, 0x00}, 16},
    {"P8_010_Min", Conv8_010, Dpt8_010, IVT_DOUBLE, -327.68, {0x80, 0x00}, 16},
    {"P8_010_Max", Conv8_010, Dpt8_010, IVT_DOUBLE, 327.67, {0x7F, 0xFF}, 16},
    {"P8_010_TwentyOneFive", Conv8_010, Dpt8_010, IVT_DOUBLE, 21.5, {0x08, 0x66}, 16},
    {"P8_010_HalfStepDown", Conv8_010, Dpt8_010, IVT_DOUBLE, -0.005, {0xFF, 0xFF}, 16},
    {"P8_010_BelowMin", Conv8_010, Dpt8_010, IVT_DOUBLE, -400.0, {0x80, 0x00}, 16},
    {"P8_010_AboveMax", Conv8_010, Dpt8_010, IVT_DOUBLE, 400.0, {0x7F, 0xFF}, 16},
    {"P8_010_AnyTag", Conv8_010, Dpt8_010, IVT_BYTE, 1.0, {0x00, 0x64}, 16},
    // 9.x: the whole 2-octet float range; 670760.96 would encode as the
    // invalid 7F FF and is written 7F FE by the stack.
    {"P9_x_Zero", Conv9_x, Dpt9_x, IVT_DOUBLE, 0.0, {0x00, 0x00}, 16},
    {"P9_x_TwentyOneFive", Conv9_x, Dpt9_x, IVT_DOUBLE, 21.5, {0x0C, 0x33}, 16},
    {"P9_x_MinusThirty", Conv9_x, Dpt9_x, IVT_DOUBLE, -30.0, {0x8A, 0x24}, 16},
    {"P9_x_Min", Conv9_x, Dpt9_x, IVT_DOUBLE, Float16Min, {0xF8, 0x00}, 16},
    {"P9_x_Max", Conv9_x, Dpt9_x, IVT_DOUBLE, Float16Max, {0x7F, 0xFE}, 16},
    {"P9_x_AboveMax", Conv9_x, Dpt9_x, IVT_DOUBLE, 700000.0, {0x7F, 0xFE}, 16},
    {"P9_x_BelowMin", Conv9_x, Dpt9_x, IVT_DOUBLE, -700000.0, {0xF8, 0x00}, 16},
    {"P9_x_PlusInfinity", Conv9_x, Dpt9_x, IVT_DOUBLE, std::numeric_limits<double>::infinity(), {0x7F, 0xFE}, 16},
    {"P9_x_NaNPayload", Conv9_x, Dpt9_x, IVT_DOUBLE, NaN64(), {0x7F, 0xFF}, 16},
    {"P9_x_NoneIsNaN", Conv9_x, Dpt9_x, IVT_NONE, 21.5, {0x7F, 0xFF}, 16},
    // 9.001: -273..670760
    {"P9_001_Zero", Conv9_001, Dpt9_001, IVT_DOUBLE, 0.0, {0x00, 0x00}, 16},
    {"P9_001_Min", Conv9_001, Dpt9_001, IVT_DOUBLE, -273.0, {0xA1, 0x56}, 16},
    {"P9_001_Max", Conv9_001, Dpt9_001, IVT_DOUBLE, 670760.0, {0x7F, 0xFE}, 16},
    {"P9_001_BelowMin", Conv9_001, Dpt9_001, IVT_DOUBLE, -300.0, {0xA1, 0x56}, 16},
    {"P9_001_AboveMax", Conv9_001, Dpt9_001, IVT_DOUBLE, 700000.0, {0x7F, 0xFE}, 16},
    {"P9_001_NoneIsNaN", Conv9_001, Dpt9_001, IVT_NONE, 0.0, {0x7F, 0xFF}, 16},
    // 14.x: IEEE single precision, most significant byte first
    {"P14_x_Zero", Conv14_x, Dpt14_x, IVT_DOUBLE, 0.0, {0x00, 0x00, 0x00, 0x00}, 32},
    {"P14_x_TwentyOneFive", Conv14_x, Dpt14_x, IVT_DOUBLE, 21.5, {0x41, 0xAC, 0x00, 0x00}, 32},
    {"P14_x_RoundToNearest", Conv14_x, Dpt14_x, IVT_DOUBLE, 0.1, {0x3D, 0xCC, 0xCC, 0xCD}, 32},
    {"P14_x_Max", Conv14_x, Dpt14_x, IVT_DOUBLE, Float32Max, {0x7F, 0x7F, 0xFF, 0xFF}, 32},
    {"P14_x_Min", Conv14_x, Dpt14_x, IVT_DOUBLE, -Float32Max, {0xFF, 0x7F, 0xFF, 0xFF}, 32},
    {"P14_x_AboveMax", Conv14_x, Dpt14_x, IVT_DOUBLE, 1e39, {0x7F, 0x7F, 0xFF, 0xFF}, 32},
    {"P14_x_BelowMin", Conv14_x, Dpt14_x, IVT_DOUBLE, -1e39, {0xFF, 0x7F, 0xFF, 0xFF}, 32},
    {"P14_x_NoneIsNaN", Conv14_x, Dpt14_x, IVT_NONE, 21.5, {0x7F, 0xC0, 0x00, 0x00}, 32},
};

INSTANTIATE_TEST_SUITE_P(StandardRows, FloatSend, testing::ValuesIn(sendRows), RowName());

// A float range wider than float's: beyond the largest float the value is
// rounded to infinity, as IEEE rounding to nearest does.
TEST(FloatSend, SingleBeyondFloatRangeRoundsToInfinity) {
  Nelmo::KnxConverterFloat32BitFloat converter(MakeFloatRange(-1e300, 1e300));
  KnxStack::GroupValue groupValue;
  EXPECT_TRUE(converter.ToKnxValue(Dpt14_x, ULOVALUE::Double(1e39), groupValue));
  EXPECT_EQ(BytesOf(groupValue), (Bytes{0x7F, 0x80, 0x00, 0x00}));
  EXPECT_TRUE(converter.ToKnxValue(Dpt14_x, ULOVALUE::Double(-1e39), groupValue));
  EXPECT_EQ(BytesOf(groupValue), (Bytes{0xFF, 0x80, 0x00, 0x00}));
}

// Scaled results beyond the bus field keep their low bits.
TEST(FloatSend, ScaledIntegerKeepsTheFieldsLowBits) {
  KnxStack::GroupValue groupValue;
  Nelmo::KnxConverterFloat8BitUnsigned unsignedByte(FloatIntegerRange(0.0, 1000.0, 0, 1000));
  EXPECT_TRUE(unsignedByte.ToKnxValue(Dpt5_001, ULOVALUE::Double(300.0), groupValue));
  EXPECT_EQ(BytesOf(groupValue), Bytes{0x2C});
  Nelmo::KnxConverterFloat8BitSigned signedByte(FloatIntegerRange(-1000.0, 1000.0, -1000, 1000));
  EXPECT_TRUE(signedByte.ToKnxValue(Dpt6_001, ULOVALUE::Double(200.0), groupValue));
  EXPECT_EQ(BytesOf(groupValue), Bytes{0xC8});
  Nelmo::KnxConverterFloat16BitSigned signed16(FloatIntegerRange(-100000.0, 100000.0, -100000, 100000));
  EXPECT_TRUE(signed16.ToKnxValue(Dpt8_010, ULOVALUE::Double(-40000.0), groupValue));
  EXPECT_EQ(BytesOf(groupValue), (Bytes{0x63, 0xC0}));
}

// --- Receiving ---------------------------------------------------------------

struct ReceiveRow {
  const char* name;
  Maker make;
  KNXDPT dpt;
  Bytes bytes;
  unsigned int size;
  double value;
  UloValueType type;  // the target starts as IVT_DOUBLE
};

class FloatReceive : public testing::TestWithParam<ReceiveRow> {};

TEST_P(FloatReceive, ReadsTheBusBytes) {
  const ReceiveRow& row = GetParam();
  ULOVALUE value = ULOVALUE::Double(-1.0);
  EXPECT_TRUE(row.make()->FromKnxValue(row.dpt, GroupOf(row.bytes, row.size), value));
  EXPECT_EQ(value.GetType(), row.type);
  if (std::isnan(row.value)) {
    EXPECT_TRUE(std::isnan(value.GetDouble()));
  } else {
    EXPECT_DOUBLE_EQ(value.GetDouble(), row.value);
  }
}

const ReceiveRow receiveRows[] = {
    {"P5_001_Zero", Conv5_001, Dpt5_001, {0x00}, 8, 0.0, IVT_DOUBLE},
    {"P5_001_Max", Conv5_001, Dpt5_001, {0xFF}, 8, 100.0, IVT_DOUBLE},
    {"P5_001_Half", Conv5_001, Dpt5_001, {0x80}, 8, 50.196078431372555, IVT_DOUBLE},
    {"P5_004_Zero", Conv5_004, Dpt5_004, {0x00}, 8, 0.0, IVT_DOUBLE},
    {"P5_004_Max", Conv5_004, Dpt5_004, {0xFF}, 8, 255.0, IVT_DOUBLE},
    {"P5_003_Zero", Conv5_003, Dpt5_003, {0x00}, 8, 0.0, IVT_DOUBLE},
    {"P5_003_Half", Conv5_003, Dpt5_003, {0x80}, 8, 180.70588235294116, IVT_DOUBLE},
    {"P5_003_Max", Conv5_003, Dpt5_003, {0xFF}, 8, 360.0, IVT_DOUBLE},
    {"P6_001_Zero", Conv6_001, Dpt6_001, {0x00}, 8, 0.0, IVT_DOUBLE},
    {"P6_001_Min", Conv6_001, Dpt6_001, {0x80}, 8, -128.0, IVT_DOUBLE},
    {"P6_001_Max", Conv6_001, Dpt6_001, {0x7F}, 8, 127.0, IVT_DOUBLE},
    {"P6_001_MinusOne", Conv6_001, Dpt6_001, {0xFF}, 8, -1.0, IVT_DOUBLE},
    {"P8_010_Zero", Conv8_010, Dpt8_010, {0x00, 0x00}, 16, 0.0, IVT_DOUBLE},
    {"P8_010_Min", Conv8_010, Dpt8_010, {0x80, 0x00}, 16, -327.68, IVT_DOUBLE},
    {"P8_010_Max", Conv8_010, Dpt8_010, {0x7F, 0xFF}, 16, 327.67, IVT_DOUBLE},
    {"P8_010_TwentyOneFive", Conv8_010, Dpt8_010, {0x08, 0x66}, 16, 21.5, IVT_DOUBLE},
    // 327.67 - 327.68 in doubles: the digits lost to the subtraction stay lost.
    {"P8_010_MinusOneStep", Conv8_010, Dpt8_010, {0xFF, 0xFF}, 16, -0.0099999999999909051, IVT_DOUBLE},
    {"P9_x_Zero", Conv9_x, Dpt9_x, {0x00, 0x00}, 16, 0.0, IVT_DOUBLE},
    {"P9_x_TwentyOneFive", Conv9_x, Dpt9_x, {0x0C, 0x33}, 16, 21.5, IVT_DOUBLE},
    {"P9_x_MinusThirty", Conv9_x, Dpt9_x, {0x8A, 0x24}, 16, -30.0, IVT_DOUBLE},
    {"P9_x_Min", Conv9_x, Dpt9_x, {0xF8, 0x00}, 16, Float16Min, IVT_DOUBLE},
    {"P9_x_LargestValid", Conv9_x, Dpt9_x, {0x7F, 0xFE}, 16, 670433.28, IVT_DOUBLE},
    {"P9_x_InvalidIsNone", Conv9_x, Dpt9_x, {0x7F, 0xFF}, 16, NaN64(), IVT_NONE},
    // No clamp on receive: below the row's -273 arrives as it is.
    {"P9_001_BelowMinKept", Conv9_001, Dpt9_001, {0xF8, 0x00}, 16, Float16Min, IVT_DOUBLE},
    {"P9_001_Min", Conv9_001, Dpt9_001, {0xA1, 0x56}, 16, -272.96, IVT_DOUBLE},
    {"P9_001_Zero", Conv9_001, Dpt9_001, {0x00, 0x00}, 16, 0.0, IVT_DOUBLE},
    {"P9_001_InvalidIsNone", Conv9_001, Dpt9_001, {0x7F, 0xFF}, 16, NaN64(), IVT_NONE},
    {"P14_x_Zero", Conv14_x, Dpt14_x, {0x00, 0x00, 0x00, 0x00}, 32, 0.0, IVT_DOUBLE},
    {"P14_x_TwentyOneFive", Conv14_x, Dpt14_x, {0x41, 0xAC, 0x00, 0x00}, 32, 21.5, IVT_DOUBLE},
    {"P14_x_Widened", Conv14_x, Dpt14_x, {0x3D, 0xCC, 0xCC, 0xCD}, 32, 0.100000001490116119384765625, IVT_DOUBLE},
    {"P14_x_Max", Conv14_x, Dpt14_x, {0x7F, 0x7F, 0xFF, 0xFF}, 32, Float32Max, IVT_DOUBLE},
    {"P14_x_Min", Conv14_x, Dpt14_x, {0xFF, 0x7F, 0xFF, 0xFF}, 32, -Float32Max, IVT_DOUBLE},
    // The range is not used on receive: an infinity stays.
    {"P14_x_Infinity",
     Conv14_x,
     Dpt14_x,
     {0x7F, 0x80, 0x00, 0x00},
     32,
     std::numeric_limits<double>::infinity(),
     IVT_DOUBLE},
    {"P14_x_NaNIsNone", Conv14_x, Dpt14_x, {0x7F, 0xC0, 0x00, 0x00}, 32, NaN64(), IVT_NONE},
    {"P14_x_OtherNaNIsNone", Conv14_x, Dpt14_x, {0xFF, 0xFF, 0xFF, 0xFF}, 32, NaN64(), IVT_NONE},
};

INSTANTIATE_TEST_SUITE_P(StandardRows, FloatReceive, testing::ValuesIn(receiveRows), RowName());

TEST(FloatReceive, ReceivedPercentIsExactlyTheScaledByte) {
  ULOVALUE value = ULOVALUE::Double(0.0);
  ASSERT_TRUE(Conv5_001()->FromKnxValue(Dpt5_001, GroupOf({0x80}, 8), value));
  EXPECT_EQ(value.GetDouble(), 50.196078431372555);
}

TEST(FloatReceive, ReceivedNaNKeepsTheNaNPayload) {
  ULOVALUE value = ULOVALUE::Double(1.0);
  ASSERT_TRUE(Conv14_x()->FromKnxValue(Dpt14_x, GroupOf({0x7F, 0xC0, 0x00, 0x00}, 32), value));
  EXPECT_EQ(BitsOf(value.GetDouble()), 0x7FF8000000000000u);
}

// Only the unsigned byte clamps what it receives into the internal range.
struct ClampRow {
  const char* name;
  std::unique_ptr<KnxConverter> (*make)();
  Bytes bytes;
  unsigned int size;
  double value;
};

class ReceiveClamp : public testing::TestWithParam<ClampRow> {};

TEST_P(ReceiveClamp, OnlyTheUnsignedByteClamps) {
  const ClampRow& row = GetParam();
  TestSupport::LogCapture capture(ULO_LOG_INFO);
  ULOVALUE value = ULOVALUE::Double(0.0);
  EXPECT_TRUE(
      row.make()->FromKnxValue(KNXDPT{static_cast<std::uint8_t>(row.size), 5, 1}, GroupOf(row.bytes, row.size), value));
  EXPECT_DOUBLE_EQ(value.GetDouble(), row.value);
  EXPECT_TRUE(capture.Lines().empty());
}

const ClampRow clampRows[] = {
    {"UnsignedByte",
     [] {
       return std::unique_ptr<KnxConverter>(new Nelmo::KnxConverterFloat8BitUnsigned({0.0, 100.0, 0, 200}));
     },
     {0xFF},
     8,
     100.0},
    {"SignedByte",
     [] {
       return std::unique_ptr<KnxConverter>(new Nelmo::KnxConverterFloat8BitSigned({0.0, 50.0, 0, 100}));
     },
     {0x7F},
     8,
     63.5},
    {"Signed16",
     [] {
       return std::unique_ptr<KnxConverter>(new Nelmo::KnxConverterFloat16BitSigned({0.0, 50.0, 0, 100}));
     },
     {0x01, 0x00},
     16,
     128.0},
};

INSTANTIATE_TEST_SUITE_P(OutsideTheInternalRange, ReceiveClamp, testing::ValuesIn(clampRows), RowName());

// The floating-point members clamp with their range but never scale on send;
// on receive only the 2-octet member scales back. A range whose external
// side is ten times its internal side shows which direction uses it.
FloatRange TenfoldRange() {
  return FilledRange<FloatRange>(0.0, 100.0, 0.0, 1000.0);
}

std::unique_ptr<KnxConverter> Tenfold16() {
  return std::make_unique<Nelmo::KnxConverterFloat16BitFloat>(TenfoldRange());
}
std::unique_ptr<KnxConverter> Tenfold32() {
  return std::make_unique<Nelmo::KnxConverterFloat32BitFloat>(TenfoldRange());
}

struct TenfoldRow {
  const char* name;
  Maker make;
  KNXDPT dpt;
  double sent;
  Bytes bytes;
  unsigned int size;
  double received;
};

class FloatTenfoldRange : public testing::TestWithParam<TenfoldRow> {};

TEST_P(FloatTenfoldRange, SendsUnscaledAndReceivesAsTheMemberDoes) {
  const TenfoldRow& row = GetParam();
  KnxStack::GroupValue groupValue;
  EXPECT_TRUE(row.make()->ToKnxValue(row.dpt, ULOVALUE::Double(row.sent), groupValue));
  EXPECT_EQ(BytesOf(groupValue), row.bytes);
  EXPECT_EQ(groupValue.GetDefinedSize(), row.size);
  ULOVALUE value = ULOVALUE::Double(-1.0);
  EXPECT_TRUE(row.make()->FromKnxValue(row.dpt, GroupOf(row.bytes, row.size), value));
  EXPECT_EQ(value.GetDouble(), row.received);
}

const TenfoldRow tenfoldRows[] = {
    {"P9_Fifty", Tenfold16, Dpt9_x, 50.0, {0x14, 0xE2}, 16, 5.0},
    {"P9_ClampedTo100", Tenfold16, Dpt9_x, 150.0, {0x1C, 0xE2}, 16, 10.0},
    {"P14_Fifty", Tenfold32, Dpt14_x, 50.0, {0x42, 0x48, 0x00, 0x00}, 32, 50.0},
    {"P14_ClampedTo100", Tenfold32, Dpt14_x, 150.0, {0x42, 0xC8, 0x00, 0x00}, 32, 100.0},
};

INSTANTIATE_TEST_SUITE_P(InternalAndExternalDiffer, FloatTenfoldRange, testing::ValuesIn(tenfoldRows), RowName());

// --- Messages ----------------------------------------------------------------

struct MessageRow {
  const char* name;
  Maker make;
  KNXDPT dpt;
  double value;
  std::vector<LogLine> lines;
};

class FloatSendMessages : public testing::TestWithParam<MessageRow> {};

TEST_P(FloatSendMessages, TraceAndAdjustment) {
  const MessageRow& row = GetParam();
  TestSupport::LogCapture capture;
  KnxStack::GroupValue groupValue;
  EXPECT_TRUE(row.make()->ToKnxValue(row.dpt, ULOVALUE::Double(row.value), groupValue));
  EXPECT_EQ(capture.Lines(), row.lines);
}

const MessageRow sendMessageRows[] = {
    {"P5_001_InRange", Conv5_001, Dpt5_001, 50.0, {Trace("ToKnxValue", "DPT is used. DPT = 5.1 ivt=3 val=50")}},
    {"P5_001_AboveMax",
     Conv5_001,
     Dpt5_001,
     120.0,
     {Trace("ToKnxValue", "DPT is used. DPT = 5.1 ivt=3 val=120"),
      Adjusted("The internal value of DPT=5.1, ivt=3 has been adjusted from 120 to 100 before conversion.")}},
    {"P5_003_BelowMin",
     Conv5_003,
     Dpt5_003,
     -0.5,
     {Trace("ToKnxValue", "DPT is used. DPT = 5.3 ivt=3 val=-0.5"),
      Adjusted("The internal value of DPT=5.3, ivt=3 has been adjusted from -0.5 to 0 before conversion.")}},
    {"P6_001_BelowMin",
     Conv6_001,
     Dpt6_001,
     -200.25,
     {Trace("ToKnxValue", "DPT is used. DPT = 6.1 ivt=3 val=-200.25"),
      Adjusted("The internal value of DPT=6.1, ivt=3 has been adjusted from -200.25 to -128 before conversion.")}},
    {"P8_010_AboveMax",
     Conv8_010,
     Dpt8_010,
     1000.25,
     {Trace("ToKnxValue", "DPT is used. DPT = 8.10 ivt=3 val=1000.25"),
      Adjusted("The internal value of DPT=8.10, ivt=3 has been adjusted from 1000.25 to 327.67 before conversion.")}},
    {"P9_x_AboveMax",
     Conv9_x,
     Dpt9_x,
     700000.0,
     {Trace("ToKnxValue", "DPT is used. DPT = 9.0 ivt=3 val=700000"),
      Adjusted("The internal value of DPT=9.0, ivt=3 has been adjusted from 700000 to 670761 before conversion.")}},
    {"P9_x_BelowMin",
     Conv9_x,
     Dpt9_x,
     -1234567.0,
     {Trace("ToKnxValue", "DPT is used. DPT = 9.0 ivt=3 val=-1234567"),
      Adjusted("The internal value of DPT=9.0, ivt=3 has been adjusted from -1.23457e+06 to -671089 before "
               "conversion.")}},
    {"P9_001_InRange", Conv9_001, Dpt9_001, 21.5, {Trace("ToKnxValue", "DPT is used. DPT = 9.1 ivt=3 val=21.5")}},
    {"P9_001_BelowMin",
     Conv9_001,
     Dpt9_001,
     -300.0,
     {Trace("ToKnxValue", "DPT is used. DPT = 9.1 ivt=3 val=-300"),
      Adjusted("The internal value of DPT=9.1, ivt=3 has been adjusted from -300 to -273 before conversion.")}},
    {"P14_x_AboveMax",
     Conv14_x,
     Dpt14_x,
     1e39,
     {Trace("ToKnxValue", "DPT is used. DPT = 14.0 ivt=3 val=1e+39"),
      Adjusted(
          "The internal value of DPT=14.0, ivt=3 has been adjusted from 1e+39 to 3.40282e+38 before conversion.")}},
};

INSTANTIATE_TEST_SUITE_P(StandardRows, FloatSendMessages, testing::ValuesIn(sendMessageRows), RowName());

TEST(FloatSendMessages, AdjustmentAloneAtLevelOne) {
  TestSupport::LogCapture capture(ULO_LOG_INFO);
  KnxStack::GroupValue groupValue;
  EXPECT_TRUE(Conv5_001()->ToKnxValue(Dpt5_001, ULOVALUE::Double(120.0), groupValue));
  const std::vector<LogLine> expected{
      Adjusted("The internal value of DPT=5.1, ivt=3 has been adjusted from 120 to 100 before conversion.")};
  EXPECT_EQ(capture.Lines(), expected);
}

struct ReceiveMessageRow {
  const char* name;
  Maker make;
  KNXDPT dpt;
  Bytes bytes;
  unsigned int size;
  const char* text;
};

class FloatReceiveMessages : public testing::TestWithParam<ReceiveMessageRow> {};

TEST_P(FloatReceiveMessages, Trace) {
  const ReceiveMessageRow& row = GetParam();
  TestSupport::LogCapture capture;
  ULOVALUE value = ULOVALUE::Double(0.0);
  EXPECT_TRUE(row.make()->FromKnxValue(row.dpt, GroupOf(row.bytes, row.size), value));
  const std::vector<LogLine> expected{Trace("FromKnxValue", row.text)};
  EXPECT_EQ(capture.Lines(), expected);
}

const ReceiveMessageRow receiveMessageRows[] = {
    {"P5_001", Conv5_001, Dpt5_001, {0xFF}, 8, "DPT is used. DPT = 5.1 grp.size=8 grp.val=FF"},
    {"P6_001", Conv6_001, Dpt6_001, {0x80}, 8, "DPT is used. DPT = 6.1 grp.size=8 grp.val=80"},
    {"P8_010", Conv8_010, Dpt8_010, {0x08, 0x66}, 16, "DPT is used. DPT = 8.10 grp.size=16 grp.val=08 66"},
    {"P9_001", Conv9_001, Dpt9_001, {0x0C, 0x33}, 16, "DPT is used. DPT = 9.1 grp.size=16 grp.val=0C 33"},
    {"P14_x",
     Conv14_x,
     Dpt14_x,
     {0x41, 0xAC, 0x00, 0x00},
     32,
     "DPT is used. DPT = 14.0 grp.size=32 grp.val=41 AC 00 00"},
};

INSTANTIATE_TEST_SUITE_P(StandardRows, FloatReceiveMessages, testing::ValuesIn(receiveMessageRows), RowName());

// --- Refusals ----------------------------------------------------------------

struct RefusalRow {
  const char* name;
  Maker make;
  KNXDPT dpt;
  UloValueType type;
};

class FloatRefusal : public testing::TestWithParam<RefusalRow> {};

TEST_P(FloatRefusal, LeavesTheGroupValueUntouched) {
  const RefusalRow& row = GetParam();
  TestSupport::LogCapture capture(ULO_LOG_INFO);
  KnxStack::GroupValue groupValue = GroupOf({0xAB, 0xCD}, 16);
  EXPECT_FALSE(row.make()->ToKnxValue(row.dpt, ULOVALUE::Double(50.0, row.type), groupValue));
  EXPECT_EQ(BytesOf(groupValue), (Bytes{0xAB, 0xCD}));
  EXPECT_EQ(groupValue.GetDefinedSize(), 16u);
  EXPECT_TRUE(capture.Lines().empty());
}

// Only the unsigned byte checks the value type.
const RefusalRow refusalRows[] = {
    {"P5_001_Int32", Conv5_001, Dpt5_001, IVT_INT32},
    {"P5_001_None", Conv5_001, Dpt5_001, IVT_NONE},
    {"P5_003_Percent", Conv5_003, Dpt5_003, IVT_PERCENT},
    {"P5_004_Double1005", Conv5_004, Dpt5_004, IVT_DOUBLE_1005},
};

INSTANTIATE_TEST_SUITE_P(WrongValueType, FloatRefusal, testing::ValuesIn(refusalRows), RowName());

// --- Exceptions of the group value pass through ------------------------------

struct ThrowRow {
  const char* name;
  Maker make;
  KNXDPT dpt;
  Bytes bytes;
  unsigned int size;
};

class FloatGroupValueException : public testing::TestWithParam<ThrowRow> {};

TEST_P(FloatGroupValueException, PassesThroughFromKnxValue) {
  const ThrowRow& row = GetParam();
  ULOVALUE value = ULOVALUE::Double(7.0);
  EXPECT_THROW(row.make()->FromKnxValue(row.dpt, GroupOf(row.bytes, row.size), value), KnxStack::GroupValueException);
  EXPECT_EQ(value.GetDouble(), 7.0);
  EXPECT_EQ(value.GetType(), IVT_DOUBLE);
}

const ThrowRow throwRows[] = {
    {"P5_001_SixteenBits", Conv5_001, Dpt5_001, {0x00, 0x00}, 16},
    {"P6_001_Empty", Conv6_001, Dpt6_001, {}, 8},
    {"P8_010_EightBits", Conv8_010, Dpt8_010, {0x00}, 8},
    {"P8_010_ShortPayload", Conv8_010, Dpt8_010, {0x00}, 16},
    {"P9_x_ThirtyTwoBits", Conv9_x, Dpt9_x, {0x00, 0x00, 0x00, 0x00}, 32},
    {"P9_x_ShortPayload", Conv9_x, Dpt9_x, {0x0C}, 16},
    {"P14_x_SixteenBits", Conv14_x, Dpt14_x, {0x0C, 0x33}, 16},
    {"P14_x_ShortPayload", Conv14_x, Dpt14_x, {0x41, 0xAC, 0x00}, 32},
};

INSTANTIATE_TEST_SUITE_P(WrongSize, FloatGroupValueException, testing::ValuesIn(throwRows), RowName());

// A range wider than the 2-octet float lets a value through that the stack
// cannot encode; its exception reaches the caller.
TEST(FloatGroupValueException, PassesThroughToKnxValue) {
  Nelmo::KnxConverterFloat16BitFloat converter(MakeFloatRange(-1e6, 1e6));
  KnxStack::GroupValue groupValue = GroupOf({0xAB, 0xCD}, 16);
  EXPECT_THROW(converter.ToKnxValue(Dpt9_x, ULOVALUE::Double(800000.0), groupValue), KnxStack::GroupValueException);
}

// --- Clone -------------------------------------------------------------------

TEST(FloatClone, KeepsTheRangeAndLeavesTheSourceUsable) {
  Nelmo::KnxConverterFloat8BitUnsigned angle(FloatIntegerRange(0.0, 360.0, 0, 255));
  Nelmo::KnxConverterFloat8BitSigned signedByte(FloatIntegerRange(-128.0, 127.0, -128, 127));
  Nelmo::KnxConverterFloat16BitSigned signed16(FloatIntegerRange(-327.68, 327.67, -32768, 32767));
  Nelmo::KnxConverterFloat16BitFloat temperature(MakeFloatRange(-273.0, 670760.0));
  Nelmo::KnxConverterFloat32BitFloat single(MakeFloatRange(-Float32Max, Float32Max));
  ExpectCloneKeepsRange(angle);
  ExpectCloneKeepsRange(signedByte);
  ExpectCloneKeepsRange(signed16);
  ExpectCloneKeepsRange(temperature);
  ExpectCloneKeepsRange(single);
  EXPECT_EQ(angle.GetRange().internalMaximum, 360.0);
  EXPECT_EQ(temperature.GetRange().internalMinimum, -273.0);

  KnxStack::GroupValue groupValue;
  EXPECT_TRUE(angle.ToKnxValue(Dpt5_003, ULOVALUE::Double(180.0), groupValue));
  EXPECT_EQ(BytesOf(groupValue), Bytes{0x80});
  EXPECT_TRUE(temperature.ToKnxValue(Dpt9_001, ULOVALUE::Double(-300.0), groupValue));
  EXPECT_EQ(BytesOf(groupValue), (Bytes{0xA1, 0x56}));
}

// --- No allocation while logging is off --------------------------------------

TEST(FloatAllocation, NoneWhileLoggingIsOff) {
  TestSupport::LogCapture capture(ULO_LOG_OFF);
  std::unique_ptr<KnxConverter> converters[] = {Conv5_001(), Conv6_001(), Conv8_010(), Conv9_x(), Conv14_x()};
  const KNXDPT dpts[] = {Dpt5_001, Dpt6_001, Dpt8_010, Dpt9_x, Dpt14_x};
  const ULOVALUE beyond = ULOVALUE::Double(1e40);
  const ULOVALUE none = ULOVALUE::Double(0.0, IVT_NONE);
  ULOVALUE received = ULOVALUE::Double(0.0);
  KnxStack::GroupValue groupValue;

  const std::uint64_t before = CountedAllocations::Total();
  for (std::size_t i = 0; i < 5; ++i) {
    EXPECT_TRUE(converters[i]->ToKnxValue(dpts[i], beyond, groupValue));
    EXPECT_TRUE(converters[i]->FromKnxValue(dpts[i], groupValue, received));
  }
  EXPECT_TRUE(converters[3]->ToKnxValue(dpts[3], none, groupValue));
  EXPECT_TRUE(converters[4]->ToKnxValue(dpts[4], none, groupValue));
  EXPECT_EQ(CountedAllocations::Total() - before, 0u);
  EXPECT_TRUE(capture.Lines().empty());
}

TEST(FloatAllocation, CounterSeesAllocations) {
  TestSupport::LogCapture capture;
  KnxStack::GroupValue groupValue;
  const std::uint64_t before = CountedAllocations::Total();
  EXPECT_TRUE(Conv9_x()->ToKnxValue(Dpt9_x, ULOVALUE::Double(1e40), groupValue));
  EXPECT_GT(CountedAllocations::Total() - before, 0u);
}

}  // namespace
