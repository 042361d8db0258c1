#pragma once

#include <string>
#include <vector>

#include "Arguments.h"
#include "Command.h"
#include "CommandRegistry.h"

namespace Knxconv {

// Options of the program as a whole, accepted before or after the command.
struct GlobalOptions {
  bool json = false;
  int logLevel = 3;
  bool help = false;
  bool version = false;
};

constexpr int DefaultLogLevel = 3;
constexpr int MaximumLogLevel = 4;

const std::vector<OptionSpec>& GlobalOptionSpecs();

struct ParsedCommandLine {
  GlobalOptions globals;
  const Command* command = nullptr;
  Arguments arguments;
};

// What decides how the command line is answered, found before parsing it:
// --json, --help, --version anywhere before "--", and the first word that
// names a command (nullptr if none does).
struct FirstLook {
  GlobalOptions globals;
  const Command* command = nullptr;
};
FirstLook LookAtCommandLine(const CommandRegistry& registry, const std::vector<std::string>& args);

// Reads the arguments after the program name. Only known option names are
// options; "--" ends the options; a word starting with '-' where a positional
// is expected is that positional ("-5", "-inf", "-hello"). Throws UsageError;
// parsed holds what was read until then.
void ParseCommandLine(const CommandRegistry& registry, const std::vector<std::string>& args, ParsedCommandLine& parsed);

}  // namespace Knxconv
