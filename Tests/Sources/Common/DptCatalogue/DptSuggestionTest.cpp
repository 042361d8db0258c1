#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "DptCatalogue.h"

namespace {

using Nelmo::DptCatalogue;

struct Suggestion {
  const char* text;
  std::size_t count;
  std::vector<std::string> expected;
};

const Suggestion Suggestions[] = {
    {"DPT_Value_Tmp", 1, {"DPT_Value_Temp"}},
    {"dpt_value_tmp", 1, {"DPT_Value_Temp"}},
    {"DPT_Value_Tempa", 2, {"DPT_Value_Tempa", "DPT_Value_Temp"}},
    {"DPT_Swich", 1, {"DPT_Switch"}},
    {"DPT_UpDwn", 1, {"DPT_UpDown"}},
    {"DPT_HVACMod", 3, {"DPT_HVACMode", "DPT_HVACMode_Z"}},
    {"9.0001", 1, {"9.001"}},
    {"DPT 9.0001", 1, {"9.001"}},
    {"DPT9.0001", 1, {"9.001"}},
    {"9.0011", 2, {"9.001", "9.011"}},
    {"DPST-9-1x", 1, {"DPST-9-1"}},
    {"DPT-9-1x", 1, {"DPT-9-1"}},
    {"1.0008", 1, {"1.008"}},
    {"xyzzy-plugh", 3, {}},
    {"", 3, {}},
};

TEST(DptSuggestion, OffersTheNearestKnownNamesAndNumbers) {
  for (const Suggestion& row : Suggestions) {
    EXPECT_EQ(DptCatalogue::Suggest(row.text, row.count), row.expected) << '"' << row.text << '"';
  }
}

// A line of garbage as long as a fuzzer or a broken trace hands over: no
// name is near it, and the answer comes without a table per candidate.
TEST(DptSuggestion, OffersNothingForATextFarLongerThanAnyName) {
  EXPECT_EQ(DptCatalogue::Suggest(std::string(100000, 'x') + "DPT_Value_Temp"), std::vector<std::string>{});
  EXPECT_EQ(DptCatalogue::Suggest(std::string(40, ' ') + "DPT_Value_Tmp" + std::string(40, ' '), 1),
            std::vector<std::string>{"DPT_Value_Temp"});
}

TEST(DptSuggestion, OffersThreeByDefault) {
  EXPECT_EQ(DptCatalogue::Suggest("9.0001").size(), 3u);
}

}  // namespace
