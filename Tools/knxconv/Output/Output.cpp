#include "Output.h"

#include <algorithm>
#include <cmath>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>

#include "CatalogueInput.h"
#include "ConverterInfo.h"
#include "DptText.h"
#include "JsonWriter.h"
#include "LineBuffer.h"
#include "TextEscape.h"
#include "ValueDisplay.h"
#include "ValueText.h"

namespace Knxconv {

namespace {

constexpr const char* NoRange = "-";
// Eight bytes, the longest payload but for texts.
constexpr std::size_t PayloadWidth = 23;

// Characters, not bytes: "°C" takes two columns.
std::size_t Width(std::string_view text) {
  std::size_t width = 0;
  for (const char c : text) {
    width += (static_cast<unsigned char>(c) & 0xC0U) != 0x80U ? 1 : 0;
  }
  return width;
}

std::string OrNone(const std::string& text) {
  return text.empty() ? NoRange : text;
}

Json TextOrNull(const std::string& text) {
  return text.empty() ? Json(nullptr) : Json(text);
}

// Calls visit with the value as JSON has it: nullptr for no value (and for a
// number that is not finite, which JSON cannot write), bool, a number of the
// value's own type, or the text of texts, dates and times.
template <typename Visitor>
auto VisitValue(const ULOVALUE& value, Visitor&& visit) {
  switch (KindOf(value.GetType())) {
    case ValueKind::NoValue:
      return visit(nullptr);
    case ValueKind::Boolean:
      return visit(value.GetBool());
    case ValueKind::Number:
      return std::isfinite(value.GetDouble()) ? visit(value.GetDouble()) : visit(nullptr);
    case ValueKind::Signed32:
      return visit(value.GetInt32());
    case ValueKind::Byte:
      return visit(value.GetByte());
    case ValueKind::Unsigned16:
      return visit(value.GetUInt16());
    case ValueKind::Unsigned32:
      return visit(value.GetUInt32());
    case ValueKind::Unsigned64:
      return visit(value.GetUInt64());
    case ValueKind::Text:
    case ValueKind::Date:
    case ValueKind::Time:
    case ValueKind::DateTime:
    case ValueKind::Unknown:
      break;
  }
  return visit(value.ToString());
}

// Writes a visited value as the member "value".
class ValueMember {
 public:
  explicit ValueMember(JsonObjectWriter& json) : m_json(json) {}
  void operator()(std::nullptr_t) const { m_json.Null(Key); }
  void operator()(bool value) const { m_json.Bool(Key, value); }
  void operator()(double value) const { m_json.Number(Key, value); }
  void operator()(const std::string& value) const { m_json.String(Key, value); }
  template <typename Integer>
  void operator()(Integer value) const {
    if constexpr (std::is_signed_v<Integer>) {
      m_json.Signed(Key, value);
    } else {
      m_json.Unsigned(Key, value);
    }
  }

