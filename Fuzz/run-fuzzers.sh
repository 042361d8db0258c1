#!/usr/bin/env bash
# Runs each fuzz target for FUZZ_SECONDS on its committed seed corpus (new
# inputs go to a scratch corpus in the build tree). Fails on any finding.
set -euo pipefail
build=${1:?usage: run-fuzzers.sh BUILD_DIR [SECONDS]}
seconds=${2:-${FUZZ_SECONDS:-60}}
here=$(cd "$(dirname "$0")" && pwd)
status=0
for target in FromKnxValueFuzz ToKnxValueFuzz GroupValueFuzz \
    KnxconvValueTextFuzz KnxconvDptTextFuzz KnxconvHexTextFuzz KnxconvTraceReaderFuzz; do
  work="$build/Fuzz/work/$target"
  artifacts="$build/Fuzz/artifacts/$target/"
  mkdir -p "$work" "$artifacts"
  echo "== $target for ${seconds}s"
  if ! "$build/Fuzz/$target" "$work" "$here/corpus/$target" -max_total_time="$seconds" \
      -artifact_prefix="$artifacts" -print_final_stats=1 2> "$build/Fuzz/$target.log"; then
    tail -n 60 "$build/Fuzz/$target.log"
    echo "FAILED: $target (inputs in $artifacts)"
    status=1
  else
    grep -E '^(#[0-9]+.*DONE|stat::number_of_executed_units)' "$build/Fuzz/$target.log" || true
  fi
done
exit $status
