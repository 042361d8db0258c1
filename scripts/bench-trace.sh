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

# One run: "SECONDS MAX_RSS_KB", knxconv's own exit status ignored (the
# example holds telegrams that the library refuses on purpose).
run() {
  local report="$out/trace-time.txt"
  /usr/bin/time -f '%e %M' -o "$report" "${pin[@]}" "$knxconv" trace "$@" "$trace" >/dev/null 2>&1 || true
  tail -n 1 "$report"
}

printf '%-8s %12s %14s %12s\n' "output" "seconds" "telegrams/s" "max RSS KB"
for mode in text json; do
  args=()
  [ "$mode" = json ] && args=(--json)
  read -r seconds rss < <(run "${args[@]}")
  rate=$(awk -v n="$telegrams" -v s="$seconds" 'BEGIN { printf "%d", (s > 0 ? n / s : 0) }')
  printf '%-8s %12s %14s %12s\n' "$mode" "$seconds" "$rate" "$rss"
done
