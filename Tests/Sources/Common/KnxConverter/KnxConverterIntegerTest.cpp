#include "KnxConverterInteger.h"

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

constexpr std::int32_t Int32Min = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t Int32Max = std::numeric_limits<std::int32_t>::max();
constexpr std::uint32_t UInt32Max = std::numeric_limits<std::uint32_t>::max();
constexpr std::uint64_t UInt48Max = 281474976710655ULL;  // 2^48 - 1
constexpr std::uint64_t UInt64Max = std::numeric_limits<std::uint64_t>::max();

// The ranges of the standard DPT rows.
Nelmo::IntegerRange Dpt6Range() {
  return FilledRange<IntegerRange>(-128, 127, -128, 127);
}
Nelmo::IntegerRange Dpt7Range() {
  return FilledRange<IntegerRange>(0, 65535, 0, 65535);
}
Nelmo::IntegerRange Dpt8Range() {
  return FilledRange<IntegerRange>(-32768, 32767, -32768, 32767);
}
Nelmo::LongIntegerRange Dpt12Range() {
  return FilledRange<LongIntegerRange>(0, 4294967295LL, 0, 4294967295LL);
}
Nelmo::IntegerRange Dpt13Range() {
  return FilledRange<IntegerRange>(Int32Min, Int32Max, Int32Min, Int32Max);
}
Nelmo::LongIntegerRange Dpt232Range() {
  return FilledRange<LongIntegerRange>(0, 16777215, 0, 16777215);
}
Nelmo::UnsignedLongIntegerRange Dpt242Range() {
  return FilledRange<UnsignedLongIntegerRange>(0, UInt48Max, 0, UInt48Max);
}

const KNXDPT Dpt5{8, 5, 0};
const KNXDPT Dpt6{8, 6, 1};
const KNXDPT Dpt7{16, 7, 1};
const KNXDPT Dpt8{16, 8, 1};
const KNXDPT Dpt12{32, 12, 1};
const KNXDPT Dpt13{32, 13, 1};
const KNXDPT Dpt232{24, 232, 600};
const KNXDPT Dpt242{48, 242, 600};

// The converters of the standard DPT rows, each with its row's range.
struct StandardConverters {
  Nelmo::KnxConverterByte8BitUnsigned byte;
  Nelmo::KnxConverterInteger8BitSigned signed8{Dpt6Range()};
  Nelmo::KnxConverterInteger16BitUnsigned unsigned16{Dpt7Range()};
  Nelmo::KnxConverterInteger16BitSigned signed16{Dpt8Range()};
  Nelmo::KnxConverterInteger24BitUnsigned unsigned24{Dpt232Range()};
  Nelmo::KnxConverterInteger32BitUnsigned unsigned32{Dpt12Range()};
  Nelmo::KnxConverterInteger32BitSigned signed32{Dpt13Range()};
  Nelmo::KnxConverterInteger48BitUnsigned unsigned48{Dpt242Range()};
};

template <typename Number>
struct ReceiveRow {
  Bytes bytes;
  Number value;
};

// Receives each row's bytes into a value of the row's type; read() gives
// the payload that the converter writes.
template <typename Number, typename Read>
void ExpectReceives(KnxConverter& converter, const KNXDPT& dpt, UloValueType type,
                    const std::vector<ReceiveRow<Number>>& rows, unsigned int bits, Read read) {
  for (const ReceiveRow<Number>& row : rows) {
    SCOPED_TRACE("bytes " + GroupOf(row.bytes, bits).GetRawData().ToString());
    ULOVALUE value(type);
    EXPECT_TRUE(converter.FromKnxValue(dpt, GroupOf(row.bytes, bits), value));
    EXPECT_EQ(read(value), row.value);
    EXPECT_EQ(value.GetType(), type);
  }
}

std::int32_t ReadInt32(const ULOVALUE& value) {
  return value.GetInt32();
}
std::uint32_t ReadUInt32(const ULOVALUE& value) {
  return value.GetUInt32();
}
std::uint64_t ReadUInt64(const ULOVALUE& value) {
  return value.GetUInt64();
}

// ---------------------------------------------------------------------------
// Bus bytes in both directions, with the standard rows' ranges

TEST(KnxConverterByte8BitUnsigned, SendsTheBytePayload) {
  Nelmo::KnxConverterByte8BitUnsigned converter;
  ExpectSends(converter, Dpt5,
              {
                  {ULOVALUE::Byte(0), {0x00}},
                  {ULOVALUE::Byte(255), {0xFF}},
                  {ULOVALUE::Byte(0x5A), {0x5A}},
              },
              8);
}

TEST(KnxConverterByte8BitUnsigned, ReceivesTheBytePayload) {
  Nelmo::KnxConverterByte8BitUnsigned converter;
  ExpectReceives<std::uint32_t>(converter, Dpt5, IVT_BYTE,
                                {
                                    {{0x00}, 0},
                                    {{0xFF}, 255},
                                    {{0x5A}, 0x5A},
                                },
                                8, [](const ULOVALUE& value) { return value.GetByte(); });
}

TEST(KnxConverterInteger8BitSigned, SendsRangeEndsAndClampsBeyondThem) {
  Nelmo::KnxConverterInteger8BitSigned converter(Dpt6Range());
  ExpectSends(converter, Dpt6,
              {
                  {ULOVALUE::Int32(-128), {0x80}},
                  {ULOVALUE::Int32(127), {0x7F}},
                  {ULOVALUE::Int32(-129), {0x80}},
                  {ULOVALUE::Int32(128), {0x7F}},
                  {ULOVALUE::Int32(0), {0x00}},
                  {ULOVALUE::Int32(-1), {0xFF}},
                  {ULOVALUE::Int32(200), {0x7F}},
              },
              8);
}

