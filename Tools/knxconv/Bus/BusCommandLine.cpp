#include "BusCommandLine.h"

#include <CLI/CLI.hpp>

namespace Knxconv {

namespace {

void AddConnectionOptions(CLI::App& command, BusOptions& options) {
  command.add_option("--url", options.url, "The KNX daemon: local:/path/to/socket or ip:host[:port]")
      ->capture_default_str();
  command.add_flag("--json", options.value.json, "Print JSON, one object per line");
  command
      .add_option("--log-level", options.value.logLevel,
                  "Show the library's log from this level up (0 trace to 3 errors, 4 off)")
      ->check(CLI::Range(0, 4))
      ->capture_default_str();
}

CLI::App* AddMonitor(CLI::App& app, BusOptions& options) {
  CLI::App* command = app.add_subcommand("monitor", "Show the group telegrams on the bus as they come, decoded");
  command->add_option("--addresses", options.addresses, "Group-address export (XML or CSV): names and DPTs");
  command->add_option("--dpt", options.dpts, "GA=DPT, such as 1/2/3=9.001; before the addresses file");
  command->add_flag("--reconnect", options.reconnect, "Reconnect when the daemon goes away (every 0.5 s)");
  AddConnectionOptions(*command, options);
  return command;
}

CLI::App* AddSend(CLI::App& app, BusOptions& options) {
  CLI::App* command = app.add_subcommand("send", "Write a value to a group address, converted as encode does");
  command->add_option("GA", options.groupAddress, "Group address, such as 1/2/3")->required();
  command->add_option("DPT", options.value.dpt, "Datapoint type: 9.001, 9.1, 9, DPST-9-1")->required();
  command->add_option("VALUE", options.value.value, "The value, read as the DPT's value type or as --type says")
      ->each([&options](const std::string&) { options.value.hasValue = true; });
  command->add_option("--type", options.value.type, "Value type of VALUE, as for encode");
  command->add_flag("--summer-time", options.value.summerTime, "Set the summer-time flag of a date and time");
  AddConnectionOptions(*command, options);
  return command;
}

CLI::App* AddRead(CLI::App& app, BusOptions& options) {
  CLI::App* command = app.add_subcommand("read", "Ask a group address for its value and show the first answer");
  command->add_option("GA", options.groupAddress, "Group address, such as 1/2/3")->required();
  command->add_option("DPT", options.value.dpt, "Datapoint type: 9.001, 9.1, 9, DPST-9-1")->required();
  command->add_option("--timeout", options.timeout, "Seconds to wait for the answer")
      ->check(CLI::Range(0.0, 3600.0))
      ->capture_default_str();
  command->add_option("--addresses", options.addresses, "Group-address export (XML or CSV) for the name");
  AddConnectionOptions(*command, options);
  return command;
}

CLI::App* AddReplay(CLI::App& app, BusOptions& options) {
  CLI::App* command = app.add_subcommand("replay", "Send the telegrams of a trace to the bus, keeping their timing");
  command->add_option("FILE", options.value.file, "The trace (time,source,destination,dpt,payload)")->required();
  command->add_option("--speed", options.speed, "Speed-up of the trace's timing; 0 sends as fast as possible")
      ->check(CLI::Range(0.0, 1e6))
      ->capture_default_str();
  AddConnectionOptions(*command, options);
  return command;
}

ExtraCommand Command(BusOptions& options, CLI::App* (*add)(CLI::App&, BusOptions&),
                     int (*run)(const BusOptions&, std::ostream&, std::ostream&)) {
  return {
      [&options, add](CLI::App& app) { return add(app, options); },
      [&options, run](std::istream& /*in*/, std::ostream& out, std::ostream& err) { return run(options, out, err); }};
}

}  // namespace

std::vector<ExtraCommand> BusCommandLine(BusOptions& options) {
  return {Command(options, AddMonitor, RunMonitor), Command(options, AddSend, RunSend),
          Command(options, AddRead, RunRead), Command(options, AddReplay, RunReplay)};
}

}  // namespace Knxconv
