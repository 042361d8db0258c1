#!/usr/bin/env bash
# knxconv over the example trace under valgrind's memcheck: no error and no
# leak. knxconv itself exits 1 because the trace holds refused telegrams, so
# valgrind's verdict is read from its own summary.
set -euo pipefail
knxconv=${1:?usage: valgrind-trace.sh PATH/TO/knxconv TRACE}
trace=${2:?usage: valgrind-trace.sh PATH/TO/knxconv TRACE}
log=$(mktemp)
trap 'rm -f "$log"' EXIT
set +e
valgrind --error-exitcode=1 --leak-check=full --errors-for-leak-kinds=definite,indirect,possible \
  --log-file="$log" "$knxconv" trace "$trace" >/dev/null
set -e
if grep -q 'ERROR SUMMARY: 0 errors' "$log" && ! grep -qE '(definitely|indirectly|possibly) lost: [1-9]' "$log"; then
  grep -E 'ERROR SUMMARY|in use at exit|total heap usage' "$log"
  echo "valgrind: knxconv trace is clean"
else
  cat "$log"
  echo "valgrind: errors or leaks in knxconv trace"
  exit 1
fi