TEST(KnxConverterInteger8BitSigned, ReceivesTwosComplement) {
  Nelmo::KnxConverterInteger8BitSigned converter(Dpt6Range());
  ExpectReceives<std::int32_t>(converter, Dpt6, IVT_INT32,
                               {
                                   {{0x80}, -128},
                                   {{0x7F}, 127},
                                   {{0x00}, 0},
                                   {{0xFF}, -1},
                               },
                               8, ReadInt32);
}

TEST(KnxConverterInteger16BitUnsigned, SendsRangeEndsAndClampsBeyondThem) {
  Nelmo::KnxConverterInteger16BitUnsigned converter(Dpt7Range());
  ExpectSends(converter, Dpt7,
              {
                  {ULOVALUE::UInt16(0), {0x00, 0x00}},
                  {ULOVALUE::UInt16(65535), {0xFF, 0xFF}},
                  {ULOVALUE::Int32(-1, IVT_UINT16), {0x00, 0x00}},
                  {ULOVALUE::Int32(65536, IVT_UINT16), {0xFF, 0xFF}},
                  {ULOVALUE::Int32(-5, IVT_UINT16), {0x00, 0x00}},
                  {ULOVALUE::UInt16(0x1234), {0x12, 0x34}},
              },
              16);
}

TEST(KnxConverterInteger16BitUnsigned, ReceivesUnsigned) {
  Nelmo::KnxConverterInteger16BitUnsigned converter(Dpt7Range());
  ExpectReceives<std::uint32_t>(converter, Dpt7, IVT_UINT16,
                                {
                                    {{0x00, 0x00}, 0},
                                    {{0xFF, 0xFF}, 65535},
                                    {{0x80, 0x00}, 32768},
                                },
                                16, [](const ULOVALUE& value) { return value.GetUInt16(); });
}

TEST(KnxConverterInteger16BitSigned, SendsRangeEndsAndClampsBeyondThem) {
  Nelmo::KnxConverterInteger16BitSigned converter(Dpt8Range());
  ExpectSends(converter, Dpt8,
              {
                  {ULOVALUE::Int32(-32768), {0x80, 0x00}},
                  {ULOVALUE::Int32(32767), {0x7F, 0xFF}},
                  {ULOVALUE::Int32(-32769), {0x80, 0x00}},
                  {ULOVALUE::Int32(32768), {0x7F, 0xFF}},
                  {ULOVALUE::Int32(0), {0x00, 0x00}},
                  {ULOVALUE::Int32(-1), {0xFF, 0xFF}},
              },
              16);
}

TEST(KnxConverterInteger16BitSigned, ReceivesTwosComplement) {
  Nelmo::KnxConverterInteger16BitSigned converter(Dpt8Range());
  ExpectReceives<std::int32_t>(converter, Dpt8, IVT_INT32,
                               {
                                   {{0x80, 0x00}, -32768},
                                   {{0x7F, 0xFF}, 32767},
                                   {{0x00, 0x00}, 0},
                                   {{0xFF, 0xFF}, -1},
                               },
                               16, ReadInt32);
}

// A 24-bit value's unsigned 32-bit payload cannot go below 0, so only the
// upper end can be passed.
TEST(KnxConverterInteger24BitUnsigned, SendsRangeEndsAndClampsBeyondTheUpperEnd) {
  Nelmo::KnxConverterInteger24BitUnsigned converter(Dpt232Range());
  ExpectSends(converter, Dpt232,
              {
                  {ULOVALUE::UInt32(0), {0x00, 0x00, 0x00}},
                  {ULOVALUE::UInt32(16777215), {0xFF, 0xFF, 0xFF}},
                  {ULOVALUE::UInt32(16777216), {0xFF, 0xFF, 0xFF}},
                  {ULOVALUE::UInt32(UInt32Max), {0xFF, 0xFF, 0xFF}},
                  {ULOVALUE::UInt32(0x123456), {0x12, 0x34, 0x56}},
              },
              24);
}

TEST(KnxConverterInteger24BitUnsigned, ReceivesUnsigned) {
  Nelmo::KnxConverterInteger24BitUnsigned converter(Dpt232Range());
  ExpectReceives<std::uint32_t>(converter, Dpt232, IVT_UINT32,
                                {
                                    {{0x00, 0x00, 0x00}, 0},
                                    {{0xFF, 0xFF, 0xFF}, 16777215},
                                    {{0x12, 0x34, 0x56}, 0x123456},
                                },
                                24, ReadUInt32);
}

// The standard range is the whole unsigned 32-bit payload: nothing lies
// beyond it (clamping is shown with a narrower range below).
TEST(KnxConverterInteger32BitUnsigned, SendsRangeEnds) {
  Nelmo::KnxConverterInteger32BitUnsigned converter(Dpt12Range());
  ExpectSends(converter, Dpt12,
              {
                  {ULOVALUE::UInt32(0), {0x00, 0x00, 0x00, 0x00}},
                  {ULOVALUE::UInt32(UInt32Max), {0xFF, 0xFF, 0xFF, 0xFF}},
                  {ULOVALUE::UInt32(0x80000000U), {0x80, 0x00, 0x00, 0x00}},
              },
              32);
}

TEST(KnxConverterInteger32BitUnsigned, ReceivesUnsigned) {
  Nelmo::KnxConverterInteger32BitUnsigned converter(Dpt12Range());
  ExpectReceives<std::uint32_t>(converter, Dpt12, IVT_UINT32,
                                {
                                    {{0x00, 0x00, 0x00, 0x00}, 0},
                                    {{0xFF, 0xFF, 0xFF, 0xFF}, UInt32Max},
                                    {{0x80, 0x00, 0x00, 0x00}, 0x80000000U},
                                },
                                32, ReadUInt32);
}

