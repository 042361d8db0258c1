#pragma once

namespace Knxconv {

// SIGINT and SIGTERM ask the bus commands to stop: the handler only sets a
// flag, which their bounded waits look at.
void InstallStopHandlers();
bool StopRequested();

// Sleeps up to the given time, in slices, returning early (false) when a
// stop was asked for.
bool SleepUnlessStopped(double seconds);

}  // namespace Knxconv
