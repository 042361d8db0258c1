#!/bin/bash
# The bus commands against a real KNX daemon on a dummy bus, with the
# daemon's own knxtool as the other side. Each case starts its own daemon on
# a Unix socket in a private directory (no TCP, no multicast) and ends
# everything it started.
# Usage: bus-test.sh KNXCONV WORK_DIR CASE
set -u
KNXCONV=$1
BUS_DIR=$2
CASE=$3
HERE=$(cd "$(dirname "$0")" && pwd)
ROOT=$(cd "$HERE/../../../.." && pwd)
SAMPLES=$HERE/../Addresses
rm -rf "$BUS_DIR"
mkdir -p "$BUS_DIR"
source "$ROOT/scripts/bus-lib.sh"
trap 'bus_cleanup' EXIT

fail() {
  echo "FAIL: $*" >&2
  exit 1
}

# Time of arrival and source address vary; the rest of a line is compared.
normalise() {
  sed -E -e 's/^[0-9]{2}:[0-9]{2}:[0-9]{2}\.[0-9]{3}  [0-9]+\.[0-9]+\.[0-9]+ +-> //' \
    -e 's/"time":"[0-9]{2}:[0-9]{2}:[0-9]{2}\.[0-9]{3}","source":"[0-9]+\.[0-9]+\.[0-9]+"/"time":T,"source":S/' "$@"
}

# expect_same NAME ACTUAL_FILE: the expected lines on standard input.
expect_same() {
  if ! diff -u - "$2" >"$BUS_DIR/$1.diff"; then
    cat "$BUS_DIR/$1.diff" >&2
    fail "$1 differs"
  fi
}

url() { bus_url; }
tool() { knxtool "$1" "$(url)" "${@:2}" >/dev/null; }

# monitor_sees N: the monitor has shown N telegrams, normalised in $BUS_DIR/seen.
monitor_sees() {
  bus_wait_lines "$BUS_DIR/monitor.out" "$1" || { cat "$BUS_DIR/monitor.out" >&2; fail "monitor showed too few lines"; }
  normalise "$BUS_DIR/monitor.out" >"$BUS_DIR/seen"
}

stop_monitor_cleanly() {
  local signal=${1:-TERM}
  kill -"$signal" "$BUS_MONITOR"
  wait_until 5 bus_gone "$BUS_MONITOR" || fail "monitor did not stop on SIG$signal"
  wait "$BUS_MONITOR"
  local status=$?
  [[ $status == 0 ]] || fail "monitor ended with $status on SIG$signal"
}

# The writes every addresses-file case sends.
write_kitchen() {
  tool groupwrite 1/2/3 0c 33
  tool groupswrite 1/2/4 1
  tool groupwrite 1/2/5 cc
  tool groupwrite 1/2/6 05
  tool groupswrite 2/0/1 0
  tool groupwrite 2/0/2 86 c0
}

case_monitor_dpt_option() {
  bus_start_knxd && bus_start_monitor --dpt 1/2/3=DPT_Value_Temp --dpt 1/2/4=1.001 --dpt 1/2/5=DPST-5-1 --dpt 1/2/7=DPT-2 || exit 1
  tool groupwrite 1/2/3 0c 33
  tool groupswrite 1/2/4 1
  tool groupwrite 1/2/5 cc
  tool groupswrite 1/2/7 3
  tool groupwrite 1/2/9 12 34
  tool groupread 1/2/3
  tool groupwrite 1/2/3 0c
  tool groupswrite 1/2/9 2a
  monitor_sees 8
  stop_monitor_cleanly INT
  expect_same monitor "$BUS_DIR/seen" <<'LINES'
1/2/3      write     9.001    [0C 33]  21.5 °C
1/2/4      write     1.001    [01]  on
1/2/5      write     5.001    [CC]  80 %
1/2/7      write     2.000    [03]  control, on
1/2/9      write     raw      [12 34]
1/2/3      read      9.001    []
1/2/3      write     9.001    [0C]  error: the payload 0C has 1 byte, DPT 9.001 needs 2 bytes
1/2/9      write     raw      [2A]
LINES
}

