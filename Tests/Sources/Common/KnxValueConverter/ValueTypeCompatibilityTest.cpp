#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "KnxValueConverter.h"

namespace {

using Types = std::vector<UloValueType>;

UloValueType Type(int number) {
  return static_cast<UloValueType>(number);
}

struct Compatibility {
  UloValueType first;
  Types seconds;
};

const Types Numbers = {IVT_DOUBLE, IVT_DOUBLE_1005, IVT_PERCENT, IVT_DIMMING, IVT_DOUBLE_1039};
const Types Signed = {IVT_INT32, IVT_TIMESPAN};
const Types Bytes = {IVT_BYTE, IVT_BYTE_1021};
const Types Unsigned = {IVT_UINT16, IVT_UINT32, IVT_UNSIGNED_20};
const Types Dates = {IVT_DATE, IVT_DATE_105};
const Types Times = {IVT_TIME, IVT_TIME_104};
const Types DateTimes = {IVT_DATE,     IVT_TIME,     IVT_DATETIME,    IVT_DATETIME_102,
                         IVT_TIME_104, IVT_DATE_105, IVT_DATETIME_201};

// For each known type as the value's type: every row type that takes it
// unconverted.
const Compatibility Relation[] = {
    {IVT_NONE, {IVT_NONE}},      {IVT_ANY, {IVT_ANY}},          {IVT_BOOL, {IVT_BOOL}},
    {IVT_DOUBLE, Numbers},       {IVT_INT32, Signed},           {IVT_TYPE_5, {IVT_TYPE_5}},
    {IVT_BYTE, Bytes},           {IVT_UINT16, Unsigned},        {IVT_UINT32, Unsigned},
    {IVT_UINT64, {IVT_UINT64}},  {IVT_STRING, {IVT_STRING}},    {IVT_DATE, Dates},
    {IVT_TIME, Times},           {IVT_DATETIME, DateTimes},     {IVT_TIMESPAN, Signed},
    {IVT_UNSIGNED_20, Unsigned}, {IVT_DATETIME_102, DateTimes}, {IVT_TIME_104, Times},
    {IVT_DATE_105, Dates},       {IVT_DATETIME_201, DateTimes}, {IVT_DOUBLE_1005, Numbers},
    {IVT_BYTE_1021, Bytes},      {IVT_PERCENT, Numbers},        {IVT_DIMMING, Numbers},
    {IVT_DOUBLE_1039, Numbers},
};

// Numbers the platform does not know: each compatible with itself only.
const Types Unknown = {Type(-1), Type(15), Type(19), Type(77), Type(101), Type(103), Type(1000), Type(1038)};

Types AllTypes() {
  Types all;
  for (const Compatibility& row : Relation) {
    all.push_back(row.first);
  }
  all.insert(all.end(), Unknown.begin(), Unknown.end());
  return all;
}

bool Contains(const Types& types, UloValueType type) {
  return std::find(types.begin(), types.end(), type) != types.end();
}

TEST(ValueTypeCompatibility, TheRelationCoversTheTwentyFiveKnownTypes) {
  EXPECT_EQ(std::size(Relation), 25u);
}

TEST(ValueTypeCompatibility, EveryOrderedPairOfKnownTypesAndUnknownSeconds) {
  const Nelmo::KnxValueConverter facade;
  for (const Compatibility& row : Relation) {
    for (UloValueType second : AllTypes()) {
      EXPECT_EQ(facade.AreValueTypesCompatible(row.first, second), Contains(row.seconds, second))
          << "(" << row.first << ", " << second << ")";
    }
  }
}

TEST(ValueTypeCompatibility, UnknownFirstTypesAcceptOnlyThemselves) {
  const Nelmo::KnxValueConverter facade;
  for (UloValueType first : Unknown) {
    for (UloValueType second : AllTypes()) {
      EXPECT_EQ(facade.AreValueTypesCompatible(first, second), first == second)
          << "(" << first << ", " << second << ")";
    }
  }
}

struct Pair {
  int first;
  int second;
  bool compatible;
};

const Pair NamedPairs[] = {
    {1036, 3, true},   {3, 1039, true}, {1037, 1005, true}, {3, 4, false},   {4, 14, true},    {14, 4, true},
    {20, 7, true},     {9, 8, false},   {10, 10, true},     {13, 105, true}, {201, 104, true}, {105, 13, false},
    {104, 201, false}, {11, 12, false}, {13, 11, true},     {11, 13, false}, {102, 12, true},  {12, 102, false},
    {77, 77, true},    {77, 3, false},  {3, 77, false},     {0, 3, false},   {1, 3, false},    {5, 4, false},
    {2, 6, false},     {6, 1021, true}, {1021, 6, true},    {6, 7, false},   {8, 9, false},    {10, 11, false},
    {12, 104, true},   {104, 12, true}, {11, 105, true},    {105, 11, true}, {13, 14, false},
};

TEST(ValueTypeCompatibility, NamedPairs) {
  const Nelmo::KnxValueConverter facade;
  for (const Pair& pair : NamedPairs) {
    EXPECT_EQ(facade.AreValueTypesCompatible(Type(pair.first), Type(pair.second)), pair.compatible)
        << "(" << pair.first << ", " << pair.second << ")";
  }
}

}  // namespace
