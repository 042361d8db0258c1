#include <gtest/gtest.h>

#include <memory>
#include <utility>
#include <vector>

#include "KnxStack.h"
#include "KnxTestBytes.h"

namespace {

using KnxStack::BinaryData;
using KnxTest::Hex;
using KnxTest::HexBytes;

const char* const fourteenBytes = "01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E";
const char* const fifteenBytes = "01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F";
const char* const fortyBytes =
    "00 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F 10 11 12 13 14 15 16 17 18 19 1A 1B 1C 1D 1E 1F 20 21 22 23 24 25 "
    "26 27";

TEST(BinaryData, DefaultIsEmpty) {
  const BinaryData data;
  EXPECT_EQ(data.GetLength(), 0u);
  EXPECT_TRUE(data.IsEmpty());
  EXPECT_NE(data.GetData(), nullptr);
  EXPECT_EQ(data.ToString(), "");
}

struct ContentRow {
  std::vector<unsigned char> bytes;
  const char* text;
};

class BinaryDataContent : public testing::TestWithParam<ContentRow> {};

TEST_P(BinaryDataContent, KeepsBytesAndWritesThemAsHex) {
  const ContentRow& row = GetParam();
  const BinaryData data(row.bytes.data(), static_cast<unsigned int>(row.bytes.size()));
  ASSERT_EQ(data.GetLength(), row.bytes.size());
  EXPECT_EQ(data.IsEmpty(), row.bytes.empty());
  EXPECT_EQ(std::vector<unsigned char>(data.GetData(), data.GetData() + data.GetLength()), row.bytes);
  for (unsigned int i = 0; i < data.GetLength(); ++i) {
    EXPECT_EQ(data[i], row.bytes[i]) << "index " << i;
  }
  EXPECT_EQ(data.ToString(), row.text);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, BinaryDataContent,
    testing::Values(ContentRow{{}, ""}, ContentRow{{0x0C}, "0C"}, ContentRow{{0x0C, 0x33}, "0C 33"},
                    ContentRow{{0x00, 0xFF, 0xA5, 0x5A, 0x10, 0x9B}, "00 FF A5 5A 10 9B"},
                    ContentRow{{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14}, fourteenBytes},
                    ContentRow{{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15}, fifteenBytes},
                    ContentRow{{0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 13, 14, 15, 16, 17, 18, 19,
                                20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30, 31, 32, 33, 34, 35, 36, 37, 38, 39},
                               fortyBytes}));

TEST(BinaryData, NullPointerGivesEmptyData) {
  const BinaryData data(nullptr, 5);
  EXPECT_TRUE(data.IsEmpty());
  EXPECT_EQ(data.GetLength(), 0u);
  EXPECT_EQ(data.ToString(), "");
}

TEST(BinaryData, ZeroLengthGivesEmptyData) {
  const unsigned char byte = 0x42;
  EXPECT_TRUE(BinaryData(&byte, 0).IsEmpty());
}

TEST(BinaryData, IndexPastTheEndReadsZero) {
  const BinaryData inlineData = Hex("AA BB");
  EXPECT_EQ(inlineData[1], 0xBB);
  EXPECT_EQ(inlineData[2], 0);
  EXPECT_EQ(inlineData[1000], 0);
  const BinaryData heapData = Hex(fifteenBytes);
  EXPECT_EQ(heapData[14], 0x0F);
  EXPECT_EQ(heapData[15], 0);
  EXPECT_EQ(BinaryData()[0], 0);
}

struct EqualityRow {
  const char* left;
  const char* right;
  bool equal;
};

class BinaryDataEquality : public testing::TestWithParam<EqualityRow> {};

TEST_P(BinaryDataEquality, ComparesLengthAndBytes) {
  const EqualityRow& row = GetParam();
  EXPECT_EQ(Hex(row.left) == Hex(row.right), row.equal);
  EXPECT_EQ(Hex(row.left) != Hex(row.right), !row.equal);
}

INSTANTIATE_TEST_SUITE_P(Rows, BinaryDataEquality,
                         testing::Values(EqualityRow{"", "", true}, EqualityRow{"0C 33", "0C 33", true},
                                         EqualityRow{"0C 33", "0C 34", false}, EqualityRow{"0C", "0C 00", false},
                                         EqualityRow{"", "00", false}, EqualityRow{fifteenBytes, fifteenBytes, true},
                                         EqualityRow{fourteenBytes, fifteenBytes, false},
                                         EqualityRow{fortyBytes, fifteenBytes, false}));

class BinaryDataCopy : public testing::TestWithParam<const char*> {};

TEST_P(BinaryDataCopy, CopyIsEqualAndIndependent) {
  const std::vector<unsigned char> bytes = HexBytes(GetParam());
  auto original = std::make_unique<BinaryData>(bytes.data(), static_cast<unsigned int>(bytes.size()));
  const BinaryData copy(*original);
  BinaryData assigned = Hex("99");
  assigned = *original;
  const unsigned char* originalData = original->GetData();
  EXPECT_EQ(copy, *original);
  EXPECT_EQ(assigned, *original);
  if (!bytes.empty()) {
    EXPECT_NE(copy.GetData(), originalData);
    EXPECT_NE(assigned.GetData(), originalData);
  }
  // The copies outlive the original.
  original.reset();
  EXPECT_EQ(copy.ToString(), GetParam());
  EXPECT_EQ(assigned.ToString(), GetParam());
}

TEST_P(BinaryDataCopy, MoveTakesTheBytesAndEmptiesTheSource) {
  BinaryData source = Hex(GetParam());
  const BinaryData moved(std::move(source));
  EXPECT_EQ(moved.ToString(), GetParam());
  EXPECT_TRUE(source.IsEmpty());  // NOLINT(bugprone-use-after-move): the moved-from state is documented

  BinaryData target = Hex(fortyBytes);
  BinaryData second = Hex(GetParam());
  target = std::move(second);
  EXPECT_EQ(target.ToString(), GetParam());
  EXPECT_TRUE(second.IsEmpty());  // NOLINT(bugprone-use-after-move)
}

TEST_P(BinaryDataCopy, SelfAssignmentKeepsTheBytes) {
  BinaryData data = Hex(GetParam());
  BinaryData& alias = data;
  data = alias;
  EXPECT_EQ(data.ToString(), GetParam());
  data = std::move(alias);
  EXPECT_EQ(data.ToString(), GetParam());
}

INSTANTIATE_TEST_SUITE_P(InlineAndHeap, BinaryDataCopy,
                         testing::Values("", "0C 33", fourteenBytes, fifteenBytes, fortyBytes));

struct AssignRow {
  const char* from;
  const char* to;
};

class BinaryDataAssign : public testing::TestWithParam<AssignRow> {};

TEST_P(BinaryDataAssign, AssignmentBetweenInlineAndHeapGivesTheNewBytes) {
  BinaryData copied = Hex(GetParam().from);
  copied = Hex(GetParam().to);
  EXPECT_EQ(copied.ToString(), GetParam().to);
  const BinaryData source = Hex(GetParam().to);
  BinaryData assigned = Hex(GetParam().from);
  assigned = source;
  EXPECT_EQ(assigned.ToString(), GetParam().to);
}

INSTANTIATE_TEST_SUITE_P(Rows, BinaryDataAssign,
                         testing::Values(AssignRow{fortyBytes, "0C 33"}, AssignRow{"0C 33", fortyBytes},
                                         AssignRow{fifteenBytes, fortyBytes}, AssignRow{fortyBytes, ""},
                                         AssignRow{"", fourteenBytes}));

}  // namespace
