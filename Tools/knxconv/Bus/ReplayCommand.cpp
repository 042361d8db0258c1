#include <algorithm>
#include <chrono>
#include <fstream>
#include <optional>

#include "BusAddress.h"
#include "BusCommands.h"
#include "BusSession.h"
#include "Conversion.h"
#include "EtsDptText.h"
#include "GroupFrame.h"
#include "InputError.h"
#include "NumberText.h"
#include "StopSignal.h"
#include "TraceReader.h"

namespace Knxconv {

namespace {

constexpr double SecondsPerMinute = 60;

// "hh:mm:ss[.fff]" as seconds since midnight.
double TraceSeconds(const std::string& time) {
  double seconds = 0;
  std::size_t start = 0;
  for (int part = 0; part < 3; ++part) {
    const std::size_t colon = part < 2 ? time.find(':', start) : std::string::npos;
    const std::optional<double> number =
        ParseDecimal(std::string_view(time).substr(start, colon == std::string::npos ? colon : colon - start));
    if (!number || (part < 2) == (colon == std::string::npos)) {
      throw InputError("time '" + time + "' is not hh:mm:ss.fff");
    }
    seconds = seconds * SecondsPerMinute + *number;
    start = colon + 1;
  }
  return seconds;
}

struct Outgoing {
  double time = 0;
  std::uint16_t destination = 0;
  std::vector<std::uint8_t> frame;
};

Outgoing ReadOutgoing(const Telegram& telegram) {
  if (!telegram.error.empty()) {
    throw InputError(telegram.error);
  }
  Outgoing outgoing;
  outgoing.time = TraceSeconds(telegram.time);
  outgoing.destination = ParseGroupAddress(telegram.destination);
  const std::optional<KNXDPT> dpt = ParseEtsDpt(telegram.dpt);
  outgoing.frame =
      EncodeGroupFrame(GroupService::Write, PayloadGroupValue(dpt.value_or(KNXDPT()), telegram.payload, 0));
  return outgoing;
}

// Sends the trace's telegrams, each after its delay from the first scaled
// by speed (0: no waiting). A line that is no telegram is told on err and
// skipped.
int Replay(std::istream& in, const BusOptions& options, OutputContext& context) {
  TraceReader reader(in);
  BusConnection connection(options.url, ConnectTimeoutSeconds);
  std::optional<double> first;
  const auto start = std::chrono::steady_clock::now();
  int status = ExitSuccess;
  Telegram telegram;
  while (!StopRequested() && reader.Next(telegram)) {
    try {
      const Outgoing outgoing = ReadOutgoing(telegram);
      first = first.value_or(outgoing.time);
      if (options.speed > 0) {
        const double due = (outgoing.time - *first) / options.speed;
        SleepUnlessStopped(due - std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
      }
      connection.Send(outgoing.destination, outgoing.frame);
    } catch (const InputError& error) {
      context.Message("line " + std::to_string(telegram.lineNumber) + ": " + error.what());
      status = ExitRefused;
    }
  }
  return status;
}

}  // namespace

int RunReplay(const Arguments& arguments, OutputContext& context) {
  const BusOptions options = ReadBusOptions(arguments);
  const std::string name = arguments.Positional("FILE").value_or("");
  std::ifstream file(name, std::ios::binary);
  if (!file) {
    throw InputError("cannot read the trace " + name);
  }
  return RunBusCommand(context, [&]() { return Replay(file, options, context); });
}

}  // namespace Knxconv
