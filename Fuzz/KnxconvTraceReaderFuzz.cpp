// knxconv's trace reader on any bytes: only InputError (no header) may
// come out, and every telegram has its line number.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

#include "InputError.h"
#include "TraceReader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::istringstream in(std::string(reinterpret_cast<const char*>(data), size));
  try {
    Knxconv::TraceReader reader(in);
    Knxconv::Telegram telegram;
    std::size_t previous = 1;
    while (reader.Next(telegram)) {
      if (telegram.lineNumber <= previous) {
        std::abort();
      }
      previous = telegram.lineNumber;
    }
  } catch (const Knxconv::InputError&) {
  }
  return 0;
}