TEST(KnxConverterInteger32BitUnsigned, ClampsIntoANarrowerRange) {
  Nelmo::KnxConverterInteger32BitUnsigned converter(FilledRange<LongIntegerRange>(10, 1000, 10, 1000));
  ExpectSends(converter, Dpt12,
              {
                  {ULOVALUE::UInt32(10), {0x00, 0x00, 0x00, 0x0A}},
                  {ULOVALUE::UInt32(1000), {0x00, 0x00, 0x03, 0xE8}},
                  {ULOVALUE::UInt32(9), {0x00, 0x00, 0x00, 0x0A}},
                  {ULOVALUE::UInt32(1001), {0x00, 0x00, 0x03, 0xE8}},
                  {ULOVALUE::UInt32(UInt32Max), {0x00, 0x00, 0x03, 0xE8}},
              },
              32);
}

// The standard range is the whole signed 32-bit payload (clamping is shown
// with a narrower range below).
TEST(KnxConverterInteger32BitSigned, SendsRangeEnds) {
  Nelmo::KnxConverterInteger32BitSigned converter(Dpt13Range());
  ExpectSends(converter, Dpt13,
              {
                  {ULOVALUE::Int32(Int32Min), {0x80, 0x00, 0x00, 0x00}},
                  {ULOVALUE::Int32(Int32Max), {0x7F, 0xFF, 0xFF, 0xFF}},
                  {ULOVALUE::Int32(0), {0x00, 0x00, 0x00, 0x00}},
                  {ULOVALUE::Int32(-1), {0xFF, 0xFF, 0xFF, 0xFF}},
                  {ULOVALUE::TimeSpan(3600), {0x00, 0x00, 0x0E, 0x10}},
              },
              32);
}

TEST(KnxConverterInteger32BitSigned, ReceivesTwosComplement) {
  Nelmo::KnxConverterInteger32BitSigned converter(Dpt13Range());
  ExpectReceives<std::int32_t>(converter, Dpt13, IVT_INT32,
                               {
                                   {{0x80, 0x00, 0x00, 0x00}, Int32Min},
                                   {{0x7F, 0xFF, 0xFF, 0xFF}, Int32Max},
                                   {{0x00, 0x00, 0x00, 0x00}, 0},
                                   {{0xFF, 0xFF, 0xFF, 0xFF}, -1},
                               },
                               32, ReadInt32);
}

TEST(KnxConverterInteger32BitSigned, ClampsIntoANarrowerRange) {
  Nelmo::KnxConverterInteger32BitSigned converter(FilledRange<IntegerRange>(-1000, 1000, -1000, 1000));
  ExpectSends(converter, Dpt13,
              {
                  {ULOVALUE::Int32(-1001), {0xFF, 0xFF, 0xFC, 0x18}},
                  {ULOVALUE::Int32(Int32Min), {0xFF, 0xFF, 0xFC, 0x18}},
                  {ULOVALUE::Int32(1001), {0x00, 0x00, 0x03, 0xE8}},
              },
              32);
}

TEST(KnxConverterInteger48BitUnsigned, SendsSixBytesMostSignificantFirst) {
  Nelmo::KnxConverterInteger48BitUnsigned converter(Dpt242Range());
  ExpectSends(converter, Dpt242,
              {
                  {ULOVALUE::UInt64(0), {0x00, 0x00, 0x00, 0x00, 0x00, 0x00}},
                  {ULOVALUE::UInt64(UInt48Max), {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}},
                  {ULOVALUE::UInt64(UInt48Max + 1), {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}},
                  {ULOVALUE::UInt64(UInt64Max), {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}},
                  {ULOVALUE::UInt64(1108152157446ULL), {0x01, 0x02, 0x03, 0x04, 0x05, 0x06}},
              },
              48);
}

TEST(KnxConverterInteger48BitUnsigned, ReceivesSixBytesMostSignificantFirst) {
  Nelmo::KnxConverterInteger48BitUnsigned converter(Dpt242Range());
  ExpectReceives<std::uint64_t>(converter, Dpt242, IVT_UINT64,
                                {
                                    {{0x00, 0x00, 0x00, 0x00, 0x00, 0x00}, 0},
                                    {{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}, UInt48Max},
                                    {{0x01, 0x02, 0x03, 0x04, 0x05, 0x06}, 1108152157446ULL},
                                },
                                48, ReadUInt64);
}

// A group value may claim 48 bits and carry another number of bytes: every
// byte is read, none beyond the buffer, and the range keeps the result in
// 48 bits.
TEST(KnxConverterInteger48BitUnsigned, ReceivesMalformedBuffersWithoutOverrun) {
  Nelmo::KnxConverterInteger48BitUnsigned converter(Dpt242Range());
  ExpectReceives<std::uint64_t>(converter, Dpt242, IVT_UINT64,
                                {
                                    {{}, 0},
                                    {{0x01, 0x02}, 0x0102},
                                    {{0x00, 0x00, 0x01, 0x02, 0x03, 0x04, 0x05, 0x06}, 1108152157446ULL},
                                    {{0x7F, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}, UInt48Max},
                                },
                                48, ReadUInt64);
}

// ---------------------------------------------------------------------------
// Ranges that scale: the scaled number is cut to the bus field's width on the
// way out, and the received field is scaled back without clamping.

