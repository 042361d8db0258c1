#!/usr/bin/env bash
# clang-tidy (the checks of .clang-tidy) over the project's own translation
# units in the compile database of <build-dir>; fails on any warning.
#   scripts/lint.sh <build-dir> [<file regex>]
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
build="${1:?usage: $0 <build-dir> [<file regex>]}"
filter="${2:-}"
jobs="${LINT_JOBS:-2}"
[ -f "$build/compile_commands.json" ] || { echo "no $build/compile_commands.json: configure $build first" >&2; exit 2; }

# Sources of the project only: not the build tree (GoogleTest built from source).
files="^$root/(Sources|Platform|Tools|Tests|Benchmarks|Fuzz|examples)/.*${filter}"
log="$build/lint.log"
if command -v run-clang-tidy >/dev/null; then
  status=0
  run-clang-tidy -p "$build" -j "$jobs" -quiet "$files" >"$log" 2>&1 || status=$?
else
  status=0
  python3 - "$build/compile_commands.json" "$files" >"$build/lint-files.txt" <<'PY'
import json, re, sys
entries = json.load(open(sys.argv[1]))
print("\n".join(sorted({e["file"] for e in entries if re.search(sys.argv[2], e["file"])})))
PY
  xargs -P "$jobs" -n 1 clang-tidy -p "$build" --quiet <"$build/lint-files.txt" >"$log" 2>&1 || status=$?
fi
# One line per finding, each once (a header's finding repeats per file).
sed 's/\x1b\[[0-9;]*m//g' "$log" | grep -E '^/.*: (warning|error): ' | sort -u >"$build/lint-findings.txt" || true
count=$(wc -l <"$build/lint-findings.txt")
if [ "$status" -ne 0 ] || [ "$count" -ne 0 ]; then
  cat "$build/lint-findings.txt"
  echo "lint: $count findings (full output in $log)" >&2
  exit 1
fi
echo "lint: no findings"
