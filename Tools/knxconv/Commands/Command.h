#pragma once

#include <functional>
#include <string>
#include <vector>

#include "Arguments.h"
#include "OutputContext.h"

// To add a command: describe it in a Command (name, summary, positionals,
// options, run) in a file of its group under Commands/, add it from that
// group's Add...Commands function, and list the group in StandardCommands.cpp.

namespace Knxconv {

struct OptionSpec {
  std::string name;       // "--type"
  std::string valueName;  // "TYPE"; empty for a flag
  std::string help;
  bool repeated = false;  // may be given more than once (Arguments::Values)
};

struct PositionalSpec {
  std::string name;  // "DPT", as usage and messages show it
  std::string help;
  bool required = true;  // optional positionals come after the required ones
};

// Reads the parsed arguments, writes through the context, returns the exit
// status. Throws UsageError for a wrong command line and InputError for input
// it cannot read.
using CommandRun = std::function<int(const Arguments&, OutputContext&)>;

struct Command {
  std::string name;
  std::string summary;  // one line, no final period
  std::vector<PositionalSpec> positionals;
  std::vector<OptionSpec> options;
  CommandRun run;
};

}  // namespace Knxconv
