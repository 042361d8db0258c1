#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "CommandLine.h"
#include "InputError.h"
#include "UsageError.h"

namespace {

using namespace Knxconv;

// A command as another group would add it: it shows what it was given.
int Show(const Arguments& arguments, OutputContext& context) {
  const std::string address = arguments.Positional("GA").value_or("");
  if (address == "bad") {
    throw InputError("not a group address: 'bad'");
  }
  if (address == "refused") {
    return context.Refused();
  }
  std::string text = "GA=" + address;
  for (const std::string& dpt : arguments.Values("--dpt")) {
    text += " dpt=" + dpt;
  }
  Json json;
  json["ga"] = address;
  context.PrintResult(text + (arguments.Flag("--reconnect") ? " reconnect" : ""), json);
  return ExitSuccess;
}

CommandRegistry TestCommands() {
  CommandRegistry registry;
  registry.Add({"show",
                "Show the arguments",
                {{"GA", "A group address", true}},
                {{"--dpt", "GA=DPT", "The DPT of a group address", true}, {"--reconnect", "", "Reconnect", false}},
                Show});
  return registry;
}

struct RunCase {
  std::vector<const char*> args;  // after the program name
  int status;
  const char* out;
  const char* err;
};

const RunCase RunCases[] = {
    {{"show", "1/0/1"}, 0, "GA=1/0/1\n", ""},
    {{"show", "-1/0/1", "--dpt", "1/0/1=9.001", "--dpt=1/0/2=1.001", "--reconnect"},
     0,
     "GA=-1/0/1 dpt=1/0/1=9.001 dpt=1/0/2=1.001 reconnect\n",
     ""},
    {{"--json", "show", "1/0/1"}, 0, "{\"ga\":\"1/0/1\"}\n", ""},
    {{"show", "1/\x1B[2J"}, 0, "GA=1/\\x1B[2J\n", ""},
    {{"show", "bad"}, 2, "", "knxconv: not a group address: 'bad'\n"},
    {{"show", "bad", "--json"},
     2,
     "{\"error\":\"not a group address: 'bad'\",\"status\":2}\n",
     "knxconv: not a group address: 'bad'\n"},
    {{"show", "refused", "--json"}, 1, "{\"error\":\"the library refused the conversion\",\"status\":1}\n", ""},
    {{"show"}, 2, "", "knxconv: GA is required\nTry 'knxconv show --help'.\n"},
    {{"shw", "1/0/1"},
     2,
     "",
     "knxconv: unknown command 'shw'; did you mean 'show'? (knxconv --help lists the commands)\n"},
    {{"--version", "show"}, 0, "knxconv " KNXCONV_TEST_VERSION "\n", ""},
    {{"show", "--help"}, 0, nullptr, ""},
};

class CommandLine : public ::testing::TestWithParam<RunCase> {};

TEST_P(CommandLine, RunsTheCommandAndAnswersThroughTheOutputContext) {
  std::vector<const char*> argv = {"knxconv"};
  argv.insert(argv.end(), GetParam().args.begin(), GetParam().args.end());
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
  EXPECT_EQ(RunCommandLine(TestCommands(), static_cast<int>(argv.size()), argv.data(), in, out, err),
            GetParam().status);
  if (GetParam().out != nullptr) {
    EXPECT_EQ(out.str(), GetParam().out);
  } else {
    EXPECT_EQ(out.str().rfind("Usage: knxconv show [options] GA\nShow the arguments.\n", 0), 0U) << out.str();
  }
  EXPECT_EQ(err.str(), GetParam().err);
}

INSTANTIATE_TEST_SUITE_P(CommandLines, CommandLine, ::testing::ValuesIn(RunCases));

}  // namespace
