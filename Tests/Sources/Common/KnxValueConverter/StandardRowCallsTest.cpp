#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "FacadeTestSupport.h"
#include "KnxConverterFloat.h"
#include "KnxValueConverter.h"

// A standard row whose converter takes the value as it is goes straight to
// its converter's class; these tests hold that way to the general one: the
// same bytes and values, the same lines, the same results when logging
// throws, and a caller's row of a derived class still reaches its overrides.

namespace {

using FacadeTest::GroupOf;
using FacadeTest::SameValue;
using Nelmo::KnxValueConverter;
using TestSupport::Error;
using TestSupport::FacadeLine;
using TestSupport::LogCapture;
using TestSupport::LogLine;

struct Send {
  const char* name;
  KNXDPT dpt;
  ULOVALUE value;
  bool result;
  std::vector<unsigned char> bytes;
  std::vector<LogLine> lines;
};

// The first value of a pair takes the direct way, the second (a type the row
// accepts unconverted) the general way: both give the same outcome.
const Send Sends[] = {
    {"9.001 direct", {16, 9, 1}, ULOVALUE::Double(21.5), true, {0x0C, 0x33}, {}},
    {"9.001 general", {16, 9, 1}, ULOVALUE::Double(21.5, IVT_PERCENT), true, {0x0C, 0x33}, {}},
    {"5.x direct", {8, 5, 0}, ULOVALUE::Byte(200), true, {0xC8}, {}},
    {"5.x general: the converter takes IVT_BYTE alone",
     {8, 5, 0},
     ULOVALUE::Byte(200, IVT_BYTE_1021),
     false,
     {},
     {FacadeLine("ToKnxValue", "Convert to KNX value failed for DPT = 5.0 val = 200")}},
    {"13.x through its main row, direct", {32, 13, 7}, ULOVALUE::Int32(-2), true, {0xFF, 0xFF, 0xFF, 0xFE}, {}},
    {"13.x through its main row, general",
     {32, 13, 7},
     ULOVALUE::Int32(-2, IVT_TIMESPAN),
     true,
     {0xFF, 0xFF, 0xFF, 0xFE},
     {}},
    {"4.001 refuses a character beyond ASCII",
     {8, 4, 1},
     ULOVALUE::String("\xC3\xA9"),
     false,
     {},
     {FacadeLine("ToKnxValue", "Convert to KNX value failed for DPT = 4.1 val = \xC3\xA9")}},
};

TEST(StandardRowCalls, SendGivesTheGeneralWaysOutcome) {
  const KnxValueConverter facade;
  for (const Send& row : Sends) {
    SCOPED_TRACE(row.name);
    LogCapture capture(ULO_LOG_INFO);
    KnxStack::GroupValue groupValue;
    EXPECT_EQ(facade.ToKnxValue(row.dpt, row.value, groupValue), row.result);
    if (row.result) {
      EXPECT_EQ(groupValue.GetRawData().ToString(), GroupOf(row.bytes, row.dpt.bitSize).GetRawData().ToString());
    }
    EXPECT_EQ(capture.Lines(), row.lines);
  }
}

struct Receive {
  const char* name;
  KNXDPT dpt;
  KnxStack::GroupValue received;
  bool result;
  ULOVALUE value;
  std::vector<LogLine> lines;
};

// A 1-bit value in the control field arrives with 6 bits and takes the
// general way; with its own size it goes direct.
const Receive Receives[] = {
    {"1.001 direct", {1, 1, 1}, GroupOf({0x01}, 1), true, ULOVALUE::Bool(true), {}},
    {"1.001 general", {1, 1, 1}, GroupOf({0x01}, 6), true, ULOVALUE::Bool(true), {}},
    {"9.001 direct", {16, 9, 1}, GroupOf({0x0C, 0x33}, 16), true, ULOVALUE::Double(21.5), {}},
    {"4.001 refuses a byte beyond ASCII",
     {8, 4, 1},
     GroupOf({0xE9}, 8),
     false,
     ULOVALUE(IVT_STRING),
     {FacadeLine("FromKnxValue", "Convert from KNX value failed for DPT = 4.1 GroupValue = E9")}},
    {"11.001 refuses a day the month has not",
     {24, 11, 1},
     GroupOf({0x1E, 0x02, 0x18}, 24),
     false,
     ULOVALUE(IVT_DATE),
     {Error("FromKnxValue", "Cannot convert invalid date: year=2024, month=2, day=30"),
      FacadeLine("FromKnxValue", "Convert from KNX value failed for DPT = 11.1 GroupValue = 1E 02 18")}},
};

TEST(StandardRowCalls, ReceiveGivesTheGeneralWaysOutcome) {
  const KnxValueConverter facade;
  for (const Receive& row : Receives) {
    SCOPED_TRACE(row.name);
    LogCapture capture(ULO_LOG_INFO);
    ULOVALUE value;
    EXPECT_EQ(facade.FromKnxValue(row.dpt, row.received, value), row.result);
    if (row.result) {
      EXPECT_TRUE(SameValue(value, row.value));
    } else {
      EXPECT_EQ(value.GetType(), row.value.GetType());
    }
    EXPECT_EQ(capture.Lines(), row.lines);
  }
}

// The converter's trace is the first message and throws: the conversion has
// not failed, so the result stays true, as on the general way.
TEST(StandardRowCalls, AnExceptionFromTheTraceIsCaught) {
  const KnxValueConverter facade;
  {
    FacadeTest::ThrowingLog log;
    KnxStack::GroupValue groupValue;
    EXPECT_TRUE(facade.ToKnxValue(KNXDPT{16, 9, 1}, ULOVALUE::Double(21.5), groupValue));
    EXPECT_EQ(log.Lines(),
              std::vector<LogLine>{FacadeLine("ToKnxValue",
                                              "Exception caught during conversion of ULOVALUE to GroupValue: "
                                              "log sink failed")});
  }
  {
    FacadeTest::ThrowingLog log;
    ULOVALUE value;
    EXPECT_TRUE(facade.FromKnxValue(KNXDPT{16, 9, 1}, GroupOf({0x0C, 0x33}, 16), value));
    EXPECT_EQ(log.Lines(), std::vector<LogLine>{FacadeLine(
                               "FromKnxValue", "Exception caught during conversion of GroupValue: log sink failed")});
  }
}

// A caller's converter derived from a standard class: its overrides run.
class CountingFloat16 : public Nelmo::KnxConverterFloat16BitFloat {
 public:
  CountingFloat16(int& sends, int& receives)
      : KnxConverterFloat16BitFloat(Nelmo::FloatRange()), m_sends(sends), m_receives(receives) {}

