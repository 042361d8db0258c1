#include "TextEscape.h"

#include <array>
#include <cstdint>
#include <cstring>

namespace Knxconv {

namespace {

constexpr unsigned char Delete = 0x7F;
constexpr unsigned char C1Lead = 0xC2;
constexpr unsigned char C1Last = 0x9F;

// Text shows hex digits in upper case, JSON in lower case as its own escapes.
std::string Hex2(unsigned int value, const char* prefix, bool lowerCase = false) {
  constexpr std::array<char, 17> Upper{"0123456789ABCDEF"};
  constexpr std::array<char, 17> Lower{"0123456789abcdef"};
  const std::array<char, 17>& digits = lowerCase ? Lower : Upper;
  std::string text(prefix);
  text += digits[(value >> 4U) & 0xFU];
  text += digits[value & 0xFU];
  return text;
}

bool IsContinuation(unsigned char byte) {
  return (byte & 0xC0U) == 0x80U;
}

// The length of the valid UTF-8 sequence at the start of text, 0 if there is
// none. Overlong forms, surrogates and code points above U+10FFFF are not
// valid.
std::size_t SequenceLength(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text[0]);
  std::size_t length = 0;
  unsigned char low = 0x80;   // bounds of the second byte
  unsigned char high = 0xBF;  // NOLINT(readability-magic-numbers)
  if (lead < 0x80) {
    return 1;
  }
  if (lead >= 0xC2 && lead <= 0xDF) {
    length = 2;
  } else if (lead >= 0xE0 && lead <= 0xEF) {
    length = 3;
    low = lead == 0xE0 ? 0xA0 : low;
    high = lead == 0xED ? 0x9F : high;
  } else if (lead >= 0xF0 && lead <= 0xF4) {
    length = 4;
    low = lead == 0xF0 ? 0x90 : low;
    high = lead == 0xF4 ? 0x8F : high;
  } else {
    return 0;
  }
  if (text.size() < length) {
    return 0;
  }
  const auto second = static_cast<unsigned char>(text[1]);
  if (second < low || second > high) {
    return 0;
  }
  for (std::size_t index = 2; index < length; ++index) {
    if (!IsContinuation(static_cast<unsigned char>(text[index]))) {
      return 0;
    }
  }
  return length;
}

std::string EscapedControl(unsigned char byte) {
  switch (byte) {
    case '\n':
      return "\\n";
    case '\r':
      return "\\r";
    case '\t':
      return "\\t";
    case '\\':
      return "\\\\";
    default:
      return Hex2(byte, "\\x");
  }
}

bool IsPlain(unsigned char byte) {
  return byte >= 0x20 && byte < Delete && byte != '\\';
}

// Whether one of word's bytes is not plain, all eight tested at once: the
// high bit of a byte is set where it is below 0x20, at or above DEL, or a
// backslash. A carry or borrow between bytes starts only at a byte that is
// not plain, so the answer is exact.
bool HasSpecialByte(std::uint64_t word) {
  constexpr std::uint64_t Ones = 0x0101010101010101U;
  constexpr std::uint64_t Highs = 0x8080808080808080U;
  const std::uint64_t below = (word - Ones * 0x20U) & ~word;
  const std::uint64_t above = (word + Ones) | word;
  const std::uint64_t others = word ^ (Ones * static_cast<unsigned char>('\\'));
  const std::uint64_t backslash = (others - Ones) & ~others;
  return ((below | above | backslash) & Highs) != 0;
}

// How many bytes at the start of text are printable ASCII other than the
// backslash: they need no escaping.
std::size_t PlainPrefix(std::string_view text) {
  std::size_t length = 0;
  std::uint64_t word = 0;
  while (length + sizeof word <= text.size()) {
    std::memcpy(&word, text.data() + length, sizeof word);
    if (HasSpecialByte(word)) {
      break;
    }
    length += sizeof word;
  }
  while (length < text.size() && IsPlain(static_cast<unsigned char>(text[length]))) {
    ++length;
  }
  return length;
}

}  // namespace

std::string EscapeText(std::string_view text) {
  std::string escaped;
  escaped.reserve(text.size());
  AppendEscapedText(escaped, text);
  return escaped;
}

void AppendEscapedText(std::string& escaped, std::string_view text) {
  while (!text.empty()) {
    // Printable ASCII, nearly all of a line, goes as it is, a run at a time.
    const std::size_t plain = PlainPrefix(text);
    escaped.append(text.substr(0, plain));
    text.remove_prefix(plain);
    if (text.empty()) {
      break;
    }
    const auto byte = static_cast<unsigned char>(text[0]);
    const std::size_t length = SequenceLength(text);
    if (length == 0) {
      escaped += Hex2(byte, "\\x");
      text.remove_prefix(1);
      continue;
    }
    if (length == 1 && (byte < 0x20 || byte == Delete || byte == '\\')) {
      escaped += EscapedControl(byte);
    } else if (length == 2 && byte == C1Lead && static_cast<unsigned char>(text[1]) <= C1Last) {
      escaped += Hex2(static_cast<unsigned char>(text[1]), "\\u00");
    } else {
      escaped.append(text.substr(0, length));
    }
    text.remove_prefix(length);
  }
}

bool IsPlainText(std::string_view text) {
  return PlainPrefix(text) == text.size();
}

std::string EscapeJsonControls(std::string_view json) {
  std::string escaped;
  escaped.reserve(json.size());
  for (std::size_t index = 0; index < json.size(); ++index) {
    const auto byte = static_cast<unsigned char>(json[index]);
    const bool c1 = byte == C1Lead && index + 1 < json.size() &&
                    IsContinuation(static_cast<unsigned char>(json[index + 1])) &&
                    static_cast<unsigned char>(json[index + 1]) <= C1Last;
    if (byte == Delete) {
      escaped += "\\u007f";
    } else if (c1) {
      escaped += Hex2(static_cast<unsigned char>(json[++index]), "\\u00", true);
    } else {
      escaped += json[index];
    }
  }
  return escaped;
}

}  // namespace Knxconv
