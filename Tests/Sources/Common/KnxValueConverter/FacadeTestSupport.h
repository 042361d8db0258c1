#pragma once

// The facade's conversion tests share one set of rows, each with a recording
// converter of its own, and a few helpers for values and log lines.

#include <gtest/gtest.h>

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ConverterLines.h"
#include "KnxStack.h"
#include "KnxTestBytes.h"
#include "KnxValueConverter.h"
#include "LogCapture.h"
#include "RecordingConverter.h"
#include "UloPlatform.h"

namespace FacadeTest {

using KnxTest::Bytes;
using KnxTest::GroupOf;
using KnxTest::Holds;
using TestConverters::Behaviour;
using TestConverters::Script;
using TestSupport::FacadeLine;
using TestSupport::LogLine;

// A missing row is reported by the map and again by the conversion.
inline std::vector<LogLine> NoEntryLines(const char* function, const std::string& dpt) {
  const std::string text = "No Entry found for DPT = " + dpt;
  return {FacadeLine("GetEntry", text), FacadeLine(function, text)};
}

inline ::testing::AssertionResult IsDpt(const KNXDPT& dpt, unsigned bitSize, unsigned mainNumber, unsigned subNumber) {
  if (dpt.bitSize == bitSize && dpt.mainNumber == mainNumber && dpt.subNumber == subNumber) {
    return ::testing::AssertionSuccess();
  }
  return ::testing::AssertionFailure() << "DPT is " << unsigned{dpt.bitSize} << " bits " << dpt.mainNumber << "."
                                       << dpt.subNumber << ", expected " << bitSize << " bits " << mainNumber << "."
                                       << subNumber;
}

inline ::testing::AssertionResult SameValue(const ULOVALUE& actual, const ULOVALUE& expected) {
  if (actual.GetType() == expected.GetType() && actual.GetBool() == expected.GetBool() &&
      actual.GetUInt64() == expected.GetUInt64() && actual.GetDouble() == expected.GetDouble() &&
      actual.GetString() == expected.GetString() && actual.GetTime() == expected.GetTime()) {
    return ::testing::AssertionSuccess();
  }
  return ::testing::AssertionFailure() << "value of type " << actual.GetType() << " \"" << actual.ToString()
                                       << "\", expected type " << expected.GetType() << " \"" << expected.ToString()
                                       << "\"";
}

// Converts every row with the log at the threshold and checks the row's
// result and lines; the lines are errors, so none is written above that
// level.
template <typename Row, std::size_t N>
void ExpectOutcomes(const Nelmo::KnxValueConverter& facade, const Row (&rows)[N], int threshold,
                    bool (*convert)(const Nelmo::KnxValueConverter&, const Row&)) {
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    TestSupport::LogCapture capture(threshold);
    EXPECT_EQ(convert(facade, row), row.result);
    if (threshold <= ULO_LOG_ERROR) {
      EXPECT_EQ(capture.Lines(), row.lines);
    } else {
      EXPECT_TRUE(capture.Lines().empty());
    }
  }
}

// Text of the exception that the recording converters throw.
inline const std::string ThrownText = TestConverters::ThrownText;

struct Row {
  std::uint16_t mainNumber;
  std::uint16_t subNumber;
  std::uint8_t bitSize;
  UloValueType valueType;
  Behaviour behaviour;
  bool withConverter;
};

