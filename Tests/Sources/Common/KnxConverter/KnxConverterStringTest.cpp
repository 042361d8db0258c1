#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "ConverterChecks.h"
#include "ConverterLines.h"
#include "KnxConverterString.h"
#include "KnxTestBytes.h"
#include "LogCapture.h"
#include "RangeRows.h"
#include "RowName.h"

namespace {

using KnxTest::Bytes;
using KnxTest::BytesOf;
using KnxTest::GroupOf;
using Nelmo::IntegerRange;
using Nelmo::KnxConverter;
using TestSupport::ExpectCloneKeepsRange;
using TestSupport::FilledRange;
using TestSupport::LogLine;
using TestSupport::RowName;
using TestSupport::Trace;
using Maker = std::unique_ptr<KnxConverter> (*)();

IntegerRange CharacterSet(std::int32_t last) {
  return FilledRange<IntegerRange>(0, last, 0, last);
}

// The converters of the standard DPT rows: ASCII 0..127, ISO 8859-1 0..255.
std::unique_ptr<KnxConverter> Ascii8() {
  return std::make_unique<Nelmo::KnxConverter8BitString>(CharacterSet(127));
}
std::unique_ptr<KnxConverter> Iso8() {
  return std::make_unique<Nelmo::KnxConverter8BitString>(CharacterSet(255));
}
std::unique_ptr<KnxConverter> Ascii14() {
  return std::make_unique<Nelmo::KnxConverter14ByteString>(CharacterSet(127));
}
std::unique_ptr<KnxConverter> Iso14() {
  return std::make_unique<Nelmo::KnxConverter14ByteString>(CharacterSet(255));
}

const KNXDPT Dpt4_x{8, 4, 0};
const KNXDPT Dpt4_001{8, 4, 1};
const KNXDPT Dpt4_002{8, 4, 2};
const KNXDPT Dpt16_x{112, 16, 0};
const KNXDPT Dpt16_001{112, 16, 1};

// UTF-8 texts used below.
const std::string EAcute = "\xC3\xA9";    // U+00E9
const std::string Euro = "\xE2\x82\xAC";  // U+20AC, three bytes
const std::string Greetings =
    "Gr\xC3\xBC\xC3\x9F"
    "e";  // seven bytes

// A 14-byte field: the given bytes, padded with zero bytes.
Bytes Field14(Bytes bytes) {
  bytes.resize(14, 0x00);
  return bytes;
}

// --- 8-bit character: sending ------------------------------------------------

struct SendRow {
  const char* name;
  Maker make;
  KNXDPT dpt;
  std::string text;
  Bytes bytes;
};

class CharacterSend : public testing::TestWithParam<SendRow> {};

TEST_P(CharacterSend, WritesOneByte) {
  const SendRow& row = GetParam();
  KnxStack::GroupValue groupValue;
  EXPECT_TRUE(row.make()->ToKnxValue(row.dpt, ULOVALUE::String(row.text), groupValue));
  EXPECT_EQ(BytesOf(groupValue), row.bytes);
  EXPECT_EQ(groupValue.GetDefinedSize(), 8u);
}

const SendRow characterSendRows[] = {
    {"A_4_001", Ascii8, Dpt4_001, "A", {0x41}},
    {"A_4_x", Ascii8, Dpt4_x, "A", {0x41}},
    {"A_4_002", Iso8, Dpt4_002, "A", {0x41}},
    {"OnlyTheFirstCharacter", Ascii8, Dpt4_001, "AB", {0x41}},
    {"LastAscii", Ascii8, Dpt4_001, "\x7F", {0x7F}},
    {"Empty_4_x", Ascii8, Dpt4_x, "", {0x00}},
    {"Empty_4_002", Iso8, Dpt4_002, "", {0x00}},
    {"ZeroByteFirstIsEmpty", Ascii8, Dpt4_001, std::string("\0B", 2), {0x00}},
    {"EAcute_4_002", Iso8, Dpt4_002, EAcute, {0xE9}},
    {"FirstTwoByte_4_002", Iso8, Dpt4_002, "\xC2\x80", {0x80}},
    {"LastIso_4_002", Iso8, Dpt4_002, "\xC3\xBF", {0xFF}},
    {"EAcuteThenMore_4_002", Iso8, Dpt4_002, EAcute + "x", {0xE9}},
    // U+0153 is outside ISO 8859-1; the two-byte rule still makes one byte.
    {"TwoByteAboveLatin1_4_002", Iso8, Dpt4_002, "\xC5\x93", {0x53}},
    // A three-byte sequence is passed on byte by byte: the first one travels.
    {"Euro_4_002", Iso8, Dpt4_002, Euro, {0xE2}},
    // A two-byte lead cut off by the end of the text combines with nothing.
    {"LoneLead_4_002", Iso8, Dpt4_002, "\xC3", {0xC0}},
};

INSTANTIATE_TEST_SUITE_P(Rows, CharacterSend, testing::ValuesIn(characterSendRows), RowName());

// --- 8-bit character: refusals, without a message ----------------------------

struct RefusalRow {
  const char* name;
  Maker make;
  KNXDPT dpt;
  UloValueType type;
  std::string text;
};

class CharacterRefusal : public testing::TestWithParam<RefusalRow> {};

TEST_P(CharacterRefusal, LeavesTheGroupValueUntouched) {
  const RefusalRow& row = GetParam();
  TestSupport::LogCapture capture(ULO_LOG_INFO);
  ULOVALUE value = ULOVALUE::String(row.text);
  value.SetType(row.type);
  KnxStack::GroupValue groupValue = GroupOf({0xAB, 0xCD}, 16);
  EXPECT_FALSE(row.make()->ToKnxValue(row.dpt, value, groupValue));
  EXPECT_EQ(BytesOf(groupValue), (Bytes{0xAB, 0xCD}));
  EXPECT_EQ(groupValue.GetDefinedSize(), 16u);
  EXPECT_TRUE(capture.Lines().empty());
}

const RefusalRow characterRefusalRows[] = {
    {"EAcuteOnAscii", Ascii8, Dpt4_001, IVT_STRING, EAcute},
    {"EAcuteOn4_x", Ascii8, Dpt4_x, IVT_STRING, EAcute},
    {"EuroOnAscii", Ascii8, Dpt4_001, IVT_STRING, Euro},
    {"Latin1ByteOnAscii", Ascii8, Dpt4_001, IVT_STRING, "\xE9"},
    {"MainNumber16", Iso8, Dpt16_001, IVT_STRING, "A"},
    {"MainNumber5", Ascii8, KNXDPT{8, 5, 1}, IVT_STRING, "A"},
    {"ValueTypeInt32", Ascii8, Dpt4_001, IVT_INT32, "A"},
    {"ValueTypeAny", Iso8, Dpt4_002, IVT_ANY, "A"},
};

INSTANTIATE_TEST_SUITE_P(Rows, CharacterRefusal, testing::ValuesIn(characterRefusalRows), RowName());

// --- 8-bit character: receiving ----------------------------------------------

struct ReceiveRow {
  const char* name;
  Maker make;
  KNXDPT dpt;
  Bytes bytes;
  unsigned int size;
  bool result;
  std::string text;  // the target starts as "unchanged"
};

class CharacterReceive : public testing::TestWithParam<ReceiveRow> {};

TEST_P(CharacterReceive, ReadsOneByte) {
  const ReceiveRow& row = GetParam();
  TestSupport::LogCapture capture(ULO_LOG_INFO);
  ULOVALUE value = ULOVALUE::String("unchanged");
  EXPECT_EQ(row.make()->FromKnxValue(row.dpt, GroupOf(row.bytes, row.size), value), row.result);
  EXPECT_EQ(value.GetString(), row.text);
  EXPECT_EQ(value.GetType(), IVT_STRING);
  EXPECT_TRUE(capture.Lines().empty());
}

const ReceiveRow characterReceiveRows[] = {
    {"A_4_001", Ascii8, Dpt4_001, {0x41}, 8, true, "A"},
    {"A_4_002", Iso8, Dpt4_002, {0x41}, 8, true, "A"},
    {"LastAscii_4_001", Ascii8, Dpt4_001, {0x7F}, 8, true, "\x7F"},
    {"Zero_4_x", Ascii8, Dpt4_x, {0x00}, 8, true, ""},
    {"Zero_4_002", Iso8, Dpt4_002, {0x00}, 8, true, ""},
    {"EAcute_4_002", Iso8, Dpt4_002, {0xE9}, 8, true, EAcute},
    {"FirstHigh_4_002", Iso8, Dpt4_002, {0x80}, 8, true, "\xC2\x80"},
    {"LastIso_4_002", Iso8, Dpt4_002, {0xFF}, 8, true, "\xC3\xBF"},
    {"EAcute_4_001", Ascii8, Dpt4_001, {0xE9}, 8, false, "unchanged"},
    {"FirstHigh_4_x", Ascii8, Dpt4_x, {0x80}, 8, false, "unchanged"},
    {"MainNumber16", Iso8, KNXDPT{8, 16, 1}, {0x41}, 8, false, "unchanged"},
};

INSTANTIATE_TEST_SUITE_P(Rows, CharacterReceive, testing::ValuesIn(characterReceiveRows), RowName());

// --- 14-byte text: sending ---------------------------------------------------

class TextSend : public testing::TestWithParam<SendRow> {};

TEST_P(TextSend, WritesFourteenBytes) {
  const SendRow& row = GetParam();
  TestSupport::LogCapture capture(ULO_LOG_INFO);
  KnxStack::GroupValue groupValue;
  EXPECT_TRUE(row.make()->ToKnxValue(row.dpt, ULOVALUE::String(row.text), groupValue));
  EXPECT_EQ(BytesOf(groupValue), row.bytes);
  EXPECT_EQ(groupValue.GetDefinedSize(), 112u);
  EXPECT_TRUE(capture.Lines().empty());
}

const SendRow textSendRows[] = {
    {"Ascii_16_x", Ascii14, Dpt16_x, "Hello", Field14({0x48, 0x65, 0x6C, 0x6C, 0x6F})},
    {"Ascii_16_001", Iso14, Dpt16_001, "Hello", Field14({0x48, 0x65, 0x6C, 0x6C, 0x6F})},
    {"Empty_16_x", Ascii14, Dpt16_x, "", Field14({})},
    {"Empty_16_001", Iso14, Dpt16_001, "", Field14({})},
    {"Fourteen_16_x",
     Ascii14,
     Dpt16_x,
     "ABCDEFGHIJKLMN",
     {0x41, 0x42, 0x43, 0x44, 0x45, 0x46, 0x47, 0x48, 0x49, 0x4A, 0x4B, 0x4C, 0x4D, 0x4E}},
    {"LongerIsCut_16_x",
     Ascii14,
     Dpt16_x,
     "ABCDEFGHIJKLMNOPQ",
     {0x41, 0x42, 0x43, 0x44, 0x45, 0x46, 0x47, 0x48, 0x49, 0x4A, 0x4B, 0x4C, 0x4D, 0x4E}},
    {"ZeroByteEndsText_16_x", Ascii14, Dpt16_x, std::string("AB\0CD", 5), Field14({0x41, 0x42})},
    {"Greetings_16_x", Ascii14, Dpt16_x, Greetings, Field14({0x47, 0x72, 0x65})},
    {"Greetings_16_001", Iso14, Dpt16_001, Greetings, Field14({0x47, 0x72, 0xFC, 0xDF, 0x65})},
    {"Cafe_16_001", Iso14, Dpt16_001, "Caf" + EAcute, Field14({0x43, 0x61, 0x66, 0xE9})},
    {"Euro_16_001", Iso14, Dpt16_001, Euro, Field14({0xE2, 0x82, 0xAC})},
    {"Euro_16_x", Ascii14, Dpt16_x, Euro, Field14({})},
    {"EuroAmongAscii_16_x", Ascii14, Dpt16_x, "5 " + Euro + "!", Field14({0x35, 0x20, 0x21})},
    // Sixteen two-byte characters: cut to 14 after they became single bytes.
    {"SixteenEAcute_16_001",
     Iso14,
     Dpt16_001,
     EAcute + EAcute + EAcute + EAcute + EAcute + EAcute + EAcute + EAcute + EAcute + EAcute + EAcute + EAcute +
         EAcute + EAcute + EAcute + EAcute,
     {0xE9, 0xE9, 0xE9, 0xE9, 0xE9, 0xE9, 0xE9, 0xE9, 0xE9, 0xE9, 0xE9, 0xE9, 0xE9, 0xE9}},
    {"LastIso_16_001", Iso14, Dpt16_001, "\xC2\x80\xC3\xBF", Field14({0x80, 0xFF})},
    // No main-number check.
    {"OnMainNumber4", Ascii14, Dpt4_001, "Hi", Field14({0x48, 0x69})},
};

INSTANTIATE_TEST_SUITE_P(Rows, TextSend, testing::ValuesIn(textSendRows), RowName());

// No value-type check: the text payload is used whatever the tag says.
TEST(TextSend, AnyValueType) {
  ULOVALUE value = ULOVALUE::String("Hi");
  value.SetType(IVT_INT32);
  KnxStack::GroupValue groupValue;
  EXPECT_TRUE(Ascii14()->ToKnxValue(Dpt16_x, value, groupValue));
  EXPECT_EQ(BytesOf(groupValue), Field14({0x48, 0x69}));
}

// --- 14-byte text: receiving -------------------------------------------------

class TextReceive : public testing::TestWithParam<ReceiveRow> {};

TEST_P(TextReceive, ReadsFourteenBytes) {
  const ReceiveRow& row = GetParam();
  TestSupport::LogCapture capture(ULO_LOG_INFO);
  ULOVALUE value = ULOVALUE::String("unchanged");
  EXPECT_EQ(row.make()->FromKnxValue(row.dpt, GroupOf(row.bytes, row.size), value), row.result);
  EXPECT_EQ(value.GetString(), row.text);
  EXPECT_TRUE(capture.Lines().empty());
}

const ReceiveRow textReceiveRows[] = {
    {"Ascii_16_x", Ascii14, Dpt16_x, Field14({0x48, 0x65, 0x6C, 0x6C, 0x6F}), 112, true, "Hello"},
    {"Ascii_16_001", Iso14, Dpt16_001, Field14({0x48, 0x65, 0x6C, 0x6C, 0x6F}), 112, true, "Hello"},
    {"Empty_16_x", Ascii14, Dpt16_x, Field14({}), 112, true, ""},
    {"Empty_16_001", Iso14, Dpt16_001, Field14({}), 112, true, ""},
    {"Fourteen_16_x",
     Ascii14,
     Dpt16_x,
     {0x41, 0x42, 0x43, 0x44, 0x45, 0x46, 0x47, 0x48, 0x49, 0x4A, 0x4B, 0x4C, 0x4D, 0x4E},
     112,
     true,
     "ABCDEFGHIJKLMN"},
    {"ZeroByteEndsText_16_001", Iso14, Dpt16_001, Field14({0x41, 0x42, 0x00, 0x43, 0x44}), 112, true, "AB"},
    {"Greetings_16_x", Ascii14, Dpt16_x, Field14({0x47, 0x72, 0xFC, 0xDF, 0x65}), 112, true, "Gre"},
    {"Greetings_16_001", Iso14, Dpt16_001, Field14({0x47, 0x72, 0xFC, 0xDF, 0x65}), 112, true, Greetings},
    {"LastIso_16_001", Iso14, Dpt16_001, Field14({0x80, 0xFF}), 112, true, "\xC2\x80\xC3\xBF"},
    {"FourteenHigh_16_x",
     Ascii14,
     Dpt16_x,
     {0xE9, 0xE9, 0xE9, 0xE9, 0xE9, 0xE9, 0xE9, 0xE9, 0xE9, 0xE9, 0xE9, 0xE9, 0xE9, 0xE9},
     112,
     true,
     ""},
    {"FourteenHigh_16_001",
     Iso14,
     Dpt16_001,
     {0xE9, 0xE9, 0xE9, 0xE9, 0xE9, 0xE9, 0xE9, 0xE9, 0xE9, 0xE9, 0xE9, 0xE9, 0xE9, 0xE9},
     112,
     true,
     EAcute + EAcute + EAcute + EAcute + EAcute + EAcute + EAcute + EAcute + EAcute + EAcute + EAcute + EAcute +
         EAcute + EAcute},
    {"HighAmongAscii_16_x",
     Ascii14,
     Dpt16_x,
     {0x43, 0x61, 0x66, 0xE9, 0x20, 0x4F, 0x4B, 0xA4, 0x21, 0x20, 0x7F, 0x80, 0x31, 0x32},
     112,
     true,
     "Caf OK! \x7F"
     "12"},
    // No main-number check.
    {"OnMainNumber4", Ascii14, KNXDPT{112, 4, 1}, Field14({0x48, 0x69}), 112, true, "Hi"},
};

INSTANTIATE_TEST_SUITE_P(Rows, TextReceive, testing::ValuesIn(textReceiveRows), RowName());

// --- Messages ----------------------------------------------------------------

struct SendMessageRow {
  const char* name;
  Maker make;
  KNXDPT dpt;
  std::string text;
  bool result;
  const char* message;
};

class StringSendTrace : public testing::TestWithParam<SendMessageRow> {};

TEST_P(StringSendTrace, OneTraceLine) {
  const SendMessageRow& row = GetParam();
  TestSupport::LogCapture capture;
  KnxStack::GroupValue groupValue;
  EXPECT_EQ(row.make()->ToKnxValue(row.dpt, ULOVALUE::String(row.text), groupValue), row.result);
  const std::vector<LogLine> expected{Trace("ToKnxValue", row.message)};
  EXPECT_EQ(capture.Lines(), expected);
}

const SendMessageRow sendMessageRows[] = {
    {"Character", Ascii8, Dpt4_001, "A", true, "DPT is used. DPT = 4.1 ivt=10 val=A"},
    {"CharacterRefused", Ascii8, Dpt4_001, EAcute, false, "DPT is used. DPT = 4.1 ivt=10 val=\xC3\xA9"},
    {"Text", Iso14, Dpt16_001, Greetings, true,
     "DPT is used. DPT = 16.1 ivt=10 val=Gr\xC3\xBC\xC3\x9F"
     "e"},
    {"EmptyText", Ascii14, Dpt16_x, "", true, "DPT is used. DPT = 16.0 ivt=10 val="},
};

INSTANTIATE_TEST_SUITE_P(Rows, StringSendTrace, testing::ValuesIn(sendMessageRows), RowName());

struct ReceiveMessageRow {
  const char* name;
  Maker make;
  KNXDPT dpt;
  Bytes bytes;
  unsigned int size;
  bool result;
  const char* message;
};

class StringReceiveTrace : public testing::TestWithParam<ReceiveMessageRow> {};

TEST_P(StringReceiveTrace, OneTraceLine) {
  const ReceiveMessageRow& row = GetParam();
  TestSupport::LogCapture capture;
  ULOVALUE value = ULOVALUE::String("");
  EXPECT_EQ(row.make()->FromKnxValue(row.dpt, GroupOf(row.bytes, row.size), value), row.result);
  const std::vector<LogLine> expected{Trace("FromKnxValue", row.message)};
  EXPECT_EQ(capture.Lines(), expected);
}

const ReceiveMessageRow receiveMessageRows[] = {
    {"Character", Iso8, Dpt4_002, {0xE9}, 8, true, "DPT is used. DPT = 4.2 grp.size=8 grp.val=E9"},
    {"CharacterRefused", Ascii8, Dpt4_001, {0xE9}, 8, false, "DPT is used. DPT = 4.1 grp.size=8 grp.val=E9"},
    {"Text", Iso14, Dpt16_001, Field14({0x47, 0x72, 0xFC, 0xDF, 0x65}), 112, true,
     "DPT is used. DPT = 16.1 grp.size=112 grp.val=47 72 FC DF 65 00 00 00 00 00 00 00 00 00"},
};

INSTANTIATE_TEST_SUITE_P(Rows, StringReceiveTrace, testing::ValuesIn(receiveMessageRows), RowName());

// --- Exceptions of the group value pass through ------------------------------

struct ThrowRow {
  const char* name;
  Maker make;
  KNXDPT dpt;
  Bytes bytes;
  unsigned int size;
};

class StringGroupValueException : public testing::TestWithParam<ThrowRow> {};

TEST_P(StringGroupValueException, PassesThroughFromKnxValue) {
  const ThrowRow& row = GetParam();
  ULOVALUE value = ULOVALUE::String("unchanged");
  EXPECT_THROW(row.make()->FromKnxValue(row.dpt, GroupOf(row.bytes, row.size), value), KnxStack::GroupValueException);
  EXPECT_EQ(value.GetString(), "unchanged");
}

const ThrowRow throwRows[] = {
    {"Character16Bits", Iso8, Dpt4_002, {0x41, 0x42}, 16},
    {"CharacterEmpty", Ascii8, Dpt4_001, {}, 8},
    {"Text8Bits", Iso14, Dpt16_001, {0x41}, 8},
    {"TextShortPayload", Ascii14, Dpt16_x, {0x41, 0x42, 0x43}, 112},
};

INSTANTIATE_TEST_SUITE_P(WrongSize, StringGroupValueException, testing::ValuesIn(throwRows), RowName());

// --- Clone -------------------------------------------------------------------

TEST(StringClone, KeepsTheRangeAndLeavesTheSourceUsable) {
  Nelmo::KnxConverter8BitString character(CharacterSet(255));
  Nelmo::KnxConverter14ByteString text(CharacterSet(127));
  ExpectCloneKeepsRange(character);
  ExpectCloneKeepsRange(text);
  EXPECT_EQ(character.GetRange().internalMaximum, 255);
  EXPECT_EQ(text.GetRange().internalMaximum, 127);

  KnxStack::GroupValue groupValue;
  EXPECT_TRUE(character.ToKnxValue(Dpt4_002, ULOVALUE::String(EAcute), groupValue));
  EXPECT_EQ(BytesOf(groupValue), Bytes{0xE9});
  EXPECT_TRUE(text.ToKnxValue(Dpt16_x, ULOVALUE::String(Greetings), groupValue));
  EXPECT_EQ(BytesOf(groupValue), Field14({0x47, 0x72, 0x65}));
}

}  // namespace
