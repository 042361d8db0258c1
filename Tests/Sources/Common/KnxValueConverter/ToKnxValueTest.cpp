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
using FacadeTest::Holds;
using FacadeTest::IsDpt;
using FacadeTest::SameValue;
using TestSupport::LogCapture;
using TestSupport::LogLine;

LogLine ToKnxLine(const std::string& text) {
  return FacadeLine("ToKnxValue", text);
}

std::vector<LogLine> NoEntry(const std::string& dpt) {
  return FacadeTest::NoEntryLines("ToKnxValue", dpt);
}

struct Outcome {
  const char* name;
  KNXDPT dpt;
  ULOVALUE value;
  bool result;
  std::vector<LogLine> lines;
};

// One row per way through the conversion, with the lines it writes.
const Outcome Outcomes[] = {
    {"converted", {16, 9, 1}, ULOVALUE::Double(21.5), true, {}},
    {"converted through main.x", {16, 9, 10}, ULOVALUE::Double(21.5), true, {}},
    {"no DPT and no default",
     {3, 0, 0},
     ULOVALUE::UInt16(513),
     false,
     {ToKnxLine("Convert to KNX value failed. Missing DPT. val = 513")}},
    {"no row", {16, 99, 1}, ULOVALUE::Double(21.5), false, NoEntry("99.1")},
    {"no main.x row",
     {32, 12, 7},
     ULOVALUE::UInt32(1),
     false,
     {FacadeLine("GetEntry", "No Entry found for DPT = 12.x"), ToKnxLine("No Entry found for DPT = 12.7")}},
    {"no main.0 row", {32, 12, 0}, ULOVALUE::UInt32(1), false, NoEntry("12.0")},
    {"value type not convertible",
     {16, 8, 0},
     ULOVALUE::Date(2024, 5, 17),
     false,
     {ToKnxLine("Invalid value type found for DPT = 8.0 val.ivt=11")}},
    {"text not convertible",
     {16, 9, 1},
     ULOVALUE::String("abc"),
     false,
     {ToKnxLine("Invalid value type found for DPT = 9.1 val.ivt=10")}},
    {"unknown value type",
     {16, 9, 1},
     ULOVALUE(static_cast<UloValueType>(77)),
     false,
     {ToKnxLine("Invalid value type found for DPT = 9.1 val.ivt=77")}},
    {"row without converter",
     {16, 7, 1},
     ULOVALUE::UInt16(7),
     false,
     {ToKnxLine("NULL pointer as KnxConverter for DPT = 7.1")}},
    {"converter refuses",
     {8, 5, 10},
     ULOVALUE::String("42.50"),
     false,
     {ToKnxLine("Convert to KNX value failed for DPT = 5.10 val = 42.5")}},
    {"converter throws",
     {32, 14, 0},
     ULOVALUE::Double(1.0),
     true,
     {ToKnxLine("Exception caught during conversion of ULOVALUE to GroupValue: " + FacadeTest::ThrownText)}},
    {"default DPT of a 64-bit value has no row", {0, 0, 0}, ULOVALUE::UInt64(1), false, NoEntry("218.0")},
    {"default DPT of 40 bits has no row", {40, 0, 0}, ULOVALUE::UInt16(1), false, NoEntry("218.0")},
    {"default DPT of 48 bits has no row", {48, 0, 0}, ULOVALUE::UInt16(1), false, NoEntry("219.1")},
};

bool Send(const Nelmo::KnxValueConverter& facade, const Outcome& row) {
  KNXDPT dpt = row.dpt;
  KnxStack::GroupValue groupValue;
  return facade.ToKnxValue(dpt, row.value, groupValue);
}

TEST_F(Conversion, ToKnxResultsAndLines) {
  ExpectOutcomes(m_facade, Outcomes, ULO_LOG_TRACE, Send);
}

TEST_F(Conversion, ToKnxWritesTheSameLinesWithOnlyErrorsActive) {
  ExpectOutcomes(m_facade, Outcomes, ULO_LOG_ERROR, Send);
}

TEST_F(Conversion, ToKnxGivesTheSameResultsWhileLoggingIsOff) {
  ExpectOutcomes(m_facade, Outcomes, ULO_LOG_OFF, Send);
}

struct Completion {
  const char* name;
  KNXDPT given;
  ULOVALUE value;
  KNXDPT completed;
  bool result;
};

