#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>

#include "Conversion.h"
#include "DptCache.h"
#include "InputError.h"
#include "StandardCommands.h"
#include "TraceReader.h"

namespace Knxconv {

namespace {

constexpr const char* StandardInput = "-";
// The continuation lines line up with the help column.
constexpr const char* FileHelp =
    "The trace; - or none reads standard input. Exit status of trace:\n"
    "                      0 when every telegram converted, 1 when some telegram did not\n"
    "                      (its line says why), 2 when the trace cannot be read or is not\n"
    "                      a trace, or the output cannot be written";

// What decoding keeps from telegram to telegram.
struct Decoder {
  Nelmo::KnxValueConverter converter;
  DptCache dpts;
  RowCache rows;
};

// Decodes result.telegram into result, whose strings keep their capacity from
// telegram to telegram.
void DecodeTelegram(Decoder& decoder, OutputContext& context, TraceResult& result) {
  const Telegram& telegram = result.telegram;
  result.ClearDecoding();
  if (!telegram.error.empty()) {
    result.error = telegram.error;
    return;
  }
  try {
    result.dpt = decoder.dpts.Parse(telegram.dpt);
    context.TakeLogErrors();
    DecodeOrRefuse(decoder.converter, telegram.payload, result,
                   context.IsJson() ? ValueTextForm::Skipped : ValueTextForm::Made, decoder.rows);
    if (!result.converted && result.error.empty()) {
      result.error = context.TakeLogErrors();
    }
  } catch (const InputError& error) {
    result.error = error.what();
  }
  if (!result.converted && result.error.empty()) {
    result.error = "not converted";
  }
}

// Opens the trace file; InputError says in the system's words why not.
void OpenTrace(const std::string& name, std::ifstream& file) {
  errno = 0;
  file.open(name, std::ios::binary);
  int error = errno;
  std::error_code ignored;
  // A directory opens like a file and fails only when read.
  if (file && std::filesystem::is_directory(name, ignored)) {
    error = EISDIR;
  } else if (file) {
    return;
  }
  throw InputError("cannot read the trace '" + name + "': " + std::strerror(error != 0 ? error : EIO));
}

int RunTrace(const Arguments& arguments, OutputContext& context) {
  const std::string name = arguments.Positional("FILE").value_or(StandardInput);
  std::ifstream file;
  if (name != StandardInput) {
    OpenTrace(name, file);
  }
  // A trace read from standard input may be a live one.
  context.FlushEachLine(name == StandardInput);
  std::istream& source = name == StandardInput ? context.In() : file;
  TraceReader reader(source);
  Decoder decoder;
  bool allConverted = true;
  TraceResult result;
  std::string line;
  // Reading stops where the output cannot be written.
  while (!context.OutputFailed() && reader.Next(result.telegram)) {
    DecodeTelegram(decoder, context, result);
    allConverted = allConverted && result.converted;
    // Only the form that is printed is built: this runs once per telegram.
    if (context.IsJson()) {
      TraceJson(result, line);
      context.PrintJsonLine(line);
    } else {
      TraceText(result, line);
      context.PrintLine(line);
    }
  }
  if (source.bad()) {
    throw InputError("cannot read the trace '" + name + "' to its end");
  }
  return allConverted ? ExitSuccess : ExitRefused;
}

}  // namespace

void AddTraceCommand(CommandRegistry& registry) {
  registry.Add({"trace",
                "Decode a telegram trace: CSV with the header time,source,destination,dpt,payload",
                {{"FILE", FileHelp, false}},
                {},
                RunTrace});
}

}  // namespace Knxconv