TEST(IntegerConverterScaling, TheScaledNumberKeepsOnlyTheFieldsLowBits) {
  Nelmo::KnxConverterInteger8BitSigned signed8(FilledRange<IntegerRange>(0, 100, 0, 255));
  Nelmo::KnxConverterInteger16BitUnsigned unsigned16(FilledRange<IntegerRange>(0, 10, 0, 100000));
  Nelmo::KnxConverterInteger16BitUnsigned unsigned16Shifted(FilledRange<IntegerRange>(-10, 10, -20, 20));
  Nelmo::KnxConverterInteger16BitSigned signed16(FilledRange<IntegerRange>(-10, 10, -100000, 100000));
  Nelmo::KnxConverterInteger24BitUnsigned unsigned24Negative(FilledRange<LongIntegerRange>(0, 10, -10, 0));
  Nelmo::KnxConverterInteger24BitUnsigned unsigned24Wide(FilledRange<LongIntegerRange>(0, 100, 0, 33554432));
  Nelmo::KnxConverterInteger32BitUnsigned unsigned32Negative(FilledRange<LongIntegerRange>(0, 10, -10, 0));
  Nelmo::KnxConverterInteger32BitUnsigned unsigned32Wide(FilledRange<LongIntegerRange>(0, 10, 0, 42949672970LL));
  Nelmo::KnxConverterInteger48BitUnsigned unsigned48Wide(FilledRange<UnsignedLongIntegerRange>(0, 1, 0, UInt48Max + 6));
  struct Row {
    const char* name;
    KnxConverter* converter;
    ULOVALUE value;
    Bytes bytes;
  };
  const Row rows[] = {
      {"signed 8: 255 as signed char", &signed8, ULOVALUE::Int32(100), {0xFF}},
      {"signed 8: 127.49999999999999 rounds to 127", &signed8, ULOVALUE::Int32(50), {0x7F}},
      {"unsigned 16: 100000 masked", &unsigned16, ULOVALUE::UInt16(10), {0x86, 0xA0}},
      {"unsigned 16: -10 masked", &unsigned16Shifted, ULOVALUE::Int32(-5, IVT_UINT16), {0xFF, 0xF6}},
      {"signed 16: -40000 as short", &signed16, ULOVALUE::Int32(-4), {0x63, 0xC0}},
      {"unsigned 24: -10 in 24 bits", &unsigned24Negative, ULOVALUE::UInt32(0), {0xFF, 0xFF, 0xF6}},
      {"unsigned 24: 0x1800000 in 24 bits", &unsigned24Wide, ULOVALUE::UInt32(75), {0x80, 0x00, 0x00}},
      {"unsigned 32: -10 in 32 bits", &unsigned32Negative, ULOVALUE::UInt32(0), {0xFF, 0xFF, 0xFF, 0xF6}},
      {"unsigned 32: 0x100000001 in 32 bits", &unsigned32Wide, ULOVALUE::UInt32(1), {0x00, 0x00, 0x00, 0x01}},
      {"unsigned 48: 2^48 + 5 in 48 bits", &unsigned48Wide, ULOVALUE::UInt64(1), {0x00, 0x00, 0x00, 0x00, 0x00, 0x05}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    TestSupport::LogCapture capture(ULO_LOG_INFO);
    KnxStack::GroupValue groupValue;
    EXPECT_TRUE(row.converter->ToKnxValue(Dpt8, row.value, groupValue));
    EXPECT_TRUE(Holds(groupValue, row.bytes, static_cast<unsigned int>(row.bytes.size() * 8)));
    EXPECT_TRUE(capture.Lines().empty());  // inside the internal range: nothing adjusted
  }
}

TEST(IntegerConverterScaling, TheReceivedFieldIsScaledBackWithoutClamping) {
  Nelmo::KnxConverterInteger8BitSigned signed8(FilledRange<IntegerRange>(0, 100, 0, 255));
  Nelmo::KnxConverterInteger8BitSigned signed8Narrow(FilledRange<IntegerRange>(-10, 10, -100, 100));
  Nelmo::KnxConverterInteger16BitUnsigned unsigned16(FilledRange<IntegerRange>(-100, 100, 0, 200));
  Nelmo::KnxConverterInteger16BitSigned signed16(FilledRange<IntegerRange>(-10, 10, -100, 100));
  Nelmo::KnxConverterInteger24BitUnsigned unsigned24(FilledRange<LongIntegerRange>(-10, 0, 0, 10));
  Nelmo::KnxConverterInteger32BitUnsigned unsigned32(FilledRange<LongIntegerRange>(0, 100, 0, 1000));
  Nelmo::KnxConverterInteger32BitSigned signed32(FilledRange<IntegerRange>(-1, 1, -1000, 1000));
  Nelmo::KnxConverterInteger48BitUnsigned unsigned48(FilledRange<UnsignedLongIntegerRange>(0, 255, 0, 65535));
  struct Row {
    const char* name;
    KnxConverter* converter;
    Bytes bytes;
    UloValueType type;  // as the DPT row sets it before the call
    std::string value;
  };
  const Row rows[] = {
      {"signed 8: 127 / 2.55", &signed8, {0x7F}, IVT_INT32, "50"},
      {"signed 8: -128 / 2.55", &signed8, {0x80}, IVT_INT32, "-50"},
      {"signed 8: 12.7 beyond the internal maximum", &signed8Narrow, {0x7F}, IVT_INT32, "13"},
      {"unsigned 16: into a signed internal range", &unsigned16, {0x00, 0x00}, IVT_INT32, "-100"},
      {"unsigned 16: external maximum", &unsigned16, {0x00, 0xC8}, IVT_INT32, "100"},
      {"signed 16: -10 / 10", &signed16, {0xFF, 0xF6}, IVT_INT32, "-1"},
      {"unsigned 24: -10 as unsigned 32 bits", &unsigned24, {0x00, 0x00, 0x00}, IVT_UINT32, "4294967286"},
      {"unsigned 32: far beyond the internal maximum", &unsigned32, {0xFF, 0xFF, 0xFF, 0xFF}, IVT_UINT32, "429496730"},
      {"signed 32: far beyond the internal maximum", &signed32, {0x7F, 0xFF, 0xFF, 0xFF}, IVT_INT32, "2147484"},
      {"signed 32: external minimum", &signed32, {0xFF, 0xFF, 0xFC, 0x18}, IVT_INT32, "-1"},
      {"unsigned 48: 32768 / 257", &unsigned48, {0x00, 0x00, 0x00, 0x00, 0x80, 0x00}, IVT_UINT64, "128"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    ULOVALUE value(row.type);
    EXPECT_TRUE(
        row.converter->FromKnxValue(Dpt8, GroupOf(row.bytes, static_cast<unsigned int>(row.bytes.size() * 8)), value));
    EXPECT_EQ(value.ToString(), row.value);
  }
}

// ---------------------------------------------------------------------------
// Messages

TEST(IntegerConverterMessages, EachConversionIsTracedAtLevel0) {
  StandardConverters standard;
  struct Row {
    KnxConverter* converter;
    KNXDPT dpt;
    ULOVALUE value;
    std::string sendTrace;
    Bytes bytes;
    std::string receiveTrace;
  };
  const Row rows[] = {
      {&standard.byte,
       KNXDPT{8, 5, 10},
       ULOVALUE::Byte(200),
       "DPT is used. DPT = 5.10 ivt=6 val=200",
       {0xC8},
       "DPT is used. DPT = 5.10 grp.size=8 grp.val=C8"},
      {&standard.signed8,
       Dpt6,
       ULOVALUE::Int32(-1),
       "DPT is used. DPT = 6.1 ivt=4 val=-1",
       {0xFF},
       "DPT is used. DPT = 6.1 grp.size=8 grp.val=FF"},
      {&standard.unsigned16,
       Dpt7,
       ULOVALUE::UInt16(4660),
       "DPT is used. DPT = 7.1 ivt=7 val=4660",
       {0x12, 0x34},
       "DPT is used. DPT = 7.1 grp.size=16 grp.val=12 34"},
      {&standard.signed16,
       KNXDPT{16, 8, 0},
       ULOVALUE::Int32(-2),
       "DPT is used. DPT = 8.0 ivt=4 val=-2",
       {0xFF, 0xFE},
       "DPT is used. DPT = 8.0 grp.size=16 grp.val=FF FE"},
      {&standard.unsigned24,
       Dpt232,
       ULOVALUE::UInt32(16777215),
       "DPT is used. DPT = 232.600 ivt=8 val=16777215",
       {0xFF, 0xFF, 0xFF},
       "DPT is used. DPT = 232.600 grp.size=24 grp.val=FF FF FF"},
      {&standard.unsigned32,
       Dpt12,
       ULOVALUE::UInt32(UInt32Max),
       "DPT is used. DPT = 12.1 ivt=8 val=4294967295",
       {0xFF, 0xFF, 0xFF, 0xFF},
       "DPT is used. DPT = 12.1 grp.size=32 grp.val=FF FF FF FF"},
      {&standard.signed32,
       KNXDPT{32, 13, 100},
       ULOVALUE::TimeSpan(-60),
       "DPT is used. DPT = 13.100 ivt=14 val=-60",
       {0xFF, 0xFF, 0xFF, 0xC4},
       "DPT is used. DPT = 13.100 grp.size=32 grp.val=FF FF FF C4"},
      {&standard.unsigned48,
       Dpt242,
       ULOVALUE::UInt64(1108152157446ULL),
       "DPT is used. DPT = 242.600 ivt=9 val=1108152157446",
       {0x01, 0x02, 0x03, 0x04, 0x05, 0x06},
       "DPT is used. DPT = 242.600 grp.size=48 grp.val=01 02 03 04 05 06"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.sendTrace);
    TestSupport::LogCapture capture;
    KnxStack::GroupValue groupValue;
    EXPECT_TRUE(row.converter->ToKnxValue(row.dpt, row.value, groupValue));
    EXPECT_EQ(capture.Lines(), std::vector<LogLine>{Trace("ToKnxValue", row.sendTrace)});
    EXPECT_TRUE(Holds(groupValue, row.bytes, static_cast<unsigned int>(row.bytes.size() * 8)));

    capture.Clear();
    ULOVALUE received(row.value.GetType());
    EXPECT_TRUE(row.converter->FromKnxValue(row.dpt, groupValue, received));
    EXPECT_EQ(capture.Lines(), std::vector<LogLine>{Trace("FromKnxValue", row.receiveTrace)});
    EXPECT_EQ(received.ToString(), row.value.ToString());
  }
}

// The number forms differ by converter: the 16-bit unsigned one shows the
// value before clamping as unsigned 32-bit and the result as signed, the
// 24- and 32-bit ones both as unsigned 32-bit, the 48-bit one as unsigned
// 64-bit.
TEST(IntegerConverterMessages, AClampedValueIsReportedAtLevel1) {
  Nelmo::KnxConverterInteger8BitSigned signed8(Dpt6Range());
  Nelmo::KnxConverterInteger16BitUnsigned unsigned16(Dpt7Range());
  Nelmo::KnxConverterInteger16BitUnsigned unsigned16Signed(FilledRange<IntegerRange>(-100, 100, 0, 200));
  Nelmo::KnxConverterInteger16BitSigned signed16(Dpt8Range());
  Nelmo::KnxConverterInteger24BitUnsigned unsigned24(Dpt232Range());
  Nelmo::KnxConverterInteger32BitUnsigned unsigned32(FilledRange<LongIntegerRange>(10, 1000, 10, 1000));
  Nelmo::KnxConverterInteger32BitSigned signed32(FilledRange<IntegerRange>(-1000, 1000, -1000, 1000));
  Nelmo::KnxConverterInteger48BitUnsigned unsigned48(Dpt242Range());
  struct Row {
    KnxConverter* converter;
    KNXDPT dpt;
    ULOVALUE value;
    std::string message;
    Bytes bytes;
  };
  const Row rows[] = {
      {&signed8,
       Dpt6,
       ULOVALUE::Int32(200),
       "The internal value of DPT=6.1, ivt=4 has been adjusted from 200 to 127 before conversion.",
       {0x7F}},
      {&signed8,
       Dpt6,
       ULOVALUE::Int32(-129),
       "The internal value of DPT=6.1, ivt=4 has been adjusted from -129 to -128 before conversion.",
       {0x80}},
      {&unsigned16,
       Dpt7,
       ULOVALUE::Int32(-5, IVT_UINT16),
       "The internal value of DPT=7.1, ivt=7 has been adjusted from 4294967291 to 0 before conversion.",
       {0x00, 0x00}},
      {&unsigned16,
       Dpt7,
       ULOVALUE::Int32(65536, IVT_UINT16),
       "The internal value of DPT=7.1, ivt=7 has been adjusted from 65536 to 65535 before conversion.",
       {0xFF, 0xFF}},
      {&unsigned16Signed,
       Dpt7,
       ULOVALUE::Int32(-200, IVT_UINT16),
       "The internal value of DPT=7.1, ivt=7 has been adjusted from 4294967096 to -100 before conversion.",
       {0x00, 0x00}},
      {&signed16,
       Dpt8,
       ULOVALUE::Int32(-40000),
       "The internal value of DPT=8.1, ivt=4 has been adjusted from -40000 to -32768 before conversion.",
       {0x80, 0x00}},
      {&unsigned24,
       Dpt232,
       ULOVALUE::UInt32(16777216),
       "The internal value of DPT=232.600, ivt=8 has been adjusted from 16777216 to 16777215 before conversion.",
       {0xFF, 0xFF, 0xFF}},
      {&unsigned24,
       Dpt232,
       ULOVALUE::UInt32(UInt32Max),
       "The internal value of DPT=232.600, ivt=8 has been adjusted from 4294967295 to 16777215 before conversion.",
       {0xFF, 0xFF, 0xFF}},
      {&unsigned32,
       Dpt12,
       ULOVALUE::UInt32(UInt32Max),
       "The internal value of DPT=12.1, ivt=8 has been adjusted from 4294967295 to 1000 before conversion.",
       {0x00, 0x00, 0x03, 0xE8}},
      {&unsigned32,
       Dpt12,
       ULOVALUE::UInt32(5),
       "The internal value of DPT=12.1, ivt=8 has been adjusted from 5 to 10 before conversion.",
       {0x00, 0x00, 0x00, 0x0A}},
      {&signed32,
       Dpt13,
       ULOVALUE::Int32(Int32Min),
       "The internal value of DPT=13.1, ivt=4 has been adjusted from -2147483648 to -1000 before conversion.",
       {0xFF, 0xFF, 0xFC, 0x18}},
      {&unsigned48,
       Dpt242,
       ULOVALUE::UInt64(UInt48Max + 1),
       "The internal value of DPT=242.600, ivt=9 has been adjusted from 281474976710656 to 281474976710655 before "
       "conversion.",
       {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}},
      {&unsigned48,
       Dpt242,
       ULOVALUE::UInt64(UInt64Max),
       "The internal value of DPT=242.600, ivt=9 has been adjusted from 18446744073709551615 to 281474976710655 "
       "before conversion.",
       {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.message);
    TestSupport::LogCapture capture(ULO_LOG_INFO);
    KnxStack::GroupValue groupValue;
    EXPECT_TRUE(row.converter->ToKnxValue(row.dpt, row.value, groupValue));
    EXPECT_EQ(capture.Lines(), std::vector<LogLine>{Adjusted(row.message)});
    EXPECT_TRUE(Holds(groupValue, row.bytes, static_cast<unsigned int>(row.bytes.size() * 8)));
  }
}

TEST(IntegerConverterMessages, TracesAndAdjustmentsAreWrittenInThatOrder) {
  Nelmo::KnxConverterInteger8BitSigned converter(Dpt6Range());
  TestSupport::LogCapture capture;
  KnxStack::GroupValue groupValue;
  EXPECT_TRUE(converter.ToKnxValue(Dpt6, ULOVALUE::Int32(200), groupValue));
  const std::vector<LogLine> expected{
      Trace("ToKnxValue", "DPT is used. DPT = 6.1 ivt=4 val=200"),
      Adjusted("The internal value of DPT=6.1, ivt=4 has been adjusted from 200 to 127 before conversion."),
  };
  EXPECT_EQ(capture.Lines(), expected);
  EXPECT_TRUE(Holds(groupValue, {0x7F}, 8));
}

TEST(IntegerConverterMessages, AValueInsideItsRangeIsNotReported) {
  Nelmo::KnxConverterInteger32BitUnsigned converter(Dpt12Range());
  TestSupport::LogCapture capture(ULO_LOG_INFO);
  KnxStack::GroupValue groupValue;
  EXPECT_TRUE(converter.ToKnxValue(Dpt12, ULOVALUE::UInt32(UInt32Max), groupValue));
  EXPECT_TRUE(capture.Lines().empty());
  EXPECT_TRUE(Holds(groupValue, {0xFF, 0xFF, 0xFF, 0xFF}, 32));
}

TEST(KnxConverterInteger48BitUnsigned, RefusesAGroupValueThatIsNot48BitsWithAMessage) {
  Nelmo::KnxConverterInteger48BitUnsigned converter(Dpt242Range());
  struct Row {
    Bytes bytes;
    unsigned int bits;
    std::string message;
  };
  const Row rows[] = {
      {{0x01, 0x02, 0x03, 0x04}, 32, "GroupValue object size is not 48 bit! Size: 32, value: 01 02 03 04"},
      {{0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x07},
       56,
       "GroupValue object size is not 48 bit! Size: 56, value: 01 02 03 04 05 06 07"},
      {{}, 0, "GroupValue object size is not 48 bit! Size: 0, value: "},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.message);
    TestSupport::LogCapture capture(ULO_LOG_ERROR);
    ULOVALUE value = ULOVALUE::UInt64(77);
    EXPECT_FALSE(converter.FromKnxValue(Dpt242, GroupOf(row.bytes, row.bits), value));
    EXPECT_EQ(capture.Lines(), std::vector<LogLine>{Error("FromKnxValue", row.message)});
    EXPECT_EQ(value.GetUInt64(), 77U);
    EXPECT_EQ(value.GetType(), IVT_UINT64);
  }
}

TEST(IntegerConverterMessages, NothingIsWrittenWhileLoggingIsOff) {
  Nelmo::KnxConverterInteger8BitSigned signed8(Dpt6Range());
  Nelmo::KnxConverterInteger48BitUnsigned unsigned48(Dpt242Range());
  TestSupport::LogCapture capture(ULO_LOG_OFF);
  KnxStack::GroupValue groupValue;
  EXPECT_TRUE(signed8.ToKnxValue(Dpt6, ULOVALUE::Int32(200), groupValue));
  ULOVALUE value(IVT_UINT64);
  EXPECT_FALSE(unsigned48.FromKnxValue(Dpt242, GroupOf({0x01}, 8), value));
  EXPECT_TRUE(capture.Lines().empty());
}

// Clamped values included: the adjustment is composed only for an active
// level, and the group values keep their few bytes inline.
TEST(IntegerConverterMessages, NothingIsAllocatedWhileLoggingIsOff) {
  StandardConverters standard;
  struct Row {
    KnxConverter* converter;
    KNXDPT dpt;
    ULOVALUE value;
  };
  const Row rows[] = {
      {&standard.byte, Dpt5, ULOVALUE::Byte(200)},
      {&standard.signed8, Dpt6, ULOVALUE::Int32(200)},
      {&standard.unsigned16, Dpt7, ULOVALUE::Int32(-5, IVT_UINT16)},
      {&standard.signed16, Dpt8, ULOVALUE::Int32(-40000)},
      {&standard.unsigned24, Dpt232, ULOVALUE::UInt32(UInt32Max)},
      {&standard.unsigned32, Dpt12, ULOVALUE::UInt32(UInt32Max)},
      {&standard.signed32, Dpt13, ULOVALUE::Int32(Int32Min)},
      {&standard.unsigned48, Dpt242, ULOVALUE::UInt64(UInt64Max)},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.value.ToString());
    ExpectRoundTripAllocatesNothing(*row.converter, row.dpt, row.value);
  }
}

TEST(IntegerConverterMessages, TheSizeMessageAllocatesOnlyWhenItsLevelIsActive) {
  Nelmo::KnxConverterInteger48BitUnsigned converter(Dpt242Range());
  const KnxStack::GroupValue groupValue = GroupOf({0x01, 0x02, 0x03, 0x04}, 32);
  ULOVALUE value(IVT_UINT64);
  {
    TestSupport::LogCapture capture(ULO_LOG_OFF);
    EXPECT_EQ(CountedAllocations::During([&] { converter.FromKnxValue(Dpt242, groupValue, value); }), 0);
  }
  TestSupport::LogCapture capture(ULO_LOG_ERROR);
  EXPECT_GT(CountedAllocations::During([&] { converter.FromKnxValue(Dpt242, groupValue, value); }), 0);
  EXPECT_EQ(capture.Lines().size(), 1U);
}

// ---------------------------------------------------------------------------
// Refusals and exceptions

TEST(KnxConverterByte8BitUnsigned, RefusesOtherValueTypesSilentlyInBothDirections) {
  Nelmo::KnxConverterByte8BitUnsigned converter;
  const ULOVALUE values[] = {ULOVALUE::Int32(5), ULOVALUE::UInt16(5), ULOVALUE::Double(5.0), ULOVALUE::Bool(true),
                             ULOVALUE::Byte(5, IVT_BYTE_1021)};
  for (const ULOVALUE& value : values) {
    SCOPED_TRACE(static_cast<int>(value.GetType()));
    TestSupport::LogCapture capture(ULO_LOG_INFO);
    KnxStack::GroupValue groupValue = Untouched();
    EXPECT_FALSE(converter.ToKnxValue(Dpt5, value, groupValue));
    EXPECT_TRUE(IsUntouched(groupValue));

    ULOVALUE received = value;
    EXPECT_FALSE(converter.FromKnxValue(Dpt5, GroupOf({0x2A}, 8), received));
    EXPECT_EQ(received.ToString(), value.ToString());
    EXPECT_EQ(received.GetType(), value.GetType());
    EXPECT_TRUE(capture.Lines().empty());
  }
}

TEST(KnxConverterByte8BitUnsigned, ARefusalWritesOnlyTheTrace) {
  Nelmo::KnxConverterByte8BitUnsigned converter;
  TestSupport::LogCapture capture;
  KnxStack::GroupValue groupValue = Untouched();
  EXPECT_FALSE(converter.ToKnxValue(Dpt5, ULOVALUE::Int32(5), groupValue));
  ULOVALUE received(IVT_INT32);
  EXPECT_FALSE(converter.FromKnxValue(Dpt5, GroupOf({0x2A}, 8), received));
  const std::vector<LogLine> expected{
      Trace("ToKnxValue", "DPT is used. DPT = 5.0 ivt=4 val=5"),
      Trace("FromKnxValue", "DPT is used. DPT = 5.0 grp.size=8 grp.val=2A"),
  };
  EXPECT_EQ(capture.Lines(), expected);
  EXPECT_TRUE(IsUntouched(groupValue));
}

// Only the byte converter looks at the value type; the others take their
// payload as it is and leave the type to the caller.
TEST(IntegerConverters, IgnoreTheValueTypeAndTheMainNumber) {
  Nelmo::KnxConverterInteger16BitSigned converter(Dpt8Range());
  KnxStack::GroupValue groupValue;
  EXPECT_TRUE(converter.ToKnxValue(KNXDPT{16, 99, 9}, ULOVALUE::Int32(-2, IVT_TYPE_5), groupValue));
  EXPECT_TRUE(Holds(groupValue, {0xFF, 0xFE}, 16));
  ULOVALUE value(IVT_TYPE_5);
  EXPECT_TRUE(converter.FromKnxValue(KNXDPT{16, 99, 9}, groupValue, value));
  EXPECT_EQ(value.GetInt32(), -2);
  EXPECT_EQ(value.GetType(), IVT_TYPE_5);
}

TEST(IntegerConverters, AccessorExceptionsPassThrough) {
  StandardConverters standard;
  struct Row {
    const char* name;
    KnxConverter* converter;
    UloValueType type;
    Bytes bytes;
    unsigned int bits;
  };
  const Row rows[] = {
      {"byte from 16 bits", &standard.byte, IVT_BYTE, {0x00, 0x00}, 16},
      {"signed 8 from 16 bits", &standard.signed8, IVT_INT32, {0x00, 0x00}, 16},
      {"unsigned 16 from 8 bits", &standard.unsigned16, IVT_UINT16, {0x00}, 8},
      {"unsigned 16 from one byte claiming 16 bits", &standard.unsigned16, IVT_UINT16, {0x12}, 16},
      {"signed 16 from 24 bits", &standard.signed16, IVT_INT32, {0x00, 0x00, 0x00}, 24},
      {"unsigned 24 from 32 bits", &standard.unsigned24, IVT_UINT32, {0x00, 0x00, 0x00, 0x00}, 32},
      {"unsigned 32 from 24 bits", &standard.unsigned32, IVT_UINT32, {0x00, 0x00, 0x00}, 24},
      {"signed 32 from nothing", &standard.signed32, IVT_INT32, {}, 32},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    ULOVALUE value(row.type);
    value.SetUInt64(7);
    EXPECT_THROW(row.converter->FromKnxValue(Dpt8, GroupOf(row.bytes, row.bits), value), KnxStack::GroupValueException);
    EXPECT_EQ(value.GetUInt64(), 7U);
  }
}

// ---------------------------------------------------------------------------
// Clone

// Each source uses a range that scales, so that the conversion after the
// clone is gone shows the source's own range at work.
TEST(IntegerConverterClone, KeepsTheRangeAndLeavesTheSourceUsable) {
  Nelmo::KnxConverterInteger8BitSigned signed8(FilledRange<IntegerRange>(1, 10, 0, 90));
  Nelmo::KnxConverterInteger16BitUnsigned unsigned16(FilledRange<IntegerRange>(0, 100, 0, 1000));
  Nelmo::KnxConverterInteger16BitSigned signed16(FilledRange<IntegerRange>(-10, 10, -100, 100));
  Nelmo::KnxConverterInteger24BitUnsigned unsigned24(FilledRange<LongIntegerRange>(0, 100, 100, 200));
  Nelmo::KnxConverterInteger32BitUnsigned unsigned32(FilledRange<LongIntegerRange>(0, 10, 0, 100000));
  Nelmo::KnxConverterInteger32BitSigned signed32(FilledRange<IntegerRange>(-1, 1, -1000, 1000));
  Nelmo::KnxConverterInteger48BitUnsigned unsigned48(FilledRange<UnsignedLongIntegerRange>(0, 255, 0, 65535));
  ExpectCloneKeepsRange(signed8);
  ExpectCloneKeepsRange(unsigned16);
  ExpectCloneKeepsRange(signed16);
  ExpectCloneKeepsRange(unsigned24);
  ExpectCloneKeepsRange(unsigned32);
  ExpectCloneKeepsRange(signed32);
  ExpectCloneKeepsRange(unsigned48);

  struct Row {
    KnxConverter* converter;
    ULOVALUE value;
    Bytes bytes;
  };
  const Row rows[] = {
      {&signed8, ULOVALUE::Int32(2), {0x0A}},
      {&unsigned16, ULOVALUE::UInt16(100), {0x03, 0xE8}},
      {&signed16, ULOVALUE::Int32(-1), {0xFF, 0xF6}},
      {&unsigned24, ULOVALUE::UInt32(50), {0x00, 0x00, 0x96}},
      {&unsigned32, ULOVALUE::UInt32(10), {0x00, 0x01, 0x86, 0xA0}},
      {&signed32, ULOVALUE::Int32(1), {0x00, 0x00, 0x03, 0xE8}},
      {&unsigned48, ULOVALUE::UInt64(255), {0x00, 0x00, 0x00, 0x00, 0xFF, 0xFF}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.value.ToString());
    KnxStack::GroupValue groupValue;
    EXPECT_TRUE(row.converter->ToKnxValue(Dpt8, row.value, groupValue));
    EXPECT_TRUE(Holds(groupValue, row.bytes, static_cast<unsigned int>(row.bytes.size() * 8)));
  }
}

TEST(IntegerConverterClone, TheByteConverterClonesToItsOwnClass) {
  const Nelmo::KnxConverterByte8BitUnsigned source;
  std::unique_ptr<KnxConverter> clone(source.Clone());
  ASSERT_NE(dynamic_cast<Nelmo::KnxConverterByte8BitUnsigned*>(clone.get()), nullptr);
  KnxStack::GroupValue groupValue;
  EXPECT_TRUE(clone->ToKnxValue(Dpt5, ULOVALUE::Byte(0x42), groupValue));
  EXPECT_TRUE(Holds(groupValue, {0x42}, 8));
}

}  // namespace
