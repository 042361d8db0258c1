#pragma once

// Shared by the date and time converter tests: group values built from and
// compared as bus bytes, date/time payloads, the expected log lines and the
// checks of sending, receiving and refusing.

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ConverterLines.h"
#include "KnxConverter.h"
#include "KnxStack.h"
#include "KnxTestBytes.h"
#include "LogCapture.h"
#include "RowName.h"
#include "UloPlatform.h"
#include "Weekdays.h"

namespace DateAndTimeTest {

using Day = ULO::Weekdays::Days;
using KnxTest::Bytes;
using KnxTest::BytesOf;
using KnxTest::GroupOf;
using KnxTest::GroupValueExceptionText;  // the stack's text, which the converters append
using TestSupport::Error;
using TestSupport::LogLine;
using TestSupport::RowName;

constexpr Day NoWeekday = static_cast<Day>(0);

inline ULOVALUE ValueOf(UloValueType type, const ULOTIME& time) {
  ULOVALUE value(type);
  value.SetTime(time);
  return value;
}

// Receiving: the bus bytes, the result, the date and time the value holds
// afterwards and the lines written.
struct ReceiveRow {
  const char* name;
  Bytes bytes;
  bool result;
  ULOTIME time;
  std::vector<LogLine> log;
};

inline void PrintTo(const ReceiveRow& row, std::ostream* out) {
  *out << row.name;
}

// A group value of the wrong size or with too few bytes.
struct WrongSizeRow {
  const char* name;
  Bytes bytes;
  unsigned int bits;
};

inline void PrintTo(const WrongSizeRow& row, std::ostream* out) {
  *out << row.name;
}

// Sends the value and checks the row's result, bytes and lines; a refusal
// leaves the group value empty.
template <typename Row>
void ExpectSent(Nelmo::KnxConverter& converter, const KNXDPT& dpt, const ULOVALUE& value, unsigned int bits,
                const Row& row) {
  TestSupport::LogCapture capture;
  KnxStack::GroupValue groupValue;
  EXPECT_EQ(converter.ToKnxValue(dpt, value, groupValue), row.result);
  EXPECT_EQ(BytesOf(groupValue), row.bytes);
  EXPECT_EQ(groupValue.GetDefinedSize(), row.bytes.empty() ? 0u : bits);
  EXPECT_EQ(capture.Lines(), row.log);
}

// Receives the row's bytes into a value of the type that holds before, and
// checks the row's result, date and time, and lines.
template <typename Row>
void ExpectReceived(Nelmo::KnxConverter& converter, const KNXDPT& dpt, unsigned int bits, UloValueType type,
                    const ULOTIME& before, const Row& row) {
  TestSupport::LogCapture capture;
  ULOVALUE value = ValueOf(type, before);
  EXPECT_EQ(converter.FromKnxValue(dpt, GroupOf(row.bytes, bits), value), row.result);
  EXPECT_EQ(value.GetTime(), row.time);
  EXPECT_EQ(value.GetType(), type);
  EXPECT_EQ(capture.Lines(), row.log);
}

// A group value that makes the stack throw: the converter refuses it with
// the message and leaves the value as it was.
inline void ExpectCaughtOnReceive(Nelmo::KnxConverter& converter, const KNXDPT& dpt, UloValueType type,
                                  const ULOTIME& before, const KnxStack::GroupValue& groupValue,
                                  const std::string& message) {
  TestSupport::LogCapture capture;
  ULOVALUE value = ValueOf(type, before);
  EXPECT_FALSE(converter.FromKnxValue(dpt, groupValue, value));
  EXPECT_EQ(value.GetTime(), before);
  EXPECT_EQ(capture.Lines(), std::vector<LogLine>{Error("FromKnxValue", message)});
}

}  // namespace DateAndTimeTest

inline void PrintTo(const ULOTIME& time, std::ostream* out) {
  *out << time.year << '-' << unsigned{time.month} << '-' << unsigned{time.day} << ' ' << unsigned{time.hour} << ':'
       << unsigned{time.minute} << ':' << unsigned{time.second} << " weekday=" << static_cast<unsigned>(time.weekday)
       << " summer=" << unsigned{time.summerTime} << " set=" << time.isSet;
}
