#!/usr/bin/env bash
# The converter library as a server developer uses it: a separate project
# (Tests/Consumer) finds the installed package with CMake, and the same
# program is built with the flags of pkg-config; both convert 21.5 as DPT
# 9.001 to the bus bytes 0C 33 and back. The README's custom-row example is
# built against the package and run, and so is the installed knxconv, with no
# library path set (it must find its library by itself).
#
#   scripts/test-consumer.sh <build-dir> [<work-dir>]
#       installs <build-dir> into <work-dir>/prefix (default build/consumer)
#   scripts/test-consumer.sh --installed <prefix> [<work-dir>]
#       uses what is installed in <prefix> (e.g. /usr, from the Debian packages)
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"

if [ "${1:-}" = "--installed" ]; then
  [ $# -ge 2 ] || { echo "usage: $0 --installed <prefix> [<work-dir>]" >&2; exit 2; }
  prefix="$(cd "$2" && pwd)"
  work="${3:-$root/build/consumer-installed}"
  rm -rf "$work"
  mkdir -p "$work"
else
  [ $# -ge 1 ] || { echo "usage: $0 <build-dir> [<work-dir>] | --installed <prefix> [<work-dir>]" >&2; exit 2; }
  build="$1"
  work="${2:-$root/build/consumer}"
  rm -rf "$work"
  mkdir -p "$work"
  prefix="$(cd "$work" && pwd)/prefix"
  echo "== installing $build into $prefix"
  cmake --install "$build" --prefix "$prefix" >"$work/install.log"
fi
work="$(cd "$work" && pwd)"

# expect_output <what> <expected standard output> <command>...
expect_output() {
  local what="$1" expected="$2" output
  shift 2
  output="$("$@")" || { echo "FAILED: $what exited with status $?" >&2; exit 1; }
  [ "$output" = "$expected" ] || { echo "FAILED: $what printed '$output', expected '$expected'" >&2; exit 1; }
  echo "$what: $output"
}

echo "== CMake: find_package(KnxValueConverter) in $prefix"
cmake -S "$root/Tests/Consumer" -B "$work/cmake" -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_BUILD_TYPE=Release \
  >"$work/cmake-configure.log" || { cat "$work/cmake-configure.log"; exit 1; }
found="$(sed -n 's/^-- KnxValueConverter .* from //p' "$work/cmake-configure.log")"
case "$found" in
  "$prefix"/*) echo "found in $found" ;;
  *) echo "FAILED: the package was found in '$found', not under $prefix" >&2; exit 1 ;;
esac
cmake --build "$work/cmake" >"$work/cmake-build.log" 2>&1 || { cat "$work/cmake-build.log"; exit 1; }
"$work/cmake/consumer"

echo "== pkg-config: knxvalueconverter in $prefix"
pcdir="$(dirname "$(find "$prefix/lib" -path '*/pkgconfig/knxvalueconverter.pc' | head -n 1)")"
[ -f "$pcdir/knxvalueconverter.pc" ] || { echo "FAILED: no knxvalueconverter.pc under $prefix/lib" >&2; exit 1; }
export PKG_CONFIG_PATH="$pcdir${PKG_CONFIG_PATH:+:$PKG_CONFIG_PATH}"
cflags="$(pkg-config --cflags knxvalueconverter)"
libs="$(pkg-config --libs knxvalueconverter)"
echo "cflags: $cflags"
echo "libs: $libs"
mkdir -p "$work/pkgconfig"
# shellcheck disable=SC2086 # the flags are words
"${CXX:-c++}" -std=c++17 -Wall -Wextra -Wpedantic -Werror $cflags "$root/Tests/Consumer/ConsumerMain.cpp" \
  -o "$work/pkgconfig/consumer" $libs
LD_LIBRARY_PATH="$(pkg-config --variable=libdir knxvalueconverter)${LD_LIBRARY_PATH:+:$LD_LIBRARY_PATH}" \
  "$work/pkgconfig/consumer"
echo "== examples/custom-row against $prefix"
cmake -S "$root/examples/custom-row" -B "$work/custom-row" -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_BUILD_TYPE=Release \
  >"$work/custom-row-configure.log" || { cat "$work/custom-row-configure.log"; exit 1; }
cmake --build "$work/custom-row" >"$work/custom-row-build.log" 2>&1 || { cat "$work/custom-row-build.log"; exit 1; }
expect_output "custom-row" "8.003: 1.5 s -> 00 96 -> 1.5 s" "$work/custom-row/custom-row"

knxconv="$prefix/bin/knxconv"
if [ -n "${build:-}" ] || [ -e "$knxconv" ]; then
  echo "== $knxconv"
  expect_output "knxconv encode 9.001 21.5" "0C 33" env -u LD_LIBRARY_PATH "$knxconv" encode 9.001 21.5
fi
echo "== consumer test passed"
