#include <gtest/gtest.h>

#include <string>

#include "HexText.h"
#include "InputError.h"

namespace {

using namespace Knxconv;

struct HexCase {
  const char* text;
  const char* bytes;
};

const HexCase HexCases[] = {
    {"0C 33", "0C 33"},
    {"0c33", "0C 33"},
    {"  0C  33  ", "0C 33"},
    {"0C33 FF\t01", "0C 33 FF 01"},
    {"00", "00"},
    {"47 72 FC DF 65 20 61 75 73 20 4B F6 6C 6E 21 21", "47 72 FC DF 65 20 61 75 73 20 4B F6 6C 6E 21 21"},
};

class HexTextParse : public ::testing::TestWithParam<HexCase> {};

TEST_P(HexTextParse, ReadsPairsWithOrWithoutBlanks) {
  EXPECT_EQ(ParseHex(GetParam().text).ToString(), GetParam().bytes);
}

INSTANTIATE_TEST_SUITE_P(Payloads, HexTextParse, ::testing::ValuesIn(HexCases));

struct BadHexCase {
  const char* text;
  const char* message;
};

const BadHexCase BadHexCases[] = {
    {"", "malformed hex payload '': no bytes"},
    {"   ", "malformed hex payload '   ': no bytes"},
    {"0G", "malformed hex payload '0G': 'G' is not a hex digit"},
    {"0C3", "malformed hex payload '0C3': '0C3' is not made of whole bytes"},
    {"0C3 3", "malformed hex payload '0C3 3': '0C3' is not made of whole bytes"},
    {"0x0C", "malformed hex payload '0x0C': 'x' is not a hex digit"},
    {"0C,33", "malformed hex payload '0C,33': ',' is not a hex digit"},
};

class HexTextRefuse : public ::testing::TestWithParam<BadHexCase> {};

TEST_P(HexTextRefuse, ThrowsWithAClearMessage) {
  try {
    ParseHex(GetParam().text);
    FAIL() << "accepted " << GetParam().text;
  } catch (const InputError& error) {
    EXPECT_EQ(std::string(error.what()), GetParam().message);
  }
}

INSTANTIATE_TEST_SUITE_P(Payloads, HexTextRefuse, ::testing::ValuesIn(BadHexCases));

}  // namespace
