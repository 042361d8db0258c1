#pragma once

#include <string>

#include "NelmoExport.h"

namespace Nelmo::CodingUtf8 {

// ISO 8859-1 text, up to its first zero byte, as UTF-8: bytes of 128 or more
// become two bytes. A null pointer gives an empty text.
NELMO_EXPORT std::string Iso88591ToUtf8(const char* text);

#if defined(NELMO_BUILDING_LIBRARY)
// Library-internal (not exported), one character at a time, for the
// converters' single passes and the whole-text functions alike.

// An ISO 8859-1 byte of 128 or more is a two-byte UTF-8 sequence: this lead
// and this trail byte.
inline unsigned char Latin1Lead(unsigned char byte) {
  return static_cast<unsigned char>(0xC0U | (byte >> 6U));
}
inline unsigned char Latin1Trail(unsigned char byte) {
  return static_cast<unsigned char>(0x80U | (byte & 0x3FU));
}

// The single byte of a two-byte UTF-8 sequence at cursor, or the byte
// itself; cursor is left on the sequence's last byte. A lead right before
// the terminator combines with the zero, and the walk ends after it.
inline unsigned char SingleByte(const char*& cursor) {
  const auto byte = static_cast<unsigned char>(*cursor);
  if ((byte & 0xE0U) != 0xC0U) {
    return byte;
  }
  const auto next = static_cast<unsigned char>(cursor[1]);
  if (next != 0) {
    ++cursor;
  }
  return static_cast<unsigned char>(((byte << 6U) & 0xFFU) | (next & 0x3FU));
}

// UTF-8 text, up to its first zero byte, as
// single bytes for the KNX character formats. A two-byte sequence becomes one
// byte (exact for U+0080 to U+00FF, deliberately lossy above); every other
// byte, longer sequences included, is kept as it is.
std::string Utf8ToSingleBytes(const char* text);
#endif

}  // namespace Nelmo::CodingUtf8
