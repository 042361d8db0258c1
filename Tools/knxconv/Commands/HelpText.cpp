#include "HelpText.h"

#include <algorithm>

#include "CommandLineParser.h"

namespace Knxconv {

namespace {

constexpr std::size_t NameColumn = 22;

constexpr const char* Footer =
    "  --                  End of the options: every word after it is an argument,\n"
    "                      even one starting with '-'\n"
    "\n"
    "A word starting with '-' where an argument is expected is that argument\n"
    "(knxconv encode 9.001 -.5). Results go to standard output; messages and the\n"
    "library's log to standard error.\n"
    "\n"
    "Exit status: 0 success, 1 refused by the library (or a trace line did not\n"
    "convert), 2 usage error, unreadable input or output that cannot be written.\n";

std::string Row(const std::string& name, const std::string& help) {
  std::string row = "  " + name;
  row.append(row.size() < NameColumn ? NameColumn - row.size() : 1, ' ');
  return row + help + "\n";
}

std::string OptionRows(const std::vector<OptionSpec>& options) {
  std::string rows;
  for (const OptionSpec& option : options) {
    const std::string name = option.valueName.empty() ? option.name : option.name + " " + option.valueName;
    rows += Row(name, option.help + (option.repeated ? " (repeatable)" : ""));
  }
  return rows;
}

}  // namespace

std::string UsageLine(const Command& command) {
  std::string line = "knxconv " + command.name + " [options]";
  for (const PositionalSpec& positional : command.positionals) {
    line += positional.required ? " " + positional.name : " [" + positional.name + "]";
  }
  return line;
}

std::string ProgramHelp(const CommandRegistry& registry) {
  std::string help =
      "Usage: knxconv [options] COMMAND [arguments]\n"
      "Converts values to and from KNX group values with the standard DPT table.\n\nCommands:\n";
  for (const Command& command : registry.Commands()) {
    help += Row(command.name, command.summary);
  }
  help += "\nOptions (before or after the command):\n" + OptionRows(GlobalOptionSpecs()) + Footer;
  return help + "\n'knxconv COMMAND --help' shows a command's arguments and options.\n";
}

std::string CommandHelp(const Command& command) {
  std::string help = "Usage: " + UsageLine(command) + "\n" + command.summary + ".\n";
  if (!command.positionals.empty()) {
    help += "\nArguments:\n";
    for (const PositionalSpec& positional : command.positionals) {
      help += Row(positional.name, positional.help);
    }
  }
  if (!command.options.empty()) {
    help += "\nOptions:\n" + OptionRows(command.options);
  }
  return help + "\nGlobal options:\n" + OptionRows(GlobalOptionSpecs()) + Footer;
}

}  // namespace Knxconv
