#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "LogForwarder.h"

namespace {

using namespace Knxconv;

class LogForwarderTest : public ::testing::Test {
 protected:
  void SetUp() override { m_threshold = UloLogGetThreshold(); }
  void TearDown() override { UloLogSetThreshold(m_threshold); }

 private:
  int m_threshold = 0;
};

TEST_F(LogForwarderTest, ShowsMessagesFromTheChosenLevelUp) {
  std::ostringstream err;
  {
    const LogForwarder log(ULO_LOG_INFO, err);
    UloLog(ULO_LOG_TRACE, "KnxConverter", "ToKnxValue", "trace", 10);
    UloLog(ULO_LOG_INFO, "KnxConverter", "ToKnxValue", "adjusted", 11);
    UloLog(ULO_LOG_ERROR, "KnxValueConverter", "ToKnxValue", "refused", 12);
  }
  EXPECT_EQ(err.str(),
            "[INFO] KnxConverter::ToKnxValue:11: adjusted\n"
            "[ERROR] KnxValueConverter::ToKnxValue:12: refused\n");
}

TEST_F(LogForwarderTest, KeepsErrorsEvenWhenTheyAreNotShown) {
  std::ostringstream err;
  LogForwarder log(ULO_LOG_OFF, err);
  UloLog(ULO_LOG_INFO, "KnxConverter", "ToKnxValue", "adjusted", 11);
  UloLog(ULO_LOG_ERROR, "KnxValueConverter", "GetEntry", "No Entry found for DPT = 99.1", 12);
  UloLog(ULO_LOG_ERROR, "KnxValueConverter", "FromKnxValue", "No Entry found for DPT = 99.1", 13);
  UloLog(ULO_LOG_ERROR, "KnxValueConverter", "FromKnxValue", "second", 14);
  EXPECT_EQ(log.TakeErrors(), "No Entry found for DPT = 99.1; second");
  EXPECT_EQ(log.TakeErrors(), "");
  EXPECT_EQ(err.str(), "");
}

TEST_F(LogForwarderTest, RestoresStandardErrorWhenDone) {
  std::ostringstream err;
  { const LogForwarder log(ULO_LOG_ERROR, err); }
  UloLogSetThreshold(ULO_LOG_OFF);
  UloLog(ULO_LOG_ERROR, "KnxValueConverter", "ToKnxValue", "after", 12);
  EXPECT_EQ(err.str(), "");
}

TEST_F(LogForwarderTest, QuietLogSilencesAndRestores) {
  UloLogSetThreshold(ULO_LOG_INFO);
  {
    const QuietLog quiet;
    EXPECT_FALSE(UloLoggingStateIsActive(ULO_LOG_ERROR));
  }
  EXPECT_EQ(UloLogGetThreshold(), ULO_LOG_INFO);
}

}  // namespace
