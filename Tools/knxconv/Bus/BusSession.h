#pragma once

#include <functional>
#include <memory>
#include <string>

#include "BusConnection.h"
#include "OutputContext.h"

namespace Knxconv {

// How long the daemon may take to open a group socket for us.
constexpr double ConnectTimeoutSeconds = 3;
// How often a lost daemon is tried again.
constexpr double ReconnectIntervalSeconds = 0.5;

// Runs a bus command's body: the errors that end a bus command (the daemon,
// the addresses file) become one line and ExitUsage.
int RunBusCommand(OutputContext& context, const std::function<int()>& body);

// Connects, trying again every ReconnectIntervalSeconds until it works;
// null when a stop was asked for first.
std::unique_ptr<BusConnection> ConnectPatiently(const std::string& url);

}  // namespace Knxconv
