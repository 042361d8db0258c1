// knxconv's DPT reader on any text, and its two ways of writing a DPT back:
// only InputError may come out, and what it reads writes back as it reads.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "DptText.h"
#include "InputError.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  KNXDPT dpt;
  try {
    dpt = Knxconv::ParseDpt(text);
  } catch (const Knxconv::InputError&) {
    return 0;
  }
  (void)Knxconv::DptLabel(dpt);
  const KNXDPT again = Knxconv::ParseDpt(Knxconv::FormatDpt(dpt));
  if (again.mainNumber != dpt.mainNumber || again.subNumber != dpt.subNumber) {
    std::abort();
  }
  return 0;
}
