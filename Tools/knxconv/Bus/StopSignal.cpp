#include "StopSignal.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <thread>

namespace Knxconv {

namespace {

volatile std::sig_atomic_t stopRequested = 0;

extern "C" void RequestStop(int /*signal*/) {
  stopRequested = 1;
}

}  // namespace

void InstallStopHandlers() {
  struct sigaction action {};
  action.sa_handler = RequestStop;
  sigemptyset(&action.sa_mask);
  // No SA_RESTART: a blocking call returns, so the loop sees the flag.
  action.sa_flags = 0;
  sigaction(SIGINT, &action, nullptr);
  sigaction(SIGTERM, &action, nullptr);
  // A vanished daemon must be an error of the write, not the end of us.
  std::signal(SIGPIPE, SIG_IGN);
}

bool StopRequested() {
  return stopRequested != 0;
}

bool SleepUnlessStopped(double seconds) {
  using Clock = std::chrono::steady_clock;
  const Clock::time_point end = Clock::now() + std::chrono::duration_cast<Clock::duration>(
                                                   std::chrono::duration<double>(seconds > 0 ? seconds : 0));
  constexpr std::chrono::milliseconds Slice(50);
  while (!StopRequested()) {
    const Clock::time_point now = Clock::now();
    if (now >= end) {
      return true;
    }
    std::this_thread::sleep_for(std::min<Clock::duration>(Slice, end - now));
  }
  return false;
}

}  // namespace Knxconv
