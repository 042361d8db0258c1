#include "ValueDisplay.h"

#include <array>
#include <cmath>
#include <cstdio>

#include "CatalogueInput.h"
#include "ValueText.h"

namespace Knxconv {

namespace {

constexpr std::array<const char*, 8> Weekdays = {nullptr, "Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"};

struct Flag {
  std::size_t byte;
  unsigned char mask;
  const char* name;
};

// The status octets of a date-time, most significant flag first.
constexpr std::array<Flag, 10> DateTimeFlags = {{
    {6, 0x80, "fault"},
    {6, 0x40, "working day"},
    {6, 0x20, "no working day"},
    {6, 0x10, "no year"},
    {6, 0x08, "no date"},
    {6, 0x04, "no day of week"},
    {6, 0x02, "no time"},
    {6, 0x01, "summer time"},
    {7, 0x80, "clock quality"},
    {7, 0x40, "reliable sync source"},
}};

constexpr unsigned WeekdayShift = 5;
constexpr std::size_t DateTimeWeekdayByte = 3;
constexpr unsigned char ControlBit = 0x02;
constexpr unsigned char DirectionBit = 0x08;
constexpr unsigned char StepMask = 0x07;
constexpr unsigned char LearnBit = 0x80;
constexpr unsigned char SceneMask = 0x3F;
constexpr std::uint16_t ColourSubNumber = 600;

unsigned char Byte(const std::vector<unsigned char>& bytes, std::size_t index) {
  return index < bytes.size() ? bytes[index] : 0;
}

// The words of a 1-bit sub-type ("up"/"down" of 1.008), which 2.x and 3.x
// share by sub number.
std::string BooleanWord(std::uint16_t subNumber, bool value, const char* off, const char* on) {
  if (const Nelmo::DptSubtype* subtype = Nelmo::DptCatalogue::Find(1, subNumber)) {
    if (const char* name = Nelmo::DptCatalogue::ValueName(*subtype, value ? 1 : 0)) {
      return name;
    }
  }
  return value ? on : off;
}

void ShowBoolean(const KNXDPT& dpt, const ULOVALUE& value, ValueDisplay& display) {
  const Nelmo::DptSubtype* subtype = SubtypeOf(dpt);
  const char* name = subtype != nullptr ? Nelmo::DptCatalogue::ValueName(*subtype, value.GetBool() ? 1 : 0) : nullptr;
  if (name != nullptr) {
    display.text = name;
    display.json["valueName"] = name;
  }
}

void ShowControlled(const KNXDPT& dpt, const std::vector<unsigned char>& bytes, ValueDisplay& display) {
  const bool control = (Byte(bytes, 0) & ControlBit) != 0;
  const bool state = (Byte(bytes, 0) & 1U) != 0;
  display.text = std::string(control ? "control, " : "no control, ") + BooleanWord(dpt.subNumber, state, "off", "on");
  display.json["fields"] = {{"control", control}, {"value", state}};
}

void ShowStep(const KNXDPT& dpt, const std::vector<unsigned char>& bytes, ValueDisplay& display) {
  const std::string direction =
      BooleanWord(dpt.subNumber, (Byte(bytes, 0) & DirectionBit) != 0, "decrease", "increase");
  const unsigned step = Byte(bytes, 0) & StepMask;
  display.text = step == 0 ? "stop" : direction + " " + std::to_string(step);
  display.json["fields"] = {{"direction", direction}, {"step", step}};
}

void ShowWeekday(unsigned day, ValueDisplay& display) {
  if (day > 0 && day < Weekdays.size()) {
    display.text = std::string(Weekdays[day]) + " " + display.text;
    display.json["weekday"] = Weekdays[day];
  }
}

void ShowDateTime(const std::vector<unsigned char>& bytes, ValueDisplay& display) {
  ShowWeekday(Byte(bytes, DateTimeWeekdayByte) >> WeekdayShift, display);
  Json flags = Json::array();
  std::string text;
  for (const Flag& flag : DateTimeFlags) {
    if ((Byte(bytes, flag.byte) & flag.mask) != 0) {
      flags.push_back(flag.name);
      text += (text.empty() ? "" : ", ") + std::string(flag.name);
    }
  }
  if (!text.empty()) {
    display.text += " (" + text + ")";
  }
  display.json["flags"] = flags;
}

void ShowSceneControl(const std::vector<unsigned char>& bytes, ValueDisplay& display) {
  const bool learn = (Byte(bytes, 0) & LearnBit) != 0;
  const unsigned scene = (Byte(bytes, 0) & SceneMask) + 1U;
  display.text = std::string(learn ? "learn" : "activate") + " scene " + std::to_string(scene);
  display.json["fields"] = {{"scene", scene}, {"learn", learn}};
}

void ShowColour(const std::vector<unsigned char>& bytes, ValueDisplay& display) {
  char text[8];
  std::snprintf(text, sizeof text, "#%02X%02X%02X", Byte(bytes, 0), Byte(bytes, 1), Byte(bytes, 2));
  display.text = text;
  display.json["fields"] = {{"red", Byte(bytes, 0)}, {"green", Byte(bytes, 1)}, {"blue", Byte(bytes, 2)}};
}

bool IsNumeric(ValueKind kind) {
  return kind == ValueKind::Number || kind == ValueKind::Signed32 || kind == ValueKind::Byte ||
         kind == ValueKind::Unsigned16 || kind == ValueKind::Unsigned32 || kind == ValueKind::Unsigned64;
}

// Enumerations by value name, other numbers with their unit.
void ShowNumber(const KNXDPT& dpt, const ULOVALUE& value, ValueDisplay& display) {
  const Nelmo::DptSubtype* subtype = SubtypeOf(dpt);
  const ValueKind kind = KindOf(value.GetType());
  if (subtype == nullptr || !IsNumeric(kind)) {
    return;
  }
  if (subtype->valueNames != nullptr && kind != ValueKind::Number) {
    if (const char* name = Nelmo::DptCatalogue::ValueName(*subtype, value.GetUInt32())) {
      display.text = name;
      display.json["valueName"] = name;
    }
    return;
  }
  if (*subtype->unit != '\0' && (kind != ValueKind::Number || std::isfinite(value.GetDouble()))) {
    display.text += std::string(" ") + subtype->unit;
  }
}

}  // namespace

ValueDisplay DisplayValue(const KNXDPT& dpt, const ULOVALUE& value, const std::vector<unsigned char>& bytes,
                          const std::string& valueText) {
  const Nelmo::DptSubtype* subtype = SubtypeOf(dpt);
  ValueDisplay display{valueText, Json::object()};
  display.json["name"] = subtype != nullptr ? Json(subtype->name) : Json(nullptr);
  display.json["unit"] = subtype != nullptr && *subtype->unit != '\0' ? Json(subtype->unit) : Json(nullptr);
  if (KindOf(value.GetType()) == ValueKind::NoValue) {
    // 7F FF and the like: the bus said there is no valid value, and a blank
    // would read as a line that lost its value.
    display.text = "no value";
    return display;
  }
  switch (dpt.mainNumber) {
    case 1:
      ShowBoolean(dpt, value, display);
      break;
    case 2:
      ShowControlled(dpt, bytes, display);
      break;
    case 3:
      ShowStep(dpt, bytes, display);
      break;
    case 10:
      ShowWeekday(Byte(bytes, 0) >> WeekdayShift, display);
      break;
    case 17:
      display.text = "scene " + display.text;
      display.json["fields"] = {{"scene", value.GetInt32()}};
      break;
    case 18:
      ShowSceneControl(bytes, display);
      break;
    case 19:
      ShowDateTime(bytes, display);
      break;
    case 232:
      if (dpt.subNumber == ColourSubNumber) {
        ShowColour(bytes, display);
      }
      break;
    default:
      ShowNumber(dpt, value, display);
      break;
  }
  return display;
}

}  // namespace Knxconv
