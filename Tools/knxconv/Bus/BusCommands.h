#pragma once

#include <string>
#include <vector>

#include "Arguments.h"
#include "CommandRegistry.h"
#include "OutputContext.h"

namespace Knxconv {

// monitor, send, read and replay: the bus through the KNX daemon.
void AddBusCommands(CommandRegistry& registry);

// What the bus commands were asked for, beyond their positionals.
struct BusOptions {
  std::string url = "local:/run/knx";
  std::string addresses;          // --addresses FILE
  std::vector<std::string> dpts;  // --dpt GA=DPT
  double timeout = 3;
  double speed = 1;
  bool reconnect = false;
};

// Throws UsageError for a --timeout or --speed that is no number from 0 up.
BusOptions ReadBusOptions(const Arguments& arguments);

// Each returns the exit status; a daemon that is absent or goes away, or an
// unreadable addresses file, is one line and ExitUsage. SIGINT and SIGTERM
// end them with the connection closed.
int RunMonitor(const Arguments& arguments, OutputContext& context);
int RunSend(const Arguments& arguments, OutputContext& context);
int RunRead(const Arguments& arguments, OutputContext& context);
int RunReplay(const Arguments& arguments, OutputContext& context);

}  // namespace Knxconv
