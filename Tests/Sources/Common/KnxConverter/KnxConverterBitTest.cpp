#include "KnxConverterBit.h"

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "CountedAllocations.h"
#include "LogCapture.h"
#include "ScalarConverterTestSupport.h"

namespace {

using namespace ScalarConverterTest;
using Nelmo::KnxConverter;

const KNXDPT Dpt1{1, 1, 1};
const KNXDPT Dpt2{2, 2, 1};
const KNXDPT Dpt3{4, 3, 7};

// The range of the standard 3.x row.
Nelmo::FloatIntegerRange Dpt3Range() {
  return Nelmo::FloatIntegerRange(-100.0, 100.0, 0, 15);
}

// ---------------------------------------------------------------------------
// 1 bit

TEST(KnxConverter1Bit, SendsTheBoolean) {
  Nelmo::KnxConverter1Bit converter;
  ExpectSends(converter, Dpt1,
              {
                  {ULOVALUE::Bool(false), {0x00}},
                  {ULOVALUE::Bool(true), {0x01}},
              },
              1, Untouched());
}

TEST(KnxConverter1Bit, ReceivesTheBoolean) {
  Nelmo::KnxConverter1Bit converter;
  struct Row {
    Bytes bytes;
    bool value;
  };
  const Row rows[] = {
      {{0x00}, false},
      {{0x01}, true},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.value);
    ULOVALUE value = ULOVALUE::Bool(!row.value);
    EXPECT_TRUE(converter.FromKnxValue(Dpt1, GroupOf(row.bytes, 1), value));
    EXPECT_EQ(value.GetBool(), row.value);
    EXPECT_EQ(value.GetType(), IVT_BOOL);
  }
}

TEST(KnxConverter1Bit, RefusesAnythingButABooleanOnMainNumber1Silently) {
  Nelmo::KnxConverter1Bit converter;
  const RefusalRow rows[] = {
      {"integer", Dpt1, ULOVALUE::Int32(1)},
      {"double", Dpt1, ULOVALUE::Double(1.0)},
      {"byte", Dpt1, ULOVALUE::Byte(1)},
      {"boolean on 2.x", KNXDPT{1, 2, 1}, ULOVALUE::Bool(true)},
      {"boolean on 5.x", KNXDPT{1, 5, 1}, ULOVALUE::Bool(true)},
  };
  ExpectRefusedSilently(converter, rows);
}

TEST(KnxConverter1Bit, ReceivesOnlyOnMainNumber1) {
  Nelmo::KnxConverter1Bit converter;
  ExpectNotReceivedSilently(converter, KNXDPT{1, 2, 1}, GroupOf({0x01}, 1));
}

// ---------------------------------------------------------------------------
// 2 bits

TEST(KnxConverter2Bit, SendsTheValueBitWithTheControlBitSet) {
  Nelmo::KnxConverter2Bit converter;
  ExpectSends(converter, Dpt2,
              {
                  {ULOVALUE::Bool(false), {0x02}},
                  {ULOVALUE::Bool(true), {0x03}},
              },
              2);
}

TEST(KnxConverter2Bit, ReceivesTheValueBitAndDropsTheControlBit) {
  Nelmo::KnxConverter2Bit converter;
  struct Row {
    Bytes bytes;
    bool value;
  };
  const Row rows[] = {
      {{0x02}, false},
      {{0x00}, false},
      {{0x03}, true},
      {{0x01}, true},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(static_cast<int>(row.bytes[0]));
    ULOVALUE value = ULOVALUE::Bool(!row.value);
    EXPECT_TRUE(converter.FromKnxValue(Dpt2, GroupOf(row.bytes, 2), value));
    EXPECT_EQ(value.GetBool(), row.value);
  }
}

TEST(KnxConverter2Bit, RefusesAnythingButABooleanOnMainNumber2Silently) {
  Nelmo::KnxConverter2Bit converter;
  const RefusalRow rows[] = {
      {"integer", Dpt2, ULOVALUE::Int32(1)},
      {"double", Dpt2, ULOVALUE::Double(1.0)},
      {"boolean on 1.x", KNXDPT{2, 1, 1}, ULOVALUE::Bool(true)},
  };
  ExpectRefusedSilently(converter, rows);
}

