#include <gtest/gtest.h>

#include <cerrno>
#include <sstream>
#include <streambuf>
#include <string>

#include "OutputContext.h"

namespace {

using namespace Knxconv;

// A device that is full: every write fails with ENOSPC.
class FullBuffer : public std::streambuf {
 protected:
  int_type overflow(int_type /*character*/) override {
    errno = ENOSPC;
    return traits_type::eof();
  }
};

struct Streams {
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
};

TEST(OutputContext, PrintsTextLinesEscaped) {
  Streams streams;
  OutputContext context(false, streams.in, streams.out, streams.err);
  context.PrintLine("A\x1B[2JB");
  context.PrintText("one\ntwo\n");
  context.PrintResult("text", Json(1));
  EXPECT_EQ(context.Finish(ExitSuccess), ExitSuccess);
  EXPECT_EQ(streams.out.str(), "A\\x1B[2JB\none\ntwo\ntext\n");
  EXPECT_EQ(streams.err.str(), "");
}

TEST(OutputContext, PrintsJsonLinesInJsonMode) {
  Streams streams;
  OutputContext context(true, streams.in, streams.out, streams.err);
  context.PrintResult("text", Json("\x1B"));
  EXPECT_EQ(streams.out.str(), "\"\\u001b\"\n");
}

struct FailCase {
  bool json;
  const char* out;
};

// The message carries an argument with ESC, escaped in both forms.
const FailCase FailCases[] = {
    {false, ""},
    {true, "{\"error\":\"not a DPT: '9.\\u001b'\",\"status\":2}\n"},
};

class OutputContextFail : public ::testing::TestWithParam<FailCase> {};

TEST_P(OutputContextFail, IsALineOnStandardErrorAndInJsonModeAlsoAnObject) {
  Streams streams;
  OutputContext context(GetParam().json, streams.in, streams.out, streams.err);
  EXPECT_EQ(context.Fail(ExitUsage, "not a DPT: '9.\x1B'"), ExitUsage);
  EXPECT_EQ(streams.out.str(), GetParam().out);
  EXPECT_EQ(streams.err.str(), "knxconv: not a DPT: '9.\\x1B'\n");
}

INSTANTIATE_TEST_SUITE_P(Modes, OutputContextFail, ::testing::ValuesIn(FailCases));

TEST(OutputContext, RefusalInJsonModeCarriesTheLibrarysErrors) {
  Streams streams;
  const int threshold = UloLogGetThreshold();
  {
    OutputContext context(true, streams.in, streams.out, streams.err);
    context.ForwardLog(ULO_LOG_OFF);
    UloLog(ULO_LOG_ERROR, "KnxValueConverter", "ToKnxValue", "No Entry found for DPT = 99.1", 40);
    EXPECT_EQ(context.Refused(), ExitRefused);
  }
  UloLogSetThreshold(threshold);
  EXPECT_EQ(streams.out.str(), "{\"error\":\"No Entry found for DPT = 99.1\",\"status\":1}\n");
  EXPECT_EQ(streams.err.str(), "");
}

TEST(OutputContext, AFailedWriteEndsWithExitStatus2AndItsReason) {
  FullBuffer full;
  std::ostream out(&full);
  Streams streams;
  OutputContext context(false, streams.in, out, streams.err);
  context.PrintLine("0C 33");
  EXPECT_TRUE(context.OutputFailed());
  EXPECT_EQ(context.Finish(ExitSuccess), ExitUsage);
  EXPECT_EQ(streams.err.str(), "knxconv: cannot write the output: No space left on device\n");
}

}  // namespace
