// FromKnxValue with the standard table on any DPT, any defined size, any
// payload bytes and an output value of any type.

#include <cstddef>
#include <cstdint>

#include "FuzzInput.h"
#include "FuzzLogging.h"
#include "KnxValueConverterApi.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Nelmo::KnxValueConverter converter;
  EnableSilentLogging();
  FuzzInput input(data, size);
  KNXDPT dpt;
  dpt.mainNumber = input.Read<std::uint16_t>();
  dpt.subNumber = input.Read<std::uint16_t>();
  dpt.bitSize = input.Read<std::uint8_t>();
  const unsigned int definedSize = input.ReadBitSize();
  ULOVALUE value(static_cast<UloValueType>(input.Read<std::int32_t>()));
  const KnxStack::GroupValue groupValue(KnxStack::BinaryData(input.Rest(), static_cast<unsigned int>(input.RestSize())),
                                        definedSize);
  converter.FromKnxValue(dpt, groupValue, value);
  (void)value.ToString();
  return 0;
}
