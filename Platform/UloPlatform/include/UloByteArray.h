#pragma once

#include "UloValue.h"

// The value's bytes, most significant first. size: capacity on entry, bytes
// written on return. False, with nothing written and size unchanged, when the
// value has no byte form, does not fit or there is no buffer.
bool UloValueToByteArray(const ULOVALUE& value, unsigned char* buffer, unsigned int& size);

// Raw bytes to a value: one bit a boolean, 1 byte a byte, 2 a 16-bit, 3 or 4
// a 32-bit, 5 to 8 a 64-bit unsigned, longer a text. False for no data.
bool ByteArrayToUloValue(const unsigned char* data, unsigned int size, ULOVALUE& out, bool isOneBit);
