#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <cstring>
#include <ostream>
#include <string>
#include <thread>
#include <vector>

#include "LogCapture.h"
#include "UloLog.h"

namespace {

// Leaves the logger as it found it: threshold restored, standard error again.
class UloLogFixture : public ::testing::Test {
 protected:
  ~UloLogFixture() override {
    UloLogSetSink(nullptr);
    UloLogSetThreshold(m_threshold);
  }

 private:
  int m_threshold = UloLogGetThreshold();
};

TEST(UloLog, SinkReceivesActiveMessagesExactly) {
  TestSupport::LogCapture capture(ULO_LOG_INFO);
  UloLog(ULO_LOG_TRACE, "File", "Function", "inactive", 1);
  UloLog(ULO_LOG_ERROR, "File", "Function", "text", 2);
  const std::vector<TestSupport::LogLine> expected{{ULO_LOG_ERROR, "File", "Function", "text"}};
  EXPECT_EQ(capture.Lines(), expected);
}

// ---------------------------------------------------------------------------
// Threshold

struct ThresholdRow {
  int threshold;
  bool trace;
  bool info;
  bool warning;
  bool error;
};

void PrintTo(const ThresholdRow& row, std::ostream* out) {
  *out << "threshold " << row.threshold;
}

class UloLogThreshold : public UloLogFixture, public ::testing::WithParamInterface<ThresholdRow> {};

TEST_P(UloLogThreshold, ActivatesItsLevelAndAbove) {
  const ThresholdRow& row = GetParam();
  UloLogSetThreshold(row.threshold);
  EXPECT_EQ(UloLogGetThreshold(), row.threshold);
  EXPECT_EQ(UloLoggingStateIsActive(ULO_LOG_TRACE), row.trace);
  EXPECT_EQ(UloLoggingStateIsActive(ULO_LOG_INFO), row.info);
  EXPECT_EQ(UloLoggingStateIsActive(ULO_LOG_WARNING), row.warning);
  EXPECT_EQ(UloLoggingStateIsActive(ULO_LOG_ERROR), row.error);
}

INSTANTIATE_TEST_SUITE_P(Levels, UloLogThreshold,
                         ::testing::Values(ThresholdRow{ULO_LOG_TRACE, true, true, true, true},
                                           ThresholdRow{ULO_LOG_INFO, false, true, true, true},
                                           ThresholdRow{ULO_LOG_WARNING, false, false, true, true},
                                           ThresholdRow{ULO_LOG_ERROR, false, false, false, true},
                                           ThresholdRow{ULO_LOG_OFF, false, false, false, false}));

TEST(UloLogDefault, ThresholdIsErrorWithoutTheVariable) {
  if (std::getenv("ULO_LOG_LEVEL") != nullptr) {
    GTEST_SKIP() << "ULO_LOG_LEVEL is set";
  }
  EXPECT_EQ(UloLogGetThreshold(), ULO_LOG_ERROR);
  EXPECT_FALSE(UloLoggingStateIsActive(ULO_LOG_WARNING));
  EXPECT_TRUE(UloLoggingStateIsActive(ULO_LOG_ERROR));
}

// ---------------------------------------------------------------------------
// Sink

TEST_F(UloLogFixture, SinkFiltersByLevel) {
  TestSupport::LogCapture capture(ULO_LOG_WARNING);
  UloLog(ULO_LOG_TRACE, "A", "Trace", "zero", 10);
  UloLog(ULO_LOG_INFO, "A", "Info", "one", 11);
  UloLog(ULO_LOG_WARNING, "A", "Warning", "two", 12);
  UloLog(ULO_LOG_ERROR, "A", "Error", "three", 13);
  const std::vector<TestSupport::LogLine> expected{{ULO_LOG_WARNING, "A", "Warning", "two"},
                                                   {ULO_LOG_ERROR, "A", "Error", "three"}};
  EXPECT_EQ(capture.Lines(), expected);
}

TEST_F(UloLogFixture, SinkReceivesEveryArgument) {
  struct Received {
    UloLogLevel level;
    std::string file;
    std::string function;
    std::string text;
    int line;
  };
  std::vector<Received> received;
  UloLogSetThreshold(ULO_LOG_TRACE);
  UloLogSetSink([&received](UloLogLevel level, std::string_view file, std::string_view function, std::string_view text,
                            int line) {
    received.push_back({level, std::string(file), std::string(function), std::string(text), line});
  });
  UloLog(ULO_LOG_INFO, "KnxConverter", "ToKnxValue", "The internal value of DPT=5.1", 321);
  ASSERT_EQ(received.size(), 1u);
  EXPECT_EQ(received[0].level, ULO_LOG_INFO);
  EXPECT_EQ(received[0].file, "KnxConverter");
  EXPECT_EQ(received[0].function, "ToKnxValue");
  EXPECT_EQ(received[0].text, "The internal value of DPT=5.1");
  EXPECT_EQ(received[0].line, 321);
}

TEST_F(UloLogFixture, NothingReachesTheSinkWhenLoggingIsOff) {
  TestSupport::LogCapture capture(ULO_LOG_OFF);
  UloLog(ULO_LOG_ERROR, "A", "B", "off", 1);
  EXPECT_TRUE(capture.Lines().empty());
}

TEST_F(UloLogFixture, SinkMayLogItself) {
  TestSupport::LogCapture inner;
  std::vector<std::string> outer;
  UloLogSetSink([&outer](UloLogLevel, std::string_view, std::string_view function, std::string_view text, int) {
    outer.emplace_back(text);
    if (function == "Outer") {
      UloLog(ULO_LOG_ERROR, "A", "Inner", "from the sink", 2);
    }
  });
  UloLog(ULO_LOG_ERROR, "A", "Outer", "first", 1);
  EXPECT_EQ(outer, (std::vector<std::string>{"first", "from the sink"}));
}

// ---------------------------------------------------------------------------
// Standard error

TEST_F(UloLogFixture, WritesOneLinePerMessageToStandardError) {
  UloLogSetThreshold(ULO_LOG_TRACE);
  ::testing::internal::CaptureStderr();
  UloLog(ULO_LOG_TRACE, "KnxConverter", "ToKnxValue", "DPT is used.", 7);
  UloLog(ULO_LOG_INFO, "KnxConverter", "FromKnxValue", "adjusted", 8);
  UloLog(ULO_LOG_WARNING, "KnxValueConverter", "GetEntry", "warning", 9);
  UloLog(ULO_LOG_ERROR, "KnxValueConverter", "FillDptValueMap", "error", 10);
  EXPECT_EQ(::testing::internal::GetCapturedStderr(),
            "[TRACE] KnxConverter::ToKnxValue:7: DPT is used.\n"
            "[INFO] KnxConverter::FromKnxValue:8: adjusted\n"
            "[WARNING] KnxValueConverter::GetEntry:9: warning\n"
            "[ERROR] KnxValueConverter::FillDptValueMap:10: error\n");
}

TEST_F(UloLogFixture, InactiveLevelsWriteNothingToStandardError) {
  UloLogSetThreshold(ULO_LOG_ERROR);
  ::testing::internal::CaptureStderr();
  UloLog(ULO_LOG_WARNING, "A", "B", "inactive", 1);
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
}

TEST_F(UloLogFixture, EmptySinkRestoresStandardError) {
  {
    TestSupport::LogCapture capture(ULO_LOG_TRACE);
    ::testing::internal::CaptureStderr();
    UloLog(ULO_LOG_ERROR, "A", "B", "to the sink", 1);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(capture.Texts(), std::vector<std::string>{"to the sink"});
  }
  ::testing::internal::CaptureStderr();
  UloLog(ULO_LOG_ERROR, "A", "B", "to standard error", 42);
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "[ERROR] A::B:42: to standard error\n");
}

