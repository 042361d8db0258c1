#!/usr/bin/env bash
# Instructions per conversion for 9.001 and 19.001 in both directions,
# counted by callgrind: (Ir of 2000 conversions - Ir of 1000) / 1000.
set -euo pipefail
program=${1:?usage: count-instructions.sh PATH/TO/InstructionCount}
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

total_instructions() {
  valgrind --tool=callgrind --callgrind-out-file="$scratch/out" "$program" "$@" >/dev/null 2>&1
  grep -E '^(summary|totals):' "$scratch/out" | head -n 1 | awk '{print $2}'
}

printf '%-22s %s\n' "conversion" "instructions"
for dpt in 9.001 19.001; do
  for direction in to from; do
    low=$(total_instructions "$direction" "$dpt" 1000)
    high=$(total_instructions "$direction" "$dpt" 2000)
    name="ToKnxValue/$dpt"
    [ "$direction" = from ] && name="FromKnxValue/$dpt"
    printf '%-22s %d\n' "$name" $(( (high - low) / 1000 ))
  done
done
