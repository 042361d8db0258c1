// knxconv's value reader on any text for every value type, and the
// calendar check on what it reads: only InputError may come out.

#include <cstddef>
#include <cstdint>
#include <string>

#include "CalendarCheck.h"
#include "FuzzInput.h"
#include "InputError.h"
#include "ValueText.h"

namespace {

constexpr UloValueType Types[] = {
    IVT_NONE,         IVT_ANY,
    IVT_BOOL,         IVT_DOUBLE,
    IVT_INT32,        IVT_TYPE_5,
    IVT_BYTE,         IVT_UINT16,
    IVT_UINT32,       IVT_UINT64,
    IVT_STRING,       IVT_DATE,
    IVT_TIME,         IVT_DATETIME,
    IVT_TIMESPAN,     IVT_UNSIGNED_20,
    IVT_DATETIME_102, IVT_TIME_104,
    IVT_DATE_105,     IVT_DATETIME_201,
    IVT_DOUBLE_1005,  IVT_BYTE_1021,
    IVT_PERCENT,      IVT_DIMMING,
    IVT_DOUBLE_1039,  static_cast<UloValueType>(77),
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput input(data, size);
  const auto selector = input.Read<std::uint8_t>();
  const UloValueType type = Types[selector % (sizeof Types / sizeof Types[0])];
  const std::string text = input.RestAsString();
  try {
    const ULOVALUE value = Knxconv::ParseValue(type, text, (selector & 0x80) != 0);
    (void)Knxconv::CalendarError(value);
    (void)value.ToString();
  } catch (const Knxconv::InputError&) {
  }
  try {
    (void)Knxconv::ParseValueType(text);
  } catch (const Knxconv::InputError&) {
  }
  return 0;
}
