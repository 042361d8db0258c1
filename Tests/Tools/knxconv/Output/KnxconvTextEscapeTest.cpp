#include <gtest/gtest.h>

#include <string>

#include "Output.h"
#include "TextEscape.h"

namespace {

using namespace Knxconv;

struct EscapeCase {
  const char* name;
  std::string input;
  const char* text;  // as the terminal shows it
  const char* json;  // as JsonLine writes the string: U+FFFD for each invalid byte
};

// Bytes with a NUL need an explicit length.
std::string Bytes(const char* bytes, std::size_t size) {
  return {bytes, size};
}

const EscapeCase EscapeCases[] = {
    {"Plain", "21.5 Hall", "21.5 Hall", R"("21.5 Hall")"},
    {"Utf8",
     "Gr\xC3\xBC\xC3\x9F"
     "e 21 \xC2\xB0"
     "C \xE2\x82\xAC \xF0\x9F\x98\x80",
     "Grüße 21 °C € 😀", R"("Grüße 21 °C € 😀")"},
    {"ClearScreen", "A\x1B[2JB\nC\rD", R"(A\x1B[2JB\nC\rD)", R"("A\u001b[2JB\nC\rD")"},
    {"Tab", "a\tb", R"(a\tb)", R"("a\tb")"},
    {"Backslash", R"(a\b)", R"(a\\b)", R"("a\\b")"},
    {"Nul", Bytes("a\0b", 3), R"(a\x00b)", R"("a\u0000b")"},
    {"Bell", "\x07", R"(\x07)", R"("\u0007")"},
    {"Delete", "\x7F", R"(\x7F)", R"("\u007f")"},
    {"C1ControlSequenceIntroducer",
     "\xC2\x9B"
     "2J",
     R"(\u009B2J)", R"("\u009b2J")"},
    {"C1First", "\xC2\x80", R"(\u0080)", R"("\u0080")"},
    {"NoBreakSpaceIsText", "\xC2\xA0", "\xC2\xA0", "\"\xC2\xA0\""},
    {"Latin1Byte", "caf\xE9", R"(caf\xE9)", "\"caf\xEF\xBF\xBD\""},
    {"InvalidByte", "\xFF", R"(\xFF)", "\"\xEF\xBF\xBD\""},
    {"TruncatedAtEnd", "a\xC3", R"(a\xC3)", "\"a\xEF\xBF\xBD\""},
    {"TruncatedBeforeAscii",
     "\xC3("
     "x",
     R"(\xC3(x)", "\"\xEF\xBF\xBD(x\""},
    {"LoneContinuation", "\x9B", R"(\x9B)", "\"\xEF\xBF\xBD\""},
    {"OverlongSlash", "\xC0\xAF", R"(\xC0\xAF)", "\"\xEF\xBF\xBD\xEF\xBF\xBD\""},
    {"OverlongThreeBytes", "\xE0\x80\xAF", R"(\xE0\x80\xAF)", "\"\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\""},
    {"Surrogate", "\xED\xA0\x80", R"(\xED\xA0\x80)", "\"\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\""},
    {"AboveUnicode", "\xF4\x90\x80\x80", R"(\xF4\x90\x80\x80)", "\"\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\""},
    {"HighestCodePoint", "\xF4\x8F\xBF\xBF", "\xF4\x8F\xBF\xBF", "\"\xF4\x8F\xBF\xBF\""},
    // Texts longer than a word of eight bytes, each byte that needs an
    // escape in a word of its own or at a word's edge.
    {"LongPlain", "06:00:00.015  1.1.1 -> 0/0/1 ~!", "06:00:00.015  1.1.1 -> 0/0/1 ~!",
     R"("06:00:00.015  1.1.1 -> 0/0/1 ~!")"},
    {"TabAfterAWord", "12345678\tb", R"(12345678\tb)", R"("12345678\tb")"},
    {"BackslashLastOfAWord", R"(1234567\8)", R"(1234567\\8)", R"("1234567\\8")"},
    {"UnitSeparatorInTheSecondWord",
     "12345678123\x1F"
     "5678",
     R"(12345678123\x1F5678)", R"("12345678123\u001f5678")"},
    {"DeleteAfterTwoWords", "1234567812345678\x7F", R"(1234567812345678\x7F)", R"("1234567812345678\u007f")"},
    {"Utf8AfterAWord",
     "Outside: 21.5 \xC2\xB0"
     "C",
     "Outside: 21.5 °C", "\"Outside: 21.5 °C\""},
};

class TextEscape : public ::testing::TestWithParam<EscapeCase> {};

TEST_P(TextEscape, ShowsControlCharactersAndInvalidBytesAsEscapes) {
  EXPECT_EQ(EscapeText(GetParam().input), GetParam().text);
}

TEST_P(TextEscape, JsonEscapesControlCharactersAndReplacesInvalidBytes) {
  EXPECT_EQ(JsonLine(Json(GetParam().input)), GetParam().json);
}

INSTANTIATE_TEST_SUITE_P(Texts, TextEscape, ::testing::ValuesIn(EscapeCases),
                         [](const ::testing::TestParamInfo<EscapeCase>& info) { return info.param.name; });

struct PlainCase {
  const char* text;
  bool plain;  // EscapeText leaves it as it is, byte for byte ASCII
};

const PlainCase PlainCases[] = {
    {"06:00:00.015  1.1.1     -> 0/0/1 ~", true},
    {"", true},
    {"21.5 \xC2\xB0"
     "C",
     false},
    {R"(a\b)", false},
    {"12345678\tb", false},
    {"1234567812345678\x7F", false},
};

TEST(TextEscape, TellsPlainTextApart) {
  for (const PlainCase& row : PlainCases) {
    EXPECT_EQ(IsPlainText(row.text), row.plain) << row.text;
  }
}

TEST(TextEscapeJson, LeavesEverythingOutsideStringsAsItIs) {
  EXPECT_EQ(EscapeJsonControls("{\"a\":[1,2.5,null]}"), "{\"a\":[1,2.5,null]}");
}

}  // namespace
