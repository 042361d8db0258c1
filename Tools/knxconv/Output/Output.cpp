#include "Output.h"

#include <algorithm>
#include <cmath>
#include <sstream>

#include "ConverterInfo.h"
#include "DptText.h"
#include "TextEscape.h"
#include "ValueText.h"

namespace Knxconv {

namespace {

constexpr const char* NoRange = "-";
std::string TraceDpt(const TraceResult& result) {
  return result.dpt ? FormatDpt(*result.dpt) : result.telegram.dpt;
}

std::vector<std::string> RowColumns(const TableRow& row) {
  return {FormatDpt(row.dpt),
          row.label,
          std::to_string(row.dpt.bitSize),
          ValueTypeText(row.valueType),
          ValueSubTypeText(row.subType),
          row.converter,
          row.range.value_or(NoRange)};
}

}  // namespace

std::string Padded(std::string text, std::size_t width) {
  if (text.size() < width) {
    text.append(width - text.size(), ' ');
  }
  return text;
}

std::string JsonLine(const Json& json) {
  return EscapeJsonControls(json.dump(-1, ' ', false, Json::error_handler_t::replace));
}

Json ValueJson(const ULOVALUE& value) {
  switch (KindOf(value.GetType())) {
    case ValueKind::NoValue:
      return nullptr;
    case ValueKind::Boolean:
      return value.GetBool();
    case ValueKind::Number:
      // JSON has no NaN.
      return std::isfinite(value.GetDouble()) ? Json(value.GetDouble()) : Json(nullptr);
    case ValueKind::Signed32:
      return value.GetInt32();
    case ValueKind::Byte:
      return value.GetByte();
    case ValueKind::Unsigned16:
      return value.GetUInt16();
    case ValueKind::Unsigned32:
      return value.GetUInt32();
    case ValueKind::Unsigned64:
      return value.GetUInt64();
    case ValueKind::Text:
    case ValueKind::Date:
    case ValueKind::Time:
    case ValueKind::DateTime:
    case ValueKind::Unknown:
      break;
  }
  return value.ToString();
}

Json EncodeJson(const KNXDPT& dpt, const KnxStack::GroupValue& groupValue) {
  Json json;
  json["dpt"] = FormatDpt(dpt);
  json["bits"] = groupValue.GetDefinedSize();
  json["hex"] = groupValue.GetRawData().ToString();
  return json;
}

Json DecodeJson(const KNXDPT& dpt, const ULOVALUE& value, UloDP::UloValueSubType subType) {
  Json json;
  json["dpt"] = FormatDpt(dpt);
  json["type"] = ValueTypeText(value.GetType());
  json["subtype"] = ValueSubTypeText(subType);
  json["value"] = ValueJson(value);
  return json;
}

TableRow DescribeRow(const Nelmo::DptValueEntry& entry) {
  TableRow row;
  row.dpt = entry.dpt;
  row.label = DptLabel(entry.dpt);
  row.valueType = entry.valueType;
  row.subType = entry.subType;
  if (const Nelmo::KnxConverter* converter = entry.GetConverter()) {
    row.converter = ConverterClassName(*converter);
    row.range = ConverterRangeText(*converter);
  }
  return row;
}

std::string TableText(const std::vector<TableRow>& rows) {
  std::vector<std::vector<std::string>> lines;
  std::vector<std::size_t> widths;
  for (const TableRow& row : rows) {
    lines.push_back(RowColumns(row));
    widths.resize(lines.back().size());
    for (std::size_t column = 0; column < widths.size(); ++column) {
      widths[column] = std::max(widths[column], lines.back()[column].size());
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

Json TableJson(const std::vector<TableRow>& rows) {
  Json json = Json::array();
  for (const TableRow& row : rows) {
    Json entry;
    entry["dpt"] = FormatDpt(row.dpt);
    entry["label"] = row.label;
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

// Appends text and blanks up to width, without a temporary of its own.
void AppendPadded(std::string& line, std::string_view text, std::size_t width) {
  line.append(text);
  if (text.size() < width) {
    line.append(width - text.size(), ' ');
  }
}

}  // namespace

std::string TraceText(const TraceResult& result) {
  // One string built in place: this runs once per telegram of a trace.
  constexpr std::size_t Typical = 96;
  const Telegram& telegram = result.telegram;
  std::string text;
  text.reserve(Typical);
  text.append(telegram.time).append("  ");
  AppendPadded(text, telegram.source, AddressWidth);
  text.append(" -> ");
  AppendPadded(text, telegram.destination, AddressWidth);
  text.append("  ");
  AppendPadded(text, TraceDpt(result), DptWidth);
  text.append(" ");
  if (!result.converted) {
    return text.append("error: ").append(result.error);
  }
  AppendPadded(text, ValueTypeText(result.value.GetType()), TypeWidth);
  text.append(" ").append(result.text);
  // An empty value leaves no blanks at the end of the line.
  text.erase(text.find_last_not_of(' ') + 1);
  return text;
}

Json TraceJson(const TraceResult& result) {
  const Telegram& telegram = result.telegram;
  Json json;
  json["line"] = telegram.lineNumber;
  json["time"] = telegram.time;
  json["source"] = telegram.source;
  json["destination"] = telegram.destination;
  json["dpt"] = TraceDpt(result);
  json["payload"] = telegram.payload;
  if (!result.converted) {
    json["error"] = result.error;
    return json;
  }
  json["type"] = ValueTypeText(result.value.GetType());
  json["subtype"] = ValueSubTypeText(result.subType);
  json["value"] = ValueJson(result.value);
  return json;
}

}  // namespace Knxconv
