#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "NelmoExport.h"

namespace Nelmo {

// One named value of a boolean or an enumeration (1.008: 0 "up", 1 "down").
struct DptValueName {
  std::uint32_t value;
  const char* name;
};

// One datapoint sub-type of the KNX standard, as integrators know it.
struct DptSubtype {
  std::uint16_t mainNumber;
  std::uint16_t subNumber;
  std::uint16_t bitSize;    // of the main type's format; VariableBitSize for texts of any length
  const char* name;         // standard name, "DPT_Value_Temp"
  const char* description;  // short, lower case, "temperature"
  const char* unit;         // as the standard writes it, "°C"; "" when none
  double minimum;           // NaN when the standard gives no range
  double maximum;
  const DptValueName* valueNames;  // booleans and enumerations, else nullptr
  std::size_t valueNameCount;
};

// A DPT as a user wrote it; subGiven is false for "9", "9.x", "DPT-9".
struct DptId {
  std::uint16_t mainNumber;
  std::uint16_t subNumber;
  bool subGiven;
};

// The catalogue's entries in order, for range-for.
struct DptSubtypeRange {
  const DptSubtype* first;
  const DptSubtype* last;
  const DptSubtype* begin() const { return first; }
  const DptSubtype* end() const { return last; }
};

// The datapoint sub-types of the KNX standard: a constant table, ordered by
// main and sub number, that nothing allocates to build or search.
class NELMO_EXPORT DptCatalogue {
 public:
  // Bit size of the formats of any length (main numbers 24 and 28).
  static constexpr std::uint16_t VariableBitSize = 0;

  static const DptSubtype* begin();
  static const DptSubtype* end();
  static DptSubtypeRange All() { return DptSubtypeRange{begin(), end()}; }
  static std::size_t Size();

  // nullptr when unknown.
  static const DptSubtype* Find(std::uint16_t mainNumber, std::uint16_t subNumber);
  // By standard name, case-insensitive; nullptr when unknown.
  static const DptSubtype* FindByName(std::string_view name);

  // The name of a value of a boolean or enumeration; nullptr when none.
  static const char* ValueName(const DptSubtype& subtype, std::uint32_t value);
  // The value of a name, case-insensitive.
  static std::optional<std::uint32_t> ValueOfName(const DptSubtype& subtype, std::string_view name);

  // The spellings users type, case-insensitive: "9.001", "9.1", "9", "9.x",
  // "9.*", "DPT9.001", "DPT 9.001", "DPT-9", "DPT-9-1", "DPST-9-1",
  // "DPT_Value_Temp". nullopt when the text is not a DPT.
  static std::optional<DptId> Parse(std::string_view text);

  // Up to count known names or numbers nearest to a text that Parse
  // refused, best first; empty when none is near.
  static std::vector<std::string> Suggest(std::string_view text, std::size_t count = 3);
};

}  // namespace Nelmo
