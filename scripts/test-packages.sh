#!/usr/bin/env bash
# Installs the amd64 Debian packages of <packages-dir> (make package) on
# this machine, runs the consumer test against /usr and knxconv, and
# removes the packages again, also when a check fails. Needs root (or sudo).
#   scripts/test-packages.sh <packages-dir>
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
# The SONAME and the runtime package carry the major version.
major="$(sed -n 's/^project(KnxValueConverter VERSION \([0-9]*\)\..*/\1/p' "$root/CMakeLists.txt")"
dir="${1:?usage: $0 <packages-dir>}"
arch="$(dpkg --print-architecture)"
SUDO=""
[ "$(id -u)" = 0 ] || SUDO=sudo

names=(libknxvalueconverter-platform "libknxvalueconverter$major" libknxvalueconverter-dev knxconv)
debs=()
for name in "${names[@]}"; do
  deb="$(ls "$dir"/"${name}"_*_"$arch".deb 2>/dev/null | head -n 1)"
  [ -n "$deb" ] || { echo "FAILED: no ${name} package for $arch in $dir" >&2; exit 1; }
  debs+=("$deb")
  if dpkg-query -W -f='${Status}' "$name" 2>/dev/null | grep -q "ok installed"; then
    echo "FAILED: $name is already installed; remove it first (dpkg -r $name)" >&2
    exit 1
  fi
done
for file in /usr/lib/*/libknxvalueconverter.so* /usr/include/knxvalueconverter; do
  [ -e "$file" ] && { echo "FAILED: $file exists outside the packages" >&2; exit 1; }
done

remove() {
  echo "== removing the packages"
  $SUDO dpkg --purge knxconv libknxvalueconverter-dev "libknxvalueconverter$major" libknxvalueconverter-platform >/dev/null
}
trap remove EXIT

echo "== installing ${debs[*]##*/}"
$SUDO dpkg -i "${debs[@]}" >/dev/null
dpkg-query -W "${names[@]}"

"$root/scripts/test-consumer.sh" --installed /usr "$root/build/consumer-packages"

echo "== knxconv from /usr/bin"
bytes="$(/usr/bin/knxconv encode 9.001 21.5)"
[ "$bytes" = "0C 33" ] || { echo "FAILED: knxconv encode 9.001 21.5 gave '$bytes'" >&2; exit 1; }
value="$(/usr/bin/knxconv decode 9.001 "0C 33")"
[ "$value" = "21.5" ] || { echo "FAILED: knxconv decode 9.001 '0C 33' gave '$value'" >&2; exit 1; }
echo "knxconv: 21.5 <-> 0C 33"
echo "== package test passed"