// A value-type default writes bit size, main and sub; a size default main
// and sub only; with neither the DPT stays as it was.
const Completion Completions[] = {
    {"double without size", {0, 0, 0}, ULOVALUE::Double(21.5), {16, 9, 0}, true},
    {"double with 16 bits", {16, 0, 0}, ULOVALUE::Double(21.5), {16, 9, 0}, true},
    {"double with 4 bits", {4, 0, 0}, ULOVALUE::Double(50.0), {4, 3, 0}, true},
    {"double with 24 bits takes the size default", {24, 0, 0}, ULOVALUE::Double(21.5), {24, 10, 1}, false},
    {"boolean with 8 bits", {8, 0, 0}, ULOVALUE::Bool(true), {1, 1, 1}, true},
    {"time without size", {0, 0, 0}, ULOVALUE::Time(12, 0, 0), {24, 10, 1}, true},
    {"date without size", {0, 0, 0}, ULOVALUE::Date(2024, 5, 17), {24, 11, 1}, true},
    {"date and time with 8 bits", {8, 0, 0}, ULOVALUE::DateTime(ULOTIME()), {64, 19, 1}, true},
    {"text with 8 bits", {8, 0, 0}, ULOVALUE::String("A"), {8, 4, 2}, false},
    {"uint16 with 16 bits", {16, 0, 0}, ULOVALUE::UInt16(513), {16, 7, 0}, false},
    {"int32 without size", {0, 0, 0}, ULOVALUE::Int32(-5), {32, 13, 0}, true},
    {"time span", {0, 0, 0}, ULOVALUE::TimeSpan(60), {32, 13, 100}, true},
    {"uint16 without size", {0, 0, 0}, ULOVALUE::UInt16(513), {0, 0, 0}, false},
    {"uint16 with 3 bits", {3, 0, 0}, ULOVALUE::UInt16(513), {3, 0, 0}, false},
    {"sub number without main number", {0, 0, 5}, ULOVALUE::Int32(-5), {32, 13, 0}, true},
    {"given DPT with another size", {8, 9, 1}, ULOVALUE::Double(21.5), {8, 9, 1}, true},
};

TEST_F(Conversion, ToKnxCompletesAMissingDptInTheCallersObject) {
  LogCapture capture(ULO_LOG_OFF);
  for (const Completion& row : Completions) {
    SCOPED_TRACE(row.name);
    KNXDPT dpt = row.given;
    const KNXDPT& asPassed = dpt;
    KnxStack::GroupValue groupValue;
    EXPECT_EQ(m_facade.ToKnxValue(asPassed, row.value, groupValue), row.result);
    EXPECT_TRUE(IsDpt(dpt, row.completed.bitSize, row.completed.mainNumber, row.completed.subNumber));
  }
}

TEST_F(Conversion, ToKnxHandsTheCompletedDptToTheConverter) {
  LogCapture capture;
  KNXDPT dpt{16, 0, 0};
  KnxStack::GroupValue groupValue;
  EXPECT_TRUE(m_facade.ToKnxValue(dpt, ULOVALUE::Double(21.5), groupValue));
  const auto& calls = ScriptOf(9, 0).toKnxCalls;
  ASSERT_EQ(calls.size(), 1u);
  EXPECT_TRUE(IsDpt(calls[0].dpt, 16, 9, 0));
  EXPECT_TRUE(IsDpt(dpt, 16, 9, 0));
  EXPECT_EQ(calls[0].groupValueAddress, &groupValue);
  EXPECT_TRUE(Holds(groupValue, FacadeTest::EncodedBytes, 16));
  EXPECT_TRUE(capture.Lines().empty());
}

TEST_F(Conversion, ToKnxLeavesTheDptAloneWhenNoDefaultIsFound) {
  LogCapture capture;
  KNXDPT dpt{3, 0, 0};
  KnxStack::GroupValue groupValue;
  EXPECT_FALSE(m_facade.ToKnxValue(dpt, ULOVALUE::UInt16(513), groupValue));
  EXPECT_TRUE(IsDpt(dpt, 3, 0, 0));
  EXPECT_EQ(capture.Lines(), std::vector<LogLine>{ToKnxLine("Convert to KNX value failed. Missing DPT. val = 513")});
  EXPECT_EQ(CallCount(), 0u);
}

