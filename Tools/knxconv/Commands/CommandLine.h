#pragma once

#include <istream>
#include <ostream>

namespace Knxconv {

// Runs knxconv with the given arguments: the result goes to out, the
// library's log, messages and usage to err. Returns the exit status.
int RunCommandLine(int argc, const char* const* argv, std::istream& in, std::ostream& out, std::ostream& err);

}  // namespace Knxconv
