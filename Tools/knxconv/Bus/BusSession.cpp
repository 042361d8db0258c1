#include "BusSession.h"

#include "AddressBook.h"
#include "Commands.h"
#include "StopSignal.h"

namespace Knxconv {

int RunBusCommand(std::ostream& err, const std::function<int()>& body) {
  InstallStopHandlers();
  try {
    return body();
  } catch (const BusError& error) {
    err << "knxconv: " << error.what() << '\n';
  } catch (const AddressFileError& error) {
    err << "knxconv: " << error.what() << '\n';
  }
  return ExitUsage;
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
