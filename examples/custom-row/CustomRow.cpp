// A server's own row: DPT 8.003, a time difference in steps of 10 ms, which
// the standard table leaves to its 8.x row (plain integers). Registered with
// a scaled converter it takes seconds: 1.5 s travels as 150, the bytes 00 96.
#include <cstdio>

#include "KnxValueConverterApi.h"

int main() {
  Nelmo::KnxValueConverter converter;

  // -327.68 s .. 327.67 s onto the signed 16-bit field -32768 .. 32767. The
  // table keeps a clone, so the converter may be a temporary.
  const Nelmo::FloatIntegerRange seconds(-327.68, 327.67, -32768, 32767);
  if (!converter.AddDptValueMapEntry(8, 3, 16, IVT_DOUBLE, UloDP::IVST_NONE,
                                     Nelmo::KnxConverterFloat16BitSigned(seconds))) {
    return 1;
  }

  const KNXDPT dpt{16, 8, 3};
  KnxStack::GroupValue telegram;
  ULOVALUE value;
  if (!converter.ToKnxValue(dpt, ULOVALUE::Double(1.5), telegram) || !converter.FromKnxValue(dpt, telegram, value)) {
    return 1;
  }
  std::printf("8.003: 1.5 s -> %s -> %s s\n", telegram.GetRawData().ToString().c_str(), value.ToString().c_str());
  return 0;
}
