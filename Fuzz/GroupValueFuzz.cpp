// Every GroupValue getter on any bytes and any defined size, and the
// setters that take numbers on any argument: only GroupValueException may
// come out.

#include <cstddef>
#include <cstdint>

#include "FuzzInput.h"
#include "KnxStack.h"

namespace {

template <typename Access>
void Try(Access&& access) {
  try {
    access();
  } catch (const KnxStack::GroupValueException&) {
  }
}

void CallEveryGetter(const KnxStack::GroupValue& value) {
  int d = 0, mo = 0, y = 0, h = 0, mi = 0, s = 0;
  KnxStack::GroupValue::DayOfWeek day{};
  bool f[9] = {};
  Try([&] { (void)value.GetAsBoolean(); });
  Try([&] { (void)value.GetAsUnsigned2(); });
  Try([&] { (void)value.GetAsUnsigned4(); });
  Try([&] { (void)value.GetAsUnsigned8(); });
  Try([&] { (void)value.GetAsSigned8(); });
  Try([&] { (void)value.GetAsUnsigned16(); });
  Try([&] { (void)value.GetAsSigned16(); });
  Try([&] { (void)value.GetAsUnsigned24(); });
  Try([&] { (void)value.GetAsUnsigned32(); });
  Try([&] { (void)value.GetAsSigned32(); });
  Try([&] { (void)value.GetAsFloat16(); });
  Try([&] { (void)value.GetAsFloat32(); });
  Try([&] { (void)value.GetAsString14(); });
  Try([&] { value.GetAsDate(&d, &mo, &y); });
  Try([&] { value.GetAsTimeOfDay(&h, &mi, &s, &day); });
  Try([&] { value.GetAsTimeOfDay(&h, &mi, &s, nullptr); });
  Try([&] {
    value.GetAsDateTime(&d, &mo, &y, &h, &mi, &s, &day, &f[0], &f[1], &f[2], &f[3], &f[4], &f[5], &f[6], &f[7], &f[8]);
  });
  (void)value.GetRawData().ToString();
}

void CallNumberSetters(FuzzInput& input) {
  KnxStack::GroupValue value;
  const int a = input.Read<std::int32_t>();
  const int b = input.Read<std::int32_t>();
  const int c = input.Read<std::int32_t>();
  const auto day = static_cast<KnxStack::GroupValue::DayOfWeek>(input.Read<std::uint8_t>());
  Try([&] { value.SetAsFloat16(input.Read<double>()); });
  Try([&] { value.SetAsDate(a, b, c); });
  Try([&] { value.SetAsTimeOfDay(a, b, c, day); });
  Try([&] { value.SetAsDateTime(a, b, c, a, b, c, day, true, false, true, false, true, false, true, false, true); });
  CallEveryGetter(value);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput input(data, size);
  const unsigned int definedSize = input.ReadBitSize();
  FuzzInput setters(data, size);
  const KnxStack::GroupValue value(KnxStack::BinaryData(input.Rest(), static_cast<unsigned int>(input.RestSize())),
                                   definedSize);
  CallEveryGetter(value);
  CallNumberSetters(setters);
  return 0;
}
