#pragma once

#include <string>
#include <vector>

#include "KnxValueConverterApi.h"
#include "Output.h"

namespace Knxconv {

// A decoded value as the bus meant it: the text users read ("21.5 °C",
// "down", "Mon 12:34:56") and the JSON members that go beside "value":
// "name" and "unit" always, and where the format has them, "valueName",
// "weekday", "flags" and "fields".
struct ValueDisplay {
  std::string text;
  Json json;
};

// value is what the library decoded from bytes as dpt, valueText its own
// text; structured forms read their fields from those bytes.
ValueDisplay DisplayValue(const KNXDPT& dpt, const ULOVALUE& value, const std::vector<unsigned char>& bytes,
                          const std::string& valueText);

}  // namespace Knxconv
