#include "KnxConverterScene.h"

#include <cstdint>
#include <limits>
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

const KNXDPT Dpt17{8, 17, 1};
const KNXDPT Dpt18{8, 18, 1};

// The ranges of the standard 17.x and 18.x rows.
Nelmo::IntegerRange Dpt17Range() {
  return FilledRange<IntegerRange>(1, 64, 0, 63);
}
Nelmo::IntegerRange Dpt18Range() {
  return FilledRange<IntegerRange>(-64, 64, 0, 255);
}

struct SendRow {
  std::int32_t scene;
  unsigned char byte;
};

struct ReceiveRow {
  unsigned char byte;
  std::int32_t scene;
};

void ExpectSends(KnxConverter& converter, const KNXDPT& dpt, const std::vector<SendRow>& rows) {
  for (const SendRow& row : rows) {
    SCOPED_TRACE(row.scene);
    TestSupport::LogCapture capture(ULO_LOG_INFO);
    KnxStack::GroupValue groupValue;
    EXPECT_TRUE(converter.ToKnxValue(dpt, ULOVALUE::Int32(row.scene), groupValue));
    EXPECT_TRUE(Holds(groupValue, {row.byte}, 8));
    EXPECT_TRUE(capture.Lines().empty());  // clamping is silent
  }
}

void ExpectReceives(KnxConverter& converter, const KNXDPT& dpt, const std::vector<ReceiveRow>& rows) {
  for (const ReceiveRow& row : rows) {
    SCOPED_TRACE(static_cast<int>(row.byte));
    TestSupport::LogCapture capture(ULO_LOG_INFO);
    ULOVALUE value = ULOVALUE::Int32(1000);
    EXPECT_TRUE(converter.FromKnxValue(dpt, GroupOf({row.byte}, 8), value));
    EXPECT_EQ(value.GetInt32(), row.scene);
    EXPECT_EQ(value.GetType(), IVT_INT32);
    EXPECT_TRUE(capture.Lines().empty());
  }
}

// ---------------------------------------------------------------------------
// Scene number: 1 to 64 inside, 0 to 63 on the bus

TEST(KnxConverterSceneNumber, SendsTheSceneMinusOneClampedSilently) {
  Nelmo::KnxConverterSceneNumber converter(Dpt17Range());
  ExpectSends(converter, Dpt17,
              {
                  {1, 0x00},
                  {64, 0x3F},
                  {0, 0x00},
                  {-5, 0x00},
                  {65, 0x3F},
                  {100, 0x3F},
                  {std::numeric_limits<std::int32_t>::min(), 0x00},
                  {std::numeric_limits<std::int32_t>::max(), 0x3F},
                  {13, 0x0C},
              });
}

TEST(KnxConverterSceneNumber, ReceivesTheBytePlusOneClampedSilently) {
  Nelmo::KnxConverterSceneNumber converter(Dpt17Range());
  ExpectReceives(converter, Dpt17,
                 {
                     {0x00, 1},
                     {0x3F, 64},
                     {0x0C, 13},
                     {0x40, 64},
                     {0xC8, 64},
                     {0xFF, 64},
                 });
}

TEST(KnxConverterSceneNumber, RefusesAnythingButAnInt32Silently) {
  Nelmo::KnxConverterSceneNumber converter(Dpt17Range());
  const ULOVALUE values[] = {ULOVALUE::Double(5.0), ULOVALUE::Byte(5), ULOVALUE::UInt32(5), ULOVALUE::Bool(true),
                             ULOVALUE::TimeSpan(5)};
  for (const ULOVALUE& value : values) {
    SCOPED_TRACE(static_cast<int>(value.GetType()));
    ExpectRefusedSilently(converter, Dpt17, value);
  }
}

// The main number is not checked.
TEST(KnxConverterSceneNumber, ConvertsWhateverTheMainNumber) {
  Nelmo::KnxConverterSceneNumber converter(Dpt17Range());
  KnxStack::GroupValue groupValue;
  EXPECT_TRUE(converter.ToKnxValue(KNXDPT{8, 5, 1}, ULOVALUE::Int32(2), groupValue));
  EXPECT_TRUE(Holds(groupValue, {0x01}, 8));
}

// ---------------------------------------------------------------------------
// Scene control: bit 7 learn, the scene minus 1 below it

TEST(KnxConverterSceneControl, SendsActivateAndLearnCodes) {
  Nelmo::KnxConverterSceneControl converter(Dpt18Range());
  ExpectSends(converter, Dpt18,
              {
                  {5, 0x04},
                  {-5, 0x84},  // 132
                  {0, 0x00},
                  {1, 0x00},
                  {64, 0x3F},
                  {-1, 0x80},
                  {-64, 0xBF},   // 191
                  {65, 0x3F},    // clamped to 64
                  {100, 0x3F},   // clamped to 64
                  {-65, 0xBF},   // clamped to -64
                  {-100, 0xBF},  // clamped to -64
                  {std::numeric_limits<std::int32_t>::min(), 0xBF},
                  {std::numeric_limits<std::int32_t>::max(), 0x3F},
              });
}

// The reserved bit 6 is not masked: the clamp turns 64 to 127 into 64 and
// 192 to 255 into -64.
TEST(KnxConverterSceneControl, ReceivesActivateAndLearnCodes) {
  Nelmo::KnxConverterSceneControl converter(Dpt18Range());
  ExpectReceives(converter, Dpt18,
                 {
                     {0x84, -5},  // 132
                     {0x04, 5},
                     {0x00, 1},
                     {0x3F, 64},
                     {0x80, -1},   // 128
                     {0xBF, -64},  // 191
                     {0x40, 64},
                     {0x7F, 64},
                     {0xC0, -64},
                     {0xFF, -64},  // 255
                 });
}

