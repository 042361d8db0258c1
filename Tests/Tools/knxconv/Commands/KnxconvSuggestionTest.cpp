#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Suggestion.h"

namespace {

using namespace Knxconv;

struct DistanceCase {
  const char* from;
  const char* to;
  std::size_t distance;
};

const DistanceCase DistanceCases[] = {
    {"", "", 0},
    {"encode", "encode", 0},
    {"", "table", 5},
    {"table", "", 5},
    {"encdoe", "encode", 1},
    {"ecnode", "encode", 1},
    {"encod", "encode", 1},
    {"enccode", "encode", 1},
    {"decode", "encode", 2},
    {"tabel", "table", 1},
    {"trce", "trace", 1},
    {"convert", "encode", 6},
    {"abc", "ca", 3},
    {"--jsn", "--json", 1},
};

class SuggestionDistance : public ::testing::TestWithParam<DistanceCase> {};

TEST_P(SuggestionDistance, CountsEditsAndSwapsOfNeighbours) {
  EXPECT_EQ(EditDistance(GetParam().from, GetParam().to), GetParam().distance);
  EXPECT_EQ(EditDistance(GetParam().to, GetParam().from), GetParam().distance);
}

INSTANTIATE_TEST_SUITE_P(Pairs, SuggestionDistance, ::testing::ValuesIn(DistanceCases));

struct NearestCase {
  const char* typed;
  const char* nearest;  // nullptr: nothing is near enough
};

const NearestCase NearestCases[] = {
    {"encdoe", "encode"}, {"decod", "decode"},  {"tabel", "table"},   {"trac", "trace"},
    {"ENCODE", nullptr},  {"convert", nullptr}, {"x", nullptr},       {"ta", nullptr},
    {"tble", "table"},    {"encode", "encode"}, {"dekode", "decode"}, {"enc", nullptr},
};

class SuggestionNearest : public ::testing::TestWithParam<NearestCase> {};

TEST_P(SuggestionNearest, NamesTheCandidateATypingSlipAway) {
  const std::vector<std::string> commands = {"encode", "decode", "table", "trace"};
  const std::optional<std::string> nearest = NearestName(GetParam().typed, commands);
  EXPECT_EQ(nearest.value_or("(none)"), GetParam().nearest == nullptr ? "(none)" : GetParam().nearest);
}

INSTANTIATE_TEST_SUITE_P(Typed, SuggestionNearest, ::testing::ValuesIn(NearestCases));

}  // namespace
