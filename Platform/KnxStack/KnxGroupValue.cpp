#include "KnxGroupValue.h"

#include <limits>

#include "KnxGroupValueBytes.h"

namespace KnxStack {

namespace GroupValueBytes {

void ThrowWrongSize(unsigned int formatBits, unsigned int definedSize) {
  throw GroupValueException("GroupValue: expected " + std::to_string(formatBits) + " bits, defined size is " +
                            std::to_string(definedSize));
}

void ThrowShortPayload(unsigned int neededBytes, unsigned int length) {
  throw GroupValueException("GroupValue: expected " + std::to_string(neededBytes) + " bytes, payload has " +
                            std::to_string(length));
}

}  // namespace GroupValueBytes

namespace {

using GroupValueBytes::SmallValueBits;
using GroupValueBytes::SmallValueMask;

constexpr unsigned int String14Bytes = 14;

// Two's complement without relying on implementation-defined narrowing.
template <typename Signed, typename Unsigned>
Signed ToSigned(Unsigned value) {
  constexpr auto maxPositive = static_cast<Unsigned>(std::numeric_limits<Signed>::max());
  if (value <= maxPositive) {
    return static_cast<Signed>(value);
  }
  return static_cast<Signed>(-static_cast<Signed>(static_cast<Unsigned>(~value)) - 1);
}

}  // namespace

// NOLINTNEXTLINE(modernize-pass-by-value): the stack's interface takes the data by const reference
GroupValue::GroupValue(const BinaryData& data, unsigned int sizeInBits) : m_data(data), m_definedSize(sizeInBits) {
  if (sizeInBits <= SmallValueBits && !m_data.IsEmpty()) {
    m_data.MutableData()[0] &= SmallValueMask;
  }
}

void GroupValue::SetRawData(const BinaryData& data) {
  m_data = data;
  m_definedSize = 8 * data.GetLength();
}

bool GroupValue::GetAsBoolean() const {
  return ReadUnsigned(1) != 0;
}

void GroupValue::SetAsBoolean(bool value) {
  WriteUnsigned(value ? 1 : 0, 1);
}

unsigned char GroupValue::GetAsUnsigned2() const {
  return static_cast<unsigned char>(ReadUnsigned(2));
}

void GroupValue::SetAsUnsigned2(unsigned char value) {
  WriteUnsigned(value, 2);
}

unsigned char GroupValue::GetAsUnsigned4() const {
  return static_cast<unsigned char>(ReadUnsigned(4));
}

void GroupValue::SetAsUnsigned4(unsigned char value) {
  WriteUnsigned(value, 4);
}

unsigned char GroupValue::GetAsUnsigned8() const {
  return static_cast<unsigned char>(ReadUnsigned(8));
}

void GroupValue::SetAsUnsigned8(unsigned char value) {
  WriteUnsigned(value, 8);
}

signed char GroupValue::GetAsSigned8() const {
  return ToSigned<signed char>(static_cast<unsigned char>(ReadUnsigned(8)));
}

void GroupValue::SetAsSigned8(signed char value) {
  WriteUnsigned(static_cast<unsigned char>(value), 8);
}

std::uint16_t GroupValue::GetAsUnsigned16() const {
  return static_cast<std::uint16_t>(ReadUnsigned(16));
}

void GroupValue::SetAsUnsigned16(std::uint16_t value) {
  WriteUnsigned(value, 16);
}

std::int16_t GroupValue::GetAsSigned16() const {
  return ToSigned<std::int16_t>(static_cast<std::uint16_t>(ReadUnsigned(16)));
}

void GroupValue::SetAsSigned16(std::int16_t value) {
  WriteUnsigned(static_cast<std::uint16_t>(value), 16);
}

std::uint32_t GroupValue::GetAsUnsigned24() const {
  return ReadUnsigned(24);
}

void GroupValue::SetAsUnsigned24(std::uint32_t value) {
  WriteUnsigned(value & 0xFFFFFFu, 24);
}

std::uint32_t GroupValue::GetAsUnsigned32() const {
  return ReadUnsigned(32);
}

void GroupValue::SetAsUnsigned32(std::uint32_t value) {
  WriteUnsigned(value, 32);
}

std::int32_t GroupValue::GetAsSigned32() const {
  return ToSigned<std::int32_t>(ReadUnsigned(32));
}

void GroupValue::SetAsSigned32(std::int32_t value) {
  WriteUnsigned(static_cast<std::uint32_t>(value), 32);
}

std::string GroupValue::GetAsString14() const {
  const unsigned char* bytes = Payload(8 * String14Bytes);
  unsigned int length = 0;
  while (length < String14Bytes && bytes[length] != 0) {
    ++length;
  }
  return std::string(reinterpret_cast<const char*>(bytes), length);
}

void GroupValue::SetAsString14(const std::string& value) {
  unsigned char bytes[String14Bytes] = {};
  for (unsigned int i = 0; i < String14Bytes && i < value.size(); ++i) {
    bytes[i] = static_cast<unsigned char>(value[i]);
  }
  Store(bytes, 8 * String14Bytes);
}

}  // namespace KnxStack