 private:
  static constexpr const char* Key = "value";
  JsonObjectWriter& m_json;
};

// The catalogue's sub-type of the result's DPT.
const Nelmo::DptSubtype* Subtype(const TraceResult& result) {
  return result.catalogueSubtype ? *result.catalogueSubtype : SubtypeOf(*result.dpt);
}

ValueDisplay Display(const TraceResult& result) {
  return DisplayValue(*result.dpt, Subtype(result), result.value, result.bytes,
                      result.text.empty() ? result.value.ToString() : result.text);
}

std::string TraceDpt(const TraceResult& result) {
  return result.dpt ? FormatDpt(*result.dpt) : result.telegram.dpt;
}

std::vector<std::string> RowColumns(const TableRow& row) {
  return {FormatDpt(row.dpt),
          row.label,
          OrNone(row.name),
          OrNone(row.unit),
          std::to_string(row.dpt.bitSize),
          ValueTypeText(row.valueType),
          ValueSubTypeText(row.subType),
          row.converter,
          row.range.value_or(NoRange)};
}

}  // namespace

std::string Padded(std::string text, std::size_t width) {
  const std::size_t current = Width(text);
  if (current < width) {
    text.append(width - current, ' ');
  }
  return text;
}

std::string JsonLine(const Json& json) {
  return EscapeJsonControls(json.dump(-1, ' ', false, Json::error_handler_t::replace));
}

Json ValueJson(const ULOVALUE& value) {
  return VisitValue(value, [](auto member) { return Json(member); });
}

Json EncodeJson(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue) {
  Json json;
  json["dpt"] = FormatDpt(dpt);
  json["bits"] = groupValue.GetDefinedSize();
  json["hex"] = groupValue.GetRawData().ToString();
  return json;
}

Json DecodeJson(const TraceResult& result) {
  Json json;
  json["dpt"] = FormatDpt(*result.dpt);
  json["type"] = ValueTypeText(result.value.GetType());
  json["subtype"] = ValueSubTypeText(result.subType);
  json["value"] = ValueJson(result.value);
  json.update(DisplayMembers(Display(result)));
  return json;
}

std::string DecodeText(const TraceResult& result) {
  return Display(result).text;
}

Json DisplayJson(const TraceResult& result) {
  return DisplayMembers(Display(result));
}

TableRow DescribeRow(const Nelmo::DptValueEntry& entry) {
  TableRow row;
  row.dpt = entry.dpt;
  row.label = DptLabel(entry.dpt);
  if (const Nelmo::DptSubtype* subtype = SubtypeOf(entry.dpt)) {
    row.name = subtype->name;
    row.unit = subtype->unit;
  }
  row.valueType = entry.valueType;
  row.subType = entry.subType;
  if (const Nelmo::KnxConverter* converter = entry.GetConverter()) {
    row.converter = ConverterClassName(*converter);
    row.range = ConverterRangeText(*converter);
  }
  return row;
}

std::string AlignColumns(const std::vector<std::vector<std::string>>& lines) {
  std::vector<std::size_t> widths;
  for (const std::vector<std::string>& line : lines) {
    widths.resize(std::max(widths.size(), line.size()));
    for (std::size_t column = 0; column < line.size(); ++column) {
      widths[column] = std::max(widths[column], Width(line[column]));
    }
  }
  std::string text;
  for (const std::vector<std::string>& line : lines) {
    for (std::size_t column = 0; column + 1 < line.size(); ++column) {
      text.append(Padded(line[column], widths[column] + 2));
    }
    text.append(line.back()).append("\n");
  }
  return text;
}

std::string TableText(const std::vector<TableRow>& rows) {
  std::vector<std::vector<std::string>> lines;
  lines.reserve(rows.size());
  for (const TableRow& row : rows) {
    lines.push_back(RowColumns(row));
  }
  return AlignColumns(lines);
}

Json TableJson(const std::vector<TableRow>& rows) {
  Json json = Json::array();
  for (const TableRow& row : rows) {
    Json entry;
    entry["dpt"] = FormatDpt(row.dpt);
    entry["label"] = row.label;
    entry["name"] = TextOrNull(row.name);
    entry["unit"] = TextOrNull(row.unit);
    entry["bits"] = row.dpt.bitSize;
    entry["type"] = ValueTypeText(row.valueType);
    entry["subtype"] = ValueSubTypeText(row.subType);
    entry["converter"] = row.converter;
    entry["range"] = row.range ? Json(*row.range) : Json(nullptr);
    json.push_back(std::move(entry));
  }
  return json;
}

namespace {

// text and blanks up to width.
void PutPadded(LineBuffer& line, std::string_view text, std::size_t width) {
  line.Put(text);
  if (text.size() < width) {
    line.PutBlanks(width - text.size());
  }
}

}  // namespace

std::string TraceText(const TraceResult& result) {
  std::string text;
  TraceText(result, text);
  return text;
}

void TraceText(const TraceResult& result, std::string& text) {
  const Telegram& telegram = result.telegram;
  LineBuffer line(text);
  line.Put(telegram.time);
  line.Put("  ");
  PutPadded(line, telegram.source, AddressWidth);
  line.Put(" -> ");
  PutPadded(line, telegram.destination, AddressWidth);
  line.Put("  ");
  PutPadded(line, TraceDpt(result), DptWidth);
  line.Put(' ');
  PutPadded(line, telegram.payload, PayloadWidth);
  line.Put(' ');
  if (!result.converted) {
    line.Put("error: ");
    line.Put(result.error);
  } else {
    line.Put(DecodeText(result));
    // An empty value leaves no blanks at the end of the line.
    line.TrimEnd();
  }
  line.Finish();
}

void TraceJson(const TraceResult& result, std::string& line) {
  const Telegram& telegram = result.telegram;
  JsonObjectWriter json(line);
  json.Unsigned("line", telegram.lineNumber);
  json.String("time", telegram.time);
  json.String("source", telegram.source);
  json.String("destination", telegram.destination);
  json.String("dpt", TraceDpt(result));
  json.String("payload", telegram.payload);
  if (!result.converted) {
    json.String("error", result.error);
  } else {
    json.String("type", ValueTypeText(result.value.GetType()));
    json.String("subtype", ValueSubTypeText(result.subType));
    VisitValue(result.value, ValueMember(json));
    // The display's text is not written.
    WriteDisplayMembers(DisplayValue(*result.dpt, Subtype(result), result.value, result.bytes, std::string()), json);
  }
  json.Close();
}

}  // namespace Knxconv
