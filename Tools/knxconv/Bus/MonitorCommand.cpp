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

// Receives until a stop; a lost daemon ends it unless reconnecting.
void Monitor(const BusOptions& options, BusDecoder& decoder, std::ostream& out, std::ostream& err) {
  std::unique_ptr<BusConnection> connection = FirstConnection(options);
  if (connection) {
    err << "knxconv: connected to knxd at " << options.url << '\n';
  }
  BusFrame frame;
  while (connection && !StopRequested()) {
    try {
      if (connection->Receive(ReceiveSliceSeconds, frame)) {
        WriteBusLine(decoder.Decode(frame), options.value.json, out);
      }
    } catch (const BusError& error) {
      if (!options.reconnect) {
        throw;
      }
      err << "knxconv: " << error.what() << "; reconnecting\n";
      connection.reset();
      connection = ConnectPatiently(options.url);
      if (connection) {
        err << "knxconv: reconnected to knxd at " << options.url << '\n';
      }
    }
  }
}

}  // namespace

int RunMonitor(const BusOptions& options, std::ostream& out, std::ostream& err) {
  return RunBusCommand(err, [&]() {
    BusDecoder decoder(options.dpts, options.addresses, options.value.logLevel, err);
    Monitor(options, decoder, out, err);
    return static_cast<int>(ExitSuccess);
  });
}

}  // namespace Knxconv
