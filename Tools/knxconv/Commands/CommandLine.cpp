#include "CommandLine.h"

#include <string>
#include <vector>

#include "CommandLineParser.h"
#include "HelpText.h"
#include "InputError.h"
#include "OutputContext.h"
#include "StandardCommands.h"
#include "UsageError.h"

#ifndef KNXCONV_VERSION
#define KNXCONV_VERSION "unknown"
#endif

namespace Knxconv {

namespace {

int ReportUsageError(OutputContext& context, const UsageError& error, const Command* command) {
  context.Fail(ExitUsage, error.what());
  if (error.PointsToHelp()) {
    context.Err() << "Try 'knxconv " << (command != nullptr ? command->name + " " : std::string()) << "--help'.\n";
  }
  return ExitUsage;
}

int Answer(const CommandRegistry& registry, const FirstLook& look, OutputContext& context) {
  if (look.globals.version) {
    context.PrintLine(std::string("knxconv ") + KNXCONV_VERSION);
  } else {
    context.PrintText(look.command != nullptr ? CommandHelp(*look.command) : ProgramHelp(registry));
  }
  return ExitSuccess;
}

}  // namespace

int RunCommandLine(const CommandRegistry& registry, int argc, const char* const* argv, std::istream& in,
                   std::ostream& out, std::ostream& err) {
  const std::vector<std::string> args(argv + (argc > 0 ? 1 : 0), argv + argc);
  const FirstLook look = LookAtCommandLine(registry, args);
  OutputContext context(look.globals.json, in, out, err);
  if (look.globals.help || look.globals.version) {
    return context.Finish(Answer(registry, look, context));
  }
  ParsedCommandLine parsed;
  int status = ExitSuccess;
  try {
    ParseCommandLine(registry, args, parsed);
    context.ForwardLog(parsed.globals.logLevel);
    status = parsed.command->run(parsed.arguments, context);
  } catch (const UsageError& error) {
    status = ReportUsageError(context, error, parsed.command != nullptr ? parsed.command : look.command);
  } catch (const InputError& error) {
    status = context.Fail(ExitUsage, error.what());
  }
  return context.Finish(status);
}

int RunCommandLine(int argc, const char* const* argv, std::istream& in, std::ostream& out, std::ostream& err) {
  return RunCommandLine(StandardCommands(), argc, argv, in, out, err);
}

}  // namespace Knxconv
