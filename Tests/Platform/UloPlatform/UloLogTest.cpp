#include <gtest/gtest.h>

#include "LogCapture.h"
#include "UloLog.h"

namespace {

TEST(UloLog, SinkReceivesActiveMessagesExactly) {
  TestSupport::LogCapture capture(ULO_LOG_INFO);
  UloLog(ULO_LOG_TRACE, "File", "Function", "inactive", 1);
  UloLog(ULO_LOG_ERROR, "File", "Function", "text", 2);
  const std::vector<TestSupport::LogLine> expected{{ULO_LOG_ERROR, "File", "Function", "text"}};
  EXPECT_EQ(capture.Lines(), expected);
}

}  // namespace