TEST(KnxConverter2Bit, ReceivesOnlyOnMainNumber2) {
  Nelmo::KnxConverter2Bit converter;
  ExpectNotReceivedSilently(converter, KNXDPT{2, 1, 1}, GroupOf({0x03}, 2));
}

// ---------------------------------------------------------------------------
// 4 bits: bit 3 the direction (set: increase), bits 0-2 the step code

TEST(KnxConverter4Bit, SendsTheStepCodeOfTheClampedPercentage) {
  Nelmo::KnxConverter4Bit converter(Dpt3Range());
  ExpectSends(converter, Dpt3,
              {
                  {ULOVALUE::Double(-100.0), {0x01}},
                  {ULOVALUE::Double(100.0), {0x09}},
                  {ULOVALUE::Double(0.0), {0x00}},
                  {ULOVALUE::Double(150.0), {0x09}},
                  {ULOVALUE::Double(-250.0), {0x01}},
                  {ULOVALUE::Double(50.0), {0x0A}},
                  {ULOVALUE::Double(-12.5), {0x04}},
                  {ULOVALUE::Double(1.0), {0x0F}},
              },
              4);
}

// No range is applied on the way in.
TEST(KnxConverter4Bit, ReceivesTheSignedStep) {
  Nelmo::KnxConverter4Bit converter(Dpt3Range());
  struct Row {
    Bytes bytes;
    double value;
  };
  const Row rows[] = {
      {{0x09}, 100.0}, {{0x01}, -100.0}, {{0x00}, 0.0},    {{0x08}, 0.0},
      {{0x0A}, 50.0},  {{0x04}, -12.5},  {{0x0F}, 1.5625}, {{0x07}, -1.5625},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(static_cast<int>(row.bytes[0]));
    ULOVALUE value = ULOVALUE::Double(99.0);
    EXPECT_TRUE(converter.FromKnxValue(Dpt3, GroupOf(row.bytes, 4), value));
    EXPECT_EQ(value.GetDouble(), row.value);
    EXPECT_EQ(value.GetType(), IVT_DOUBLE);
  }
}

