#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "DptCache.h"
#include "InputError.h"

namespace {

using namespace Knxconv;

struct CacheCase {
  const char* text;
  std::uint16_t mainNumber;
  std::uint16_t subNumber;
  const char* error;  // nullptr when the text is a DPT
};

const CacheCase CacheCases[] = {
    {"9.001", 9, 1, nullptr},
    {"9.1", 9, 1, nullptr},
    {"DPT_UpDown", 1, 8, nullptr},
    {"0", 0, 0, nullptr},
    {"DPT_Value_Tmp", 0, 0, "unknown DPT 'DPT_Value_Tmp'; did you mean DPT_Value_Temp (9.001)?"},
};

// Asked twice: the second answer comes from the cache and says the same.
TEST(DptCache, AnswersAsParseDptEveryTime) {
  DptCache cache;
  for (int round = 0; round < 2; ++round) {
    for (const CacheCase& row : CacheCases) {
      try {
        const KNXDPT dpt = cache.Parse(row.text);
        EXPECT_EQ(row.error, nullptr) << row.text;
        EXPECT_EQ(dpt.mainNumber, row.mainNumber) << row.text;
        EXPECT_EQ(dpt.subNumber, row.subNumber) << row.text;
      } catch (const InputError& error) {
        ASSERT_NE(row.error, nullptr) << row.text;
        EXPECT_EQ(std::string(error.what()), row.error);
      }
    }
  }
}

// More texts than the cache holds: it starts over and still answers.
TEST(DptCache, StaysRightPastItsCapacity) {
  DptCache cache;
  for (int sub = 1; sub <= 600; ++sub) {
    const KNXDPT dpt = cache.Parse("DPST-7-" + std::to_string(sub));
    EXPECT_EQ(dpt.mainNumber, 7);
    EXPECT_EQ(dpt.subNumber, sub);
  }
}

}  // namespace
