#include <gtest/gtest.h>

#include <limits>
#include <sstream>
#include <string>
#include <vector>

#include "MakeDpt.h"
#include "Output.h"

namespace {

using namespace Knxconv;

using TestSupport::MakeDpt;

ULOVALUE Typed(ULOVALUE value, UloValueType type) {
  value.SetType(type);
  return value;
}

struct JsonCase {
  ULOVALUE value;
  const char* json;
};

const JsonCase JsonCases[] = {
    {ULOVALUE::Bool(true), "true"},
    {ULOVALUE::Double(21.5), "21.5"},
    {ULOVALUE::Double(50.196078431372555), "50.196078431372555"},
    {ULOVALUE::Double(std::numeric_limits<double>::quiet_NaN()), "null"},
    {ULOVALUE::Double(1.0, IVT_PERCENT), "1.0"},
    {ULOVALUE::Int32(-5), "-5"},
    {ULOVALUE::TimeSpan(3600), "3600"},
    {ULOVALUE::Byte(200), "200"},
    {ULOVALUE::UInt16(65535), "65535"},
    {ULOVALUE::UInt32(4294967295U), "4294967295"},
    {ULOVALUE::UInt64(18446744073709551615ULL), "18446744073709551615"},
    {ULOVALUE::String("Gr\xC3\xBC\xC3\x9F"
                      "e \"x\""),
     "\"Grüße \\\"x\\\"\""},
    {ULOVALUE::String("\xFF"), "\"\xEF\xBF\xBD\""},
    {ULOVALUE::Date(2024, 2, 29), "\"2024-02-29\""},
    {ULOVALUE::Time(12, 34, 56), "\"12:34:56\""},
    {Typed(ULOVALUE::Double(1.0), IVT_NONE), "null"},
    {ULOVALUE(), "null"},
};

class OutputValueJson : public ::testing::TestWithParam<JsonCase> {};

TEST_P(OutputValueJson, WritesBooleansAndNumbersAsSuchAndTheRestAsText) {
  EXPECT_EQ(JsonLine(ValueJson(GetParam().value)), GetParam().json);
}

INSTANTIATE_TEST_SUITE_P(Values, OutputValueJson, ::testing::ValuesIn(JsonCases));

TEST(Output, EncodeJsonHasDptBitsAndHex) {
  KnxStack::GroupValue groupValue;
  groupValue.SetAsFloat16(21.5);
  EXPECT_EQ(JsonLine(EncodeJson(MakeDpt(9, 1), groupValue)), R"({"dpt":"9.001","bits":16,"hex":"0C 33"})");
}

TEST(Output, DecodeJsonHasDptTypeSubtypeValueNameAndUnit) {
  TraceResult result;
  result.dpt = MakeDpt(9, 1);
  result.value = ULOVALUE::Double(21.5);
  result.subType = UloDP::IVST_TEMPERATURE;
  result.bytes = {0x0C, 0x33};
  EXPECT_EQ(JsonLine(DecodeJson(result)), R"({"dpt":"9.001","type":"IVT_DOUBLE","subtype":"IVST_TEMPERATURE",)"
                                          R"("value":21.5,"name":"DPT_Value_Temp","unit":"°C"})");
  EXPECT_EQ(DecodeText(result), "21.5 °C");
}

TableRow Row(std::uint8_t bits, std::uint16_t mainNumber, std::uint16_t subNumber, const char* label, UloValueType type,
             const char* converter, std::optional<std::string> range, const char* name = "", const char* unit = "") {
  TableRow row;
  row.name = name;
  row.unit = unit;
  row.dpt = MakeDpt(mainNumber, subNumber);
  row.dpt.bitSize = bits;
  row.label = label;
  row.valueType = type;
  row.converter = converter;
  row.range = std::move(range);
  return row;
}

const std::vector<TableRow> Rows = {
    Row(1, 1, 0, "1.x", IVT_BOOL, "KnxConverter1Bit", std::nullopt),
    Row(16, 232, 0, "232.x", IVT_UINT32, "KnxConverterInteger24BitUnsigned", "LongIntegerRange(0, 1, 0, 1)"),
    Row(16, 9, 1, "9.001", IVT_DOUBLE, "KnxConverterFloat16BitFloat", std::nullopt, "DPT_Value_Temp", "°C"),
};

TEST(Output, TableTextAlignsTheColumns) {
  EXPECT_EQ(TableText(Rows),
            "1.000    1.x    -               -   1   IVT_BOOL    IVST_NONE  KnxConverter1Bit                  -\n"
            "232.000  232.x  -               -   16  IVT_UINT32  IVST_NONE  KnxConverterInteger24BitUnsigned  "
            "LongIntegerRange(0, 1, 0, 1)\n"
            "9.001    9.001  DPT_Value_Temp  °C  16  IVT_DOUBLE  IVST_NONE  KnxConverterFloat16BitFloat       -\n");
}

TEST(Output, TableJsonIsAnArrayOfRows) {
  EXPECT_EQ(
      JsonLine(TableJson(Rows)),
      R"([{"dpt":"1.000","label":"1.x","name":null,"unit":null,"bits":1,"type":"IVT_BOOL",)"
      R"("subtype":"IVST_NONE","converter":"KnxConverter1Bit","range":null},)"
      R"({"dpt":"232.000","label":"232.x","name":null,"unit":null,"bits":16,"type":"IVT_UINT32",)"
      R"json("subtype":"IVST_NONE","converter":"KnxConverterInteger24BitUnsigned","range":"LongIntegerRange(0, 1, 0, 1)"},)json"
      R"({"dpt":"9.001","label":"9.001","name":"DPT_Value_Temp","unit":"°C","bits":16,"type":"IVT_DOUBLE",)"
      R"("subtype":"IVST_NONE","converter":"KnxConverterFloat16BitFloat","range":null}])");
}

TraceResult Result(const char* dptText, std::optional<KNXDPT> dpt) {
  TraceResult result;
  result.telegram.lineNumber = 7;
  result.telegram.time = "07:00:00.000";
  result.telegram.source = "1.1.10";
  result.telegram.destination = "1/0/1";
  result.telegram.dpt = dptText;
  result.telegram.payload = "0C 33";
  result.dpt = dpt;
  return result;
}

TEST(Output, TraceLineOfAConvertedTelegram) {
  TraceResult result = Result("9.1", MakeDpt(9, 1));
  result.converted = true;
  result.value = ULOVALUE::Double(21.499999999999996);
  result.text = "21.5";
  result.subType = UloDP::IVST_TEMPERATURE;
  result.bytes = {0x0C, 0x33};
  // The text shows the value as the command wrote it, JSON the exact double.
  EXPECT_EQ(TraceText(result), "07:00:00.000  1.1.10    -> 1/0/1      9.001    0C 33                   21.5 °C");
  std::string line;
  TraceJson(result, line);
  EXPECT_EQ(line, R"({"line":7,"time":"07:00:00.000","source":"1.1.10","destination":"1/0/1","dpt":"9.001",)"
                  R"("payload":"0C 33","type":"IVT_DOUBLE","subtype":"IVST_TEMPERATURE","value":21.499999999999996,)"
                  R"("name":"DPT_Value_Temp","unit":"°C"})");
}

TEST(Output, TraceLineOfAMissingValueSaysSo) {
  TraceResult result = Result("9.001", MakeDpt(9, 1));
  result.converted = true;
  result.value = Typed(ULOVALUE::Double(std::numeric_limits<double>::quiet_NaN()), IVT_NONE);
  EXPECT_EQ(TraceText(result), "07:00:00.000  1.1.10    -> 1/0/1      9.001    0C 33                   no value");
}

TEST(Output, TraceLineOfARefusedTelegram) {
  TraceResult result = Result("9.x.1", std::nullopt);
  result.error = "not a DPT";
  EXPECT_EQ(TraceText(result),
            "07:00:00.000  1.1.10    -> 1/0/1      9.x.1    0C 33                   error: not a DPT");
  std::string line;
  TraceJson(result, line);
  EXPECT_EQ(line, R"({"line":7,"time":"07:00:00.000","source":"1.1.10","destination":"1/0/1","dpt":"9.x.1",)"
                  R"("payload":"0C 33","error":"not a DPT"})");
}

}  // namespace