struct Passing {
  const char* name;
  KNXDPT dpt;
  ULOVALUE value;
  std::uint16_t rowMain;
  std::uint16_t rowSub;
  ULOVALUE seen;
};

ULOVALUE DateTimeOfDate() {
  ULOVALUE converted(IVT_DATETIME);
  converted.Assign(ULOVALUE::Date(2024, 5, 17));
  return converted;
}

ULOVALUE NoneValue() {
  ULOVALUE value(IVT_NONE);
  value.SetDouble(3.5);
  return value;
}

ULOTIME SomeDateAndTime() {
  ULOTIME time;
  time.SetDate(2024, 5, 17, true);
  time.SetTime(13, 14, 15, true);
  return time;
}

// What the converter is handed: the value itself where its type passes,
// else the value converted into the row's type.
const Passing Passings[] = {
    {"no value type passes unchecked", {16, 9, 1}, NoneValue(), 9, 1, NoneValue()},
    {"no value type passes unchecked to a date", {24, 11, 1}, NoneValue(), 11, 0, NoneValue()},
    {"time span to an int32 row", {32, 13, 0}, ULOVALUE::TimeSpan(3600), 13, 0, ULOVALUE::TimeSpan(3600)},
    {"int32 to a time span row", {32, 13, 100}, ULOVALUE::Int32(-7), 13, 100, ULOVALUE::Int32(-7)},
    {"percentage to a double row",
     {16, 9, 1},
     ULOVALUE::Double(40.0, IVT_PERCENT),
     9,
     1,
     ULOVALUE::Double(40.0, IVT_PERCENT)},
    {"date and time to a date row",
     {24, 11, 0},
     ULOVALUE::DateTime(SomeDateAndTime()),
     11,
     0,
     ULOVALUE::DateTime(SomeDateAndTime())},
    {"date to a date and time row is converted", {64, 19, 0}, ULOVALUE::Date(2024, 5, 17), 19, 0, DateTimeOfDate()},
    {"int32 to a double row is converted", {16, 9, 1}, ULOVALUE::Int32(21), 9, 1, ULOVALUE::Double(21.0)},
    {"text to a double row is converted", {16, 9, 1}, ULOVALUE::String("21.5"), 9, 1, ULOVALUE::Double(21.5)},
    {"double to a boolean row is converted", {1, 1, 1}, ULOVALUE::Double(2.0), 1, 0, ULOVALUE::Bool(true)},
};

TEST_F(Conversion, ToKnxHandsTheConverterTheValueOrItsConversion) {
  LogCapture capture;
  for (const Passing& row : Passings) {
    SCOPED_TRACE(row.name);
    KNXDPT dpt = row.dpt;
    KnxStack::GroupValue groupValue;
    auto& calls = ScriptOf(row.rowMain, row.rowSub).toKnxCalls;
    calls.clear();
    EXPECT_TRUE(m_facade.ToKnxValue(dpt, row.value, groupValue));
    ASSERT_EQ(calls.size(), 1u);
    EXPECT_TRUE(SameValue(calls[0].value, row.seen));
  }
  EXPECT_TRUE(capture.Lines().empty());
}

// Also where the value passes as it is, the converter reads a copy of the
// call's own, not the caller's object.
TEST_F(Conversion, ToKnxHandsTheConverterAValueOfItsOwn) {
  LogCapture capture;
  for (const Passing& row : Passings) {
    SCOPED_TRACE(row.name);
    KNXDPT dpt = row.dpt;
    KnxStack::GroupValue groupValue;
    auto& calls = ScriptOf(row.rowMain, row.rowSub).toKnxCalls;
    calls.clear();
    EXPECT_TRUE(m_facade.ToKnxValue(dpt, row.value, groupValue));
    ASSERT_EQ(calls.size(), 1u);
    EXPECT_NE(calls[0].valueAddress, &row.value);
  }
}

TEST_F(Conversion, ToKnxNeverChangesTheCallersValue) {
  LogCapture capture(ULO_LOG_OFF);
  const auto expectUnchanged = [this](const auto& row) {
    SCOPED_TRACE(row.name);
    KNXDPT dpt = row.dpt;
    const ULOVALUE before = row.value;
    KnxStack::GroupValue groupValue;
    m_facade.ToKnxValue(dpt, before, groupValue);
    EXPECT_TRUE(SameValue(before, row.value));
  };
  for (const Passing& row : Passings) {
    expectUnchanged(row);
  }
  for (const Outcome& row : Outcomes) {
    expectUnchanged(row);
  }
}

