#pragma once

#include <vector>

#include "BusCommands.h"
#include "CommandLine.h"

namespace Knxconv {

// monitor, send, read and replay for the command line; their options land
// in options, which must outlive the commands.
std::vector<ExtraCommand> BusCommandLine(BusOptions& options);

}  // namespace Knxconv
