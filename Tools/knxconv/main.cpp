#include <exception>
#include <iostream>

#include "CommandLine.h"
#include "StandardCommands.h"
#ifdef KNXCONV_WITH_BUS
#include "BusCommands.h"
#endif
#include "OutputContext.h"
#include "TextEscape.h"

int main(int argc, char** argv) {
  // The streams then write to the descriptors themselves, so a failed write
  // fails the stream at once with its errno (stdio would report it later,
  // without one).
  std::ios::sync_with_stdio(false);
  // The output context flushes standard output itself, before each message
  // and where a command asks for it; a flush by a tied stream would hide a
  // failed write's errno.
  std::cin.tie(nullptr);
  std::cerr.tie(nullptr);
  try {
    Knxconv::CommandRegistry registry = Knxconv::StandardCommands();
#ifdef KNXCONV_WITH_BUS
    Knxconv::AddBusCommands(registry);
#endif
    return Knxconv::RunCommandLine(registry, argc, argv, std::cin, std::cout, std::cerr);
  } catch (const std::exception& error) {
    // Nothing the library throws is caught by the commands themselves.
    std::cerr << "knxconv: " << Knxconv::EscapeText(error.what()) << '\n';
    return Knxconv::ExitRefused;
  }
}
