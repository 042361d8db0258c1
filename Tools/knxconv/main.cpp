#include <exception>
#include <iostream>

#include "CommandLine.h"
#include "Commands.h"
#ifdef KNXCONV_WITH_BUS
#include "BusCommandLine.h"
#endif

int main(int argc, char** argv) {
  try {
#ifdef KNXCONV_WITH_BUS
    Knxconv::BusOptions busOptions;
    return Knxconv::RunCommandLine(argc, argv, std::cin, std::cout, std::cerr, Knxconv::BusCommandLine(busOptions));
#else
    return Knxconv::RunCommandLine(argc, argv, std::cin, std::cout, std::cerr);
#endif
  } catch (const std::exception& error) {
    // Nothing the library throws is caught by the commands themselves.
    std::cerr << "knxconv: " << error.what() << '\n';
    return Knxconv::ExitRefused;
  }
}
