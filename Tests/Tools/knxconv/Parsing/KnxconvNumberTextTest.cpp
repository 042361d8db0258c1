#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <optional>

#include "NumberText.h"

namespace {

using namespace Knxconv;

constexpr std::int64_t Int64Min = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t Int64Max = std::numeric_limits<std::int64_t>::max();
constexpr std::uint64_t UInt64Max = std::numeric_limits<std::uint64_t>::max();

struct UnsignedCase {
  const char* text;
  std::uint64_t maximum;
  std::optional<std::uint64_t> value;
};

const UnsignedCase UnsignedCases[] = {
    {"0", 255, 0},
    {"255", 255, 255},
    {"256", 255, std::nullopt},
    {"18446744073709551615", UInt64Max, UInt64Max},
    {"18446744073709551616", UInt64Max, std::nullopt},
    {"007", 255, 7},
    {"", 255, std::nullopt},
    {"-1", 255, std::nullopt},
    {"+1", 255, std::nullopt},
    {" 1", 255, std::nullopt},
    {"1 ", 255, std::nullopt},
    {"1.0", 255, std::nullopt},
    {"0x10", 255, std::nullopt},
};

class NumberTextUnsigned : public ::testing::TestWithParam<UnsignedCase> {};

TEST_P(NumberTextUnsigned, ReadsWholeNumbersUpToTheMaximum) {
  EXPECT_EQ(ParseUnsigned(GetParam().text, GetParam().maximum), GetParam().value) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(Texts, NumberTextUnsigned, ::testing::ValuesIn(UnsignedCases));

struct SignedCase {
  const char* text;
  std::int64_t minimum;
  std::int64_t maximum;
  std::optional<std::int64_t> value;
};

const SignedCase SignedCases[] = {
    {"-2147483648", -2147483648LL, 2147483647, -2147483648LL},
    {"-2147483649", -2147483648LL, 2147483647, std::nullopt},
    {"2147483647", -2147483648LL, 2147483647, 2147483647},
    {"2147483648", -2147483648LL, 2147483647, std::nullopt},
    {"-9223372036854775808", Int64Min, Int64Max, Int64Min},
    {"9223372036854775807", Int64Min, Int64Max, Int64Max},
    {"-0", -5, 5, 0},
    {"-1", 0, 5, std::nullopt},
    {"3", 5, 10, std::nullopt},
    {"-3", -10, -5, std::nullopt},
    {"-7", -10, -5, -7},
    {"-", -10, 10, std::nullopt},
    {"--1", -10, 10, std::nullopt},
};

class NumberTextSigned : public ::testing::TestWithParam<SignedCase> {};

TEST_P(NumberTextSigned, ReadsWholeNumbersWithinTheBounds) {
  EXPECT_EQ(ParseSigned(GetParam().text, GetParam().minimum, GetParam().maximum), GetParam().value) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(Texts, NumberTextSigned, ::testing::ValuesIn(SignedCases));

struct DecimalCase {
  const char* text;
  std::optional<double> value;
};

const DecimalCase DecimalCases[] = {
    {"21.5", 21.5},
    {"-30", -30.0},
    {"+7", 7.0},
    {"1e3", 1000.0},
    {".5", 0.5},
    {"-.5", -0.5},
    {"1e39", 1e39},
    {"0", 0.0},
    {"", std::nullopt},
    {"abc", std::nullopt},
    {"nan", std::nullopt},
    {"inf", std::nullopt},
    {"-inf", std::nullopt},
    {"1e400", std::nullopt},
    {"0x1p3", std::nullopt},
    {"21,5", std::nullopt},
    {"21.5 ", std::nullopt},
    {"+-1", std::nullopt},
};

class NumberTextDecimal : public ::testing::TestWithParam<DecimalCase> {};

TEST_P(NumberTextDecimal, ReadsFiniteDecimalNumbersOnly) {
  EXPECT_EQ(ParseDecimal(GetParam().text), GetParam().value) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(Texts, NumberTextDecimal, ::testing::ValuesIn(DecimalCases));

TEST(NumberText, TrimCutsBlanksAtBothEnds) {
  EXPECT_EQ(Trim("  a b \t\r\n"), "a b");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(Trim(""), "");
}

TEST(NumberText, ComparesIgnoringCase) {
  EXPECT_TRUE(EqualsIgnoringCase("Double", "dOUBLE"));
  EXPECT_FALSE(EqualsIgnoringCase("Double", "Doubles"));
  EXPECT_FALSE(EqualsIgnoringCase("Mon", "Tue"));
}

}  // namespace
