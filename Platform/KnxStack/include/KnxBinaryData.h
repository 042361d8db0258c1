#pragma once

#include <cstddef>
#include <cstring>
#include <memory>
#include <string>

namespace KnxStack {

class GroupValue;

// A byte buffer. Up to 14 bytes live inline, so the payloads of all fixed
// size DPTs are copied without touching the heap; longer payloads (variable
// length DPTs) are kept on the heap.
class BinaryData {
 public:
  static constexpr unsigned int InlineCapacity = 14;

  BinaryData() = default;
  // Copies length bytes from data. A null data pointer gives empty data,
  // whatever the length: callers pass buffers straight from the bus, and an
  // absent buffer is no reason to bring the process down.
  BinaryData(const unsigned char* data, unsigned int length);
  // Inline payloads are copied whole, without a call or a length-driven copy.
  BinaryData(const BinaryData& other) : m_length(other.m_length) {
    if (other.m_heap) {
      CopyFrom(other.m_heap.get(), other.m_length);
    } else {
      std::memcpy(m_inline, other.m_inline, InlineCapacity);
    }
  }
  // The moved-from buffer is left empty.
  BinaryData(BinaryData&& other) noexcept;
  BinaryData& operator=(const BinaryData& other) {
    if (other.m_heap) {
      if (this != &other) {
        CopyFrom(other.m_heap.get(), other.m_length);
      }
    } else {
      m_heap.reset();
      std::memmove(m_inline, other.m_inline, InlineCapacity);
      m_length = other.m_length;
    }
    return *this;
  }
  BinaryData& operator=(BinaryData&& other) noexcept;
  ~BinaryData();

  unsigned int GetLength() const { return m_length; }
  // Never null, also when the buffer is empty.
  const unsigned char* GetData() const { return m_heap ? m_heap.get() : m_inline; }
  bool IsEmpty() const { return m_length == 0; }
  // An index at or beyond GetLength() reads 0 instead of past the end.
  unsigned char operator[](unsigned int index) const { return index < m_length ? GetData()[index] : 0; }

  // Upper-case hexadecimal pairs separated by single spaces ("0C 33"); ""
  // when empty.
  std::string ToString() const;

  bool operator==(const BinaryData& other) const;
  bool operator!=(const BinaryData& other) const { return !(*this == other); }

 private:
  friend class GroupValue;

  unsigned char* MutableData() { return m_heap ? m_heap.get() : m_inline; }
  void CopyFrom(const unsigned char* data, unsigned int length);
  // Fixed-size payloads are written into the inline bytes and then
  // committed: the first length bytes, at most InlineCapacity, become the
  // payload. A heap payload is released last, so that the call to the
  // deallocator, which fixed-size payloads never need, costs them no stack
  // frame.
  unsigned char* InlineBytes() { return m_inline; }
  void CommitInline(unsigned int length) {
    m_length = length;
    if (m_heap) {
      ReleaseHeap();
    }
  }
  void ReleaseHeap();

  // Payloads of up to InlineCapacity bytes live in m_inline and m_heap is
  // null; longer ones live in m_heap.
  unsigned int m_length = 0;
  unsigned char m_inline[InlineCapacity] = {};
  std::unique_ptr<unsigned char[]> m_heap;
};

}  // namespace KnxStack