// The rows of the conversion tests. Main number 12 has no main.x row, 100 no
// format size, 24 and 28 are of variable length.
inline const Row Rows[] = {
    {1, 0, 1, IVT_BOOL, Behaviour::Succeed, true},
    {2, 0, 2, IVT_BOOL, Behaviour::Succeed, true},
    {3, 0, 4, IVT_DOUBLE, Behaviour::Succeed, true},
    {5, 0, 8, IVT_DOUBLE, Behaviour::Fail, true},
    {7, 0, 16, IVT_UINT16, Behaviour::Succeed, false},
    {8, 0, 16, IVT_INT32, Behaviour::Succeed, true},
    {9, 0, 16, IVT_DOUBLE, Behaviour::Succeed, true},
    {9, 1, 16, IVT_DOUBLE, Behaviour::Succeed, true},
    {10, 0, 24, IVT_TIME, Behaviour::Succeed, true},
    {11, 0, 24, IVT_DATE, Behaviour::Succeed, true},
    {12, 1, 32, IVT_UINT32, Behaviour::Succeed, true},
    {13, 0, 32, IVT_INT32, Behaviour::Succeed, true},
    {13, 100, 32, IVT_TIMESPAN, Behaviour::Succeed, true},
    {14, 0, 32, IVT_DOUBLE, Behaviour::ThrowGroupValueException, true},
    {16, 0, 112, IVT_STRING, Behaviour::Succeed, true},
    {19, 0, 64, IVT_DATETIME, Behaviour::Succeed, true},
    {20, 0, 8, IVT_BYTE, Behaviour::ThrowOther, true},
    {24, 0, 0, IVT_STRING, Behaviour::Succeed, true},
    {28, 0, 0, IVT_STRING, Behaviour::Fail, true},
    {100, 0, 8, IVT_BYTE, Behaviour::Succeed, true},
};

// What the recording converters write: ToKnxValue the group value, FromKnxValue
// the value's payload.
inline const Bytes EncodedBytes = {0xE1, 0xE2};
constexpr std::int32_t Decoded = 4242;

class Conversion : public ::testing::Test {
 protected:
  void SetUp() override {
    m_facade.Clear();
    for (const Row& row : Rows) {
      auto script = std::make_shared<Script>();
      script->behaviour = row.behaviour;
      script->encoded = GroupOf(EncodedBytes, 16);
      script->decoded = Decoded;
      if (row.withConverter) {
        ASSERT_TRUE(m_facade.AddDptValueMapEntry(row.mainNumber, row.subNumber, row.bitSize, row.valueType,
                                                 UloDP::IVST_NONE, TestConverters::RecordingConverter(script)));
      } else {
        ASSERT_TRUE(m_facade.AddDptValueMapEntry(row.mainNumber, row.subNumber, row.bitSize, row.valueType,
                                                 UloDP::IVST_NONE, TestConverters::NullCloneConverter()));
      }
      m_scripts[{row.mainNumber, row.subNumber}] = script;
    }
  }

  Script& ScriptOf(std::uint16_t mainNumber, std::uint16_t subNumber) { return *m_scripts.at({mainNumber, subNumber}); }

  // Every call any converter received, in both directions.
  std::size_t CallCount() const {
    std::size_t count = 0;
    for (const auto& entry : m_scripts) {
      count += entry.second->toKnxCalls.size() + entry.second->fromKnxCalls.size();
    }
    return count;
  }

  Nelmo::KnxValueConverter m_facade;
  std::map<std::pair<std::uint16_t, std::uint16_t>, std::shared_ptr<Script>> m_scripts;
};

// A log sink that throws GroupValueException for the first message it is
// given and records the others: an exception raised while a message is
// being written.
class ThrowingLog {
 public:
  ThrowingLog() : m_previousThreshold(UloLogGetThreshold()) {
    UloLogSetThreshold(ULO_LOG_TRACE);
    UloLogSetSink([this](UloLogLevel level, std::string_view file, std::string_view function, std::string_view text,
                         int /*line*/) {
      if (!m_thrown) {
        m_thrown = true;
        throw KnxStack::GroupValueException("log sink failed");
      }
      m_lines.push_back(LogLine{level, std::string(file), std::string(function), std::string(text)});
    });
  }
  ~ThrowingLog() {
    UloLogSetSink(nullptr);
    UloLogSetThreshold(m_previousThreshold);
  }
  ThrowingLog(const ThrowingLog&) = delete;
  ThrowingLog& operator=(const ThrowingLog&) = delete;

  bool Thrown() const { return m_thrown; }
  const std::vector<LogLine>& Lines() const { return m_lines; }

 private:
  int m_previousThreshold;
  bool m_thrown = false;
  std::vector<LogLine> m_lines;
};

}  // namespace FacadeTest
