#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "ConverterLines.h"
#include "FloatRange.h"
#include "KnxConverterBit.h"
#include "KnxConverterDefault.h"
#include "KnxConverterFloat.h"
#include "KnxTestBytes.h"
#include "KnxValueConverter.h"
#include "LogCapture.h"
#include "RangeRows.h"

namespace {

using KnxTest::Bytes;
using KnxTest::GroupOf;
using TestSupport::FacadeLine;
using TestSupport::LogCapture;
using TestSupport::LogLine;

constexpr int ThreadCount = 4;
constexpr int Rounds = 200;

Nelmo::FloatRange FullFloat16Range() {
  return TestSupport::FilledRange<Nelmo::FloatRange>(-671088.64, 670760.96, -671088.64, 670760.96);
}

struct Sending {
  KNXDPT dpt;
  ULOVALUE value;
  bool result;
  Bytes bytes;
  unsigned int bits;
};

const Sending Sendings[] = {
    {{16, 9, 1}, ULOVALUE::Double(21.5), true, {0x0C, 0x33}, 16},
    {{16, 9, 0}, ULOVALUE::Double(-30.0), true, {0x8A, 0x24}, 16},
    {{1, 1, 1}, ULOVALUE::Bool(true), true, {0x01}, 1},
    {{16, 7, 1}, ULOVALUE::UInt16(0x1234), true, {0x12, 0x34}, 16},
    {{16, 7, 1}, ULOVALUE::Int32(300), true, {0x01, 0x2C}, 16},
    {{32, 12, 1}, ULOVALUE::UInt32(0xDEADBEEF), true, {0xDE, 0xAD, 0xBE, 0xEF}, 32},
    {{16, 99, 1}, ULOVALUE::Double(1.0), false, {}, 0},
};

struct Receiving {
  KNXDPT dpt;
  Bytes bytes;
  unsigned int bits;
  bool result;
  UloValueType type;
  const char* text;
};

const Receiving Receivings[] = {
    {{16, 9, 1}, {0x0C, 0x33}, 16, true, IVT_DOUBLE, "21.5"},
    {{1, 1, 1}, {0x01}, 1, true, IVT_BOOL, "true"},
    {{16, 7, 1}, {0x12, 0x34}, 16, true, IVT_UINT16, "4660"},
    {{32, 12, 1}, {0xDE, 0xAD, 0xBE, 0xEF}, 32, true, IVT_UINT32, "3735928559"},
    {{16, 9, 1}, {0x0C}, 8, false, IVT_DOUBLE, nullptr},
};

// The lines that the refused rows above write, once per round.
const std::vector<LogLine> RoundLines = {
    FacadeLine("GetEntry", "No Entry found for DPT = 99.1"),
    FacadeLine("ToKnxValue", "No Entry found for DPT = 99.1"),
    FacadeLine("FromKnxValue",
               "Failed to convert a GroupValue for DPT 9.1 because of unexpected bit size: 8, expected: 16"),
};

void CheckSending(const Nelmo::KnxValueConverter& facade, const Sending& row, std::vector<std::string>& failures) {
  KNXDPT dpt = row.dpt;
  KnxStack::GroupValue groupValue;
  const bool result = facade.ToKnxValue(dpt, row.value, groupValue);
  const KnxStack::BinaryData expected(row.bytes.data(), static_cast<unsigned int>(row.bytes.size()));
  if (result != row.result || groupValue.GetRawData() != expected || groupValue.GetDefinedSize() != row.bits) {
    std::ostringstream text;
    text << "sending " << row.dpt.mainNumber << "." << row.dpt.subNumber << " gave " << result << " ["
         << groupValue.GetRawData().ToString() << "] of " << groupValue.GetDefinedSize() << " bits";
    failures.push_back(text.str());
  }
}

void CheckReceiving(const Nelmo::KnxValueConverter& facade, const Receiving& row, std::vector<std::string>& failures) {
  KNXDPT dpt = row.dpt;
  ULOVALUE value;
  const bool result = facade.FromKnxValue(dpt, GroupOf(row.bytes, row.bits), value);
  const bool valueAsExpected = row.text == nullptr || value.ToString() == row.text;
  if (result != row.result || value.GetType() != row.type || !valueAsExpected) {
    std::ostringstream text;
    text << "receiving " << row.dpt.mainNumber << "." << row.dpt.subNumber << " gave " << result << " type "
         << value.GetType() << " \"" << value.ToString() << "\"";
    failures.push_back(text.str());
  }
}

TEST(ConcurrentConversion, SeveralThreadsConvertThroughOneFacade) {
  Nelmo::KnxValueConverter facade;
  facade.Clear();
  const Nelmo::KnxConverterFloat16BitFloat float16(FullFloat16Range());
  ASSERT_TRUE(facade.AddDptValueMapEntry(9, 0, 16, IVT_DOUBLE, UloDP::IVST_NONE, float16));
  ASSERT_TRUE(facade.AddDptValueMapEntry(9, 1, 16, IVT_DOUBLE, UloDP::IVST_TEMPERATURE, float16));
  ASSERT_TRUE(facade.AddDptValueMapEntry(1, 0, 1, IVT_BOOL, UloDP::IVST_NONE, Nelmo::KnxConverter1Bit()));
  ASSERT_TRUE(facade.AddDptValueMapEntry(7, 0, 16, IVT_UINT16, UloDP::IVST_NONE, Nelmo::KnxConverterDefault()));
  ASSERT_TRUE(facade.AddDptValueMapEntry(12, 0, 32, IVT_UINT32, UloDP::IVST_NONE, Nelmo::KnxConverterDefault()));

  LogCapture capture(ULO_LOG_ERROR);
  std::atomic<int> ready{0};
  std::vector<std::vector<std::string>> failures(ThreadCount);
  std::vector<std::thread> threads;
  threads.reserve(ThreadCount);
  for (int index = 0; index < ThreadCount; ++index) {
    threads.emplace_back([&facade, &ready, &threadFailures = failures[index]] {
      ++ready;
      while (ready.load() < ThreadCount) {
        std::this_thread::yield();
      }
      for (int round = 0; round < Rounds; ++round) {
        for (const Sending& row : Sendings) {
          CheckSending(facade, row, threadFailures);
        }
        for (const Receiving& row : Receivings) {
          CheckReceiving(facade, row, threadFailures);
        }
      }
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }

  for (int index = 0; index < ThreadCount; ++index) {
    EXPECT_TRUE(failures[index].empty()) << "thread " << index << ": " << failures[index].size()
                                         << " failures, first: " << failures[index].front();
  }
  const std::vector<LogLine> lines = capture.Lines();
  EXPECT_EQ(lines.size(), RoundLines.size() * ThreadCount * Rounds);
  for (const LogLine& line : lines) {
    EXPECT_NE(std::find(RoundLines.begin(), RoundLines.end(), line), RoundLines.end()) << line.text;
  }
}

}  // namespace
