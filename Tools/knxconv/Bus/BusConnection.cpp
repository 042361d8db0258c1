#include "BusConnection.h"

#include <eibclient.h>
#include <poll.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>

#include "StopSignal.h"

namespace Knxconv {

namespace {

constexpr int SliceMilliseconds = 50;
// The longest frame the daemon passes on for a group address.
constexpr int MaxFrameBytes = 256;

std::string SystemReason() {
  return errno != 0 ? std::strerror(errno) : "no answer";
}

}  // namespace

struct BusConnection::Handle {
  EIBConnection* connection = nullptr;
};

void BusConnection::Closer::operator()(Handle* handle) const {
  if (handle->connection != nullptr) {
    EIBClose(handle->connection);
  }
  delete handle;
}

BusConnection::BusConnection(const std::string& url, double timeoutSeconds) : m_url(url), m_handle(new Handle) {
  errno = 0;
  m_handle->connection = EIBSocketURL(url.c_str());
  if (m_handle->connection == nullptr) {
    throw BusError("cannot connect to knxd at " + url + ": " + SystemReason());
  }
  if (EIBOpen_GroupSocket_async(m_handle->connection, 0) != 0) {
    throw BusError("knxd at " + url + " refused a group socket: " + SystemReason());
  }
  errno = 0;
  if (!WaitForAnswer(timeoutSeconds) || EIBComplete(m_handle->connection) != 0) {
    throw BusError("knxd at " + url + " did not open a group socket: " + SystemReason());
  }
}

BusConnection::~BusConnection() = default;

void BusConnection::Send(std::uint16_t destination, const std::vector<std::uint8_t>& frame) {
  errno = 0;
  if (EIBSendGroup(m_handle->connection, destination, static_cast<int>(frame.size()), frame.data()) < 0) {
    throw BusError("lost the connection to knxd at " + m_url + ": " + SystemReason());
  }
}

bool BusConnection::Receive(double timeoutSeconds, BusFrame& frame) {
  if (!WaitForAnswer(timeoutSeconds)) {
    return false;
  }
  std::uint8_t buffer[MaxFrameBytes];
  errno = 0;
  const int length = EIBGetGroup_Src(m_handle->connection, sizeof buffer, buffer, &frame.source, &frame.destination);
  if (length < 0) {
    throw BusError("lost the connection to knxd at " + m_url + ": " + SystemReason());
  }
  frame.bytes.assign(buffer, buffer + length);
  return true;
}

bool BusConnection::WaitForAnswer(double timeoutSeconds) {
  using Clock = std::chrono::steady_clock;
  const Clock::time_point end =
      Clock::now() + std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(timeoutSeconds));
  while (!StopRequested()) {
    errno = 0;
    const int complete = EIB_Poll_Complete(m_handle->connection);
    if (complete < 0) {
      throw BusError("lost the connection to knxd at " + m_url + ": " +
                     (errno != 0 ? SystemReason() : "the daemon closed it"));
    }
    if (complete > 0) {
      return true;
    }
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now()).count();
    if (left <= 0) {
      return false;
    }
    pollfd descriptor{EIB_Poll_FD(m_handle->connection), POLLIN, 0};
    poll(&descriptor, 1, static_cast<int>(std::min<long long>(left, SliceMilliseconds)));
  }
  return false;
}

}  // namespace Knxconv
