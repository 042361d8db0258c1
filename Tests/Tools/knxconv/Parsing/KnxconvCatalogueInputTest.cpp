#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "CatalogueInput.h"
#include "InputError.h"
#include "MakeDpt.h"

namespace {

using namespace Knxconv;

using TestSupport::MakeDpt;

struct HexCase {
  const char* text;
  const char* normalised;
};

const HexCase HexCases[] = {
    {"0C 33", "0C 33"}, {"0c33", "0c33"},   {"0x0C33", "0C33"},       {"0X0c33", "0c33"},
    {"0C:33", "0C 33"}, {"0C-33", "0C 33"}, {"0x0C 0x33", "0C 33"},   {"0C\t33", "0C 33"},
    {"00", "00"},       {"0G33", "0G33"},   {"7C:03:04", "7C 03 04"},
};

class CatalogueInputHex : public ::testing::TestWithParam<HexCase> {};

TEST_P(CatalogueInputHex, MakesPairsWithBlanks) {
  EXPECT_EQ(NormaliseHex(GetParam().text), GetParam().normalised);
}

INSTANTIATE_TEST_SUITE_P(Forms, CatalogueInputHex, ::testing::ValuesIn(HexCases));

struct ValueCase {
  std::uint16_t mainNumber;
  std::uint16_t subNumber;
  UloValueType type;
  const char* text;
  const char* normalised;
};

const ValueCase ValueCases[] = {
    {1, 1, IVT_BOOL, "on", "true"},
    {1, 1, IVT_BOOL, "OFF", "false"},
    {1, 1, IVT_BOOL, "yes", "true"},
    {1, 1, IVT_BOOL, "no", "false"},
    {1, 1, IVT_BOOL, "true", "true"},
    {1, 1, IVT_BOOL, "False", "false"},
    {1, 1, IVT_BOOL, "1", "true"},
    {1, 1, IVT_BOOL, "0", "false"},
    {1, 8, IVT_BOOL, "down", "true"},
    {1, 8, IVT_BOOL, "Up", "false"},
    {1, 9, IVT_BOOL, "open", "false"},
    {1, 9, IVT_BOOL, "close", "true"},
    {1, 0, IVT_BOOL, "down", "down"},
    {1, 1, IVT_BOOL, "maybe", "maybe"},
    {20, 102, IVT_BYTE, "comfort", "1"},
    {20, 102, IVT_BYTE, "Building Protection", "4"},
    {20, 102, IVT_BYTE, "3", "3"},
    {19, 1, IVT_DATETIME, "2024-03-04T07:30:15", "2024-03-04 07:30:15"},
    {19, 1, IVT_DATETIME, "Mon 2024-03-04t07:30:15", "Mon 2024-03-04 07:30:15"},
    {19, 1, IVT_DATETIME, "2024-03-04 07:30:15", "2024-03-04 07:30:15"},
    {9, 1, IVT_DOUBLE, "21.5°C", "21.5"},
    {9, 1, IVT_DOUBLE, "21.5 °C", "21.5"},
    {9, 1, IVT_DOUBLE, " -3 °C ", "-3"},
    {9, 1, IVT_DOUBLE, "1e1°C", "1e1"},
    {9, 1, IVT_DOUBLE, "21.5", "21.5"},
    {5, 1, IVT_DOUBLE, "100%", "100"},
    {5, 1, IVT_DOUBLE, "100 %", "100"},
    {7, 1, IVT_UINT16, "1000 pulses", "1000"},
    {9, 0, IVT_DOUBLE, "21.5 °C", "21.5 °C"},
    {9, 1, IVT_DOUBLE, "abc", "abc"},
    {16, 0, IVT_STRING, " on ", " on "},
};

class CatalogueInputValue : public ::testing::TestWithParam<ValueCase> {};

TEST_P(CatalogueInputValue, MakesTheParsersForm) {
  const ValueCase& row = GetParam();
  EXPECT_EQ(NormaliseValue(MakeDpt(row.mainNumber, row.subNumber), row.type, row.text), row.normalised);
}

INSTANTIATE_TEST_SUITE_P(Forms, CatalogueInputValue, ::testing::ValuesIn(ValueCases));

struct WrongUnitCase {
  std::uint16_t mainNumber;
  std::uint16_t subNumber;
  const char* text;
  const char* message;
};

const WrongUnitCase WrongUnitCases[] = {
    {9, 1, "21.5K", "'21.5K' has the wrong unit for 9.001 (expected °C)"},
    {9, 1, "21.5 °F", "'21.5 °F' has the wrong unit for 9.001 (expected °C)"},
    {5, 1, "50 °C", "'50 °C' has the wrong unit for 5.001 (expected %)"},
};

class CatalogueInputWrongUnit : public ::testing::TestWithParam<WrongUnitCase> {};

TEST_P(CatalogueInputWrongUnit, NamesTheExpectedUnit) {
  const WrongUnitCase& row = GetParam();
  try {
    NormaliseValue(MakeDpt(row.mainNumber, row.subNumber), IVT_DOUBLE, row.text);
    FAIL() << "accepted " << row.text;
  } catch (const InputError& error) {
    EXPECT_EQ(std::string(error.what()), row.message);
  }
}

INSTANTIATE_TEST_SUITE_P(Units, CatalogueInputWrongUnit, ::testing::ValuesIn(WrongUnitCases));

}  // namespace
