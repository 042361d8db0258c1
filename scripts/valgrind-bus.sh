#!/bin/bash
# knxconv monitor --reconnect under valgrind memcheck through a daemon
# restart: the example trace replayed, the daemon stopped and started again,
# one more telegram, SIGINT. Fails on any memcheck error or leak, a monitor
# that does not reconnect, or an exit status other than 0.
# Usage: scripts/valgrind-bus.sh KNXCONV
set -u
ROOT=$(cd "$(dirname "$0")/.." && pwd)
source "$ROOT/scripts/bus-lib.sh"
bus_begin "$1"

fail() {
  echo "valgrind-bus: $*" >&2
  cat "$BUS_DIR/monitor.err" "$BUS_DIR/valgrind.log" >&2
  exit 1
}

bus_start_knxd || exit 1
valgrind --leak-check=full --errors-for-leak-kinds=definite,indirect,possible --error-exitcode=1 \
  --suppressions="$ROOT/scripts/valgrind-eibclient.supp" --log-file="$BUS_DIR/valgrind.log" \
  "$KNXCONV" monitor --url "$(bus_url)" --reconnect --addresses "$ROOT/examples/group-addresses.xml" \
  >"$BUS_DIR/monitor.out" 2>"$BUS_DIR/monitor.err" &
monitor=$!
BUS_PIDS+=("$monitor")
wait_until 30 grep -qs "connected to knxd" "$BUS_DIR/monitor.err" || fail "monitor did not connect"
"$KNXCONV" replay --url "$(bus_url)" "$ROOT/examples/telegrams.csv" --speed 0 2>/dev/null
telegrams=$(wc -l <"$ROOT/Tests/Tools/knxconv/Bus/replay.expected")
bus_wait_lines "$BUS_DIR/monitor.out" "$telegrams" || fail "the replayed telegrams did not all arrive"
bus_stop_knxd
wait_until 10 grep -qs "reconnecting" "$BUS_DIR/monitor.err" || fail "the stopped daemon was not noticed"
sleep 1
bus_start_knxd || exit 1
wait_until 30 grep -qs "reconnected" "$BUS_DIR/monitor.err" || fail "no reconnection"
"$KNXCONV" send --url "$(bus_url)" 3/0/1 9.001 22.5 >/dev/null
bus_wait_lines "$BUS_DIR/monitor.out" $((telegrams + 1)) || fail "nothing received after the reconnection"
kill -INT "$monitor"
wait_until 30 bus_gone "$monitor" || fail "monitor did not stop on SIGINT"
wait "$monitor"
status=$?
grep -E "ERROR SUMMARY|definitely lost|indirectly lost|possibly lost" "$BUS_DIR/valgrind.log"
grep -v "^\[ERROR\]" "$BUS_DIR/monitor.err"
[[ $status == 0 ]] || fail "monitor under valgrind ended with $status"
echo "valgrind-bus: $((telegrams + 1)) telegrams through a daemon restart, no memcheck error"
