#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "ConverterLines.h"
#include "KnxTestBytes.h"
#include "KnxValueConverterApi.h"
#include "LogCapture.h"

// The facade as a caller meets it: built with the standard table, used with
// KNXDPT, ULOVALUE and group values, and nothing else.

namespace {

using KnxTest::Bytes;
using KnxTest::GroupOf;
using Nelmo::KnxValueConverter;
using TestSupport::FacadeLine;
using TestSupport::LogCapture;
using TestSupport::LogLine;

// ---------------------------------------------------------------------------
// Sending

TEST(StandardFacadeSend, DoubleWithoutDptBecomes9000AndIsSent) {
  const KnxValueConverter converter;
  LogCapture capture(ULO_LOG_ERROR);
  KNXDPT dpt{16, 0, 0};
  KnxStack::GroupValue groupValue;
  EXPECT_TRUE(converter.ToKnxValue(dpt, ULOVALUE::Double(21.5), groupValue));
  EXPECT_EQ(dpt.bitSize, 16);
  EXPECT_EQ(dpt.mainNumber, 9);
  EXPECT_EQ(dpt.subNumber, 0);
  EXPECT_EQ(groupValue.GetRawData().ToString(), "0C 33");
  EXPECT_TRUE(capture.Lines().empty());
}

TEST(StandardFacadeSend, UInt16WithThreeBitsHasNoDpt) {
  const KnxValueConverter converter;
  LogCapture capture;
  KNXDPT dpt{3, 0, 0};
  KnxStack::GroupValue groupValue;
  EXPECT_FALSE(converter.ToKnxValue(dpt, ULOVALUE::UInt16(513), groupValue));
  EXPECT_EQ(dpt.bitSize, 3);
  EXPECT_EQ(dpt.mainNumber, 0);
  EXPECT_EQ(dpt.subNumber, 0);
  EXPECT_EQ(capture.Lines(),
            std::vector<LogLine>{FacadeLine("ToKnxValue", "Convert to KNX value failed. Missing DPT. val = 513")});
}

TEST(StandardFacadeSend, NoValueTypeReachesTheFloatConverterAsNotANumber) {
  const KnxValueConverter converter;
  LogCapture capture(ULO_LOG_ERROR);
  const KNXDPT dpt{16, 9, 1};
  KnxStack::GroupValue groupValue;
  EXPECT_TRUE(converter.ToKnxValue(dpt, ULOVALUE(IVT_NONE), groupValue));
  EXPECT_EQ(groupValue.GetRawData().ToString(), "7F FF");
  EXPECT_TRUE(capture.Lines().empty());
}

TEST(StandardFacadeSend, TimeSpanGoesUnconvertedTo13000) {
  const KnxValueConverter converter;
  LogCapture capture(ULO_LOG_ERROR);
  const KNXDPT dpt{32, 13, 0};
  KnxStack::GroupValue groupValue;
  EXPECT_TRUE(converter.ToKnxValue(dpt, ULOVALUE::TimeSpan(-2), groupValue));
  EXPECT_EQ(groupValue.GetRawData().ToString(), "FF FF FF FE");
  EXPECT_TRUE(capture.Lines().empty());
}

TEST(StandardFacadeSend, DateAndTimeGoesUnconvertedToTheDateRow) {
  const KnxValueConverter converter;
  LogCapture capture(ULO_LOG_ERROR);
  ULOTIME time;
  time.SetDate(2024, 5, 17, true);
  time.SetTime(13, 14, 15, true);
  const KNXDPT dpt{24, 11, 0};
  KnxStack::GroupValue groupValue;
  EXPECT_TRUE(converter.ToKnxValue(dpt, ULOVALUE::DateTime(time), groupValue));
  EXPECT_EQ(groupValue.GetRawData().ToString(), "11 05 18");
  EXPECT_TRUE(capture.Lines().empty());
}

TEST(StandardFacadeSend, AValueThatCannotBeAssignedIsRefusedWithItsOwnType) {
  const KnxValueConverter converter;
  LogCapture capture;
  const KNXDPT dpt{16, 9, 1};
  KnxStack::GroupValue groupValue;
  EXPECT_FALSE(converter.ToKnxValue(dpt, ULOVALUE::Date(2024, 5, 17), groupValue));
  EXPECT_EQ(capture.Lines(),
            std::vector<LogLine>{FacadeLine("ToKnxValue", "Invalid value type found for DPT = 9.1 val.ivt=11")});
}

TEST(StandardFacadeSend, AMainNumberWithoutRowsIsRefused) {
  const KnxValueConverter converter;
  LogCapture capture;
  const KNXDPT dpt{16, 99, 1};
  KnxStack::GroupValue groupValue;
  EXPECT_FALSE(converter.ToKnxValue(dpt, ULOVALUE::Double(1.0), groupValue));
  EXPECT_EQ(capture.Lines(), (std::vector<LogLine>{FacadeLine("GetEntry", "No Entry found for DPT = 99.1"),
                                                   FacadeLine("ToKnxValue", "No Entry found for DPT = 99.1")}));
}

TEST(StandardFacadeSend, AllResultsStayWhileLoggingIsOff) {
  const KnxValueConverter converter;
  LogCapture capture(ULO_LOG_OFF);
  KNXDPT missing{3, 0, 0};
  const KNXDPT unknown{16, 99, 1};
  const KNXDPT temperature{16, 9, 1};
  KnxStack::GroupValue groupValue;
  EXPECT_FALSE(converter.ToKnxValue(missing, ULOVALUE::UInt16(513), groupValue));
  EXPECT_FALSE(converter.ToKnxValue(unknown, ULOVALUE::Double(1.0), groupValue));
  EXPECT_FALSE(converter.ToKnxValue(temperature, ULOVALUE::Date(2024, 5, 17), groupValue));
  EXPECT_TRUE(converter.ToKnxValue(temperature, ULOVALUE::Double(21.5), groupValue));
  EXPECT_TRUE(capture.Lines().empty());
}

// ---------------------------------------------------------------------------
// Receiving

TEST(StandardFacadeReceive, SixteenBitsIntoAnInt32WithoutDptBecome8000) {
  const KnxValueConverter converter;
  LogCapture capture(ULO_LOG_ERROR);
  KNXDPT dpt{0, 0, 0};
  ULOVALUE value(IVT_INT32);
  EXPECT_TRUE(converter.FromKnxValue(dpt, GroupOf({0xFF, 0xFE}, 16), value));
  EXPECT_EQ(dpt.bitSize, 16);
  EXPECT_EQ(dpt.mainNumber, 8);
  EXPECT_EQ(dpt.subNumber, 0);
  EXPECT_EQ(value.GetType(), IVT_INT32);
  EXPECT_EQ(value.GetInt32(), -2);
  EXPECT_TRUE(capture.Lines().empty());
}

TEST(StandardFacadeReceive, SixBitsIntoADoubleWithoutDptHaveNoDpt) {
  const KnxValueConverter converter;
  LogCapture capture;
  KNXDPT dpt{0, 0, 0};
  ULOVALUE value(IVT_DOUBLE);
  EXPECT_FALSE(converter.FromKnxValue(dpt, GroupOf({0x21}, 6), value));
  EXPECT_EQ(dpt.bitSize, 0);
  EXPECT_EQ(dpt.mainNumber, 0);
  EXPECT_EQ(dpt.subNumber, 0);
  EXPECT_EQ(capture.Lines(), std::vector<LogLine>{FacadeLine(
                                 "FromKnxValue", "Convert from KNX value failed. Missing DPT. GroupValue = 21")});
}

struct SwitchRow {
  const char* name;
  Bytes bytes;
  unsigned int bits;
  bool result;
  bool switched;
};

// 1.000 with the sizes a switching telegram can arrive with.
const SwitchRow SwitchRows[] = {
    {"six bits are rebuilt as one", {0x21}, 6, true, true},
    {"six bits, bit 0 clear", {0x20}, 6, true, false},
    {"one bit", {0x01}, 1, true, true},
};

TEST(StandardFacadeReceive, SwitchingValuesOfUpToSixBits) {
  const KnxValueConverter converter;
  for (const SwitchRow& row : SwitchRows) {
    SCOPED_TRACE(row.name);
    LogCapture capture(ULO_LOG_ERROR);
    const KNXDPT dpt{1, 1, 0};
    ULOVALUE value;
    EXPECT_EQ(converter.FromKnxValue(dpt, GroupOf(row.bytes, row.bits), value), row.result);
    EXPECT_EQ(value.GetType(), IVT_BOOL);
    EXPECT_EQ(value.GetBool(), row.switched);
    EXPECT_TRUE(capture.Lines().empty());
  }
}

TEST(StandardFacadeReceive, FourBitsReachTheSwitchUnchangedAndItsExceptionIsCaught) {
  const KnxValueConverter converter;
  LogCapture capture;
  const KNXDPT dpt{1, 1, 0};
  ULOVALUE value;
  EXPECT_TRUE(converter.FromKnxValue(dpt, GroupOf({0x01}, 4), value));
  EXPECT_EQ(capture.Lines(), std::vector<LogLine>{FacadeLine("FromKnxValue",
                                                             "Exception caught during conversion of GroupValue: "
                                                             "GroupValue: expected 1 bits, defined size is 4")});
}

struct MismatchRow {
  KNXDPT dpt;
  Bytes bytes;
  unsigned int bits;
  UloValueType stamped;
  const char* text;
};

const MismatchRow MismatchRows[] = {
    {{1, 1, 0},
     {0x01},
     8,
     IVT_BOOL,
     "Failed to convert a GroupValue for DPT 1.0 because of unexpected bit size: 8, expected: 1"},
    {{16, 9, 1},
     {0x0C},
     8,
     IVT_DOUBLE,
     "Failed to convert a GroupValue for DPT 9.1 because of unexpected bit size: 8, expected: 16"},
    {{112, 16, 0},
     Bytes(13, 0x41),
     104,
     IVT_STRING,
     "Failed to convert a GroupValue for DPT 16.0 because of unexpected bit size: 104, expected: 112"},
    {{112, 16, 0},
     {0x41},
     6,
     IVT_STRING,
     "Failed to convert a GroupValue for DPT 16.0 because of unexpected bit size: 6, expected: 112"},
};

TEST(StandardFacadeReceive, SizeMismatchesAreRefusedAfterTheTypeIsStamped) {
  const KnxValueConverter converter;
  for (const MismatchRow& row : MismatchRows) {
    SCOPED_TRACE(row.text);
    LogCapture capture;
    ULOVALUE value = ULOVALUE::UInt64(7);
    EXPECT_FALSE(converter.FromKnxValue(row.dpt, GroupOf(row.bytes, row.bits), value));
    EXPECT_EQ(value.GetType(), row.stamped);
    EXPECT_EQ(capture.Lines(), std::vector<LogLine>{FacadeLine("FromKnxValue", row.text)});
  }
}

// ---------------------------------------------------------------------------
// Rows added by the caller

TEST(StandardFacadeAddedRows, VariableLengthTakesAnySizeAndSixBitsGiveAnEmptyValue) {
  KnxValueConverter converter;
  ASSERT_TRUE(converter.AddDptValueMapEntry(24, 0, 0, IVT_STRING, UloDP::IVST_NONE, Nelmo::KnxConverterDefault()));
  LogCapture capture;
  const KNXDPT dpt{0, 24, 1};
  ULOVALUE value;
  EXPECT_TRUE(converter.FromKnxValue(dpt, GroupOf({'H', 'e', 'l', 'l', 'o', ' ', 'K', 'N', 'X'}, 72), value));
  EXPECT_EQ(value.GetString(), "Hello KNX");
  EXPECT_TRUE(capture.Lines().empty());
  EXPECT_FALSE(converter.FromKnxValue(dpt, GroupOf({0x2A}, 6), value));
  EXPECT_EQ(value.GetType(), IVT_ANY);
  EXPECT_EQ(
      capture.Lines(),
      (std::vector<LogLine>{TestSupport::Error("FromKnxValue", "ByteArrayToUloValue failed. DPT=24.1 data size =0"),
                            FacadeLine("FromKnxValue", "Convert from KNX value failed for DPT = 24.1 GroupValue = ")}));
}

TEST(StandardFacadeAddedRows, NoFormatSizeTakesUpToSixBits) {
  KnxValueConverter converter;
  ASSERT_TRUE(converter.AddDptValueMapEntry(100, 0, 8, IVT_BYTE, UloDP::IVST_NONE, Nelmo::KnxConverterDefault()));
  LogCapture capture;
  const KNXDPT dpt{8, 100, 0};
  ULOVALUE value;
  EXPECT_TRUE(converter.FromKnxValue(dpt, GroupOf({0x2A}, 6), value));
  EXPECT_EQ(value.GetType(), IVT_BYTE);
  EXPECT_EQ(value.GetByte(), 0x2A);
  EXPECT_FALSE(converter.FromKnxValue(dpt, GroupOf({0x2A}, 8), value));
  EXPECT_EQ(capture.Lines(),
            std::vector<LogLine>{FacadeLine(
                "FromKnxValue",
                "Failed to convert a GroupValue for DPT 100.0 because of unexpected bit size: 8, expected: 0")});
}

}  // namespace
