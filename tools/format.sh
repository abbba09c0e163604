#!/usr/bin/env bash
# format.sh: formats the tracked sources and names those that have changed.
set -euo pipefail

mapfile -t sources < <(git ls-files '*.cpp' '*.h')
mapfile -t to_change < <(
    { clang-format --dry-run "${sources[@]}" 2>&1 || true; } |
        sed -n 's/:[0-9]*:[0-9]*: warning: .*\[-Wclang-format-violations\]$//p' | sort -u
)
[ "${#to_change[@]}" -gt 0 ] || exit 0
clang-format -i "${to_change[@]}"
printf '%s\n' "${to_change[@]}"
