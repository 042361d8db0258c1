#include <chrono>
#include <cstdio>

#include "BusAddress.h"
#include "BusCommands.h"
#include "BusDecoder.h"
#include "BusSession.h"
#include "EtsDptText.h"
#include "InputError.h"

namespace Knxconv {

namespace {

KNXDPT RequiredDpt(const std::string& text) {
  const std::optional<KNXDPT> dpt = ParseEtsDpt(text);
  if (!dpt) {
    throw InputError("DPT is required");
  }
  return *dpt;
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

int RunSend(const BusOptions& options, std::ostream& out, std::ostream& err) {
  const std::uint16_t address = ParseGroupAddress(options.groupAddress);
  KNXDPT dpt = RequiredDpt(options.value.dpt);
  const LogForwarder log(options.value.logLevel, err);
  const Nelmo::KnxValueConverter converter;
  KnxStack::GroupValue groupValue;
  if (!EncodeValue(converter, options.value, dpt, groupValue)) {
    return ExitRefused;
  }
  return RunBusCommand(err, [&]() {
    BusConnection connection(options.url, ConnectTimeoutSeconds);
    connection.Send(address, EncodeGroupFrame(GroupService::Write, groupValue));
    out << (options.value.json ? JsonLine(EncodeJson(dpt, groupValue)) : groupValue.GetRawData().ToString()) << '\n';
    return static_cast<int>(ExitSuccess);
  });
}

int RunRead(const BusOptions& options, std::ostream& out, std::ostream& err) {
  const std::uint16_t address = ParseGroupAddress(options.groupAddress);
  const KNXDPT dpt = RequiredDpt(options.value.dpt);
  return RunBusCommand(err, [&]() {
    BusDecoder decoder({}, options.addresses, options.value.logLevel, err);
    decoder.SetDpt(address, dpt);
    BusConnection connection(options.url, ConnectTimeoutSeconds);
    connection.Send(address, EncodeGroupFrame(GroupService::Read, KnxStack::GroupValue()));
    BusFrame frame;
    if (!AwaitAnswer(connection, address, options.timeout, frame)) {
      err << "knxconv: no answer from " << FormatGroupAddress(address) << " within " << Seconds(options.timeout)
          << " s\n";
      return static_cast<int>(ExitRefused);
    }
    const BusLine line = decoder.Decode(frame);
    WriteBusLine(line, options.value.json, out);
    return static_cast<int>(line.decoded ? ExitSuccess : ExitRefused);
  });
}

}  // namespace Knxconv
