#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "FacadeTestSupport.h"

namespace {

using FacadeTest::Bytes;
using FacadeTest::Conversion;
using FacadeTest::ExpectOutcomes;
using FacadeTest::FacadeLine;
using FacadeTest::GroupOf;
using FacadeTest::Holds;
using FacadeTest::IsDpt;
using FacadeTest::SameValue;
using TestSupport::LogCapture;
using TestSupport::LogLine;

LogLine FromKnxLine(const std::string& text) {
  return FacadeLine("FromKnxValue", text);
}

std::vector<LogLine> NoEntry(const std::string& dpt) {
  return FacadeTest::NoEntryLines("FromKnxValue", dpt);
}

std::vector<LogLine> SizeMismatch(const std::string& dpt, unsigned defined, unsigned expected) {
  return {FromKnxLine("Failed to convert a GroupValue for DPT " + dpt + " because of unexpected bit size: " +
                      std::to_string(defined) + ", expected: " + std::to_string(expected))};
}

struct Outcome {
  const char* name;
  KNXDPT dpt;
  KnxStack::GroupValue received;
  UloValueType wanted;
  bool result;
  std::vector<LogLine> lines;
};

// One row per way through the conversion, with the lines it writes.
const Outcome Outcomes[] = {
    {"converted", {16, 9, 1}, GroupOf({0x0C, 0x33}, 16), IVT_DOUBLE, true, {}},
    {"converted through main.x", {16, 9, 10}, GroupOf({0x0C, 0x33}, 16), IVT_DOUBLE, true, {}},
    {"no DPT and no size default",
     {0, 0, 0},
     GroupOf({0x2A}, 6),
     IVT_DOUBLE,
     false,
     {FromKnxLine("Convert from KNX value failed. Missing DPT. GroupValue = 2A")}},
    {"no DPT, a size without default",
     {3, 0, 0},
     GroupOf({0x12, 0x34}, 16),
     IVT_DOUBLE,
     false,
     {FromKnxLine("Convert from KNX value failed. Missing DPT. GroupValue = 12 34")}},
    {"no row", {16, 99, 1}, GroupOf({0x0C, 0x33}, 16), IVT_DOUBLE, false, NoEntry("99.1")},
    {"no main.x row",
     {32, 12, 7},
     GroupOf({1, 2, 3, 4}, 32),
     IVT_UINT32,
     false,
     {FacadeLine("GetEntry", "No Entry found for DPT = 12.x"), FromKnxLine("No Entry found for DPT = 12.7")}},
    {"one bit expected, a byte received", {1, 1, 0}, GroupOf({0x01}, 8), IVT_BOOL, false, SizeMismatch("1.0", 8, 1)},
    {"16 bits expected, a byte received",
     {16, 9, 1},
     GroupOf({0x01}, 8),
     IVT_DOUBLE,
     false,
     SizeMismatch("9.1", 8, 16)},
    {"14 bytes expected, 13 received",
     {112, 16, 0},
     GroupOf(Bytes(13, 0x41), 104),
     IVT_STRING,
     false,
     SizeMismatch("16.0", 104, 112)},
    {"row without converter",
     {16, 7, 1},
     GroupOf({0x12, 0x34}, 16),
     IVT_UINT16,
     false,
     {FromKnxLine("NULL pointer as KnxConverter for DPT = 7.1")}},
    {"converter refuses",
     {8, 5, 10},
     GroupOf({0x80}, 8),
     IVT_DOUBLE,
     false,
     {FromKnxLine("Convert from KNX value failed for DPT = 5.10 GroupValue = 80")}},
    {"converter refuses the emptied value",
     {0, 28, 1},
     GroupOf({0x2A}, 6),
     IVT_STRING,
     false,
     {FromKnxLine("Convert from KNX value failed for DPT = 28.1 GroupValue = ")}},
    {"converter refuses a received text",
     {0, 28, 1},
     GroupOf({0x41, 0x42}, 16),
     IVT_STRING,
     false,
     {FromKnxLine("Convert from KNX value failed for DPT = 28.1 GroupValue = 41 42")}},
    {"converter throws",
     {32, 14, 0},
     GroupOf({0, 0, 0, 0}, 32),
     IVT_DOUBLE,
     true,
     {FromKnxLine("Exception caught during conversion of GroupValue: " + FacadeTest::ThrownText)}},
    {"default DPT of 48 bits has no row", {0, 0, 0}, GroupOf(Bytes(6, 0), 48), IVT_UINT64, false, NoEntry("219.1")},
    {"default DPT of 40 bits has no row", {40, 0, 0}, GroupOf(Bytes(5, 0), 40), IVT_UINT64, false, NoEntry("218.0")},
};

bool Receive(const Nelmo::KnxValueConverter& facade, const Outcome& row) {
  KNXDPT dpt = row.dpt;
  ULOVALUE value(row.wanted);
  return facade.FromKnxValue(dpt, row.received, value);
}

TEST_F(Conversion, FromKnxResultsAndLines) {
  ExpectOutcomes(m_facade, Outcomes, ULO_LOG_TRACE, Receive);
}

TEST_F(Conversion, FromKnxWritesTheSameLinesWithOnlyErrorsActive) {
  ExpectOutcomes(m_facade, Outcomes, ULO_LOG_ERROR, Receive);
}

TEST_F(Conversion, FromKnxGivesTheSameResultsWhileLoggingIsOff) {
  ExpectOutcomes(m_facade, Outcomes, ULO_LOG_OFF, Receive);
}

struct Completion {
  const char* name;
  KNXDPT given;
  KnxStack::GroupValue received;
  UloValueType wanted;
  KNXDPT completed;
  bool result;
};

// Without a bit size the received size picks the default and the whole DPT
// is written; with one, main and sub only. Without a default nothing changes.
const Completion Completions[] = {
    {"int32 from 16 received bits", {0, 0, 0}, GroupOf({0x00, 0x10}, 16), IVT_INT32, {16, 8, 0}, true},
    {"double from 16 received bits", {0, 0, 0}, GroupOf({0x0C, 0x33}, 16), IVT_DOUBLE, {16, 9, 0}, true},
    {"boolean from one received bit", {0, 0, 0}, GroupOf({0x01}, 1), IVT_BOOL, {1, 1, 1}, true},
    {"double from 6 received bits", {0, 0, 0}, GroupOf({0x2A}, 6), IVT_DOUBLE, {0, 0, 0}, false},
    {"received size beyond the bit size field", {0, 0, 0}, GroupOf(Bytes(33, 0x41), 264), IVT_STRING, {0, 0, 0}, false},
    {"bit size given: the received size is not used", {16, 0, 0}, GroupOf({0x01}, 8), IVT_INT32, {16, 8, 0}, false},
    {"bit size without default", {3, 0, 0}, GroupOf({0x12, 0x34}, 16), IVT_DOUBLE, {3, 0, 0}, false},
    {"sub number without main number", {0, 0, 5}, GroupOf({0x00, 0x10}, 16), IVT_INT32, {16, 8, 0}, true},
    {"given DPT", {8, 9, 1}, GroupOf({0x0C, 0x33}, 16), IVT_DOUBLE, {8, 9, 1}, true},
};

TEST_F(Conversion, FromKnxCompletesAMissingDptInTheCallersObject) {
  LogCapture capture(ULO_LOG_OFF);
  for (const Completion& row : Completions) {
    SCOPED_TRACE(row.name);
    KNXDPT dpt = row.given;
    const KNXDPT& asPassed = dpt;
    ULOVALUE value(row.wanted);
    EXPECT_EQ(m_facade.FromKnxValue(asPassed, row.received, value), row.result);
    EXPECT_TRUE(IsDpt(dpt, row.completed.bitSize, row.completed.mainNumber, row.completed.subNumber));
  }
}

TEST_F(Conversion, FromKnxHandsTheCompletedDptToTheConverter) {
  LogCapture capture;
  KNXDPT dpt{0, 0, 0};
  const KnxStack::GroupValue received = GroupOf({0x00, 0x10}, 16);
  ULOVALUE value(IVT_INT32);
  EXPECT_TRUE(m_facade.FromKnxValue(dpt, received, value));
  const auto& calls = ScriptOf(8, 0).fromKnxCalls;
  ASSERT_EQ(calls.size(), 1u);
  EXPECT_TRUE(IsDpt(calls[0].dpt, 16, 8, 0));
  EXPECT_TRUE(IsDpt(dpt, 16, 8, 0));
  EXPECT_TRUE(capture.Lines().empty());
}

TEST_F(Conversion, FromKnxLeavesTheDptAloneWhenNoDefaultIsFound) {
  LogCapture capture;
  KNXDPT dpt{0, 0, 0};
  ULOVALUE value(IVT_DOUBLE);
  EXPECT_FALSE(m_facade.FromKnxValue(dpt, GroupOf({0x2A}, 6), value));
  EXPECT_TRUE(IsDpt(dpt, 0, 0, 0));
  EXPECT_EQ(capture.Lines(),
            std::vector<LogLine>{FromKnxLine("Convert from KNX value failed. Missing DPT. GroupValue = 2A")});
  EXPECT_EQ(CallCount(), 0u);
}

TEST_F(Conversion, FromKnxStampsTheRowsTypeAndLetsTheConverterFillThePayload) {
  LogCapture capture;
  KNXDPT dpt{16, 9, 1};
  ULOVALUE value = ULOVALUE::String("before");
  EXPECT_TRUE(m_facade.FromKnxValue(dpt, GroupOf({0x0C, 0x33}, 16), value));
  EXPECT_EQ(value.GetType(), IVT_DOUBLE);
  EXPECT_EQ(value.GetInt32(), FacadeTest::Decoded);
  const auto& calls = ScriptOf(9, 1).fromKnxCalls;
  ASSERT_EQ(calls.size(), 1u);
  EXPECT_EQ(calls[0].value.GetType(), IVT_DOUBLE);
  EXPECT_EQ(calls[0].value.GetString(), "before");
}

TEST_F(Conversion, FromKnxLeavesTheValueAloneWhenThereIsNoRow) {
  LogCapture capture(ULO_LOG_OFF);
  KNXDPT dpt{16, 99, 1};
  const ULOVALUE before = ULOVALUE::String("before");
  ULOVALUE value = before;
  EXPECT_FALSE(m_facade.FromKnxValue(dpt, GroupOf({0x0C, 0x33}, 16), value));
  EXPECT_TRUE(SameValue(value, before));
}

TEST_F(Conversion, FromKnxStampsTheTypeBeforeTheSizeCheck) {
  LogCapture capture;
  KNXDPT dpt{1, 1, 0};
  ULOVALUE value = ULOVALUE::String("before");
  EXPECT_FALSE(m_facade.FromKnxValue(dpt, GroupOf({0x01}, 8), value));
  EXPECT_EQ(value.GetType(), IVT_BOOL);
  EXPECT_EQ(value.GetString(), "before");
  EXPECT_EQ(capture.Lines(), SizeMismatch("1.0", 8, 1));
  EXPECT_EQ(CallCount(), 0u);
}

enum class Handed { Received, Rebuilt, Nothing };

struct SizeCase {
  const char* name;
  std::uint16_t mainNumber;
  unsigned int formatSize;
  Bytes bytes;
  unsigned int definedSize;
  Handed handed;
  // What the converter reads when the group value is rebuilt.
  Bytes rebuiltBytes;
  unsigned int rebuiltSize;
};

// Main number and its format size (24 any length, 100 none), the received
// bytes and defined size, and what the converter is handed.
const SizeCase SizeCases[] = {
    {"1 bit: received 1", 1, 1u, {0x01}, 1, Handed::Received, {}, 0},
    {"1 bit: received 4", 1, 1u, {0x0F}, 4, Handed::Received, {}, 0},
    {"1 bit: received 0", 1, 1u, {}, 0, Handed::Received, {}, 0},
    {"1 bit: received 6, rebuilt", 1, 1u, {0xE1}, 6, Handed::Rebuilt, {0x21}, 1},
    {"1 bit: received 7", 1, 1u, {0x01}, 7, Handed::Nothing, {}, 0},
    {"1 bit: received 8", 1, 1u, {0x01}, 8, Handed::Nothing, {}, 0},
    {"2 bits: received 6, rebuilt", 2, 2u, {0x03}, 6, Handed::Rebuilt, {0x03}, 2},
    {"2 bits: received 1", 2, 2u, {0x01}, 1, Handed::Received, {}, 0},
    {"4 bits: received 6, rebuilt", 3, 4u, {0x09}, 6, Handed::Rebuilt, {0x09}, 4},
    {"4 bits: received 2", 3, 4u, {0x01}, 2, Handed::Received, {}, 0},
    {"4 bits: received 16", 3, 4u, {0x00, 0x09}, 16, Handed::Nothing, {}, 0},
    {"16 bits: received 16", 9, 16u, {0x0C, 0x33}, 16, Handed::Received, {}, 0},
    {"16 bits: received 8", 9, 16u, {0x0C}, 8, Handed::Nothing, {}, 0},
    {"16 bits: received 24", 9, 16u, {0x0C, 0x33, 0x00}, 24, Handed::Nothing, {}, 0},
    {"16 bits: received 6", 9, 16u, {0x0C}, 6, Handed::Nothing, {}, 0},
    {"16 bits: received 1", 9, 16u, {0x01}, 1, Handed::Nothing, {}, 0},
    {"16 bits: received 0", 9, 16u, {}, 0, Handed::Nothing, {}, 0},
    {"112 bits: received 112", 16, 112u, Bytes(14, 0x41), 112, Handed::Received, {}, 0},
    {"112 bits: received 8", 16, 112u, {0x41}, 8, Handed::Nothing, {}, 0},
    {"112 bits: received 104", 16, 112u, Bytes(13, 0x41), 104, Handed::Nothing, {}, 0},
    {"112 bits: received 120", 16, 112u, Bytes(15, 0x41), 120, Handed::Nothing, {}, 0},
    {"112 bits: received 6", 16, 112u, {0x01}, 6, Handed::Nothing, {}, 0},
    {"any length: received 8", 24, 2147483647u, {0x41}, 8, Handed::Received, {}, 0},
    {"any length: received 160", 24, 2147483647u, Bytes(20, 0x41), 160, Handed::Received, {}, 0},
    {"any length: received 1", 24, 2147483647u, {0x01}, 1, Handed::Received, {}, 0},
    {"any length: received 0", 24, 2147483647u, {}, 0, Handed::Received, {}, 0},
    {"any length: received 6, handed an empty value", 24, 2147483647u, {0x2A}, 6, Handed::Rebuilt, {}, 0},
    {"no format size: received 0", 100, 0u, {}, 0, Handed::Received, {}, 0},
    {"no format size: received 1", 100, 0u, {0x01}, 1, Handed::Received, {}, 0},
    {"no format size: received 6, rebuilt with 0 bits", 100, 0u, {0x2A}, 6, Handed::Rebuilt, {0x2A}, 0},
    {"no format size: received 7", 100, 0u, {0x2A}, 7, Handed::Nothing, {}, 0},
    {"no format size: received 8", 100, 0u, {0x2A}, 8, Handed::Nothing, {}, 0},
};

TEST_F(Conversion, FromKnxSizeRule) {
  for (const SizeCase& row : SizeCases) {
    SCOPED_TRACE(row.name);
    LogCapture capture;
    auto& calls = ScriptOf(row.mainNumber, 0).fromKnxCalls;
    calls.clear();
    KNXDPT dpt{0, row.mainNumber, 0};
    const KnxStack::GroupValue received = GroupOf(row.bytes, row.definedSize);
    ULOVALUE value;
    const bool result = m_facade.FromKnxValue(dpt, received, value);
    if (row.handed == Handed::Nothing) {
      EXPECT_FALSE(result);
      EXPECT_TRUE(calls.empty());
      EXPECT_EQ(capture.Lines(), SizeMismatch(std::to_string(row.mainNumber) + ".0", row.definedSize, row.formatSize));
      continue;
    }
    EXPECT_TRUE(result);
    EXPECT_TRUE(capture.Lines().empty());
    ASSERT_EQ(calls.size(), 1u);
    if (row.handed == Handed::Received) {
      EXPECT_EQ(calls[0].groupValueAddress, &received);
    } else {
      EXPECT_NE(calls[0].groupValueAddress, &received);
      EXPECT_TRUE(Holds(calls[0].groupValue, row.rebuiltBytes, row.rebuiltSize));
    }
  }
}

TEST_F(Conversion, FromKnxReportsSuccessForAConverterThatThrew) {
  LogCapture capture;
  KNXDPT dpt{32, 14, 0};
  ULOVALUE value;
  EXPECT_TRUE(m_facade.FromKnxValue(dpt, GroupOf({0, 0, 0, 0}, 32), value));
  EXPECT_EQ(ScriptOf(14, 0).fromKnxCalls.size(), 1u);
  EXPECT_EQ(capture.Lines(), std::vector<LogLine>{FromKnxLine("Exception caught during conversion of GroupValue: " +
                                                              FacadeTest::ThrownText)});
}

TEST_F(Conversion, FromKnxLetsOtherExceptionsPass) {
  LogCapture capture;
  KNXDPT dpt{8, 20, 0};
  ULOVALUE value;
  EXPECT_THROW(m_facade.FromKnxValue(dpt, GroupOf({0x01}, 8), value), std::runtime_error);
  EXPECT_TRUE(capture.Lines().empty());
}

struct ThrowingMessage {
  const char* name;
  KNXDPT dpt;
  KnxStack::GroupValue received;
  bool result;
};

// The log throws on the first message: a failure being reported returns
// false, but the map's own message comes before any failure is noted.
const ThrowingMessage ThrowingMessages[] = {
    {"missing DPT", {0, 0, 0}, GroupOf({0x2A}, 6), false},
    {"size mismatch", {16, 9, 1}, GroupOf({0x01}, 8), false},
    {"row without converter", {16, 7, 1}, GroupOf({0x12, 0x34}, 16), false},
    {"converter refuses", {8, 5, 10}, GroupOf({0x80}, 8), false},
    {"no row: the lookup's message throws", {16, 99, 1}, GroupOf({0x0C, 0x33}, 16), true},
};

TEST_F(Conversion, FromKnxExceptionWhileReportingAFailure) {
  for (const ThrowingMessage& row : ThrowingMessages) {
    SCOPED_TRACE(row.name);
    FacadeTest::ThrowingLog log;
    KNXDPT dpt = row.dpt;
    ULOVALUE value(IVT_DOUBLE);
    EXPECT_EQ(m_facade.FromKnxValue(dpt, row.received, value), row.result);
    EXPECT_TRUE(log.Thrown());
    EXPECT_EQ(log.Lines(),
              std::vector<LogLine>{FromKnxLine("Exception caught during conversion of GroupValue: log sink failed")});
  }
}

}  // namespace
