#!/usr/bin/env bash
# Instructions per conversion for every standard row in both directions,
# through the facade and through the hand-written floor, counted by callgrind
# in one run of the InstructionCount program: (Ir of 2 * COUNT conversions -
# Ir of COUNT) / COUNT for each.
#   count-instructions.sh PROGRAM                 print the table
#   count-instructions.sh PROGRAM --write FILE    print it and store the facade's counts
#   count-instructions.sh PROGRAM --check FILE    fail when a count is more than 5 % above FILE's
set -euo pipefail
program=${1:?usage: count-instructions.sh PATH/TO/InstructionCount [--write|--check FILE]}
mode=${2:-}
baseline=${3:-}
count=1000
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

if ! valgrind --tool=callgrind --callgrind-out-file="$scratch/cg" "$program" "$count" >"$scratch/log" 2>&1; then
  echo "InstructionCount failed: the facade and the floor disagree or the run broke" >&2
  grep -v '^==' "$scratch/log" >&2 || true
  exit 1
fi

# "direction row side runs instructions", one line per dump.
for dump in $(ls -v "$scratch"/cg.*); do
  awk '/^desc: Trigger: Client Request: / { sub(/^desc: Trigger: Client Request: /, ""); label = $0 }
       /^(summary|totals):/ && !done { total = $2; done = 1 }
       END { if (label != "") print label, total }' "$dump"
done >"$scratch/dumps"

# The budget a row's facade may spend above its floor.
awk -v count="$count" '
  function budget(row, main) {
    main = row; sub(/\..*/, "", main)
    if (main == 16) return 300
    if (main == 1 || main == 5 || main == 7 || main == 12 || main == 13 || main == 14 || main == 232) return 100
    return 40
  }
  { cost[$1 " " $2 " " $3] += ($4 == count ? -$5 : $5); if (!($2 in seen)) { seen[$2] = 1; sorted[++n] = $2 } }
  END {
    printf "%-8s %8s %8s %6s %8s %8s %6s %7s\n", "row", "to", "floor", "diff", "from", "floor", "diff", "budget"
    for (i = 1; i <= n; i++) {
      row = sorted[i]
      tf = int(cost["to " row " facade"] / count); tl = int(cost["to " row " floor"] / count)
      ff = int(cost["from " row " facade"] / count); fl = int(cost["from " row " floor"] / count)
      mark = (tf - tl > budget(row) || ff - fl > budget(row)) ? " over" : ""
      printf "%-8s %8d %8d %6d %8d %8d %6d %7d%s\n", row, tf, tl, tf - tl, ff, fl, ff - fl, budget(row), mark
    }
  }' "$scratch/dumps" | tee "$scratch/table"

# The facade's counts, one "direction row instructions" line each.
awk 'NR > 1 { print "to", $1, $2; print "from", $1, $5 }' "$scratch/table" >"$scratch/facade"

case "$mode" in
  --write)
    cp "$scratch/facade" "${baseline:?--write needs a file}"
    echo "baseline written to $baseline"
    ;;
  --check)
    awk 'NR == FNR { base[$1 " " $2] = $3; next }
         { key = $1 " " $2
           if (!(key in base)) { printf "%s: no baseline\n", key; bad = 1; next }
           if ($3 > base[key] * 1.05) { printf "%s: %d instructions, baseline %d (+5 %% allowed)\n", key, $3, base[key]; bad = 1 } }
         END { exit bad }' "${baseline:?--check needs a file}" "$scratch/facade" ||
      { echo "instruction counts above the baseline in $baseline" >&2; exit 1; }
    echo "instruction counts within 5 % of $baseline"
    ;;
  "") ;;
  *) echo "unknown option $mode" >&2; exit 2 ;;
esac
