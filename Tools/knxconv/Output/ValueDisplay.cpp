#include "ValueDisplay.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <utility>

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
const char* BooleanWord(std::uint16_t subNumber, bool value, const char* off, const char* on) {
  if (const Nelmo::DptSubtype* subtype = Nelmo::DptCatalogue::Find(1, subNumber)) {
    if (const char* name = Nelmo::DptCatalogue::ValueName(*subtype, value ? 1 : 0)) {
      return name;
    }
  }
  return value ? on : off;
}

void AddField(ValueDisplay& display, const char* name, DisplayField::Kind kind, std::int64_t number,
              const char* word = nullptr) {
  display.fields[display.fieldCount++] = {name, kind, number, word};
}

void AddFlag(ValueDisplay& display, const char* name, bool flag) {
  AddField(display, name, DisplayField::Kind::Flag, flag ? 1 : 0);
}

void AddNumber(ValueDisplay& display, const char* name, std::int64_t number) {
  AddField(display, name, DisplayField::Kind::Number, number);
}

void ShowBoolean(const Nelmo::DptSubtype* subtype, const ULOVALUE& value, ValueDisplay& display) {
  const char* name = subtype != nullptr ? Nelmo::DptCatalogue::ValueName(*subtype, value.GetBool() ? 1 : 0) : nullptr;
  if (name != nullptr) {
    display.text = name;
    display.valueName = name;
  }
}

void ShowControlled(const KNXDPT& dpt, const std::vector<unsigned char>& bytes, ValueDisplay& display) {
  const bool control = (Byte(bytes, 0) & ControlBit) != 0;
  const bool state = (Byte(bytes, 0) & 1U) != 0;
  display.text.assign(control ? "control, " : "no control, ").append(BooleanWord(dpt.subNumber, state, "off", "on"));
  AddFlag(display, "control", control);
  AddFlag(display, "value", state);
}

void ShowStep(const KNXDPT& dpt, const std::vector<unsigned char>& bytes, ValueDisplay& display) {
  const char* direction = BooleanWord(dpt.subNumber, (Byte(bytes, 0) & DirectionBit) != 0, "decrease", "increase");
  const unsigned step = Byte(bytes, 0) & StepMask;
  display.text = step == 0 ? "stop" : direction + (" " + std::to_string(step));
  AddField(display, "direction", DisplayField::Kind::Word, 0, direction);
  AddNumber(display, "step", step);
}

void ShowWeekday(unsigned day, ValueDisplay& display) {
  if (day > 0 && day < Weekdays.size()) {
    display.text.insert(0, " ").insert(0, Weekdays[day]);
    display.weekday = Weekdays[day];
  }
}

void ShowDateTime(const std::vector<unsigned char>& bytes, ValueDisplay& display) {
  ShowWeekday(Byte(bytes, DateTimeWeekdayByte) >> WeekdayShift, display);
  display.hasFlags = true;
  for (const Flag& flag : DateTimeFlags) {
    if ((Byte(bytes, flag.byte) & flag.mask) != 0) {
      display.text.append(display.flagCount == 0 ? " (" : ", ").append(flag.name);
      display.flags[display.flagCount++] = flag.name;
    }
  }
  if (display.flagCount > 0) {
    display.text += ')';
  }
}

void ShowSceneControl(const std::vector<unsigned char>& bytes, ValueDisplay& display) {
  const bool learn = (Byte(bytes, 0) & LearnBit) != 0;
  const unsigned scene = (Byte(bytes, 0) & SceneMask) + 1U;
  display.text = std::string(learn ? "learn" : "activate") + " scene " + std::to_string(scene);
  AddNumber(display, "scene", scene);
  AddFlag(display, "learn", learn);
}

