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
    {"Plain", "21.5 Hall", "21.5 Hall", "\"21.5 Hall\""},
    {"Utf8",
     "Gr\xC3\xBC\xC3\x9F"
     "e 21 \xC2\xB0"
     "C \xE2\x82\xAC \xF0\x9F\x98\x80",
     "Grüße 21 °C € 😀", "\"Grüße 21 °C € 😀\""},
    {"ClearScreen", "A\x1B[2JB\nC\rD", "A\\x1B[2JB\\nC\\rD", "\"A\\u001b[2JB\\nC\\rD\""},
    {"Tab", "a\tb", "a\\tb", "\"a\\tb\""},
    {"Backslash", "a\\b", "a\\\\b", "\"a\\\\b\""},
    {"Nul", Bytes("a\0b", 3), "a\\x00b", "\"a\\u0000b\""},
    {"Bell", "\x07", "\\x07", "\"\\u0007\""},
    {"Delete", "\x7F", "\\x7F", "\"\\u007f\""},
    {"C1ControlSequenceIntroducer",
     "\xC2\x9B"
     "2J",
     "\\u009B2J", "\"\\u009b2J\""},
    {"C1First", "\xC2\x80", "\\u0080", "\"\\u0080\""},
    {"NoBreakSpaceIsText", "\xC2\xA0", "\xC2\xA0", "\"\xC2\xA0\""},
    {"Latin1Byte", "caf\xE9", "caf\\xE9", "\"caf\xEF\xBF\xBD\""},
    {"InvalidByte", "\xFF", "\\xFF", "\"\xEF\xBF\xBD\""},
    {"TruncatedAtEnd", "a\xC3", "a\\xC3", "\"a\xEF\xBF\xBD\""},
    {"TruncatedBeforeAscii",
     "\xC3("
     "x",
     "\\xC3(x", "\"\xEF\xBF\xBD(x\""},
    {"LoneContinuation", "\x9B", "\\x9B", "\"\xEF\xBF\xBD\""},
    {"OverlongSlash", "\xC0\xAF", "\\xC0\\xAF", "\"\xEF\xBF\xBD\xEF\xBF\xBD\""},
    {"OverlongThreeBytes", "\xE0\x80\xAF", "\\xE0\\x80\\xAF", "\"\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\""},
    {"Surrogate", "\xED\xA0\x80", "\\xED\\xA0\\x80", "\"\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\""},
    {"AboveUnicode", "\xF4\x90\x80\x80", "\\xF4\\x90\\x80\\x80",
     "\"\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\""},
    {"HighestCodePoint", "\xF4\x8F\xBF\xBF", "\xF4\x8F\xBF\xBF", "\"\xF4\x8F\xBF\xBF\""},
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

TEST(TextEscapeJson, LeavesEverythingOutsideStringsAsItIs) {
  EXPECT_EQ(EscapeJsonControls("{\"a\":[1,2.5,null]}"), "{\"a\":[1,2.5,null]}");
}

}  // namespace
