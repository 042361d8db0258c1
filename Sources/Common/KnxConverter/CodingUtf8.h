#pragma once

#include <string>

#include "NelmoExport.h"

namespace Nelmo::CodingUtf8 {

// ISO 8859-1 text, up to its first zero byte, as UTF-8: bytes of 128 or more
// become two bytes. A null pointer gives an empty text.
NELMO_EXPORT std::string Iso88591ToUtf8(const char* text);

#if defined(NELMO_BUILDING_LIBRARY)
// Library-internal (not exported): UTF-8 text, up to its first zero byte, as
// single bytes for the KNX character formats. A two-byte sequence becomes one
// byte (exact for U+0080 to U+00FF, deliberately lossy above); every other
// byte, longer sequences included, is kept as it is.
std::string Utf8ToSingleBytes(const char* text);
#endif

}  // namespace Nelmo::CodingUtf8