// A range narrower than the steps limits what is sent, not what arrives.
TEST(KnxConverter4Bit, ReceivesStepsBeyondItsRangeUnclamped) {
  Nelmo::KnxConverter4Bit converter(Nelmo::FloatIntegerRange(-50.0, 50.0, 0, 15));
  struct Row {
    Bytes bytes;
    double value;
  };
  const Row rows[] = {
      {{0x09}, 100.0},
      {{0x01}, -100.0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(static_cast<int>(row.bytes[0]));
    ULOVALUE value = ULOVALUE::Double(7.0);
    EXPECT_TRUE(converter.FromKnxValue(Dpt3, GroupOf(row.bytes, 4), value));
    EXPECT_EQ(value.GetDouble(), row.value);
  }
}

TEST(KnxConverter4Bit, RefusesAnythingButADoubleOnMainNumber3Silently) {
  Nelmo::KnxConverter4Bit converter(Dpt3Range());
  const RefusalRow rows[] = {
      {"double on 1.x", KNXDPT{4, 1, 1}, ULOVALUE::Double(50.0)},
      {"boolean", Dpt3, ULOVALUE::Bool(true)},
      {"integer", Dpt3, ULOVALUE::Int32(50)},
      {"dimming kind", Dpt3, ULOVALUE::Double(50.0, IVT_DIMMING)},
  };
  ExpectRefusedSilently(converter, rows);
}

TEST(KnxConverter4Bit, ReceivesOnlyOnMainNumber3) {
  Nelmo::KnxConverter4Bit converter(Dpt3Range());
  ULOVALUE value = ULOVALUE::Double(7.0);
  EXPECT_FALSE(converter.FromKnxValue(KNXDPT{4, 1, 1}, GroupOf({0x09}, 4), value));
  EXPECT_EQ(value.GetDouble(), 7.0);
}

// ---------------------------------------------------------------------------
// Messages

TEST(BitConverterMessages, SendingIsTracedAtLevel0) {
  Nelmo::KnxConverter1Bit oneBit;
  Nelmo::KnxConverter2Bit twoBit;
  Nelmo::KnxConverter4Bit fourBit(Dpt3Range());
  struct Row {
    KnxConverter* converter;
    KNXDPT dpt;
    ULOVALUE value;
    std::string trace;
  };
  const Row rows[] = {
      {&oneBit, Dpt1, ULOVALUE::Bool(true), "DPT is used. DPT = 1.1 ivt=2 val=true"},
      {&twoBit, KNXDPT{2, 2, 0}, ULOVALUE::Bool(false), "DPT is used. DPT = 2.0 ivt=2 val=false"},
      {&fourBit, Dpt3, ULOVALUE::Double(-12.5), "DPT is used. DPT = 3.7 ivt=3 val=-12.5"},
      // A refused value is traced all the same.
      {&oneBit, Dpt1, ULOVALUE::Int32(1), "DPT is used. DPT = 1.1 ivt=4 val=1"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.trace);
    TestSupport::LogCapture capture;
    KnxStack::GroupValue groupValue;
    row.converter->ToKnxValue(row.dpt, row.value, groupValue);
    EXPECT_EQ(capture.Lines(), std::vector<LogLine>{Trace("ToKnxValue", row.trace)});
  }
}

// The one-line decoders of 1 and 2 bits write nothing; the 4-bit one traces.
TEST(BitConverterMessages, OnlyThe4BitConverterTracesReceiving) {
  Nelmo::KnxConverter1Bit oneBit;
  Nelmo::KnxConverter2Bit twoBit;
  Nelmo::KnxConverter4Bit fourBit(Dpt3Range());
  struct Row {
    KnxConverter* converter;
    KNXDPT dpt;
    Bytes bytes;
    unsigned int bits;
    std::vector<LogLine> lines;
  };
  const Row rows[] = {
      {&oneBit, Dpt1, {0x01}, 1, {}},
      {&twoBit, Dpt2, {0x03}, 2, {}},
      {&fourBit, Dpt3, {0x0C}, 4, {Trace("FromKnxValue", "DPT is used. DPT = 3.7 grp.size=4 grp.val=0C")}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.bits);
    TestSupport::LogCapture capture;
    ULOVALUE value;
    EXPECT_TRUE(row.converter->FromKnxValue(row.dpt, GroupOf(row.bytes, row.bits), value));
    EXPECT_EQ(capture.Lines(), row.lines);
  }
}

TEST(BitConverterMessages, AClampedPercentageIsReportedAtLevel1) {
  Nelmo::KnxConverter4Bit converter(Dpt3Range());
  struct Row {
    double value;
    std::string message;
    Bytes bytes;
  };
  const Row rows[] = {
      {150.0, "The internal value of DPT=3.7, ivt=3 has been adjusted from 150 to 100 before conversion.", {0x09}},
      {-250.0, "The internal value of DPT=3.7, ivt=3 has been adjusted from -250 to -100 before conversion.", {0x01}},
      {100.0000001,
       "The internal value of DPT=3.7, ivt=3 has been adjusted from 100 to 100 before conversion.",
       {0x09}},
      {-1234.5678,
       "The internal value of DPT=3.7, ivt=3 has been adjusted from -1234.57 to -100 before conversion.",
       {0x01}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.message);
    TestSupport::LogCapture capture(ULO_LOG_INFO);
    KnxStack::GroupValue groupValue;
    EXPECT_TRUE(converter.ToKnxValue(Dpt3, ULOVALUE::Double(row.value), groupValue));
    EXPECT_EQ(capture.Lines(), std::vector<LogLine>{Adjusted(row.message)});
    EXPECT_TRUE(Holds(groupValue, row.bytes, 4));
  }
}

TEST(BitConverterMessages, APercentageInsideTheRangeIsNotReported) {
  Nelmo::KnxConverter4Bit converter(Dpt3Range());
  TestSupport::LogCapture capture(ULO_LOG_INFO);
  KnxStack::GroupValue groupValue;
  EXPECT_TRUE(converter.ToKnxValue(Dpt3, ULOVALUE::Double(-100.0), groupValue));
  EXPECT_TRUE(capture.Lines().empty());
}

TEST(BitConverterMessages, NothingIsAllocatedWhileLoggingIsOff) {
  Nelmo::KnxConverter1Bit oneBit;
  Nelmo::KnxConverter2Bit twoBit;
  Nelmo::KnxConverter4Bit fourBit(Dpt3Range());
  struct Row {
    KnxConverter* converter;
    KNXDPT dpt;
    ULOVALUE value;
  };
  const Row rows[] = {
      {&oneBit, Dpt1, ULOVALUE::Bool(true)},
      {&twoBit, Dpt2, ULOVALUE::Bool(true)},
      {&fourBit, Dpt3, ULOVALUE::Double(150.0)},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.value.ToString());
    ExpectRoundTripAllocatesNothing(*row.converter, row.dpt, row.value);
  }
}

