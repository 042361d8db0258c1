#include "PayloadSize.h"

#include <cstdint>

#include "DptText.h"
#include "KnxDptFormat.h"

namespace Knxconv {

namespace {

// Values of up to 6 bits travel inside the telegram's control field, whose
// byte the payload then is.
constexpr std::int32_t ControlFieldBits = 6;
constexpr std::int32_t ByteBits = 8;

std::int64_t BytesFor(std::int64_t bits) {
  return bits <= ControlFieldBits ? 1 : (bits + ByteBits - 1) / ByteBits;
}

std::string Bytes(std::int64_t count) {
  return std::to_string(count) + (count == 1 ? " byte" : " bytes");
}

std::string Has(const KnxStack::BinaryData& data) {
  return "the payload " + data.ToString() + " has " + Bytes(data.GetLength());
}

}  // namespace

std::optional<std::string> PayloadSizeError(const KNXDPT& dpt, unsigned int bits, const KnxStack::BinaryData& data) {
  const std::int64_t length = data.GetLength();
  const std::int32_t formatBits = Nelmo::KnxDptFormat::GetBitSize(dpt);
  const bool known = formatBits > 0 && formatBits != Nelmo::KnxDptFormat::VariableLength;
  if (known && length < BytesFor(formatBits)) {
    return Has(data) + ", DPT " + FormatDpt(dpt) + " needs " + Bytes(BytesFor(formatBits));
  }
  // A longer payload is refused by the library for its bit size, except
  // for the small formats, which would be read from the first byte alone.
  if (known && bits == 0 && formatBits <= ControlFieldBits && length > 1) {
    return Has(data) + ", DPT " + FormatDpt(dpt) + " takes 1 byte";
  }
  if (bits > 0 && length != BytesFor(bits)) {
    return Has(data) + ", --bits " + std::to_string(bits) + (length < BytesFor(bits) ? " needs " : " takes ") +
           Bytes(BytesFor(bits));
  }
  return std::nullopt;
}

}  // namespace Knxconv
