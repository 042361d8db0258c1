#pragma once

// GroupValue's private byte helpers, shared by the sources of its accessors.
// They are inline: every accessor has a fixed format, so each one compiles to
// a few loads or stores instead of a chain of calls through the library's
// symbol table. Only the throwing paths stay out of line.

#include <cstdint>

#include "KnxGroupValue.h"

namespace KnxStack {

namespace GroupValueBytes {

// A value of up to 6 bits occupies the low 6 bits of one byte.
constexpr unsigned int SmallValueBits = 6;
constexpr unsigned char SmallValueMask = 0x3F;

constexpr unsigned int ByteCount(unsigned int bits) {
  return bits <= SmallValueBits ? 1 : (bits + 7) / 8;
}

[[noreturn]] void ThrowWrongSize(unsigned int formatBits, unsigned int definedSize);
[[noreturn]] void ThrowShortPayload(unsigned int neededBytes, unsigned int length);

}  // namespace GroupValueBytes

inline const unsigned char* GroupValue::Payload(unsigned int formatBits) const {
  if (m_definedSize != formatBits) {
    GroupValueBytes::ThrowWrongSize(formatBits, m_definedSize);
  }
  const unsigned int needed = GroupValueBytes::ByteCount(formatBits);
  if (m_data.GetLength() < needed) {
    GroupValueBytes::ThrowShortPayload(needed, m_data.GetLength());
  }
  return m_data.GetData();
}

// Every fixed format fits the inline bytes, so no buffer is built and moved.
inline void GroupValue::Store(const unsigned char* bytes, unsigned int formatBits) {
  const unsigned int count = GroupValueBytes::ByteCount(formatBits);
  unsigned char* target = m_data.InlineBytes();
  for (unsigned int i = 0; i < count; ++i) {
    target[i] = bytes[i];
  }
  m_definedSize = formatBits;
  m_data.CommitInline(count);
}

inline std::uint32_t GroupValue::ReadUnsigned(unsigned int formatBits) const {
  const unsigned char* bytes = Payload(formatBits);
  if (formatBits <= GroupValueBytes::SmallValueBits) {
    return bytes[0] & ((1u << formatBits) - 1);
  }
  std::uint32_t value = 0;
  for (unsigned int i = 0; i < formatBits / 8; ++i) {
    value = (value << 8) | bytes[i];
  }
  return value;
}

inline void GroupValue::WriteUnsigned(std::uint32_t value, unsigned int formatBits) {
  unsigned char* target = m_data.InlineBytes();
  const unsigned int count = GroupValueBytes::ByteCount(formatBits);
  if (formatBits <= GroupValueBytes::SmallValueBits) {
    target[0] = static_cast<unsigned char>(value & GroupValueBytes::SmallValueMask);
  } else {
    for (unsigned int i = 0; i < count; ++i) {
      target[i] = static_cast<unsigned char>(value >> (8 * (count - 1 - i)));
    }
  }
  m_definedSize = formatBits;
  m_data.CommitInline(count);
}

}  // namespace KnxStack
