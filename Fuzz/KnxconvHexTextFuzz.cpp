// knxconv's payload reader on any text, and the payload size check for any
// DPT and bit size on what it reads: only InputError may come out, and the
// bytes read write back as the same bytes.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "FuzzInput.h"
#include "HexText.h"
#include "InputError.h"
#include "PayloadSize.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput input(data, size);
  KNXDPT dpt;
  dpt.mainNumber = input.Read<std::uint16_t>();
  dpt.subNumber = input.Read<std::uint8_t>();
  const unsigned int bits = input.ReadBitSize();
  KnxStack::BinaryData bytes;
  try {
    bytes = Knxconv::ParseHex(input.RestAsString());
  } catch (const Knxconv::InputError&) {
    return 0;
  }
  if (Knxconv::ParseHex(bytes.ToString()) != bytes) {
    std::abort();
  }
  (void)Knxconv::PayloadSizeError(dpt, bits, bytes);
  return 0;
}
