#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "GroupFrame.h"
#include "HexText.h"
#include "RowName.h"

namespace {

using namespace Knxconv;

std::vector<std::uint8_t> Bytes(const std::string& hex) {
  const KnxStack::BinaryData data = ParseHex(hex);
  return std::vector<std::uint8_t>(data.GetData(), data.GetData() + data.GetLength());
}

struct EncodeRow {
  std::string name;
  GroupService service;
  std::string value;  // hex
  unsigned int bits;
  std::string frame;
};

class GroupFrameEncode : public testing::TestWithParam<EncodeRow> {};

TEST_P(GroupFrameEncode, PutsSmallValuesIntoTheControlField) {
  const EncodeRow& row = GetParam();
  const KnxStack::GroupValue value(ParseHex(row.value), row.bits);
  EXPECT_EQ(FrameHex(EncodeGroupFrame(row.service, value)), row.frame);
}

INSTANTIATE_TEST_SUITE_P(Rows, GroupFrameEncode,
                         testing::Values(EncodeRow{"switch_on", GroupService::Write, "01", 1, "00 81"},
                                         EncodeRow{"switch_off", GroupService::Write, "00", 1, "00 80"},
                                         EncodeRow{"two_bits", GroupService::Write, "03", 2, "00 83"},
                                         EncodeRow{"four_bits", GroupService::Write, "0B", 4, "00 8B"},
                                         EncodeRow{"six_bits", GroupService::Write, "3F", 6, "00 BF"},
                                         EncodeRow{"response_small", GroupService::Response, "01", 1, "00 41"},
                                         EncodeRow{"byte", GroupService::Write, "CC", 8, "00 80 CC"},
                                         EncodeRow{"float16", GroupService::Write, "0C 33", 16, "00 80 0C 33"},
                                         EncodeRow{"response_float16", GroupService::Response, "0C 33", 16,
                                                   "00 40 0C 33"},
                                         EncodeRow{"read", GroupService::Read, "0C 33", 16, "00 00"}),
                         TestSupport::RowName());

struct DecodeRow {
  std::string name;
  std::string frame;
  std::string service;  // "" where the frame is refused
  std::string value;    // hex of the value
  unsigned int bits;
  std::string error;
};

class GroupFrameDecode : public testing::TestWithParam<DecodeRow> {};

TEST_P(GroupFrameDecode, TellsServiceValueAndSize) {
  const DecodeRow& row = GetParam();
  const GroupFrame frame = DecodeGroupFrame(Bytes(row.frame));
  EXPECT_EQ(frame.error, row.error);
  if (row.error.empty()) {
    EXPECT_EQ(GroupServiceText(frame.service), row.service);
    EXPECT_EQ(frame.value.GetRawData().ToString(), row.value);
    EXPECT_EQ(frame.value.GetDefinedSize(), row.bits);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, GroupFrameDecode,
    testing::Values(DecodeRow{"small_write", "00 81", "write", "01", 6, ""},
                    DecodeRow{"small_write_six_bits", "00 BF", "write", "3F", 6, ""},
                    DecodeRow{"small_response", "00 41", "response", "01", 6, ""},
                    DecodeRow{"read", "00 00", "read", "", 0, ""}, DecodeRow{"byte", "00 80 CC", "write", "CC", 8, ""},
                    DecodeRow{"float16", "00 80 0C 33", "write", "0C 33", 16, ""},
                    DecodeRow{"response_date", "00 40 04 03 18", "response", "04 03 18", 24, ""},
                    DecodeRow{"too_short", "00", "", "", 0, "frame of 1 byte(s) is too short"},
                    DecodeRow{"not_group_service", "00 C0 01", "", "", 0, "service 3 is not a group value service"},
                    DecodeRow{"memory_service", "02 00", "", "", 0, "service 8 is not a group value service"}),
    TestSupport::RowName());

}  // namespace
