#pragma once

#include <istream>
#include <ostream>

#include "CommandRegistry.h"

namespace Knxconv {

// Runs knxconv with the given arguments: results go to out, the library's
// log, messages and usage errors to err. Returns the exit status.
int RunCommandLine(int argc, const char* const* argv, std::istream& in, std::ostream& out, std::ostream& err);
int RunCommandLine(const CommandRegistry& registry, int argc, const char* const* argv, std::istream& in,
                   std::ostream& out, std::ostream& err);

}  // namespace Knxconv
