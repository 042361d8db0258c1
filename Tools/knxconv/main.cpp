#include <exception>
#include <iostream>

#include "CommandLine.h"
#include "Commands.h"

int main(int argc, char** argv) {
  try {
    return Knxconv::RunCommandLine(argc, argv, std::cin, std::cout, std::cerr);
  } catch (const std::exception& error) {
    // Nothing the library throws is caught by the commands themselves.
    std::cerr << "knxconv: " << error.what() << '\n';
    return Knxconv::ExitRefused;
  }
}
