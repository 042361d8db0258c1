#include "GroupFrame.h"

#include <cstdio>

namespace Knxconv {

namespace {

constexpr std::size_t ControlBytes = 2;
constexpr unsigned int ControlFieldBits = 6;
constexpr std::uint8_t ControlFieldMask = 0x3F;

// The service code: the two low bits of the first byte and the two high
// bits of the second.
unsigned int ServiceCode(const std::vector<std::uint8_t>& frame) {
  return ((frame[0] & 0x03U) << 2U) | (frame[1] >> 6U);
}

std::uint8_t ServiceBits(GroupService service) {
  switch (service) {
    case GroupService::Read:
      return 0x00;
    case GroupService::Response:
      return 0x40;
    case GroupService::Write:
      return 0x80;
  }
  return 0x80;
}

}  // namespace

const char* GroupServiceText(GroupService service) {
  switch (service) {
    case GroupService::Read:
      return "read";
    case GroupService::Response:
      return "response";
    case GroupService::Write:
      return "write";
  }
  return "write";
}

std::vector<std::uint8_t> EncodeGroupFrame(GroupService service, const KnxStack::GroupValue& value) {
  std::vector<std::uint8_t> frame = {0x00, ServiceBits(service)};
  if (service == GroupService::Read) {
    return frame;
  }
  const KnxStack::BinaryData& data = value.GetRawData();
  if (value.GetDefinedSize() <= ControlFieldBits) {
    // Reads 0 where the value has no byte at all.
    frame[1] |= data[0] & ControlFieldMask;
    return frame;
  }
  for (unsigned int i = 0; i < data.GetLength(); ++i) {
    frame.push_back(data[i]);
  }
  return frame;
}

GroupFrame DecodeGroupFrame(const std::vector<std::uint8_t>& frame) {
  GroupFrame result;
  if (frame.size() < ControlBytes) {
    result.error = "frame of " + std::to_string(frame.size()) + " byte(s) is too short";
    return result;
  }
  const unsigned int code = ServiceCode(frame);
  if (code > 2) {
    result.error = "service " + std::to_string(code) + " is not a group value service";
    return result;
  }
  result.service = static_cast<GroupService>(code);
  if (result.service == GroupService::Read) {
    return result;
  }
  if (frame.size() == ControlBytes) {
    const auto small = static_cast<unsigned char>(frame[1] & ControlFieldMask);
    result.value = KnxStack::GroupValue(KnxStack::BinaryData(&small, 1), ControlFieldBits);
    return result;
  }
  const auto length = static_cast<unsigned int>(frame.size() - ControlBytes);
  result.value = KnxStack::GroupValue(KnxStack::BinaryData(frame.data() + ControlBytes, length), 8 * length);
  return result;
}

std::string FrameHex(const std::vector<std::uint8_t>& frame) {
  std::string text;
  for (const std::uint8_t byte : frame) {
    char pair[4];
    std::snprintf(pair, sizeof pair, "%02X", static_cast<unsigned>(byte));
    text.append(text.empty() ? "" : " ").append(pair);
  }
  return text;
}

}  // namespace Knxconv
