#!/usr/bin/env bash
# The converter library (Sources/Common) may include of the platform
# libraries only their umbrella headers, UloPlatform.h and KnxStack.h: the
# real platform libraries promise nothing else. Lists every platform header
# that the library's sources include and fails on any other.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
cd "$root"

allowed=" UloPlatform.h KnxStack.h "
# Names of the headers of the platform directories, public and private.
platform_headers=" $(find Platform -name '*.h' -printf '%f ' | tr -s ' ') "
own_headers=" $(find Sources/Common -name '*.h' -printf '%f ' | tr -s ' ') "

status=0
declare -A used=()
while IFS= read -r -d '' source; do
  while IFS= read -r line; do
    header="$(sed -E 's/^[[:space:]]*#[[:space:]]*include[[:space:]]*[<"]([^>"]+)[>"].*/\1/' <<<"$line")"
    name="${header##*/}"
    if [[ "$header" == *Platform/* || "$header" == ../* ]] ||
       { [[ "$platform_headers" == *" $name "* ]] && [[ "$own_headers" != *" $name "* ]]; }; then
      used["$header"]+=" ${source#Sources/Common/}"
      if [[ "$allowed" != *" $header "* ]]; then
        echo "FAILED: $source includes $header; the converter library may include only UloPlatform.h and KnxStack.h of the platform libraries" >&2
        status=1
      fi
    fi
  done < <(grep -E '^[[:space:]]*#[[:space:]]*include' "$source" || true)
done < <(find Sources/Common -type f \( -name '*.h' -o -name '*.cpp' \) -print0 | sort -z)

echo "Platform headers included by the converter library (Sources/Common):"
for header in $(printf '%s\n' "${!used[@]}" | sort); do
  count=$(wc -w <<<"${used[$header]}")
  echo "  $header ($count files):${used[$header]}"
done
[ "$status" -eq 0 ] && echo "check-includes: only the umbrella headers are used"
exit "$status"
