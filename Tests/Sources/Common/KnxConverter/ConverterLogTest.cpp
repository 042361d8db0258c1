#include <gtest/gtest.h>

#include <iomanip>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "ConverterLog.h"
#include "LogCapture.h"

// Messages are composed in a stream the thread keeps: each one must start
// empty and with the default format, whatever the one before did, and a
// message composed while another is being composed or written gets a stream
// of its own.

namespace {

using Nelmo::Log::Write;
using TestSupport::LogCapture;

void Message(void (*compose)(std::ostream&)) {
  Write(ULO_LOG_ERROR, Nelmo::Log::FacadeFile, "Test", __LINE__, compose);
}

struct Composed {
  const char* name;
  void (*compose)(std::ostream&);
  const char* text;
};

// Each row is written after the one before it, in order.
const Composed Sequence[] = {
    {"hexadecimal, fixed, wide, filled, failed",
     [](std::ostream& out) {
       out << std::hex << std::fixed << std::setprecision(2) << std::setfill('*') << 255 << ' ' << 0.5 << ' '
           << std::setw(5);
       out.setstate(std::ios_base::failbit);
     },
     "ff 0.50 "},
    {"the default format again", [](std::ostream& out) { out << 255 << ' ' << 1.0 / 3 << ' ' << std::setw(3) << 7; },
     "255 0.333333   7"},
    {"an empty message", [](std::ostream& /*out*/) {}, ""},
    {"no text carried over", [](std::ostream& out) { out << "last"; }, "last"},
};

TEST(ConverterLog, EachMessageStartsEmptyWithTheDefaultFormat) {
  LogCapture capture(ULO_LOG_ERROR);
  std::vector<std::string> expected;
  for (const Composed& row : Sequence) {
    Message(row.compose);
    expected.emplace_back(row.text);
  }
  EXPECT_EQ(capture.Texts(), expected);
}

TEST(ConverterLog, AMessageWrittenFromTheSinkHasAStreamOfItsOwn) {
  const int previous = UloLogGetThreshold();
  UloLogSetThreshold(ULO_LOG_ERROR);
  std::vector<std::string> texts;
  UloLogSetSink([&texts](UloLogLevel /*level*/, std::string_view /*file*/, std::string_view /*function*/,
                         std::string_view text, int /*line*/) {
    texts.emplace_back(text);
    if (texts.size() == 1) {
      Message([](std::ostream& out) { out << std::hex << "inner " << 255; });
    }
  });
  Message([](std::ostream& out) { out << "outer " << 255; });
  Message([](std::ostream& out) { out << "after " << 255; });
  UloLogSetSink(nullptr);
  UloLogSetThreshold(previous);
  EXPECT_EQ(texts, (std::vector<std::string>{"outer 255", "inner ff", "after 255"}));
}

TEST(ConverterLog, AMessageWrittenWhileAnotherIsComposedHasAStreamOfItsOwn) {
  LogCapture capture(ULO_LOG_ERROR);
  Message([](std::ostream& out) {
    out << "outer ";
    Message([](std::ostream& inner) { inner << std::hex << "inner " << 255; });
    out << 255;
  });
  EXPECT_EQ(capture.Texts(), (std::vector<std::string>{"inner ff", "outer 255"}));
}

}  // namespace
