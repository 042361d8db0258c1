#include "UloByteArray.h"

#include <cmath>
#include <cstring>
#include <optional>

#include "UloPayload.h"
#include "UloRelScaling.h"

using UloPlatformDetail::Payload;
using UloPlatformDetail::PayloadOf;

namespace {

constexpr unsigned int MaxFixedSize = 8;

// The bytes of a value that has a fixed-size form, most significant first.
struct FixedBytes {
  unsigned char data[MaxFixedSize];
  unsigned int size;
};

FixedBytes BigEndian(std::uint64_t value, unsigned int size) {
  FixedBytes bytes{};
  bytes.size = size;
  for (unsigned int i = 0; i < size; ++i) {
    bytes.data[size - 1 - i] = static_cast<unsigned char>(value >> (8 * i));
  }
  return bytes;
}

std::uint64_t FromBigEndian(const unsigned char* data, unsigned int size) {
  std::uint64_t value = 0;
  for (unsigned int i = 0; i < size; ++i) {
    value = (value << 8) | data[i];
  }
  return value;
}

// Half away from zero; none for NaN or a result outside 0 to 255.
std::optional<FixedBytes> RoundedByte(double value) {
  if (std::isnan(value)) {
    return std::nullopt;
  }
  const double rounded = std::round(value);
  if (rounded < 0.0 || rounded > 255.0) {
    return std::nullopt;
  }
  return BigEndian(static_cast<std::uint64_t>(rounded), 1);
}

std::optional<FixedBytes> PercentByte(double percent) {
  if (!(percent >= 0.0 && percent <= 100.0)) {
    return std::nullopt;
  }
  return RoundedByte(percent * 255.0 / 100.0);
}

std::optional<FixedBytes> DoubleBytes(double value) {
  std::uint64_t bits = 0;
  static_assert(sizeof bits == sizeof value, "double is 64 bits");
  std::memcpy(&bits, &value, sizeof bits);
  return BigEndian(bits, 8);
}

// The one-byte platform kinds are numbers with a byte form of their own.
std::optional<FixedBytes> FixedBytesOf(const ULOVALUE& value) {
  switch (value.GetType()) {
    case IVT_PERCENT:
      return PercentByte(value.GetDouble());
    case IVT_DIMMING:
      return BigEndian(GetRelScalingAsByte(value.GetDouble()), 1);
    case IVT_DOUBLE_1005:
      return RoundedByte(value.GetDouble());
    default:
      break;
  }
  switch (PayloadOf(value.GetType())) {
    case Payload::Bool:
      return BigEndian(value.GetBool() ? 1 : 0, 1);
    case Payload::Byte:
      return BigEndian(value.GetByte(), 1);
    case Payload::UInt16:
      return BigEndian(value.GetUInt16(), 2);
    case Payload::Int32:
    case Payload::UInt32:
      return BigEndian(value.GetUInt32(), 4);
    case Payload::UInt64:
      return BigEndian(value.GetUInt64(), 8);
    case Payload::Double:
      return DoubleBytes(value.GetDouble());
    default:
      return std::nullopt;
  }
}

bool CopyOut(const unsigned char* bytes, unsigned int count, unsigned char* buffer, unsigned int& size) {
  if (count > size) {
    return false;
  }
  if (count != 0) {
    std::memcpy(buffer, bytes, count);
  }
  size = count;
  return true;
}

}  // namespace

bool UloValueToByteArray(const ULOVALUE& value, unsigned char* buffer, unsigned int& size) {
  if (buffer == nullptr) {
    return false;
  }
  if (PayloadOf(value.GetType()) == Payload::Text) {
    const std::string& text = value.GetString();
    if (text.size() > size) {
      return false;
    }
    return CopyOut(reinterpret_cast<const unsigned char*>(text.data()), static_cast<unsigned int>(text.size()), buffer,
                   size);
  }
  const std::optional<FixedBytes> bytes = FixedBytesOf(value);
  return bytes && CopyOut(bytes->data, bytes->size, buffer, size);
}

bool ByteArrayToUloValue(const unsigned char* data, unsigned int size, ULOVALUE& out, bool isOneBit) {
  if (data == nullptr || size == 0) {
    return false;
  }
  if (isOneBit) {
    out.SetType(IVT_BOOL);
    out.SetBool((data[0] & 0x01) != 0);
  } else if (size == 1) {
    out.SetType(IVT_BYTE);
    out.SetByte(data[0]);
  } else if (size == 2) {
    out.SetType(IVT_UINT16);
    out.SetUInt16(static_cast<std::uint16_t>(FromBigEndian(data, size)));
  } else if (size <= 4) {
    out.SetType(IVT_UINT32);
    out.SetUInt32(static_cast<std::uint32_t>(FromBigEndian(data, size)));
  } else if (size <= MaxFixedSize) {
    out.SetType(IVT_UINT64);
    out.SetUInt64(FromBigEndian(data, size));
  } else {
    out.SetType(IVT_STRING);
    out.SetString(std::string(reinterpret_cast<const char*>(data), size));
  }
  return true;
}
