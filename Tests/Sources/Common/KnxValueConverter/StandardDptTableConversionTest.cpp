#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "KnxValueConverterApi.h"
#include "LogCapture.h"

// Every row of the standard table end to end: a value through a freshly
// built facade onto the bus and bytes from the bus back into a value.

namespace {

using Nelmo::KnxValueConverter;
using TestSupport::LogCapture;

KNXDPT Dpt(std::uint16_t mainNumber, std::uint16_t subNumber) {
  KNXDPT dpt;
  dpt.mainNumber = mainNumber;
  dpt.subNumber = subNumber;
  return dpt;
}

std::string DptName(const KNXDPT& dpt) {
  return std::to_string(dpt.mainNumber) + "_" + std::to_string(dpt.subNumber);
}

ULOVALUE TimeOn(ULO::Weekdays::Days weekday, std::uint8_t hour, std::uint8_t minute, std::uint8_t second) {
  ULOVALUE value = ULOVALUE::Time(hour, minute, second);
  value.GetTime().weekday = weekday;
  return value;
}

ULOVALUE SummerDateTime(std::uint16_t year, std::uint8_t month, std::uint8_t day, ULO::Weekdays::Days weekday,
                        std::uint8_t hour, std::uint8_t minute, std::uint8_t second) {
  ULOTIME time;
  time.SetDate(year, month, day, true);
  time.SetTime(hour, minute, second, true);
  time.weekday = weekday;
  time.summerTime = 1;
  return ULOVALUE::DateTime(time);
}

constexpr ULO::Weekdays::Days Monday = ULO::Weekdays::Monday;
constexpr ULO::Weekdays::Days Sunday = ULO::Weekdays::Sunday;
// A conversion that is refused has no bytes or value to show.
constexpr std::nullopt_t Refused = std::nullopt;
constexpr const char* NotAdjusted = "";

const std::string Padding9 = " 00 00 00 00 00 00 00 00 00";

// ---------------------------------------------------------------------------
// Sending

struct Send {
  KNXDPT dpt;
  ULOVALUE value;
  // The bus bytes, or Refused.
  std::optional<std::string> bytes;
  // The level-1 notice of a clamped value, NotAdjusted when there is none.
  const char* adjusted;
};

const Send Sends[] = {
    {Dpt(1, 1), ULOVALUE::Bool(true), "01", NotAdjusted},
    {Dpt(1, 1), ULOVALUE::Bool(false), "00", NotAdjusted},
    {Dpt(2, 1), ULOVALUE::Bool(true), "03", NotAdjusted},
    {Dpt(2, 1), ULOVALUE::Bool(false), "02", NotAdjusted},
    {Dpt(3, 7), ULOVALUE::Double(25.0), "0B", NotAdjusted},
    {Dpt(3, 7), ULOVALUE::Double(-100.0), "01", NotAdjusted},
    {Dpt(3, 7), ULOVALUE::Double(150.0), "09",
     "The internal value of DPT=3.7, ivt=3 has been adjusted from 150 to 100 before conversion."},
    {Dpt(3, 8), ULOVALUE::Double(-250.0), "01",
     "The internal value of DPT=3.8, ivt=3 has been adjusted from -250 to -100 before conversion."},
    {Dpt(4, 0), ULOVALUE::String("z"), "7A", NotAdjusted},
    {Dpt(4, 0), ULOVALUE::String("\xC3\xA9"), Refused, NotAdjusted},
    {Dpt(4, 1), ULOVALUE::String("A"), "41", NotAdjusted},
    {Dpt(4, 1), ULOVALUE::String("\xC3\xA9"), Refused, NotAdjusted},
    {Dpt(4, 2), ULOVALUE::String("\xC3\xA9"), "E9", NotAdjusted},
    {Dpt(4, 2), ULOVALUE::String("\xE2\x82\xAC"), "E2", NotAdjusted},
    {Dpt(5, 10), ULOVALUE::Byte(200), "C8", NotAdjusted},
    {Dpt(5, 1), ULOVALUE::Double(50.0), "7F", NotAdjusted},
    {Dpt(5, 1), ULOVALUE::Double(120.0), "FF",
     "The internal value of DPT=5.1, ivt=3 has been adjusted from 120 to 100 before conversion."},
    {Dpt(5, 1), ULOVALUE::Double(-5.0), "00",
     "The internal value of DPT=5.1, ivt=3 has been adjusted from -5 to 0 before conversion."},
    {Dpt(5, 4), ULOVALUE::Double(42.0), "2A", NotAdjusted},
    {Dpt(5, 4), ULOVALUE::Double(300.0), "FF",
     "The internal value of DPT=5.4, ivt=3 has been adjusted from 300 to 255 before conversion."},
    {Dpt(5, 3), ULOVALUE::Double(180.0), "80", NotAdjusted},
    {Dpt(5, 3), ULOVALUE::Double(400.0), "FF",
     "The internal value of DPT=5.3, ivt=3 has been adjusted from 400 to 360 before conversion."},
    {Dpt(6, 10), ULOVALUE::Int32(-1), "FF", NotAdjusted},
    {Dpt(6, 10), ULOVALUE::Int32(200), "7F",
     "The internal value of DPT=6.10, ivt=4 has been adjusted from 200 to 127 before conversion."},
    {Dpt(6, 1), ULOVALUE::Double(-20.0), "EC", NotAdjusted},
    {Dpt(6, 1), ULOVALUE::Double(150.0), "7F",
     "The internal value of DPT=6.1, ivt=3 has been adjusted from 150 to 127 before conversion."},
    {Dpt(7, 1), ULOVALUE::UInt16(1000), "03 E8", NotAdjusted},
    {Dpt(7, 1), ULOVALUE::UInt32(70000), "FF FF",
     "The internal value of DPT=7.1, ivt=8 has been adjusted from 70000 to 65535 before conversion."},
    {Dpt(8, 1), ULOVALUE::Int32(-1000), "FC 18", NotAdjusted},
    {Dpt(8, 1), ULOVALUE::Int32(40000), "7F FF",
     "The internal value of DPT=8.1, ivt=4 has been adjusted from 40000 to 32767 before conversion."},
    {Dpt(8, 10), ULOVALUE::Double(21.5), "08 66", NotAdjusted},
    {Dpt(8, 10), ULOVALUE::Double(400.0), "7F FF",
     "The internal value of DPT=8.10, ivt=3 has been adjusted from 400 to 327.67 before conversion."},
    {Dpt(9, 10), ULOVALUE::Double(12.5), "04 E2", NotAdjusted},
    {Dpt(9, 10), ULOVALUE::Double(700000.0), "7F FE",
     "The internal value of DPT=9.10, ivt=3 has been adjusted from 700000 to 670761 before conversion."},
    {Dpt(9, 1), ULOVALUE::Double(21.5), "0C 33", NotAdjusted},
    {Dpt(9, 1), ULOVALUE::Double(-300.0), "A1 56",
     "The internal value of DPT=9.1, ivt=3 has been adjusted from -300 to -273 before conversion."},
    {Dpt(9, 4), ULOVALUE::Double(1000.0), "36 1B", NotAdjusted},
    {Dpt(9, 4), ULOVALUE::Double(-5.0), "00 00",
     "The internal value of DPT=9.4, ivt=3 has been adjusted from -5 to 0 before conversion."},
    {Dpt(9, 5), ULOVALUE::Double(5.5), "02 26", NotAdjusted},
    {Dpt(9, 5), ULOVALUE::Double(-1.0), "00 00",
     "The internal value of DPT=9.5, ivt=3 has been adjusted from -1 to 0 before conversion."},
    {Dpt(9, 6), ULOVALUE::Double(101325.0), "6C D5", NotAdjusted},
    {Dpt(9, 6), ULOVALUE::Double(700000.0), "7F FE",
     "The internal value of DPT=9.6, ivt=3 has been adjusted from 700000 to 670760 before conversion."},
    {Dpt(9, 7), ULOVALUE::Double(45.5), "14 72", NotAdjusted},
    {Dpt(9, 7), ULOVALUE::Double(-3.0), "00 00",
     "The internal value of DPT=9.7, ivt=3 has been adjusted from -3 to 0 before conversion."},
    {Dpt(9, 8), ULOVALUE::Double(800.0), "34 E2", NotAdjusted},
    {Dpt(9, 8), ULOVALUE::Double(-10.0), "00 00",
     "The internal value of DPT=9.8, ivt=3 has been adjusted from -10 to 0 before conversion."},
    {Dpt(9, 27), ULOVALUE::Double(70.0), "16 D6", NotAdjusted},
    {Dpt(9, 27), ULOVALUE::Double(-500.0), "AA 64",
     "The internal value of DPT=9.27, ivt=3 has been adjusted from -500 to -459.6 before conversion."},
    {Dpt(9, 28), ULOVALUE::Double(36.0), "0F 08", NotAdjusted},
    {Dpt(9, 28), ULOVALUE::Double(-1.0), "00 00",
     "The internal value of DPT=9.28, ivt=3 has been adjusted from -1 to 0 before conversion."},
    {Dpt(10, 0), TimeOn(Monday, 7, 30, 0), "07 1E 00", NotAdjusted},
    {Dpt(10, 0), ULOVALUE::Time(24, 0, 0), Refused, NotAdjusted},
    {Dpt(10, 1), TimeOn(Monday, 7, 30, 0), "27 1E 00", NotAdjusted},
    {Dpt(10, 1), TimeOn(Sunday, 23, 59, 59), "F7 3B 3B", NotAdjusted},
    {Dpt(10, 1), ULOVALUE::Time(12, 60, 0), Refused, NotAdjusted},
    {Dpt(11, 1), ULOVALUE::Date(2024, 2, 29), "1D 02 18", NotAdjusted},
    {Dpt(11, 1), ULOVALUE::Date(2089, 12, 31), "1F 0C 59", NotAdjusted},
    {Dpt(11, 1), ULOVALUE::Date(1989, 12, 31), Refused, NotAdjusted},
    {Dpt(12, 1), ULOVALUE::UInt32(123456), "00 01 E2 40", NotAdjusted},
    {Dpt(12, 1), ULOVALUE::UInt32(4294967295U), "FF FF FF FF", NotAdjusted},
    {Dpt(13, 1), ULOVALUE::Int32(-2), "FF FF FF FE", NotAdjusted},
    {Dpt(13, 1), ULOVALUE::Int32(-2147483647 - 1), "80 00 00 00", NotAdjusted},
    {Dpt(13, 100), ULOVALUE::TimeSpan(3600), "00 00 0E 10", NotAdjusted},
    {Dpt(13, 100), ULOVALUE::TimeSpan(-1), "FF FF FF FF", NotAdjusted},
    {Dpt(14, 56), ULOVALUE::Double(1013.25), "44 7D 50 00", NotAdjusted},
    {Dpt(14, 56), ULOVALUE::Double(1e39), "7F 7F FF FF",
     "The internal value of DPT=14.56, ivt=3 has been adjusted from 1e+39 to 3.40282e+38 before conversion."},
    {Dpt(15, 0), ULOVALUE::UInt32(0x12345678), "12 34 56 78", NotAdjusted},
    {Dpt(15, 0), ULOVALUE::UInt32(0), "00 00 00 00", NotAdjusted},
    {Dpt(16, 0), ULOVALUE::String("Hello"), "48 65 6C 6C 6F" + Padding9, NotAdjusted},
    {Dpt(16, 0),
     ULOVALUE::String("Gr\xC3\xBC\xC3\x9F"
                      "e"),
     "47 72 65 00 00" + Padding9, NotAdjusted},
    {Dpt(16, 1),
     ULOVALUE::String("Gr\xC3\xBC\xC3\x9F"
                      "e"),
     "47 72 FC DF 65" + Padding9, NotAdjusted},
    {Dpt(16, 1), ULOVALUE::String("Guten Morgen, Welt"), "47 75 74 65 6E 20 4D 6F 72 67 65 6E 2C 20", NotAdjusted},
    {Dpt(17, 1), ULOVALUE::Int32(1), "00", NotAdjusted},
    {Dpt(17, 1), ULOVALUE::Int32(64), "3F", NotAdjusted},
    {Dpt(17, 1), ULOVALUE::Int32(100), "3F", NotAdjusted},
    {Dpt(17, 1), ULOVALUE::Int32(0), "00", NotAdjusted},
    {Dpt(18, 1), ULOVALUE::Int32(5), "04", NotAdjusted},
    {Dpt(18, 1), ULOVALUE::Int32(-5), "84", NotAdjusted},
    {Dpt(18, 1), ULOVALUE::Int32(-100), "BF", NotAdjusted},
    {Dpt(18, 1), ULOVALUE::Int32(100), "3F", NotAdjusted},
    {Dpt(19, 1), SummerDateTime(2024, 3, 4, Monday, 7, 30, 15), "7C 03 04 27 1E 0F 21 00", NotAdjusted},
    {Dpt(19, 1), SummerDateTime(2156, 1, 1, Monday, 0, 0, 0), Refused, NotAdjusted},
    {Dpt(20, 102), ULOVALUE::Byte(2), "02", NotAdjusted},
    {Dpt(21, 1), ULOVALUE::Byte(0x81), "81", NotAdjusted},
    {Dpt(22, 101), ULOVALUE::UInt16(257), "01 01", NotAdjusted},
    {Dpt(22, 101), ULOVALUE::UInt32(70000), "FF FF",
     "The internal value of DPT=22.101, ivt=8 has been adjusted from 70000 to 65535 before conversion."},
    {Dpt(23, 102), ULOVALUE::Byte(1), "01", NotAdjusted},
    {Dpt(26, 1), ULOVALUE::Byte(0x40), "40", NotAdjusted},
    {Dpt(27, 1), ULOVALUE::UInt32(0x00030001), "00 03 00 01", NotAdjusted},
    {Dpt(232, 600), ULOVALUE::UInt32(0xFF8000), "FF 80 00", NotAdjusted},
    {Dpt(232, 600), ULOVALUE::UInt32(16777216), "FF FF FF",
     "The internal value of DPT=232.600, ivt=8 has been adjusted from 16777216 to 16777215 before conversion."},
    {Dpt(236, 1), ULOVALUE::Byte(5), "05", NotAdjusted},
    {Dpt(238, 600), ULOVALUE::Byte(0x3F), "3F", NotAdjusted},
    {Dpt(242, 600), ULOVALUE::UInt64(1108152157446ULL), "01 02 03 04 05 06", NotAdjusted},
    {Dpt(242, 600), ULOVALUE::UInt64(281474976710656ULL), "FF FF FF FF FF FF",
     "The internal value of DPT=242.600, ivt=9 has been adjusted from 281474976710656 to 281474976710655 before "
     "conversion."},
    {Dpt(250, 600), ULOVALUE::UInt32(0x0C0B01), "0C 0B 01", NotAdjusted},
    {Dpt(250, 600), ULOVALUE::UInt32(16777216), "FF FF FF",
     "The internal value of DPT=250.600, ivt=8 has been adjusted from 16777216 to 16777215 before conversion."},
};

class StandardDptTableSend : public ::testing::TestWithParam<Send> {};

TEST_P(StandardDptTableSend, WritesTheBusBytes) {
  const Send& send = GetParam();
  const KnxValueConverter converter;
  const LogCapture capture(ULO_LOG_INFO);
  KNXDPT dpt = send.dpt;
  KnxStack::GroupValue groupValue;

  const bool converted = converter.ToKnxValue(dpt, send.value, groupValue);

  EXPECT_EQ(converted, send.bytes.has_value());
  if (send.bytes) {
    EXPECT_EQ(groupValue.GetRawData().ToString(), *send.bytes);
  }
  std::vector<std::string> notices;
  for (const TestSupport::LogLine& line : capture.Lines()) {
    if (line.level == ULO_LOG_INFO) {
      notices.push_back(line.text);
    }
  }
  EXPECT_EQ(notices,
            std::string(send.adjusted).empty() ? std::vector<std::string>{} : std::vector<std::string>{send.adjusted});
}

INSTANTIATE_TEST_SUITE_P(AllRows, StandardDptTableSend, ::testing::ValuesIn(Sends),
                         [](const ::testing::TestParamInfo<Send>& info) {
                           return DptName(info.param.dpt) + "_" + std::to_string(info.index);
                         });

// ---------------------------------------------------------------------------
// Receiving

struct Receive {
  KNXDPT dpt;
  // The bus bytes and the group value's defined size.
  std::vector<unsigned char> bytes;
  unsigned int bits;
  // The value's type, and its text or Refused.
  UloValueType type;
  std::optional<std::string> text;
};

const std::vector<unsigned char> Hello = {0x48, 0x65, 0x6C, 0x6C, 0x6F, 0, 0, 0, 0, 0, 0, 0, 0, 0};
const std::vector<unsigned char> Greetings = {0x47, 0x72, 0xFC, 0xDF, 0x65, 0, 0, 0, 0, 0, 0, 0, 0, 0};

const Receive Receives[] = {
    {Dpt(1, 1), {0x01}, 1, IVT_BOOL, "true"},
    {Dpt(1, 1), {0x00}, 1, IVT_BOOL, "false"},
    {Dpt(2, 1), {0x03}, 2, IVT_BOOL, "true"},
    {Dpt(2, 1), {0x02}, 2, IVT_BOOL, "false"},
    {Dpt(2, 1), {0x01}, 2, IVT_BOOL, "true"},
    {Dpt(3, 7), {0x0B}, 4, IVT_DOUBLE, "25"},
    {Dpt(3, 7), {0x01}, 4, IVT_DOUBLE, "-100"},
    {Dpt(3, 7), {0x08}, 4, IVT_DOUBLE, "0"},
    {Dpt(4, 0), {0x7A}, 8, IVT_STRING, "z"},
    {Dpt(4, 1), {0x41}, 8, IVT_STRING, "A"},
    {Dpt(4, 1), {0xE9}, 8, IVT_STRING, Refused},
    {Dpt(4, 2), {0xE9}, 8, IVT_STRING, "\xC3\xA9"},
    {Dpt(5, 10), {0xC8}, 8, IVT_BYTE, "200"},
    {Dpt(5, 1), {0x80}, 8, IVT_DOUBLE, "50.196078431372555"},
    {Dpt(5, 1), {0xFF}, 8, IVT_DOUBLE, "100"},
    {Dpt(5, 4), {0x2A}, 8, IVT_DOUBLE, "42"},
    {Dpt(5, 3), {0x80}, 8, IVT_DOUBLE, "180.70588235294116"},
    {Dpt(6, 10), {0xFF}, 8, IVT_INT32, "-1"},
    {Dpt(6, 10), {0x80}, 8, IVT_INT32, "-128"},
    {Dpt(6, 1), {0xEC}, 8, IVT_DOUBLE, "-20"},
    {Dpt(7, 1), {0x03, 0xE8}, 16, IVT_UINT16, "1000"},
    {Dpt(7, 1), {0xFF, 0xFF}, 16, IVT_UINT16, "65535"},
    {Dpt(8, 1), {0xFC, 0x18}, 16, IVT_INT32, "-1000"},
    {Dpt(8, 10), {0x08, 0x66}, 16, IVT_DOUBLE, "21.5"},
    {Dpt(8, 10), {0x80, 0x00}, 16, IVT_DOUBLE, "-327.68"},
    {Dpt(9, 10), {0x04, 0xE2}, 16, IVT_DOUBLE, "12.5"},
    {Dpt(9, 10), {0x7F, 0xFF}, 16, IVT_NONE, ""},
    {Dpt(9, 1), {0x8A, 0x24}, 16, IVT_DOUBLE, "-30"},
    {Dpt(9, 1), {0xA1, 0x56}, 16, IVT_DOUBLE, "-272.96"},
    {Dpt(9, 1), {0x0C}, 8, IVT_DOUBLE, Refused},
    {Dpt(9, 4), {0x36, 0x1B}, 16, IVT_DOUBLE, "1000.32"},
    {Dpt(9, 5), {0x02, 0x26}, 16, IVT_DOUBLE, "5.5"},
    {Dpt(9, 6), {0x36, 0x1B}, 16, IVT_DOUBLE, "1000.32"},
    {Dpt(9, 7), {0x14, 0x72}, 16, IVT_DOUBLE, "45.52"},
    {Dpt(9, 8), {0x34, 0xE2}, 16, IVT_DOUBLE, "800"},
    {Dpt(9, 27), {0x16, 0xD6}, 16, IVT_DOUBLE, "70"},
    {Dpt(9, 28), {0x0F, 0x08}, 16, IVT_DOUBLE, "36"},
    {Dpt(10, 0), {0x27, 0x1E, 0x00}, 24, IVT_TIME, "07:30:00"},
    {Dpt(10, 0), {0x18, 0x00, 0x00}, 24, IVT_TIME, Refused},
    {Dpt(10, 1), {0xF7, 0x3B, 0x3B}, 24, IVT_TIME, "23:59:59"},
    {Dpt(11, 1), {0x1D, 0x02, 0x18}, 24, IVT_DATE, "2024-02-29"},
    {Dpt(11, 1), {0x1E, 0x02, 0x18}, 24, IVT_DATE, Refused},
    {Dpt(12, 1), {0xFF, 0xFF, 0xFF, 0xFF}, 32, IVT_UINT32, "4294967295"},
    {Dpt(13, 1), {0x80, 0x00, 0x00, 0x00}, 32, IVT_INT32, "-2147483648"},
    {Dpt(13, 100), {0x00, 0x00, 0x0E, 0x10}, 32, IVT_TIMESPAN, "3600"},
    {Dpt(14, 56), {0x44, 0x7D, 0x50, 0x00}, 32, IVT_DOUBLE, "1013.25"},
    {Dpt(14, 56), {0x7F, 0xC0, 0x00, 0x00}, 32, IVT_NONE, ""},
    {Dpt(15, 0), {0x12, 0x34, 0x56, 0x78}, 32, IVT_UINT32, "305419896"},
    {Dpt(16, 0), Hello, 112, IVT_STRING, "Hello"},
    {Dpt(16, 0), Greetings, 112, IVT_STRING, "Gre"},
    {Dpt(16, 0), {0x48, 0x65}, 16, IVT_STRING, Refused},
    {Dpt(16, 1), Greetings, 112, IVT_STRING,
     "Gr\xC3\xBC\xC3\x9F"
     "e"},
    {Dpt(17, 1), {0x3F}, 8, IVT_INT32, "64"},
    {Dpt(17, 1), {0xC8}, 8, IVT_INT32, "64"},
    {Dpt(18, 1), {0x84}, 8, IVT_INT32, "-5"},
    {Dpt(18, 1), {0x04}, 8, IVT_INT32, "5"},
    {Dpt(18, 1), {0xFF}, 8, IVT_INT32, "-64"},
    {Dpt(19, 1), {0x7C, 0x03, 0x04, 0x27, 0x1E, 0x0F, 0x21, 0x00}, 64, IVT_DATETIME, "2024-03-04 07:30:15"},
    {Dpt(20, 102), {0x02}, 8, IVT_BYTE, "2"},
    {Dpt(21, 1), {0x81}, 8, IVT_BYTE, "129"},
    {Dpt(22, 101), {0x01, 0x01}, 16, IVT_UINT16, "257"},
    {Dpt(23, 102), {0x01}, 8, IVT_BYTE, "1"},
    {Dpt(26, 1), {0x40}, 8, IVT_BYTE, "64"},
    {Dpt(27, 1), {0x00, 0x03, 0x00, 0x01}, 32, IVT_UINT32, "196609"},
    {Dpt(232, 600), {0xFF, 0x80, 0x00}, 24, IVT_UINT32, "16744448"},
    {Dpt(236, 1), {0x05}, 8, IVT_BYTE, "5"},
    {Dpt(238, 600), {0x3F}, 8, IVT_BYTE, "63"},
    {Dpt(242, 600), {0x01, 0x02, 0x03, 0x04, 0x05, 0x06}, 48, IVT_UINT64, "1108152157446"},
    {Dpt(242, 600), {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}, 48, IVT_UINT64, "281474976710655"},
    {Dpt(250, 600), {0x0C, 0x0B, 0x01}, 24, IVT_UINT32, "789249"},
};

class StandardDptTableReceive : public ::testing::TestWithParam<Receive> {};

TEST_P(StandardDptTableReceive, ReadsTheBusBytes) {
  const Receive& receive = GetParam();
  const KnxValueConverter converter;
  const LogCapture capture(ULO_LOG_ERROR);
  KNXDPT dpt = receive.dpt;
  const KnxStack::GroupValue groupValue(
      KnxStack::BinaryData(receive.bytes.data(), static_cast<unsigned int>(receive.bytes.size())), receive.bits);
  ULOVALUE value;

  const bool converted = converter.FromKnxValue(dpt, groupValue, value);

  EXPECT_EQ(converted, receive.text.has_value());
  EXPECT_EQ(value.GetType(), receive.type);
  if (receive.text) {
    EXPECT_EQ(value.ToString(), *receive.text);
    EXPECT_TRUE(capture.Lines().empty());
  } else {
    EXPECT_FALSE(capture.Lines().empty());
  }
  if (receive.type == IVT_NONE) {
    EXPECT_TRUE(std::isnan(value.GetDouble()));
  }
}

INSTANTIATE_TEST_SUITE_P(AllRows, StandardDptTableReceive, ::testing::ValuesIn(Receives),
                         [](const ::testing::TestParamInfo<Receive>& info) {
                           return DptName(info.param.dpt) + "_" + std::to_string(info.index);
                         });

// Every row of the table appears in both directions above.
TEST(StandardDptTableConversion, CoversEveryRow) {
  const KnxValueConverter converter;
  std::vector<const Nelmo::DptValueEntry*> sent;
  std::vector<const Nelmo::DptValueEntry*> received;
  for (const Send& send : Sends) {
    sent.push_back(&converter.GetEntry(send.dpt));
  }
  for (const Receive& receive : Receives) {
    received.push_back(&converter.GetEntry(receive.dpt));
  }
  for (const auto& [mainNumber, rows] : converter.GetDptValueMap().GetEntries()) {
    for (const auto& [subNumber, entry] : rows) {
      EXPECT_NE(std::find(sent.begin(), sent.end(), &entry), sent.end()) << mainNumber << "." << subNumber;
      EXPECT_NE(std::find(received.begin(), received.end(), &entry), received.end()) << mainNumber << "." << subNumber;
    }
  }
}

}  // namespace
