#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "Commands.h"

namespace Knxconv {

// What the bus commands were asked for. The value options (DPT, VALUE,
// --type, --json, --log-level, FILE) are those of the other commands.
struct BusOptions {
  std::string url = "local:/run/knx";
  std::string addresses;          // --addresses FILE
  std::vector<std::string> dpts;  // --dpt GA=DPT
  std::string groupAddress;
  double timeout = 3;
  double speed = 1;
  bool reconnect = false;
  Options value;
};

// Each returns the exit status; a daemon that is absent or goes away, or an
// unreadable addresses file, is one line on err and ExitUsage. SIGINT and
// SIGTERM end them with the connection closed.
int RunMonitor(const BusOptions& options, std::ostream& out, std::ostream& err);
int RunSend(const BusOptions& options, std::ostream& out, std::ostream& err);
int RunRead(const BusOptions& options, std::ostream& out, std::ostream& err);
int RunReplay(const BusOptions& options, std::ostream& out, std::ostream& err);

}  // namespace Knxconv
