#include "HexText.h"

#include <array>
#include <string>
#include <vector>

#include "InputError.h"

namespace Knxconv {

namespace {

// The value of each hex digit by its byte, -1 for other bytes.
constexpr std::array<signed char, 256> HexDigits = [] {
  std::array<signed char, 256> digits{};
  for (signed char& digit : digits) {
    digit = -1;
  }
  for (int i = 0; i < 10; ++i) {
    digits['0' + i] = static_cast<signed char>(i);
  }
  for (int i = 0; i < 6; ++i) {
    digits['a' + i] = static_cast<signed char>(10 + i);
    digits['A' + i] = static_cast<signed char>(10 + i);
  }
  return digits;
}();

int HexDigit(char c) {
  return HexDigits[static_cast<unsigned char>(c)];
}

constexpr std::size_t ShortBytes = 64;

bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}

std::string Refusal(std::string_view text, const std::string& reason) {
  return "malformed hex payload '" + std::string(text) + "': " + reason;
}

}  // namespace

KnxStack::BinaryData ParseHex(std::string_view text) {
  KnxStack::BinaryData data;
  if (std::optional<std::string> error = ReadHex(text, data)) {
    throw InputError(*error);
  }
  return data;
}

std::optional<std::string> ReadHex(std::string_view text, KnxStack::BinaryData& data) {
  // Two digits a byte: a payload of a trace line fits the stack.
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): only the bytes read are written and used
  std::array<unsigned char, ShortBytes> shortBytes;
  std::vector<unsigned char> longBytes;
  unsigned char* bytes = shortBytes.data();
  if (text.size() / 2 > shortBytes.size()) {
    longBytes.resize(text.size() / 2);
    bytes = longBytes.data();
  }
  std::size_t count = 0;
  std::size_t position = 0;
  while (position < text.size()) {
    if (IsBlank(text[position])) {
      ++position;
      continue;
    }
    // One group of pairs up to the next blank, read as it is checked.
    std::size_t end = position;
    int high = 0;
    while (end < text.size() && !IsBlank(text[end])) {
      const int digit = HexDigit(text[end]);
      if (digit < 0) {
        return Refusal(text, std::string("'") + text[end] + "' is not a hex digit");
      }
      if ((end - position) % 2 == 0) {
        high = digit;
      } else {
        bytes[count++] = static_cast<unsigned char>(high * 16 + digit);
      }
      ++end;
    }
    if ((end - position) % 2 != 0) {
      return Refusal(text, "'" + std::string(text.substr(position, end - position)) + "' is not made of whole bytes");
    }
    position = end;
  }
  if (count == 0) {
    return Refusal(text, "no bytes");
  }
  data = KnxStack::BinaryData(bytes, static_cast<unsigned int>(count));
  return std::nullopt;
}

}  // namespace Knxconv
