#include <gtest/gtest.h>

#include <string>

#include "JsonWriter.h"

namespace {

using namespace Knxconv;

struct WriterCase {
  Json value;
  const char* line;
};

// Each value as the one member "v"; the line as JsonLine writes it.
const WriterCase WriterCases[] = {
    {Json("plain text"), R"({"v":"plain text"})"},
    {Json(R"(say "hi" \ bye)"), R"({"v":"say \"hi\" \\ bye"})"},
    {Json("tab\tnew\nline"), R"({"v":"tab\tnew\nline"})"},
    {Json("bell\x07"), R"({"v":"bell\u0007"})"},
    {Json("del\x7F"), R"({"v":"del\u007f"})"},
    {Json("c1\xC2\x85"), R"({"v":"c1\u0085"})"},
    {Json("21.5 \xC2\xB0"
          "C"),
     "{\"v\":\"21.5 \xC2\xB0"
     "C\"}"},
    {Json("bad\xFF"), "{\"v\":\"bad\xEF\xBF\xBD\"}"},
    {Json(true), R"({"v":true})"},
    {Json(nullptr), R"({"v":null})"},
    {Json(-7), R"({"v":-7})"},
    {Json(4000U), R"({"v":4000})"},
    {Json(30.0), R"({"v":30.0})"},
    {Json(21.52), R"({"v":21.52})"},
    {Json::array({"fault", "summer time"}), R"({"v":["fault","summer time"]})"},
};

TEST(JsonObjectWriter, WritesEachValueAsJsonLine) {
  std::string line = "left over";
  for (const WriterCase& row : WriterCases) {
    JsonObjectWriter json(line);
    json.Value("v", row.value);
    json.Close();
    EXPECT_EQ(line, row.line);
  }
}

}  // namespace