TEST(BitConverterMessages, AnActiveTraceIsComposed) {
  Nelmo::KnxConverter4Bit converter(Dpt3Range());
  const ULOVALUE value = ULOVALUE::Double(50.0);
  KnxStack::GroupValue groupValue;
  TestSupport::LogCapture capture;
  EXPECT_GT(CountedAllocations::During([&] { converter.ToKnxValue(Dpt3, value, groupValue); }), 0);
}

// ---------------------------------------------------------------------------
// Exceptions and clones

TEST(BitConverters, AccessorExceptionsPassThrough) {
  Nelmo::KnxConverter1Bit oneBit;
  Nelmo::KnxConverter2Bit twoBit;
  Nelmo::KnxConverter4Bit fourBit(Dpt3Range());
  struct Row {
    const char* name;
    KnxConverter* converter;
    KNXDPT dpt;
    Bytes bytes;
    unsigned int bits;
  };
  const Row rows[] = {
      {"1 bit from 8 bits", &oneBit, Dpt1, {0x01}, 8},
      {"2 bits from 1 bit", &twoBit, Dpt2, {0x01}, 1},
      {"4 bits from 8 bits", &fourBit, Dpt3, {0x09}, 8},
      {"4 bits from nothing", &fourBit, Dpt3, {}, 4},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    ULOVALUE value;
    EXPECT_THROW(row.converter->FromKnxValue(row.dpt, GroupOf(row.bytes, row.bits), value),
                 KnxStack::GroupValueException);
  }
}

TEST(BitConverterClone, ClonesToTheSameClass) {
  const Nelmo::KnxConverter1Bit oneBit;
  const Nelmo::KnxConverter2Bit twoBit;
  std::unique_ptr<KnxConverter> oneBitClone(oneBit.Clone());
  std::unique_ptr<KnxConverter> twoBitClone(twoBit.Clone());
  EXPECT_NE(dynamic_cast<Nelmo::KnxConverter1Bit*>(oneBitClone.get()), nullptr);
  EXPECT_NE(dynamic_cast<Nelmo::KnxConverter2Bit*>(twoBitClone.get()), nullptr);
  KnxStack::GroupValue groupValue;
  EXPECT_TRUE(twoBitClone->ToKnxValue(Dpt2, ULOVALUE::Bool(true), groupValue));
  EXPECT_TRUE(Holds(groupValue, {0x03}, 2));
}

TEST(BitConverterClone, KeepsTheRangeAndLeavesTheSourceUsable) {
  // A narrower range than the standard row's, so that the clamping after the
  // clone is gone shows the source's own range.
  Nelmo::KnxConverter4Bit source(Nelmo::FloatIntegerRange(-50.0, 50.0, 0, 15));
  ExpectCloneKeepsRange(source);
  KnxStack::GroupValue groupValue;
  EXPECT_TRUE(source.ToKnxValue(Dpt3, ULOVALUE::Double(100.0), groupValue));
  EXPECT_TRUE(Holds(groupValue, {0x0A}, 4));
}

}  // namespace