# monitor_with_file FILE NAME_OF_2_0_1
monitor_with_file() {
  bus_start_knxd && bus_start_monitor --addresses "$1" || exit 1
  write_kitchen
  monitor_sees 6
  stop_monitor_cleanly
  expect_same monitor "$BUS_DIR/seen" <<LINES
1/2/3      write     9.001    [0C 33]  21.5 °C  (Kitchen temperature)
1/2/4      write     1.001    [01]  on  (Kitchen light)
1/2/5      write     5.000    [CC]  204  (Kitchen dimmer)
1/2/6      write     raw      [05]  (Kitchen scene)
2/0/1      write     1.005    [00]  no alarm  ($2)
2/0/2      write     9.001    [86 C0]  -3.2 °C  (Außentemperatur)
LINES
}

case_monitor_xml() { monitor_with_file "$SAMPLES/nested.xml" "Wind & rain"; }
case_monitor_csv() { monitor_with_file "$SAMPLES/one-column.csv" 'Wind "and" rain'; }
case_monitor_csv_three_levels() { monitor_with_file "$SAMPLES/three-level-semicolon.csv" 'Wind "and" rain'; }

case_monitor_dpt_before_file() {
  bus_start_knxd && bus_start_monitor --addresses "$SAMPLES/nested.xml" --dpt 1/2/3=7.001 --json || exit 1
  tool groupwrite 1/2/3 0c 33
  tool groupread 2/0/2
  tool groupwrite 1/2/8 0c 33
  monitor_sees 3
  stop_monitor_cleanly
  expect_same monitor "$BUS_DIR/seen" <<'LINES'
{"time":T,"source":S,"destination":"1/2/3","name":"Kitchen temperature","service":"write","dpt":"7.001","payload":"0C 33","type":"IVT_UINT16","subtype":"IVST_NONE","value":3123,"unit":"pulses","dptName":"DPT_Value_2_Ucount"}
{"time":T,"source":S,"destination":"2/0/2","name":"Außentemperatur","service":"read","dpt":"9.001","payload":""}
{"time":T,"source":S,"destination":"1/2/8","service":"write","dpt":null,"payload":"0C 33"}
LINES
}

case_monitor_bad_addresses() {
  bus_start_knxd || exit 1
  "$KNXCONV" monitor --url "$(url)" --addresses "$SAMPLES/bad-csv-fields.csv" >"$BUS_DIR/out" 2>"$BUS_DIR/err"
  [[ $? == 2 ]] || fail "a malformed addresses file is not exit 2"
  expect_same stderr "$BUS_DIR/err" <<LINES
knxconv: $SAMPLES/bad-csv-fields.csv, line 3: 2 fields instead of 3
LINES
  [[ ! -s $BUS_DIR/out ]] || fail "output despite the malformed file"
}

# listen: knxtool groupsocketlisten in the background, line-buffered, once
# it is seen to receive (probe telegrams to 31/7/255, filtered out later).
start_listener() {
  stdbuf -oL knxtool groupsocketlisten "$(url)" >"$BUS_DIR/listen.out" 2>&1 &
  BUS_PIDS+=("$!")
  wait_until 5 probe || fail "groupsocketlisten does not receive"
}

probe() {
  tool groupwrite 31/7/255 00
  grep -q "31/7/255" "$BUS_DIR/listen.out"
}

listened() {
  grep -v "31/7/255" "$BUS_DIR/listen.out" | sed -E -e 's/from [0-9]+\.[0-9]+\.[0-9]+ /from S /' -e 's/ +$//' >"$BUS_DIR/heard"
}

