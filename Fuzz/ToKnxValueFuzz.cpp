// ToKnxValue with the standard table on any DPT and a value of any type tag
// with any payload: numbers including NaN and infinities, texts of any bytes,
// date and time fields out of range.

#include <cstddef>
#include <cstdint>

#include "FuzzInput.h"
#include "FuzzLogging.h"
#include "KnxValueConverterApi.h"

namespace {

ULOTIME ReadTime(FuzzInput& input) {
  ULOTIME time;
  time.year = input.Read<std::uint16_t>();
  time.month = input.Read<std::uint8_t>();
  time.day = input.Read<std::uint8_t>();
  time.hour = input.Read<std::uint8_t>();
  time.minute = input.Read<std::uint8_t>();
  time.second = input.Read<std::uint8_t>();
  time.weekday = static_cast<ULO::Weekdays::Days>(input.Read<std::uint32_t>());
  time.summerTime = input.Read<std::uint8_t>();
  time.isSet = (input.Read<std::uint8_t>() & 1) != 0;
  return time;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Nelmo::KnxValueConverter converter;
  EnableSilentLogging();
  FuzzInput input(data, size);
  KNXDPT dpt;
  dpt.mainNumber = input.Read<std::uint16_t>();
  dpt.subNumber = input.Read<std::uint16_t>();
  dpt.bitSize = input.Read<std::uint8_t>();
  ULOVALUE value(static_cast<UloValueType>(input.Read<std::int32_t>()));
  value.SetBool((input.Read<std::uint8_t>() & 1) != 0);
  value.SetUInt64(input.Read<std::uint64_t>());
  value.SetDouble(input.Read<double>());
  value.SetTime(ReadTime(input));
  value.SetString(input.RestAsString());
  KnxStack::GroupValue groupValue;
  converter.ToKnxValue(dpt, value, groupValue);
  (void)groupValue.GetRawData().ToString();
  return 0;
}
