#!/usr/bin/env bash
# Every tracked C++ file as clang-format (the repository's .clang-format)
# would write it; lists the files that differ and fails if there are any.
# To fix one: clang-format -i <file>.
set -euo pipefail
cd "$(dirname "$0")/.."
CLANG_FORMAT="${CLANG_FORMAT:-clang-format}"

status=0
count=0
while IFS= read -r -d '' file; do
  [ -f "$file" ] || continue  # deleted in the working tree
  count=$((count + 1))
  if ! "$CLANG_FORMAT" --style=file --dry-run --Werror "$file" >/dev/null 2>&1; then
    echo "not formatted: $file" >&2
    "$CLANG_FORMAT" --style=file "$file" | diff -u "$file" - | head -n 20 >&2 || true
    status=1
  fi
done < <(git ls-files -z -- '*.h' '*.cpp')
if [ "$status" -eq 0 ]; then
  echo "format-check: $count files formatted"
fi
exit "$status"
