#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "KnxStack.h"

namespace KnxTest {

// Bytes written the way BinaryData::ToString writes them ("0C 33"), so that
// tables of values and bus bytes read like the bus format.
inline std::vector<unsigned char> HexBytes(const std::string& hex) {
  std::vector<unsigned char> bytes;
  std::istringstream stream(hex);
  unsigned int byte = 0;
  while (stream >> std::hex >> byte) {
    bytes.push_back(static_cast<unsigned char>(byte));
  }
  return bytes;
}

inline KnxStack::BinaryData Hex(const std::string& hex) {
  const std::vector<unsigned char> bytes = HexBytes(hex);
  return KnxStack::BinaryData(bytes.data(), static_cast<unsigned int>(bytes.size()));
}

// A group value as it arrives from the bus.
inline KnxStack::GroupValue Received(const std::string& hex, unsigned int bits) {
  return KnxStack::GroupValue(Hex(hex), bits);
}

}  // namespace KnxTest
