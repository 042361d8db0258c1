#include "KnxBinaryData.h"

#include <cstring>

namespace KnxStack {

BinaryData::BinaryData(const unsigned char* data, unsigned int length) {
  if (data != nullptr) {
    CopyFrom(data, length);
  }
}

BinaryData::BinaryData(BinaryData&& other) noexcept {
  *this = std::move(other);
}

BinaryData& BinaryData::operator=(BinaryData&& other) noexcept {
  if (this != &other) {
    m_heap = std::move(other.m_heap);
    if (!m_heap) {
      std::memcpy(m_inline, other.m_inline, other.m_length);
    }
    m_length = other.m_length;
    other.m_length = 0;
  }
  return *this;
}

BinaryData::~BinaryData() = default;

void BinaryData::ReleaseHeap() {
  m_heap.reset();
}

// Allocates before releasing anything, so a failed allocation leaves the
// buffer as it was.
void BinaryData::CopyFrom(const unsigned char* data, unsigned int length) {
  if (length > InlineCapacity) {
    std::unique_ptr<unsigned char[]> heap(new unsigned char[length]);
    std::memcpy(heap.get(), data, length);
    m_heap = std::move(heap);
  } else {
    m_heap.reset();
    if (length > 0) {
      std::memmove(m_inline, data, length);
    }
  }
  m_length = length;
}

std::string BinaryData::ToString() const {
  static constexpr char digits[] = "0123456789ABCDEF";
  std::string text;
  if (m_length == 0) {
    return text;
  }
  text.reserve(static_cast<std::size_t>(m_length) * 3 - 1);
  const unsigned char* bytes = GetData();
  for (unsigned int i = 0; i < m_length; ++i) {
    if (i > 0) {
      text += ' ';
    }
    text += digits[bytes[i] >> 4];
    text += digits[bytes[i] & 0x0F];
  }
  return text;
}

bool BinaryData::operator==(const BinaryData& other) const {
  return m_length == other.m_length && std::memcmp(GetData(), other.GetData(), m_length) == 0;
}

}  // namespace KnxStack
