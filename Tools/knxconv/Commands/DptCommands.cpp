#include <cmath>
#include <sstream>
#include <vector>

#include "CatalogueInput.h"
#include "Conversion.h"
#include "DptText.h"
#include "InputError.h"
#include "StandardCommands.h"
#include "ValueText.h"

namespace Knxconv {

namespace {

constexpr const char* NoRow = "none";
constexpr double ExampleTemperature = 21.5;

KNXDPT DptOf(const Nelmo::DptSubtype& subtype) {
  KNXDPT dpt;
  dpt.mainNumber = subtype.mainNumber;
  dpt.subNumber = subtype.subNumber;
  return dpt;
}

// The row conversions of this sub-type would use: its own, its main
// number's general row, or none.
std::string RowText(const Nelmo::KnxValueConverter& converter, const Nelmo::DptSubtype& subtype) {
  const Nelmo::DptValueEntry& entry = QuietEntry(converter, DptOf(subtype));
  if (entry.valueType == IVT_ANY) {
    return NoRow;
  }
  return entry.dpt.subNumber == 0 ? std::to_string(entry.dpt.mainNumber) + ".x" : FormatDpt(entry.dpt);
}

std::string BitsText(const Nelmo::DptSubtype& subtype) {
  return subtype.bitSize == Nelmo::DptCatalogue::VariableBitSize ? "variable" : std::to_string(subtype.bitSize);
}

Json BitsJson(const Nelmo::DptSubtype& subtype) {
  return subtype.bitSize == Nelmo::DptCatalogue::VariableBitSize ? Json(nullptr) : Json(subtype.bitSize);
}

std::string NumberText(double number) {
  std::ostringstream text;
  text << number;
  return text.str();
}

std::string RangeText(const Nelmo::DptSubtype& subtype) {
  if (std::isnan(subtype.minimum)) {
    return "-";
  }
  return NumberText(subtype.minimum) + " to " + NumberText(subtype.maximum);
}

Json SubtypeJson(const Nelmo::DptSubtype& subtype, const std::string& row) {
  Json json;
  json["dpt"] = FormatDpt(DptOf(subtype));
  json["name"] = subtype.name;
  json["unit"] = *subtype.unit != '\0' ? Json(subtype.unit) : Json(nullptr);
  json["bits"] = BitsJson(subtype);
  json["row"] = row;
  return json;
}

int RunDpts(const Arguments& /*arguments*/, OutputContext& context) {
  const Nelmo::KnxValueConverter converter;
  std::vector<std::vector<std::string>> lines;
  Json json = Json::array();
  for (const Nelmo::DptSubtype& subtype : Nelmo::DptCatalogue::All()) {
    const std::string row = RowText(converter, subtype);
    lines.push_back(
        {FormatDpt(DptOf(subtype)), subtype.name, *subtype.unit != '\0' ? subtype.unit : "-", BitsText(subtype), row});
    json.push_back(SubtypeJson(subtype, row));
  }
  if (context.IsJson()) {
    context.PrintJson(json);
  } else {
    context.PrintText(AlignColumns(lines));
  }
  return ExitSuccess;
}

// 21.5 for temperatures, else the middle of the range, else 1; encoded as
// conversions would.
struct Example {
  std::string value;
  std::string hex;
};

std::optional<Example> EncodeExample(const Nelmo::KnxValueConverter& converter, const Nelmo::DptSubtype& subtype) {
  KNXDPT dpt = DptOf(subtype);
  const Nelmo::DptValueEntry& entry = QuietEntry(converter, dpt);
  if (entry.valueType == IVT_ANY || KindOf(entry.valueType) == ValueKind::NoValue) {
    return std::nullopt;
  }
  double number = 1;
  if (*subtype.unit != '\0' && std::string(subtype.unit) == "°C") {
    number = ExampleTemperature;
  } else if (!std::isnan(subtype.minimum)) {
    number = std::floor((subtype.minimum + subtype.maximum) / 2);
  }
  try {
    const ULOVALUE value = ParseValue(entry.valueType, NumberText(number), false);
    KnxStack::GroupValue groupValue;
    const QuietLog quiet;
    if (!converter.ToKnxValue(dpt, value, groupValue)) {
      return std::nullopt;
    }
    return Example{value.ToString(), groupValue.GetRawData().ToString()};
  } catch (const InputError&) {
    // Texts, dates and times have no number to show.
    return std::nullopt;
  }
}

std::string ValueNamesText(const Nelmo::DptSubtype& subtype) {
  std::string text;
  for (std::size_t i = 0; i < subtype.valueNameCount; ++i) {
    text += (i == 0 ? "" : ", ") + std::to_string(subtype.valueNames[i].value) + " " + subtype.valueNames[i].name;
  }
  return text.empty() ? "-" : text;
}

Json ValueNamesJson(const Nelmo::DptSubtype& subtype) {
  Json json = Json::object();
  for (std::size_t i = 0; i < subtype.valueNameCount; ++i) {
    json[std::to_string(subtype.valueNames[i].value)] = subtype.valueNames[i].name;
  }
  return json;
}

int RunDpt(const Arguments& arguments, OutputContext& context) {
  const std::string text = *arguments.Positional("DPT");
  const KNXDPT dpt = ParseDpt(text);
  const Nelmo::DptSubtype* subtype = SubtypeOf(dpt);
  if (subtype == nullptr) {
    throw InputError("no sub-type " + FormatDpt(dpt) + " in the catalogue (knxconv dpts lists them)");
  }
  const Nelmo::KnxValueConverter converter;
  const std::optional<Example> example = EncodeExample(converter, *subtype);
  Json json = SubtypeJson(*subtype, RowText(converter, *subtype));
  json["description"] = subtype->description;
  json["range"] = std::isnan(subtype->minimum) ? Json(nullptr) : Json({subtype->minimum, subtype->maximum});
  json["valueNames"] = ValueNamesJson(*subtype);
  json["example"] = example ? Json({{"value", example->value}, {"hex", example->hex}}) : Json(nullptr);
  if (context.IsJson()) {
    context.PrintJson(json);
    return ExitSuccess;
  }
  const std::vector<std::vector<std::string>> lines = {
      {"dpt:", json["dpt"].get<std::string>()},
      {"name:", subtype->name},
      {"description:", subtype->description},
      {"unit:", *subtype->unit != '\0' ? subtype->unit : "-"},
      {"bits:", BitsText(*subtype)},
      {"range:", RangeText(*subtype)},
      {"values:", ValueNamesText(*subtype)},
      {"row:", json["row"].get<std::string>()},
      {"example:", example ? example->value + " -> " + example->hex : "-"},
  };
  context.PrintText(AlignColumns(lines));
  return ExitSuccess;
}

}  // namespace

void AddDptCommands(CommandRegistry& registry) {
  registry.Add(
      {"dpts", "List the DPT sub-types the tool knows by name, with unit, bits and table row", {}, {}, RunDpts});
  registry.Add({"dpt",
                "Show one DPT sub-type: name, description, unit, bits, range, value names, row, an example",
                {{"DPT", "9.001, 9.1, DPST-9-1, DPT_Value_Temp, ...", true}},
                {},
                RunDpt});
}

}  // namespace Knxconv
