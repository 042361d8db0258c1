#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "ConverterLines.h"
#include "FloatRange.h"
#include "KnxConverterDefault.h"
#include "KnxConverterFloat.h"
#include "KnxStack.h"
#include "KnxTestBytes.h"
#include "LogCapture.h"
#include "RangeRows.h"
#include "UloPlatform.h"

namespace {

using KnxTest::Bytes;
using KnxTest::GroupOf;
using KnxTest::Holds;
using Nelmo::KnxConverterDefault;
using TestSupport::LogCapture;
using TestSupport::LogLine;

// What a group value holds before the conversion; a row that expects these
// bytes expects the group value to be left alone.
const Bytes Before = {0xA5, 0x5A};
constexpr unsigned int BeforeBits = 16;

std::vector<LogLine> ErrorLines(const char* function, const char* text) {
  if (text == nullptr) {
    return {};
  }
  return {TestSupport::Error(function, text)};
}

std::string Text(std::size_t length) {
  std::string text;
  for (std::size_t index = 0; index < length; ++index) {
    text += static_cast<char>('A' + index % 26);
  }
  return text;
}

Bytes BytesOf(const std::string& text) {
  return Bytes(text.begin(), text.end());
}

struct ToKnxRow {
  const char* name;
  KNXDPT dpt;
  ULOVALUE value;
  bool result;
  Bytes bytes;
  unsigned int bits;
  const char* message;
};

const ToKnxRow ToKnxRows[] = {
    // Booleans: the 2-bit codes are 17 and 16, other main numbers write nothing.
    {"true on 2.x", {2, 2, 1}, ULOVALUE::Bool(true), true, {0x11}, 2, nullptr},
    {"false on 2.x", {2, 2, 1}, ULOVALUE::Bool(false), true, {0x10}, 2, nullptr},
    {"true on 1.x", {1, 1, 1}, ULOVALUE::Bool(true), true, {0x01}, 1, nullptr},
    {"false on 1.x", {1, 1, 1}, ULOVALUE::Bool(false), true, {0x00}, 1, nullptr},
    {"true on 5.x", {8, 5, 1}, ULOVALUE::Bool(true), true, Before, BeforeBits, nullptr},
    {"false on 5.x", {8, 5, 0}, ULOVALUE::Bool(false), true, Before, BeforeBits, nullptr},
    {"true without DPT", {0, 0, 0}, ULOVALUE::Bool(true), true, Before, BeforeBits, nullptr},
    // Kinds 1005 and 1037 always go as one byte.
    {"1005 on 16 bits", {16, 9, 1}, ULOVALUE::Double(200.4, IVT_DOUBLE_1005), true, {0xC8}, 8, nullptr},
    {"1005 on 0 bits", {0, 0, 0}, ULOVALUE::Double(0.5, IVT_DOUBLE_1005), true, {0x01}, 8, nullptr},
    {"1005 on 64 bits", {64, 19, 1}, ULOVALUE::Double(255.0, IVT_DOUBLE_1005), true, {0xFF}, 8, nullptr},
    {"1005 out of a byte",
     {16, 9, 1},
     ULOVALUE::Double(300.0, IVT_DOUBLE_1005),
     false,
     Before,
     BeforeBits,
     "UloValueToByteArray failed. DPT=9.1"},
    {"1037 on 32 bits", {32, 13, 0}, ULOVALUE::Double(100.0, IVT_DIMMING), true, {0x09}, 8, nullptr},
    {"1037 on 4 bits", {4, 3, 7}, ULOVALUE::Double(-25.0, IVT_DIMMING), true, {0x03}, 8, nullptr},
    // Everything else: the platform's bytes, capacity from the bit size.
    {"uint32 on 0 bits", {0, 0, 0}, ULOVALUE::UInt32(0x01020304), true, {0x01, 0x02, 0x03, 0x04}, 32, nullptr},
    {"int32 on 32 bits", {32, 13, 1}, ULOVALUE::Int32(-2), true, {0xFF, 0xFF, 0xFF, 0xFE}, 32, nullptr},
    {"byte on 0 bits", {0, 0, 0}, ULOVALUE::Byte(0x7F), true, {0x7F}, 8, nullptr},
    {"byte on 3 bits", {3, 31, 0}, ULOVALUE::Byte(0x80), true, {0x80}, 8, nullptr},
    {"uint16 on 16 bits", {16, 7, 1}, ULOVALUE::UInt16(0x1234), true, {0x12, 0x34}, 16, nullptr},
    {"uint16 on 9 bits", {9, 200, 1}, ULOVALUE::UInt16(0x1234), true, {0x12, 0x34}, 16, nullptr},
    {"uint16 on 8 bits",
     {8, 5, 1},
     ULOVALUE::UInt16(0x1234),
     false,
     Before,
     BeforeBits,
     "UloValueToByteArray failed. DPT=5.1 data size =1"},
    {"double on 64 bits",
     {64, 29, 0},
     ULOVALUE::Double(21.5),
     true,
     {0x40, 0x35, 0x80, 0x00, 0x00, 0x00, 0x00, 0x00},
     64,
     nullptr},
    {"double on 16 bits",
     {16, 9, 1},
     ULOVALUE::Double(21.5),
     false,
     Before,
     BeforeBits,
     "UloValueToByteArray failed. DPT=9.1 data size =2"},
    {"uint64 on 48 bits",
     {48, 242, 0},
     ULOVALUE::UInt64(1),
     false,
     Before,
     BeforeBits,
     "UloValueToByteArray failed. DPT=242.0 data size =6"},
    {"one character on 0 bits", {0, 0, 0}, ULOVALUE::String("A"), true, {0x41}, 8, nullptr},
    {"empty text on 0 bits", {0, 0, 0}, ULOVALUE::String(""), true, {0x00}, 8, nullptr},
    {"23 characters on 184 bits", {184, 24, 1}, ULOVALUE::String(Text(23)), true, BytesOf(Text(23)), 184, nullptr},
    {"24 characters on 184 bits",
     {184, 24, 1},
     ULOVALUE::String(Text(24)),
     false,
     Before,
     BeforeBits,
     "UloValueToByteArray failed. DPT=24.1 data size =23"},
    {"24 characters on 185 bits", {185, 24, 1}, ULOVALUE::String(Text(24)), true, BytesOf(Text(24)), 192, nullptr},
    {"24 characters on 255 bits", {255, 28, 1}, ULOVALUE::String(Text(24)), true, BytesOf(Text(24)), 192, nullptr},
    {"24 characters on 0 bits", {0, 0, 0}, ULOVALUE::String(Text(24)), true, BytesOf(Text(24)), 192, nullptr},
    {"25 characters on 0 bits",
     {0, 0, 0},
     ULOVALUE::String(Text(25)),
     false,
     Before,
     BeforeBits,
     "UloValueToByteArray failed. DPT=0.0 data size =24"},
    {"date without byte form",
     {24, 11, 1},
     ULOVALUE::Date(2024, 5, 17),
     false,
     Before,
     BeforeBits,
     "UloValueToByteArray failed. DPT=11.1 data size =3"},
    {"empty value",
     {8, 5, 0},
     ULOVALUE(),
     false,
     Before,
     BeforeBits,
     "UloValueToByteArray failed. DPT=5.0 data size =1"},
};

TEST(KnxConverterDefaultToKnx, WritesTheValuesBytes) {
  for (const ToKnxRow& row : ToKnxRows) {
    SCOPED_TRACE(row.name);
    LogCapture capture;
    KnxConverterDefault converter;
    KnxStack::GroupValue groupValue = GroupOf(Before, BeforeBits);
    EXPECT_EQ(converter.ToKnxValue(row.dpt, row.value, groupValue), row.result);
    EXPECT_TRUE(Holds(groupValue, row.bytes, row.bits));
    EXPECT_EQ(capture.Lines(), ErrorLines("ToKnxValue", row.message));
  }
}

TEST(KnxConverterDefaultToKnx, GivesTheSameResultsWhileLoggingIsOff) {
  for (const ToKnxRow& row : ToKnxRows) {
    SCOPED_TRACE(row.name);
    LogCapture capture(ULO_LOG_OFF);
    KnxConverterDefault converter;
    KnxStack::GroupValue groupValue = GroupOf(Before, BeforeBits);
    EXPECT_EQ(converter.ToKnxValue(row.dpt, row.value, groupValue), row.result);
    EXPECT_TRUE(Holds(groupValue, row.bytes, row.bits));
    EXPECT_TRUE(capture.Lines().empty());
  }
}

TEST(KnxConverterDefaultToKnx, WritesNoTrace) {
  LogCapture capture;
  KnxConverterDefault converter;
  KnxStack::GroupValue groupValue;
  EXPECT_TRUE(converter.ToKnxValue(KNXDPT{16, 7, 1}, ULOVALUE::UInt16(7), groupValue));
  EXPECT_TRUE(capture.Lines().empty());
}

struct FromKnxRow {
  const char* name;
  Bytes bytes;
  unsigned int bits;
  UloValueType type;
  const char* text;
};

const FromKnxRow FromKnxRows[] = {
    {"one bit set", {0x01}, 1, IVT_BOOL, "true"},
    {"one bit clear", {0x00}, 1, IVT_BOOL, "false"},
    {"two bits", {0x03}, 2, IVT_BYTE, "3"},
    {"one byte", {0x2A}, 8, IVT_BYTE, "42"},
    {"two bytes", {0x12, 0x34}, 16, IVT_UINT16, "4660"},
    {"three bytes", {0x01, 0x02, 0x03}, 24, IVT_UINT32, "66051"},
    {"four bytes", {0xFF, 0xFF, 0xFF, 0xFF}, 32, IVT_UINT32, "4294967295"},
    {"six bytes", {0x00, 0x00, 0x00, 0x00, 0x01, 0x00}, 48, IVT_UINT64, "256"},
    {"eight bytes", {0x01, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00}, 64, IVT_UINT64, "72057594037927936"},
    {"nine bytes", BytesOf("ABCDEFGHI"), 72, IVT_STRING, "ABCDEFGHI"},
};

TEST(KnxConverterDefaultFromKnx, SetsTheWholeValueFromTheBytes) {
  LogCapture capture;
  for (const FromKnxRow& row : FromKnxRows) {
    SCOPED_TRACE(row.name);
    KnxConverterDefault converter;
    ULOVALUE value = ULOVALUE::Double(1.5);
    EXPECT_TRUE(converter.FromKnxValue(KNXDPT{0, 0, 0}, GroupOf(row.bytes, row.bits), value));
    EXPECT_EQ(value.GetType(), row.type);
    EXPECT_EQ(value.ToString(), row.text);
  }
  EXPECT_TRUE(capture.Lines().empty());
}

void ExpectEmptyValue(const ULOVALUE& value) {
  ULOTIME cleared;
  cleared.Clear(true);
  EXPECT_EQ(value.GetType(), IVT_ANY);
  EXPECT_EQ(value.GetUInt64(), 0u);
  EXPECT_EQ(value.GetDouble(), 0.0);
  EXPECT_FALSE(value.GetBool());
  EXPECT_EQ(value.GetString(), "");
  EXPECT_EQ(value.GetTime(), cleared);
  EXPECT_TRUE(value.GetTime().isSet);
}

TEST(KnxConverterDefaultFromKnx, LeavesAnEmptyValueWhenThePlatformRejectsTheBytes) {
  LogCapture capture;
  KnxConverterDefault converter;
  ULOVALUE value = ULOVALUE::String("a text that was there before the call");
  value.SetUInt32(77);
  value.SetDouble(2.5);
  value.SetBool(true);
  EXPECT_FALSE(converter.FromKnxValue(KNXDPT{8, 5, 10}, KnxStack::GroupValue(), value));
  ExpectEmptyValue(value);
  EXPECT_EQ(capture.Lines(), ErrorLines("FromKnxValue", "ByteArrayToUloValue failed. DPT=5.10 data size =0"));
}

TEST(KnxConverterDefaultFromKnx, ResetsTheValueAlsoWhileLoggingIsOff) {
  LogCapture capture(ULO_LOG_OFF);
  KnxConverterDefault converter;
  ULOVALUE value = ULOVALUE::Date(2024, 2, 29);
  EXPECT_FALSE(converter.FromKnxValue(KNXDPT{24, 11, 1}, GroupOf({}, 24), value));
  ExpectEmptyValue(value);
  EXPECT_TRUE(capture.Lines().empty());
}

TEST(KnxConverterClone, OfTheDefaultConverterIsANewDefaultConverter) {
  KnxConverterDefault source;
  std::unique_ptr<Nelmo::KnxConverter> clone(source.Clone());
  ASSERT_NE(clone, nullptr);
  EXPECT_NE(clone.get(), &source);
  EXPECT_NE(dynamic_cast<KnxConverterDefault*>(clone.get()), nullptr);
  KnxStack::GroupValue groupValue;
  EXPECT_TRUE(clone->ToKnxValue(KNXDPT{16, 7, 1}, ULOVALUE::UInt16(0xBEEF), groupValue));
  EXPECT_TRUE(Holds(groupValue, {0xBE, 0xEF}, 16));
  clone.reset();
  EXPECT_TRUE(source.ToKnxValue(KNXDPT{2, 2, 1}, ULOVALUE::Bool(true), groupValue));
  EXPECT_TRUE(Holds(groupValue, {0x11}, 2));
}

TEST(KnxConverterClone, OfAConverterWithARangeCarriesAnEqualRange) {
  Nelmo::KnxConverterFloat16BitFloat source(
      TestSupport::FilledRange<Nelmo::FloatRange>(-273.0, 670760.0, -273.0, 670760.0));
  std::unique_ptr<Nelmo::KnxConverter> clone(source.Clone());
  const auto* typed = dynamic_cast<const Nelmo::KnxConverterFloat16BitFloat*>(clone.get());
  ASSERT_NE(typed, nullptr);
  EXPECT_NE(typed, &source);
  EXPECT_EQ(typed->GetRange().internalMinimum, -273.0);
  EXPECT_EQ(typed->GetRange().internalMaximum, 670760.0);
  EXPECT_EQ(typed->GetRange().externalMinimum, -273.0);
  EXPECT_EQ(typed->GetRange().externalMaximum, 670760.0);
  EXPECT_EQ(typed->GetRange().scaleFactor, source.GetRange().scaleFactor);
  clone.reset();
  EXPECT_EQ(source.GetRange().internalMinimum, -273.0);
  KnxStack::GroupValue groupValue;
  EXPECT_TRUE(source.ToKnxValue(KNXDPT{16, 9, 1}, ULOVALUE::Double(21.5), groupValue));
  EXPECT_TRUE(Holds(groupValue, {0x0C, 0x33}, 16));
}

}  // namespace
