// The floating-point accessors of GroupValue: the KNX 2-octet float and the
// IEEE 754 4-octet float.
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <sstream>

#include "KnxGroupValue.h"
#include "KnxGroupValueBytes.h"

namespace KnxStack {

namespace {

constexpr std::uint16_t Float16Invalid = 0x7FFF;
constexpr std::uint16_t Float16LargestValid = 0x7FFE;
constexpr int Float16MaxExponent = 15;
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
std::uint16_t PackFloat16(std::int32_t mantissa, int exponent) {
  const auto twelveBits = static_cast<std::uint16_t>(static_cast<std::uint32_t>(mantissa) & 0xFFFu);
  return static_cast<std::uint16_t>((twelveBits & 0x800u) << 4 | static_cast<unsigned int>(exponent) << 11 |
                                    (twelveBits & 0x7FFu));
}

// 2^-e for every exponent of the format. Multiplying by a power of two is
// exact in this range, so this gives what ldexp would, without the call.
constexpr double InversePowersOfTwo[Float16MaxExponent + 1] = {
    1.0,       1.0 / 2,   1.0 / 4,    1.0 / 8,    1.0 / 16,   1.0 / 32,   1.0 / 64,    1.0 / 128,
    1.0 / 256, 1.0 / 512, 1.0 / 1024, 1.0 / 2048, 1.0 / 4096, 1.0 / 8192, 1.0 / 16384, 1.0 / 32768,
};

// The mantissa of exponent e, rounded half away from zero, stays within
// -2048 to 2047 exactly when the hundredths lie strictly between these two
// bounds times 2^e (-2048.5 rounds to -2049, 2047.5 to 2048). The products
// are exact, so comparing against them finds the smallest exponent without
// rounding at every step.
constexpr double MantissaBelow[Float16MaxExponent + 1] = {
    2047.5 * 1,    2047.5 * 2,    2047.5 * 4,     2047.5 * 8,     2047.5 * 16,   2047.5 * 32,
    2047.5 * 64,   2047.5 * 128,  2047.5 * 256,   2047.5 * 512,   2047.5 * 1024, 2047.5 * 2048,
    2047.5 * 4096, 2047.5 * 8192, 2047.5 * 16384, 2047.5 * 32768,
};
constexpr double MantissaAbove[Float16MaxExponent + 1] = {
    -2048.5 * 1,    -2048.5 * 2,    -2048.5 * 4,     -2048.5 * 8,     -2048.5 * 16,   -2048.5 * 32,
    -2048.5 * 64,   -2048.5 * 128,  -2048.5 * 256,   -2048.5 * 512,   -2048.5 * 1024, -2048.5 * 2048,
    -2048.5 * 4096, -2048.5 * 8192, -2048.5 * 16384, -2048.5 * 32768,
};

// Rounds half away from zero, as lround does. Only for magnitudes below
// 2^31: the truncated whole part is then exact, and so is the fraction.
std::int32_t RoundHalfAwayFromZero(double value) {
  const auto whole = static_cast<std::int32_t>(value);
  const double fraction = value - static_cast<double>(whole);
  if (fraction >= 0.5) {
    return whole + 1;
  }
  if (fraction <= -0.5) {
    return whole - 1;
  }
  return whole;
}

// The smallest exponent whose rounded mantissa fits. The range check before
// keeps the hundredths within reach of exponent 15; the bound on the
// exponent only guards the tables.
int Float16Exponent(double hundredths) {
  int exponent = 0;
  if (hundredths >= 0.0) {
    while (hundredths >= MantissaBelow[exponent] && exponent < Float16MaxExponent) {
      ++exponent;
    }
  } else {
    while (hundredths <= MantissaAbove[exponent] && exponent < Float16MaxExponent) {
      ++exponent;
    }
  }
  return exponent;
}

std::uint16_t EncodeFloat16(double value) {
  // NaN fails the range test too; only then is it told apart.
  if (!(value >= Float16Min && value <= Float16Max)) {
    if (std::isnan(value)) {
      return Float16Invalid;
    }
    ThrowFloat16OutOfRange(value);
  }
  const double hundredths = value * 100.0;
  const int exponent = Float16Exponent(hundredths);
  const std::int32_t mantissa = RoundHalfAwayFromZero(hundredths * InversePowersOfTwo[exponent]);
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
