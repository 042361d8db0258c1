#include <gtest/gtest.h>

#include <stdexcept>

#include "CommandRegistry.h"
#include "StandardCommands.h"

namespace {

using namespace Knxconv;

int Succeed(const Arguments& /*arguments*/, OutputContext& /*context*/) {
  return ExitSuccess;
}

TEST(CommandRegistry, FindsCommandsByTheirExactName) {
  CommandRegistry registry;
  registry.Add({"encode", "Encode", {}, {}, Succeed});
  registry.Add({"table", "Table", {}, {}, Succeed});
  ASSERT_NE(registry.Find("table"), nullptr);
  EXPECT_EQ(registry.Find("table")->summary, "Table");
  EXPECT_EQ(registry.Find("tabl"), nullptr);
  EXPECT_EQ(registry.Find("Table"), nullptr);
  EXPECT_EQ(registry.Nearest("tabel").value_or(""), "table");
}

TEST(CommandRegistry, RefusesANameTwice) {
  CommandRegistry registry;
  registry.Add({"encode", "Encode", {}, {}, Succeed});
  EXPECT_THROW(registry.Add({"encode", "Again", {}, {}, Succeed}), std::logic_error);
}

TEST(CommandRegistry, StandardCommandsInTheOrderOfTheHelp) {
  const CommandRegistry registry = StandardCommands();
  std::string names;
  for (const Command& command : registry.Commands()) {
    names += command.name + " ";
  }
  EXPECT_EQ(names, "encode decode table dpts dpt trace ");
}

}  // namespace
