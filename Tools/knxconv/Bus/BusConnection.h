#pragma once

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace Knxconv {

// The daemon is absent, refused us or went away; the text says which.
class BusError : public std::runtime_error {
 public:
  explicit BusError(const std::string& message) : std::runtime_error(message) {}
};

// A frame as it came from the bus.
struct BusFrame {
  std::uint16_t source = 0;
  std::uint16_t destination = 0;
  std::vector<std::uint8_t> bytes;
};

// A group socket of the KNX daemon: every group telegram on the bus comes
// in, and telegrams go out to any group address. No wait is unbounded: the
// daemon's socket is polled with a timeout, and a stop request ends a wait.
class BusConnection {
 public:
  // url as the daemon's clients write it: "local:/run/knx", "ip:host[:port]".
  // Throws BusError when the daemon does not accept us within timeout.
  BusConnection(const std::string& url, double timeoutSeconds);
  ~BusConnection();
  BusConnection(const BusConnection&) = delete;
  BusConnection& operator=(const BusConnection&) = delete;

  void Send(std::uint16_t destination, const std::vector<std::uint8_t>& frame);
  // The next frame; false when none came within the timeout or a stop was
  // asked for. Throws BusError when the daemon went away.
  bool Receive(double timeoutSeconds, BusFrame& frame);

 private:
  // True when a whole answer is there; false after the timeout or on stop.
  bool WaitForAnswer(double timeoutSeconds);

  struct Handle;
  struct Closer {
    void operator()(Handle* handle) const;
  };
  std::string m_url;
  std::unique_ptr<Handle, Closer> m_handle;
};

}  // namespace Knxconv
