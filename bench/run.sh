#!/usr/bin/env bash
# run.sh --names [NAME...]: prints the names of the benchmark programs, or checks the given ones and
# prints them; where one does not exist, tells which do and ends with 2.
# run.sh BUILD NAME...: runs benchmark programs of a build.
# run.sh --check BUILD NAME...: then shows every ratio beside its limit (bench/limits) in one table, and
# ends with 1 where one is missed.
set -euo pipefail
folder=$(dirname "${BASH_SOURCE[0]}")

# checked NAME...: the names if they are benchmarks; all benchmarks when none is given.
checked() {
    local all name
    all=$(sed -n 's/^add_executable(\([a-z]*_bench\).*/\1/p' "$folder/CMakeLists.txt")
    for name; do
        grep -qxF -e "$name" <<<"$all" && continue
        printf "No benchmark '%s'. There are:\n%s\n" "$name" "$all" >&2
        return 2
    done
    if [ "$#" -gt 0 ]; then printf '%s\n' "$@"; else printf '%s\n' "$all"; fi
}

# run BUILD NAME...: a line "== NAME" before the output of each, and the processor that ratios belong to.
run() {
    local build=$1 name processor
    processor=$(lscpu | sed -n 's/^Model name: *//p' | head -n 1)
    shift
    for name; do
        echo "== $name"
        echo "on ${processor:-a processor without a name}"
        "$build/bench/$name"
    done
}

case $1 in
--names)
    shift
    checked "$@"
    ;;
--check)
    shift
    output=$(mktemp)
    trap 'rm -f "$output"' EXIT
    run "$@" | tee "$output"
    "$folder/check.py" "$folder/limits" "${@:2}" <"$output"
    ;;
*) run "$@" ;;
esac
