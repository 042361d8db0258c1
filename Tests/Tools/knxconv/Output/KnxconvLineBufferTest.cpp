#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "LineBuffer.h"

namespace {

using namespace Knxconv;

struct LineCase {
  const char* name;
  std::vector<std::string> pieces;
  std::size_t blanks;  // put after the pieces
  bool trimmed;        // TrimEnd before Finish
  std::string line;
};

const LineCase LineCases[] = {
    {"Pieces", {"06:00:00.015", "  ", "1.1.1"}, 0, false, "06:00:00.015  1.1.1"},
    {"Blanks", {"9.001"}, 3, false, "9.001   "},
    {"BlanksTrimmed", {"21.5 ", "\xC2\xB0"}, 4, true, "21.5 \xC2\xB0"},
    {"OnlyBlanksTrimmed", {"  "}, 2, true, ""},
    {"Nothing", {}, 0, false, ""},
    {"LongerThanItsFirstRoom",
     {std::string(300, 'x'), "|", std::string(300, 'y')},
     1,
     false,
     std::string(300, 'x') + "|" + std::string(300, 'y') + " "},
};

class LineBufferLines : public ::testing::TestWithParam<LineCase> {};

// Written over a string that held a longer line: nothing of it is left.
TEST_P(LineBufferLines, HoldWhatWasWritten) {
  const LineCase& row = GetParam();
  std::string text(1000, '#');
  LineBuffer line(text);
  for (const std::string& piece : row.pieces) {
    line.Put(piece);
  }
  line.PutBlanks(row.blanks);
  if (row.trimmed) {
    line.TrimEnd();
  }
  line.Finish();
  EXPECT_EQ(text, row.line);
}

INSTANTIATE_TEST_SUITE_P(Lines, LineBufferLines, ::testing::ValuesIn(LineCases),
                         [](const ::testing::TestParamInfo<LineCase>& info) { return info.param.name; });

TEST(LineBuffer, GrowsPastItsFirstRoom) {
  std::string text;
  LineBuffer line(text);
  line.Put(std::string(300, 'x'));
  line.PutBlanks(300);
  line.Put('|');
  line.Finish();
  EXPECT_EQ(text, std::string(300, 'x') + std::string(300, ' ') + "|");
}

TEST(LineBuffer, GoesOnAfterFinish) {
  std::string text;
  LineBuffer line(text);
  line.Put('{');
  line.Finish();
  EXPECT_EQ(text, "{");
  line.Put("\"a\":1");
  line.Put('}');
  line.Finish();
  EXPECT_EQ(text, "{\"a\":1}");
}

}  // namespace
