#include <gtest/gtest.h>

#include <cstdint>
#include <type_traits>

#include "KnxDpt.h"

namespace {

static_assert(std::is_same_v<decltype(KNXDPT::bitSize), std::uint8_t>, "bit size is unsigned 8-bit");
static_assert(std::is_same_v<decltype(KNXDPT::mainNumber), std::uint16_t>, "main number is unsigned 16-bit");
static_assert(std::is_same_v<decltype(KNXDPT::subNumber), std::uint16_t>, "sub number is unsigned 16-bit");

TEST(KnxDpt, DefaultIsNoDpt) {
  const KNXDPT dpt;
  EXPECT_EQ(dpt.bitSize, 0);
  EXPECT_EQ(dpt.mainNumber, 0);
  EXPECT_EQ(dpt.subNumber, 0);
}

// Bit size, main number and sub number, in that order.
TEST(KnxDpt, FieldsInOrder) {
  struct Row {
    KNXDPT dpt;
    std::uint8_t bitSize;
    std::uint16_t mainNumber;
    std::uint16_t subNumber;
  };
  const Row rows[] = {
      {{16, 9, 1}, 16, 9, 1},
      {{1, 1, 0}, 1, 1, 0},
      {{112, 16, 1}, 112, 16, 1},
      {{48, 242, 600}, 48, 242, 600},
      {{255, 65535, 65535}, 255, 65535, 65535},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(row.dpt.bitSize, row.bitSize);
    EXPECT_EQ(row.dpt.mainNumber, row.mainNumber);
    EXPECT_EQ(row.dpt.subNumber, row.subNumber);
  }
}

}  // namespace
