#pragma once

#include <functional>
#include <istream>
#include <ostream>
#include <vector>

namespace CLI {
class App;
}

namespace Knxconv {

// A command kept out of the core (the bus commands, which link the KNX
// daemon's client library): it adds itself to the parser and runs when it
// was the command given.
struct ExtraCommand {
  std::function<CLI::App*(CLI::App&)> add;
  std::function<int(std::istream& in, std::ostream& out, std::ostream& err)> run;
};

// Runs knxconv with the given arguments: the result goes to out, the
// library's log, messages and usage to err. Returns the exit status.
int RunCommandLine(int argc, const char* const* argv, std::istream& in, std::ostream& out, std::ostream& err,
                   const std::vector<ExtraCommand>& extra = {});

}  // namespace Knxconv
