#!/usr/bin/env bash
# Installs those of the named Debian packages that are missing, with apt-get
# (through sudo unless root).
#   scripts/install-packages.sh <package>...
set -euo pipefail
missing=()
for package in "$@"; do
  dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "ok installed" || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0
echo "Installing: ${missing[*]}"
SUDO=""
[ "$(id -u)" = 0 ] || SUDO=sudo
$SUDO apt-get update -qq
DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq "${missing[@]}"
