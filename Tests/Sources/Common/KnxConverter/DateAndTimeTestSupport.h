#pragma once

// Shared by the date and time converter tests: group values built from and
// compared as bus bytes, date/time payloads and the expected log lines.

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "KnxStack.h"
#include "LogCapture.h"
#include "UloPlatform.h"
#include "Weekdays.h"

namespace DateAndTimeTest {

using Bytes = std::vector<unsigned char>;
using Day = ULO::Weekdays::Days;
using TestSupport::LogLine;

constexpr Day NoWeekday = static_cast<Day>(0);

inline Bytes BytesOf(const KnxStack::GroupValue& groupValue) {
  const KnxStack::BinaryData& data = groupValue.GetRawData();
  return Bytes(data.GetData(), data.GetData() + data.GetLength());
}

inline KnxStack::GroupValue GroupOf(const Bytes& bytes, unsigned int bits) {
  return KnxStack::GroupValue(KnxStack::BinaryData(bytes.data(), static_cast<unsigned int>(bytes.size())), bits);
}

inline ULOVALUE ValueOf(UloValueType type, const ULOTIME& time) {
  ULOVALUE value(type);
  value.SetTime(time);
  return value;
}

inline LogLine Error(const char* function, const std::string& text) {
  return LogLine{ULO_LOG_ERROR, "KnxConverter", function, text};
}

// The stack's own text for a failing accessor call, which the converters
// append to their message.
template <typename Call>
std::string StackMessage(Call&& call) {
  try {
    call();
  } catch (const KnxStack::GroupValueException& exception) {
    return exception.what();
  }
  ADD_FAILURE() << "the accessor did not throw";
  return "";
}

// Test names from the rows' name column.
struct RowName {
  template <typename Row>
  std::string operator()(const testing::TestParamInfo<Row>& info) const {
    return info.param.name;
  }
};

}  // namespace DateAndTimeTest

inline void PrintTo(const ULOTIME& time, std::ostream* out) {
  *out << time.year << '-' << unsigned{time.month} << '-' << unsigned{time.day} << ' ' << unsigned{time.hour} << ':'
       << unsigned{time.minute} << ':' << unsigned{time.second} << " weekday=" << static_cast<unsigned>(time.weekday)
       << " summer=" << unsigned{time.summerTime} << " set=" << time.isSet;
}
