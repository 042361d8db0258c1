#include <gtest/gtest.h>

#include <string>

#include "UloValueType.h"

namespace {

struct TypeNameRow {
  std::int32_t number;
  const char* name;
};

const TypeNameRow typeNames[] = {
    {0, "IVT_NONE"},           {1, "IVT_ANY"},          {2, "IVT_BOOL"},       {3, "IVT_DOUBLE"},
    {4, "IVT_INT32"},          {5, "IVT_TYPE_5"},       {6, "IVT_BYTE"},       {7, "IVT_UINT16"},
    {8, "IVT_UINT32"},         {9, "IVT_UINT64"},       {10, "IVT_STRING"},    {11, "IVT_DATE"},
    {12, "IVT_TIME"},          {13, "IVT_DATETIME"},    {14, "IVT_TIMESPAN"},  {20, "IVT_UNSIGNED_20"},
    {102, "IVT_DATETIME_102"}, {104, "IVT_TIME_104"},   {105, "IVT_DATE_105"}, {201, "IVT_DATETIME_201"},
    {1005, "IVT_DOUBLE_1005"}, {1021, "IVT_BYTE_1021"}, {1036, "IVT_PERCENT"}, {1037, "IVT_DIMMING"},
    {1039, "IVT_DOUBLE_1039"},
};

TEST(UloValueTypeName, NamesEveryKnownNumber) {
  for (const TypeNameRow& row : typeNames) {
    const char* name = UloValueTypeName(static_cast<UloValueType>(row.number));
    ASSERT_NE(name, nullptr) << row.number;
    EXPECT_EQ(std::string(name), row.name) << row.number;
  }
}

TEST(UloValueTypeName, UnknownNumbersHaveNoName) {
  for (const std::int32_t number : {-1, 15, 19, 21, 100, 1000, 1040, 0x7FFFFFFF}) {
    EXPECT_EQ(UloValueTypeName(static_cast<UloValueType>(number)), nullptr) << number;
  }
}

const TypeNameRow subTypeNames[] = {
    {0, "IVST_NONE"},           {15, "IVST_WIND_SPEED"},  {3001, "IVST_PERCENT"},     {3002, "IVST_RELATIVE_PERCENT"},
    {3003, "IVST_TEMPERATURE"}, {3004, "IVST_ANGLE"},     {3005, "IVST_ILLUMINANCE"}, {4001, "IVST_SCENE"},
    {8001, "IVST_ASCII"},       {8002, "IVST_ISO8859_1"},
};

TEST(UloValueSubTypeName, NamesEveryKnownNumber) {
  for (const TypeNameRow& row : subTypeNames) {
    const char* name = UloValueSubTypeName(static_cast<UloDP::UloValueSubType>(row.number));
    ASSERT_NE(name, nullptr) << row.number;
    EXPECT_EQ(std::string(name), row.name) << row.number;
  }
}

TEST(UloValueSubTypeName, UnknownNumbersHaveNoName) {
  for (const std::int32_t number : {-1, 1, 14, 3000, 3006, 4002, 8003}) {
    EXPECT_EQ(UloValueSubTypeName(static_cast<UloDP::UloValueSubType>(number)), nullptr) << number;
  }
}

TEST(UloValueType, EnumerationsAre32Bits) {
  static_assert(sizeof(UloValueType) == 4, "32-bit type tag");
  static_assert(sizeof(UloDP::UloValueSubType) == 4, "32-bit subtype");
  EXPECT_EQ(static_cast<std::int32_t>(IVT_DOUBLE_1039), 1039);
  EXPECT_EQ(static_cast<std::int32_t>(UloDP::IVST_ISO8859_1), 8002);
}

}  // namespace
