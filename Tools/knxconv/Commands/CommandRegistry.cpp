#include "CommandRegistry.h"

#include <stdexcept>

#include "Suggestion.h"

namespace Knxconv {

void CommandRegistry::Add(Command command) {
  if (Find(command.name) != nullptr) {
    throw std::logic_error("knxconv has two commands named " + command.name);
  }
  m_commands.push_back(std::move(command));
}

const Command* CommandRegistry::Find(std::string_view name) const {
  for (const Command& command : m_commands) {
    if (command.name == name) {
      return &command;
    }
  }
  return nullptr;
}

std::optional<std::string> CommandRegistry::Nearest(std::string_view name) const {
  std::vector<std::string> names;
  names.reserve(m_commands.size());
  for (const Command& command : m_commands) {
    names.push_back(command.name);
  }
  return NearestName(name, names);
}

}  // namespace Knxconv
