#include <vector>

#include "KnxValueConverterApi.h"
#include "StandardCommands.h"

namespace Knxconv {

namespace {

std::vector<TableRow> TableRows(const Nelmo::KnxValueConverter& converter) {
  std::vector<TableRow> rows;
  for (const auto& mainRows : converter.GetDptValueMap().GetEntries()) {
    for (const auto& subRow : mainRows.second) {
      rows.push_back(DescribeRow(subRow.second));
    }
  }
  return rows;
}

int RunTable(const Arguments& /*arguments*/, OutputContext& context) {
  const Nelmo::KnxValueConverter converter;
  const std::vector<TableRow> rows = TableRows(converter);
  if (context.IsJson()) {
    context.PrintJson(TableJson(rows));
  } else {
    context.PrintText(TableText(rows));
  }
  return ExitSuccess;
}

}  // namespace

void AddTableCommand(CommandRegistry& registry) {
  registry.Add({"table", "List the standard DPT table", {}, {}, RunTable});
}

}  // namespace Knxconv
