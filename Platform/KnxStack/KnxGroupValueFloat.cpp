// The floating-point accessors of GroupValue: the KNX 2-octet float and the
// IEEE 754 4-octet float.
#include <cmath>
#include <cstring>
#include <limits>
#include <sstream>

#include "KnxGroupValue.h"

namespace KnxStack {

namespace {

constexpr std::uint16_t Float16Invalid = 0x7FFF;
constexpr std::uint16_t Float16LargestValid = 0x7FFE;
constexpr long Float16MinMantissa = -2048;
constexpr long Float16MaxMantissa = 2047;
constexpr double Float16Min = -671088.64;
constexpr double Float16Max = 670760.96;

[[noreturn]] void ThrowFloat16OutOfRange(double value) {
  std::ostringstream text;
  text.precision(15);
  text << "GroupValue: value " << value << " is outside the 2-octet float range -671088.64 to 670760.96";
  throw GroupValueException(text.str());
}

// Exponent in bits 14-11, the mantissa's sign in bit 15 and its other bits
// in bits 10-0.
std::uint16_t PackFloat16(long mantissa, int exponent) {
  const auto twelveBits = static_cast<std::uint16_t>(static_cast<unsigned long>(mantissa) & 0xFFFu);
  return static_cast<std::uint16_t>((twelveBits & 0x800u) << 4 | static_cast<unsigned int>(exponent) << 11 |
                                    (twelveBits & 0x7FFu));
}

std::uint16_t EncodeFloat16(double value) {
  if (std::isnan(value)) {
    return Float16Invalid;
  }
  if (!(value >= Float16Min && value <= Float16Max)) {
    ThrowFloat16OutOfRange(value);
  }
  const double hundredths = value * 100.0;
  int exponent = 0;
  long mantissa = std::lround(hundredths);
  while (mantissa < Float16MinMantissa || mantissa > Float16MaxMantissa) {
    ++exponent;
    mantissa = std::lround(std::ldexp(hundredths, -exponent));
  }
  const std::uint16_t raw = PackFloat16(mantissa, exponent);
  return raw == Float16Invalid ? Float16LargestValid : raw;
}

double DecodeFloat16(std::uint16_t raw) {
  if (raw == Float16Invalid) {
    return std::numeric_limits<double>::quiet_NaN();
  }
  const int exponent = (raw >> 11) & 0x0F;
  const int mantissa = ((raw & 0x8000) != 0 ? -2048 : 0) + (raw & 0x07FF);
  // Scaling the integer first keeps 0C 33 at exactly 21.5.
  return static_cast<double>(mantissa * (1 << exponent)) / 100.0;
}

}  // namespace

double GroupValue::GetAsFloat16() const {
  return DecodeFloat16(static_cast<std::uint16_t>(ReadUnsigned(16)));
}

void GroupValue::SetAsFloat16(double value) {
  WriteUnsigned(EncodeFloat16(value), 16);
}

float GroupValue::GetAsFloat32() const {
  const std::uint32_t bits = ReadUnsigned(32);
  float value = 0.0f;
  std::memcpy(&value, &bits, sizeof value);
  return value;
}

void GroupValue::SetAsFloat32(float value) {
  static_assert(sizeof(float) == sizeof(std::uint32_t), "IEEE 754 single precision expected");
  std::uint32_t bits = 0;
  std::memcpy(&bits, &value, sizeof bits);
  WriteUnsigned(bits, 32);
}

}  // namespace KnxStack
