#pragma once

#include <cstdint>
#include <string>

#include "GroupFrame.h"
#include "Output.h"

namespace Knxconv {

// A telegram from the bus and what became of it. The converter's part is a
// trace result, so that the value is shown as trace shows it.
struct BusLine {
  std::string time;  // local time of arrival, "hh:mm:ss.mmm"
  std::uint16_t source = 0;
  std::uint16_t destination = 0;
  std::string name;      // from the addresses file, may be empty
  std::string service;   // "write", "read", "response"; "?" for a frame that is none
  std::string payload;   // the value's bytes as hex, "" for a read
  bool decoded = false;  // false: shown raw
  TraceResult result;
};

// "hh:mm:ss.mmm" of now, local time.
std::string TimeOfDayNow();

// "time  source -> destination  service  dpt  [payload]  type value  (name)";
// "raw" instead of the DPT where none is known, "error: why" instead of the
// value where it did not convert.
std::string BusLineText(const BusLine& line);
Json BusLineJson(const BusLine& line);

}  // namespace Knxconv
