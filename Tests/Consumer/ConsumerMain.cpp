// Sends 21.5 as DPT 9.001 and reads it back, as a server would: the bus
// bytes are 0C 33. Exit status 0 when both directions give what they should.
#include <cstdio>
#include <string>

#include "KnxValueConverterApi.h"

namespace {

bool Check(bool condition, const char* what) {
  std::printf("%s: %s\n", condition ? "ok" : "FAILED", what);
  return condition;
}

}  // namespace

int main() {
  const Nelmo::KnxValueConverter converter;
  const KNXDPT dpt{16, 9, 1};

  KnxStack::GroupValue sent;
  bool ok = Check(converter.ToKnxValue(dpt, ULOVALUE::Double(21.5), sent), "21.5 converted to DPT 9.001");
  const std::string bytes = sent.GetRawData().ToString();
  ok = Check(bytes == "0C 33", ("bus bytes " + bytes + ", expected 0C 33").c_str()) && ok;

  const unsigned char received[] = {0x0C, 0x33};
  const KnxStack::GroupValue groupValue(KnxStack::BinaryData(received, sizeof received), 16);
  ULOVALUE value;
  ok = Check(converter.FromKnxValue(dpt, groupValue, value), "0C 33 converted from DPT 9.001") && ok;
  ok = Check(value.GetType() == IVT_DOUBLE && value.GetDouble() == 21.5,
             ("value " + value.ToString() + ", expected the double 21.5").c_str()) &&
       ok;
  return ok ? 0 : 1;
}
