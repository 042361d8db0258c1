#include "BusCommands.h"

#include <limits>
#include <optional>

#include "NumberText.h"
#include "UsageError.h"

namespace Knxconv {

namespace {

constexpr const char* UrlHelp = "The KNX daemon: local:/path/to/socket or ip:host[:port] (default local:/run/knx)";
constexpr const char* DptHelp = "Datapoint type: 9.001, 9.1, 9, DPST-9-1 or DPT-9";

double NonNegative(const Arguments& arguments, std::string_view name, double fallback) {
  const std::optional<std::string> text = arguments.Value(name);
  if (!text) {
    return fallback;
  }
  const std::optional<double> number = ParseDecimal(*text);
  if (!number || *number < 0) {
    throw UsageError(std::string(name) + " wants a number of 0 or more, not '" + *text + "'");
  }
  return *number;
}

}  // namespace

BusOptions ReadBusOptions(const Arguments& arguments) {
  BusOptions options;
  options.url = arguments.Value("--url").value_or(options.url);
  options.addresses = arguments.Value("--addresses").value_or("");
  options.dpts = arguments.Values("--dpt");
  options.timeout = NonNegative(arguments, "--timeout", options.timeout);
  options.speed = NonNegative(arguments, "--speed", options.speed);
  options.reconnect = arguments.Flag("--reconnect");
  return options;
}

void AddBusCommands(CommandRegistry& registry) {
  const OptionSpec url{"--url", "URL", UrlHelp, false};
  const OptionSpec addresses{"--addresses", "FILE", "Group-address export (XML or CSV): names and DPTs", false};
  registry.Add({"monitor",
                "Show the group telegrams on the bus as they come, decoded",
                {},
                {url,
                 addresses,
                 {"--dpt", "GA=DPT", "The DPT of a group address (1/2/3=9.001), before the addresses file's", true},
                 {"--reconnect", "", "Reconnect when the daemon goes away, trying every 0.5 s", false}},
                RunMonitor});
  registry.Add({"send",
                "Write a value to a group address, converted as encode converts it",
                {{"GA", "Group address: 1/2/3", true},
                 {"DPT", DptHelp, true},
                 {"VALUE", "The value, read as the DPT's value type or as --type says", false}},
                {url,
                 {"--type", "TYPE", "Value type of VALUE, as for encode", false},
                 {"--summer-time", "", "Set the summer-time flag of a date and time", false}},
                RunSend});
  registry.Add({"read",
                "Ask a group address for its value and show the first answer",
                {{"GA", "Group address: 1/2/3", true}, {"DPT", DptHelp, true}},
                {url, addresses, {"--timeout", "S", "Seconds to wait for the answer (default 3)", false}},
                RunRead});
  registry.Add({"replay",
                "Send the telegrams of a trace to the bus, keeping their timing",
                {{"FILE", "The trace: CSV with the header time,source,destination,dpt,payload", true}},
                {url, {"--speed", "X", "Speed-up of the trace's timing (default 1); 0 sends without pause", false}},
                RunReplay});
}

}  // namespace Knxconv
