#include "CodingUtf8.h"

namespace Nelmo::CodingUtf8 {

std::string Iso88591ToUtf8(const char* text) {
  std::string result;
  if (text == nullptr) {
    return result;
  }
  for (const char* cursor = text; *cursor != '\0'; ++cursor) {
    const auto byte = static_cast<unsigned char>(*cursor);
    if (byte < 0x80) {
      result += static_cast<char>(byte);
    } else {
      result += static_cast<char>(0xC0 | (byte >> 6));
      result += static_cast<char>(0x80 | (byte & 0x3F));
    }
  }
  return result;
}

std::string Utf8ToSingleBytes(const char* text) {
  std::string result;
  if (text == nullptr) {
    return result;
  }
  for (const char* cursor = text; *cursor != '\0'; ++cursor) {
    const auto byte = static_cast<unsigned char>(*cursor);
    if ((byte & 0xE0) != 0xC0) {
      result += static_cast<char>(byte);
      continue;
    }
    // A two-byte lead takes the next byte with it; a lead right before the
    // terminator combines with the zero and the walk ends there.
    const auto next = static_cast<unsigned char>(cursor[1]);
    result += static_cast<char>(((byte << 6) & 0xFF) | (next & 0x3F));
    if (next == 0) {
      break;
    }
    ++cursor;
  }
  return result;
}

}  // namespace Nelmo::CodingUtf8
