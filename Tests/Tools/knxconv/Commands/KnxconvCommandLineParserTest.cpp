#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "CommandLineParser.h"
#include "UsageError.h"

namespace {

using namespace Knxconv;

int Succeed(const Arguments& /*arguments*/, OutputContext& /*context*/) {
  return ExitSuccess;
}

CommandRegistry TestCommands() {
  CommandRegistry registry;
  registry.Add({"encode",
                "Encode",
                {{"DPT", "", true}, {"VALUE", "", false}},
                {{"--type", "TYPE", "", false}, {"--summer-time", "", "", false}, {"--dpt", "GA=DPT", "", true}},
                Succeed});
  registry.Add({"table", "Table", {}, {}, Succeed});
  return registry;
}

// What was parsed, written out: the command, its arguments by name, the
// global options; or the usage error.
std::string Parsed(const std::vector<std::string>& args) {
  const CommandRegistry registry = TestCommands();
  ParsedCommandLine parsed;
  try {
    ParseCommandLine(registry, args, parsed);
  } catch (const UsageError& error) {
    return std::string("error: ") + error.what();
  }
  std::string text = parsed.command->name;
  for (const PositionalSpec& positional : parsed.command->positionals) {
    if (const std::optional<std::string> value = parsed.arguments.Positional(positional.name)) {
      text += " " + positional.name + "=" + *value;
    }
  }
  for (const OptionSpec& option : parsed.command->options) {
    for (const std::string& value : parsed.arguments.Values(option.name)) {
      text += " " + option.name + "=" + value;
    }
    text += parsed.arguments.Flag(option.name) ? " " + option.name : "";
  }
  text += parsed.globals.json ? " json" : "";
  return text + " level=" + std::to_string(parsed.globals.logLevel);
}

struct ParseCase {
  std::vector<std::string> args;
  const char* parsed;
};

const ParseCase ParseCases[] = {
    {{"encode", "9.001", "21.5"}, "encode DPT=9.001 VALUE=21.5 level=3"},
    {{"--json", "encode", "9.001", "21.5"}, "encode DPT=9.001 VALUE=21.5 json level=3"},
    {{"encode", "9.001", "21.5", "--json"}, "encode DPT=9.001 VALUE=21.5 json level=3"},
    {{"encode", "9.001", "--json", "21.5"}, "encode DPT=9.001 VALUE=21.5 json level=3"},
    {{"--log-level", "1", "encode", "9.001", "1"}, "encode DPT=9.001 VALUE=1 level=1"},
    {{"encode", "9.001", "1", "--log-level=0"}, "encode DPT=9.001 VALUE=1 level=0"},
    {{"encode", "16.000", "-hello"}, "encode DPT=16.000 VALUE=-hello level=3"},
    {{"encode", "9.001", "-inf"}, "encode DPT=9.001 VALUE=-inf level=3"},
    {{"encode", "9.001", "-.5"}, "encode DPT=9.001 VALUE=-.5 level=3"},
    {{"encode", "8.001", "-1000"}, "encode DPT=8.001 VALUE=-1000 level=3"},
    {{"encode", "16.000", "-"}, "encode DPT=16.000 VALUE=- level=3"},
    {{"encode", "16.000", "--hello"}, "encode DPT=16.000 VALUE=--hello level=3"},
    {{"encode", "--", "16.000", "--json"}, "encode DPT=16.000 VALUE=--json level=3"},
    {{"encode", "16.000", "--", "--"}, "encode DPT=16.000 VALUE=-- level=3"},
    {{"encode", "0", "5", "--type", "double"}, "encode DPT=0 VALUE=5 --type=double level=3"},
    {{"encode", "0", "--type", "-x", "5"}, "encode DPT=0 VALUE=5 --type=-x level=3"},
    {{"encode", "0", "5", "--type=uint8"}, "encode DPT=0 VALUE=5 --type=uint8 level=3"},
    {{"encode", "19.001", "x", "--summer-time"}, "encode DPT=19.001 VALUE=x --summer-time level=3"},
    {{"encode", "1", "--dpt", "1/0/1=1.001", "--dpt", "1/0/2=9.001"},
     "encode DPT=1 --dpt=1/0/1=1.001 --dpt=1/0/2=9.001 level=3"},
    {{"table", "--json"}, "table json level=3"},
    {{}, "error: no command given"},
    {{"--json"}, "error: no command given"},
    {{"encdoe", "9.001", "1"},
     "error: unknown command 'encdoe'; did you mean 'encode'? (knxconv --help lists the commands)"},
    {{"convert"}, "error: unknown command 'convert' (knxconv --help lists the commands)"},
    {{"-x"}, "error: unknown command '-x' (knxconv --help lists the commands)"},
    {{"encode"}, "error: DPT is required"},
    {{"encode", "9.001", "1", "2"}, "error: unexpected argument '2'"},
    {{"table", "-5"}, "error: unexpected argument '-5'"},
    {{"encode", "9.001", "1", "--frobnicate"}, "error: unknown option '--frobnicate'"},
    {{"encode", "9.001", "1", "--jsn"}, "error: unknown option '--jsn'; did you mean '--json'?"},
    {{"encode", "9.001", "--jsn", "1"}, "error: unknown option '--jsn'; did you mean '--json'?"},
    {{"--tpye", "encode"}, "error: unknown option '--tpye'"},
    {{"encode", "9.001", "1", "--tpye=double"}, "error: unknown option '--tpye'; did you mean '--type'?"},
    {{"encode", "9.001", "--type"}, "error: --type needs a value: --type TYPE"},
    {{"encode", "9.001", "1", "--type", "a", "--type", "b"}, "error: --type is given twice"},
    {{"encode", "9.001", "1", "--json=yes"}, "error: --json takes no value"},
    {{"encode", "9.001", "1", "--log-level", "5"}, "error: --log-level must be a whole number from 0 to 4, not '5'"},
    {{"encode", "9.001", "1", "--log-level", "-1"}, "error: --log-level must be a whole number from 0 to 4, not '-1'"},
    {{"encode", "9.001", "1", "--log-level", "1x"}, "error: --log-level must be a whole number from 0 to 4, not '1x'"},
    {{"encode", "9.001", "1", "--log-level"}, "error: --log-level needs a value: --log-level N"},
};

class CommandLineParser : public ::testing::TestWithParam<ParseCase> {};

TEST_P(CommandLineParser, ReadsCommandsOptionsAndPositionals) {
  EXPECT_EQ(Parsed(GetParam().args), GetParam().parsed);
}

INSTANTIATE_TEST_SUITE_P(CommandLines, CommandLineParser, ::testing::ValuesIn(ParseCases));

struct LookCase {
  std::vector<std::string> args;
  const char* look;
};

std::string Look(const std::vector<std::string>& args) {
  const CommandRegistry registry = TestCommands();
  const FirstLook look = LookAtCommandLine(registry, args);
  return std::string(look.command != nullptr ? look.command->name : "-") + (look.globals.json ? " json" : "") +
         (look.globals.help ? " help" : "") + (look.globals.version ? " version" : "");
}

const LookCase LookCases[] = {
    {{"--help"}, "- help"},
    {{"encode", "--help"}, "encode help"},
    {{"--help", "table"}, "table help"},
    {{"--json", "encdoe", "--version"}, "- json version"},
    {{"encode", "--", "--help", "--json"}, "encode"},
    {{"encode", "16.000", "table"}, "encode"},
};

class CommandLineFirstLook : public ::testing::TestWithParam<LookCase> {};

TEST_P(CommandLineFirstLook, FindsHelpVersionJsonAndTheCommandBeforeTheEndOfOptions) {
  EXPECT_EQ(Look(GetParam().args), GetParam().look);
}

INSTANTIATE_TEST_SUITE_P(CommandLines, CommandLineFirstLook, ::testing::ValuesIn(LookCases));

}  // namespace
