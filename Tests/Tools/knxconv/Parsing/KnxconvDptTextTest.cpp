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
    {"9.001", 9, 1},       {"9.1", 9, 1},         {"9", 9, 0}, {"9.x", 9, 0},      {"9.X", 9, 0},
    {"13.100", 13, 100},   {"250.600", 250, 600}, {"0", 0, 0}, {" 5.010 ", 5, 10}, {"65535.65535", 65535, 65535},
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

const char* const NotDpts[] = {"",     "x",     ".1",      "9.",   "9.x.1", "-9.1", "9.-1",
                               "9.1a", "65536", "9.65536", "9 .1", "+9.1",  "9,1",  "0x9.1"};

class DptTextRefuse : public ::testing::TestWithParam<const char*> {};

TEST_P(DptTextRefuse, ThrowsWithTheText) {
  try {
    ParseDpt(GetParam());
    FAIL() << "accepted " << GetParam();
  } catch (const InputError& error) {
    EXPECT_EQ(std::string(error.what()),
              "not a DPT: '" + std::string(GetParam()) + "' (write it as 9.001, 9.1, 9 or 9.x; 0 for none)");
  }
}

INSTANTIATE_TEST_SUITE_P(Malformed, DptTextRefuse, ::testing::ValuesIn(NotDpts));

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
