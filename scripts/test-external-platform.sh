#!/usr/bin/env bash
# The build option for the real platform libraries, tried with the
# substitutes of <build-dir> posing as them: their header directories and
# built libraries are passed as external. Checks that the substitutes are
# not built, that the converter library links the given libraries, that no
# substitute is installed or packaged, and that a consumer (CMake and
# pkg-config) builds and converts against the installed result.
#   scripts/test-external-platform.sh <build-dir with the substitutes> [<work-dir>]
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
# The SONAME and the runtime package carry the major version.
major="$(sed -n 's/^project(KnxValueConverter VERSION \([0-9]*\)\..*/\1/p' "$root/CMakeLists.txt")"
substitutes="$(cd "${1:?usage: $0 <build-dir> [<work-dir>]}" && pwd)"
work="${2:-$root/build/external}"
jobs="${JOBS:-2}"

fail() { echo "FAILED: $*" >&2; exit 1; }

uloplatform="$substitutes/Platform/UloPlatform/libuloplatform.so"
knxstack="$substitutes/Platform/KnxStack/libknxstack.so"
[ -e "$uloplatform" ] && [ -e "$knxstack" ] || fail "build the substitutes in $substitutes first"

rm -rf "$work"
mkdir -p "$work"
work="$(cd "$work" && pwd)"

echo "== configure with KNXCONV_PLATFORM=external"
cmake -S "$root" -B "$work/build" -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=/usr \
  -DKNXCONV_PLATFORM=external \
  "-DKNXCONV_PLATFORM_INCLUDE_DIRS=$root/Platform/UloPlatform/include;$root/Platform/KnxStack/include" \
  "-DKNXCONV_PLATFORM_LIBRARIES=$uloplatform;$knxstack" >"$work/configure.log" ||
  { cat "$work/configure.log"; fail "configure"; }
grep -q "KNXCONV_BUILD_TESTS needs the substitutes and is off" "$work/configure.log" || fail "the tests are not off"
if cmake --build "$work/build" --target help | grep -qiE 'uloplatform|knxstack'; then
  fail "a substitute is still a target of the build"
fi

echo "== build"
cmake --build "$work/build" -j"$jobs" >"$work/build.log" 2>&1 || { tail -n 30 "$work/build.log"; fail "build"; }
if find "$work/build" -name 'libuloplatform*' -o -name 'libknxstack*' | grep -q .; then
  fail "a substitute was built"
fi
needed="$(readelf -d "$work/build/Sources/Common/libknxvalueconverter.so" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p')"
echo "libknxvalueconverter.so needs:" $needed
grep -qx "libuloplatform.so.$major" <<<"$needed" && grep -qx "libknxstack.so.$major" <<<"$needed" ||
  fail "the converter library does not link the given platform libraries"

echo "== install"
cmake --install "$work/build" --prefix "$work/prefix" >"$work/install.log"
if find "$work/prefix" -iname '*uloplatform*' -o -iname '*knxstack*' -o -name 'KnxValueConverterPlatformTargets*' |
   grep -q .; then
  fail "a substitute was installed"
fi
pc="$(find "$work/prefix" -name knxvalueconverter.pc)"
grep -q "$uloplatform" "$pc" || fail "the pkg-config file lacks the platform"

# At run time the platform libraries are where the device keeps them.
export LD_LIBRARY_PATH="$(dirname "$uloplatform"):$(dirname "$knxstack")${LD_LIBRARY_PATH:+:$LD_LIBRARY_PATH}"
"$root/scripts/test-consumer.sh" --installed "$work/prefix" "$work/consumer"

echo "== packages"
(cd "$work/build" && cpack -B "$work/packages" >"$work/cpack.log" 2>&1) || { cat "$work/cpack.log"; fail "cpack"; }
ls "$work/packages"/*.deb | xargs -n 1 basename
if ls "$work/packages" | grep -q platform; then
  fail "a package of the substitutes was made"
fi
runtime_depends="$(dpkg-deb -f "$work/packages"/libknxvalueconverter"$major"_*.deb Depends)"
echo "libknxvalueconverter$major depends: $runtime_depends"
grep -q platform <<<"$runtime_depends" && fail "the runtime package depends on the substitutes"
echo "== external platform test passed"