case_send() {
  bus_start_knxd && start_listener || exit 1
  "$KNXCONV" send --url "$(url)" 1/2/3 9.001 21.5 >"$BUS_DIR/out" || fail "send 9.001"
  "$KNXCONV" send --url "$(url)" 1/2/4 DPST-1-1 true >>"$BUS_DIR/out" || fail "send 1.001"
  "$KNXCONV" send --url "$(url)" 1/2/5 5.001 50 >>"$BUS_DIR/out" || fail "send 5.001"
  "$KNXCONV" send --url "$(url)" 1/2/6 3.007 -25 >>"$BUS_DIR/out" || fail "send 3.007"
  "$KNXCONV" send --url "$(url)" 2563 16.001 "Grüße" >>"$BUS_DIR/out" || fail "send 16.001"
  wait_until 5 bus_has_lines "$BUS_DIR/listen.out" 6 || fail "groupsocketlisten heard too little"
  listened
  expect_same heard "$BUS_DIR/heard" <<'LINES'
Write from S to 1/2/3: 0C 33
Write from S to 1/2/4: 01
Write from S to 1/2/5: 7F
Write from S to 1/2/6: 03
Write from S to 1/2/3: 47 72 FC DF 65 00 00 00 00 00 00 00 00 00
LINES
  expect_same printed "$BUS_DIR/out" <<'LINES'
0C 33
01
7F
03
47 72 FC DF 65 00 00 00 00 00 00 00 00 00
LINES
}

case_send_refused() {
  bus_start_knxd && start_listener || exit 1
  "$KNXCONV" send --url "$(url)" 1/2/3 99.001 5 >"$BUS_DIR/out" 2>"$BUS_DIR/err"
  [[ $? == 1 ]] || fail "a refused value is not exit 1"
  "$KNXCONV" send --url "$(url)" 1/9/3 9.001 5 2>>"$BUS_DIR/err"
  [[ $? == 2 ]] || fail "a bad group address is not exit 2"
  tool groupwrite 1/2/7 01
  wait_until 5 grep -q "1/2/7" "$BUS_DIR/listen.out" || fail "the last write was not heard"
  listened
  expect_same heard "$BUS_DIR/heard" <<'LINES'
Write from S to 1/2/7: 01
LINES
  grep -q "No Entry found for DPT = 99.1" "$BUS_DIR/err" || fail "no reason for the refusal"
  grep -q "not a group address: '1/9/3'" "$BUS_DIR/err" || fail "no reason for the bad address"
}

# answer_until_done PID APPLET ARGS...: answers with knxtool until PID ends
# (5 s at most), since a read only takes answers after its request.
answer_until_done() {
  local pid=$1 tries=25
  shift
  while kill -0 "$pid" 2>/dev/null && (( tries-- > 0 )); do
    tool "$@"
    sleep 0.2
  done
}

case_read() {
  bus_start_knxd || exit 1
  "$KNXCONV" read --url "$(url)" 1/2/4 1.001 --timeout 10 >"$BUS_DIR/out" 2>"$BUS_DIR/err" &
  local reader=$!
  BUS_PIDS+=("$reader")
  answer_until_done "$reader" groupsresponse 1/2/4 1
  wait "$reader" || fail "read answered by groupsresponse: exit $?"
  "$KNXCONV" read --url "$(url)" 1/2/3 9.001 --addresses "$SAMPLES/nested.xml" --timeout 10 >>"$BUS_DIR/out" &
  reader=$!
  BUS_PIDS+=("$reader")
  answer_until_done "$reader" groupwrite 1/2/3 0c 33
  wait "$reader" || fail "read answered by groupwrite: exit $?"
  normalise "$BUS_DIR/out" >"$BUS_DIR/seen"
  expect_same read "$BUS_DIR/seen" <<'LINES'
1/2/4      response  1.001    [01]  on
1/2/3      write     9.001    [0C 33]  21.5 °C  (Kitchen temperature)
LINES
}

case_read_timeout() {
  bus_start_knxd || exit 1
  "$KNXCONV" read --url "$(url)" 1/2/7 1.001 --timeout 0.5 >"$BUS_DIR/out" 2>"$BUS_DIR/err"
  [[ $? == 1 ]] || fail "a read without answer is not exit 1"
  expect_same stderr "$BUS_DIR/err" <<'LINES'
knxconv: no answer from 1/2/7 within 0.5 s
LINES
}

