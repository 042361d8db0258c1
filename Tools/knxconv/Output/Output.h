#pragma once

#include <optional>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "DptCatalogue.h"
#include "KnxValueConverterApi.h"
#include "TraceReader.h"

namespace Knxconv {

using Json = nlohmann::ordered_json;

// Column widths of the telegram lines (trace, monitor): addresses, DPT,
// value type.
constexpr std::size_t AddressWidth = 9;
constexpr std::size_t DptWidth = 8;
constexpr std::size_t TypeWidth = 13;

// text with blanks appended up to width, counted in characters.
std::string Padded(std::string text, std::size_t width);

// One line of JSON; bytes that are not UTF-8 become U+FFFD (never thrown
// over), control characters are escaped, DEL and C1 included.
std::string JsonLine(const Json& json);

// The value as JSON: booleans and numbers as such, no value as null, texts,
// dates and times as their text form.
Json ValueJson(const ULOVALUE& value);

Json EncodeJson(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue);

// One row of the DPT table as the tool shows it.
struct TableRow {
  KNXDPT dpt;
  std::string label;
  std::string name;  // of the catalogue's sub-type; empty when none
  std::string unit;
  UloValueType valueType = IVT_ANY;
  UloDP::UloValueSubType subType = UloDP::IVST_NONE;
  std::string converter;
  std::optional<std::string> range;
};

TableRow DescribeRow(const Nelmo::DptValueEntry& entry);
// Lines of columns, each padded to its widest cell (in characters, not
// bytes) and two blanks apart.
std::string AlignColumns(const std::vector<std::vector<std::string>>& lines);

// The rows as aligned columns, one line each: DPT, label, name, unit, bits,
// value type, subtype, converter, range ("-" for none).
std::string TableText(const std::vector<TableRow>& rows);
Json TableJson(const std::vector<TableRow>& rows);

// A telegram of a trace and what became of it.
struct TraceResult {
  Telegram telegram;
  // The DPT as the library used it, when the DPT could be read.
  std::optional<KNXDPT> dpt;
  bool converted = false;
  ULOVALUE value;
  // The value as the text output shows it.
  std::string text;
  UloDP::UloValueSubType subType = UloDP::IVST_NONE;
  // dpt's sub-type in the catalogue (SubtypeOf), where the decoder looked it
  // up; nullopt where it did not.
  std::optional<const Nelmo::DptSubtype*> catalogueSubtype;
  // The payload's bytes, once read.
  std::vector<unsigned char> bytes;
  std::string error;

  // Back to nothing decoded, the telegram kept; the strings and the bytes
  // keep their capacity for the next telegram.
  void ClearDecoding() {
    dpt.reset();
    converted = false;
    value = ULOVALUE();
    text.clear();
    subType = UloDP::IVST_NONE;
    catalogueSubtype.reset();
    bytes.clear();
    error.clear();
  }
};

// A decoded value: dpt, type, subtype, value, then the display's members.
Json DecodeJson(const TraceResult& result);
// The value as users read it: unit, value names, weekday, flags, fields.
std::string DecodeText(const TraceResult& result);
// The members JSON adds beside "value" (see ValueDisplay).
Json DisplayJson(const TraceResult& result);

// "time  source -> destination  dpt  payload  value", or "... error: why".
std::string TraceText(const TraceResult& result);
// The same written over text, which keeps its capacity.
void TraceText(const TraceResult& result, std::string& text);
// The same as one line of JSON, written over line.
void TraceJson(const TraceResult& result, std::string& line);

}  // namespace Knxconv
