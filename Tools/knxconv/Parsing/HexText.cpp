#include "HexText.h"

#include <string>
#include <vector>

#include "InputError.h"

namespace Knxconv {

namespace {

int HexDigit(char c) {
  if (c >= '0' && c <= '9') {
    return c - '0';
  }
  if (c >= 'a' && c <= 'f') {
    return c - 'a' + 10;
  }
  if (c >= 'A' && c <= 'F') {
    return c - 'A' + 10;
  }
  return -1;
}

bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}

[[noreturn]] void Refuse(std::string_view text, const std::string& reason) {
  throw InputError("malformed hex payload '" + std::string(text) + "': " + reason);
}

}  // namespace

KnxStack::BinaryData ParseHex(std::string_view text) {
  std::vector<unsigned char> bytes;
  std::size_t position = 0;
  while (position < text.size()) {
    if (IsBlank(text[position])) {
      ++position;
      continue;
    }
    // One group of pairs up to the next blank.
    std::size_t end = position;
    while (end < text.size() && !IsBlank(text[end])) {
      if (HexDigit(text[end]) < 0) {
        Refuse(text, std::string("'") + text[end] + "' is not a hex digit");
      }
      ++end;
    }
    if ((end - position) % 2 != 0) {
      Refuse(text, "'" + std::string(text.substr(position, end - position)) + "' is not made of whole bytes");
    }
    for (; position < end; position += 2) {
      bytes.push_back(static_cast<unsigned char>(HexDigit(text[position]) * 16 + HexDigit(text[position + 1])));
    }
  }
  if (bytes.empty()) {
    Refuse(text, "no bytes");
  }
  return KnxStack::BinaryData(bytes.data(), static_cast<unsigned int>(bytes.size()));
}

}  // namespace Knxconv
