#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <string>

#include "KnxStack.h"
#include "KnxTestBytes.h"

namespace {

using KnxStack::BinaryData;
using KnxStack::GroupValue;
using KnxStack::GroupValueException;
using KnxTest::GroupValueExceptionText;
using KnxTest::Hex;
using KnxTest::Received;

const char* const zeros14 = "00 00 00 00 00 00 00 00 00 00 00 00 00 00";

// --- Values of up to 6 bits -------------------------------------------------

struct SmallSetRow {
  const char* accessor;
  unsigned char argument;
  const char* bytes;
  unsigned int bits;
  unsigned char read;
};

void SetSmall(GroupValue& value, const SmallSetRow& row) {
  const std::string accessor = row.accessor;
  if (accessor == "Boolean") {
    value.SetAsBoolean(row.argument != 0);
  } else if (accessor == "Unsigned2") {
    value.SetAsUnsigned2(row.argument);
  } else {
    value.SetAsUnsigned4(row.argument);
  }
}

unsigned char GetSmall(const GroupValue& value, const std::string& accessor) {
  if (accessor == "Boolean") {
    return value.GetAsBoolean() ? 1 : 0;
  }
  return accessor == "Unsigned2" ? value.GetAsUnsigned2() : value.GetAsUnsigned4();
}

class SmallValueSet : public testing::TestWithParam<SmallSetRow> {};

TEST_P(SmallValueSet, KeepsTheArgumentsLowSixBitsAndReadsItsOwnBits) {
  const SmallSetRow& row = GetParam();
  GroupValue value;
  SetSmall(value, row);
  EXPECT_EQ(value.GetRawData().ToString(), row.bytes);
  EXPECT_EQ(value.GetDefinedSize(), row.bits);
  EXPECT_EQ(GetSmall(value, row.accessor), row.read);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SmallValueSet,
    testing::Values(SmallSetRow{"Boolean", 0, "00", 1, 0},  //
                    SmallSetRow{"Boolean", 1, "01", 1, 1},  //
                    SmallSetRow{"Unsigned2", 0, "00", 2, 0}, SmallSetRow{"Unsigned2", 1, "01", 2, 1},
                    SmallSetRow{"Unsigned2", 2, "02", 2, 2}, SmallSetRow{"Unsigned2", 3, "03", 2, 3},
                    SmallSetRow{"Unsigned2", 17, "11", 2, 1}, SmallSetRow{"Unsigned2", 0xFF, "3F", 2, 3},
                    SmallSetRow{"Unsigned4", 0x00, "00", 4, 0x00}, SmallSetRow{"Unsigned4", 0x09, "09", 4, 0x09},
                    SmallSetRow{"Unsigned4", 0x0F, "0F", 4, 0x0F}, SmallSetRow{"Unsigned4", 0x1F, "1F", 4, 0x0F},
                    SmallSetRow{"Unsigned4", 0xC9, "09", 4, 0x09}, SmallSetRow{"Unsigned4", 0xFF, "3F", 4, 0x0F}));

struct SmallReceiveRow {
  const char* accessor;
  const char* received;
  unsigned int bits;
  const char* kept;
  unsigned char read;
};

class SmallValueReceive : public testing::TestWithParam<SmallReceiveRow> {};

TEST_P(SmallValueReceive, KeepsTheLowSixBitsOfTheFirstByte) {
  const SmallReceiveRow& row = GetParam();
  const GroupValue value = Received(row.received, row.bits);
  EXPECT_EQ(value.GetRawData().ToString(), row.kept);
  EXPECT_EQ(value.GetDefinedSize(), row.bits);
  EXPECT_EQ(GetSmall(value, row.accessor), row.read);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SmallValueReceive,
    testing::Values(SmallReceiveRow{"Boolean", "00", 1, "00", 0}, SmallReceiveRow{"Boolean", "01", 1, "01", 1},
                    SmallReceiveRow{"Boolean", "FF", 1, "3F", 1}, SmallReceiveRow{"Boolean", "FE", 1, "3E", 0},
                    SmallReceiveRow{"Boolean", "81", 1, "01", 1}, SmallReceiveRow{"Boolean", "FF FF", 1, "3F FF", 1},
                    SmallReceiveRow{"Unsigned2", "11", 2, "11", 1}, SmallReceiveRow{"Unsigned2", "FE", 2, "3E", 2},
                    SmallReceiveRow{"Unsigned2", "C3", 2, "03", 3}, SmallReceiveRow{"Unsigned4", "FF", 4, "3F", 0x0F},
                    SmallReceiveRow{"Unsigned4", "8B", 4, "0B", 0x0B},
                    SmallReceiveRow{"Unsigned4", "F4", 4, "34", 0x04}));

struct ConstructRow {
  const char* received;
  unsigned int bits;
  const char* kept;
};

class Construction : public testing::TestWithParam<ConstructRow> {};

TEST_P(Construction, KeepsTheBytesMaskingOnlyValuesOfUpToSixBits) {
  const GroupValue value = Received(GetParam().received, GetParam().bits);
  EXPECT_EQ(value.GetRawData().ToString(), GetParam().kept);
  EXPECT_EQ(value.GetDefinedSize(), GetParam().bits);
}

INSTANTIATE_TEST_SUITE_P(Rows, Construction,
                         testing::Values(ConstructRow{"FF", 1, "3F"}, ConstructRow{"FF", 6, "3F"},
                                         ConstructRow{"FF", 7, "FF"}, ConstructRow{"FF", 8, "FF"},
                                         ConstructRow{"FF FF", 16, "FF FF"}, ConstructRow{"", 1, ""},
                                         ConstructRow{"", 16, ""}, ConstructRow{"0C", 16, "0C"},
                                         ConstructRow{"01 02 03", 16, "01 02 03"},
                                         ConstructRow{"01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F", 120,
                                                      "01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F"}));

TEST(GroupValue, DefaultIsEmptyWithSizeZero) {
  const GroupValue value;
  EXPECT_EQ(value.GetDefinedSize(), 0u);
  EXPECT_TRUE(value.GetRawData().IsEmpty());
}

// --- Raw data ---------------------------------------------------------------

struct RawRow {
  const char* bytes;
  unsigned int bits;
};

class RawData : public testing::TestWithParam<RawRow> {};

TEST_P(RawData, ReplacesTheBytesAndMakesTheSizeEightTimesTheirCount) {
  GroupValue value;
  value.SetAsBoolean(true);
  value.SetRawData(Hex(GetParam().bytes));
  EXPECT_EQ(value.GetRawData().ToString(), GetParam().bytes);
  EXPECT_EQ(value.GetDefinedSize(), GetParam().bits);
}

INSTANTIATE_TEST_SUITE_P(Rows, RawData,
                         testing::Values(RawRow{"", 0}, RawRow{"FF", 8}, RawRow{"0C 33", 16},
                                         RawRow{"01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E", 112},
                                         RawRow{"01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F", 120}));

TEST(GroupValue, SetterReplacesRawDataAndSize) {
  GroupValue value;
  value.SetRawData(Hex("01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F"));
  value.SetAsUnsigned16(0x0C33);
  EXPECT_EQ(value.GetRawData().ToString(), "0C 33");
  EXPECT_EQ(value.GetDefinedSize(), 16u);
  value.SetAsBoolean(true);
  EXPECT_EQ(value.GetRawData().ToString(), "01");
  EXPECT_EQ(value.GetDefinedSize(), 1u);
}

TEST(GroupValue, CopyKeepsBytesAndSize) {
  const GroupValue original = Received("0C 33", 16);
  const GroupValue copy(original);  // NOLINT(performance-unnecessary-copy-initialization): the copy is under test
  GroupValue assigned;
  assigned = original;
  EXPECT_EQ(copy.GetRawData(), original.GetRawData());
  EXPECT_EQ(copy.GetDefinedSize(), 16u);
  EXPECT_EQ(assigned.GetRawData(), original.GetRawData());
  EXPECT_EQ(assigned.GetDefinedSize(), 16u);
  EXPECT_EQ(copy.GetAsUnsigned16(), 0x0C33);
}

// --- Integers ---------------------------------------------------------------

template <typename T>
struct IntegerRow {
  T value;
  const char* bytes;
};

template <typename T>
void ExpectBothWays(void (GroupValue::*set)(T), T (GroupValue::*get)() const, unsigned int bits,
                    const IntegerRow<T>& row) {
  GroupValue written;
  (written.*set)(row.value);
  EXPECT_EQ(written.GetRawData().ToString(), row.bytes);
  EXPECT_EQ(written.GetDefinedSize(), bits);
  EXPECT_EQ((Received(row.bytes, bits).*get)(), row.value);
}

class Unsigned8 : public testing::TestWithParam<IntegerRow<unsigned char>> {};
TEST_P(Unsigned8, BothWays) {
  ExpectBothWays(&GroupValue::SetAsUnsigned8, &GroupValue::GetAsUnsigned8, 8, GetParam());
}
INSTANTIATE_TEST_SUITE_P(Rows, Unsigned8,
                         testing::Values(IntegerRow<unsigned char>{0, "00"}, IntegerRow<unsigned char>{1, "01"},
                                         IntegerRow<unsigned char>{127, "7F"}, IntegerRow<unsigned char>{128, "80"},
                                         IntegerRow<unsigned char>{200, "C8"}, IntegerRow<unsigned char>{255, "FF"}));

class Signed8 : public testing::TestWithParam<IntegerRow<signed char>> {};
TEST_P(Signed8, BothWays) {
  ExpectBothWays(&GroupValue::SetAsSigned8, &GroupValue::GetAsSigned8, 8, GetParam());
}
INSTANTIATE_TEST_SUITE_P(Rows, Signed8,
                         testing::Values(IntegerRow<signed char>{-128, "80"}, IntegerRow<signed char>{-127, "81"},
                                         IntegerRow<signed char>{-2, "FE"}, IntegerRow<signed char>{-1, "FF"},
                                         IntegerRow<signed char>{0, "00"}, IntegerRow<signed char>{1, "01"},
                                         IntegerRow<signed char>{127, "7F"}));

class Unsigned16 : public testing::TestWithParam<IntegerRow<std::uint16_t>> {};
TEST_P(Unsigned16, BothWays) {
  ExpectBothWays(&GroupValue::SetAsUnsigned16, &GroupValue::GetAsUnsigned16, 16, GetParam());
}
INSTANTIATE_TEST_SUITE_P(Rows, Unsigned16,
                         testing::Values(IntegerRow<std::uint16_t>{0, "00 00"}, IntegerRow<std::uint16_t>{255, "00 FF"},
                                         IntegerRow<std::uint16_t>{256, "01 00"},
                                         IntegerRow<std::uint16_t>{0x1234, "12 34"},
                                         IntegerRow<std::uint16_t>{0x8000, "80 00"},
                                         IntegerRow<std::uint16_t>{65535, "FF FF"}));

class Signed16 : public testing::TestWithParam<IntegerRow<std::int16_t>> {};
TEST_P(Signed16, BothWays) {
  ExpectBothWays(&GroupValue::SetAsSigned16, &GroupValue::GetAsSigned16, 16, GetParam());
}
INSTANTIATE_TEST_SUITE_P(Rows, Signed16,
                         testing::Values(IntegerRow<std::int16_t>{-32768, "80 00"},
                                         IntegerRow<std::int16_t>{-300, "FE D4"}, IntegerRow<std::int16_t>{-1, "FF FF"},
                                         IntegerRow<std::int16_t>{0, "00 00"}, IntegerRow<std::int16_t>{300, "01 2C"},
                                         IntegerRow<std::int16_t>{32767, "7F FF"}));

class Unsigned24 : public testing::TestWithParam<IntegerRow<std::uint32_t>> {};
TEST_P(Unsigned24, BothWays) {
  ExpectBothWays(&GroupValue::SetAsUnsigned24, &GroupValue::GetAsUnsigned24, 24, GetParam());
}
INSTANTIATE_TEST_SUITE_P(Rows, Unsigned24,
                         testing::Values(IntegerRow<std::uint32_t>{0, "00 00 00"},
                                         IntegerRow<std::uint32_t>{1, "00 00 01"},
                                         IntegerRow<std::uint32_t>{0x123456, "12 34 56"},
                                         IntegerRow<std::uint32_t>{0x800000, "80 00 00"},
                                         IntegerRow<std::uint32_t>{0xFFFFFF, "FF FF FF"}));

struct MaskRow {
  std::uint32_t argument;
  const char* bytes;
  std::uint32_t read;
};

class Unsigned24Mask : public testing::TestWithParam<MaskRow> {};
TEST_P(Unsigned24Mask, KeepsTheLow24Bits) {
  GroupValue value;
  value.SetAsUnsigned24(GetParam().argument);
  EXPECT_EQ(value.GetRawData().ToString(), GetParam().bytes);
  EXPECT_EQ(value.GetDefinedSize(), 24u);
  EXPECT_EQ(value.GetAsUnsigned24(), GetParam().read);
}
INSTANTIATE_TEST_SUITE_P(Rows, Unsigned24Mask,
                         testing::Values(MaskRow{0x01000000, "00 00 00", 0}, MaskRow{0x01234567, "23 45 67", 0x234567},
                                         MaskRow{0xFFFFFFFF, "FF FF FF", 0xFFFFFF}));

class Unsigned32 : public testing::TestWithParam<IntegerRow<std::uint32_t>> {};
TEST_P(Unsigned32, BothWays) {
  ExpectBothWays(&GroupValue::SetAsUnsigned32, &GroupValue::GetAsUnsigned32, 32, GetParam());
}
INSTANTIATE_TEST_SUITE_P(Rows, Unsigned32,
                         testing::Values(IntegerRow<std::uint32_t>{0, "00 00 00 00"},
                                         IntegerRow<std::uint32_t>{0x12345678, "12 34 56 78"},
                                         IntegerRow<std::uint32_t>{0x80000000, "80 00 00 00"},
                                         IntegerRow<std::uint32_t>{0xFFFFFFFF, "FF FF FF FF"}));

class Signed32 : public testing::TestWithParam<IntegerRow<std::int32_t>> {};
TEST_P(Signed32, BothWays) {
  ExpectBothWays(&GroupValue::SetAsSigned32, &GroupValue::GetAsSigned32, 32, GetParam());
}
INSTANTIATE_TEST_SUITE_P(
    Rows, Signed32,
    testing::Values(IntegerRow<std::int32_t>{std::numeric_limits<std::int32_t>::min(), "80 00 00 00"},
                    IntegerRow<std::int32_t>{-100000, "FF FE 79 60"}, IntegerRow<std::int32_t>{-1, "FF FF FF FF"},
                    IntegerRow<std::int32_t>{0, "00 00 00 00"}, IntegerRow<std::int32_t>{100000, "00 01 86 A0"},
                    IntegerRow<std::int32_t>{std::numeric_limits<std::int32_t>::max(), "7F FF FF FF"}));

// --- Float32 ----------------------------------------------------------------

std::uint32_t BitsOf(float value) {
  std::uint32_t bits = 0;
  std::memcpy(&bits, &value, sizeof bits);
  return bits;
}

struct Float32Row {
  float value;
  const char* bytes;
};

class Float32 : public testing::TestWithParam<Float32Row> {};
TEST_P(Float32, BothWaysBitForBit) {
  GroupValue written;
  written.SetAsFloat32(GetParam().value);
  EXPECT_EQ(written.GetRawData().ToString(), GetParam().bytes);
  EXPECT_EQ(written.GetDefinedSize(), 32u);
  EXPECT_EQ(BitsOf(Received(GetParam().bytes, 32).GetAsFloat32()), BitsOf(GetParam().value));
}
INSTANTIATE_TEST_SUITE_P(Rows, Float32,
                         testing::Values(Float32Row{0.0f, "00 00 00 00"}, Float32Row{-0.0f, "80 00 00 00"},
                                         Float32Row{1.0f, "3F 80 00 00"}, Float32Row{-1.0f, "BF 80 00 00"},
                                         Float32Row{21.5f, "41 AC 00 00"}, Float32Row{-273.15f, "C3 88 93 33"},
                                         Float32Row{std::numeric_limits<float>::max(), "7F 7F FF FF"},
                                         Float32Row{std::numeric_limits<float>::denorm_min(), "00 00 00 01"},
                                         Float32Row{std::numeric_limits<float>::infinity(), "7F 80 00 00"},
                                         Float32Row{-std::numeric_limits<float>::infinity(), "FF 80 00 00"},
                                         Float32Row{std::numeric_limits<float>::quiet_NaN(), "7F C0 00 00"}));

// --- 14-byte text -----------------------------------------------------------

struct String14Row {
  std::string text;
  const char* bytes;
  std::string read;
};

class String14 : public testing::TestWithParam<String14Row> {};
TEST_P(String14, PadsCutsAndReadsUpToTheFirstZero) {
  GroupValue written;
  written.SetAsString14(GetParam().text);
  EXPECT_EQ(written.GetRawData().ToString(), GetParam().bytes);
  EXPECT_EQ(written.GetDefinedSize(), 112u);
  EXPECT_EQ(written.GetAsString14(), GetParam().read);
  EXPECT_EQ(Received(GetParam().bytes, 112).GetAsString14(), GetParam().read);
}
INSTANTIATE_TEST_SUITE_P(
    Rows, String14,
    testing::Values(String14Row{"", zeros14, ""},
                    String14Row{"KNX is fine!!", "4B 4E 58 20 69 73 20 66 69 6E 65 21 21 00", "KNX is fine!!"},
                    String14Row{"ABCDEFGHIJKLMN", "41 42 43 44 45 46 47 48 49 4A 4B 4C 4D 4E", "ABCDEFGHIJKLMN"},
                    String14Row{"ABCDEFGHIJKLMNO", "41 42 43 44 45 46 47 48 49 4A 4B 4C 4D 4E", "ABCDEFGHIJKLMN"},
                    String14Row{std::string("AB\0CD", 5), "41 42 00 43 44 00 00 00 00 00 00 00 00 00", "AB"},
                    String14Row{"\xE4\xFF", "E4 FF 00 00 00 00 00 00 00 00 00 00 00 00", "\xE4\xFF"}));

TEST(GroupValue, String14ReadsNoMoreThanFourteenBytesOfALongerPayload) {
  const GroupValue value = Received("41 42 43 44 45 46 47 48 49 4A 4B 4C 4D 4E 4F 50", 112);
  EXPECT_EQ(value.GetAsString14(), "ABCDEFGHIJKLMN");
}

// --- Getters on a wrong size or a short payload ------------------------------

struct GetterErrorRow {
  const char* name;
  std::function<void(const GroupValue&)> get;
  const char* received;
  unsigned int bits;
  const char* what;
};

class GetterError : public testing::TestWithParam<GetterErrorRow> {};

TEST_P(GetterError, ThrowsWithTheReason) {
  const GroupValue value = Received(GetParam().received, GetParam().bits);
  EXPECT_EQ(GroupValueExceptionText([&] { GetParam().get(value); }), GetParam().what) << GetParam().name;
}

const std::function<void(const GroupValue&)> getBoolean = [](const GroupValue& v) { v.GetAsBoolean(); };
const std::function<void(const GroupValue&)> getUnsigned2 = [](const GroupValue& v) { v.GetAsUnsigned2(); };
const std::function<void(const GroupValue&)> getUnsigned4 = [](const GroupValue& v) { v.GetAsUnsigned4(); };
const std::function<void(const GroupValue&)> getUnsigned8 = [](const GroupValue& v) { v.GetAsUnsigned8(); };
const std::function<void(const GroupValue&)> getSigned8 = [](const GroupValue& v) { v.GetAsSigned8(); };
const std::function<void(const GroupValue&)> getUnsigned16 = [](const GroupValue& v) { v.GetAsUnsigned16(); };
const std::function<void(const GroupValue&)> getSigned16 = [](const GroupValue& v) { v.GetAsSigned16(); };
const std::function<void(const GroupValue&)> getUnsigned24 = [](const GroupValue& v) { v.GetAsUnsigned24(); };
const std::function<void(const GroupValue&)> getUnsigned32 = [](const GroupValue& v) { v.GetAsUnsigned32(); };
const std::function<void(const GroupValue&)> getSigned32 = [](const GroupValue& v) { v.GetAsSigned32(); };
const std::function<void(const GroupValue&)> getFloat16 = [](const GroupValue& v) { v.GetAsFloat16(); };
const std::function<void(const GroupValue&)> getFloat32 = [](const GroupValue& v) { v.GetAsFloat32(); };
const std::function<void(const GroupValue&)> getString14 = [](const GroupValue& v) { v.GetAsString14(); };

INSTANTIATE_TEST_SUITE_P(
    Rows, GetterError,
    testing::Values(
        GetterErrorRow{"Boolean", getBoolean, "01", 2, "GroupValue: expected 1 bits, defined size is 2"},
        GetterErrorRow{"Boolean", getBoolean, "01", 8, "GroupValue: expected 1 bits, defined size is 8"},
        GetterErrorRow{"Boolean", getBoolean, "", 0, "GroupValue: expected 1 bits, defined size is 0"},
        GetterErrorRow{"Boolean", getBoolean, "", 1, "GroupValue: expected 1 bytes, payload has 0"},
        GetterErrorRow{"Unsigned2", getUnsigned2, "01", 1, "GroupValue: expected 2 bits, defined size is 1"},
        GetterErrorRow{"Unsigned2", getUnsigned2, "", 2, "GroupValue: expected 1 bytes, payload has 0"},
        GetterErrorRow{"Unsigned4", getUnsigned4, "01", 2, "GroupValue: expected 4 bits, defined size is 2"},
        GetterErrorRow{"Unsigned4", getUnsigned4, "", 4, "GroupValue: expected 1 bytes, payload has 0"},
        GetterErrorRow{"Unsigned8", getUnsigned8, "01 02", 16, "GroupValue: expected 8 bits, defined size is 16"},
        GetterErrorRow{"Unsigned8", getUnsigned8, "", 8, "GroupValue: expected 1 bytes, payload has 0"},
        GetterErrorRow{"Signed8", getSigned8, "01", 4, "GroupValue: expected 8 bits, defined size is 4"},
        GetterErrorRow{"Signed8", getSigned8, "", 8, "GroupValue: expected 1 bytes, payload has 0"},
        GetterErrorRow{"Unsigned16", getUnsigned16, "0C", 8, "GroupValue: expected 16 bits, defined size is 8"},
        GetterErrorRow{"Unsigned16", getUnsigned16, "0C", 16, "GroupValue: expected 2 bytes, payload has 1"},
        GetterErrorRow{"Signed16", getSigned16, "0C 33 00", 24, "GroupValue: expected 16 bits, defined size is 24"},
        GetterErrorRow{"Signed16", getSigned16, "", 16, "GroupValue: expected 2 bytes, payload has 0"},
        GetterErrorRow{"Unsigned24", getUnsigned24, "01 02 03 04", 32,
                       "GroupValue: expected 24 bits, defined size is 32"},
        GetterErrorRow{"Unsigned24", getUnsigned24, "01 02", 24, "GroupValue: expected 3 bytes, payload has 2"},
        GetterErrorRow{"Unsigned32", getUnsigned32, "01 02 03", 24, "GroupValue: expected 32 bits, defined size is 24"},
        GetterErrorRow{"Unsigned32", getUnsigned32, "01 02 03", 32, "GroupValue: expected 4 bytes, payload has 3"},
        GetterErrorRow{"Signed32", getSigned32, "01 02 03 04", 31, "GroupValue: expected 32 bits, defined size is 31"},
        GetterErrorRow{"Signed32", getSigned32, "01", 32, "GroupValue: expected 4 bytes, payload has 1"},
        GetterErrorRow{"Float16", getFloat16, "0C", 8, "GroupValue: expected 16 bits, defined size is 8"},
        GetterErrorRow{"Float16", getFloat16, "0C", 16, "GroupValue: expected 2 bytes, payload has 1"},
        GetterErrorRow{"Float32", getFloat32, "41 AC", 16, "GroupValue: expected 32 bits, defined size is 16"},
        GetterErrorRow{"Float32", getFloat32, "41 AC 00", 32, "GroupValue: expected 4 bytes, payload has 3"},
        GetterErrorRow{"String14", getString14, "41 42", 16, "GroupValue: expected 112 bits, defined size is 16"},
        GetterErrorRow{"String14", getString14, "41 42 43 44 45 46 47 48 49 4A 4B 4C 4D", 112,
                       "GroupValue: expected 14 bytes, payload has 13"}));

TEST(GroupValue, RawDataOfTwoBytesIsNoByte) {
  GroupValue value;
  value.SetRawData(Hex("0C 33"));
  EXPECT_EQ(GroupValueExceptionText([&] { value.GetAsUnsigned8(); }),
            "GroupValue: expected 8 bits, defined size is 16");
}

TEST(GroupValueException, IsAStdException) {
  const GroupValueException error("GroupValue: expected 16 bits, defined size is 8");
  const std::exception& base = error;
  EXPECT_STREQ(base.what(), "GroupValue: expected 16 bits, defined size is 8");
}

}  // namespace
