// Counts heap allocations through the global operator new, which the test
// programs replace, to show that fixed-size group values never touch the heap.
#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <functional>
#include <new>
#include <string>
#include <utility>

#include "CountedAllocations.h"
#include "KnxStack.h"
#include "KnxTestBytes.h"

namespace {

using KnxStack::BinaryData;
using KnxStack::GroupValue;
using KnxTest::Hex;

const char* const fourteenBytes = "01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E";
const char* const fifteenBytes = "01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F";

const BinaryData twoByteData = Hex("0C 33");
const BinaryData fourteenByteData = Hex(fourteenBytes);
const BinaryData fifteenByteData = Hex(fifteenBytes);
const GroupValue float16Value(twoByteData, 16);
const GroupValue string14Value(fourteenByteData, 112);
const GroupValue dateValue(Hex("0F 06 15"), 24);
const GroupValue dateTimeValue(Hex("7C 03 0F AA 14 1E 00 80"), 64);
const std::string text14 = "ABCDEFGHIJKLMN";

struct AllocationRow {
  const char* name;
  std::function<void()> action;
  int allocations;
};

class Allocations : public testing::TestWithParam<AllocationRow> {};

TEST_P(Allocations, AsCounted) {
  const std::uint64_t before = CountedAllocations::Total();
  GetParam().action();
  EXPECT_EQ(static_cast<int>(CountedAllocations::Total() - before), GetParam().allocations) << GetParam().name;
}

INSTANTIATE_TEST_SUITE_P(
    BinaryDataInlineAndHeap, Allocations,
    testing::Values(AllocationRow{"construct 14 bytes", [] { BinaryData data(fourteenByteData.GetData(), 14); }, 0},
                    AllocationRow{"copy 14 bytes", [] { BinaryData copy(fourteenByteData); }, 0},
                    AllocationRow{"assign 14 bytes",
                                  [] {
                                    BinaryData copy;
                                    copy = fourteenByteData;
                                  },
                                  0},
                    AllocationRow{"construct 15 bytes", [] { BinaryData data(fifteenByteData.GetData(), 15); }, 1},
                    AllocationRow{"copy 15 bytes", [] { BinaryData copy(fifteenByteData); }, 1},
                    AllocationRow{"move 15 bytes",
                                  [] {
                                    BinaryData source(fifteenByteData.GetData(), 15);
                                    BinaryData moved(std::move(source));
                                  },
                                  1}));

INSTANTIATE_TEST_SUITE_P(GroupValueCopies, Allocations,
                         testing::Values(AllocationRow{"copy 2 bytes", [] { GroupValue copy(float16Value); }, 0},
                                         AllocationRow{"copy 14 bytes", [] { GroupValue copy(string14Value); }, 0},
                                         AllocationRow{"assign 14 bytes",
                                                       [] {
                                                         GroupValue copy;
                                                         copy = string14Value;
                                                       },
                                                       0},
                                         AllocationRow{"move 14 bytes",
                                                       [] {
                                                         GroupValue copy(string14Value);
                                                         GroupValue moved(std::move(copy));
                                                       },
                                                       0},
                                         AllocationRow{"construct from 14 bytes",
                                                       [] { GroupValue value(fourteenByteData, 112); }, 0},
                                         AllocationRow{"raw data of 14 bytes",
                                                       [] {
                                                         GroupValue value;
                                                         value.SetRawData(fourteenByteData);
                                                       },
                                                       0}));

INSTANTIATE_TEST_SUITE_P(NumbersBooleansAndDates, Allocations,
                         testing::Values(AllocationRow{"boolean",
                                                       [] {
                                                         GroupValue value;
                                                         value.SetAsBoolean(true);
                                                         EXPECT_TRUE(value.GetAsBoolean());
                                                       },
                                                       0},
                                         AllocationRow{"unsigned 32",
                                                       [] {
                                                         GroupValue value;
                                                         value.SetAsUnsigned32(0x12345678);
                                                         EXPECT_EQ(value.GetAsUnsigned32(), 0x12345678u);
                                                       },
                                                       0},
                                         AllocationRow{"float 16",
                                                       [] {
                                                         GroupValue value;
                                                         value.SetAsFloat16(21.5);
                                                         EXPECT_EQ(float16Value.GetAsFloat16(), 21.5);
                                                       },
                                                       0},
                                         AllocationRow{"float 32",
                                                       [] {
                                                         GroupValue value;
                                                         value.SetAsFloat32(21.5f);
                                                         EXPECT_EQ(value.GetAsFloat32(), 21.5f);
                                                       },
                                                       0},
                                         AllocationRow{"date",
                                                       [] {
                                                         GroupValue value;
                                                         value.SetAsDate(15, 6, 2021);
                                                         int year = 0;
                                                         dateValue.GetAsDate(nullptr, nullptr, &year);
                                                       },
                                                       0},
                                         AllocationRow{"time of day",
                                                       [] {
                                                         GroupValue value;
                                                         value.SetAsTimeOfDay(12, 30, 15, GroupValue::Monday);
                                                         int hour = 0;
                                                         value.GetAsTimeOfDay(&hour, nullptr, nullptr, nullptr);
                                                       },
                                                       0},
                                         AllocationRow{"date and time",
                                                       [] {
                                                         GroupValue value;
                                                         value.SetAsDateTime(15, 3, 2024, 10, 20, 30,
                                                                             GroupValue::Friday, false, false, false,
                                                                             false, false, false, false, false, true);
                                                         bool clockQuality = false;
                                                         dateTimeValue.GetAsDateTime(
                                                             nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                                             nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                                             nullptr, nullptr, nullptr, &clockQuality);
                                                       },
                                                       0},
                                         AllocationRow{"set 14-byte text",
                                                       [] {
                                                         GroupValue value;
                                                         value.SetAsString14(text14);
                                                       },
                                                       0}));

}  // namespace
