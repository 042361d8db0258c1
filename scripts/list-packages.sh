#!/usr/bin/env bash
# Name, architecture, dependencies and files of each Debian package in <dir>.
set -euo pipefail
dir="${1:?usage: $0 <packages-dir>}"
for deb in "$dir"/*.deb; do
  echo "== ${deb##*/}"
  dpkg-deb -f "$deb" Package Version Architecture Depends | sed 's/^/  /'
  dpkg-deb -c "$deb" | awk '$1 !~ /^d/ { sub(/^\./, "", $6); line = "    " $6; if (NF > 6) line = line " " $7 " " $8; print line }'
done
