#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "DptText.h"
#include "InputError.h"

namespace {

using namespace Knxconv;

struct DptCase {
  const char* text;
  std::uint16_t mainNumber;
  std::uint16_t subNumber;
};

const DptCase DptCases[] = {
    {"9.001", 9, 1},
    {"9.1", 9, 1},
    {"9", 9, 0},
    {"9.x", 9, 0},
    {"9.X", 9, 0},
    {"9.*", 9, 0},
    {"DPT9.001", 9, 1},
    {"dpt9.001", 9, 1},
    {"DPT 9.001", 9, 1},
    {"DPT-9", 9, 0},
    {"DPT-9-1", 9, 1},
    {"DPST-9-1", 9, 1},
    {"dpst-9-1", 9, 1},
    {"DPT_Value_Temp", 9, 1},
    {"dpt_value_temp", 9, 1},
    {"DPT_UpDown", 1, 8},
    {"13.100", 13, 100},
    {"250.600", 250, 600},
    {"0", 0, 0},
    {" 0 ", 0, 0},
    {"0.000", 0, 0},
    {" 5.010 ", 5, 10},
    {"65535.65535", 65535, 65535},
    {"12.1200", 12, 1200},
};

class DptTextParse : public ::testing::TestWithParam<DptCase> {};

TEST_P(DptTextParse, ReadsMainAndSubNumber) {
  const KNXDPT dpt = ParseDpt(GetParam().text);
  EXPECT_EQ(dpt.mainNumber, GetParam().mainNumber);
  EXPECT_EQ(dpt.subNumber, GetParam().subNumber);
  EXPECT_EQ(dpt.bitSize, 0);
}

INSTANTIATE_TEST_SUITE_P(Forms, DptTextParse, ::testing::ValuesIn(DptCases));

const char* const NotDpts[] = {"", "x", ".1", "-9.1", "65536", "9 .1", "+9.1", "0x9.1", "DPT_"};

class DptTextRefuse : public ::testing::TestWithParam<const char*> {};

TEST_P(DptTextRefuse, ThrowsWithTheText) {
  try {
    ParseDpt(GetParam());
    FAIL() << "accepted " << GetParam();
  } catch (const InputError& error) {
    EXPECT_EQ(std::string(error.what()),
              "unknown DPT '" + std::string(GetParam()) +
                  "' (write it as 9.001, 9.1, 9, 9.x, DPST-9-1 or a name such as DPT_Value_Temp; 0 for none)");
  }
}

INSTANTIATE_TEST_SUITE_P(Malformed, DptTextRefuse, ::testing::ValuesIn(NotDpts));

struct SuggestionCase {
  const char* text;
  const char* message;
};

const SuggestionCase SuggestionCases[] = {
    {"DPT_Value_Tmp", "unknown DPT 'DPT_Value_Tmp'; did you mean DPT_Value_Temp (9.001)?"},
    {"dpt_updwn", "unknown DPT 'dpt_updwn'; did you mean DPT_UpDown (1.008)?"},
    {"9.0001", "unknown DPT '9.0001'; did you mean DPT_Value_Temp (9.001)?"},
};

class DptTextSuggest : public ::testing::TestWithParam<SuggestionCase> {};

TEST_P(DptTextSuggest, NamesTheNearestSubtype) {
  try {
    ParseDpt(GetParam().text);
    FAIL() << "accepted " << GetParam().text;
  } catch (const InputError& error) {
    EXPECT_EQ(std::string(error.what()), GetParam().message);
  }
}

INSTANTIATE_TEST_SUITE_P(Typos, DptTextSuggest, ::testing::ValuesIn(SuggestionCases));

struct FormatCase {
  std::uint16_t mainNumber;
  std::uint16_t subNumber;
  const char* formatted;
  const char* label;
};

const FormatCase FormatCases[] = {
    {9, 1, "9.001", "9.001"},     {9, 0, "9.000", "9.x"},        {10, 1, "10.001", "10.1"},
    {10, 0, "10.000", "10.x"},    {13, 100, "13.100", "13.100"}, {12, 1200, "12.1200", "12.1200"},
    {250, 0, "250.000", "250.x"}, {4, 2, "4.002", "4.002"},      {0, 0, "0.000", "0.x"},
};

class DptTextFormat : public ::testing::TestWithParam<FormatCase> {};

TEST_P(DptTextFormat, WritesThreeDigitSubNumbersAndTheTableLabel) {
  KNXDPT dpt;
  dpt.mainNumber = GetParam().mainNumber;
  dpt.subNumber = GetParam().subNumber;
  EXPECT_EQ(FormatDpt(dpt), GetParam().formatted);
  EXPECT_EQ(DptLabel(dpt), GetParam().label);
}

INSTANTIATE_TEST_SUITE_P(Forms, DptTextFormat, ::testing::ValuesIn(FormatCases));

}  // namespace
