#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Command.h"

namespace Knxconv {

// The commands knxconv knows, in the order its help lists them.
class CommandRegistry {
 public:
  // Throws std::logic_error for a name given twice.
  void Add(Command command);
  const Command* Find(std::string_view name) const;
  // The command name nearest to a mistyped one, if any is near.
  std::optional<std::string> Nearest(std::string_view name) const;
  const std::vector<Command>& Commands() const { return m_commands; }

 private:
  std::vector<Command> m_commands;
};

}  // namespace Knxconv