  bool ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) override {
    ++m_sends;
    return KnxConverterFloat16BitFloat::ToKnxValue(dpt, value, groupValue);
  }
  bool FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) override {
    ++m_receives;
    return KnxConverterFloat16BitFloat::FromKnxValue(dpt, groupValue, value);
  }
  Nelmo::KnxConverter* Clone() const override { return new CountingFloat16(*this); }

 private:
  int& m_sends;
  int& m_receives;
};

TEST(StandardRowCalls, ACallersRowOfADerivedClassReachesItsOverrides) {
  KnxValueConverter facade;
  facade.Clear();
  int sends = 0;
  int receives = 0;
  ASSERT_TRUE(
      facade.AddDptValueMapEntry(9, 1, 16, IVT_DOUBLE, UloDP::IVST_TEMPERATURE, CountingFloat16(sends, receives)));
  KnxStack::GroupValue groupValue;
  EXPECT_TRUE(facade.ToKnxValue(KNXDPT{16, 9, 1}, ULOVALUE::Double(21.5), groupValue));
  ULOVALUE value;
  EXPECT_TRUE(facade.FromKnxValue(KNXDPT{16, 9, 1}, GroupOf({0x0C, 0x33}, 16), value));
  EXPECT_EQ(sends, 1);
  EXPECT_EQ(receives, 1);
}

}  // namespace
