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
      result += static_cast<char>(Latin1Lead(byte));
      result += static_cast<char>(Latin1Trail(byte));
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
    result += static_cast<char>(SingleByte(cursor));
  }
  return result;
}

}  // namespace Nelmo::CodingUtf8
