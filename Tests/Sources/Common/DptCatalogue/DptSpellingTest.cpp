#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "CountedAllocations.h"
#include "DptCatalogue.h"

namespace {

using Nelmo::DptCatalogue;
using Nelmo::DptId;

struct Spelling {
  const char* text;
  bool valid;
  std::uint16_t mainNumber;
  std::uint16_t subNumber;
  bool subGiven;
};

const Spelling Spellings[] = {
    {"9.001", true, 9, 1, true},
    {"9.1", true, 9, 1, true},
    {"9.01", true, 9, 1, true},
    {"9", true, 9, 0, false},
    {"9.x", true, 9, 0, false},
    {"9.X", true, 9, 0, false},
    {"9.*", true, 9, 0, false},
    {"9.000", true, 9, 0, true},
    {"DPT9.001", true, 9, 1, true},
    {"dpt9.001", true, 9, 1, true},
    {"DPT 9.001", true, 9, 1, true},
    {"DPT9", true, 9, 0, false},
    {"DPT 9.x", true, 9, 0, false},
    {"DPT-9", true, 9, 0, false},
    {"DPT-9-1", true, 9, 1, true},
    {"dpt-9-1", true, 9, 1, true},
    {"DPST-9-1", true, 9, 1, true},
    {"dpst-9-1", true, 9, 1, true},
    {"DPST-1-8", true, 1, 8, true},
    {"DPST-20-102", true, 20, 102, true},
    {"DPST-12-1200", true, 12, 1200, true},
    {"DPT_Value_Temp", true, 9, 1, true},
    {"dpt_value_temp", true, 9, 1, true},
    {"DPT_HVACMode", true, 20, 102, true},
    {"DPT_Heat/Cool", true, 1, 100, true},
    {"  5.001 ", true, 5, 1, true},
    {"14.1200", true, 14, 1200, true},
    {"232.600", true, 232, 600, true},
    {"9.999", true, 9, 999, true},
    {"65535.65535", true, 65535, 65535, true},
    {"", false, 0, 0, false},
    {"   ", false, 0, 0, false},
    {"0", false, 0, 0, false},
    {"0.001", false, 0, 0, false},
    {"09.001", false, 0, 0, false},
    {"9.0001", false, 0, 0, false},
    {"9.", false, 0, 0, false},
    {".001", false, 0, 0, false},
    {"9.001.1", false, 0, 0, false},
    {"9,001", false, 0, 0, false},
    {"9.y", false, 0, 0, false},
    {"9.001x", false, 0, 0, false},
    {"65536", false, 0, 0, false},
    {"9.65536", false, 0, 0, false},
    {"123456", false, 0, 0, false},
    {"-9", false, 0, 0, false},
    {"DPT", false, 0, 0, false},
    {"DPT ", false, 0, 0, false},
    {"DPT  9.001", false, 0, 0, false},
    {"DPT-", false, 0, 0, false},
    {"DPT-9-", false, 0, 0, false},
    {"DPT-9.001", false, 0, 0, false},
    {"DPST-9", false, 0, 0, false},
    {"DPST-9-x", false, 0, 0, false},
    {"DPST-9.1", false, 0, 0, false},
    {"DPST 9-1", false, 0, 0, false},
    {"DPT_Value_Tmp", false, 0, 0, false},
    {"Value_Temp", false, 0, 0, false},
    {"temperature", false, 0, 0, false},
};

TEST(DptSpelling, ReadsEverySpellingUsersType) {
  for (const Spelling& row : Spellings) {
    const std::optional<DptId> id = DptCatalogue::Parse(row.text);
    ASSERT_EQ(id.has_value(), row.valid) << '"' << row.text << '"';
    if (row.valid) {
      EXPECT_EQ(id->mainNumber, row.mainNumber) << row.text;
      EXPECT_EQ(id->subNumber, row.subNumber) << row.text;
      EXPECT_EQ(id->subGiven, row.subGiven) << row.text;
    }
  }
}

TEST(DptSpelling, EveryStandardNameAndNumberReadsBackAsItsEntry) {
  for (const Nelmo::DptSubtype& row : DptCatalogue::All()) {
    const std::string dashed = "DPST-" + std::to_string(row.mainNumber) + "-" + std::to_string(row.subNumber);
    for (const std::string& text : {std::string(row.name), dashed}) {
      const std::optional<DptId> id = DptCatalogue::Parse(text);
      ASSERT_TRUE(id.has_value()) << text;
      EXPECT_EQ(id->mainNumber, row.mainNumber) << text;
      EXPECT_EQ(id->subNumber, row.subNumber) << text;
    }
  }
}

TEST(DptSpelling, AllocatesNothing) {
  for (const Spelling& row : Spellings) {
    EXPECT_EQ(CountedAllocations::During([&row] { (void)DptCatalogue::Parse(row.text); }), 0) << row.text;
  }
}

}  // namespace
