#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "InputError.h"
#include "TraceReader.h"

namespace {

using namespace Knxconv;

std::vector<Telegram> ReadAll(const std::string& text) {
  std::istringstream in(text);
  TraceReader reader(in);
  std::vector<Telegram> telegrams;
  Telegram telegram;
  while (reader.Next(telegram)) {
    telegrams.push_back(telegram);
  }
  return telegrams;
}

std::string ErrorOf(const std::string& text) {
  try {
    ReadAll(text);
  } catch (const InputError& error) {
    return error.what();
  }
  return "no error";
}

TEST(TraceReader, ReadsTheFieldsOfEachTelegram) {
  const auto telegrams = ReadAll(
      "time,source,destination,dpt,payload\n"
      "06:00:00.015,1.1.1,0/0/1,9.001,0C 33\n"
      "06:00:01.000,1.1.2,0/0/2,1.001,01\n");
  ASSERT_EQ(telegrams.size(), 2U);
  EXPECT_EQ(telegrams[0].lineNumber, 2U);
  EXPECT_EQ(telegrams[0].time, "06:00:00.015");
  EXPECT_EQ(telegrams[0].source, "1.1.1");
  EXPECT_EQ(telegrams[0].destination, "0/0/1");
  EXPECT_EQ(telegrams[0].dpt, "9.001");
  EXPECT_EQ(telegrams[0].payload, "0C 33");
  EXPECT_EQ(telegrams[0].error, "");
  EXPECT_EQ(telegrams[1].lineNumber, 3U);
  EXPECT_EQ(telegrams[1].payload, "01");
}

TEST(TraceReader, SkipsCommentsAndEmptyLinesAndCutsBlanks) {
  const auto telegrams = ReadAll(
      "# a trace\n"
      "\n"
      " time , source , destination , dpt , payload \n"
      "# lights\n"
      "   \n"
      " 07:00:00 , 1.1.10 , 1/0/1 , 1.001 , 01 \n");
  ASSERT_EQ(telegrams.size(), 1U);
  EXPECT_EQ(telegrams[0].lineNumber, 6U);
  EXPECT_EQ(telegrams[0].time, "07:00:00");
  EXPECT_EQ(telegrams[0].payload, "01");
}

TEST(TraceReader, ReadsWindowsLineEndsAndAByteOrderMark) {
  const auto telegrams = ReadAll(
      "\xEF\xBB\xBFtime,source,destination,dpt,payload\r\n"
      "07:00:00,1.1.10,1/0/1,1.001,01\r\n");
  ASSERT_EQ(telegrams.size(), 1U);
  EXPECT_EQ(telegrams[0].payload, "01");
}

TEST(TraceReader, ReadsALastLineWithoutLineEnd) {
  const auto telegrams = ReadAll("time,source,destination,dpt,payload\n07:00:00,1.1.10,1/0/1,1.001,01");
  ASSERT_EQ(telegrams.size(), 1U);
  EXPECT_EQ(telegrams[0].payload, "01");
}

TEST(TraceReader, MarksLinesWithTheWrongNumberOfFields) {
  const auto telegrams = ReadAll(
      "time,source,destination,dpt,payload\n"
      "07:00:00,1.1.10,1/0/1,1.001\n"
      "07:00:01,1.1.10,1/0/1,1.001,01,02\n"
      "07:00:02\n"
      "07:00:03,1.1.10,1/0/1,1.001,\n");
  ASSERT_EQ(telegrams.size(), 4U);
  EXPECT_EQ(telegrams[0].error, "line 2 has 4 fields instead of 5");
  EXPECT_EQ(telegrams[0].dpt, "1.001");
  EXPECT_EQ(telegrams[0].payload, "");
  EXPECT_EQ(telegrams[1].error, "line 3 has 6 fields instead of 5");
  EXPECT_EQ(telegrams[1].payload, "01");
  EXPECT_EQ(telegrams[2].error, "line 4 has 1 fields instead of 5");
  EXPECT_EQ(telegrams[2].time, "07:00:02");
  EXPECT_EQ(telegrams[3].error, "");
  EXPECT_EQ(telegrams[3].payload, "");
}

TEST(TraceReader, RefusesATraceWithoutHeader) {
  EXPECT_EQ(ErrorOf("07:00:00,1.1.10,1/0/1,1.001,01\n"),
            "line 1 of the trace is not the header time,source,destination,dpt,payload");
  EXPECT_EQ(ErrorOf("# comment\ntime,source,destination,payload\n"),
            "line 2 of the trace is not the header time,source,destination,dpt,payload");
}

TEST(TraceReader, RefusesAnEmptyTrace) {
  EXPECT_EQ(ErrorOf(""), "the trace is empty; it must start with the line time,source,destination,dpt,payload");
  EXPECT_EQ(ErrorOf("# only a comment\n\n"),
            "the trace is empty; it must start with the line time,source,destination,dpt,payload");
}

TEST(TraceReader, AcceptsAHeaderWithoutTelegrams) {
  EXPECT_TRUE(ReadAll("time,source,destination,dpt,payload\n").empty());
}

}  // namespace
