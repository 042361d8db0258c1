#include "BusLine.h"

#include <chrono>
#include <cstdio>
#include <ctime>

#include "BusAddress.h"
#include "DptText.h"
#include "ValueText.h"

namespace Knxconv {

namespace {

constexpr std::size_t ServiceWidth = 8;

// A read carries no value, so it is not shown raw for want of a DPT.
std::string LineDpt(const BusLine& line) {
  if (line.result.dpt) {
    return FormatDpt(*line.result.dpt);
  }
  return line.service == "read" ? "-" : "raw";
}

}  // namespace

std::string TimeOfDayNow() {
  const auto now = std::chrono::system_clock::now();
  const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
  const auto milliseconds =
      std::chrono::duration_cast<std::chrono::milliseconds>(now.time_since_epoch()).count() % 1000;
  std::tm local{};
  localtime_r(&seconds, &local);
  char text[16];
  std::snprintf(text, sizeof text, "%02d:%02d:%02d.%03d", local.tm_hour, local.tm_min, local.tm_sec,
                static_cast<int>(milliseconds));
  return text;
}

std::string BusLineText(const BusLine& line) {
  std::string text = line.time + "  " + Padded(FormatIndividualAddress(line.source), AddressWidth) + " -> " +
                     Padded(FormatGroupAddress(line.destination), AddressWidth) + "  " +
                     Padded(line.service, ServiceWidth) + "  " + Padded(LineDpt(line), DptWidth) + " [" + line.payload +
                     "]";
  if (!line.result.error.empty()) {
    text += "  error: " + line.result.error;
  } else if (line.decoded) {
    // An empty value leaves no blanks before the name.
    const std::string value = DecodeText(line.result);
    text += value.empty() ? "" : "  " + value;
  }
  if (!line.name.empty()) {
    text += "  (" + line.name + ")";
  }
  return text;
}

Json BusLineJson(const BusLine& line) {
  Json json;
  json["time"] = line.time;
  json["source"] = FormatIndividualAddress(line.source);
  json["destination"] = FormatGroupAddress(line.destination);
  if (!line.name.empty()) {
    json["name"] = line.name;
  }
  json["service"] = line.service;
  json["dpt"] = line.result.dpt ? Json(FormatDpt(*line.result.dpt)) : Json(nullptr);
  json["payload"] = line.payload;
  if (!line.result.error.empty()) {
    json["error"] = line.result.error;
  } else if (line.decoded) {
    json["type"] = ValueTypeText(line.result.value.GetType());
    json["subtype"] = ValueSubTypeText(line.result.subType);
    json["value"] = ValueJson(line.result.value);
    // "name" is the group address's here.
    Json display = DisplayJson(line.result);
    display["dptName"] = display["name"];
    display.erase("name");
    json.update(display);
  }
  return json;
}

}  // namespace Knxconv
