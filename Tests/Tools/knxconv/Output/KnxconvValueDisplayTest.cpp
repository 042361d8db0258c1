#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "MakeDpt.h"
#include "ValueDisplay.h"

namespace {

using namespace Knxconv;

using TestSupport::MakeDpt;

ULOVALUE Time(unsigned hour, unsigned minute, unsigned second) {
  return ULOVALUE::Time(static_cast<unsigned char>(hour), static_cast<unsigned char>(minute),
                        static_cast<unsigned char>(second));
}

ULOVALUE DateTime(unsigned hour) {
  ULOTIME time;
  time.SetDate(2024, 3, 4, true);
  time.SetTime(static_cast<unsigned char>(hour), 0, 0, true);
  return ULOVALUE::DateTime(time);
}

struct DisplayCase {
  std::uint16_t mainNumber;
  std::uint16_t subNumber;
  ULOVALUE value;
  std::vector<unsigned char> bytes;
  const char* text;
  const char* json;
};

const DisplayCase DisplayCases[] = {
    {9, 1, ULOVALUE::Double(21.5), {0x0C, 0x33}, "21.5 °C", R"({"name":"DPT_Value_Temp","unit":"°C"})"},
    {5, 1, ULOVALUE::Double(100), {0xFF}, "100 %", R"({"name":"DPT_Scaling","unit":"%"})"},
    {9, 0, ULOVALUE::Double(21.5), {0x0C, 0x33}, "21.5", R"({"name":null,"unit":null})"},
    {9,
     1,
     ULOVALUE::Double(std::numeric_limits<double>::quiet_NaN()),
     {0x7F, 0xFF},
     "nan",
     R"({"name":"DPT_Value_Temp","unit":"°C"})"},
    {1, 8, ULOVALUE::Bool(true), {0x01}, "down", R"({"name":"DPT_UpDown","unit":null,"valueName":"down"})"},
    {1, 1, ULOVALUE::Bool(false), {0x00}, "off", R"({"name":"DPT_Switch","unit":null,"valueName":"off"})"},
    {1, 0, ULOVALUE::Bool(true), {0x01}, "true", R"({"name":null,"unit":null})"},
    {20, 102, ULOVALUE::Byte(1), {0x01}, "Comfort", R"({"name":"DPT_HVACMode","unit":null,"valueName":"Comfort"})"},
    {20, 102, ULOVALUE::Byte(9), {0x09}, "9", R"({"name":"DPT_HVACMode","unit":null})"},
    {2,
     1,
     ULOVALUE::Bool(true),
     {0x03},
     "control, on",
     R"({"name":"DPT_Switch_Control","unit":null,"fields":{"control":true,"value":true}})"},
    {2,
     1,
     ULOVALUE::Bool(false),
     {0x00},
     "no control, off",
     R"({"name":"DPT_Switch_Control","unit":null,"fields":{"control":false,"value":false}})"},
    {3,
     8,
     ULOVALUE::Double(-50),
     {0x04},
     "up 4",
     R"({"name":"DPT_Control_Blinds","unit":null,"fields":{"direction":"up","step":4}})"},
    {3,
     7,
     ULOVALUE::Double(25),
     {0x0B},
     "increase 3",
     R"({"name":"DPT_Control_Dimming","unit":null,"fields":{"direction":"increase","step":3}})"},
    {3,
     7,
     ULOVALUE::Double(0),
     {0x08},
     "stop",
     R"({"name":"DPT_Control_Dimming","unit":null,"fields":{"direction":"increase","step":0}})"},
    {10,
     1,
     Time(12, 34, 56),
     {0x2C, 0x22, 0x38},
     "Mon 12:34:56",
     R"({"name":"DPT_TimeOfDay","unit":null,"weekday":"Mon"})"},
    {10,
     1,
     Time(12, 34, 56),
     {0xEC, 0x22, 0x38},
     "Sun 12:34:56",
     R"({"name":"DPT_TimeOfDay","unit":null,"weekday":"Sun"})"},
    {10, 1, Time(12, 34, 56), {0x0C, 0x22, 0x38}, "12:34:56", R"({"name":"DPT_TimeOfDay","unit":null})"},
    {19,
     1,
     DateTime(6),
     {0x7C, 0x03, 0x04, 0x26, 0x00, 0x00, 0x40, 0x80},
     "Mon 2024-03-04 06:00:00 (working day, clock quality)",
     R"({"name":"DPT_DateTime","unit":null,"weekday":"Mon","flags":["working day","clock quality"]})"},
    {19,
     1,
     DateTime(6),
     {0x7C, 0x03, 0x04, 0x06, 0x00, 0x00, 0xFF, 0x40},
     "2024-03-04 06:00:00 (fault, working day, no working day, no year, no date, no day of week, no time, summer "
     "time, reliable sync source)",
     R"({"name":"DPT_DateTime","unit":null,"flags":["fault","working day","no working day","no year","no date",)"
     R"("no day of week","no time","summer time","reliable sync source"]})"},
    {17, 1, ULOVALUE::Int32(3), {0x02}, "scene 3", R"({"name":"DPT_SceneNumber","unit":null,"fields":{"scene":3}})"},
    {18,
     1,
     ULOVALUE::Int32(-3),
     {0x82},
     "learn scene 3",
     R"({"name":"DPT_SceneControl","unit":null,"fields":{"scene":3,"learn":true}})"},
    {18,
     1,
     ULOVALUE::Int32(64),
     {0x3F},
     "activate scene 64",
     R"({"name":"DPT_SceneControl","unit":null,"fields":{"scene":64,"learn":false}})"},
    {232,
     600,
     ULOVALUE::UInt32(16747520),
     {0xFF, 0x8C, 0x00},
     "#FF8C00",
     R"({"name":"DPT_Colour_RGB","unit":null,"fields":{"red":255,"green":140,"blue":0}})"},
    {232, 0, ULOVALUE::UInt32(16747520), {0xFF, 0x8C, 0x00}, "16747520", R"({"name":null,"unit":null})"},
};

class ValueDisplayForms : public ::testing::TestWithParam<DisplayCase> {};

TEST_P(ValueDisplayForms, ShowWhatTheBusSaid) {
  const DisplayCase& row = GetParam();
  const ValueDisplay display =
      DisplayValue(MakeDpt(row.mainNumber, row.subNumber), row.value, row.bytes, row.value.ToString());
  EXPECT_EQ(display.text, row.text);
  EXPECT_EQ(JsonLine(DisplayMembers(display)), row.json);
}

INSTANTIATE_TEST_SUITE_P(Forms, ValueDisplayForms, ::testing::ValuesIn(DisplayCases));

}  // namespace
