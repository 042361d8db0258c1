#pragma once

#include <cstddef>
#include <memory>
#include <string>

namespace KnxStack {

// A byte buffer. Up to 14 bytes live inline; longer payloads (variable
// length DPTs) are kept on the heap.
class BinaryData {
 public:
  static constexpr unsigned int InlineCapacity = 14;

  BinaryData() = default;
  BinaryData(const unsigned char* data, unsigned int length);
  BinaryData(const BinaryData& other);
  BinaryData(BinaryData&& other) noexcept;
  BinaryData& operator=(const BinaryData& other);
  BinaryData& operator=(BinaryData&& other) noexcept;
  ~BinaryData();

  unsigned int GetLength() const { return m_length; }
  const unsigned char* GetData() const;
  bool IsEmpty() const { return m_length == 0; }
  unsigned char operator[](unsigned int index) const { return GetData()[index]; }

  // Upper-case hexadecimal pairs separated by single spaces ("0C 33").
  std::string ToString() const;

  bool operator==(const BinaryData& other) const;
  bool operator!=(const BinaryData& other) const { return !(*this == other); }

 private:
  unsigned int m_length = 0;
  unsigned char m_inline[InlineCapacity] = {};
  std::unique_ptr<unsigned char[]> m_heap;
};

}  // namespace KnxStack
