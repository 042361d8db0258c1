#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

// Reads fixed-width fields from the fuzzer's bytes; past the end every
// field reads as zero, so any input length is a valid input.
class FuzzInput {
 public:
  FuzzInput(const std::uint8_t* data, std::size_t size) : m_data(data), m_size(size) {}

  template <typename T>
  T Read() {
    T value{};
    unsigned char bytes[sizeof(T)] = {};
    for (std::size_t i = 0; i < sizeof(T) && m_offset < m_size; ++i) {
      bytes[i] = m_data[m_offset++];
    }
    std::memcpy(&value, bytes, sizeof(T));
    return value;
  }

  // A bit size: mostly small and plausible, sometimes any 32-bit number.
  unsigned int ReadBitSize() {
    const std::uint8_t selector = Read<std::uint8_t>();
    return (selector & 0x80) != 0 ? Read<std::uint32_t>() : static_cast<unsigned int>(Read<std::uint8_t>());
  }

  const std::uint8_t* Rest() const { return m_data + m_offset; }
  std::size_t RestSize() const { return m_size - m_offset; }
  std::string RestAsString() const { return std::string(reinterpret_cast<const char*>(Rest()), RestSize()); }

 private:
  const std::uint8_t* m_data;
  std::size_t m_size;
  std::size_t m_offset = 0;
};
