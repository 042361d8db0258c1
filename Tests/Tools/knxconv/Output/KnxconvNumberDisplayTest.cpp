#include <gtest/gtest.h>

#include <string>

#include "DptText.h"
#include "HexText.h"
#include "NumberDisplay.h"

namespace {

using namespace Knxconv;

struct DisplayCase {
  const char* dpt;
  const char* payload;
  const char* text;
};

const DisplayCase DisplayCases[] = {
    // 2-octet floats: the round-off of the scaling is not shown.
    {"9.001", "0C 33", "21.5"},
    {"9.001", "0C 34", "21.52"},
    {"9.001", "86 C0", "-3.2"},
    {"9.001", "00 00", "0"},
    {"9.001", "80 01", "-20.47"},
    {"9.007", "14 72", "45.5"},
    {"9.006", "6C D5", "101300"},
    {"9.004", "4E 1B", "8000"},
    // Outside the row's range: no shorter text gives the bytes back unclamped.
    {"9.001", "F8 00", "-671088.64"},
    {"9.001", "7F FE", "670400"},
    // 4-octet floats: the single-precision value, not its widened double.
    {"14.000", "3D CC CC CD", "0.1"},
    {"14.000", "C2 F6 E6 66", "-123.45"},
    {"14.000", "7F 7F FF FF", "3.402823466e+38"},
    {"14.000", "00 00 00 01", "1e-45"},
    {"14.000", "7F 80 00 00", "inf"},
    // Scaled 8-bit and 16-bit values.
    {"5.001", "80", "50.2"},
    {"5.001", "7F", "50"},
    {"5.001", "FF", "100"},
    {"5.003", "80", "180"},
    {"5.004", "80", "128"},
    {"6.001", "80", "-128"},
    {"8.010", "FF FF", "-0.01"},
    // No scale: step codes and integers as the library writes them.
    {"3.007", "0F", "1.5625"},
    {"7.001", "12 34", "4660"},
    {"13.001", "FF FF FF FF", "-1"},
    {"1.001", "01", "true"},
    {"16.000", "4B 4E 58 00 00 00 00 00 00 00 00 00 00 00", "KNX"},
};

class NumberDisplay : public ::testing::TestWithParam<DisplayCase> {};

TEST_P(NumberDisplay, ShowsTheFewestDigitsThatGiveTheBytesBack) {
  const DisplayCase& row = GetParam();
  const KNXDPT dpt = ParseDpt(row.dpt);
  const KnxStack::BinaryData data = ParseHex(row.payload);
  const std::int32_t formatBits = Nelmo::KnxDptFormat::GetBitSize(dpt);
  const KnxStack::GroupValue received(data,
                                      formatBits <= 6 ? static_cast<unsigned int>(formatBits) : 8U * data.GetLength());
  const Nelmo::KnxValueConverter converter;
  ULOVALUE value;
  ASSERT_TRUE(converter.FromKnxValue(dpt, received, value));
  Nelmo::KnxConverter* rowConverter = converter.GetEntry(dpt).GetConverter();
  EXPECT_EQ(DisplayText(rowConverter, dpt, value, received), row.text) << row.dpt << " " << row.payload;
}

INSTANTIATE_TEST_SUITE_P(Payloads, NumberDisplay, ::testing::ValuesIn(DisplayCases));

struct PlainCase {
  const char* scientific;
  const char* plain;
};

const PlainCase PlainCases[] = {
    {"2.152e+01", "21.52"}, {"-3.2e+00", "-3.2"},
    {"5e+00", "5"},         {"1.2e+03", "1200"},
    {"1e-03", "0.001"},     {"-1.5e-07", "-0.00000015"},
    {"1e-08", "1e-08"},     {"1e+20", "100000000000000000000"},
    {"1e+21", "1e+21"},     {"0e+00", "0"},
    {"inf", "inf"},
};

class PlainDecimalText : public ::testing::TestWithParam<PlainCase> {};

TEST_P(PlainDecimalText, WritesScientificNotationPlainWhereItIsShort) {
  EXPECT_EQ(PlainDecimal(GetParam().scientific), GetParam().plain);
}

INSTANTIATE_TEST_SUITE_P(Texts, PlainDecimalText, ::testing::ValuesIn(PlainCases));

}  // namespace
