#!/usr/bin/env bash
# The armhf packages as a cross build uses them: unpacked into a sysroot,
# found from Tests/Consumer with the armhf toolchain file
# (-DCMAKE_FIND_ROOT_PATH=<sysroot>) and through pkg-config
# (PKG_CONFIG_SYSROOT_DIR); both programs run under qemu-arm.
#   scripts/test-consumer-armhf.sh <packages-dir> [<work-dir>]
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
# The SONAME and the runtime package carry the major version.
major="$(sed -n 's/^project(KnxValueConverter VERSION \([0-9]*\)\..*/\1/p' "$root/CMakeLists.txt")"
dir="${1:?usage: $0 <packages-dir> [<work-dir>]}"
work="${2:-$root/build/consumer-armhf}"
triplet=arm-linux-gnueabihf
emulator=(qemu-arm -L /usr/$triplet)

rm -rf "$work"
mkdir -p "$work/sysroot"
work="$(cd "$work" && pwd)"
sysroot="$work/sysroot"
for name in libknxvalueconverter-platform "libknxvalueconverter$major" libknxvalueconverter-dev; do
  deb="$(ls "$dir"/"${name}"_*_armhf.deb | head -n 1)"
  echo "== unpacking ${deb##*/}"
  dpkg-deb -x "$deb" "$sysroot"
done
# What libhowardhinnant-date-dev:armhf would put there (the header is the same).
mkdir -p "$sysroot/usr/include"
cp -r /usr/include/date "$sysroot/usr/include/"

echo "== CMake: find_package(KnxValueConverter) in the sysroot"
cmake -S "$root/Tests/Consumer" -B "$work/cmake" -DCMAKE_BUILD_TYPE=Release \
  -DCMAKE_TOOLCHAIN_FILE="$root/cmake/toolchain-armhf.cmake" -DCMAKE_FIND_ROOT_PATH="$sysroot" \
  >"$work/cmake-configure.log" || { cat "$work/cmake-configure.log"; exit 1; }
found="$(sed -n 's/^-- KnxValueConverter .* from //p' "$work/cmake-configure.log")"
case "$found" in
  "$sysroot"/usr/lib/$triplet/*) echo "found in $found" ;;
  *) echo "FAILED: the package was found in '$found', not in the sysroot" >&2; exit 1 ;;
esac
cmake --build "$work/cmake" >"$work/cmake-build.log" 2>&1 || { cat "$work/cmake-build.log"; exit 1; }
file -b "$work/cmake/consumer" | cut -d, -f1-2
"${emulator[@]}" "$work/cmake/consumer"

echo "== pkg-config: knxvalueconverter in the sysroot"
export PKG_CONFIG_SYSROOT_DIR="$sysroot"
export PKG_CONFIG_LIBDIR="$sysroot/usr/lib/$triplet/pkgconfig"
cflags="$(pkg-config --cflags knxvalueconverter)"
libs="$(pkg-config --libs knxvalueconverter)"
echo "cflags: $cflags"
echo "libs: $libs"
mkdir -p "$work/pkgconfig"
# shellcheck disable=SC2086 # the flags are words
$triplet-g++ -std=c++17 -Wall -Wextra -Wpedantic -Werror -isystem "$sysroot/usr/include" $cflags \
  "$root/Tests/Consumer/ConsumerMain.cpp" -o "$work/pkgconfig/consumer" $libs
LD_LIBRARY_PATH="$sysroot/usr/lib/$triplet" "${emulator[@]}" "$work/pkgconfig/consumer"
echo "== armhf consumer test passed"
