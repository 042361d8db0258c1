#pragma once

#include <string>

#include "Command.h"
#include "CommandRegistry.h"

namespace Knxconv {

// "knxconv encode [options] DPT [VALUE]"
std::string UsageLine(const Command& command);
// The program's help: the commands, the global options, "--", exit statuses.
std::string ProgramHelp(const CommandRegistry& registry);
// A command's help: its usage, arguments, options and the global options.
std::string CommandHelp(const Command& command);

}  // namespace Knxconv
