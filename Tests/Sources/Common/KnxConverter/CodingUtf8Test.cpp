#include <gtest/gtest.h>

#include <string>

#include "CodingUtf8.h"
#include "RowName.h"

namespace {

using TestSupport::RowName;

struct Row {
  const char* name;
  const char* iso;
  std::string utf8;
};

class Iso88591ToUtf8 : public testing::TestWithParam<Row> {};

TEST_P(Iso88591ToUtf8, Converts) {
  const Row& row = GetParam();
  EXPECT_EQ(Nelmo::CodingUtf8::Iso88591ToUtf8(row.iso), row.utf8);
}

const Row rows[] = {
    {"Empty", "", ""},
    {"Ascii", "Hello, world!", "Hello, world!"},
    {"LastAscii", "\x7F", "\x7F"},
    {"FirstHigh", "\x80", "\xC2\x80"},
    {"NoBreakSpace", "\xA0", "\xC2\xA0"},
    {"Currency", "\xA4", "\xC2\xA4"},
    {"LastC2", "\xBF", "\xC2\xBF"},
    {"FirstC3", "\xC0", "\xC3\x80"},
    {"EAcute", "\xE9", "\xC3\xA9"},
    {"YDiaeresis", "\xFF", "\xC3\xBF"},
    {"Greetings",
     "Gr\xFC\xDF"
     "e",
     "Gr\xC3\xBC\xC3\x9F"
     "e"},
    {"ZeroEndsTheText", "A\0\xE9", "A"},
    {"LeadingZero", "\0A", ""},
};

INSTANTIATE_TEST_SUITE_P(Rows, Iso88591ToUtf8, testing::ValuesIn(rows), RowName());

TEST(Iso88591ToUtf8Null, GivesEmptyText) {
  EXPECT_EQ(Nelmo::CodingUtf8::Iso88591ToUtf8(nullptr), "");
}

}  // namespace
