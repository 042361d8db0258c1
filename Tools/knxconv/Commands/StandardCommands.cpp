#include "StandardCommands.h"

namespace Knxconv {

CommandRegistry StandardCommands() {
  CommandRegistry registry;
  AddConvertCommands(registry);
  AddTableCommand(registry);
  AddDptCommands(registry);
  AddTraceCommand(registry);
  return registry;
}

}  // namespace Knxconv
