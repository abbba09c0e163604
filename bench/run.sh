#!/usr/bin/env bash
# run.sh BUILD [NAME]: runs the benchmark programs of a build, or the one called NAME.
set -euo pipefail
build=$1
name=${2:-}
found=0
for program in "$build"/bench/*_bench; do
    [ -x "$program" ] || continue
    [ -z "$name" ] || [ "$(basename "$program")" = "$name" ] || continue
    found=1
    "$program"
done
[ "$found" -eq 1 ] || { echo "run.sh: no benchmark ${name:-programs}" >&2; exit 2; }
