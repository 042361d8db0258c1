#include "KnxConverterString.h"

#include <cstdint>
#include <string>

#include "CodingUtf8.h"
#include "ConverterLog.h"

namespace Nelmo {

namespace {

constexpr std::uint16_t CharacterMainNumber = 4;

// The bytes of text that belong to the character set, in order.
std::string InRange(const IntegerRange& range, const std::string& text) {
  std::string kept;
  for (const char byte : text) {
    if (range.IsInRange(static_cast<unsigned char>(byte))) {
      kept += byte;
    }
  }
  return kept;
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
  const std::string bytes = CodingUtf8::Utf8ToSingleBytes(value.GetString().c_str());
  const auto character = static_cast<unsigned char>(bytes.empty() ? '\0' : bytes.front());
  if (!m_range.IsInRange(character)) {
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
  if (!m_range.IsInRange(character)) {
    return false;
  }
  // The character 0 is the empty text.
  const char text[] = {static_cast<char>(character), '\0'};
  value.SetString(CodingUtf8::Iso88591ToUtf8(text));
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
  groupValue.SetAsString14(InRange(m_range, CodingUtf8::Utf8ToSingleBytes(value.GetString().c_str())));
  return true;
}

bool KnxConverter14ByteString::FromKnxValue(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue,
                                            ULOVALUE& value) {
  Log::TraceFromKnx(dpt, groupValue, __LINE__);
  const std::string received = groupValue.GetAsString14();
  value.SetString(InRange(m_range, CodingUtf8::Iso88591ToUtf8(received.c_str())));
  return true;
}

KnxConverter* KnxConverter14ByteString::Clone() const {
  return new KnxConverter14ByteString(*this);
}

}  // namespace Nelmo
