#include "StandardRowSamples.h"

namespace TestSupport {

namespace {

KNXDPT Dpt(std::uint16_t mainNumber, std::uint16_t subNumber, std::uint8_t bitSize) {
  KNXDPT dpt;
  dpt.bitSize = bitSize;
  dpt.mainNumber = mainNumber;
  dpt.subNumber = subNumber;
  return dpt;
}

ULOVALUE TimeOfDay(std::uint8_t hour, std::uint8_t minute, std::uint8_t second, ULO::Weekdays::Days weekday) {
  ULOVALUE value = ULOVALUE::Time(hour, minute, second);
  value.GetTime().weekday = weekday;
  return value;
}

ULOVALUE DateAndTime() {
  ULOTIME time;
  time.Clear(true);
  time.SetDate(2024, 2, 29, true);
  time.SetTime(12, 34, 56, true);
  time.weekday = ULO::Weekdays::Thursday;
  time.summerTime = 0;
  return ULOVALUE::DateTime(time);
}

}  // namespace

const std::vector<RowSample>& StandardRowSamples() {
  using ULO::Weekdays;
  static const std::vector<RowSample> samples{
      {"1.000", Dpt(1, 0, 1), ULOVALUE::Bool(true), {0x01}},
      {"2.000", Dpt(2, 0, 2), ULOVALUE::Bool(true), {0x03}},
      {"3.000", Dpt(3, 0, 4), ULOVALUE::Double(25.0), {0x0B}},
      {"4.000", Dpt(4, 0, 8), ULOVALUE::String("A"), {0x41}},
      {"4.001", Dpt(4, 1, 8), ULOVALUE::String("K"), {0x4B}},
      {"4.002", Dpt(4, 2, 8), ULOVALUE::String("\xC3\xA9"), {0xE9}},
      {"5.000", Dpt(5, 0, 8), ULOVALUE::Byte(200), {0xC8}},
      {"5.001", Dpt(5, 1, 8), ULOVALUE::Double(100.0), {0xFF}},
      {"5.004", Dpt(5, 4, 8), ULOVALUE::Double(128.0), {0x80}},
      {"5.003", Dpt(5, 3, 8), ULOVALUE::Double(180.0), {0x80}},
      {"6.000", Dpt(6, 0, 8), ULOVALUE::Int32(-5), {0xFB}},
      {"6.001", Dpt(6, 1, 8), ULOVALUE::Double(-50.0), {0xCE}},
      {"7.000", Dpt(7, 0, 16), ULOVALUE::UInt16(1000), {0x03, 0xE8}},
      {"8.000", Dpt(8, 0, 16), ULOVALUE::Int32(-1000), {0xFC, 0x18}},
      {"8.010", Dpt(8, 10, 16), ULOVALUE::Double(21.5), {0x08, 0x66}},
      {"9.000", Dpt(9, 0, 16), ULOVALUE::Double(-30.0), {0x8A, 0x24}},
      {"9.001", Dpt(9, 1, 16), ULOVALUE::Double(21.5), {0x0C, 0x33}},
      {"9.004", Dpt(9, 4, 16), ULOVALUE::Double(20.48), {0x0C, 0x00}},
      {"9.005", Dpt(9, 5, 16), ULOVALUE::Double(20.47), {0x07, 0xFF}},
      {"9.006", Dpt(9, 6, 16), ULOVALUE::Double(10.0), {0x03, 0xE8}},
      {"9.007", Dpt(9, 7, 16), ULOVALUE::Double(5.0), {0x01, 0xF4}},
      {"9.008", Dpt(9, 8, 16), ULOVALUE::Double(1.0), {0x00, 0x64}},
      {"9.027", Dpt(9, 27, 16), ULOVALUE::Double(-0.005), {0x87, 0xFF}},
      {"9.028", Dpt(9, 28, 16), ULOVALUE::Double(0.5), {0x00, 0x32}},
      {"10.000", Dpt(10, 0, 24), TimeOfDay(12, 34, 56, Weekdays::Monday), {0x0C, 0x22, 0x38}},
      {"10.001", Dpt(10, 1, 24), TimeOfDay(12, 34, 56, Weekdays::Sunday), {0xEC, 0x22, 0x38}},
      {"11.000", Dpt(11, 0, 24), ULOVALUE::Date(2024, 2, 29), {0x1D, 0x02, 0x18}},
      {"12.000", Dpt(12, 0, 32), ULOVALUE::UInt32(4294967295u), {0xFF, 0xFF, 0xFF, 0xFF}},
      {"13.000", Dpt(13, 0, 32), ULOVALUE::Int32(-2), {0xFF, 0xFF, 0xFF, 0xFE}},
      {"13.100", Dpt(13, 100, 32), ULOVALUE::TimeSpan(3600), {0x00, 0x00, 0x0E, 0x10}},
      {"14.000", Dpt(14, 0, 32), ULOVALUE::Double(1.5), {0x3F, 0xC0, 0x00, 0x00}},
      {"15.000", Dpt(15, 0, 32), ULOVALUE::UInt32(0x12345678u), {0x12, 0x34, 0x56, 0x78}},
      {"16.000", Dpt(16, 0, 112), ULOVALUE::String("Hello"), {'H', 'e', 'l', 'l', 'o', 0, 0, 0, 0, 0, 0, 0, 0, 0}},
      {"16.001",
       Dpt(16, 1, 112),
       ULOVALUE::String("Gr\xC3\xBC\xC3\x9F"
                        "e"),
       {'G', 'r', 0xFC, 0xDF, 'e', 0, 0, 0, 0, 0, 0, 0, 0, 0}},
      {"17.000", Dpt(17, 0, 8), ULOVALUE::Int32(5), {0x04}},
      {"18.000", Dpt(18, 0, 8), ULOVALUE::Int32(-5), {0x84}},
      {"19.000", Dpt(19, 0, 64), DateAndTime(), {0x7C, 0x02, 0x1D, 0x8C, 0x22, 0x38, 0x20, 0x00}},
      {"20.000", Dpt(20, 0, 8), ULOVALUE::Byte(2), {0x02}},
      {"21.000", Dpt(21, 0, 8), ULOVALUE::Byte(0x81), {0x81}},
      {"22.000", Dpt(22, 0, 16), ULOVALUE::UInt16(0x0102), {0x01, 0x02}},
      {"23.000", Dpt(23, 0, 8), ULOVALUE::Byte(3), {0x03}},
      {"26.000", Dpt(26, 0, 8), ULOVALUE::Byte(0x3F), {0x3F}},
      {"27.000", Dpt(27, 0, 32), ULOVALUE::UInt32(0x0000FFFFu), {0x00, 0x00, 0xFF, 0xFF}},
      {"232.000", Dpt(232, 0, 24), ULOVALUE::UInt32(0x00FF8000u), {0xFF, 0x80, 0x00}},
      {"236.000", Dpt(236, 0, 8), ULOVALUE::Byte(0x15), {0x15}},
      {"238.000", Dpt(238, 0, 8), ULOVALUE::Byte(0x40), {0x40}},
      {"242.000", Dpt(242, 0, 48), ULOVALUE::UInt64(1108152157446ull), {0x01, 0x02, 0x03, 0x04, 0x05, 0x06}},
      {"250.000", Dpt(250, 0, 24), ULOVALUE::UInt32(0x000A0B0Cu), {0x0A, 0x0B, 0x0C}},
  };
  return samples;
}

}  // namespace TestSupport