TEST(KnxConverterSceneControl, RefusesAnythingButAnInt32Silently) {
  Nelmo::KnxConverterSceneControl converter(Dpt18Range());
  const ULOVALUE values[] = {ULOVALUE::Double(-5.0), ULOVALUE::Byte(5), ULOVALUE::Bool(false),
                             ULOVALUE::Int32(5, IVT_TYPE_5)};
  for (const ULOVALUE& value : values) {
    SCOPED_TRACE(static_cast<int>(value.GetType()));
    ExpectRefusedSilently(converter, Dpt18, value);
  }
}

// ---------------------------------------------------------------------------
// Messages: only the traces, clamping is never reported

TEST(SceneConverterMessages, EachConversionIsTracedAtLevel0) {
  Nelmo::KnxConverterSceneNumber number(Dpt17Range());
  Nelmo::KnxConverterSceneControl control(Dpt18Range());
  struct Row {
    KnxConverter* converter;
    KNXDPT dpt;
    std::int32_t scene;
    std::string sendTrace;
    unsigned char byte;
    std::string receiveTrace;
  };
  const Row rows[] = {
      {&number, Dpt17, 100, "DPT is used. DPT = 17.1 ivt=4 val=100", 0x3F,
       "DPT is used. DPT = 17.1 grp.size=8 grp.val=3F"},
      {&control, KNXDPT{8, 18, 0}, -5, "DPT is used. DPT = 18.0 ivt=4 val=-5", 0x84,
       "DPT is used. DPT = 18.0 grp.size=8 grp.val=84"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.sendTrace);
    TestSupport::LogCapture capture;
    KnxStack::GroupValue groupValue;
    EXPECT_TRUE(row.converter->ToKnxValue(row.dpt, ULOVALUE::Int32(row.scene), groupValue));
    EXPECT_EQ(capture.Lines(), std::vector<LogLine>{Trace("ToKnxValue", row.sendTrace)});
    EXPECT_TRUE(Holds(groupValue, {row.byte}, 8));

    capture.Clear();
    ULOVALUE value(IVT_INT32);
    EXPECT_TRUE(row.converter->FromKnxValue(row.dpt, groupValue, value));
    EXPECT_EQ(capture.Lines(), std::vector<LogLine>{Trace("FromKnxValue", row.receiveTrace)});
  }
}

TEST(SceneConverterMessages, ARefusalWritesOnlyTheTrace) {
  Nelmo::KnxConverterSceneNumber converter(Dpt17Range());
  TestSupport::LogCapture capture;
  KnxStack::GroupValue groupValue = Untouched();
  EXPECT_FALSE(converter.ToKnxValue(Dpt17, ULOVALUE::Double(2.5), groupValue));
  EXPECT_EQ(capture.Lines(), std::vector<LogLine>{Trace("ToKnxValue", "DPT is used. DPT = 17.1 ivt=3 val=2.5")});
  EXPECT_TRUE(IsUntouched(groupValue));
}

TEST(SceneConverterMessages, NothingIsAllocatedWhileLoggingIsOff) {
  Nelmo::KnxConverterSceneNumber number(Dpt17Range());
  Nelmo::KnxConverterSceneControl control(Dpt18Range());
  for (KnxConverter* converter : {static_cast<KnxConverter*>(&number), static_cast<KnxConverter*>(&control)}) {
    ExpectRoundTripAllocatesNothing(*converter, Dpt18, ULOVALUE::Int32(-100));
  }
}

// ---------------------------------------------------------------------------
// Exceptions and clones

TEST(SceneConverters, AccessorExceptionsPassThrough) {
  Nelmo::KnxConverterSceneNumber number(Dpt17Range());
  Nelmo::KnxConverterSceneControl control(Dpt18Range());
  struct Row {
    const char* name;
    KnxConverter* converter;
    Bytes bytes;
    unsigned int bits;
  };
  const Row rows[] = {
      {"scene number from 16 bits", &number, {0x00, 0x01}, 16},
      {"scene control from 4 bits", &control, {0x01}, 4},
      {"scene control from nothing", &control, {}, 8},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    ULOVALUE value = ULOVALUE::Int32(7);
    EXPECT_THROW(row.converter->FromKnxValue(Dpt18, GroupOf(row.bytes, row.bits), value),
                 KnxStack::GroupValueException);
    EXPECT_EQ(value.GetInt32(), 7);
  }
}

// Narrower ranges than the standard rows', so that the clamping after the
// clone is gone shows the source's own range.
TEST(SceneConverterClone, KeepsTheRangeAndLeavesTheSourceUsable) {
  Nelmo::KnxConverterSceneNumber number(FilledRange<IntegerRange>(1, 10, 0, 9));
  Nelmo::KnxConverterSceneControl control(FilledRange<IntegerRange>(-10, 10, 0, 255));
  ExpectCloneKeepsRange(number);
  ExpectCloneKeepsRange(control);
  struct Row {
    KnxConverter* converter;
    std::int32_t scene;
    unsigned char byte;
  };
  const Row rows[] = {
      {&number, 20, 0x09},
      {&control, -20, 0x89},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.scene);
    KnxStack::GroupValue groupValue;
    EXPECT_TRUE(row.converter->ToKnxValue(Dpt18, ULOVALUE::Int32(row.scene), groupValue));
    EXPECT_TRUE(Holds(groupValue, {row.byte}, 8));
  }
}

}  // namespace
