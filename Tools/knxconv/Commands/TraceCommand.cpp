#include <fstream>

#include "Conversion.h"
#include "DptText.h"
#include "InputError.h"
#include "StandardCommands.h"
#include "TraceReader.h"

namespace Knxconv {

namespace {

constexpr const char* StandardInput = "-";

TraceResult DecodeTelegram(const Nelmo::KnxValueConverter& converter, OutputContext& context,
                           const Telegram& telegram) {
  TraceResult result;
  result.telegram = telegram;
  if (!telegram.error.empty()) {
    result.error = telegram.error;
    return result;
  }
  try {
    result.dpt = ParseDpt(telegram.dpt);
    context.TakeLogErrors();
    Decode(converter, telegram.payload, 0, result);
    if (!result.converted) {
      result.error = context.TakeLogErrors();
    }
  } catch (const InputError& error) {
    result.error = error.what();
  }
  if (!result.converted && result.error.empty()) {
    result.error = "not converted";
  }
  return result;
}

int RunTrace(const Arguments& arguments, OutputContext& context) {
  const std::string name = arguments.Positional("FILE").value_or(StandardInput);
  std::ifstream file;
  if (name != StandardInput) {
    file.open(name, std::ios::binary);
    if (!file) {
      throw InputError("cannot read the trace " + name);
    }
  }
  // A trace read from standard input may be a live one.
  context.FlushEachLine(name == StandardInput);
  TraceReader reader(name == StandardInput ? context.In() : file);
  const Nelmo::KnxValueConverter converter;
  bool allConverted = true;
  Telegram telegram;
  // Reading stops where the output cannot be written.
  while (!context.OutputFailed() && reader.Next(telegram)) {
    const TraceResult result = DecodeTelegram(converter, context, telegram);
    allConverted = allConverted && result.converted;
    context.PrintResult(TraceText(result), TraceJson(result));
  }
  return allConverted ? ExitSuccess : ExitRefused;
}

}  // namespace

void AddTraceCommand(CommandRegistry& registry) {
  registry.Add({"trace",
                "Decode a telegram trace: CSV with the header time,source,destination,dpt,payload",
                {{"FILE", "The trace; - or none reads standard input", false}},
                {},
                RunTrace});
}

}  // namespace Knxconv
