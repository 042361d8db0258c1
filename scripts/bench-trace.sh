#!/usr/bin/env bash
# Throughput of `knxconv trace`: a trace of TELEGRAMS telegrams is made from
# the example trace's rows (repeated in order) in OUT_DIR, then decoded once
# as text and once with --json on one core, output to /dev/null. Prints
# telegrams per second and the largest resident set of each run.
#   bench-trace.sh PATH/TO/knxconv OUT_DIR [TELEGRAMS]
set -euo pipefail
knxconv=${1:?usage: bench-trace.sh PATH/TO/knxconv OUT_DIR [TELEGRAMS]}
out=${2:?usage: bench-trace.sh PATH/TO/knxconv OUT_DIR [TELEGRAMS]}
telegrams=${3:-1000000}
root="$(cd "$(dirname "$0")/.." && pwd)"
trace="$out/trace-$telegrams.csv"
mkdir -p "$out"

if [ ! -s "$trace" ]; then
  awk -v total="$telegrams" '
    /^#/ || /^[[:space:]]*$/ { next }
    !header { header = $0; next }
    { rows[n++] = $0 }
    END {
      print header
      for (i = 0; i < total; i++) print rows[i % n]
    }' "$root/examples/telegrams.csv" >"$trace"
fi

pin=()
if command -v taskset >/dev/null; then
  pin=(taskset -c 0)
fi

# One run: "ELAPSED USER SYSTEM MAX_RSS_KB", knxconv's own exit status
# ignored (the example holds telegrams that the library refuses on purpose).
run() {
  local report="$out/trace-time.txt"
  /usr/bin/time -f '%e %U %S %M' -o "$report" "${pin[@]}" "$knxconv" trace "$@" "$trace" >/dev/null 2>&1 || true
  tail -n 1 "$report"
}

# The rate is per second of CPU time (user + system): on a machine shared
# with other work the elapsed time says more about the neighbours.
printf '%-8s %10s %10s %14s %12s\n' "output" "elapsed s" "CPU s" "telegrams/s" "max RSS KB"
for mode in text json; do
  args=()
  [ "$mode" = json ] && args=(--json)
  read -r elapsed user system rss < <(run "${args[@]}")
  cpu=$(awk -v u="$user" -v s="$system" 'BEGIN { printf "%.2f", u + s }')
  rate=$(awk -v n="$telegrams" -v c="$cpu" 'BEGIN { printf "%d", (c > 0 ? n / c : 0) }')
  printf '%-8s %10s %10s %14s %12s\n' "$mode" "$elapsed" "$cpu" "$rate" "$rss"
done