void ShowColour(const std::vector<unsigned char>& bytes, ValueDisplay& display) {
  char text[8];
  std::snprintf(text, sizeof text, "#%02X%02X%02X", Byte(bytes, 0), Byte(bytes, 1), Byte(bytes, 2));
  display.text = text;
  AddNumber(display, "red", Byte(bytes, 0));
  AddNumber(display, "green", Byte(bytes, 1));
  AddNumber(display, "blue", Byte(bytes, 2));
}

bool IsNumeric(ValueKind kind) {
  return kind == ValueKind::Number || kind == ValueKind::Signed32 || kind == ValueKind::Byte ||
         kind == ValueKind::Unsigned16 || kind == ValueKind::Unsigned32 || kind == ValueKind::Unsigned64;
}

// Enumerations by value name, other numbers with their unit.
void ShowNumber(const Nelmo::DptSubtype* subtype, const ULOVALUE& value, ValueDisplay& display) {
  const ValueKind kind = KindOf(value.GetType());
  if (subtype == nullptr || !IsNumeric(kind)) {
    return;
  }
  if (subtype->valueNames != nullptr && kind != ValueKind::Number) {
    if (const char* name = Nelmo::DptCatalogue::ValueName(*subtype, value.GetUInt32())) {
      display.text = name;
      display.valueName = name;
    }
    return;
  }
  if (*subtype->unit != '\0' && (kind != ValueKind::Number || std::isfinite(value.GetDouble()))) {
    display.text.append(" ").append(subtype->unit);
  }
}

void WriteField(const DisplayField& field, JsonObjectWriter& json) {
  switch (field.kind) {
    case DisplayField::Kind::Number:
      json.Signed(field.name, field.number);
      break;
    case DisplayField::Kind::Flag:
      json.Bool(field.name, field.number != 0);
      break;
    case DisplayField::Kind::Word:
      json.Text(field.name, field.word);
      break;
  }
}

}  // namespace

ValueDisplay DisplayValue(const KNXDPT& dpt, const ULOVALUE& value, const std::vector<unsigned char>& bytes,
                          std::string valueText) {
  return DisplayValue(dpt, SubtypeOf(dpt), value, bytes, std::move(valueText));
}

ValueDisplay DisplayValue(const KNXDPT& dpt, const Nelmo::DptSubtype* subtype, const ULOVALUE& value,
                          const std::vector<unsigned char>& bytes, std::string valueText) {
  ValueDisplay display;
  display.text = std::move(valueText);
  if (subtype != nullptr) {
    display.name = subtype->name;
    display.unit = *subtype->unit != '\0' ? subtype->unit : nullptr;
  }
  if (KindOf(value.GetType()) == ValueKind::NoValue) {
    // 7F FF and the like: the bus said there is no valid value, and a blank
    // would read as a line that lost its value.
    display.text = "no value";
    return display;
  }
  switch (dpt.mainNumber) {
    case 1:
      ShowBoolean(subtype, value, display);
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
      display.text.insert(0, "scene ");
      AddNumber(display, "scene", value.GetInt32());
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
      ShowNumber(subtype, value, display);
      break;
  }
  return display;
}

void WriteDisplayMembers(const ValueDisplay& display, JsonObjectWriter& json) {
  json.Text("name", display.name);
  json.Text("unit", display.unit);
  if (display.valueName != nullptr) {
    json.Text("valueName", display.valueName);
  }
  if (display.weekday != nullptr) {
    json.Text("weekday", display.weekday);
  }
  if (display.hasFlags) {
    json.Texts("flags", display.flags.data(), display.flagCount);
  }
  if (display.fieldCount > 0) {
    json.Open("fields");
    for (std::size_t i = 0; i < display.fieldCount; ++i) {
      WriteField(display.fields[i], json);
    }
    json.Close();
  }
}

Json DisplayMembers(const ValueDisplay& display) {
  // Read back from the written form, so that both forms are one.
  std::string line;
  JsonObjectWriter json(line);
  WriteDisplayMembers(display, json);
  json.Close();
  return Json::parse(line);
}

}  // namespace Knxconv