// ---------------------------------------------------------------------------
// Threads

constexpr int ThreadCount = 4;
constexpr int MessagesPerThread = 250;

TEST_F(UloLogFixture, SeveralThreadsLogThroughTheSink) {
  TestSupport::LogCapture capture;
  std::vector<std::thread> threads;
  threads.reserve(ThreadCount);
  for (int t = 0; t < ThreadCount; ++t) {
    threads.emplace_back([t] {
      const std::string function = "Thread" + std::to_string(t);
      for (int m = 0; m < MessagesPerThread; ++m) {
        UloLog(ULO_LOG_INFO, "A", function, std::to_string(m), m);
      }
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  const std::vector<TestSupport::LogLine> lines = capture.Lines();
  ASSERT_EQ(lines.size(), static_cast<std::size_t>(ThreadCount * MessagesPerThread));
  // Each thread's messages arrive whole and in the order it wrote them.
  std::vector<int> next(ThreadCount, 0);
  for (const TestSupport::LogLine& line : lines) {
    const int t = std::stoi(line.function.substr(std::strlen("Thread")));
    ASSERT_GE(t, 0);
    ASSERT_LT(t, ThreadCount);
    EXPECT_EQ(line.text, std::to_string(next[t]++));
  }
  EXPECT_EQ(next, std::vector<int>(ThreadCount, MessagesPerThread));
}

TEST_F(UloLogFixture, SinkCanBeReplacedWhileThreadsLog) {
  UloLogSetThreshold(ULO_LOG_TRACE);
  std::atomic<int> first{0};
  std::atomic<int> second{0};
  const auto counter = [](std::atomic<int>& count) {
    return [&count](UloLogLevel, std::string_view, std::string_view, std::string_view, int) { ++count; };
  };
  UloLogSetSink(counter(first));
  std::vector<std::thread> threads;
  threads.reserve(ThreadCount);
  for (int t = 0; t < ThreadCount; ++t) {
    threads.emplace_back([] {
      for (int m = 0; m < MessagesPerThread; ++m) {
        UloLog(ULO_LOG_TRACE, "A", "B", "message", m);
      }
    });
  }
  for (int swap = 0; swap < 100; ++swap) {
    UloLogSetSink(counter(swap % 2 == 0 ? second : first));
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  UloLogSetSink(nullptr);
  EXPECT_EQ(first + second, ThreadCount * MessagesPerThread);
}

// ---------------------------------------------------------------------------
// Environment: the threshold is read once, at first use, so these run in a
// process of their own with ULO_LOG_LEVEL set (see Tests/CMakeLists.txt);
// anywhere else they skip.

struct EnvironmentRow {
  const char* text;
  int threshold;
};

const EnvironmentRow environmentRows[] = {
    {"1", ULO_LOG_INFO},
    {"abc", ULO_LOG_ERROR},  // not a number: the default
    {"-1", ULO_LOG_ERROR},   // below trace: the default
    {"7", ULO_LOG_OFF},      // above error: off
};

TEST(UloLogEnvironment, VariableSetsTheThresholdAtFirstUse) {
  const char* text = std::getenv("ULO_LOG_LEVEL");
  if (text == nullptr) {
    GTEST_SKIP() << "runs from CTest with ULO_LOG_LEVEL set";
  }
  const auto* const row =
      std::find_if(std::begin(environmentRows), std::end(environmentRows),
                   [text](const EnvironmentRow& candidate) { return std::strcmp(candidate.text, text) == 0; });
  ASSERT_NE(row, std::end(environmentRows)) << "no expectation for ULO_LOG_LEVEL=" << text;
  EXPECT_EQ(UloLogGetThreshold(), row->threshold);
  if (row->threshold > ULO_LOG_TRACE) {
    EXPECT_FALSE(UloLoggingStateIsActive(static_cast<UloLogLevel>(row->threshold - 1)));
  }
  if (row->threshold <= ULO_LOG_ERROR) {
    EXPECT_TRUE(UloLoggingStateIsActive(static_cast<UloLogLevel>(row->threshold)));
  }
}

TEST(UloLogEnvironment, VariableIsNotReadAgain) {
  const char* text = std::getenv("ULO_LOG_LEVEL");
  if (text == nullptr) {
    GTEST_SKIP() << "runs from CTest with ULO_LOG_LEVEL set";
  }
  const std::string original(text);
  const int threshold = UloLogGetThreshold();
  ASSERT_EQ(setenv("ULO_LOG_LEVEL", threshold == ULO_LOG_TRACE ? "2" : "0", 1), 0);
  EXPECT_EQ(UloLogGetThreshold(), threshold);
  EXPECT_EQ(UloLoggingStateIsActive(ULO_LOG_TRACE), threshold == ULO_LOG_TRACE);
  setenv("ULO_LOG_LEVEL", original.c_str(), 1);
}

}  // namespace
