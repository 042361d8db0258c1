#include <chrono>
#include <cstdio>

#include "BusAddress.h"
#include "BusCommands.h"
#include "BusDecoder.h"
#include "BusSession.h"
#include "Conversion.h"
#include "EtsDptText.h"
#include "UsageError.h"

namespace Knxconv {

namespace {

KNXDPT RequiredDpt(const Arguments& arguments) {
  const std::optional<KNXDPT> dpt = ParseEtsDpt(arguments.Positional("DPT").value_or(""));
  if (!dpt) {
    throw UsageError("DPT is required");
  }
  return *dpt;
}

std::uint16_t RequiredGroupAddress(const Arguments& arguments) {
  return ParseGroupAddress(arguments.Positional("GA").value_or(""));
}

// Waits for the first response or write to address; false on timeout.
bool AwaitAnswer(BusConnection& connection, std::uint16_t address, double timeoutSeconds, BusFrame& frame) {
  using Clock = std::chrono::steady_clock;
  const Clock::time_point end =
      Clock::now() + std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(timeoutSeconds));
  while (Clock::now() < end) {
    const double left = std::chrono::duration<double>(end - Clock::now()).count();
    if (!connection.Receive(left, frame)) {
      return false;
    }
    const GroupFrame groupFrame = DecodeGroupFrame(frame.bytes);
    if (frame.destination == address && groupFrame.error.empty() && groupFrame.service != GroupService::Read) {
      return true;
    }
  }
  return false;
}

std::string Seconds(double seconds) {
  char text[32];
  std::snprintf(text, sizeof text, "%g", seconds);
  return text;
}

}  // namespace

int RunSend(const Arguments& arguments, OutputContext& context) {
  const BusOptions options = ReadBusOptions(arguments);
  const std::uint16_t address = RequiredGroupAddress(arguments);
  KNXDPT dpt = RequiredDpt(arguments);
  const Nelmo::KnxValueConverter converter;
  const Encoded encoded = EncodeValue(converter, dpt, arguments, context);
  if (encoded.status != ExitSuccess) {
    return encoded.status;
  }
  const KnxStack::GroupValue& groupValue = encoded.groupValue;
  return RunBusCommand(context, [&]() {
    BusConnection connection(options.url, ConnectTimeoutSeconds);
    connection.Send(address, EncodeGroupFrame(GroupService::Write, groupValue));
    context.PrintResult(groupValue.GetRawData().ToString(), EncodeJson(dpt, groupValue));
    return static_cast<int>(ExitSuccess);
  });
}

int RunRead(const Arguments& arguments, OutputContext& context) {
  const BusOptions options = ReadBusOptions(arguments);
  const std::uint16_t address = RequiredGroupAddress(arguments);
  const KNXDPT dpt = RequiredDpt(arguments);
  return RunBusCommand(context, [&]() {
    BusDecoder decoder({}, options.addresses, context);
    decoder.SetDpt(address, dpt);
    BusConnection connection(options.url, ConnectTimeoutSeconds);
    connection.Send(address, EncodeGroupFrame(GroupService::Read, KnxStack::GroupValue()));
    BusFrame frame;
    if (!AwaitAnswer(connection, address, options.timeout, frame)) {
      return context.Fail(
          ExitRefused, "no answer from " + FormatGroupAddress(address) + " within " + Seconds(options.timeout) + " s");
    }
    const BusLine line = decoder.Decode(frame);
    WriteBusLine(line, context);
    return static_cast<int>(line.decoded ? ExitSuccess : ExitRefused);
  });
}

}  // namespace Knxconv
