#!/usr/bin/env bash
# Name, architecture, dependencies and files of each Debian package in <dir>.
# Fails if a packaged program or library carries an RPATH: installed into
# /usr, they find their libraries through the loader's own search path.
set -euo pipefail
dir="${1:?usage: $0 <packages-dir>}"
unpacked="$(mktemp -d)"
trap 'rm -rf "$unpacked"' EXIT
status=0
for deb in "$dir"/*.deb; do
  dpkg-deb -x "$deb" "$unpacked/${deb##*/}"
  while IFS= read -r -d '' file; do
    if readelf -d "$file" 2>/dev/null | grep -qE '\((RPATH|RUNPATH)\)'; then
      echo "FAILED: ${deb##*/} ${file#"$unpacked/${deb##*/}"} has an RPATH" >&2
      status=1
    fi
  done < <(find "$unpacked/${deb##*/}" -type f -print0)
done
for deb in "$dir"/*.deb; do
  echo "== ${deb##*/}"
  dpkg-deb -f "$deb" Package Version Architecture Depends | sed 's/^/  /'
  dpkg-deb -c "$deb" | awk '$1 !~ /^d/ { sub(/^\./, "", $6); line = "    " $6; if (NF > 6) line = line " " $7 " " $8; print line }'
done
exit "$status"
