#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "JsonWriter.h"
#include "KnxValueConverterApi.h"
#include "Output.h"

namespace Knxconv {

// A member of "fields": a number, a flag or a word.
struct DisplayField {
  enum class Kind { Number, Flag, Word };
  const char* name = nullptr;
  Kind kind = Kind::Number;
  std::int64_t number = 0;  // a flag's too, 0 or 1
  const char* word = nullptr;
};

// A decoded value as the bus meant it: the text users read ("21.5 °C",
// "down", "Mon 12:34:56") and what the JSON members beside "value" say:
// "name" and "unit" always, and where the format has them, "valueName",
// "weekday", "flags" and "fields". The texts are the catalogue's and the
// tool's constants, so that a telegram's display allocates no more than its
// text.
struct ValueDisplay {
  static constexpr std::size_t MaxFlags = 10;
  static constexpr std::size_t MaxFields = 3;

  std::string text;
  const char* name = nullptr;  // null: none, as for the unit and the rest
  const char* unit = nullptr;
  const char* valueName = nullptr;
  const char* weekday = nullptr;
  // Date-times have "flags" even when none is set.
  bool hasFlags = false;
  std::array<const char*, MaxFlags> flags{};
  std::size_t flagCount = 0;
  std::array<DisplayField, MaxFields> fields{};
  std::size_t fieldCount = 0;
};

// value is what the library decoded from bytes as dpt, valueText its own
// text; structured forms read their fields from those bytes.
ValueDisplay DisplayValue(const KNXDPT& dpt, const ULOVALUE& value, const std::vector<unsigned char>& bytes,
                          std::string valueText);
// The same with dpt's sub-type in the catalogue (SubtypeOf) at hand.
ValueDisplay DisplayValue(const KNXDPT& dpt, const Nelmo::DptSubtype* subtype, const ULOVALUE& value,
                          const std::vector<unsigned char>& bytes, std::string valueText);

// The JSON members of display, in their order.
void WriteDisplayMembers(const ValueDisplay& display, JsonObjectWriter& json);
// The same members as a JSON object.
Json DisplayMembers(const ValueDisplay& display);

}  // namespace Knxconv
