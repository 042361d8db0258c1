#include "BusCommands.h"
#include "BusDecoder.h"
#include "BusSession.h"
#include "StopSignal.h"

namespace Knxconv {

namespace {

constexpr double ReceiveSliceSeconds = 0.5;

std::unique_ptr<BusConnection> FirstConnection(const BusOptions& options) {
  if (!options.reconnect) {
    return std::make_unique<BusConnection>(options.url, ConnectTimeoutSeconds);
  }
  return ConnectPatiently(options.url);
}

// Receives until a stop or an unwritable output; a lost daemon ends it
// unless reconnecting.
void Monitor(const BusOptions& options, BusDecoder& decoder, OutputContext& context) {
  std::unique_ptr<BusConnection> connection = FirstConnection(options);
  if (connection) {
    context.Message("connected to knxd at " + options.url);
  }
  BusFrame frame;
  while (connection && !StopRequested() && !context.OutputFailed()) {
    try {
      if (connection->Receive(ReceiveSliceSeconds, frame)) {
        WriteBusLine(decoder.Decode(frame), context);
      }
    } catch (const BusError& error) {
      if (!options.reconnect) {
        throw;
      }
      context.Message(std::string(error.what()) + "; reconnecting");
      connection.reset();
      connection = ConnectPatiently(options.url);
      if (connection) {
        context.Message("reconnected to knxd at " + options.url);
      }
    }
  }
}

}  // namespace

int RunMonitor(const Arguments& arguments, OutputContext& context) {
  const BusOptions options = ReadBusOptions(arguments);
  return RunBusCommand(context, [&]() {
    BusDecoder decoder(options.dpts, options.addresses, context);
    Monitor(options, decoder, context);
    return static_cast<int>(ExitSuccess);
  });
}

}  // namespace Knxconv
