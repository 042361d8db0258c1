# Shell helpers for a private KNX daemon on a dummy bus: no TCP listener, no
# multicast, only a Unix socket in a private directory. Sourced by
# scripts/demo-bus.sh and the bus tests. Every wait is bounded, and
# bus_cleanup (run on exit) ends every process started here.
#
# Needs: KNXCONV (the program), BUS_DIR (a private directory); bus_begin
# sets both for a script of its own.

BUS_PIDS=()

# bus_begin KNXCONV: a temporary BUS_DIR, removed on exit after bus_cleanup.
bus_begin() {
  KNXCONV=$(realpath "$1")
  BUS_DIR=$(mktemp -d)
  trap 'bus_cleanup; rm -rf "$BUS_DIR"' EXIT
}

bus_url() { echo "local:$BUS_DIR/knx"; }

# wait_until SECONDS COMMAND...: runs COMMAND every 0.05 s until it succeeds.
wait_until() {
  local tries=$(( $1 * 20 ))
  shift
  while ! "$@"; do
    tries=$(( tries - 1 ))
    if (( tries <= 0 )); then
      return 1
    fi
    sleep 0.05
  done
}

bus_start_knxd() {
  rm -f "$BUS_DIR/knx"
  knxd -e 0.0.1 -E 0.0.2:8 -u "$BUS_DIR/knx" -b dummy: >>"$BUS_DIR/knxd.log" 2>&1 &
  BUS_KNXD=$!
  BUS_PIDS+=("$BUS_KNXD")
  wait_until 10 test -S "$BUS_DIR/knx" || { echo "knxd did not start:" >&2; cat "$BUS_DIR/knxd.log" >&2; return 1; }
}

# bus_stop PID: TERM, then KILL after 5 s; returns the process's status.
bus_stop() {
  local pid=$1
  kill -TERM "$pid" 2>/dev/null
  if ! wait_until 5 bus_gone "$pid"; then
    kill -KILL "$pid" 2>/dev/null
  fi
  wait "$pid" 2>/dev/null
}

bus_gone() { ! kill -0 "$1" 2>/dev/null; }

bus_stop_knxd() { bus_stop "$BUS_KNXD"; }

# bus_start_monitor ARGS...: knxconv monitor in the background, its output in
# $BUS_DIR/monitor.out and .err; returns once it is connected.
bus_start_monitor() {
  : >"$BUS_DIR/monitor.out"
  : >"$BUS_DIR/monitor.err"
  "$KNXCONV" monitor --url "$(bus_url)" "$@" >"$BUS_DIR/monitor.out" 2>"$BUS_DIR/monitor.err" &
  BUS_MONITOR=$!
  BUS_PIDS+=("$BUS_MONITOR")
  wait_until 10 grep -q "connected to knxd" "$BUS_DIR/monitor.err" ||
    { echo "monitor did not connect:" >&2; cat "$BUS_DIR/monitor.err" >&2; return 1; }
}

# bus_wait_lines FILE N: until FILE has N lines (10 s at most).
bus_wait_lines() {
  wait_until 10 bus_has_lines "$1" "$2"
}

bus_has_lines() { (( $(wc -l <"$1") >= $2 )); }

bus_cleanup() {
  local pid
  for pid in "${BUS_PIDS[@]}"; do
    if kill -0 "$pid" 2>/dev/null; then
      bus_stop "$pid"
    fi
  done
}