TEST_F(Conversion, ToKnxDoesNotCallTheConverterOfAValueItCannotConvert) {
  LogCapture capture;
  KNXDPT dpt{16, 8, 0};
  KnxStack::GroupValue groupValue;
  EXPECT_FALSE(m_facade.ToKnxValue(dpt, ULOVALUE::Date(2024, 5, 17), groupValue));
  EXPECT_EQ(capture.Lines(), std::vector<LogLine>{ToKnxLine("Invalid value type found for DPT = 8.0 val.ivt=11")});
  EXPECT_EQ(CallCount(), 0u);
}

TEST_F(Conversion, ToKnxChecksTheValueTypeBeforeTheConverter) {
  LogCapture capture;
  KNXDPT dpt{16, 7, 0};
  KnxStack::GroupValue groupValue;
  EXPECT_FALSE(m_facade.ToKnxValue(dpt, ULOVALUE::String("no number"), groupValue));
  EXPECT_EQ(capture.Lines(), std::vector<LogLine>{ToKnxLine("Invalid value type found for DPT = 7.0 val.ivt=10")});
}

TEST_F(Conversion, ToKnxLeavesWhatARefusingConverterWrote) {
  LogCapture capture(ULO_LOG_OFF);
  KNXDPT dpt{8, 5, 1};
  KnxStack::GroupValue groupValue = FacadeTest::GroupOf({0x01}, 8);
  EXPECT_FALSE(m_facade.ToKnxValue(dpt, ULOVALUE::Double(50.0), groupValue));
  EXPECT_TRUE(Holds(groupValue, FacadeTest::EncodedBytes, 16));
}

TEST_F(Conversion, ToKnxReportsSuccessForAConverterThatThrew) {
  LogCapture capture;
  KNXDPT dpt{32, 14, 0};
  KnxStack::GroupValue groupValue;
  EXPECT_TRUE(m_facade.ToKnxValue(dpt, ULOVALUE::Double(1.0), groupValue));
  EXPECT_EQ(ScriptOf(14, 0).toKnxCalls.size(), 1u);
  EXPECT_EQ(capture.Lines(),
            std::vector<LogLine>{
                ToKnxLine("Exception caught during conversion of ULOVALUE to GroupValue: " + FacadeTest::ThrownText)});
}

TEST_F(Conversion, ToKnxLetsOtherExceptionsPass) {
  LogCapture capture;
  KNXDPT dpt{8, 20, 0};
  KnxStack::GroupValue groupValue;
  EXPECT_THROW(m_facade.ToKnxValue(dpt, ULOVALUE::Byte(1), groupValue), std::runtime_error);
  EXPECT_TRUE(capture.Lines().empty());
}

struct ThrowingMessage {
  const char* name;
  KNXDPT dpt;
  ULOVALUE value;
  bool result;
};

// The log throws on the first message: a failure being reported returns
// false, but the map's own message comes before any failure is noted.
const ThrowingMessage ThrowingMessages[] = {
    {"missing DPT", {3, 0, 0}, ULOVALUE::UInt16(513), false},
    {"value type not convertible", {16, 8, 0}, ULOVALUE::Date(2024, 5, 17), false},
    {"row without converter", {16, 7, 1}, ULOVALUE::UInt16(7), false},
    {"converter refuses", {8, 5, 10}, ULOVALUE::Double(1.0), false},
    {"no row: the lookup's message throws", {16, 99, 1}, ULOVALUE::Double(1.0), true},
};

TEST_F(Conversion, ToKnxExceptionWhileReportingAFailure) {
  for (const ThrowingMessage& row : ThrowingMessages) {
    SCOPED_TRACE(row.name);
    FacadeTest::ThrowingLog log;
    KNXDPT dpt = row.dpt;
    KnxStack::GroupValue groupValue;
    EXPECT_EQ(m_facade.ToKnxValue(dpt, row.value, groupValue), row.result);
    EXPECT_TRUE(log.Thrown());
    EXPECT_EQ(log.Lines(), std::vector<LogLine>{ToKnxLine(
                               "Exception caught during conversion of ULOVALUE to GroupValue: log sink failed")});
  }
}

}  // namespace