case_reconnect() {
  bus_start_knxd && bus_start_monitor --reconnect --dpt 1/2/3=9.001 || exit 1
  tool groupwrite 1/2/3 0c 33
  monitor_sees 1
  bus_stop_knxd
  wait_until 10 grep -q "reconnecting" "$BUS_DIR/monitor.err" || fail "the lost daemon was not noticed"
  sleep 1
  bus_start_knxd || exit 1
  wait_until 10 grep -q "reconnected" "$BUS_DIR/monitor.err" || fail "no reconnection"
  tool groupwrite 1/2/3 0c 1a
  monitor_sees 2
  stop_monitor_cleanly
  expect_same monitor "$BUS_DIR/seen" <<'LINES'
1/2/3      write     9.001    [0C 33]  21.5 °C
1/2/3      write     9.001    [0C 1A]  21 °C
LINES
  sed -E 's/(lost the connection to knxd at [^:]*:[^:]*): .*; reconnecting$/\1: REASON; reconnecting/' \
    "$BUS_DIR/monitor.err" >"$BUS_DIR/err"
  expect_same stderr "$BUS_DIR/err" <<LINES
knxconv: connected to knxd at $(url)
knxconv: lost the connection to knxd at $(url): REASON; reconnecting
knxconv: reconnected to knxd at $(url)
LINES
}

case_daemon_dies() {
  bus_start_knxd && bus_start_monitor || exit 1
  bus_stop_knxd
  wait_until 10 bus_gone "$BUS_MONITOR" || fail "the monitor outlived its daemon"
  wait "$BUS_MONITOR"
  [[ $? == 2 ]] || fail "a dying daemon is not exit 2"
  [[ $(wc -l <"$BUS_DIR/monitor.err") == 2 ]] || fail "not one line for the dying daemon"
  grep -q "^knxconv: lost the connection to knxd at $(url): " "$BUS_DIR/monitor.err" || fail "no reason given"
}

case_absent_daemon() {
  local absent="local:$BUS_DIR/absent"
  local args
  for args in "monitor" "send 1/2/3 9.001 21.5" "read 1/2/3 9.001" "replay $ROOT/examples/telegrams.csv"; do
    # shellcheck disable=SC2086
    timeout 10 "$KNXCONV" $args --url "$absent" >"$BUS_DIR/out" 2>"$BUS_DIR/err"
    [[ $? == 2 ]] || fail "$args without a daemon is not exit 2"
    expect_same "stderr" "$BUS_DIR/err" <<LINES
knxconv: cannot connect to knxd at $absent: No such file or directory
LINES
  done
}

case_replay() {
  bus_start_knxd && bus_start_monitor --addresses "$ROOT/examples/group-addresses.csv" || exit 1
  "$KNXCONV" replay --url "$(url)" "$ROOT/examples/telegrams.csv" --speed 0 2>"$BUS_DIR/err"
  [[ $? == 1 ]] || fail "the example's malformed line is not exit 1"
  monitor_sees "$(wc -l <"$HERE/replay.expected")"
  stop_monitor_cleanly
  expect_same monitor "$BUS_DIR/seen" <"$HERE/replay.expected"
  expect_same stderr "$BUS_DIR/err" <<'LINES'
knxconv: line 93: malformed hex payload '0G 33': 'G' is not a hex digit
LINES
}

case_replay_timing() {
  bus_start_knxd && bus_start_monitor --dpt 1/0/1=1.001 || exit 1
  printf 'time,source,destination,dpt,payload\n08:00:00.000,1.1.1,1/0/1,1.001,01\n08:00:00.600,1.1.1,1/0/1,1.001,00\n08:00:01.200,1.1.1,1/0/1,1.001,01\n' >"$BUS_DIR/trace.csv"
  local start end
  start=$(date +%s%N)
  "$KNXCONV" replay --url "$(url)" "$BUS_DIR/trace.csv" --speed 2 || fail "replay"
  end=$(date +%s%N)
  (( (end - start) / 1000000 >= 550 )) || fail "three telegrams 1.2 s apart at speed 2 took $(( (end - start) / 1000000 )) ms"
  monitor_sees 3
  stop_monitor_cleanly
  expect_same monitor "$BUS_DIR/seen" <<'LINES'
1/0/1      write     1.001    [01]  on
1/0/1      write     1.001    [00]  off
1/0/1      write     1.001    [01]  on
LINES
}

"case_$CASE"
echo "PASS: $CASE"
