#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "KnxStack.h"

namespace Knxconv {

enum class GroupService { Read, Response, Write };

// "read", "response", "write".
const char* GroupServiceText(GroupService service);

// The application part of a group telegram as the daemon passes it: two
// bytes of control field, then the payload. Values of up to 6 bits travel
// in the low bits of the second control byte and have no payload.
std::vector<std::uint8_t> EncodeGroupFrame(GroupService service, const KnxStack::GroupValue& value);

// What a received frame carries.
struct GroupFrame {
  GroupService service = GroupService::Write;
  // For responses and writes: the value, sized 6 bits when it came in the
  // control field, else 8 bits per payload byte.
  KnxStack::GroupValue value;
  // Why the frame is no group telegram of ours; empty when it is one.
  std::string error;
};

GroupFrame DecodeGroupFrame(const std::vector<std::uint8_t>& frame);

// The frame's bytes as "00 80 0C 33".
std::string FrameHex(const std::vector<std::uint8_t>& frame);

}  // namespace Knxconv
