#!/bin/bash
# make demo-bus: a KNX daemon on a dummy bus (private socket in a temporary
# directory), knxconv monitor listening with the example group addresses,
# the example trace replayed into it at full speed, the monitor's output
# shown, and everything stopped again.
# Usage: scripts/demo-bus.sh KNXCONV
set -u
ROOT=$(cd "$(dirname "$0")/.." && pwd)
source "$ROOT/scripts/bus-lib.sh"
bus_begin "$1"

bus_start_knxd || exit 1
bus_start_monitor --addresses "$ROOT/examples/group-addresses.xml" || exit 1
echo "\$ knxconv replay --url $(bus_url) examples/telegrams.csv --speed 0"
"$KNXCONV" replay --url "$(bus_url)" "$ROOT/examples/telegrams.csv" --speed 0
sent=$(grep -v '^#' "$ROOT/examples/telegrams.csv" | tail -n +2 | grep -c -v -E ',[0-9]+/([89]|1[0-9])/|0G')
bus_wait_lines "$BUS_DIR/monitor.out" "$sent"
bus_stop "$BUS_MONITOR"
echo "\$ knxconv monitor --url $(bus_url) --addresses examples/group-addresses.xml"
cat "$BUS_DIR/monitor.err" "$BUS_DIR/monitor.out"
