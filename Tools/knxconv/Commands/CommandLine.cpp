#include "CommandLine.h"

#include <CLI/CLI.hpp>

#include <exception>
#include <functional>
#include <string>

#include "Commands.h"
#include "InputError.h"

#ifndef KNXCONV_VERSION
#define KNXCONV_VERSION "unknown"
#endif

namespace Knxconv {

namespace {

constexpr const char* DptHelp = "Datapoint type: 9.001, 9.1, 9 or 9.x; 0 for none (completed from --bits and the type)";

void AddCommonOptions(CLI::App& command, Options& options) {
  command.add_flag("--json", options.json, "Print the result as JSON, one object per result");
  command
      .add_option("--log-level", options.logLevel,
                  "Show the library's log from this level up (0 trace to 3 errors, 4 off)")
      ->check(CLI::Range(0, 4))
      ->capture_default_str();
}

CLI::App* AddEncode(CLI::App& app, Options& options) {
  CLI::App* command = app.add_subcommand("encode", "Convert a value to the bytes of a KNX group value");
  command->add_option("DPT", options.dpt, DptHelp)->required();
  command->add_option("VALUE", options.value, "The value, read as the DPT's value type or as --type says")
      ->each([&options](const std::string&) { options.hasValue = true; });
  command->add_option("--type", options.type,
                      "Value type of VALUE: its name without IVT_ (double, percent, ...) or its number; none sends "
                      "no value");
  command->add_option("--bits", options.bits, "Bit size of the DPT")->check(CLI::Range(1, 255));
  command->add_flag("--summer-time", options.summerTime, "Set the summer-time flag of a date and time");
  AddCommonOptions(*command, options);
  return command;
}

CLI::App* AddDecode(CLI::App& app, Options& options) {
  CLI::App* command = app.add_subcommand("decode", "Convert the bytes of a KNX group value to a value");
  command->add_option("DPT", options.dpt, DptHelp)->required();
  command->add_option("HEX", options.value, "The bytes as hex pairs, spaces optional: \"0C 33\" or 0C33")
      ->required()
      ->each([&options](const std::string&) { options.hasValue = true; });
  command
      ->add_option("--bits", options.bits,
                   "Bit size of the group value (default: the DPT's size up to 6 bits, else 8 per byte)")
      ->check(CLI::Range(1, 255));
  command->add_option("--type", options.type, "Value type wanted where the DPT is 0");
  AddCommonOptions(*command, options);
  return command;
}

CLI::App* AddTable(CLI::App& app, Options& options) {
  CLI::App* command = app.add_subcommand("table", "List the standard DPT table");
  AddCommonOptions(*command, options);
  return command;
}

CLI::App* AddTrace(CLI::App& app, Options& options) {
  CLI::App* command =
      app.add_subcommand("trace", "Decode a telegram trace: CSV with the header time,source,destination,dpt,payload");
  command->add_option("FILE", options.file, "The trace; - or none reads standard input");
  AddCommonOptions(*command, options);
  return command;
}

// The help of the command that was being used, else the program's.
std::string Usage(const CLI::App& app) {
  for (const CLI::App* command : app.get_subcommands()) {
    return command->help(app.get_name());
  }
  return app.help();
}

int ReportUsageError(const CLI::App& app, const std::string& message, std::ostream& err) {
  err << "knxconv: " << message << "\n\n" << Usage(app);
  return ExitUsage;
}

}  // namespace

int RunCommandLine(int argc, const char* const* argv, std::istream& in, std::ostream& out, std::ostream& err,
                   const std::vector<ExtraCommand>& extra) {
  CLI::App app("Converts values to and from KNX group values with the standard DPT table.", "knxconv");
  app.set_version_flag("--version", std::string("knxconv ") + KNXCONV_VERSION);
  app.require_subcommand(1);
  Options options;
  const CLI::App* encode = AddEncode(app, options);
  const CLI::App* decode = AddDecode(app, options);
  const CLI::App* table = AddTable(app, options);
  const CLI::App* trace = AddTrace(app, options);
  std::vector<const CLI::App*> extraCommands;
  for (const ExtraCommand& command : extra) {
    extraCommands.push_back(command.add(app));
  }

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success)) {
      return app.exit(error, out, err);
    }
    return ReportUsageError(app, error.what(), err);
  }

  try {
    if (encode->parsed()) {
      return RunEncode(options, out, err);
    }
    if (decode->parsed()) {
      return RunDecode(options, out, err);
    }
    if (table->parsed()) {
      return RunTable(options, out, err);
    }
    if (trace->parsed()) {
      return RunTrace(options, in, out, err);
    }
    for (std::size_t i = 0; i < extra.size(); ++i) {
      if (extraCommands[i]->parsed()) {
        return extra[i].run(in, out, err);
      }
    }
  } catch (const InputError& error) {
    return ReportUsageError(app, error.what(), err);
  }
  return ReportUsageError(app, "no command given", err);
}

}  // namespace Knxconv
