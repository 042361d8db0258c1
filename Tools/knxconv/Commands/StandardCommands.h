#pragma once

#include "CommandRegistry.h"

namespace Knxconv {

// Each group of commands adds itself (one file each under Commands/).
void AddConvertCommands(CommandRegistry& registry);
void AddDptCommands(CommandRegistry& registry);
void AddTableCommand(CommandRegistry& registry);
void AddTraceCommand(CommandRegistry& registry);

// Every command of knxconv, in the order its help lists them.
CommandRegistry StandardCommands();

}  // namespace Knxconv
