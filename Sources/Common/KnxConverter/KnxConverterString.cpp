#include "KnxConverterString.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "CodingUtf8.h"
#include "ConverterCallsOf.h"
#include "ConverterLog.h"

namespace Nelmo {

namespace {

constexpr std::uint16_t CharacterMainNumber = 4;

constexpr std::size_t String14Bytes = 14;
// Bytes from here on are two bytes in UTF-8.
constexpr unsigned char TrailMark = 0x80;

// The range's bounds read once for a whole text, not once per byte.
struct CharacterSet {
  explicit CharacterSet(const IntegerRange& range) : lowest(range.internalMinimum), highest(range.internalMaximum) {}
  bool Contains(unsigned char byte) const { return byte >= lowest && byte <= highest; }

  std::int32_t lowest;
  std::int32_t highest;
};

// The bus bytes of text, in one pass: each character as its single byte,
// bytes outside the set dropped, at most the 14 that travel. Collected in an
// array and made a string once, which costs less than growing it by bytes.
std::string ToString14(const CharacterSet& set, const std::string& text) {
  std::array<char, String14Bytes> bytes{};
  std::size_t count = 0;
  for (const char* cursor = text.c_str(); *cursor != '\0' && count < String14Bytes; ++cursor) {
    const unsigned char byte = CodingUtf8::SingleByte(cursor);
    if (set.Contains(byte)) {
      bytes[count++] = static_cast<char>(byte);
    }
  }
  return std::string(bytes.data(), count);
}

// A Latin-1 character as UTF-8 in out: itself below 0x80, else a lead and a
// trail byte. Returns the count.
std::size_t EncodeLatin1(unsigned char byte, std::array<char, 2>& out) {
  if (byte < TrailMark) {
    out[0] = static_cast<char>(byte);
    return 1;
  }
  out[0] = static_cast<char>(CodingUtf8::Latin1Lead(byte));
  out[1] = static_cast<char>(CodingUtf8::Latin1Trail(byte));
  return 2;
}

// The received bytes as UTF-8, in one pass, keeping only the encoded bytes
// that belong to the set; at most two for each of the 14 bytes.
std::string FromString14(const CharacterSet& set, const std::string& received) {
  std::array<char, 2 * String14Bytes> text{};
  std::size_t count = 0;
  const auto keep = [&](unsigned char byte) {
    if (set.Contains(byte)) {
      text[count++] = static_cast<char>(byte);
    }
  };
  for (std::size_t index = 0; index < received.size() && index < String14Bytes; ++index) {
    const auto byte = static_cast<unsigned char>(received[index]);
    if (byte == 0) {
      break;
    }
    if (byte < TrailMark) {
      keep(byte);
      continue;
    }
    keep(CodingUtf8::Latin1Lead(byte));
    keep(CodingUtf8::Latin1Trail(byte));
  }
  return std::string(text.data(), count);
}

}  // namespace

// ---------------------------------------------------------------------------

KnxConverter8BitString::KnxConverter8BitString(const IntegerRange& range) : m_range(range) {}
KnxConverter8BitString::~KnxConverter8BitString() = default;

bool KnxConverter8BitString::ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) {
  Log::TraceToKnx(dpt, value, __LINE__);
  if (dpt.mainNumber != CharacterMainNumber || value.GetType() != IVT_STRING) {
    return false;
  }
  // Only the first character travels; an empty text sends 0.
  const char* cursor = value.GetString().c_str();
  const unsigned char character = *cursor == '\0' ? 0 : CodingUtf8::SingleByte(cursor);
  if (!CharacterSet(m_range).Contains(character)) {
    return false;
  }
  groupValue.SetAsUnsigned8(character);
  return true;
}

bool KnxConverter8BitString::FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue, ULOVALUE& value) {
  Log::TraceFromKnx(dpt, groupValue, __LINE__);
  if (dpt.mainNumber != CharacterMainNumber) {
    return false;
  }
  const unsigned char character = groupValue.GetAsUnsigned8();
  if (!CharacterSet(m_range).Contains(character)) {
    return false;
  }
  // The character 0 is the empty text.
  std::array<char, 2> text{};
  const std::size_t length = character == 0 ? 0 : EncodeLatin1(character, text);
  value.SetString(std::string(text.data(), length));
  return true;
}

KnxConverter* KnxConverter8BitString::Clone() const {
  return new KnxConverter8BitString(*this);
}

// ---------------------------------------------------------------------------

KnxConverter14ByteString::KnxConverter14ByteString(const IntegerRange& range) : m_range(range) {}
KnxConverter14ByteString::~KnxConverter14ByteString() = default;

bool KnxConverter14ByteString::ToKnxValue(const KNXDPT& dpt, const ULOVALUE& value, KnxStack::GroupValue& groupValue) {
  Log::TraceToKnx(dpt, value, __LINE__);
  // The stack cuts to 14 bytes and pads with zeros.
  groupValue.SetAsString14(ToString14(CharacterSet(m_range), value.GetString()));
  return true;
}

bool KnxConverter14ByteString::FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue,
                                            ULOVALUE& value) {
  Log::TraceFromKnx(dpt, groupValue, __LINE__);
  value.SetString(FromString14(CharacterSet(m_range), groupValue.GetAsString14()));
  return true;
}

KnxConverter* KnxConverter14ByteString::Clone() const {
  return new KnxConverter14ByteString(*this);
}

template const ConverterCalls& CallsOf<KnxConverter8BitString>();
template const ConverterCalls& CallsOf<KnxConverter14ByteString>();

}  // namespace Nelmo
