#include "BusSession.h"

#include "AddressBook.h"
#include "StopSignal.h"

namespace Knxconv {

int RunBusCommand(OutputContext& context, const std::function<int()>& body) {
  InstallStopHandlers();
  try {
    return body();
  } catch (const BusError& error) {
    return context.Fail(ExitUsage, error.what());
  } catch (const AddressFileError& error) {
    return context.Fail(ExitUsage, error.what());
  }
}

std::unique_ptr<BusConnection> ConnectPatiently(const std::string& url) {
  while (!StopRequested()) {
    try {
      return std::make_unique<BusConnection>(url, ConnectTimeoutSeconds);
    } catch (const BusError&) {
      SleepUnlessStopped(ReconnectIntervalSeconds);
    }
  }
  return nullptr;
}

}  // namespace Knxconv
